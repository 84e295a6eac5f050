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
    const LimitesFechas fechas = Almacen<cDatosGeneral>().DameFechaMinimaMaxima();
    // The record keeps each limit as the number yyyymmdd, as the dates of the returns are.
    const auto numero = [](const QDate& d) { return d.year() * 10000 + d.month() * 100 + d.day(); };
    FECMIN = numero(fechas.minima);
    FECMAX = numero(fechas.maxima);
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
