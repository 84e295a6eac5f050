#pragma once
// Searching texts without regard to case, beyond ASCII, on SQLite. Its NOCASE, LIKE and UPPER
// fold only the letters A to Z, so "muñoz" would not find "MUÑOZ", nor "é" "É"; imported data
// may be in lower case. Every connection is given the SQL function PLEGAR(texto), the text
// folded as PlegarTexto folds it, and the searches compare folded texts.
#include <QSqlDatabase>
#include <QString>
#include <QVariantList>

// Gives the connection the SQL function PLEGAR; cFallo(origen) when SQLite refuses it.
void RegistrarPlegadoSqlite(const QSqlDatabase& db, const QString& origen);

// A condition for a WHERE clause: `columna`, a column of NOCASE collation with an index, begins
// with `prefijo`, without regard to case. The prefix is plain text: quotes, "%" and "_" are
// characters like any other. Ranges on the column let SQLite use its index: one for the ASCII
// start of the prefix (which NOCASE folds), narrowed, when a letter beyond ASCII follows, to
// one range for each case of that letter; the folded comparison decides after them. The bound
// values are appended to `valores`.
QString CondicionPrefijoSqlite(const QString& columna, const QString& prefijo,
                               QVariantList& valores);
