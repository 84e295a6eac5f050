#include "registros/partes/cConDeclaraciones.h"

#include "plataforma/Estado.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "servicios/Almacen.h"
#include "servicios/cContribSvr.h"
#include "servicios/cDeclaSvr.h"
#include "servicios/cPresenSvr.h"

void cConDeclaraciones::IniciarLista(int32_t csco)
{
    BUSQUEDA = QStringLiteral("N");
    if (ENTRADA.entrada() != Navegacion::EntradaLista::Abrir)
        return;
    Reiniciar();
    CSCO = csco;
}

void cPreDeclaraciones::IniciarLista(int32_t cspr)
{
    BUSQUEDA = QStringLiteral("N");
    if (ENTRADA.entrada() != Navegacion::EntradaLista::Abrir)
        return;
    Reiniciar();
    CSPR = cspr;
}

cConDeclaraciones::Contadores cConDeclaraciones::ObtenerContadores() const
{
    const DeclaracionesContribuyente n = Almacen<cContribSvr>().ObtenerNumspNumtr(CSCO);
    return {QString::number(n.comoSujeto), QString::number(n.comoTransmitente)};
}

QList<FilaDeclaracion> cConDeclaraciones::CargarDeclaraciones()
{
    QList<FilaDeclaracion> filas = Almacen<cDeclaSvr>().dameDeclaracionesContribuyente(
        Criterios(), CSCO, ORDEN, TIPOORDEN, IdiomaPrograma());
    NUMDECLASEL = static_cast<int32_t>(filas.size());
    return filas;
}

int32_t cPreDeclaraciones::ObtenerContador() const
{
    return Almacen<cPresenSvr>().NumDeclaPresentador(CSPR);
}

QList<FilaDeclaracion> cPreDeclaraciones::CargarDeclaraciones()
{
    QList<FilaDeclaracion> filas = Almacen<cDeclaSvr>().dameDeclaracionesPresentador(
        Criterios(), CSPR, ORDEN, TIPOORDEN, IdiomaPrograma());
    NUMDECLASEL = static_cast<int32_t>(filas.size());
    return filas;
}

cConDeclaraciones& ConDeclaraciones()
{
    return Estado().de<cConDeclaraciones>();
}

cPreDeclaraciones& PreDeclaraciones()
{
    return Estado().de<cPreDeclaraciones>();
}
