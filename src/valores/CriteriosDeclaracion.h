#pragma once
// The search conditions of the lists of returns (all returns, a contributor's, a presenter's):
// the five searchable columns, code, reference, date of accrual, total and operation, and the
// array of conditions that the store of returns reads.
#include <QVariantList>
#include "valores/cCriterio.h"

#include <QString>
#include <optional>

namespace CriteriosDeclaracion {

// The searchable columns, numbered as CAMPOSELECCION (column of the grid + 1).
enum Campo : int { kCodigo = 1, kReferencia = 2, kFecha = 3, kTotal = 4, kOperacion = 5 };

// One slot per searchable column (slot CAMPOSELECCION - 1): 0 for no condition on the number,
// date and total, an empty text on the reference and the operation. The date goes as a
// number yyyymmdd read in the current language.
QVariantList Arreglo5(const std::optional<TablaCriterios>& tabla);

// Whether any condition stands.
bool Hay(const std::optional<TablaCriterios>& tabla);

}  // namespace CriteriosDeclaracion
