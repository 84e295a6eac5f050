#pragma once
// The rules of a valid contributor and of a valid presenter, as the stores apply them.
//
// A national contributor (TIPODOMI "N") has a province code, no typed province name and no
// country, and a five-digit postal code of its province that is not nn000. In the province of
// the treasury ("77") its municipality is a code; in any other the name is typed and the code
// is 000 or empty. A foreign contributor (TIPODOMI "E") has a typed country, province name and
// municipality name, and province and municipality codes 00/000 or empty. The number is
// judged by its kind (see ValidarDniOficial.h).
//
// The interactive validation answers the number of the first rule broken, trying them in the
// order of their numbers; each rule is worded so that it speaks only where the rules before
// it have nothing to say of the same field (a postal code that is not of five digits is not
// said to be of another province; a missing province is reported as missing, not as a postal
// code that does not match). The import's validation reports every error of a line at once.
#include "servicios/LineaContribuyente.h"
#include "valores/Contribuyente.h"
#include "valores/Presentador.h"

#include <QList>
#include <QString>
#include <cstdint>
#include <functional>

// The rules of a contributor, by number.
namespace VeredictoContribuyente {
enum : int16_t {
    Valido = 0,
    DniMalFormado = 1,
    DniVacio = 2,
    NombreVacio = 3,
    DomicilioVacio = 4,
    PaisVacio = 5,
    CodigoPostalDeOtraProvincia = 6,
    CodigoPostalNoDeCincoCifras = 7,
    CodigoPostalTerminaEnCeros = 8,
    CodigoPostalCero = 9,
    ProvinciaVacia = 10,
    MunicipioVacio = 11,
    CodigoProvinciaVacio = 12,
    CodigoMunicipioVacio = 13,
    DniControlErroneo = 14,
};
}

// The rules of a presenter, by number.
namespace VeredictoPresentador {
enum : int16_t {
    Valido = 0,
    DniErroneo = 1,
    NombreVacio = 2,
    DomicilioVacio = 3,
    CodigoMunicipioVacio = 4,
    MunicipioVacio = 5,
    CodigoPostalCero = 6,
    CodigoPostalDeOtraProvincia = 7,
    CodigoPostalTerminaEnCeros = 8,
    TelefonoNoDeNueveCifras = 9,
    TelefonoVacio = 10,
    DniControlErroneo = 11,
};
}

// The province of the treasury: the only one whose municipalities are codes.
inline const QString kProvinciaTesoreria = QStringLiteral("77");

// The look-ups of the import in the reference tables.
struct ConsultasReferencia {
    std::function<bool(const QString& sigla)> existeVia;
    std::function<bool(const QString& provincia)> existeProvincia;    // two digits
    std::function<bool(const QString& municipio)> existeMunicipio;    // three digits
};

// The number of the first rule the contributor breaks, 0 when none.
int16_t ReglasContribuyente(const Contribuyente& c);
// Every error of an exchange line, in the fixed order of the import's rules (the order in
// which the error file lists them): the number, the name, the domicile, the country, the
// postal code, the names and codes of province and municipality, then whether the numbers are
// numbers, the kinds, the street type, and what a kind of domicile forbids.
QList<HallazgoImportacion> ErroresImportacion(const LineaContribuyente& linea,
                                              const ConsultasReferencia& referencia);
// The number of the first rule the presenter breaks, 0 when none.
int16_t ReglasPresentador(const Presentador& p);
