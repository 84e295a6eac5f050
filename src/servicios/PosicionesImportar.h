#pragma once
// The positions of the import validation array (cContribSvr::ValidarDatosImportar): fifteen
// raw texts as an exchange line holds them, blanks included. The first eleven are those of
// the contributor's validation array, under the same names (PosImportar::DNIC is
// PosValidacionContribuyente::DNIC); four values that the import checks as numbers or against
// the reference tables follow them.
#include "servicios/PosicionesContribuyente.h"

namespace PosImportar {
using namespace PosValidacionContribuyente;
enum Posicion : int {
    NUMEROC = PosValidacionContribuyente::Tamano,  // house number
    NUMSP,                                         // counter of returns as subject
    NUMTR,                                         // counter of returns as transmitter
    VIAC,                                          // street type
    Tamano                                         // 15 values
};
}  // namespace PosImportar
