#pragma once
// Printing from the command line, with no window: a stored return to a PDF file or a printer.
//   Veldo --pdf CODE FILE [--borrador] [--sin-presentador]
//         [--copias trafico,interesado,administracion,banco] [--fecha DD/MM/YYYY]
//   Veldo --imprimir CODE [--impresora NAME] with the same options
// The sheets are drawn by the same routines as the print panel's. The options are rows of the
// command line's table (LineaDeOrdenes), which runs this under an application object that can
// paint, on a platform without windows unless one was asked for.
#include <QStringList>
#include <optional>

class QPrinter;

// No answer when the arguments ask for no printing (the program then starts as usual);
// otherwise the exit status: 0 printed, else the program's message went to stderr.
// `impresora`, when given, takes the place of the system's printer for --imprimir.
std::optional<int> OrdenesImprimir(const QStringList& argumentos, QPrinter* impresora = nullptr);
