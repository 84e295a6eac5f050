#pragma once
// The columns in which the panels show presenters, defined once: the list of presenters shows
// all six, the selection of the presenter of a return the first five, under other widths.
#include "paneles/partes/PanelLista.h"
#include "valores/FilaPresentador.h"

#include <QList>

namespace ColumnasPresentadores {

// The columns by position; the code's is hidden in the lists.
constexpr int kCodigo = 0;
constexpr int kNombre = 1;
constexpr int kDni = 2;
constexpr int kCalle = 3;
constexpr int kMunicipio = 4;
constexpr int kDeclaraciones = 5;  // returns that name the presenter

// Headings, widths and alignments of the list's six columns.
const QList<ColumnaLista>& Lista();
// Those of the selection's five: the number alone is right-aligned there, unlike on the list.
const QList<ColumnaLista>& Seleccion();
// What a row shows in one column: the code and the count as whole numbers, the texts as the
// store gives them.
QString Texto(const FilaPresentador& fila, int columna);

}  // namespace ColumnasPresentadores
