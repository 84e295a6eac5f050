#include "registros/nucleo/CEntrada.h"

#include "plataforma/General.h"
#include "valores/cFecha.h"
#include "servicios/cDatosGeneral.h"
#include "servicios/cGeneralSvr.h"

void CEntrada::InicializarContadores()
{
    cDatosGeneral datos;
    datos.mdbmod = mdbmod;
    NUMDECLA = datos.NumeroDeclaraciones();
    NUMCONTRI = datos.NumeroContribuyentes();
    NUMPRESEN = datos.NumeroPresentadores();
}

void CEntrada::ModificarIdioma(const QString& idi)
{
    cGeneralSvr general;
    general.mdbmod = mdbmod;
    general.CambiarIdioma(idi);
}

void CEntrada::LeerIdioma()
{
    cGeneralSvr general;
    general.mdbmod = mdbmod;
    m_idi = general.ObtenerIdioma();
}

void CEntrada::LeerFechaMinimaMaxima()
{
    cDatosGeneral datos;
    datos.mdblec = mdblec;
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
    static CEntrada entrada;
    return entrada;
}
