#include "registros/partes/cPreDatos.h"

#include "plataforma/Estado.h"

#include "plataforma/General.h"
#include "valores/Formato.h"
#include "valores/Val.h"
#include "servicios/Almacen.h"
#include "servicios/PosicionesPresentador.h"
#include "servicios/cPresenSvr.h"

#include <array>

namespace P = PosPresentador;
namespace V = PosValidacionPresentador;

namespace {

cPresenSvr servidor()
{
    return Almacen<cPresenSvr>();
}

constexpr std::array<int, 12> kIdsValidacion = {0, 330, 30, 31, 40, 38, 36, 33, 35, 198, 199, 329};

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
    Arreglo d;
    int64_t version = 0;
    servidor().CargarPresentador(codigo, d, &version);
    if (d.size() < P::Tamano)
        return;
    VERSION = version;
    DNIP = d[P::DNIP].toString();
    NOMBREP = d[P::NOMBREP].toString();
    VIAP = d[P::VIAP].toString();
    DOMICILIOP = d[P::DOMICILIOP].toString();
    NUMEROP = d[P::NUMEROP].toInt();
    LETRAP = d[P::LETRAP].toString();
    ESCALERAP = d[P::ESCALERAP].toString();
    PISOP = d[P::PISOP].toString();
    MANOP = d[P::MANOP].toString();
    CODPROVP = Formato(d[P::CODPROVP].toString(), QStringLiteral("00"));
    CODPOSP = Formato(d[P::CODPOSP].toString(), QStringLiteral("00000"));
    CODMUNP = d[P::CODMUNP].toString();
    NOMMUNP = d[P::NOMMUNP].toString();
    TELEFONOP = Val(d[P::TELEFONOP].toString()) != 0 ? d[P::TELEFONOP].toString() : QString();
}

int16_t cPreDatos::GuardarPresentador(const Arreglo& datos, Veredicto* rechazo)
{
    return servidor().GuardarPresentador(datos, rechazo, &VERSION);
}

int16_t cPreDatos::ValidarDatosPresentador(const Arreglo& datos) const
{
    return cPresenSvr().ValidarDatosPresentador(datos);
}

void cPreDatos::BorrarPresentador() const
{
    servidor().BorrarPresentador(CSPR);
}

int32_t cPreDatos::ObtenerCodigoPresentador(const QString& dni) const
{
    return servidor().ObtenerCodigoPresentador(dni);
}

Arreglo cPreDatos::ArregloValidacion() const
{
    Arreglo a(V::Tamano);
    a[V::DNIP] = DNIP;
    a[V::NOMBREP] = NOMBREP;
    a[V::DOMICILIOP] = DOMICILIOP;
    a[V::CODPROVP] = CODPROVP;
    a[V::CODMUNP] = CODMUNP;
    a[V::NOMMUNP] = NOMMUNP;
    a[V::CODPOSP] = CODPOSP;
    a[V::TELEFONOP] = TELEFONOP;
    return a;
}

Arreglo cPreDatos::ArregloGuardar() const
{
    Arreglo a(P::Tamano);
    a[P::CSPR] = CSPR;
    a[P::DNIP] = DNIP;
    a[P::NOMBREP] = NOMBREP;
    a[P::VIAP] = VIAP;
    a[P::DOMICILIOP] = DOMICILIOP;
    a[P::NUMEROP] = NUMEROP;
    a[P::LETRAP] = LETRAP;
    a[P::ESCALERAP] = ESCALERAP;
    a[P::PISOP] = PISOP;
    a[P::MANOP] = MANOP;
    a[P::CODPROVP] = CODPROVP;
    a[P::CODPOSP] = CODPOSP;
    a[P::CODMUNP] = CODMUNP;
    a[P::NOMMUNP] = NOMMUNP;
    a[P::TELEFONOP] = TELEFONOP;
    return a;
}

int cPreDatos::IdMensajeValidacion(int16_t veredicto)
{
    return veredicto > 0 && veredicto < static_cast<int>(kIdsValidacion.size())
        ? kIdsValidacion[static_cast<size_t>(veredicto)]
        : 0;
}

int cPreDatos::IdMensajeGuardar(int16_t veredicto)
{
    switch (veredicto) {
    case 1:
        return 195;
    case 2:
        return 196;
    case 3:
        return 197;
    default:
        return 0;
    }
}

Vigencia cPreDatos::VigenciaGuardar(int16_t veredicto)
{
    switch (veredicto) {
    case VeredictoGuardarPresentador::Cambiado:
        return Vigencia::Cambiada;
    case VeredictoGuardarPresentador::Borrado:
        return Vigencia::Borrada;
    default:
        return Vigencia::Vigente;
    }
}

cPreDatos& PreDatos()
{
    return Estado().de<cPreDatos>();
}
