#include "servicios/sqlite/MotorSqlite.h"

#include "plataforma/Fallo.h"
#include "servicios/sqlite/BibliotecaSqlite.h"
#include "servicios/sqlite/BusquedaSqlite.h"
#include "servicios/sqlite/ConexionPropia.h"
#include "servicios/sqlite/EstructuraSqlite.h"
#include "servicios/sqlite/PaginasSqlite.h"
#include "servicios/sqlite/SentenciaSqlite.h"
#include "servicios/sqlite/SustitucionSqlite.h"

#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>

namespace {
// SQLite's number of the error when it gives one, as the stores' other faults carry it.
[[noreturn]] void fallar(const QSqlQuery& q, const QString& sql, const QString& origen)
{
    const int numero = q.lastError().nativeErrorCode().toInt();
    throw cFallo(numero ? numero : 3001, origen, sql + QStringLiteral(": ") + q.lastError().text());
}

void pragma(const QSqlDatabase& db, const QString& sql, const QString& origen)
{
    QSqlQuery q(db);
    if (!q.exec(sql))
        fallar(q, sql, origen);
}

qint64 entero(const QSqlDatabase& db, const QString& sql, const QString& origen)
{
    QSqlQuery q(db);
    q.setForwardOnly(true);
    if (!q.exec(sql))
        fallar(q, sql, origen);
    return q.next() ? q.value(0).toLongLong() : 0;
}
}

QString MotorSqlite::Nombre() const
{
    return QStringLiteral("SQLite");
}

QString MotorSqlite::Controlador() const
{
    return QStringLiteral("QSQLITE");
}

QString MotorSqlite::AvisoArranque() const
{
    // The stores call SQLite directly and through Qt's driver: both must be one library.
    return AvisoBibliotecaSqlite(LeerFuentesSqlite());
}

QString MotorSqlite::Clave(const QString& ubicacion) const
{
    return QFileInfo(ubicacion).absoluteFilePath();
}

bool MotorSqlite::Existe(const QString& ubicacion) const
{
    return QFileInfo::exists(ubicacion);
}

cFallo MotorSqlite::FalloDe(const QSqlDatabase&, const QSqlError& error, const QString& contexto,
                            const QString& origen) const
{
    // SQLite's number of the error when it gives one, and its short message.
    const int numero = error.nativeErrorCode().toInt();
    return cFallo(numero ? numero : 3001, origen,
                  contexto.isEmpty() ? error.text() : contexto + QStringLiteral(": ") + error.text());
}

QSqlDatabase MotorSqlite::Definir(const QString& nombre, const QString& ubicacion,
                                  Acceso acceso) const
{
    return DefinirConexionSqlite(nombre, ubicacion, acceso);
}

void MotorSqlite::Preparar(const QSqlDatabase& db, Acceso acceso, const QString& origen) const
{
    // The searches compare texts folded beyond ASCII (BusquedaSqlite.h).
    RegistrarPlegadoSqlite(db, origen);
    if (acceso == Acceso::Lectura)
        return;
    pragma(db, QStringLiteral("PRAGMA foreign_keys = ON"), origen);
    pragma(db, QStringLiteral("PRAGMA journal_mode = WAL"), origen);
    pragma(db, QStringLiteral("PRAGMA synchronous = NORMAL"), origen);
    // Each checkpoint waits for the disk twice; with one every 10 000 pages (a journal of at
    // most some 40 MB) an import of a whole file of contributors, one transaction a line,
    // waits a tenth as often. A backup checkpoints the journal before copying.
    pragma(db, QStringLiteral("PRAGMA wal_autocheckpoint = 10000"), origen);
}

void MotorSqlite::AntesDeCerrar(const QSqlDatabase& db) const
{
    // What the journal holds goes into the file as far as other running copies allow, without
    // waiting for them: the program's end is never held up by another copy. The last
    // connection of all the running copies to a file writes back the rest and removes it.
    QSqlQuery q(db);
    q.exec(QStringLiteral("PRAGMA wal_checkpoint(PASSIVE)"));
}

void MotorSqlite::EmpezarEscritura(const QSqlDatabase& db, const QString& origen) const
{
    // BEGIN IMMEDIATE takes the write lock at once, so two instances never deadlock half-way.
    QSqlQuery q(db);
    if (!q.exec(QStringLiteral("BEGIN IMMEDIATE")))
        throw FalloDe(db, q.lastError(), QStringLiteral("BEGIN"), origen);
}

// SQLite keeps both numbers in the file's header.
qint32 MotorSqlite::MarcaDe(const QSqlDatabase& db, const QString& origen) const
{
    return static_cast<qint32>(entero(db, QStringLiteral("PRAGMA application_id"), origen));
}

int MotorSqlite::VersionDe(const QSqlDatabase& db, const QString& origen) const
{
    return static_cast<int>(entero(db, QStringLiteral("PRAGMA user_version"), origen));
}

void MotorSqlite::Sellar(const QSqlDatabase& db, qint32 marca, int version,
                         const QString& origen) const
{
    // PRAGMA takes no bound parameters; both values are integers.
    pragma(db, QStringLiteral("PRAGMA application_id = %1").arg(marca), origen);
    pragma(db, QStringLiteral("PRAGMA user_version = %1").arg(version), origen);
}

Dialecto MotorSqlite::DialectoEsquema() const
{
    // A plain INTEGER PRIMARY KEY is the row's own id: the next one above the greatest, so
    // the code of the last row deleted can come back. AUTOINCREMENT keeps a counter that
    // never goes down, at the cost of one more page written by every insert.
    return {QStringLiteral("INTEGER PRIMARY KEY"),
            QStringLiteral("INTEGER PRIMARY KEY AUTOINCREMENT"),
            QStringLiteral("COLLATE NOCASE"), QStringLiteral("REAL"), QStringLiteral("INTEGER"),
            // random() spans the whole 64 bits: its sign bit is dropped, and the value moved
            // into 1 .. 2^63 - 1 (abs() would fail on the lowest number, and 0 must not come
            // out).
            QStringLiteral("((random() & 9223372036854775807) % 9223372036854775807 + 1)")};
}

void MotorSqlite::AntesDeDisponer(const QSqlDatabase&, const QString&) const
{
    // The tables name nothing but SQLite's own types and collations.
}

void MotorSqlite::TrasDisponer(const QSqlDatabase&, const QString&) const
{
    // The searches use the tables' own indexes (BusquedaSqlite.h).
}

QStringList MotorSqlite::Tablas(const QSqlDatabase& db, const QString& origen) const
{
    return EstructuraSqlite::Tablas(db, QStringLiteral("main"), origen);
}

QStringList MotorSqlite::Columnas(const QSqlDatabase& db, const QString& tabla,
                                  const QString& origen) const
{
    return EstructuraSqlite::Columnas(db, QStringLiteral("main"), tabla, origen);
}

int MotorSqlite::Objetos(const QSqlDatabase& db, const QString& origen) const
{
    return EstructuraSqlite::Objetos(db, QStringLiteral("main"), origen);
}

void MotorSqlite::ExigirReferencias(const QSqlDatabase& db, bool exigir,
                                    const QString& origen) const
{
    // SQLite ignores this switch inside a transaction.
    pragma(db, exigir ? QStringLiteral("PRAGMA foreign_keys = ON")
                      : QStringLiteral("PRAGMA foreign_keys = OFF"),
           origen);
}

std::optional<Motor::ReferenciaRota> MotorSqlite::PrimeraReferenciaRota(
    const QSqlDatabase& db, const QString& origen) const
{
    const QString sql = QStringLiteral("PRAGMA foreign_key_check");
    QSqlQuery q(db);
    q.setForwardOnly(true);
    if (!q.exec(sql))
        fallar(q, sql, origen);
    if (!q.next())
        return std::nullopt;
    // A row: the table, the row, the table it refers to, the key.
    return ReferenciaRota{q.value(0).toString(), q.value(2).toString()};
}

std::unique_ptr<SentenciaMotor> MotorSqlite::Compilar(const QSqlDatabase& db, const QString& sql,
                                                      const QString& origen) const
{
    return std::make_unique<SentenciaSqlite>(db, sql, origen);
}

QString MotorSqlite::CondicionPrefijo(const QString& columna, const QString& prefijo,
                                      QVariantList& valores) const
{
    return CondicionPrefijoSqlite(columna, prefijo, valores);
}

void MotorSqlite::CopiarEnArchivo(const QSqlDatabase& db, const QString& destino,
                                  const QString& origen) const
{
    // SQLite writes a consistent copy of the database, WAL included, even while other
    // connections use it.
    const QString sql = QStringLiteral("VACUUM INTO ?");
    QSqlQuery q(db);
    q.setForwardOnly(true);
    if (!q.prepare(sql))
        fallar(q, sql, origen);
    q.addBindValue(destino);
    if (!q.exec())
        fallar(q, sql, origen);
}

void MotorSqlite::SustituirContenido(const QSqlDatabase& db, const QString& copia,
                                     const std::function<void()>& antes,
                                     const QString& origen) const
{
    SustituirContenidoSqlite(db, copia, [this, &db, &origen] { EmpezarEscritura(db, origen); },
                             antes, origen);
}

bool MotorSqlite::Sana(const QString& ubicacion, bool completa) const
{
    return PaginasSqliteSanas(ubicacion, completa);
}
