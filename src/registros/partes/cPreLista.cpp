#include "registros/partes/cPreLista.h"

#include "plataforma/Estado.h"
#include "servicios/Almacen.h"
#include "servicios/cPresenSvr.h"

QList<FilaPresentador> cPreLista::CargarPresentadores()
{
    QList<FilaPresentador> filas =
        Almacen<cPresenSvr>().dameResultadoBusqueda(CriteriosBusqueda(), Orden());
    NUMPRESENSEL = int32_t(filas.size());
    return filas;
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
