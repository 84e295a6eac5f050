#pragma once
// Every text the program shows comes from this numbered catalogue, in Spanish (rows 1 to 395)
// and in Basque (rows 10001 to 10395). Texts are fetched when they are shown.
#include "plataforma/Idioma.h"

#include <QString>

// The text of base id `id` in the current language: row id + OffsetIdioma().
QString Texto(int id);
// The text of one row, whatever the current language (e.g. 10347 is Basque).
QString TextoFila(int fila);
// Picks between two literals that are not in the catalogue.
QString TextoSegunIdioma(const QString& es, const QString& eu);
