#pragma once
// The message of start-up when the read/write database cannot be used: what is wrong, with
// which file, and what the user can do. The language stored in the database cannot be read
// then, so the message says it in Spanish and then in Basque.
#include "servicios/cTraspaso.h"

#include <QString>

QString TextoImpedimento(cTraspaso::Impedimento impedimento, const QString& ruta);
// The same when the reference database (VELDOLEC.mdb) is missing or cannot be read.
QString TextoReferencia(const QString& ruta);
