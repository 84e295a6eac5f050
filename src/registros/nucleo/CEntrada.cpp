#include "registros/nucleo/CEntrada.h"

#include "plataforma/Estado.h"

#include "plataforma/General.h"
#include "valores/cFecha.h"
#include "servicios/Almacen.h"
#include "servicios/cDatosGeneral.h"
#include "servicios/cGeneralSvr.h"

void CEntrada::InicializarContadores()
{
    auto datos = Almacen<cDatosGeneral>();
    NUMDECLA = datos.NumeroDeclaraciones();
    NUMCONTRI = datos.NumeroContribuyentes();
    NUMPRESEN = datos.NumeroPresentadores();
}

void CEntrada::ModificarIdioma(const QString& idi)
{
    auto general = Almacen<cGeneralSvr>();
    general.CambiarIdioma(idi);
}

void CEntrada::LeerIdioma()
{
    auto general = Almacen<cGeneralSvr>();
    m_idi = general.ObtenerIdioma();
}

void CEntrada::LeerFechaMinimaMaxima()
{
    auto datos = Almacen<cDatosGeneral>();
    Arreglo fechas;
    datos.DameFechaMinimaMaxima(fechas);
    FECMIN = fechas.value(0).toInt();
    FECMAX = fechas.value(1).toInt();
}

void CEntrada::setIDI(const QString& idi)
{
    m_idi = idi;
    ModificarIdioma(idi);
    OffsetIdioma = idi == QLatin1String("E") ? 10000 : 0;
    Fecha().fecidioma = idi;
}

CEntrada& Entrada()
{
    return Estado().de<CEntrada>();
}
