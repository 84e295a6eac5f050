#pragma once
// What the printing tests share: a stored return with every field filled to its width, its
// presenter, and look-ups in the calls a recording surface kept.
#include "paneles/imprimir/cSuperficieGrabadora.h"

#include <QList>
#include <QString>
#include <cstdint>

// Stores a presenter, two contributors and a return whose every text field is as long as the
// form lets it be; answers the return's code. The return is loaded for printing.
int32_t DeclaracionLlena();

// The texts printed with exactly this content.
QList<LlamadaPagina> Textos(const cSuperficieGrabadora& s, const QString& texto);
// The one text printed with this content (fails the test when there is not exactly one).
LlamadaPagina UnTexto(const cSuperficieGrabadora& s, const QString& texto);
QList<LlamadaPagina> Dibujos(const cSuperficieGrabadora& s);
int FinesDeDocumento(const cSuperficieGrabadora& s);
// The height the surface gives a text in the font of a recorded call.
float AltoDe(const LlamadaPagina& l);

// The text of a PDF as pdftotext -layout reads it; a page ends with a form feed.
QString TextoDePdf(const QString& pdf);
// The pages of a PDF, counted in that text.
int PaginasDePdf(const QString& pdf);
