#pragma once
// The stores' door for amounts. An amount of a return is a 64-bit float in whole cents; one that
// is not a finite number (not a number, or an infinity, given as a number or as the texts "nan"
// and "inf") has no place in a return: SQLite would store an infinity as given and turn "not a
// number" into NULL, which its column refuses with its own words. Such an amount is refused
// here, with the program's message and the field to focus, before anything is written.
#include "servicios/Arreglos.h"
#include "valores/Veredicto.h"

#include <QVariant>
#include <span>

// One amount of a store's save array.
struct ColumnaImporte {
    int posicion;         // the value's position in the save array
    int idEtiqueta;       // catalogue id of the field's label, which names it in the message
    const char* control;  // objectName of the field that shows the value
};

// Catalogue id of the message of a refused amount: %1 the field's name.
inline constexpr int kIdImporteNoValido = 366;

// True when the value, as the store reads an amount (a number, a text that reads as one, or
// nothing), is not a finite number.
bool ImporteNoFinito(const QVariant& valor);

// The verdict on the first of `columnas` whose value in `datos` is not a finite number; an
// empty verdict when every amount is one.
Veredicto ComprobarImportes(const Arreglo& datos, std::span<const ColumnaImporte> columnas);
