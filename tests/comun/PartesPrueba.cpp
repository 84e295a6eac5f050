#include "comun/PartesPrueba.h"

#include "comun/ArregloPrueba.h"
#include "servicios/Almacen.h"
#include "servicios/PosicionesContribuyente.h"
#include "servicios/PosicionesImportar.h"
#include "servicios/PosicionesPresentador.h"
#include "servicios/ValidarDniOficial.h"
#include "servicios/cContribSvr.h"
#include "servicios/cPresenSvr.h"

namespace C = PosContribuyente;
namespace VC = PosValidacionContribuyente;
namespace I = PosImportar;
namespace P = PosPresentador;
namespace VP = PosValidacionPresentador;

namespace {

cContribSvr contribuyentes()
{
    return Almacen<cContribSvr>();
}

cPresenSvr presentadores()
{
    return Almacen<cPresenSvr>();
}

int32_t guardarContribuyente(const Arreglo& datos)
{
    const int16_t veredicto = contribuyentes().GuardarContribuyente(datos);
    if (veredicto != 0)
        qFatal("Contribuyente de prueba %s rechazado: %d", qPrintable(datos[C::DNIC].toString()),
               veredicto);
    return contribuyentes().ObtenerCodigoContribuyente(datos[C::DNIC].toString());
}

}  // namespace

QString Dni(quint32 numero)
{
    return QStringLiteral("%1").arg(numero, 8, 10, QLatin1Char('0')) + LetraDni(numero);
}

Arreglo ContribuyenteNacional(const QString& dni, const QString& nombre, int32_t csco)
{
    return ArregloPorPosiciones(C::Tamano, {{C::CSCO, csco},
                                            {C::TIPODNI, QStringLiteral("O")},
                                            {C::DNIC, dni},
                                            {C::NOMBREC, nombre},
                                            {C::VIAC, QStringLiteral("CL")},
                                            {C::DOMICILIOC, QStringLiteral("MAYOR")},
                                            {C::NUMEROC, 12},
                                            {C::LETRAC, QStringLiteral("B")},
                                            {C::ESCALERAC, QStringLiteral("1")},
                                            {C::PISOC, QStringLiteral("3")},
                                            {C::MANOC, QStringLiteral("IZ")},
                                            {C::TIPODOMI, QStringLiteral("N")},
                                            {C::PAIS, QString()},
                                            {C::CODPROVC, QStringLiteral("77")},
                                            {C::NOMPROVC, QString()},
                                            {C::CODPOSC, QStringLiteral("77001")},
                                            {C::CODMUNC, QStringLiteral("001")},
                                            {C::NOMMUNC, QString()},
                                            {C::NUMSP, 0.0},
                                            {C::NUMTR, 0.0}});
}

Arreglo ContribuyenteExtranjero(const QString& dni, const QString& nombre, int32_t csco)
{
    return ArregloPorPosiciones(C::Tamano, {{C::CSCO, csco},
                                            {C::TIPODNI, QStringLiteral("N")},
                                            {C::DNIC, dni},
                                            {C::NOMBREC, nombre},
                                            {C::VIAC, QStringLiteral("AV")},
                                            {C::DOMICILIOC, QStringLiteral("HIGH STREET")},
                                            {C::NUMEROC, 5},
                                            {C::LETRAC, QString()},
                                            {C::ESCALERAC, QString()},
                                            {C::PISOC, QString()},
                                            {C::MANOC, QString()},
                                            {C::TIPODOMI, QStringLiteral("E")},
                                            {C::PAIS, QStringLiteral("REINO UNIDO")},
                                            {C::CODPROVC, QString()},
                                            {C::NOMPROVC, QStringLiteral("LONDRES")},
                                            {C::CODPOSC, QStringLiteral("1234")},
                                            {C::CODMUNC, QString()},
                                            {C::NOMMUNC, QStringLiteral("LONDRES")},
                                            {C::NUMSP, 0.0},
                                            {C::NUMTR, 0.0}});
}

Arreglo ValidacionDe(const Arreglo& g)
{
    return ArregloPorPosiciones(VC::Tamano, {{VC::TIPODNI, g[C::TIPODNI]},
                                             {VC::DNIC, g[C::DNIC]},
                                             {VC::NOMBREC, g[C::NOMBREC]},
                                             {VC::DOMICILIOC, g[C::DOMICILIOC]},
                                             {VC::TIPODOMI, g[C::TIPODOMI]},
                                             {VC::PAIS, g[C::PAIS]},
                                             {VC::CODPROVC, g[C::CODPROVC]},
                                             {VC::CODPOSC, g[C::CODPOSC]},
                                             {VC::NOMPROVC, g[C::NOMPROVC]},
                                             {VC::NOMMUNC, g[C::NOMMUNC]},
                                             {VC::CODMUNC, g[C::CODMUNC]}});
}

Arreglo ImportacionNacional()
{
    return ArregloPorPosiciones(
        I::Tamano, {{I::TIPODNI, QStringLiteral("O")},
                    {I::DNIC, QStringLiteral("12345678Z")},
                    {I::NOMBREC, QStringLiteral("GARCIA LOPEZ JUAN").leftJustified(40)},
                    {I::DOMICILIOC, QStringLiteral("MAYOR").leftJustified(20)},
                    {I::TIPODOMI, QStringLiteral("N")},
                    {I::PAIS, QString(20, QLatin1Char(' '))},
                    {I::CODPROVC, QStringLiteral("77")},
                    {I::CODPOSC, QStringLiteral("77001")},
                    {I::NOMPROVC, QString(20, QLatin1Char(' '))},
                    {I::NOMMUNC, QString(25, QLatin1Char(' '))},
                    {I::CODMUNC, QStringLiteral("001")},
                    {I::NUMEROC, QStringLiteral("00012")},
                    {I::NUMSP, QStringLiteral("0000000")},
                    {I::NUMTR, QStringLiteral("0000000")},
                    {I::VIAC, QStringLiteral("CL")}});
}

Arreglo Presentador(const QString& dni, const QString& nombre, int32_t cspr)
{
    return ArregloPorPosiciones(P::Tamano, {{P::CSPR, cspr},
                                            {P::DNIP, dni},
                                            {P::NOMBREP, nombre},
                                            {P::VIAP, QStringLiteral("CL")},
                                            {P::DOMICILIOP, QStringLiteral("NUEVA")},
                                            {P::NUMEROP, 7},
                                            {P::LETRAP, QString()},
                                            {P::ESCALERAP, QString()},
                                            {P::PISOP, QStringLiteral("2")},
                                            {P::MANOP, QStringLiteral("DCH")},
                                            {P::CODPROVP, QStringLiteral("77")},
                                            {P::CODPOSP, QStringLiteral("77002")},
                                            {P::CODMUNP, QStringLiteral("002")},
                                            {P::NOMMUNP, QString()},
                                            {P::TELEFONOP, QStringLiteral("945123456")}});
}

Arreglo ValidacionPresentador(const Arreglo& g)
{
    return ArregloPorPosiciones(VP::Tamano, {{VP::DNIP, g[P::DNIP]},
                                             {VP::NOMBREP, g[P::NOMBREP]},
                                             {VP::DOMICILIOP, g[P::DOMICILIOP]},
                                             {VP::CODPROVP, g[P::CODPROVP]},
                                             {VP::CODMUNP, g[P::CODMUNP]},
                                             {VP::NOMMUNP, g[P::NOMMUNP]},
                                             {VP::CODPOSP, g[P::CODPOSP]},
                                             {VP::TELEFONOP, g[P::TELEFONOP]}});
}

int32_t NuevoContribuyente(const QString& dni, const QString& nombre, const QString& calle,
                           const QString& municipio)
{
    return guardarContribuyente(ArregloCambiado(ContribuyenteNacional(dni, nombre),
                                                {{C::DOMICILIOC, calle},
                                                 {C::NUMEROC, 7},
                                                 {C::ESCALERAC, QStringLiteral("1")},
                                                 {C::PISOC, QStringLiteral("2")},
                                                 {C::MANOC, QStringLiteral("IZQ")},
                                                 {C::CODMUNC, municipio}}));
}

int32_t NuevoContribuyenteExtranjero(const QString& dni, const QString& nombre)
{
    return guardarContribuyente(ArregloCambiado(ContribuyenteExtranjero(dni, nombre),
                                                {{C::VIAC, QStringLiteral("CL")},
                                                 {C::DOMICILIOC, QStringLiteral("RUE DE LA PAIX")},
                                                 {C::NUMEROC, 3},
                                                 {C::PAIS, QStringLiteral("FRANCIA")},
                                                 {C::NOMPROVC, QStringLiteral("PARIS")},
                                                 {C::CODPOSC, QStringLiteral("75002")},
                                                 {C::NOMMUNC, QStringLiteral("PARIS")}}));
}

int32_t NuevoPresentador(const QString& dni, const QString& nombre, const QString& calle)
{
    const Arreglo datos = ArregloCambiado(Presentador(dni, nombre),
                                          {{P::DOMICILIOP, calle},
                                           {P::NUMEROP, 12},
                                           {P::PISOP, QString()},
                                           {P::MANOP, QString()},
                                           {P::CODPOSP, QStringLiteral("77001")},
                                           {P::CODMUNP, QStringLiteral("001")},
                                           {P::TELEFONOP, QStringLiteral("945000000")}});
    const int16_t veredicto = presentadores().GuardarPresentador(datos);
    if (veredicto != 0)
        qFatal("Presentador de prueba %s rechazado: %d", qPrintable(dni), veredicto);
    return presentadores().ObtenerCodigoPresentador(dni);
}

bool ExisteContribuyente(int32_t csco)
{
    Arreglo datos;
    contribuyentes().CargarContribuyente(csco, datos);
    return !datos.isEmpty();
}

bool ExistePresentador(int32_t cspr)
{
    Arreglo datos;
    presentadores().CargarPresentador(cspr, datos);
    return !datos.isEmpty();
}
