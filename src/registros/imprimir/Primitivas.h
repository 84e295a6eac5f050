#pragma once
// The six drawing routines every block of the form goes through. All placing arithmetic of
// text lives here; the blocks only give coordinates in the surface's scale.
#include "registros/imprimir/cSuperficiePagina.h"

void LineaNegra(cSuperficiePagina& p, float x1, float y1, float x2, float y2);
// A white fill, then a black box outline.
void CajaBlanca(cSuperficiePagina& p, float x1, float y1, float x2, float y2);
// A box filled with grey E0E0E0, with no black edge.
void CajaGris(cSuperficiePagina& p, float x1, float y1, float x2, float y2);
// Centred in the cell from x to x + ancho, top at y. A wider text runs past both edges.
void TextoCentrado(cSuperficiePagina& p, float x, float y, float ancho, const QString& texto);
// Ending at x, top at y.
void TextoDerecha(cSuperficiePagina& p, float x, float y, const QString& texto);
// Starting at x; y is a point a third of the way down the line, so the top is raised by 35 %
// of the text's height.
void TextoIzquierda(cSuperficiePagina& p, float x, float y, const QString& texto);
