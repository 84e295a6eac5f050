#pragma once
// What the list panels do to their grid: mark the selected row by painting it, and lay the
// search box over the cell under a heading. A panel gives it the grid and the box when it
// opens (Flex, txtBusqueda) before using the rest.
// The grid is held by a QPointer, which needs the whole class wherever this header goes.
#include "paneles/controles/cFlexGrid.h"

#include <QColor>
#include <QPointer>
#include <QStringList>

class QLineEdit;
class cFlexGrid;

class cUtilidadesGrid {
public:
    // The grid served and the search box (write-only).
    void Flex(cFlexGrid* grid) { m_flex = grid; }
    void txtBusqueda(QLineEdit* caja) { m_txtBusqueda = caja; }

    // Paints row `fila` (the current row when it is below 1) in `fondo` and `tinta`, after
    // giving the row painted last its normal colours back, if the grid still has it. The
    // current column stays; the painted row becomes the current one.
    void SeleccionarGrid(const QColor& fondo, const QColor& tinta, int fila);
    // Lays the search box over the current cell (a little below its top, as wide as column
    // 1), gives it the cell's text, shows it and brings it to the front.
    void PosicionarTxtBusqueda();
    void OcultarTxtBusqueda();
    // True when an element other than the last has any text; the last one is left out.
    bool hayAlgunaCondicion(const QStringList& condiciones) const;

    // The row painted last, 0 for none.
    int FilaSeleccionada() const { return m_filaSeleccionada; }

    // The search box lies this far below the top of the cell (5 twips, at least one pixel).
    static const int kDesplazamiento;

private:
    QPointer<cFlexGrid> m_flex;
    QPointer<QLineEdit> m_txtBusqueda;
    int m_filaSeleccionada = 0;
};
