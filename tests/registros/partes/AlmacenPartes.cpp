#include "AlmacenPartes.h"

#include "plataforma/General.h"
#include "servicios/Conexion.h"
#include "servicios/cTraspaso.h"
#include "servicios/ValidarDniOficial.h"

#include <QtTest>

namespace {
const QString kOrigen = QStringLiteral("prueba");
}

AlmacenDePrueba::AlmacenDePrueba() : m_carpeta(std::make_unique<CarpetaDePrueba>())
{
    cTraspaso traspaso;
    traspaso.mdbmod = mdbmod;
    traspaso.mdbPath = mdbPath;
    if (traspaso.Traspaso())
        qFatal("No se pudo crear la base de datos de prueba");
}

AlmacenDePrueba::~AlmacenDePrueba() = default;

QSqlDatabase AlmacenDePrueba::db() const
{
    return Conexion::Modificable(mdbmod, kOrigen);
}

int32_t AlmacenDePrueba::NuevaDeclaracion(int32_t cssu, int32_t cstra, int32_t cspr) const
{
    const auto codigo = [](int32_t c) { return c == 0 ? QVariant() : QVariant(c); };
    ::Ejecutar(db(), QStringLiteral("INSERT INTO DECLARACIONES (CSSU, CSTRA, CSPR) VALUES (?, ?, ?)"),
               {codigo(cssu), codigo(cstra), codigo(cspr)}, kOrigen);
    return Escalar(db(), QStringLiteral("SELECT last_insert_rowid()"), {}, kOrigen).toInt();
}

void AlmacenDePrueba::BorrarDeclaracion(int32_t csde) const
{
    ::Ejecutar(db(), QStringLiteral("DELETE FROM DECLARACIONES WHERE CSDE = ?"), {csde}, kOrigen);
}

int AlmacenDePrueba::Filas(const QString& tabla) const
{
    return Escalar(db(), QStringLiteral("SELECT COUNT(*) FROM ") + tabla, {}, kOrigen).toInt();
}

QVariant AlmacenDePrueba::Valor(const QString& sql, const QVariantList& valores) const
{
    return Escalar(db(), sql, valores, kOrigen);
}

void AlmacenDePrueba::Ejecutar(const QString& sql, const QVariantList& valores) const
{
    ::Ejecutar(db(), sql, valores, kOrigen);
}

QString Dni(quint32 numero)
{
    return QStringLiteral("%1").arg(numero, 8, 10, QLatin1Char('0')) + LetraDni(numero);
}

Arreglo ContribuyenteNacional(const QString& dni, const QString& nombre, int32_t csco)
{
    return {csco, QStringLiteral("O"), dni, nombre, QStringLiteral("CL"),
            QStringLiteral("MAYOR"), 12, QStringLiteral("B"), QStringLiteral("1"),
            QStringLiteral("3"), QStringLiteral("IZ"), QStringLiteral("N"), QString(),
            QStringLiteral("77"), QString(), QStringLiteral("77001"), QStringLiteral("001"),
            QString(), 0.0, 0.0};
}

Arreglo ContribuyenteExtranjero(const QString& dni, const QString& nombre, int32_t csco)
{
    return {csco, QStringLiteral("N"), dni, nombre, QStringLiteral("AV"),
            QStringLiteral("HIGH STREET"), 5, QString(), QString(), QString(), QString(),
            QStringLiteral("E"), QStringLiteral("REINO UNIDO"), QString(),
            QStringLiteral("LONDRES"), QStringLiteral("1234"), QString(),
            QStringLiteral("LONDRES"), 0.0, 0.0};
}

Arreglo ValidacionDe(const Arreglo& g)
{
    return {g[1], g[2], g[3], g[5], g[11], g[12], g[13], g[15], g[14], g[17], g[16]};
}

Arreglo ImportacionNacional()
{
    return {QStringLiteral("O"),
            QStringLiteral("12345678Z"),
            QStringLiteral("GARCIA LOPEZ JUAN").leftJustified(40),
            QStringLiteral("MAYOR").leftJustified(20),
            QStringLiteral("N"),
            QString(20, QLatin1Char(' ')),
            QStringLiteral("77"),
            QStringLiteral("77001"),
            QString(20, QLatin1Char(' ')),
            QString(25, QLatin1Char(' ')),
            QStringLiteral("001"),
            QStringLiteral("00012"),
            QStringLiteral("0000000"),
            QStringLiteral("0000000"),
            QStringLiteral("CL")};
}

Arreglo Presentador(const QString& dni, const QString& nombre, int32_t cspr)
{
    return {cspr, dni, nombre, QStringLiteral("CL"), QStringLiteral("NUEVA"), 7,
            QString(), QString(), QStringLiteral("2"), QStringLiteral("DCH"),
            QStringLiteral("77"), QStringLiteral("77002"), QStringLiteral("002"), QString(),
            QStringLiteral("945123456")};
}

Arreglo ValidacionPresentador(const Arreglo& g)
{
    return {g[1], g[2], g[4], g[10], g[12], g[13], g[11], g[14]};
}
