#pragma once
// The database engine under the stores. Everything that is one engine's own and not plain SQL
// goes through this interface: how a connection is reached and set up, how a write transaction
// takes its lock, the statements compiled by the engine itself for the hottest loops, the
// search by a prefix that folds case beyond ASCII, the copy of a whole store into a file, the
// check of its pages, and the check at start-up that the engine can be used at all. The stores
// keep their own SQL for their tables and reach the engine only through here, so that a second
// engine is one more implementation of this class and not a change of the stores above it.
//
// Faults are cFallo with the caller's source (`origen`), as everywhere in the stores.
#include "plataforma/Fallo.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

// How a connection uses its store.
enum class Acceso {
    Lectura,              // reads only
    Escritura,            // reads and writes
    EscrituraConAdjuntos  // reads and writes, and attaches other stores read-only
};

// A statement compiled by the engine itself on one connection, for the few statements a batch
// runs tens of thousands of times in a row: binding a value through Qt's driver costs more
// than running the statement. The connection stays the driver's: its transactions and locks
// are shared. The values are bound in the order of the "?" (texts, whole numbers, reals,
// null); the statement holds nothing between runs. cFallo(origen) when a run fails.
class SentenciaMotor {
public:
    virtual ~SentenciaMotor();
    // A statement that writes: the rows it changed.
    virtual int Ejecutar(const QVariantList& valores) = 0;
    // A statement that reads one whole number: its first column of its first row, or `siVacio`.
    virtual int64_t Escalar(const QVariantList& valores, int64_t siVacio) = 0;
    // A statement that reads whole numbers: the first `n` columns of its first row into
    // `columnas`; false, with nothing written there, when there is no row.
    virtual bool Enteros(const QVariantList& valores, int64_t* columnas, int n) = 0;
};

// The words of a table's definition that engines spell each their own way; the rest of the
// stores' tables is plain SQL that every engine reads alike.
struct Dialecto {
    // A whole-number key that the store gives to a row inserted without one.
    QString claveDada;
    // The same, never giving again the key of a row that was deleted.
    QString claveCreciente;
    // Follows a column of texts that compares, sorts and is unique without regard to case.
    QString sinMayusculas;
    // A floating-point number of 64 bits.
    QString real;
    // A whole number of 64 bits.
    QString entero64;
    // An expression that gives each row a random whole number of its own from 1 to 2^63 - 1.
    QString aleatorio;
};

class Motor {
public:
    virtual ~Motor();

    // The engine's name, as a fault text gives it.
    virtual QString Nombre() const = 0;

    // The name of Qt's driver that reaches this engine ("QSQLITE", "QPSQL").
    virtual QString Controlador() const = 0;

    // The message that stops the program at start-up when the engine cannot be used safely
    // (its libraries do not match, it cannot be reached); empty when it can.
    virtual QString AvisoArranque() const = 0;

    // The place of a store as the connections of one run name it (a file's absolute path, a
    // server's connection string), and whether there is a store there to open (a server is
    // taken to be there: opening it says whether it answers).
    virtual QString Clave(const QString& ubicacion) const = 0;
    virtual bool Existe(const QString& ubicacion) const = 0;

    // The fault of a statement or a connection that failed, with the caller's source: what
    // `contexto` was doing and why, in words a user can be shown. The driver's own text goes
    // there only where it is the engine's short message (the embedded engine's); a server's is
    // left to the log, and the message names the server instead.
    virtual cFallo FalloDe(const QSqlDatabase& db, const QSqlError& error, const QString& contexto,
                           const QString& origen) const = 0;

    // The driver's connection `nombre` (made when there is none) aimed at the store at
    // `ubicacion` with this access, not opened yet.
    virtual QSqlDatabase Definir(const QString& nombre, const QString& ubicacion,
                                 Acceso acceso) const = 0;
    // What an open connection of the stores needs before its first statement: the SQL
    // function PLEGAR(texto) of the searches (PlegarTexto), and on a connection that writes
    // the engine's settings (references enforced, journal, waits for another copy's lock).
    virtual void Preparar(const QSqlDatabase& db, Acceso acceso, const QString& origen) const = 0;
    // Just before a connection that writes is closed at a clean end: what the engine keeps
    // aside for the store goes into it, without waiting for other running copies.
    virtual void AntesDeCerrar(const QSqlDatabase& db) const = 0;
    // Begins a write transaction holding the store's write lock from its start, so that two
    // copies never stop each other half-way and one write follows the other.
    virtual void EmpezarEscritura(const QSqlDatabase& db, const QString& origen) const = 0;

    // The two numbers a store of this program carries: the program's mark and the number of
    // its layout (0 when never set).
    virtual qint32 MarcaDe(const QSqlDatabase& db, const QString& origen) const = 0;
    virtual int VersionDe(const QSqlDatabase& db, const QString& origen) const = 0;
    virtual void Sellar(const QSqlDatabase& db, qint32 marca, int version,
                        const QString& origen) const = 0;

    // How this engine spells the words of Dialecto.
    virtual Dialecto DialectoEsquema() const = 0;
    // What the engine adds to the program's own layout of a store, inside the layout's write
    // transaction: before the first step on an empty store (what the tables' definitions name),
    // and after the last step (what serves the searches).
    virtual void AntesDeDisponer(const QSqlDatabase& db, const QString& origen) const = 0;
    virtual void TrasDisponer(const QSqlDatabase& db, const QString& origen) const = 0;

    // The tables of the store, in the order they were made, and the columns of one of them in
    // their order (the engine's own tables left out).
    virtual QStringList Tablas(const QSqlDatabase& db, const QString& origen) const = 0;
    virtual QStringList Columnas(const QSqlDatabase& db, const QString& tabla,
                                 const QString& origen) const = 0;
    // How many tables, views, indexes and triggers the store holds (the engine's own left out).
    virtual int Objetos(const QSqlDatabase& db, const QString& origen) const = 0;

    // Whether the connection enforces the references between tables as each row is written.
    // Switched outside a transaction: an engine may ignore the switch inside one.
    virtual void ExigirReferencias(const QSqlDatabase& db, bool exigir,
                                   const QString& origen) const = 0;
    // A reference that leads nowhere, checked over the whole store: the table that holds it
    // and the table it names; none when every reference leads somewhere.
    struct ReferenciaRota {
        QString tabla;
        QString destino;
    };
    virtual std::optional<ReferenciaRota> PrimeraReferenciaRota(const QSqlDatabase& db,
                                                                const QString& origen) const = 0;

    // A statement compiled by the engine on `db` (cFallo(origen) when it does not compile).
    virtual std::unique_ptr<SentenciaMotor> Compilar(const QSqlDatabase& db, const QString& sql,
                                                     const QString& origen) const = 0;

    // A condition for a WHERE clause: `columna`, an indexed column of texts, begins with
    // `prefijo` without regard to case, beyond ASCII too ("muñoz" finds "MUÑOZ"). The prefix
    // is plain text: quotes, "%" and "_" are characters like any other. The bound values are
    // appended to `valores`.
    virtual QString CondicionPrefijo(const QString& columna, const QString& prefijo,
                                     QVariantList& valores) const = 0;

    // Writes a consistent copy of the whole store that `db` reaches, even while other
    // connections use it, as a file of the embedded engine at `destino` (which must not
    // exist): the backup of any engine is a file any copy of the program can open.
    virtual void CopiarEnArchivo(const QSqlDatabase& db, const QString& destino,
                                 const QString& origen) const = 0;

    // Replaces everything the store that `db` reaches holds with the content of `copia`, an
    // embedded store file of the current layout whose rows the program has checked, in one
    // write transaction: other connections see the old content or the new, never half of it.
    // `antes` runs inside that transaction before anything changes (the safety copy of the
    // content as it was). A failure leaves the store as it was.
    virtual void SustituirContenido(const QSqlDatabase& db, const QString& copia,
                                    const std::function<void()>& antes,
                                    const QString& origen) const = 0;

    // Whether the pages of the store at `ubicacion` are whole (the quick check, or the full one
    // when `completa`). Rows that merely break a CHECK or a NOT NULL are no damage of the
    // store. Read-only; a store that cannot be read as one answers false.
    virtual bool Sana(const QString& ubicacion, bool completa) const = 0;
};
