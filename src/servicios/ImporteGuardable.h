#pragma once
// The stores' door for amounts. An amount of a return is a 64-bit float in whole cents; one that
// is not a finite number (not a number, or an infinity) has no place in a return: SQLite would
// store an infinity as given and turn "not a number" into NULL, which its column refuses with
// its own words. Such an amount is refused here, with the program's message and the field to
// focus, before anything is written.
#include "valores/Veredicto.h"

// One amount column of a store, with the field that shows it.
struct ColumnaImporte {
    int idEtiqueta;       // catalogue id of the field's label, which names it in the message
    const char* control;  // objectName of the field that shows the value
};

// The verdict on an amount of `columna` that is not a finite number; an empty verdict for a
// finite one.
Veredicto ComprobarImporte(double valor, const ColumnaImporte& columna);
