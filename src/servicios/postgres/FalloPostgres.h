#pragma once
// The fault of a statement or a connection on an office's server, as a user can be shown it:
// the server named, what failed and what to do, never the driver's own text, which goes to the
// log. The number is the server's SQLSTATE where it is one (23505 a duplicate key), 3151 where
// the server could not be reached or went away.
#include "plataforma/Fallo.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QString>

cFallo FalloPostgres(const QSqlDatabase& db, const QSqlError& error, const QString& contexto,
                     const QString& origen);

// Whether the fault is a lost or unreachable server (the next operation reconnects).
bool EsServidorPerdido(const QSqlError& error);
