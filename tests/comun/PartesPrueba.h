#pragma once
// Parties for the tests: valid contributors and presenters as the stores take them, the raw
// texts of an exchange line for the import's validation, and parties put in the store of the
// application paths (mdbmod) through the stores' own operations.
#include "servicios/LineaContribuyente.h"
#include "valores/Contribuyente.h"
#include "valores/Presentador.h"

#include <QString>
#include <cstdint>

// A DNI of eight digits with its right letter.
QString Dni(quint32 numero);

// A valid contributor: national in the treasury's province (municipality 001), and foreign
// with a foreign document.
Contribuyente ContribuyenteNacional(const QString& dni, const QString& nombre, int32_t csco = 0);
Contribuyente ContribuyenteExtranjero(const QString& dni, const QString& nombre, int32_t csco = 0);
// The raw texts of a valid national contributor, as an exchange line holds them (fixed
// widths, blanks included).
LineaContribuyente ImportacionNacional();

// A valid presenter in the treasury's province.
Presentador PresentadorValido(const QString& dni, const QString& nombre, int32_t cspr = 0);

// A national contributor of the treasury's province, in street `calle` and municipality
// `municipio`, saved through the store of contributors; answers its code. A refusal stops the
// test program.
int32_t NuevoContribuyente(const QString& dni, const QString& nombre,
                           const QString& calle = QStringLiteral("MAYOR"),
                           const QString& municipio = QStringLiteral("001"));
// A contributor with a foreign number and address.
int32_t NuevoContribuyenteExtranjero(const QString& dni, const QString& nombre);
// A presenter of the treasury's province in street `calle`.
int32_t NuevoPresentador(const QString& dni, const QString& nombre,
                         const QString& calle = QStringLiteral("MAYOR"));
// Whether the store still has the party of that code.
bool ExisteContribuyente(int32_t csco);
bool ExistePresentador(int32_t cspr);
