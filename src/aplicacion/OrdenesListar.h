#pragma once
// The stored returns as a table, from the command line, with no window:
//   Veldo --listar FICHERO.csv [--desde DD/MM/AAAA] [--hasta DD/MM/AAAA] [--dni NIF]
// writes one row per return of the selection (all of them without one), in the order of
// their codes, as TablaDeclaraciones lays it out. The file appears whole or not at all.
// Exit status: 0 written; 2 wrong line or a file that cannot be written; 3 the store cannot
// be used.
namespace LineaDeOrdenes {
struct Llamada;
}

namespace OrdenesListar {
int Listado(const LineaDeOrdenes::Llamada& llamada);
}
