#include "servicios/sqlite/EstructuraSqlite.h"

#include "servicios/sqlite/ConsultaSqlite.h"

namespace {

const QString kSinPropias = QStringLiteral(" name NOT LIKE 'sqlite\\_%' ESCAPE '\\' ");

QString mayusculas(const QVariant& v)
{
    return v.isNull() ? QStringLiteral("<nulo>") : v.toString().toUpper();
}

// The indexes of one table: explicit ones by name, those SQLite makes for a key or a UNIQUE
// constraint by what they hold.
void indicesDe(const QSqlDatabase& db, const QString& esquema, const QString& tabla,
               const QString& origen, QStringList& lineas)
{
    QSqlQuery i = ConsultaSqlite(db,
                                 QStringLiteral("SELECT name, \"unique\", origin, partial "
                                                "FROM pragma_index_list(?, ?)"),
                                 {tabla, esquema}, origen);
    while (i.next()) {
        const QString nombre = i.value(0).toString();
        const QString tipo = i.value(2).toString();
        QStringList columnas;
        QSqlQuery c = ConsultaSqlite(db,
                                     QStringLiteral("SELECT name, \"desc\", coll FROM pragma_index_xinfo(?, ?) "
                                                    "WHERE key = 1 ORDER BY seqno"),
                                     {nombre, esquema}, origen);
        while (c.next())
            columnas << mayusculas(c.value(0)) + QLatin1Char(' ') + c.value(1).toString()
                    + QLatin1Char(' ') + mayusculas(c.value(2));
        lineas << QStringLiteral("indice %1 %2 unico=%3 %4 parcial=%5 (%6)")
                      .arg(tabla.toUpper(),
                           tipo == QLatin1String("c") ? nombre.toUpper() : QStringLiteral("-"),
                           i.value(1).toString(), tipo, i.value(3).toString(),
                           columnas.join(QStringLiteral(", ")));
    }
}

void tablaDe(const QSqlDatabase& db, const QString& esquema, const QString& tabla,
             const QString& sql, const QString& origen, QStringList& lineas)
{
    const QString t = tabla.toUpper();
    // A virtual table reads through code of its own: not a table of this program.
    lineas << QStringLiteral("tabla %1 %2").arg(t, sql.trimmed().startsWith(
                                                         QLatin1String("CREATE TABLE"), Qt::CaseInsensitive)
                                                     ? QStringLiteral("ordinaria")
                                                     : QStringLiteral("virtual"));
    QSqlQuery c = ConsultaSqlite(db,
                                 QStringLiteral("SELECT name, type, \"notnull\", pk, hidden "
                                                "FROM pragma_table_xinfo(?, ?)"),
                                 {tabla, esquema}, origen);
    while (c.next())
        lineas << QStringLiteral("columna %1 %2 %3 nonulo=%4 clave=%5 oculta=%6")
                      .arg(t, mayusculas(c.value(0)), mayusculas(c.value(1)),
                           c.value(2).toString(), c.value(3).toString(), c.value(4).toString());
    indicesDe(db, esquema, tabla, origen, lineas);
    QSqlQuery f = ConsultaSqlite(db,
                                 QStringLiteral("SELECT \"table\", \"from\", \"to\" "
                                                "FROM pragma_foreign_key_list(?, ?)"),
                                 {tabla, esquema}, origen);
    while (f.next())
        lineas << QStringLiteral("referencia %1 %2 -> %3 %4")
                      .arg(t, mayusculas(f.value(1)), mayusculas(f.value(0)), mayusculas(f.value(2)));
}

}  // namespace

namespace EstructuraSqlite {

QStringList Tablas(const QSqlDatabase& db, const QString& esquema, const QString& origen)
{
    QStringList tablas;
    QSqlQuery q = ConsultaSqlite(db,
                                 QStringLiteral("SELECT name FROM %1.sqlite_master WHERE type = 'table' AND")
                                         .arg(CitadoSqlite(esquema))
                                     + kSinPropias + QStringLiteral("ORDER BY rowid"),
                                 {}, origen);
    while (q.next())
        tablas << q.value(0).toString();
    return tablas;
}

QStringList Columnas(const QSqlDatabase& db, const QString& esquema, const QString& tabla,
                     const QString& origen)
{
    QStringList columnas;
    QSqlQuery q = ConsultaSqlite(db,
                                 QStringLiteral("SELECT name FROM pragma_table_info(?, ?) ORDER BY cid"),
                                 {tabla, esquema}, origen);
    while (q.next())
        columnas << q.value(0).toString();
    return columnas;
}

int Objetos(const QSqlDatabase& db, const QString& esquema, const QString& origen)
{
    return EscalarSqlite(db,
                         QStringLiteral("SELECT COUNT(*) FROM %1.sqlite_master WHERE")
                                 .arg(CitadoSqlite(esquema))
                             + kSinPropias,
                         {}, origen, 0)
        .toInt();
}

QStringList Forma(const QSqlDatabase& db, const QString& esquema, const QString& origen)
{
    QStringList lineas;
    QSqlQuery q = ConsultaSqlite(db,
                                 QStringLiteral("SELECT type, name, COALESCE(sql, '') FROM %1.sqlite_master "
                                                "WHERE")
                                         .arg(CitadoSqlite(esquema))
                                     + kSinPropias,
                                 {}, origen);
    struct Tabla {
        QString nombre;
        QString sql;
    };
    QList<Tabla> tablas;
    while (q.next()) {
        const QString tipo = q.value(0).toString();
        if (tipo == QLatin1String("table"))
            tablas.append({q.value(1).toString(), q.value(2).toString()});
        else if (tipo != QLatin1String("index"))
            lineas << QStringLiteral("%1 %2").arg(tipo, q.value(1).toString().toUpper());
    }
    q.finish();
    for (const Tabla& t : tablas)
        tablaDe(db, esquema, t.nombre, t.sql, origen, lineas);
    lineas.sort();
    return lineas;
}

}  // namespace EstructuraSqlite
