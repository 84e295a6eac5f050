#pragma once
// Start-up, in its exact order, and the steps a restore repeats.
#include <QString>

// The whole start-up: mutex, version, paths, migration, application state, splash, main window.
// Answers false when the program ended during start-up (the migration refused the database).
bool Main();
// Works out mdbPath, mdbmod and mdblec from the program's folder: both databases under the
// Tablas/ of its base folder (the folder before a "cliente" in its path, or itself).
void ConfigurarRutas(const QString& carpetaPrograma);
// The same when the data folder may be elsewhere: the reference database stays under the
// program's base folder, while the read/write one (and mdbPath, its folder) goes under the
// Tablas/ of the data folder, unless that is the program's folder itself.
// On an office's server (chosen on the command line, or kept as the user's choice:
// PreferenciaOficina) the read/write store is the server's service or connection string.
void ConfigurarRutas(const QString& carpetaPrograma, const QString& carpetaDatos);
// Brings the read/write database to the current layout; answers false when the program ended
// because the database cannot be brought to it. On an office's server it only checks that the
// server answers and holds the current layout, and ends the program with the reason otherwise.
bool Traspaso();
// Without any window: checks that the SQLite library is the one of Qt's driver, checks the
// reference database and brings the read/write one to the current layout (its pages checked
// first), or on an office's server checks that it answers and holds the current layout. Answers the message that tells why the program
// cannot work on them, or an empty text when it can. Failures of the migration are raised.
QString PrepararAlmacenes();
// Whether this run's read/write store is an office's server (ElegirOficina, --oficina).
bool EnOficina();
// Marks this run as having the read/write database open until it ends cleanly: a start after
// an end that was not clean checks the whole file (RevisionAlmacen).
void AbrirSesionAlmacen();
// Loads counters, date limits, update address, language and update setting.
void InicializarAplicacion();
