#include "registros/partes/cConLista.h"

#include "plataforma/Estado.h"

#include "plataforma/General.h"
#include "registros/partes/CriteriosLista.h"
#include "servicios/Almacen.h"
#include "servicios/cContribSvr.h"

void cConLista::IniciarLista()
{
    if (ENTRADA == QLatin1String("A") || ENTRADA == QLatin1String("E")) {
        ORDEN = 1;
        MODO = ENTRADA == QLatin1String("A") ? QStringLiteral("C") : QStringLiteral("E");
        BUSQUEDA = QStringLiteral("N");
        CSCO = 0;
        TABLASELECCION.reset();
        SELECCIONACTUAL = QStringLiteral("0");
        NUMCONTRISEL = 0;
        NUMSP = 0;
        NUMTR = 0;
        return;
    }
    // Coming back keeps order, criteria and selection; the delete mode opens nothing, so a
    // list that comes back is always in open mode.
    MODO = QStringLiteral("C");
    BUSQUEDA = QStringLiteral("N");
}

bool cConLista::HayCriterios() const
{
    return CriteriosLista::Hay(TABLASELECCION);
}

Arreglo cConLista::CriteriosBusqueda() const
{
    return CriteriosLista::Arreglo3(TABLASELECCION);
}

int32_t cConLista::CargarContribuyentes(Arreglo2D& datos)
{
    auto svr = Almacen<cContribSvr>();
    NUMCONTRISEL = svr.dameResultadoBusqueda(CriteriosBusqueda(), datos, ORDEN);
    return NUMCONTRISEL;
}

void cConLista::AnotarBusqueda(const QString& texto)
{
    const int columna = CriteriosLista::ColumnaDeBusqueda(SELECCIONACTUAL);
    if (columna != 0) {
        AnotarCriterio(TABLASELECCION, SELECCIONACTUAL, texto);
        ORDEN = static_cast<uint8_t>(columna);
    }
    SELECCIONACTUAL = QStringLiteral("0");
}

void cConLista::CambiarBusqueda()
{
    if (BUSQUEDA == QLatin1String("N")) {
        BUSQUEDA = QStringLiteral("B");
        TABLASELECCION.reset();
        SELECCIONACTUAL = QStringLiteral("0");
        ENTRADA.clear();
        CSCO = 0;
        NUMCONTRISEL = 0;
        NUMSP = 0;
        NUMTR = 0;
    } else {
        BUSQUEDA = QStringLiteral("N");
        SELECCIONACTUAL = QStringLiteral("0");
    }
}

void cConLista::Todos()
{
    BUSQUEDA = QStringLiteral("N");
    TABLASELECCION.reset();
    SELECCIONACTUAL = QStringLiteral("0");
    ORDEN = 1;
    CSCO = 0;
    NUMSP = 0;
    NUMTR = 0;
    ENTRADA.clear();
}

bool cConLista::OrdenarPor(int columna)
{
    if (columna != 1 && columna != 2)
        return false;
    CSCO = 0;
    NUMSP = 0;
    NUMTR = 0;
    ORDEN = static_cast<uint8_t>(columna);
    ENTRADA.clear();
    return true;
}

bool cConLista::ElegirColumnaBusqueda(int columna)
{
    if (columna != 1 && columna != 2)
        return false;
    SELECCIONACTUAL = QString::number(columna);
    return true;
}

void cConLista::Seleccionar(int32_t codigo, int32_t numsp, int32_t numtr)
{
    CSCO = codigo;
    NUMSP = numsp;
    NUMTR = numtr;
}

cConLista& ConLista()
{
    return Estado().de<cConLista>();
}
