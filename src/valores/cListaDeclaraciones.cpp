#include "valores/cListaDeclaraciones.h"

#include "valores/CriteriosDeclaracion.h"

namespace {
// The grid's columns from the description on neither order nor search.
constexpr int kColumnaDescripcion = 5;
}

QString TipoOrdenInicial(uint8_t orden)
{
    using namespace CriteriosDeclaracion;
    return orden == kCodigo || orden == kFecha || orden == kTotal ? QStringLiteral("DESC")
                                                                  : QStringLiteral("ASC");
}

bool cListaDeclaraciones::HayCriterios() const
{
    return CriteriosDeclaracion::Hay(TABLASELECCION);
}

CondicionesDeclaracion cListaDeclaraciones::Criterios() const
{
    return CriteriosDeclaracion::Condiciones(TABLASELECCION);
}

void cListaDeclaraciones::Reiniciar()
{
    ORDEN = 1;
    BUSQUEDA = QStringLiteral("N");
    CSDE = 0;
    NUMDECLASEL = 0;
    TIPOORDEN = QStringLiteral("DESC");
    SELECCIONACTUAL = QStringLiteral("0");
    TABLASELECCION.reset();
}

void cListaDeclaraciones::AnotarBusqueda(const QString& texto)
{
    const int campo = SELECCIONACTUAL.toInt();
    if (campo >= 1 && campo <= kColumnaDescripcion) {
        AnotarCriterio(TABLASELECCION, SELECCIONACTUAL, texto);
        ORDEN = static_cast<uint8_t>(campo);
    }
    SELECCIONACTUAL = QStringLiteral("0");
}

void cListaDeclaraciones::CambiarBusqueda()
{
    if (BUSQUEDA == QLatin1String("N")) {
        BUSQUEDA = QStringLiteral("B");
        SELECCIONACTUAL = QStringLiteral("1");
        TABLASELECCION.reset();
        CSDE = 0;
        NUMDECLASEL = 0;
        ENTRADA = Navegacion::EntradaLista::Ninguna;
        return;
    }
    TIPOORDEN = QStringLiteral("ASC");
    BUSQUEDA = QStringLiteral("N");
    SELECCIONACTUAL = QStringLiteral("0");
}

void cListaDeclaraciones::Todos()
{
    BUSQUEDA = QStringLiteral("N");
    SELECCIONACTUAL = QStringLiteral("0");
    TABLASELECCION.reset();
    ORDEN = 1;
    CSDE = 0;
    TIPOORDEN = QStringLiteral("DESC");
    ENTRADA = Navegacion::EntradaLista::Ninguna;
}

bool cListaDeclaraciones::OrdenarPor(int columna)
{
    if (columna < 0 || columna >= kColumnaDescripcion)
        return false;
    ORDEN = static_cast<uint8_t>(columna + 1);
    ENTRADA = Navegacion::EntradaLista::Ninguna;
    CSDE = 0;
    TIPOORDEN = TipoOrdenInicial(ORDEN);
    return true;
}

bool cListaDeclaraciones::ElegirColumnaBusqueda(int columna)
{
    if (columna < 0 || columna >= kColumnaDescripcion)
        return false;
    SELECCIONACTUAL = QString::number(columna + 1);
    return true;
}
