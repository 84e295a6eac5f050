#pragma once
// A return for the tests: DecDatos() as a new return that passes every rule, on a store laid
// out with parties in it (AlmacenPrueba.h, PartesPrueba.h).
#include "comun/AlmacenPrueba.h"
#include "comun/PartesPrueba.h"
#include "valores/Veredicto.h"

// DecDatos() as a new return that passes every rule: a petrol passenger car of 2010 under the
// operation T2, subject and transmitter national, in the home province. Operacion() holds T2.
void DeclaracionValida();

// The number (1 to 40) of the store's rule whose verdict this is; 0 for an empty verdict.
int ReglaDe(const Veredicto& v);
