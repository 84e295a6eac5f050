#pragma once
// The positions of the arrays of a contributor that cross the boundary of its store, by name.
#include <cstdint>

// The save and load array: 20 values.
namespace PosGuardarContribuyente {
enum : int {
    CSCO = 0,
    TIPODNI,
    DNIC,
    NOMBREC,
    VIAC,
    DOMICILIOC,
    NUMEROC,
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
    NUMSP,
    NUMTR,
    Elementos,
};
}

// The import validation array: 15 texts as they stand in the exchange line.
namespace PosValidarImportar {
enum : int {
    TIPODNI = 0,
    DNI,
    NOMBRE,
    DOMICILIO,
    TIPODOMICILIO,
    PAIS,
    CODIGOPROVINCIA,
    CODIGOPOSTAL,
    NOMBREPROVINCIA,
    NOMBREMUNICIPIO,
    CODIGOMUNICIPIO,
    NUMERO,
    NUMEROSUJETOPASIVO,
    NUMEROTRANSMITENTE,
    SIGLAS,
    Elementos,
};
}
