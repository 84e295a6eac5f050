#pragma once
// How the searches compare texts, whatever the engine: every letter in its caseless form, so
// that "MUÑOZ" and "muñoz" give the same text; accents are kept ("É" is not "E"). An engine
// gives its connections this very folding as the SQL function PLEGAR.
#include <QString>

inline QString PlegarTexto(const QString& texto)
{
    return texto.toCaseFolded();
}
