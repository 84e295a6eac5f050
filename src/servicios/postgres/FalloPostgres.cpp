#include "servicios/postgres/FalloPostgres.h"

#include "servicios/postgres/ConexionPostgres.h"

#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(registroServidor, "veldo.servidor")

// The store's place is the connection's options (ConexionPostgres::Definir).
QString servidorDe(const QSqlDatabase& db)
{
    return ConexionPostgres::NombreServidor(db.connectOptions());
}

QString estadoDe(const QSqlError& error)
{
    return error.nativeErrorCode().trimmed();
}

}  // namespace

bool EsServidorPerdido(const QSqlError& error)
{
    const QString estado = estadoDe(error);
    return error.type() == QSqlError::ConnectionError || estado.startsWith(QLatin1String("08"))
        || estado.startsWith(QLatin1String("57P"));
}

cFallo FalloPostgres(const QSqlDatabase& db, const QSqlError& error, const QString& contexto,
                     const QString& origen)
{
    const QString servidor = servidorDe(db);
    const QString estado = estadoDe(error);
    qCWarning(registroServidor).noquote()
        << servidor << estado << contexto << error.databaseText() << error.driverText();
    bool numerico = false;
    const int numero = estado.toInt(&numerico);
    QString texto;
    // A refused login comes before any statement, with no SQLSTATE: the client library's
    // words tell it.
    const QString motivo = error.databaseText();
    const bool sinAcceso = estado.startsWith(QLatin1String("28"))
        || motivo.contains(QLatin1String("password"), Qt::CaseInsensitive);
    if (sinAcceso)
        texto = QStringLiteral("El servidor de la oficina %1 no acepta el usuario o la contraseña. "
                               "Compruebe los datos de conexión del puesto.");
    else if (EsServidorPerdido(error) && !estado.startsWith(QLatin1String("3D")))
        texto = QStringLiteral("No se puede trabajar con el servidor de la oficina %1: no responde. "
                               "Compruebe que está en marcha y que la red llega a él, y vuelva a "
                               "intentarlo.");
    else if (estado == QLatin1String("3D000"))
        texto = QStringLiteral("El servidor de la oficina %1 no tiene la base de datos indicada.");
    else if (estado == QLatin1String("42501"))
        texto = QStringLiteral("El servidor de la oficina %1 no permite esta operación al usuario "
                               "del puesto.");
    else if (estado.startsWith(QLatin1String("23")))
        texto = QStringLiteral("El servidor de la oficina %1 rechaza un dato que no cumple sus "
                               "reglas.");
    else if (estado.startsWith(QLatin1String("40")))
        texto = QStringLiteral("El servidor de la oficina %1 ha interrumpido la operación por otra "
                               "simultánea. Vuelva a intentarlo.");
    else
        texto = QStringLiteral("El servidor de la oficina %1 no ha podido completar la operación.");
    const int codigo = sinAcceso ? 3152
        : EsServidorPerdido(error) ? 3151
        : (numerico && numero ? numero : 3001);
    return cFallo(codigo, origen, texto.arg(servidor));
}
