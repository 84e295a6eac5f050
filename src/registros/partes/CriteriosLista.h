#pragma once
// What the two party lists share in their state: the criteria array handed to the store and
// the search box's criterion.
#include "valores/cCriterio.h"
#include "servicios/Arreglos.h"

#include <QString>
#include <cstdint>
#include <optional>

namespace CriteriosLista {

// Three elements, 0 to 2, each the whole number 0; each criterion puts its value, as text, at
// the index of its column (1 name, 2 DNI). An emptied criterion is still passed, as "".
Arreglo Arreglo3(const std::optional<TablaCriterios>& tabla);
bool Hay(const std::optional<TablaCriterios>& tabla);
// The column that a search box can stand over: 1 or 2, else 0.
int ColumnaDeBusqueda(const QString& seleccion);
// The criteria in words, as a list's result line starts: each one "<its column's words> '"
// value "' " (`nombre` for the name, `dni` for the number), joined by ", " where both sides
// say something. An emptied criterion, or one on another column, says nothing.
QString Texto(const std::optional<TablaCriterios>& tabla, const QString& nombre,
              const QString& dni);

}  // namespace CriteriosLista
