#include "servicios/EstructuraAlmacen.h"

#include "plataforma/Fallo.h"
#include "servicios/Conexion.h"
#include "servicios/Esquema.h"
#include "servicios/sqlite/EstructuraSqlite.h"

#include <QSqlError>
#include <QUuid>

namespace EstructuraAlmacen {

QString Citado(const QString& nombre)
{
    return QLatin1Char('"') + QString(nombre).replace(QLatin1Char('"'), QStringLiteral("\"\""))
        + QLatin1Char('"');
}

void Disponer(const QSqlDatabase& db, int version, const QString& origen)
{
    if (version == 0) {
        Ejecutar(db, QStringLiteral("CREATE TABLE CONFIGURACION (IDIOMA TEXT, ACTONLINE INTEGER)"),
                 {}, origen);
        return;
    }
    for (const Esquema::Paso& paso : Esquema::Pasos())
        if (paso.version <= version)
            paso.aplicar(db, origen);
}

QStringList Tablas(const QSqlDatabase& db, const QString& esquema, const QString& origen)
{
    return EstructuraSqlite::Tablas(db, esquema, origen);
}

QStringList Columnas(const QSqlDatabase& db, const QString& esquema, const QString& tabla,
                     const QString& origen)
{
    return EstructuraSqlite::Columnas(db, esquema, tabla, origen);
}

QStringList De(const QSqlDatabase& db, const QString& esquema, const QString& origen)
{
    return EstructuraSqlite::Forma(db, esquema, origen);
}

QStringList DeReferencia(int version, const QString& origen)
{
    const QString nombre = QStringLiteral("estructura-") + QUuid::createUuid().toString(QUuid::Id128);
    QStringList forma;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), nombre);
        db.setDatabaseName(QStringLiteral(":memory:"));
        if (!db.open())
            throw cFallo(3049, origen, db.lastError().text());
        Disponer(db, version, origen);
        forma = De(db, QStringLiteral("main"), origen);
        db.close();
    }
    QSqlDatabase::removeDatabase(nombre);
    return forma;
}

}  // namespace EstructuraAlmacen
