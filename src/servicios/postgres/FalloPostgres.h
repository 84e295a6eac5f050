#pragma once
// The fault of a statement or a connection on an office's server, as a user can be shown it:
// the server named, what failed and what to do, never the driver's own text, which goes to the
// log. The number is the catalogue id of the message (kIdServidorNoResponde where the server
// could not be reached or went away, kIdServidorRechazaUsuario for a refused login, ...).
#include "plataforma/Fallo.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QString>

cFallo FalloPostgres(const QSqlDatabase& db, const QSqlError& error, const QString& contexto,
                     const QString& origen);

// Whether the fault is a lost or unreachable server (the next operation reconnects).
bool EsServidorPerdido(const QSqlError& error);
