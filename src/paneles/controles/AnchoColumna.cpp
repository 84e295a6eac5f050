#include "paneles/controles/AnchoColumna.h"

#include "paneles/controles/cFlexGrid.h"
#include "valores/Twips.h"

#include <QHeaderView>
#include <QStyle>
#include <algorithm>

namespace {
constexpr int kHolgura = 2;  // between the heading's text and the arrow
}

int AnchoColumnaQueCabe(const cFlexGrid* grid, int anchoPedido, const QString& cabecera,
                        bool conFlecha, int flechaTwips, const QString& muestra)
{
    const QHeaderView* cabeceras = grid->horizontalHeader();
    const QStyle* estilo = grid->style();
    // The heading's text stands within the header's margins, the cell's within the margins
    // of the item's text.
    const int margenCabecera = estilo->pixelMetric(QStyle::PM_HeaderMargin, nullptr, cabeceras);
    const int margenCelda = estilo->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, grid) + 1;
    int ancho = cabeceras->fontMetrics().horizontalAdvance(cabecera) + 2 * margenCabecera;
    if (conFlecha)
        ancho = cabeceras->fontMetrics().horizontalAdvance(cabecera) + margenCabecera + kHolgura
            + TwipsAPixeles(flechaTwips);
    if (!muestra.isEmpty())
        ancho = std::max(ancho, grid->fontMetrics().horizontalAdvance(muestra) + 2 * margenCelda + 1);
    return std::max(anchoPedido, ancho);
}
