#pragma once
// The restore's last step on the embedded engine (Motor::SustituirContenido).
#include <QSqlDatabase>
#include <QString>
#include <functional>

// Under one write transaction of `db` (begun by `empezar`): `antes`, then every object of the
// connection's file dropped, the tables of the file `copia` made again from its own statements
// (the program's: it wrote them), their rows carried over, then the counters of the keys, the
// indexes and the header numbers. The file's references are not checked row by row: the copy's
// have been. A failure rolls everything back.
void SustituirContenidoSqlite(const QSqlDatabase& db, const QString& copia,
                              const std::function<void()>& empezar,
                              const std::function<void()>& antes, const QString& origen);
