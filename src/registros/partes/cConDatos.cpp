#include "registros/partes/cConDatos.h"

#include "plataforma/Estado.h"

#include "plataforma/General.h"
#include "valores/Formato.h"
#include "servicios/Almacen.h"
#include "servicios/cContribSvr.h"

void cConDatos::IniciarNuevo()
{
    TIPODNI = QStringLiteral("O");
    DNIC.clear();
    NOMBREC.clear();
    TIPODOMI = QStringLiteral("N");
    VIAC = QStringLiteral("CL");
    DOMICILIOC.clear();
    NUMEROC = 0;
    LETRAC.clear();
    ESCALERAC.clear();
    PISOC.clear();
    MANOC.clear();
    PAIS.clear();
    CODPROVC = QStringLiteral("77");
    NOMPROVC.clear();
    CODPOSC.clear();
    CODMUNC.clear();
    NOMMUNC.clear();
    NUMSP = 0;
    NUMTR = 0;
    VERSION = 0;
}

void cConDatos::BorrarContribuyente() const
{
    Almacen<cContribSvr>().BorrarContribuyente(CSCO);
}

void cConDatos::CargarContribuyente(int32_t codigo)
{
    std::optional<Contribuyente> c = Almacen<cContribSvr>().CargarContribuyente(codigo);
    if (!c)
        return;
    c->CSCO = CSCO;
    c->CODPROVC = Formato(c->CODPROVC, QStringLiteral("00"));
    static_cast<Contribuyente&>(*this) = std::move(*c);
}

QList<HallazgoImportacion> cConDatos::ValidarDatosImportar(const LineaContribuyente& linea) const
{
    return Almacen<cContribSvr>().ValidarDatosImportar(linea);
}

Resultado<void> cConDatos::ValidarDatosContribuyente() const
{
    // The validation needs no database.
    return cContribSvr().ValidarDatosContribuyentes(valor());
}

int32_t cConDatos::ObtenerCodigoContribuyente(const QString& dni) const
{
    return Almacen<cContribSvr>().ObtenerCodigoContribuyente(dni);
}

Resultado<Contribuyente> cConDatos::GuardarContribuyente()
{
    Resultado<Contribuyente> r = Almacen<cContribSvr>().GuardarContribuyente(valor());
    if (r)
        VERSION = r->VERSION;
    return r;
}

cConDatos& ConDatos()
{
    return Estado().de<cConDatos>();
}
