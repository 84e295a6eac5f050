#include "registros/imprimir/EtiquetasImpreso.h"

#include "registros/imprimir/Primitivas.h"

namespace {
void fuente(cSuperficiePagina& p, const QString& nombre, float tamano, bool negrita,
            bool cursiva)
{
    p.FontName = nombre;
    p.FontSize = tamano;
    p.FontBold = negrita;
    p.FontItalic = cursiva;
}
}

void FuenteTimes(cSuperficiePagina& p, float tamano, bool negrita, bool cursiva)
{
    fuente(p, kTimes, tamano, negrita, cursiva);
}

void FuenteArial(cSuperficiePagina& p, float tamano, bool negrita, bool cursiva)
{
    fuente(p, kArial, tamano, negrita, cursiva);
}

void Etiquetas(cSuperficiePagina& p, float y, const ParEtiquetas& par)
{
    p.FontItalic = true;
    TextoIzquierda(p, par.xEu, y + par.dyEu, QString::fromUtf8(par.eu));
    p.FontItalic = false;
    TextoIzquierda(p, par.xEs, y + par.dyEs, QString::fromUtf8(par.es));
}

void Marco(cSuperficiePagina& p, float x1, float y1, float x2, float y2)
{
    p.DrawWidth = 10;
    CajaBlanca(p, x1, y1, x2, y2);
    p.DrawWidth = 6;
}
