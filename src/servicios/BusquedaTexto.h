#pragma once
// Searching texts without regard to case, beyond ASCII: "muñoz" finds "MUÑOZ", "é" finds "É";
// imported data may be in lower case. The folding is PlegarTexto's; how a search by prefix is
// written, so that it still uses the column's index, is the engine's (Motor::CondicionPrefijo).
#include "servicios/motor/Plegado.h"

#include <QString>
#include <QVariantList>

// A condition for a WHERE clause: `columna`, an indexed column of texts, begins with `prefijo`,
// without regard to case. The prefix is plain text: quotes, "%" and "_" are characters like any
// other. The bound values are appended to `valores`.
QString CondicionPrefijo(const QString& columna, const QString& prefijo, QVariantList& valores);
