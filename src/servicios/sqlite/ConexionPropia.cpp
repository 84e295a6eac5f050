#include "servicios/sqlite/ConexionPropia.h"

#include "plataforma/Fallo.h"

#include <QFileInfo>
#include <QUuid>

namespace {
Acceso accesoDe(ConexionPropia::Modo modo)
{
    switch (modo) {
    case ConexionPropia::Modo::Examen:
    case ConexionPropia::Modo::Lectura:
        return Acceso::Lectura;
    case ConexionPropia::Modo::Escritura:
        return Acceso::Escritura;
    case ConexionPropia::Modo::EscrituraConAdjuntos:
        return Acceso::EscrituraConAdjuntos;
    }
    return Acceso::Lectura;
}
}

QSqlDatabase DefinirConexionSqlite(const QString& nombre, const QString& ruta, Acceso acceso)
{
    QSqlDatabase db = QSqlDatabase::contains(nombre)
        ? QSqlDatabase::database(nombre, false)
        : QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), nombre);
    db.setDatabaseName(ruta);
    // A busy store waits for the other copy's lock, as long as any connection of the program.
    switch (acceso) {
    case Acceso::Lectura:
        db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=10000"));
        break;
    case Acceso::Escritura:
        db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=10000"));
        break;
    case Acceso::EscrituraConAdjuntos:
        db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=10000"));
        break;
    }
    return db;
}

ConexionPropia::ConexionPropia(const QString& ruta, Modo modo)
    : m_nombre(QStringLiteral("propia-") + QUuid::createUuid().toString(QUuid::Id128)),
      m_ruta(ruta)
{
    if (modo == Modo::Examen)
        modo = QFileInfo(ruta).isWritable() ? Modo::Escritura : Modo::Lectura;
    QSqlDatabase db = DefinirConexionSqlite(m_nombre, ruta, accesoDe(modo));
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
