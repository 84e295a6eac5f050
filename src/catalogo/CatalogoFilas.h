#pragma once
// The compiled table behind the catalogue lookups.
namespace Catalogo {
struct FilaCatalogo {
    const char* castellano;
    const char* euskera;
};
inline constexpr int kUltimoId = 378;
extern const FilaCatalogo kFilas[kUltimoId];  // kFilas[n - 1] is base id n
}
