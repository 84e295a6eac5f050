#pragma once
// The exchange of contributors from the command line, with no window:
//   Veldo --importar FICHERO [--errores FICHERO]   import in automatic mode
//   Veldo --exportar FICHERO --todos                every contributor
//   Veldo --exportar FICHERO DNI...                 these contributors, in this order
// The program's store and language are those of its folder, as when it starts with a window.
#include <QString>
#include <QStringList>

class QTextStream;

namespace OrdenesIntercambio {

// True when the arguments (the program's name first) ask for an exchange.
bool Pedida(int argc, char** argv);
// Runs the exchange that the arguments ask for and answers the exit status: 0 done; 1 some
// lines were refused (import) or some contributors cannot be exported; 2 the command cannot be
// carried out (wrong arguments, a file that cannot be read or written, an unknown number);
// 3 the store cannot be opened.
int Ejecutar(int argc, char** argv);

// The same on arguments already read (without the program's name), on a store and language
// already set up, printing to `salida` and `errores`.
int Ejecutar(const QStringList& argumentos, QTextStream& salida, QTextStream& errores);

// The lines that the program's help shows for these options.
QString Ayuda();

}  // namespace OrdenesIntercambio
