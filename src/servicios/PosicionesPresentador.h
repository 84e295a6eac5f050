#pragma once
// The positions of the presenter's arrays that cross between the records and the store.
// The save array (GuardarPresentador) and the load array (CargarPresentador) share one layout;
// the load array leaves its element 0 unread, the code being the argument of the call.

namespace PosPresentador {
enum Posicion : int {
    CSPR,        // 0 inserts a new presenter; another code updates that one
    DNIP,
    NOMBREP,
    VIAP,
    DOMICILIOP,
    NUMEROP,     // whole number
    LETRAP,
    ESCALERAP,
    PISOP,
    MANOP,
    CODPROVP,
    CODPOSP,
    CODMUNP,
    NOMMUNP,
    TELEFONOP,
    Tamano       // 15 values
};
}  // namespace PosPresentador

// The validation array (ValidarDatosPresentador): eight texts.
namespace PosValidacionPresentador {
enum Posicion : int {
    DNIP,
    NOMBREP,
    DOMICILIOP,
    CODPROVP,
    CODMUNP,
    NOMMUNP,
    CODPOSP,
    TELEFONOP,
    Tamano       // 8 values
};
}  // namespace PosValidacionPresentador
