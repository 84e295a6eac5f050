#include "servicios/postgres/MotorPostgres.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "servicios/motor/Plegado.h"
#include "servicios/postgres/ConexionPostgres.h"
#include "servicios/postgres/FalloPostgres.h"
#include "servicios/postgres/SentenciaPostgres.h"

#include <QSqlQuery>

namespace {

// The table of the engine's own: the program's mark and the layout's number, one row.
const QString kTablaPropia = QStringLiteral("veldo_motor_almacen");
// The database-wide lock every write transaction takes first: "VELD".
constexpr qint64 kCerrojoEscritura = 0x56454C44;

QSqlQuery ejecutar(const QSqlDatabase& db, const QString& sql, const QVariantList& valores,
                   const QString& origen)
{
    QSqlQuery q(db);
    q.setForwardOnly(true);
    if (!q.prepare(sql))
        throw FalloPostgres(db, q.lastError(), sql, origen);
    for (qsizetype i = 0; i < valores.size(); ++i)
        q.bindValue(int(i), valores[i]);
    if (!q.exec())
        throw FalloPostgres(db, q.lastError(), sql, origen);
    return q;
}

// A statement without values, sent as it is (the server's DDL takes no parameters).
void directa(const QSqlDatabase& db, const QString& sql, const QString& origen)
{
    QSqlQuery q(db);
    if (!q.exec(sql))
        throw FalloPostgres(db, q.lastError(), sql, origen);
}

bool hayTablaPropia(const QSqlDatabase& db, const QString& origen)
{
    QSqlQuery q = ejecutar(db, QStringLiteral("SELECT to_regclass(?) IS NOT NULL"), {kTablaPropia},
                           origen);
    return q.next() && q.value(0).toBool();
}

qint64 propio(const QSqlDatabase& db, const QString& columna, const QString& origen)
{
    if (!hayTablaPropia(db, origen))
        return 0;
    QSqlQuery q = ejecutar(db, QStringLiteral("SELECT %1 FROM %2 WHERE ID = 1").arg(columna, kTablaPropia),
                           {}, origen);
    return q.next() ? q.value(0).toLongLong() : 0;
}

// The columns the searches look into by prefix (CondicionPrefijo), each with its index.
struct Buscada {
    const char* tabla;
    const char* columna;
};
constexpr Buscada kBuscadas[] = {
    {"CONTRIBUYENTES", "NOMBREC"}, {"CONTRIBUYENTES", "DNIC"},
    {"PRESENTADORES", "NOMBREP"},  {"PRESENTADORES", "DNIP"},
    {"DECLARACIONES", "REFERENCIA"}, {"DECLARACIONES", "OPERACION"},
};

// The folded column as the searches compare it: the caseless collation of the column is left
// for the byte order of "C", in which a prefix is a range of the index.
QString plegada(const QString& columna)
{
    return QStringLiteral("(PLEGAR(%1) COLLATE \"C\")").arg(columna);
}

}  // namespace

QString MotorPostgres::Nombre() const
{
    return QStringLiteral("PostgreSQL");
}

QString MotorPostgres::Controlador() const
{
    return QStringLiteral("QPSQL");
}

QString MotorPostgres::AvisoArranque() const
{
    if (QSqlDatabase::isDriverAvailable(Controlador()))
        return QString();
    return Texto(kIdServidorSinControlador);
}

QString MotorPostgres::Clave(const QString& ubicacion) const
{
    return ubicacion.trimmed();
}

bool MotorPostgres::Existe(const QString&) const
{
    // Whether the server answers is known by opening it.
    return true;
}

cFallo MotorPostgres::FalloDe(const QSqlDatabase& db, const QSqlError& error,
                              const QString& contexto, const QString& origen) const
{
    cFallo fallo = FalloPostgres(db, error, contexto, origen);
    // A server that went away leaves the connection useless: it is closed, so that the next
    // operation opens it again (Conexion reopens a closed connection) once the server is back.
    if (EsServidorPerdido(error)) {
        QSqlDatabase cerrada = db;
        cerrada.close();
    }
    return fallo;
}

QSqlDatabase MotorPostgres::Definir(const QString& nombre, const QString& ubicacion, Acceso) const
{
    return ConexionPostgres::Definir(nombre, ubicacion);
}

void MotorPostgres::Preparar(const QSqlDatabase& db, Acceso, const QString& origen) const
{
    // Another seat's write lock is waited for, as the embedded store waits for another copy's,
    // and no longer.
    directa(db, QStringLiteral("SET lock_timeout = '10s'"), origen);
}

void MotorPostgres::AntesDeCerrar(const QSqlDatabase&) const
{
    // The server keeps everything committed: nothing is left aside at the end.
}

void MotorPostgres::EmpezarEscritura(const QSqlDatabase& db, const QString& origen) const
{
    directa(db, QStringLiteral("BEGIN"), origen);
    try {
        directa(db, QStringLiteral("SELECT pg_advisory_xact_lock(%1)").arg(kCerrojoEscritura), origen);
    } catch (const cFallo&) {
        QSqlQuery q(db);
        q.exec(QStringLiteral("ROLLBACK"));
        throw;
    }
}

qint32 MotorPostgres::MarcaDe(const QSqlDatabase& db, const QString& origen) const
{
    return static_cast<qint32>(propio(db, QStringLiteral("MARCA"), origen));
}

int MotorPostgres::VersionDe(const QSqlDatabase& db, const QString& origen) const
{
    return static_cast<int>(propio(db, QStringLiteral("VERSION"), origen));
}

void MotorPostgres::Sellar(const QSqlDatabase& db, qint32 marca, int version,
                           const QString& origen) const
{
    ejecutar(db,
             QStringLiteral("INSERT INTO %1 (ID, MARCA, VERSION) VALUES (1, ?, ?) "
                            "ON CONFLICT (ID) DO UPDATE SET MARCA = excluded.MARCA, "
                            "VERSION = excluded.VERSION")
                 .arg(kTablaPropia),
             {marca, version}, origen);
}

Dialecto MotorPostgres::DialectoEsquema() const
{
    // random() gives 53 bits: enough for a version no other copy guesses.
    const QString clave = QStringLiteral("INTEGER GENERATED BY DEFAULT AS IDENTITY PRIMARY KEY");
    return {clave, clave, QStringLiteral("COLLATE sin_mayusculas"), QStringLiteral("DOUBLE PRECISION"),
            QStringLiteral("BIGINT"),
            QStringLiteral("(floor(random() * 9007199254740991))::bigint + 1")};
}

void MotorPostgres::AntesDeDisponer(const QSqlDatabase& db, const QString& origen) const
{
    const QStringList sentencias{
        // Equal whatever the case, as the embedded store's caseless collation compares; accents
        // count.
        QStringLiteral("CREATE COLLATION IF NOT EXISTS sin_mayusculas "
                       "(provider = icu, locale = 'und-u-ks-level2', deterministic = false)"),
        // The searches' folding: every letter in its small form, beyond ASCII (Plegado.h).
        QStringLiteral("CREATE OR REPLACE FUNCTION PLEGAR(texto text) RETURNS text "
                       "LANGUAGE sql IMMUTABLE STRICT PARALLEL SAFE "
                       "AS 'SELECT lower(texto COLLATE \"und-x-icu\")'"),
        QStringLiteral("CREATE TABLE IF NOT EXISTS %1 (ID INTEGER PRIMARY KEY CHECK (ID = 1), "
                       "MARCA INTEGER NOT NULL, VERSION INTEGER NOT NULL)")
            .arg(kTablaPropia),
    };
    for (const QString& sql : sentencias)
        directa(db, sql, origen);
}

void MotorPostgres::TrasDisponer(const QSqlDatabase& db, const QString& origen) const
{
    for (const Buscada& b : kBuscadas)
        directa(db,
                QStringLiteral("CREATE INDEX IF NOT EXISTS %1_%2_PLEGADO ON %1 (%3)")
                    .arg(QLatin1String(b.tabla), QLatin1String(b.columna),
                         plegada(QLatin1String(b.columna))),
                origen);
}

QStringList MotorPostgres::Tablas(const QSqlDatabase& db, const QString& origen) const
{
    QSqlQuery q = ejecutar(db,
                           QStringLiteral("SELECT c.relname FROM pg_class c "
                                          "JOIN pg_namespace n ON n.oid = c.relnamespace "
                                          "WHERE n.nspname = current_schema() "
                                          "AND c.relkind IN ('r', 'p') AND c.relname <> ? "
                                          "ORDER BY c.oid"),
                           {kTablaPropia}, origen);
    QStringList tablas;
    while (q.next())
        tablas << q.value(0).toString();
    return tablas;
}

QStringList MotorPostgres::Columnas(const QSqlDatabase& db, const QString& tabla,
                                    const QString& origen) const
{
    QSqlQuery q = ejecutar(db,
                           QStringLiteral("SELECT column_name FROM information_schema.columns "
                                          "WHERE table_schema = current_schema() "
                                          "AND table_name IN (?, lower(?)) ORDER BY ordinal_position"),
                           {tabla, tabla}, origen);
    QStringList columnas;
    while (q.next())
        columnas << q.value(0).toString();
    return columnas;
}

int MotorPostgres::Objetos(const QSqlDatabase& db, const QString& origen) const
{
    QSqlQuery q = ejecutar(db,
                           QStringLiteral("SELECT (SELECT COUNT(*) FROM pg_class c "
                                          "JOIN pg_namespace n ON n.oid = c.relnamespace "
                                          "WHERE n.nspname = current_schema() "
                                          "AND c.relkind IN ('r', 'p', 'v', 'm', 'i') "
                                          "AND c.relname NOT LIKE 'veldo\\_motor\\_%') "
                                          "+ (SELECT COUNT(*) FROM pg_trigger t "
                                          "JOIN pg_class c ON c.oid = t.tgrelid "
                                          "JOIN pg_namespace n ON n.oid = c.relnamespace "
                                          "WHERE n.nspname = current_schema() AND NOT t.tgisinternal)"),
                           {}, origen);
    return q.next() ? q.value(0).toInt() : 0;
}

void MotorPostgres::ExigirReferencias(const QSqlDatabase&, bool, const QString&) const
{
    // The server checks every reference as each row is written, always: an office's store is
    // laid out on an empty database, where no step has to rebuild a referenced table.
}

std::optional<Motor::ReferenciaRota> MotorPostgres::PrimeraReferenciaRota(const QSqlDatabase&,
                                                                          const QString&) const
{
    // No row with a broken reference ever gets in (ExigirReferencias).
    return std::nullopt;
}

std::unique_ptr<SentenciaMotor> MotorPostgres::Compilar(const QSqlDatabase& db, const QString& sql,
                                                        const QString& origen) const
{
    return std::make_unique<SentenciaPostgres>(db, sql, origen);
}

QString MotorPostgres::CondicionPrefijo(const QString& columna, const QString& prefijo,
                                        QVariantList& valores) const
{
    // The folded prefix with LIKE's own characters escaped, then any ending.
    QString patron = PlegarTexto(prefijo);
    patron.replace(QLatin1Char('\\'), QStringLiteral("\\\\"))
        .replace(QLatin1Char('%'), QStringLiteral("\\%"))
        .replace(QLatin1Char('_'), QStringLiteral("\\_"));
    valores << patron + QLatin1Char('%');
    return QStringLiteral("%1 LIKE ? ESCAPE '\\'").arg(plegada(columna));
}

void MotorPostgres::CopiarEnArchivo(const QSqlDatabase& db, const QString&,
                                    const QString& origen) const
{
    throw cFallo(kIdServidorCopiaNoDisponible, origen,
                 Texto(kIdServidorCopiaNoDisponible).arg(ConexionPostgres::NombreServidor(db.connectOptions())));
}

void MotorPostgres::SustituirContenido(const QSqlDatabase& db, const QString&,
                                       const std::function<void()>&, const QString& origen) const
{
    throw cFallo(kIdServidorRestauracionNoDisponible, origen,
                 Texto(kIdServidorRestauracionNoDisponible).arg(ConexionPostgres::NombreServidor(db.connectOptions())));
}

bool MotorPostgres::Sana(const QString&, bool) const
{
    // The server keeps its own pages whole; a seat has no right to read them one by one.
    return true;
}
