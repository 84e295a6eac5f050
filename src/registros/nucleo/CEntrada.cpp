#include "registros/nucleo/CEntrada.h"

#include "plataforma/Estado.h"

#include "plataforma/General.h"
#include "plataforma/Idioma.h"
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

void CEntrada::ModificarIdioma(Idioma idioma)
{
    auto general = Almacen<cGeneralSvr>();
    general.CambiarIdioma(idioma.letra());
}

void CEntrada::LeerIdioma()
{
    auto general = Almacen<cGeneralSvr>();
    EstablecerIdiomaPrograma(Idioma::DeLetra(general.ObtenerIdioma()));
}

void CEntrada::LeerFechaMinimaMaxima()
{
    auto datos = Almacen<cDatosGeneral>();
    Arreglo fechas;
    datos.DameFechaMinimaMaxima(fechas);
    FECMIN = fechas.value(0).toInt();
    FECMAX = fechas.value(1).toInt();
}

void CEntrada::CambiarIdioma(Idioma idioma)
{
    ModificarIdioma(idioma);
    EstablecerIdiomaPrograma(idioma);
}

CEntrada& Entrada()
{
    return Estado().de<CEntrada>();
}
