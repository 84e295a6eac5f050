#pragma once
// The compiled table behind the catalogue lookups.
namespace Catalogo {
struct FilaCatalogo {
    const char* castellano;
    const char* euskera;
};
inline constexpr int kUltimoId = 370;
extern const FilaCatalogo kFilas[kUltimoId];  // kFilas[n - 1] is base id n

// Texts added later, each in a range of ids of its own, past the table above.
struct FilaAnadida {
    int id;
    FilaCatalogo fila;
};
extern const FilaAnadida kFilasAnadidas[];
extern const int kNumeroFilasAnadidas;
}
