#pragma once
// The search conditions of the lists of returns (all returns, a contributor's, a presenter's):
// the five searchable columns, code, reference, date of accrual, total and operation, and the
// conditions that the store of returns reads.
#include "valores/cCriterio.h"

#include <QString>
#include <cstdint>
#include <optional>

// The conditions of a search of returns: lower bounds on the code, the date of accrual and the
// total, and starts of the reference and of the operation code. An empty text, or a date 0,
// is no condition.
struct CondicionesDeclaracion {
    QString CSDE;        // the lowest code, as typed
    QString REFERENCIA;  // the start of the reference, whatever its case
    int32_t FECHAD = 0;  // the lowest date of accrual yyyymmdd
    QString TOTAL;       // the lowest total as the list shows it ("1.234,50", or a number)
    QString OPERACION;   // the start of the operation code, whatever its case
};

namespace CriteriosDeclaracion {

// The searchable columns, numbered as CAMPOSELECCION (column of the grid + 1).
enum Campo : int { kCodigo = 1, kReferencia = 2, kFecha = 3, kTotal = 4, kOperacion = 5 };

// The conditions of the table: the date read in the current language.
CondicionesDeclaracion Condiciones(const std::optional<TablaCriterios>& tabla);

// Whether any condition stands.
bool Hay(const std::optional<TablaCriterios>& tabla);

}  // namespace CriteriosDeclaracion
