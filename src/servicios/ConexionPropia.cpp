#include "servicios/ConexionPropia.h"

#include "plataforma/Fallo.h"

#include <QFileInfo>
#include <QUuid>

namespace {
QString opciones(ConexionPropia::Modo modo)
{
    // A busy store waits for the other copy's lock, as the stores' own connections do.
    switch (modo) {
    case ConexionPropia::Modo::Examen:
    case ConexionPropia::Modo::Lectura:
        return QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=10000");
    case ConexionPropia::Modo::Escritura:
        return QStringLiteral("QSQLITE_BUSY_TIMEOUT=10000");
    case ConexionPropia::Modo::EscrituraConAdjuntos:
        return QStringLiteral("QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=10000");
    }
    return {};
}
}

ConexionPropia::ConexionPropia(const QString& ruta, Modo modo)
    : m_nombre(QStringLiteral("propia-") + QUuid::createUuid().toString(QUuid::Id128)),
      m_ruta(ruta)
{
    if (modo == Modo::Examen)
        modo = QFileInfo(ruta).isWritable() ? Modo::Escritura : Modo::Lectura;
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_nombre);
    db.setDatabaseName(ruta);
    db.setConnectOptions(opciones(modo));
    m_abierta = db.open();
    m_error = db.lastError();
}

ConexionPropia::~ConexionPropia()
{
    {
        QSqlDatabase db = QSqlDatabase::database(m_nombre, false);
        db.close();
    }
    QSqlDatabase::removeDatabase(m_nombre);
}

void ConexionPropia::ExigirAbierta(const QString& origen) const
{
    if (!m_abierta)
        throw cFallo(3049, origen, m_ruta + QStringLiteral(": ") + m_error.text());
}
