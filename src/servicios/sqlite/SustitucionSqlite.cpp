#include "servicios/sqlite/SustitucionSqlite.h"

#include "servicios/sqlite/ArchivoSqlite.h"
#include "servicios/sqlite/ConsultaSqlite.h"
#include "servicios/sqlite/EstructuraSqlite.h"

#include <QSqlQuery>
#include <QStringList>

namespace {

QStringList nombres(const QSqlDatabase& db, const QString& sql, const QString& origen)
{
    QStringList lista;
    QSqlQuery q = ConsultaSqlite(db, sql, {}, origen);
    while (q.next())
        lista << q.value(0).toString();
    return lista;
}

void sustituir(const QSqlDatabase& db, const QString& origen)
{
    const QString propias = QStringLiteral(" AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\'");
    for (const QString& v : nombres(db, QStringLiteral("SELECT name FROM main.sqlite_master "
                                                       "WHERE type = 'view'") + propias, origen))
        ConsultaSqlite(db, QStringLiteral("DROP VIEW main.") + CitadoSqlite(v), {}, origen);
    for (const QString& t : nombres(db, QStringLiteral("SELECT name FROM main.sqlite_master "
                                                       "WHERE type = 'table'") + propias, origen))
        ConsultaSqlite(db, QStringLiteral("DROP TABLE main.") + CitadoSqlite(t), {}, origen);

    const QStringList tablas = EstructuraSqlite::Tablas(db, QStringLiteral("copia"), origen);
    for (const QString& sql : nombres(db, QStringLiteral("SELECT sql FROM copia.sqlite_master "
                                                         "WHERE type = 'table'") + propias
                                              + QStringLiteral(" ORDER BY rowid"), origen))
        ConsultaSqlite(db, sql, {}, origen);
    for (const QString& t : tablas)
        ConsultaSqlite(db, QStringLiteral("INSERT INTO main.%1 SELECT * FROM copia.%1").arg(CitadoSqlite(t)),
                       {}, origen);
    // The live file keeps its table of counters even when the copy (of the first layout, which
    // has no AUTOINCREMENT key) has none: its rows go, the copy's come in when it has some.
    const auto tieneContadores = [&db, &origen](const char* esquema) {
        return EscalarSqlite(db, QStringLiteral("SELECT COUNT(*) FROM %1.sqlite_master "
                                                "WHERE name = 'sqlite_sequence'").arg(QLatin1String(esquema)),
                             {}, origen).toInt() > 0;
    };
    if (tieneContadores("main")) {
        ConsultaSqlite(db, QStringLiteral("DELETE FROM main.sqlite_sequence"), {}, origen);
        if (tieneContadores("copia"))
            ConsultaSqlite(db, QStringLiteral("INSERT INTO main.sqlite_sequence SELECT * FROM copia.sqlite_sequence"),
                           {}, origen);
    }
    for (const QString& sql : nombres(db, QStringLiteral("SELECT sql FROM copia.sqlite_master "
                                                         "WHERE type = 'index' "
                                                         "AND sql IS NOT NULL") + propias
                                              + QStringLiteral(" ORDER BY rowid"), origen))
        ConsultaSqlite(db, sql, {}, origen);
    // PRAGMA takes no bound parameters; both values are integers the clean copy carries.
    const int version = EscalarSqlite(db, QStringLiteral("PRAGMA copia.user_version"), {}, origen).toInt();
    const qint32 marca = EscalarSqlite(db, QStringLiteral("PRAGMA copia.application_id"), {}, origen).toInt();
    ArchivoSqlite::Sellar(db, marca, version, origen);
}

}  // namespace

void SustituirContenidoSqlite(const QSqlDatabase& db, const QString& copia,
                              const std::function<void()>& empezar,
                              const std::function<void()>& antes, const QString& origen)
{
    // The switch is ignored inside a transaction, so it goes off before; the clean copy's
    // references have been checked.
    ConsultaSqlite(db, QStringLiteral("PRAGMA foreign_keys = OFF"), {}, origen);
    const ArchivoSqlite::Adjunto adjunto(db, copia, QStringLiteral("copia"), false, origen);
    empezar();
    try {
        antes();
        sustituir(db, origen);
        ConsultaSqlite(db, QStringLiteral("COMMIT"), {}, origen);
    } catch (...) {
        QSqlQuery q(db);
        q.exec(QStringLiteral("ROLLBACK"));
        throw;
    }
}
