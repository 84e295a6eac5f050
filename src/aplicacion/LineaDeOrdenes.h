#pragma once
// The program's command line. It is read before any window exists: an option that does its work
// without a window (--help, --version, ...) does it and the program ends with that work's exit
// status; without such an option the program starts as usual. Each option is one row of the
// table in LineaDeOrdenes.cpp, which --help lists.
//
// What the line writes is in the language of the user's locale (LC_ALL, LC_MESSAGES, LANG):
// Basque for "eu", Spanish otherwise. The program's language is set to it before any work runs, so the
// work's own texts (Texto, TextoSegunIdioma) come in that language too.
#include <QString>
#include <QStringList>
#include <optional>

class QCommandLineParser;
class QTextStream;

namespace LineaDeOrdenes {

// What the work of an option is given: the parsed line, and where to write.
struct Llamada {
    const QString& programa;  // the name the program was called by, without its folder
    const QStringList& argumentos;  // the whole line, without Qt's own options
    const QCommandLineParser& linea;
    QTextStream& salida;   // standard output
    QTextStream& errores;  // standard error
};

// The line that sends a user with a wrong line to --help.
QString Pista(const QString& programa);

// Looks at the program's own arguments. Answers the exit status when the line asked for work
// without a window (done by now, or refused with a message: status 2), or nothing when the
// program is to start as usual. The work runs under an application object made here for it: a
// QCoreApplication, or a QApplication on a platform without windows (unless one was asked for)
// for work that draws pages.
std::optional<int> Atender(int argc, char** argv);

// The manual page veldoria(1), in Spanish and in the roff of man(7), made from the same table
// of options as --help: the build writes it, and it is installed with the program.
QString PaginaManual(const QString& version);

// The same over arguments already split (the first is the program's name), writing to the
// given streams, with the application object already made.
std::optional<int> Atender(const QStringList& argumentos, QTextStream& salida,
                           QTextStream& errores);

}  // namespace LineaDeOrdenes
