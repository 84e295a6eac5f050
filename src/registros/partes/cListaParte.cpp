#include "registros/partes/cListaParte.h"

#include "registros/partes/CriteriosLista.h"

void cListaParte::IniciarLista()
{
    if (ENTRADA == QLatin1String("A") || ENTRADA == QLatin1String("E")) {
        ORDEN = 1;
        MODO = ENTRADA == QLatin1String("A") ? QStringLiteral("C") : QStringLiteral("E");
        BUSQUEDA = QStringLiteral("N");
        TABLASELECCION.reset();
        SELECCIONACTUAL = QStringLiteral("0");
        OlvidarSeleccion(true);
        return;
    }
    // Coming back keeps order, criteria and selection; the delete mode opens nothing, so a
    // list that comes back is always in open mode.
    MODO = QStringLiteral("C");
    BUSQUEDA = QStringLiteral("N");
}

bool cListaParte::HayCriterios() const
{
    return CriteriosLista::Hay(TABLASELECCION);
}

CriteriosParte cListaParte::CriteriosBusqueda() const
{
    return CriteriosLista::Criterios(TABLASELECCION);
}

void cListaParte::AnotarBusqueda(const QString& texto)
{
    const int columna = CriteriosLista::ColumnaDeBusqueda(SELECCIONACTUAL);
    if (columna != 0) {
        AnotarCriterio(TABLASELECCION, SELECCIONACTUAL, texto);
        ORDEN = static_cast<uint8_t>(columna);
    }
    SELECCIONACTUAL = QStringLiteral("0");
}

void cListaParte::CambiarBusqueda()
{
    if (BUSQUEDA == QLatin1String("N")) {
        BUSQUEDA = QStringLiteral("B");
        TABLASELECCION.reset();
        SELECCIONACTUAL = QStringLiteral("0");
        ENTRADA.clear();
        OlvidarSeleccion(true);
    } else {
        BUSQUEDA = QStringLiteral("N");
        SELECCIONACTUAL = QStringLiteral("0");
    }
}

void cListaParte::Todos()
{
    BUSQUEDA = QStringLiteral("N");
    TABLASELECCION.reset();
    SELECCIONACTUAL = QStringLiteral("0");
    ORDEN = 1;
    OlvidarSeleccion(false);
    ENTRADA.clear();
}

bool cListaParte::OrdenarPor(int columna)
{
    if (columna != 1 && columna != 2)
        return false;
    OlvidarSeleccion(false);
    ORDEN = static_cast<uint8_t>(columna);
    ENTRADA.clear();
    return true;
}

bool cListaParte::ElegirColumnaBusqueda(int columna)
{
    if (columna != 1 && columna != 2)
        return false;
    SELECCIONACTUAL = QString::number(columna);
    return true;
}
