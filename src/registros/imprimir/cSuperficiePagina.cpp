#include "registros/imprimir/cSuperficiePagina.h"

double cSuperficiePagina::MmPorUnidad() const
{
    switch (ScaleMode) {
    case 2: return 25.4 / 72.0;     // points
    case 3: return 25.4 / 96.0;     // pixels
    case 5: return 25.4;            // inches
    case 6: return 1.0;             // millimetres
    case 7: return 10.0;            // centimetres
    default: return 25.4 / 1440.0;  // twips
    }
}

double cSuperficiePagina::MmDeGrosor(int16_t puntos)
{
    // The frames and rules were sized for a 600-dot printer; a surface without dots draws the
    // stroke those dots would make.
    return (puntos < 1 ? 1 : puntos) * 25.4 / 600.0;
}
