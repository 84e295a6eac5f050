#pragma once
// The positions of the contributor's arrays that cross between the records and the store.
// Code on both sides reads and writes their elements by these names only, so that the order
// of an array is written down once.
//
// The save array (GuardarContribuyente) and the load array (CargarContribuyente) share one
// layout; the load array leaves its element 0 unread, the code being the argument of the call.
// A party as a return takes it (cDeclaSvr's ExisteContribuyente, CargarContribuyente) has the
// same layout up to NUMSP, which there holds the returns that have the party as subject.

namespace PosContribuyente {
enum Posicion : int {
    CSCO,        // 0 inserts a new contributor; another code updates that one
    TIPODNI,
    DNIC,
    NOMBREC,
    VIAC,
    DOMICILIOC,
    NUMEROC,     // whole number
    LETRAC,
    ESCALERAC,
    PISOC,
    MANOC,
    TIPODOMI,
    PAIS,
    CODPROVC,
    NOMPROVC,
    CODPOSC,
    CODMUNC,
    NOMMUNC,
    NUMSP,       // real
    NUMTR,       // real
    Tamano       // 20 values
};
}  // namespace PosContribuyente

// The validation array (ValidarDatosContribuyentes): eleven texts.
namespace PosValidacionContribuyente {
enum Posicion : int {
    TIPODNI,
    DNIC,
    NOMBREC,
    DOMICILIOC,
    TIPODOMI,
    PAIS,
    CODPROVC,
    CODPOSC,
    NOMPROVC,
    NOMMUNC,
    CODMUNC,
    Tamano       // 11 values
};
}  // namespace PosValidacionContribuyente
