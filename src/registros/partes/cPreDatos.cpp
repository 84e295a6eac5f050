#include "registros/partes/cPreDatos.h"

#include "plataforma/Estado.h"

#include "plataforma/General.h"
#include "valores/Formato.h"
#include "valores/Val.h"
#include "servicios/Almacen.h"
#include "servicios/cPresenSvr.h"

#include <array>

namespace {

cPresenSvr servidor()
{
    return Almacen<cPresenSvr>();
}

constexpr std::array<int, 12> kIdsValidacion = {0, 330, 30, 31, 40, 38, 36, 33, 35, 198, 199, 329};

}  // namespace

void cPreDatos::setMODO(const QString& modo)
{
    m_modo = modo;
    if (modo != QLatin1String("A"))
        return;
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
}

int16_t cPreDatos::NDeclaPresentador() const
{
    return servidor().NDeclaPresentador(CSPR);
}

void cPreDatos::CargarPresentador(int32_t codigo)
{
    Arreglo d;
    servidor().CargarPresentador(codigo, d);
    if (d.size() < 15)
        return;
    DNIP = d[1].toString();
    NOMBREP = d[2].toString();
    VIAP = d[3].toString();
    DOMICILIOP = d[4].toString();
    NUMEROP = d[5].toInt();
    LETRAP = d[6].toString();
    ESCALERAP = d[7].toString();
    PISOP = d[8].toString();
    MANOP = d[9].toString();
    CODPROVP = Formato(d[10].toString(), QStringLiteral("00"));
    CODPOSP = Formato(d[11].toString(), QStringLiteral("00000"));
    CODMUNP = d[12].toString();
    NOMMUNP = d[13].toString();
    TELEFONOP = Val(d[14].toString()) != 0 ? d[14].toString() : QString();
}

int16_t cPreDatos::GuardarPresentador(const Arreglo& datos) const
{
    return servidor().GuardarPresentador(datos);
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
    return {DNIP, NOMBREP, DOMICILIOP, CODPROVP, CODMUNP, NOMMUNP, CODPOSP, TELEFONOP};
}

Arreglo cPreDatos::ArregloGuardar() const
{
    return {CSPR,      DNIP,  NOMBREP, VIAP,     DOMICILIOP, NUMEROP, LETRAP, ESCALERAP,
            PISOP,     MANOP, CODPROVP, CODPOSP, CODMUNP,    NOMMUNP, TELEFONOP};
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

cPreDatos& PreDatos()
{
    return Estado().de<cPreDatos>();
}
