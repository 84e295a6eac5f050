#include "servicios/postgres/FalloPostgres.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
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
    // A refused login comes before any statement, with no SQLSTATE: the client library's
    // words tell it.
    const QString motivo = error.databaseText();
    const bool sinAcceso = estado.startsWith(QLatin1String("28"))
        || motivo.contains(QLatin1String("password"), Qt::CaseInsensitive);
    int id = kIdServidorOperacionNoCompletada;
    if (sinAcceso)
        id = kIdServidorRechazaUsuario;
    else if (EsServidorPerdido(error) && !estado.startsWith(QLatin1String("3D")))
        id = kIdServidorNoResponde;
    else if (estado == QLatin1String("3D000"))
        id = kIdServidorSinBaseDatos;
    else if (estado == QLatin1String("42501"))
        id = kIdServidorOperacionNoPermitida;
    else if (estado.startsWith(QLatin1String("23")))
        id = kIdServidorRechazaDato;
    else if (estado.startsWith(QLatin1String("40")))
        id = kIdServidorOperacionInterrumpida;
    // The number is the message's: what the user is told is what callers tell apart.
    return cFallo(id, origen, Texto(id).arg(servidor));
}
