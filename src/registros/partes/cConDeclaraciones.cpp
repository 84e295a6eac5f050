#include "registros/partes/cConDeclaraciones.h"

#include "plataforma/Estado.h"
#include "registros/partes/cConLista.h"
#include "registros/partes/cPreLista.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "servicios/Almacen.h"
#include "servicios/cContribSvr.h"
#include "servicios/cDeclaSvr.h"
#include "servicios/cPresenSvr.h"

void cConDeclaraciones::IniciarLista()
{
    BUSQUEDA = QStringLiteral("N");
    if (ENTRADA != QLatin1String("A"))
        return;
    Reiniciar();
    CSCO = ConLista().CSCO;
}

void cPreDeclaraciones::IniciarLista()
{
    BUSQUEDA = QStringLiteral("N");
    if (ENTRADA != QLatin1String("A"))
        return;
    Reiniciar();
    CSPR = PreLista().CSPR;
}

Arreglo cConDeclaraciones::ObtenerContadores() const
{
    return Almacen<cContribSvr>().ObtenerNumspNumtr(CSCO);
}

int32_t cConDeclaraciones::CargarDeclaraciones(Arreglo2D& datos)
{
    NUMDECLASEL = Almacen<cDeclaSvr>().dameDeclaracionesContribuyente(
        Criterios(), datos, CSCO, ORDEN, TIPOORDEN,
        OffsetIdioma());
    return NUMDECLASEL;
}

int32_t cPreDeclaraciones::ObtenerContador() const
{
    return Almacen<cPresenSvr>().NumDeclaPresentador(CSPR);
}

int32_t cPreDeclaraciones::CargarDeclaraciones(Arreglo2D& datos)
{
    NUMDECLASEL = Almacen<cDeclaSvr>().dameDeclaracionesPresentador(
        Criterios(), datos, CSPR, ORDEN, TIPOORDEN,
        OffsetIdioma());
    return NUMDECLASEL;
}

cConDeclaraciones& ConDeclaraciones()
{
    return Estado().de<cConDeclaraciones>();
}

cPreDeclaraciones& PreDeclaraciones()
{
    return Estado().de<cPreDeclaraciones>();
}
