#pragma once
// The stores reach SQLite two ways: through Qt's driver, and directly through its C interface
// (native statements, the case folding function, the handle of a connection). Both must be
// the same library: a handle made by one copy of SQLite and used by another corrupts memory,
// and the file formats and checks of two versions can differ.
#include <QString>

// The sources of the two libraries, as SQLite names them (version, date and checksum).
struct FuentesSqlite {
    QString propia;         // the library the program calls directly
    QString delControlador; // the one behind Qt's driver; empty when the driver cannot open
};

// Asks both libraries for their source.
FuentesSqlite LeerFuentesSqlite();

// The message that stops the program when the two libraries differ, or an empty text.
QString AvisoBibliotecaSqlite(const FuentesSqlite& fuentes);
