#pragma once
// Arrays that tests hand to records and stores, built by named positions (the enums of
// servicios/Posiciones*.h) rather than by order, and changed by position.
#include "servicios/Arreglos.h"

#include <QVariant>
#include <initializer_list>
#include <utility>

using ValoresEnPosicion = std::initializer_list<std::pair<int, QVariant>>;

// An array of `tamano` values, each given at its position. Every position from 0 to
// tamano - 1 must be given exactly once: a builder that forgets one or names one twice stops
// the test program, so no array reaches a store with a value in the wrong place.
Arreglo ArregloPorPosiciones(int tamano, ValoresEnPosicion valores);

// A copy of `a` with the values given put at their positions.
Arreglo ArregloCambiado(Arreglo a, ValoresEnPosicion cambios);
