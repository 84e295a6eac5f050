#include "comun/PartesPrueba.h"

#include "servicios/Almacen.h"
#include "servicios/ValidarDniOficial.h"
#include "servicios/cContribSvr.h"
#include "servicios/cPresenSvr.h"

namespace {

cContribSvr contribuyentes()
{
    return Almacen<cContribSvr>();
}

cPresenSvr presentadores()
{
    return Almacen<cPresenSvr>();
}

int32_t guardarContribuyente(const Contribuyente& c)
{
    const Resultado<Contribuyente> r = contribuyentes().GuardarContribuyente(c);
    if (!r)
        qFatal("Contribuyente de prueba %s rechazado: %d", qPrintable(c.DNIC), r.veredicto().id);
    return r->CSCO;
}

}  // namespace

QString Dni(quint32 numero)
{
    return QStringLiteral("%1").arg(numero, 8, 10, QLatin1Char('0')) + LetraDni(numero);
}

Contribuyente ContribuyenteNacional(const QString& dni, const QString& nombre, int32_t csco)
{
    Contribuyente c;
    c.CSCO = csco;
    c.TIPODNI = QStringLiteral("O");
    c.DNIC = dni;
    c.NOMBREC = nombre;
    c.VIAC = QStringLiteral("CL");
    c.DOMICILIOC = QStringLiteral("MAYOR");
    c.NUMEROC = 12;
    c.LETRAC = QStringLiteral("B");
    c.ESCALERAC = QStringLiteral("1");
    c.PISOC = QStringLiteral("3");
    c.MANOC = QStringLiteral("IZ");
    c.TIPODOMI = QStringLiteral("N");
    c.CODPROVC = QStringLiteral("77");
    c.CODPOSC = QStringLiteral("77001");
    c.CODMUNC = QStringLiteral("001");
    return c;
}

Contribuyente ContribuyenteExtranjero(const QString& dni, const QString& nombre, int32_t csco)
{
    Contribuyente c;
    c.CSCO = csco;
    c.TIPODNI = QStringLiteral("N");
    c.DNIC = dni;
    c.NOMBREC = nombre;
    c.VIAC = QStringLiteral("AV");
    c.DOMICILIOC = QStringLiteral("HIGH STREET");
    c.NUMEROC = 5;
    c.TIPODOMI = QStringLiteral("E");
    c.PAIS = QStringLiteral("REINO UNIDO");
    c.NOMPROVC = QStringLiteral("LONDRES");
    c.CODPOSC = QStringLiteral("1234");
    c.NOMMUNC = QStringLiteral("LONDRES");
    return c;
}

LineaContribuyente ImportacionNacional()
{
    LineaContribuyente l;
    l.TIPODNI = QStringLiteral("O");
    l.DNIC = QStringLiteral("12345678Z");
    l.NOMBREC = QStringLiteral("GARCIA LOPEZ JUAN").leftJustified(40);
    l.DOMICILIOC = QStringLiteral("MAYOR").leftJustified(20);
    l.TIPODOMI = QStringLiteral("N");
    l.PAIS = QString(20, QLatin1Char(' '));
    l.CODPROVC = QStringLiteral("77");
    l.CODPOSC = QStringLiteral("77001");
    l.NOMPROVC = QString(20, QLatin1Char(' '));
    l.NOMMUNC = QString(25, QLatin1Char(' '));
    l.CODMUNC = QStringLiteral("001");
    l.NUMEROC = QStringLiteral("00012");
    l.NUMSP = QStringLiteral("0000000");
    l.NUMTR = QStringLiteral("0000000");
    l.VIAC = QStringLiteral("CL");
    return l;
}

Presentador PresentadorValido(const QString& dni, const QString& nombre, int32_t cspr)
{
    Presentador p;
    p.CSPR = cspr;
    p.DNIP = dni;
    p.NOMBREP = nombre;
    p.VIAP = QStringLiteral("CL");
    p.DOMICILIOP = QStringLiteral("NUEVA");
    p.NUMEROP = 7;
    p.PISOP = QStringLiteral("2");
    p.MANOP = QStringLiteral("DCH");
    p.CODPROVP = QStringLiteral("77");
    p.CODPOSP = QStringLiteral("77002");
    p.CODMUNP = QStringLiteral("002");
    p.TELEFONOP = QStringLiteral("945123456");
    return p;
}

int32_t NuevoContribuyente(const QString& dni, const QString& nombre, const QString& calle,
                           const QString& municipio)
{
    Contribuyente c = ContribuyenteNacional(dni, nombre);
    c.DOMICILIOC = calle;
    c.NUMEROC = 7;
    c.ESCALERAC = QStringLiteral("1");
    c.PISOC = QStringLiteral("2");
    c.MANOC = QStringLiteral("IZQ");
    c.CODMUNC = municipio;
    return guardarContribuyente(c);
}

int32_t NuevoContribuyenteExtranjero(const QString& dni, const QString& nombre)
{
    Contribuyente c = ContribuyenteExtranjero(dni, nombre);
    c.VIAC = QStringLiteral("CL");
    c.DOMICILIOC = QStringLiteral("RUE DE LA PAIX");
    c.NUMEROC = 3;
    c.PAIS = QStringLiteral("FRANCIA");
    c.NOMPROVC = QStringLiteral("PARIS");
    c.CODPOSC = QStringLiteral("75002");
    c.NOMMUNC = QStringLiteral("PARIS");
    return guardarContribuyente(c);
}

int32_t NuevoPresentador(const QString& dni, const QString& nombre, const QString& calle)
{
    Presentador p = PresentadorValido(dni, nombre);
    p.DOMICILIOP = calle;
    p.NUMEROP = 12;
    p.PISOP.clear();
    p.MANOP.clear();
    p.CODPOSP = QStringLiteral("77001");
    p.CODMUNP = QStringLiteral("001");
    p.TELEFONOP = QStringLiteral("945000000");
    const Resultado<Presentador> r = presentadores().GuardarPresentador(p);
    if (!r)
        qFatal("Presentador de prueba %s rechazado: %d", qPrintable(dni), r.veredicto().id);
    return r->CSPR;
}

bool ExisteContribuyente(int32_t csco)
{
    return contribuyentes().CargarContribuyente(csco).has_value();
}

bool ExistePresentador(int32_t cspr)
{
    return presentadores().CargarPresentador(cspr).has_value();
}
