#include "ApoyoDeclaracion.h"

#include "plataforma/General.h"
#include "paneles/dialogos/Mensaje.h"
#include "registros/declaracion/Calculo.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cOperacion.h"
#include "valores/cFecha.h"
#include "servicios/Conexion.h"
#include "servicios/ValidarDniOficial.h"
#include "servicios/cContribSvr.h"
#include "servicios/cPresenSvr.h"
#include "servicios/cTraspaso.h"

#include <QTest>

AlmacenDePrueba::AlmacenDePrueba() : m_carpeta(std::make_unique<CarpetaDePrueba>())
{
    GrabarSeams();
    MensajeSeam::limpiar();
    OffsetIdioma = 0;
    Fecha().fecidioma = QStringLiteral("C");
    cTraspaso t;
    t.mdbmod = mdbmod;
    t.mdbPath = mdbPath;
    if (t.Traspaso())
        qFatal("No se pudo crear la base de datos de prueba");
}

AlmacenDePrueba::~AlmacenDePrueba()
{
    Conexion::Cerrar(mdbmod);
    Conexion::Cerrar(mdblec);
}

QString DniValido(quint32 numero)
{
    return QStringLiteral("%1").arg(numero, 8, 10, QLatin1Char('0')) + LetraDni(numero);
}

namespace {
int32_t guardarContribuyente(const Arreglo& datos)
{
    cContribSvr svr;
    svr.mdbmod = mdbmod;
    svr.mdblec = mdblec;
    const int16_t veredicto = svr.GuardarContribuyente(datos);
    if (veredicto != 0)
        qFatal("Contribuyente de prueba rechazado: %d", veredicto);
    return svr.ObtenerCodigoContribuyente(datos[2].toString());
}
}  // namespace

int32_t NuevoContribuyente(const QString& dni, const QString& nombre)
{
    return guardarContribuyente({0, QStringLiteral("O"), dni, nombre, QStringLiteral("CL"),
                                 QStringLiteral("MAYOR"), 7, QStringLiteral("B"),
                                 QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("IZQ"),
                                 QStringLiteral("N"), QString(), QStringLiteral("77"), QString(),
                                 QStringLiteral("77001"), QStringLiteral("001"), QString(), 0.0,
                                 0.0});
}

int32_t NuevoContribuyenteExtranjero(const QString& dni, const QString& nombre)
{
    return guardarContribuyente({0, QStringLiteral("N"), dni, nombre, QStringLiteral("CL"),
                                 QStringLiteral("RUE DE LA PAIX"), 3, QString(), QString(),
                                 QString(), QString(), QStringLiteral("E"),
                                 QStringLiteral("FRANCIA"), QString(), QStringLiteral("PARIS"),
                                 QStringLiteral("75002"), QString(), QStringLiteral("PARIS"), 0.0,
                                 0.0});
}

int32_t NuevoPresentador(const QString& dni, const QString& nombre)
{
    cPresenSvr svr;
    svr.mdbmod = mdbmod;
    svr.mdblec = mdblec;
    const int16_t veredicto = svr.GuardarPresentador(
        {0, dni, nombre, QStringLiteral("CL"), QStringLiteral("NUEVA"), 12, QString(),
         QString(), QString(), QString(), QStringLiteral("77"),
         QStringLiteral("77001"), QStringLiteral("001"), QString(),
         QStringLiteral("945000000")});
    if (veredicto != 0)
        qFatal("Presentador de prueba rechazado: %d", veredicto);
    return svr.ObtenerCodigoPresentador(dni);
}

void DeclaracionValida()
{
    cDecDatos& d = DecDatos();
    d.setMODO(QStringLiteral("A"));
    d.FECHAD = 20100315;
    d.REFERENCIA = QStringLiteral("REF-1");
    d.MARCA = QStringLiteral("SEAT");
    d.MODELO = QStringLiteral("IBIZA");
    d.TIPO = QStringLiteral("6J");
    d.BASTIDOR = QStringLiteral("VSSZZZ6JZAR000001");
    d.CLASIFICACION = 1000;
    d.MOTOR = QStringLiteral("G");
    d.CILINDRADA = 1598;
    d.OPERACION = QStringLiteral("T2");
    d.BASEI = 1500000;
    d.DNISP = DniValido(12345678);
    d.NOMBRESP = QStringLiteral("GARCIA LOPEZ JUAN");
    d.DOMICILIOSP = QStringLiteral("MAYOR");
    d.CODPOSSP = QStringLiteral("77001");
    d.CODMUNSP = QStringLiteral("001");
    d.DNITR = DniValido(87654321);
    d.NOMBRETR = QStringLiteral("AUTOS VELDO SA");
    d.VIATR = QStringLiteral("AV");
    d.DOMICILIOTR = QStringLiteral("GASTEIZ");
    d.CODPOSTR = QStringLiteral("77002");
    d.CODMUNTR = QStringLiteral("002");
    d.ObtenerDatosOperacion(false);
    AplicarOperacion();
}

int FilasDeclaraciones()
{
    const QSqlDatabase db = Conexion::Modificable(mdbmod, QStringLiteral("prueba"));
    return Escalar(db, QStringLiteral("SELECT COUNT(*) FROM DECLARACIONES"), {},
                   QStringLiteral("prueba"), 0)
        .toInt();
}
