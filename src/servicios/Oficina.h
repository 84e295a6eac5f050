#pragma once
// The setting up of an office's database on its server: the program's layout made on an empty
// database, once. Run with the office's server as the stores' engine
// (ElegirMotorDeLosAlmacenes) and a role that may create tables in the database.
#include "valores/Veredicto.h"

#include <QString>

namespace Oficina {

// What making the layout did.
enum class Creacion {
    Creada,       // the database was empty: the layout is made
    Actualizada,  // it held the program's tables of an older layout: brought to the current one
    YaCreada,     // it held the current layout already: nothing changed
    Ajena,        // it holds tables that are not the program's: nothing changed
    Posterior,    // a later version of the program laid it out: nothing changed
};

// Makes the layout at `ubicacion` (a service name or a connection string), in one transaction:
// all or nothing. A fault of the server is a cFallo that names it.
Creacion CrearEsquema(const QString& ubicacion);

// What to tell the administrator of `creacion` at `ubicacion`, in the program's language: the
// server named, and whether anything changed.
Veredicto Aviso(Creacion creacion, const QString& ubicacion);

// The start-up's look at the office's database at `ubicacion` through the seats' role: the
// server answers and holds the program's current layout. An empty verdict when the seats can
// work on it; otherwise what stops them (the server not reached, a refused password, a database
// not made yet or of another version), naming the server and what to do. Changes nothing.
Veredicto Comprobar(const QString& ubicacion);

// Whether the answer leaves the database ready for the seats (made now or already there).
bool Lista(Creacion creacion);

}  // namespace Oficina
