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
// The interactive validation answers the verdict of the first rule broken (its message and the
// field that takes the focus), trying them in a fixed order; each rule is worded so that it speaks only where the rules before
// it have nothing to say of the same field (a postal code that is not of five digits is not
// said to be of another province; a missing province is reported as missing, not as a postal
// code that does not match). The import's validation reports every error of a line at once.
#include "servicios/LineaContribuyente.h"
#include "valores/Contribuyente.h"
#include "valores/Presentador.h"
#include "valores/Resultado.h"

#include <QList>
#include <QString>
#include <functional>

// The province of the treasury: the only one whose municipalities are codes.
inline const QString kProvinciaTesoreria = QStringLiteral("77");

// The look-ups of the import in the reference tables.
struct ConsultasReferencia {
    std::function<bool(const QString& sigla)> existeVia;
    std::function<bool(const QString& provincia)> existeProvincia;    // two digits
    std::function<bool(const QString& municipio)> existeMunicipio;    // three digits
};

// The verdict of the first rule the contributor breaks; accepted when none.
Resultado<void> ReglasContribuyente(const Contribuyente& c);
// Every error of an exchange line, in the fixed order of the import's rules (the order in
// which the error file lists them): the number, the name, the domicile, the country, the
// postal code, the names and codes of province and municipality, then whether the numbers are
// numbers, the kinds, the street type, and what a kind of domicile forbids.
QList<HallazgoImportacion> ErroresImportacion(const LineaContribuyente& linea,
                                              const ConsultasReferencia& referencia);
// The verdict of the first rule the presenter breaks; accepted when none.
Resultado<void> ReglasPresentador(const Presentador& p);
