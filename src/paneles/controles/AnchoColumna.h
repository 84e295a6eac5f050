#pragma once
// The width a column of a list needs so that nothing in it is cut: the panels give each column
// its width in twips, but the fonts of the machine decide how wide a heading, a date or an
// amount comes out, and a Basque heading is often longer than the Spanish one.
#include <QString>

class cFlexGrid;

// At least `anchoPedido` pixels; more when the heading `cabecera` (with the room of the
// order's arrow when `conFlecha`, the arrow standing `flechaTwips` left of the right edge) or
// the text `muestra`, the widest the column holds, would not fit.
int AnchoColumnaQueCabe(const cFlexGrid* grid, int anchoPedido, const QString& cabecera,
                        bool conFlecha, int flechaTwips, const QString& muestra = QString());
