#pragma once
// Arrays of fixed order that cross the boundary between the program and its stores.
#include <QList>
#include <QVariant>
#include <QVariantList>

// One-dimensional: element i has a fixed meaning, told by each call.
using Arreglo = QVariantList;
// Two-dimensional, first subscript the column, second the row from 0: a[columna][fila].
using Arreglo2D = QList<QVariantList>;
