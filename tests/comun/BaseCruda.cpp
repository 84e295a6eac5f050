#include "comun/BaseCruda.h"

#include "servicios/Esquema.h"

#include <QFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QUuid>
#include <QVariant>
#include <stdexcept>

ConexionCruda::ConexionCruda(const QString& ruta, bool lectura)
    : m_nombre(QStringLiteral("cruda-") + QUuid::createUuid().toString(QUuid::Id128))
{
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_nombre);
    db.setDatabaseName(ruta);
    db.setConnectOptions(lectura ? QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=10000")
                                 : QStringLiteral("QSQLITE_BUSY_TIMEOUT=10000"));
    if (!db.open())
        qFatal("No se abre %s: %s", qPrintable(ruta), qPrintable(db.lastError().text()));
}

ConexionCruda::~ConexionCruda()
{
    {
        QSqlDatabase db = QSqlDatabase::database(m_nombre, false);
        db.close();
    }
    QSqlDatabase::removeDatabase(m_nombre);
}

QSqlDatabase ConexionCruda::db() const { return QSqlDatabase::database(m_nombre, false); }

void ConexionCruda::ejecutar(const QString& sql) const
{
    QSqlQuery q(db());
    if (!q.exec(sql))
        throw std::runtime_error((sql + QStringLiteral(": ") + q.lastError().text()).toStdString());
}

QVariant ConexionCruda::escalar(const QString& sql) const
{
    QSqlQuery q(db());
    if (!q.exec(sql))
        throw std::runtime_error((sql + QStringLiteral(": ") + q.lastError().text()).toStdString());
    return q.next() ? q.value(0) : QVariant();
}

int VersionDeArchivo(const QString& ruta)
{
    return ConexionCruda(ruta, true).escalar(QStringLiteral("PRAGMA user_version")).toInt();
}

qint32 MarcaDeArchivo(const QString& ruta)
{
    return ConexionCruda(ruta, true).escalar(QStringLiteral("PRAGMA application_id")).toInt();
}

QStringList TablasDe(const QString& ruta)
{
    ConexionCruda c(ruta, true);
    QSqlQuery q(c.db());
    q.exec(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name"));
    QStringList tablas;
    while (q.next())
        tablas << q.value(0).toString();
    return tablas;
}

QStringList ColumnasDe(const QString& ruta, const QString& tabla)
{
    ConexionCruda c(ruta, true);
    QSqlQuery q(c.db());
    q.exec(QStringLiteral("PRAGMA table_info(%1)").arg(tabla));
    QStringList columnas;
    while (q.next())
        columnas << q.value(1).toString();
    return columnas;
}

QString Volcado(const QString& ruta)
{
    ConexionCruda c(ruta, true);
    QStringList lineas;
    lineas << QStringLiteral("user_version=") + c.escalar(QStringLiteral("PRAGMA user_version")).toString();
    lineas << QStringLiteral("application_id=")
            + c.escalar(QStringLiteral("PRAGMA application_id")).toString();
    QSqlQuery q(c.db());
    q.exec(QStringLiteral("SELECT type, name, sql FROM sqlite_master ORDER BY type, name"));
    QStringList tablas;
    while (q.next()) {
        lineas << q.value(0).toString() + QLatin1Char(' ') + q.value(1).toString()
                + QLatin1Char(' ') + q.value(2).toString();
        if (q.value(0).toString() == QLatin1String("table"))
            tablas << q.value(1).toString();
    }
    for (const QString& t : tablas) {
        QSqlQuery filas(c.db());
        filas.exec(QStringLiteral("SELECT * FROM \"%1\" ORDER BY 1").arg(t));
        while (filas.next()) {
            QStringList valores;
            for (int i = 0; i < filas.record().count(); ++i)
                valores << filas.value(i).toString();
            lineas << t + QStringLiteral(": ") + valores.join(QLatin1Char('|'));
        }
    }
    return lineas.join(QLatin1Char('\n'));
}

QByteArray Bytes(const QString& ruta)
{
    QFile f(ruta);
    if (!f.open(QIODevice::ReadOnly))
        return {};
    return f.readAll();
}

void CrearLayout0(const QString& ruta, const QString& idioma, int actOnline)
{
    ConexionCruda c(ruta);
    c.ejecutar(QStringLiteral("PRAGMA application_id = %1").arg(Esquema::MarcaAplicacion));
    c.ejecutar(QStringLiteral("CREATE TABLE CONFIGURACION (IDIOMA TEXT, ACTONLINE INTEGER)"));
    QSqlQuery q(c.db());
    q.prepare(QStringLiteral("INSERT INTO CONFIGURACION (IDIOMA, ACTONLINE) VALUES (?, ?)"));
    q.addBindValue(idioma);
    q.addBindValue(actOnline);
    if (!q.exec())
        throw std::runtime_error(q.lastError().text().toStdString());
}

void CrearBaseAjena(const QString& ruta, qint32 marca)
{
    ConexionCruda c(ruta);
    if (marca != 0)
        c.ejecutar(QStringLiteral("PRAGMA application_id = %1").arg(marca));
    c.ejecutar(QStringLiteral("CREATE TABLE CLIENTES (ID INTEGER PRIMARY KEY, NOMBRE TEXT)"));
    c.ejecutar(QStringLiteral("INSERT INTO CLIENTES (NOMBRE) VALUES ('Otro programa')"));
}

void CrearLayoutPosterior(const QString& ruta, int version)
{
    ConexionCruda c(ruta);
    c.ejecutar(QStringLiteral("PRAGMA application_id = %1").arg(Esquema::MarcaAplicacion));
    c.ejecutar(QStringLiteral("PRAGMA user_version = %1").arg(version));
    c.ejecutar(QStringLiteral("CREATE TABLE CONFIGURACION (ID INTEGER PRIMARY KEY, IDIOMA TEXT, "
                              "ACTONLINE INTEGER, NUEVA TEXT)"));
    c.ejecutar(QStringLiteral("INSERT INTO CONFIGURACION VALUES (1, 'E', 1, 'futuro')"));
}

void InsertarFilas(const QString& ruta, const QString& tabla, int n)
{
    ConexionCruda c(ruta);
    c.ejecutar(QStringLiteral("PRAGMA foreign_keys = OFF"));
    c.ejecutar(QStringLiteral("PRAGMA ignore_check_constraints = ON"));
    QStringList columnas;
    QStringList tipos;
    {
        QSqlQuery info(c.db());
        info.exec(QStringLiteral("PRAGMA table_info(%1)").arg(tabla));
        while (info.next()) {
            const bool clave = info.value(5).toInt() > 0;
            const QString tipo = info.value(2).toString().toUpper();
            if (clave && tipo.contains(QLatin1String("INT")))
                continue;  // the row number is given by SQLite
            columnas << info.value(1).toString();
            tipos << tipo;
        }
    }
    c.ejecutar(QStringLiteral("BEGIN IMMEDIATE"));
    // Values follow the last row, so that repeated calls never collide on a unique column.
    const qint64 base =
        c.escalar(QStringLiteral("SELECT COALESCE(MAX(rowid), 0) FROM %1").arg(tabla)).toLongLong();
    for (qint64 i = base; i < base + n; ++i) {
        QStringList valores;
        for (const QString& tipo : tipos) {
            if (tipo.contains(QLatin1String("INT")) || tipo.contains(QLatin1String("REAL"))
                || tipo.contains(QLatin1String("FLOA")) || tipo.contains(QLatin1String("DOUB"))
                || tipo.contains(QLatin1String("NUM")))
                valores << QString::number(i + 1);
            else
                valores << QStringLiteral("'%1'").arg(i + 1);
        }
        const QString sql = columnas.isEmpty()
            ? QStringLiteral("INSERT INTO %1 DEFAULT VALUES").arg(tabla)
            : QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                  .arg(tabla, columnas.join(QStringLiteral(", ")), valores.join(QStringLiteral(", ")));
        c.ejecutar(sql);
    }
    c.ejecutar(QStringLiteral("COMMIT"));
}

void InsertarContribuyentes(const QString& ruta, int n)
{
    ConexionCruda c(ruta);
    c.ejecutar(QStringLiteral("BEGIN IMMEDIATE"));
    const qint64 base =
        c.escalar(QStringLiteral("SELECT COALESCE(MAX(CSCO), 0) FROM CONTRIBUYENTES")).toLongLong();
    QSqlQuery q(c.db());
    q.prepare(QStringLiteral("INSERT INTO CONTRIBUYENTES (TIPODNI, DNIC, NOMBREC, TIPODOMI, "
                             "CODPROVC) VALUES ('O', ?, ?, 'N', '77')"));
    for (qint64 i = base + 1; i <= base + n; ++i) {
        q.addBindValue(QStringLiteral("R%1").arg(i, 8, 10, QLatin1Char('0')));
        q.addBindValue(QStringLiteral("CONTRIBUYENTE %1").arg(i));
        if (!q.exec())
            qFatal("InsertarContribuyentes: %s", qPrintable(q.lastError().text()));
    }
    q = QSqlQuery();
    c.ejecutar(QStringLiteral("COMMIT"));
}
