#include "registros/partes/cPreDatos.h"

#include "plataforma/Estado.h"

#include "plataforma/General.h"
#include "valores/Formato.h"
#include "valores/Val.h"
#include "servicios/Almacen.h"
#include "servicios/cPresenSvr.h"

#include <optional>

namespace {

cPresenSvr servidor()
{
    return Almacen<cPresenSvr>();
}

}  // namespace

void cPreDatos::IniciarNuevo()
{
    DNIP.clear();
    NOMBREP.clear();
    VIAP = QStringLiteral("CL");
    DOMICILIOP.clear();
    NUMEROP = 0;
    LETRAP.clear();
    ESCALERAP.clear();
    PISOP.clear();
    MANOP.clear();
    CODPROVP = QStringLiteral("77");
    CODPOSP.clear();
    CODMUNP.clear();
    NOMMUNP.clear();
    TELEFONOP.clear();
    VERSION = 0;
}

int16_t cPreDatos::NDeclaPresentador() const
{
    return servidor().NDeclaPresentador(CSPR);
}

void cPreDatos::CargarPresentador(int32_t codigo)
{
    std::optional<Presentador> p = servidor().CargarPresentador(codigo);
    if (!p)
        return;
    p->CSPR = CSPR;
    p->CODPROVP = Formato(p->CODPROVP, QStringLiteral("00"));
    p->CODPOSP = Formato(p->CODPOSP, QStringLiteral("00000"));
    if (Val(p->TELEFONOP) == 0)
        p->TELEFONOP.clear();
    static_cast<Presentador&>(*this) = std::move(*p);
}

Resultado<Presentador> cPreDatos::GuardarPresentador()
{
    Resultado<Presentador> r = servidor().GuardarPresentador(valor());
    if (r)
        VERSION = r->VERSION;
    return r;
}

Resultado<void> cPreDatos::ValidarDatosPresentador() const
{
    return cPresenSvr().ValidarDatosPresentador(valor());
}

void cPreDatos::BorrarPresentador() const
{
    servidor().BorrarPresentador(CSPR);
}

int32_t cPreDatos::ObtenerCodigoPresentador(const QString& dni) const
{
    return servidor().ObtenerCodigoPresentador(dni);
}

cPreDatos& PreDatos()
{
    return Estado().de<cPreDatos>();
}
