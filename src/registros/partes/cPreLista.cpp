#include "registros/partes/cPreLista.h"

#include "plataforma/Estado.h"
#include "servicios/Almacen.h"
#include "servicios/cPresenSvr.h"

int32_t cPreLista::CargarPresentadores(Arreglo2D& datos)
{
    NUMPRESENSEL = Almacen<cPresenSvr>().dameResultadoBusqueda(CriteriosBusqueda(), datos, ORDEN);
    return NUMPRESENSEL;
}

void cPreLista::Seleccionar(int32_t codigo, int32_t numDeclaraciones)
{
    CSPR = codigo;
    NUMDECLARACIONES = numDeclaraciones;
}

void cPreLista::OlvidarSeleccion(bool cuenta)
{
    CSPR = 0;
    if (cuenta)
        NUMPRESENSEL = 0;
    NUMDECLARACIONES = 0;
}

cPreLista& PreLista()
{
    return Estado().de<cPreLista>();
}
