#include "registros/partes/cConLista.h"

#include "plataforma/Estado.h"
#include "servicios/Almacen.h"
#include "servicios/cContribSvr.h"

QList<FilaContribuyente> cConLista::CargarContribuyentes()
{
    QList<FilaContribuyente> filas =
        Almacen<cContribSvr>().dameResultadoBusqueda(CriteriosBusqueda(), Orden());
    NUMCONTRISEL = int32_t(filas.size());
    return filas;
}

void cConLista::Seleccionar(int32_t codigo, int32_t numsp, int32_t numtr)
{
    CSCO = codigo;
    NUMSP = numsp;
    NUMTR = numtr;
}

void cConLista::OlvidarSeleccion(bool cuenta)
{
    CSCO = 0;
    if (cuenta)
        NUMCONTRISEL = 0;
    NUMSP = 0;
    NUMTR = 0;
}

cConLista& ConLista()
{
    return Estado().de<cConLista>();
}
