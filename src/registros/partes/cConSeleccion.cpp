#include "registros/partes/cConSeleccion.h"

#include "plataforma/Estado.h"
#include "registros/partes/CriteriosLista.h"
#include "servicios/Almacen.h"
#include "servicios/cContribSvr.h"
#include "servicios/cPresenSvr.h"

namespace {

// What both selection lists do alike with their criteria, order and states.
template <typename Sel>
void anotar(Sel& s, const QString& texto)
{
    const int columna = CriteriosLista::ColumnaDeBusqueda(s.SELECCIONACTUAL);
    if (columna != 0) {
        AnotarCriterio(s.TABLASELECCION, s.SELECCIONACTUAL, texto);
        s.ORDEN = static_cast<uint8_t>(columna);
    }
    s.SELECCIONACTUAL = QStringLiteral("0");
}

template <typename Sel>
bool ordenar(Sel& s, int columna)
{
    if (columna != 1 && columna != 2)
        return false;
    s.ORDEN = static_cast<uint8_t>(columna);
    return true;
}

template <typename Sel>
bool elegir(Sel& s, int columna)
{
    if (columna != 1 && columna != 2)
        return false;
    s.SELECCIONACTUAL = QString::number(columna);
    return true;
}

}  // namespace

// ----- Contributor -----

bool cConSeleccion::ValidarTipoDniDomicilio() const
{
    return Almacen<cContribSvr>().ValidarTipoDniDomicilio(CSCO);
}

void cConSeleccion::IniciarLista()
{
    BUSQUEDA = QStringLiteral("N");
    if (CRITERIO.isEmpty()) {
        TABLASELECCION.reset();
        SELECCIONACTUAL = QStringLiteral("0");
        ORDEN = 1;
    }
    NUMCONTRISEL = 0;
    CSCO = 0;
}

bool cConSeleccion::HayCriterios() const
{
    return CriteriosLista::Hay(TABLASELECCION);
}

int32_t cConSeleccion::CargarContribuyentes(Arreglo2D& datos)
{
    NUMCONTRISEL = Almacen<cContribSvr>().dameResultadoBusqueda(
        CriteriosLista::Arreglo3(TABLASELECCION), datos, ORDEN);
    return NUMCONTRISEL;
}

void cConSeleccion::AnotarBusqueda(const QString& texto)
{
    anotar(*this, texto);
    CRITERIO = QStringLiteral("S");
}

void cConSeleccion::CambiarBusqueda()
{
    if (BUSQUEDA == QLatin1String("N")) {
        BUSQUEDA = QStringLiteral("B");
        TABLASELECCION.reset();
        SELECCIONACTUAL = QStringLiteral("0");
        CSCO = 0;
        NUMCONTRISEL = 0;
        return;
    }
    BUSQUEDA = QStringLiteral("N");
    SELECCIONACTUAL = QStringLiteral("0");
    CRITERIO = QStringLiteral("S");
}

void cConSeleccion::Todos()
{
    BUSQUEDA = QStringLiteral("N");
    TABLASELECCION.reset();
    SELECCIONACTUAL = QStringLiteral("0");
    ORDEN = 1;
    CSCO = 0;
    CRITERIO.clear();
}

bool cConSeleccion::OrdenarPor(int columna)
{
    if (!ordenar(*this, columna))
        return false;
    CSCO = 0;
    return true;
}

bool cConSeleccion::ElegirColumnaBusqueda(int columna)
{
    return elegir(*this, columna);
}

// ----- Presenter -----

void cPreSeleccion::IniciarLista()
{
    BUSQUEDA = QStringLiteral("N");
    TABLASELECCION.reset();
    SELECCIONACTUAL = QStringLiteral("0");
    ORDEN = 1;
    NUMPRESENSEL = 0;
    CSPR = 0;
}

bool cPreSeleccion::HayCriterios() const
{
    return CriteriosLista::Hay(TABLASELECCION);
}

int32_t cPreSeleccion::CargarPresentadores(Arreglo2D& datos)
{
    NUMPRESENSEL = Almacen<cPresenSvr>().dameResultadoBusqueda(
        CriteriosLista::Arreglo3(TABLASELECCION), datos, ORDEN);
    return NUMPRESENSEL;
}

void cPreSeleccion::AnotarBusqueda(const QString& texto)
{
    anotar(*this, texto);
}

void cPreSeleccion::CambiarBusqueda()
{
    if (BUSQUEDA == QLatin1String("N")) {
        BUSQUEDA = QStringLiteral("B");
        TABLASELECCION.reset();
        SELECCIONACTUAL = QStringLiteral("0");
        CSPR = 0;
        NUMPRESENSEL = 0;
        return;
    }
    BUSQUEDA = QStringLiteral("N");
    SELECCIONACTUAL = QStringLiteral("0");
}

void cPreSeleccion::Todos()
{
    BUSQUEDA = QStringLiteral("N");
    TABLASELECCION.reset();
    SELECCIONACTUAL = QStringLiteral("0");
    ORDEN = 1;
    CSPR = 0;
}

bool cPreSeleccion::OrdenarPor(int columna)
{
    if (!ordenar(*this, columna))
        return false;
    CSPR = 0;
    return true;
}

bool cPreSeleccion::ElegirColumnaBusqueda(int columna)
{
    return elegir(*this, columna);
}

cConSeleccion& ConSeleccion()
{
    return Estado().de<cConSeleccion>();
}

cPreSeleccion& PreSeleccion()
{
    return Estado().de<cPreSeleccion>();
}
