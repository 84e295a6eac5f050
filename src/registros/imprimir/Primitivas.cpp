#include "registros/imprimir/Primitivas.h"

namespace {
constexpr uint32_t kNegro = 0x000000;
constexpr uint32_t kBlanco = 0xFFFFFF;
constexpr uint32_t kGris = 0xE0E0E0;
}

void LineaNegra(cSuperficiePagina& p, float x1, float y1, float x2, float y2)
{
    p.Line(x1, y1, x2, y2, kNegro, ModoLinea::Linea);
}

void CajaBlanca(cSuperficiePagina& p, float x1, float y1, float x2, float y2)
{
    p.FillColor = kBlanco;
    p.Line(x1, y1, x2, y2, kNegro, ModoLinea::Caja);
}

void CajaGris(cSuperficiePagina& p, float x1, float y1, float x2, float y2)
{
    p.FillColor = kGris;
    p.Line(x1, y1, x2, y2, kGris, ModoLinea::CajaRellena);
}

void TextoCentrado(cSuperficiePagina& p, float x, float y, float ancho, const QString& texto)
{
    if (texto.isEmpty())
        return;
    // Single precision on purpose: the cell arithmetic of the form is done in floats.
    const float mitad = ancho / 2.0f;
    p.CurrentX = x + mitad - p.TextWidth(texto) / 2.0f;
    p.CurrentY = y;
    p.Print(texto);
}

void TextoDerecha(cSuperficiePagina& p, float x, float y, const QString& texto)
{
    if (texto.isEmpty())
        return;
    p.CurrentX = x - p.TextWidth(texto);
    p.CurrentY = y;
    p.Print(texto);
}

void TextoIzquierda(cSuperficiePagina& p, float x, float y, const QString& texto)
{
    if (texto.isEmpty())
        return;
    p.CurrentX = x;
    p.CurrentY = y - p.TextHeight(texto) * 0.35f;
    p.Print(texto);
}
