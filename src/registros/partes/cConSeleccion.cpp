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
    if (CRITERIO == Navegacion::Criterio::Olvidado) {
        TABLASELECCION.reset();
        SELECCIONACTUAL = QStringLiteral("0");
        ORDEN = 1;
    }
    OlvidarSeleccion(true);
}

void cConSeleccion::AnotarBusqueda(const QString& texto)
{
    cListaParte::AnotarBusqueda(texto);
    CRITERIO = Navegacion::Criterio::Conservado;
}

void cConSeleccion::CambiarBusqueda()
{
    const bool aResultado = BUSQUEDA == QLatin1String("B");
    cListaParte::CambiarBusqueda();
    if (aResultado)
        CRITERIO = Navegacion::Criterio::Conservado;
}

void cConSeleccion::Todos()
{
    cListaParte::Todos();
    CRITERIO = Navegacion::Criterio::Olvidado;
}

QList<FilaContribuyente> cConSeleccion::CargarContribuyentes()
{
    QList<FilaContribuyente> filas =
        Almacen<cContribSvr>().dameResultadoBusqueda(CriteriosBusqueda(), Orden());
    NUMCONTRISEL = int32_t(filas.size());
    return filas;
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

QList<FilaPresentador> cPreSeleccion::CargarPresentadores()
{
    QList<FilaPresentador> filas =
        Almacen<cPresenSvr>().dameResultadoBusqueda(CriteriosBusqueda(), Orden());
    NUMPRESENSEL = int32_t(filas.size());
    return filas;
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
