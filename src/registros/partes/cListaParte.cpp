#include "registros/partes/cListaParte.h"

#include "registros/partes/CriteriosLista.h"

void cListaParte::IniciarLista()
{
    using Navegacion::EntradaLista;
    using Navegacion::ModoLista;
    if (ENTRADA == EntradaLista::Abrir || ENTRADA == EntradaLista::Eliminar) {
        ORDEN = 1;
        MODO = ENTRADA == EntradaLista::Abrir ? ModoLista::Abrir : ModoLista::Eliminar;
        BUSQUEDA = QStringLiteral("N");
        TABLASELECCION.reset();
        SELECCIONACTUAL = QStringLiteral("0");
        OlvidarSeleccion(true);
        return;
    }
    // Coming back keeps order, criteria and selection; the delete mode opens nothing, so a
    // list that comes back is always in open mode.
    MODO = ModoLista::Abrir;
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
        ENTRADA = Navegacion::EntradaLista::Ninguna;
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
    ENTRADA = Navegacion::EntradaLista::Ninguna;
}

bool cListaParte::OrdenarPor(int columna)
{
    if (columna != 1 && columna != 2)
        return false;
    OlvidarSeleccion(false);
    ORDEN = static_cast<uint8_t>(columna);
    ENTRADA = Navegacion::EntradaLista::Ninguna;
    return true;
}

bool cListaParte::ElegirColumnaBusqueda(int columna)
{
    if (columna != 1 && columna != 2)
        return false;
    SELECCIONACTUAL = QString::number(columna);
    return true;
}
