#pragma once
// A return for the tests: DecDatos() as a new return that passes every rule, on a store laid
// out with parties in it (AlmacenPrueba.h, PartesPrueba.h).
#include "comun/AlmacenPrueba.h"
#include "comun/PartesPrueba.h"

// DecDatos() as a new return that passes every rule: a petrol passenger car of 2010 under the
// operation T2, subject and transmitter national, in the home province. Operacion() holds T2.
void DeclaracionValida();
