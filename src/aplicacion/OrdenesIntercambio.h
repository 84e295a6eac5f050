#pragma once
// The exchange of contributors from the command line, with no window:
//   Veldo --importar FICHERO [--errores FICHERO]   import in automatic mode
//   Veldo --exportar FICHERO --todos                every contributor
//   Veldo --exportar FICHERO DNI...                 these contributors, in this order
// Both are rows of the command line's table (LineaDeOrdenes). They work on the store of the
// program's data folder, brought to the current layout as start-up does, through the same
// records as the export and import panels.
//
// Exit status: 0 done; 1 some lines were refused (import) or some contributors cannot be
// exported; 2 the command cannot be carried out (wrong arguments, a file that cannot be read
// or written, an unknown number); 3 the store cannot be used.
namespace LineaDeOrdenes {
struct Llamada;
}

namespace OrdenesIntercambio {

int Importacion(const LineaDeOrdenes::Llamada& llamada);
int Exportacion(const LineaDeOrdenes::Llamada& llamada);

// Runs `trabajo` on the store of the program's data folder, ready as for the exchange; 3 when
// the store cannot be used, 2 for a failure of the program's own kind, told on stderr.
int ConAlmacen(const LineaDeOrdenes::Llamada& llamada,
               int (*trabajo)(const LineaDeOrdenes::Llamada&));

}  // namespace OrdenesIntercambio
