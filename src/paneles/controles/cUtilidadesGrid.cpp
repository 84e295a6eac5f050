#include "paneles/controles/cUtilidadesGrid.h"

#include "valores/Twips.h"
#include "paneles/controles/cFlexGrid.h"

#include <QLineEdit>
#include <algorithm>

const int cUtilidadesGrid::kDesplazamiento = std::max(1, TwipsAPixeles(5));

void cUtilidadesGrid::SeleccionarGrid(const QColor& fondo, const QColor& tinta, int fila)
{
    cFlexGrid* grid = m_flex;
    if (!grid)
        return;
    grid->setRedraw(false);
    const int destino = fila >= 1 ? fila : grid->Row();
    const int columna = grid->Col();

    // A row painted before a reload that cut the grid is simply forgotten.
    if (m_filaSeleccionada > 0 && grid->Rows() > m_filaSeleccionada) {
        grid->setRow(m_filaSeleccionada);
        for (int c = 0; c < grid->Cols(); ++c) {
            grid->setCellBackColor(m_filaSeleccionada, c, grid->BackColor());
            grid->setCellForeColor(m_filaSeleccionada, c, grid->ForeColor());
        }
    }
    grid->setRow(destino);
    for (int c = 0; c < grid->Cols(); ++c) {
        grid->setCellBackColor(grid->Row(), c, fondo);
        grid->setCellForeColor(grid->Row(), c, tinta);
    }
    m_filaSeleccionada = grid->Row();

    grid->setCol(columna);
    grid->setRedraw(true);
}

void cUtilidadesGrid::PosicionarTxtBusqueda()
{
    cFlexGrid* grid = m_flex;
    QLineEdit* caja = m_txtBusqueda;
    if (!grid || !caja)
        return;
    // The grid's corner in the box's parent: the grid's left and top when they are siblings.
    const QPoint origen = caja->parentWidget()
        ? grid->mapTo(caja->parentWidget(), QPoint(0, 0))
        : grid->mapToGlobal(QPoint(0, 0));
    caja->setGeometry(origen.x() + grid->CellLeft(),
                      origen.y() + grid->CellTop() + kDesplazamiento,
                      grid->CellWidth(),
                      grid->CellHeight() - kDesplazamiento);
    caja->setText(grid->TextMatrix(grid->Row(), grid->Col()));
    // Always the width of column 1, whatever the column: the box is the same for every field.
    caja->resize(grid->ColWidth(1), caja->height());
    caja->show();
    caja->raise();
}

void cUtilidadesGrid::OcultarTxtBusqueda()
{
    if (m_txtBusqueda)
        m_txtBusqueda->hide();
}

bool cUtilidadesGrid::hayAlgunaCondicion(const QStringList& condiciones) const
{
    for (qsizetype i = 0; i + 1 < condiciones.size(); ++i)
        if (!condiciones[i].isEmpty())
            return true;
    return false;
}
