#include "servicios/sqlite/ConsultaSqlite.h"

#include "plataforma/Fallo.h"

#include <QSqlError>

namespace {
[[noreturn]] void fallar(const QSqlError& error, const QString& sql, const QString& origen)
{
    const int numero = error.nativeErrorCode().toInt();
    throw cFallo(numero ? numero : 3001, origen, sql + QStringLiteral(": ") + error.text());
}
}

QSqlQuery ConsultaSqlite(const QSqlDatabase& db, const QString& sql, const QVariantList& valores,
                         const QString& origen)
{
    QSqlQuery q(db);
    q.setForwardOnly(true);
    if (!q.prepare(sql))
        fallar(q.lastError(), sql, origen);
    for (const QVariant& v : valores)
        q.addBindValue(v);
    if (!q.exec())
        fallar(q.lastError(), sql, origen);
    return q;
}

QVariant EscalarSqlite(const QSqlDatabase& db, const QString& sql, const QVariantList& valores,
                       const QString& origen, const QVariant& siVacio)
{
    QSqlQuery q = ConsultaSqlite(db, sql, valores, origen);
    return q.next() ? q.value(0) : siVacio;
}

QString CitadoSqlite(const QString& nombre)
{
    return QLatin1Char('"') + QString(nombre).replace(QLatin1Char('"'), QStringLiteral("\"\""))
        + QLatin1Char('"');
}
