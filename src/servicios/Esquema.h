#pragma once
// The layout of the read/write database (VELDOMOD.mdb) and the ordered steps that bring a file
// to it.
//
// A database of this program carries two numbers, kept where its engine keeps them (Motor::
// Sellar; an embedded file keeps them in its header):
//  - the program's mark, MarcaAplicacion. A file without it is not ours. The reference
//    database keeps the same number in T10_GENERAL.T10_BACKUP_TVC, which is how the restore
//    recognises a backup of this program.
//  - the number of its layout.
//
// Layouts:
//  0  the file of the first release: the mark, user_version 0, and one table
//     CONFIGURACION(IDIOMA TEXT, ACTONLINE INTEGER) with at most one row.
//  1  CONFIGURACION rebuilt with a fixed single row (ID 1), plus the tables of the parties
//     (EsquemaPartesV1: CONTRIBUYENTES, PRESENTADORES) and of the declarations
//     (EsquemaDeclaracionesV1: DECLARACIONES, referencing the other two).
//  2  a column VERSION in CONTRIBUYENTES, PRESENTADORES and DECLARACIONES (EsquemaVersionesV2):
//     the version of the row, which a save checks and renews (VersionFila.h).
//
// A later layout is one more entry at the end of Pasos(): its number and the routine that
// turns the previous layout into it. Migrar runs, in order, every step above the file's
// layout; the caller holds one write transaction around it, so a failing step leaves the file
// as it was. Foreign keys are off during a migration (an engine may ignore the switch inside a
// transaction, so the caller turns them off before it begins) and checked as a whole before
// the commit, which lets a step rebuild a table that others reference.
#include "servicios/motor/Motor.h"

#include <QList>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <functional>

// The statements of layout 1 that create the tables of the parties and of the declarations.
// Each module defines its own (EsquemaPartes.cpp, EsquemaDeclaraciones.cpp); they run in this
// order, after CONFIGURACION, on an empty database or one of layout 0, in the words of the
// connection's engine.
QStringList EsquemaPartesV1(const Dialecto& d);
QStringList EsquemaDeclaracionesV1(const Dialecto& d);
// The statements of layout 2 (EsquemaVersiones.cpp), run on a database of layout 1.
QStringList EsquemaVersionesV2(const Dialecto& d);

namespace Esquema {

// "VELD" in ASCII: the application_id of every read/write database of this program.
inline constexpr qint32 MarcaAplicacion = 0x56454C44;

// The statements that create CONFIGURACION of layout 1 (its single row is added by the step).
QStringList ConfiguracionV1();

struct Paso {
    int version;  // the layout this step reaches; each step starts from version - 1
    std::function<void(const QSqlDatabase& db, const QString& origen)> aplicar;
};

// The steps, in order; the last one's version is the current layout.
QList<Paso> Pasos();
int VersionActual();

// What a file is, seen from this program, judged without writing to it.
enum class Clase {
    Inexistente,      // no file at the path
    Vacia,            // an empty file or an SQLite database with nothing in it: to be laid out
    Propia,           // a database of this program, of layout `version`
    Ajena,            // an SQLite database of another program
    NoEsBaseDeDatos,  // not an SQLite database at all (a text file, a damaged file)
};
struct Reconocimiento {
    Clase clase = Clase::Inexistente;
    int version = 0;
};
// Looks at the file through a private read-only connection that is closed before returning.
// `marca` is the application_id that tells our files. Failures other than "not a database"
// (a lock that does not go away, an unreadable file) are raised as cFallo(origen).
Reconocimiento Reconocer(const QString& ruta, const QString& origen,
                         qint32 marca = MarcaAplicacion);

// The header numbers of an open database.
int VersionDe(const QSqlDatabase& db, const QString& origen);
qint32 MarcaDe(const QSqlDatabase& db, const QString& origen);
// How many tables, views, indexes and triggers the store holds (the engine's own not counted).
int ObjetosDe(const QSqlDatabase& db, const QString& origen);
bool ExisteTabla(const QSqlDatabase& db, const QString& tabla, const QString& origen);

// True when the open database holds exactly the tables of layout `version`, each with exactly
// its columns (names compared without regard to case). The reference is built by running the
// steps up to that layout on an empty database in memory.
bool TieneDisposicion(const QSqlDatabase& db, int version, const QString& origen);

// Runs every step above `desde` and stamps the mark and the current layout in the header.
// Must run inside the caller's write transaction, with foreign keys off; checks the foreign
// keys of the whole file at the end and raises cFallo when any is broken.
void Migrar(const QSqlDatabase& db, int desde, const QString& origen);

}  // namespace Esquema

// For tests: a step appended after the program's own, standing for a later layout.
namespace EsquemaSeam {
void agregarPaso(Esquema::Paso paso);
void limpiar();
}
