#include "registros/partes/cConSeleccion.h"

#include "plataforma/Estado.h"
#include "servicios/Almacen.h"
#include "servicios/cContribSvr.h"
#include "servicios/cPresenSvr.h"

// ----- Contributor -----

bool cConSeleccion::ValidarTipoDniDomicilio() const
{
    return Almacen<cContribSvr>().ValidarTipoDniDomicilio(CSCO);
}

void cConSeleccion::IniciarSeleccion()
{
    cListaParte::ENTRADA = Navegacion::EntradaLista::Ninguna;
    MODO = Navegacion::ModoLista::Abrir;
    BUSQUEDA = QStringLiteral("N");
    if (CRITERIO.isEmpty()) {
        TABLASELECCION.reset();
        SELECCIONACTUAL = QStringLiteral("0");
        ORDEN = 1;
    }
    OlvidarSeleccion(true);
}

void cConSeleccion::AnotarBusqueda(const QString& texto)
{
    cListaParte::AnotarBusqueda(texto);
    CRITERIO = QStringLiteral("S");
}

void cConSeleccion::CambiarBusqueda()
{
    const bool aResultado = BUSQUEDA == QLatin1String("B");
    cListaParte::CambiarBusqueda();
    if (aResultado)
        CRITERIO = QStringLiteral("S");
}

void cConSeleccion::Todos()
{
    cListaParte::Todos();
    CRITERIO.clear();
}

int32_t cConSeleccion::CargarDatos(Arreglo2D& datos)
{
    NUMCONTRISEL = Almacen<cContribSvr>().dameResultadoBusqueda(CriteriosBusqueda(), datos, ORDEN);
    return NUMCONTRISEL;
}

void cConSeleccion::OlvidarSeleccion(bool cuenta)
{
    CSCO = 0;
    if (cuenta)
        NUMCONTRISEL = 0;
}

// ----- Presenter -----

void cPreSeleccion::IniciarSeleccion()
{
    ENTRADA = Navegacion::EntradaLista::Ninguna;
    MODO = Navegacion::ModoLista::Abrir;
    BUSQUEDA = QStringLiteral("N");
    TABLASELECCION.reset();
    SELECCIONACTUAL = QStringLiteral("0");
    ORDEN = 1;
    OlvidarSeleccion(true);
}

int32_t cPreSeleccion::CargarDatos(Arreglo2D& datos)
{
    NUMPRESENSEL = Almacen<cPresenSvr>().dameResultadoBusqueda(CriteriosBusqueda(), datos, ORDEN);
    return NUMPRESENSEL;
}

void cPreSeleccion::OlvidarSeleccion(bool cuenta)
{
    CSPR = 0;
    if (cuenta)
        NUMPRESENSEL = 0;
}

cConSeleccion& ConSeleccion()
{
    return Estado().de<cConSeleccion>();
}

cPreSeleccion& PreSeleccion()
{
    return Estado().de<cPreSeleccion>();
}
