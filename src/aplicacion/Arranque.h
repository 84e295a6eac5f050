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
void ConfigurarRutas(const QString& carpetaPrograma, const QString& carpetaDatos);
// Brings the read/write database to the current layout; answers false when the program ended
// because the database cannot be brought to it.
bool Traspaso();
// Loads counters, date limits, update address, language and update setting.
void InicializarAplicacion();
