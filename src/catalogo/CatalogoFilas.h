#pragma once
// The compiled table behind the catalogue lookups. Each row carries its id by name: the names
// (kIdCancelar, ...) are written at build time from this table into catalogo/IdsCatalogo.h.
namespace Catalogo {
struct FilaCatalogo {
    int id;  // base id of the row, the generated constant that names it
    const char* castellano;
    const char* euskera;
};
inline constexpr int kUltimoId = 395;
extern const FilaCatalogo kFilas[kUltimoId];  // kFilas[n - 1] is base id n
}
