#include "servicios/postgres/ConexionPostgres.h"

#include <QHash>
#include <QMutex>
#include <QRegularExpression>

namespace {

struct Ajustes {
    QMutex cerrojo;
    QHash<QString, QString> claves;
    QString sslmode = QStringLiteral("prefer");
};

Ajustes& ajustes()
{
    static Ajustes a;
    return a;
}

bool esCadena(const QString& ubicacion)
{
    return ubicacion.contains(QLatin1Char('='));
}

// The value of `clave` in a connection string ("" when it is not there). Values are single
// words or quoted between single quotes.
QString valorDe(const QString& cadena, const QString& clave)
{
    const QRegularExpression patron(QStringLiteral(R"((?:^|\s)%1\s*=\s*('(?:[^'\\]|\\.)*'|\S+))")
                                        .arg(QRegularExpression::escape(clave)));
    const QRegularExpressionMatch m = patron.match(cadena);
    if (!m.hasMatch())
        return QString();
    QString v = m.captured(1);
    if (v.startsWith(QLatin1Char('\'')))
        v = v.mid(1, v.size() - 2).replace(QStringLiteral("\\'"), QStringLiteral("'"));
    return v;
}

}  // namespace

namespace ConexionPostgres {

QString Cadena(const QString& ubicacion)
{
    QString cadena = esCadena(ubicacion) ? ubicacion.trimmed()
                                         : QStringLiteral("service=") + ubicacion.trimmed();
    if (valorDe(cadena, QStringLiteral("sslmode")).isEmpty())
        cadena += QStringLiteral(" sslmode=") + Sslmode();
    return cadena;
}

QString NombreServidor(const QString& ubicacion)
{
    if (!esCadena(ubicacion))
        return ubicacion.trimmed();
    const QString servicio = valorDe(ubicacion, QStringLiteral("service"));
    if (!servicio.isEmpty())
        return servicio;
    const QString host = valorDe(ubicacion, QStringLiteral("host"));
    const QString puerto = valorDe(ubicacion, QStringLiteral("port"));
    const QString base = valorDe(ubicacion, QStringLiteral("dbname"));
    QString nombre = host.isEmpty() ? QStringLiteral("localhost") : host;
    if (!puerto.isEmpty())
        nombre += QLatin1Char(':') + puerto;
    if (!base.isEmpty())
        nombre += QLatin1Char('/') + base;
    return nombre;
}

void RecordarClave(const QString& ubicacion, const QString& clave)
{
    Ajustes& a = ajustes();
    const QMutexLocker bloqueo(&a.cerrojo);
    if (clave.isEmpty())
        a.claves.remove(ubicacion);
    else
        a.claves.insert(ubicacion, clave);
}

void FijarSslmode(const QString& modo)
{
    Ajustes& a = ajustes();
    const QMutexLocker bloqueo(&a.cerrojo);
    a.sslmode = modo.isEmpty() ? QStringLiteral("prefer") : modo;
}

QString Sslmode()
{
    Ajustes& a = ajustes();
    const QMutexLocker bloqueo(&a.cerrojo);
    return a.sslmode;
}

QSqlDatabase Definir(const QString& nombre, const QString& ubicacion)
{
    QSqlDatabase db = QSqlDatabase::contains(nombre)
        ? QSqlDatabase::database(nombre, false)
        : QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), nombre);
    // Qt's driver passes its options on to the client library as they are: the whole string
    // goes there, and the password of this run beside it.
    db.setConnectOptions(Cadena(ubicacion));
    QString clave;
    {
        Ajustes& a = ajustes();
        const QMutexLocker bloqueo(&a.cerrojo);
        clave = a.claves.value(ubicacion);
    }
    db.setPassword(clave);
    return db;
}

}  // namespace ConexionPostgres
