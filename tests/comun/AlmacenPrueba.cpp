#include "comun/AlmacenPrueba.h"

#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "servicios/Conexion.h"
#include "servicios/cTraspaso.h"

namespace {
const QString kOrigen = QStringLiteral("prueba");

QSqlDatabase almacen()
{
    return Conexion::Modificable(mdbmod, kOrigen);
}

QVariant codigoDeParte(int32_t c)
{
    return c == 0 ? QVariant() : QVariant(c);
}
}  // namespace

AlmacenDePrueba::AlmacenDePrueba() : m_carpeta(std::make_unique<CarpetaDePrueba>())
{
    GrabarSeams();
    EstablecerIdiomaPrograma(Idioma::Castellano);
    cTraspaso traspaso;
    traspaso.mdbmod = mdbmod;
    traspaso.mdbPath = mdbPath;
    if (traspaso.Traspaso())
        qFatal("No se pudo crear la base de datos de prueba");
}

AlmacenDePrueba::~AlmacenDePrueba()
{
    Conexion::Cerrar(mdbmod);
    Conexion::Cerrar(mdblec);
}

QSqlDatabase AlmacenDePrueba::db() const
{
    return almacen();
}

int32_t AlmacenDePrueba::NuevaDeclaracion(int32_t cssu, int32_t cstra, int32_t cspr) const
{
    return ::NuevaDeclaracion(cssu, cstra, cspr);
}

void AlmacenDePrueba::BorrarDeclaracion(int32_t csde) const
{
    EjecutarEnAlmacen(QStringLiteral("DELETE FROM DECLARACIONES WHERE CSDE = ?"), {csde});
}

int AlmacenDePrueba::Filas(const QString& tabla) const
{
    return ValorAlmacenado(QStringLiteral("SELECT COUNT(*) FROM ") + tabla).toInt();
}

QVariant AlmacenDePrueba::Valor(const QString& sql, const QVariantList& valores) const
{
    return ValorAlmacenado(sql, valores);
}

void AlmacenDePrueba::Ejecutar(const QString& sql, const QVariantList& valores) const
{
    EjecutarEnAlmacen(sql, valores);
}

QVariant ValorAlmacenado(const QString& sql, const QVariantList& valores)
{
    return Escalar(almacen(), sql, valores, kOrigen);
}

void EjecutarEnAlmacen(const QString& sql, const QVariantList& valores)
{
    ::Ejecutar(almacen(), sql, valores, kOrigen);
}

int32_t NuevaDeclaracion(int32_t sujeto, int32_t transmitente, int32_t presentador)
{
    EjecutarEnAlmacen(QStringLiteral("INSERT INTO DECLARACIONES (CSSU, CSTRA, CSPR) "
                                     "VALUES (?, ?, ?)"),
                      {codigoDeParte(sujeto), codigoDeParte(transmitente),
                       codigoDeParte(presentador)});
    return ValorAlmacenado(QStringLiteral("SELECT last_insert_rowid()")).toInt();
}

int FilasDeclaraciones()
{
    return Escalar(almacen(), QStringLiteral("SELECT COUNT(*) FROM DECLARACIONES"), {}, kOrigen, 0)
        .toInt();
}
