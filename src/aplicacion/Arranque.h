#pragma once
// Start-up, in its exact order, and the steps a restore repeats.
#include <QString>

// The whole start-up: mutex, version, paths, migration, application state, splash, main window.
// Answers false when the program ended during start-up (the migration refused the database).
bool Main();
// Works out mdbPath, mdbmod and mdblec from the program's folder.
void ConfigurarRutas(const QString& carpetaPrograma);
// Brings the read/write database to the current layout; answers false when the program ended
// because the database cannot be brought to it.
bool Traspaso();
// Loads counters, date limits, update address, language and update setting.
void InicializarAplicacion();
