#pragma once
// The seam of the stores' engine. Above the stores (registros, paneles, aplicacion, and every
// test but the stores' own) no file includes a header of an engine: the engines' folders
// (servicios/motor, servicios/sqlite, servicios/postgres) or SQLite's own <sqlite3.h>. Among
// the stores, only the embedded engine's folder (servicios/sqlite) includes <sqlite3.h>, names a function or type
// of SQLite's C interface (sqlite3_..., sqlite3*) or writes a word of SQLite's own dialect
// (sqlite_master, sqlite_sequence, PRAGMA, AUTOINCREMENT, ATTACH, DETACH, NOCASE), in its
// statements or in its comments.
#include "ComprobarCapas.h"

#include <QList>
#include <QString>

// Checks every .h and .cpp under `src` (the include root) and under `tests` (the tests' root;
// its folders servicios and arquitectura are the stores' and this check's own, left out).
QList<Falta> ComprobarMotor(const QString& src, const QString& tests,
                            Recuento* recuento = nullptr);
