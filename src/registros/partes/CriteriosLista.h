#pragma once
// What the party lists share in their state: the criteria handed to the store and the search
// box's criterion.
#include "valores/CriteriosParte.h"
#include "valores/cCriterio.h"

#include <QString>
#include <cstdint>
#include <optional>

namespace CriteriosLista {

// The criteria of the store: each criterion of the name's column (1) or of the number's (2)
// gives its value. An emptied criterion is still passed, as "".
CriteriosParte Criterios(const std::optional<TablaCriterios>& tabla);
bool Hay(const std::optional<TablaCriterios>& tabla);
// The column that a search box can stand over: 1 or 2, else 0.
int ColumnaDeBusqueda(const QString& seleccion);
// The criteria in words, as a list's result line starts: each one "<its column's words> '"
// value "' " (`nombre` for the name, `dni` for the number), joined by ", " where both sides
// say something. An emptied criterion, or one on another column, says nothing.
QString Texto(const std::optional<TablaCriterios>& tabla, const QString& nombre,
              const QString& dni);

}  // namespace CriteriosLista
