#pragma once
// The columns in which the panels show contributors, defined once: the list of contributors
// and the selection of a subject or transmitter show all seven, the export panel the code,
// the name and the number under the same headings.
#include "paneles/partes/PanelLista.h"
#include "valores/FilaContribuyente.h"

#include <QList>

namespace ColumnasContribuyentes {

// The columns by position; the code's is hidden in the lists.
constexpr int kCodigo = 0;
constexpr int kNombre = 1;
constexpr int kDni = 2;
constexpr int kCalle = 3;
constexpr int kMunicipio = 4;
constexpr int kComoSujeto = 5;        // returns as subject
constexpr int kComoTransmitente = 6;  // returns as transmitter

// Headings, widths and alignments of the seven columns.
const QList<ColumnaLista>& Todas();
// The heading of one column in the language in force.
QString Titulo(int columna);
// What a row shows in one column: the code and the counters as whole numbers, the texts as
// the store gives them.
QString Texto(const FilaContribuyente& fila, int columna);

}  // namespace ColumnasContribuyentes
