#pragma once
// The office's server this seat works on, kept per user in the program's settings file under the
// user's configuration folder (QStandardPaths::AppConfigLocation, veldoria.conf), never in the
// store: each seat of an office chooses it once. Only the service name or the connection string
// is kept; a password never is (the client library reads ~/.pgpass).
#include <QString>

namespace PreferenciaOficina {

// The office kept for this user; empty when the seat works on the embedded store.
QString Leer();

// Keeps `oficina` as this user's choice (empty: the embedded store). False when the settings
// file cannot be written.
bool Guardar(const QString& oficina);

// At start, when the command line chose no office: the kept one becomes this run's store.
void Aplicar();

}  // namespace PreferenciaOficina
