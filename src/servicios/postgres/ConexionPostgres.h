#pragma once
// How a connection reaches an office's PostgreSQL server, by PostgreSQL's own conventions: the
// store's place is either a service name of pg_service.conf ("oficina") or a connection string
// ("host=servidor dbname=veldo user=puesto"). The password comes from ~/.pgpass, which the
// server's client library reads by itself, or is given once per run and kept in memory only:
// the program never writes it. TLS is used whenever the server offers it unless the place or
// the setting says otherwise (sslmode).
#include <QSqlDatabase>
#include <QString>

namespace ConexionPostgres {

// The connection string of a place: a service name becomes "service=NAME"; the sslmode of the
// setting is added when the place names none.
QString Cadena(const QString& ubicacion);

// The server's name as the messages give it: the service, or host, port and database of the
// string (never its password).
QString NombreServidor(const QString& ubicacion);

// The password for the places of this run, in memory only ("" forgets it).
void RecordarClave(const QString& ubicacion, const QString& clave);
// "disable", "allow", "prefer" (the default), "require", "verify-ca", "verify-full".
void FijarSslmode(const QString& modo);
QString Sslmode();

// The driver's connection `nombre` (made when there is none) aimed at the place, not opened.
QSqlDatabase Definir(const QString& nombre, const QString& ubicacion);

}  // namespace ConexionPostgres
