#include "registros/partes/cPreLista.h"

#include "plataforma/Estado.h"

#include "plataforma/General.h"
#include "registros/partes/CriteriosLista.h"
#include "servicios/Almacen.h"
#include "servicios/cPresenSvr.h"

void cPreLista::IniciarLista()
{
    if (ENTRADA == QLatin1String("A") || ENTRADA == QLatin1String("E")) {
        ORDEN = 1;
        MODO = ENTRADA == QLatin1String("A") ? QStringLiteral("C") : QStringLiteral("E");
        BUSQUEDA = QStringLiteral("N");
        CSPR = 0;
        TABLASELECCION.reset();
        SELECCIONACTUAL = QStringLiteral("0");
        NUMPRESENSEL = 0;
        NUMDECLARACIONES = 0;
        return;
    }
    MODO = QStringLiteral("C");
    BUSQUEDA = QStringLiteral("N");
}

bool cPreLista::HayCriterios() const
{
    return CriteriosLista::Hay(TABLASELECCION);
}

Arreglo cPreLista::CriteriosBusqueda() const
{
    return CriteriosLista::Arreglo3(TABLASELECCION);
}

int32_t cPreLista::CargarPresentadores(Arreglo2D& datos)
{
    auto svr = Almacen<cPresenSvr>();
    NUMPRESENSEL = svr.dameResultadoBusqueda(CriteriosBusqueda(), datos, ORDEN);
    return NUMPRESENSEL;
}

void cPreLista::AnotarBusqueda(const QString& texto)
{
    const int columna = CriteriosLista::ColumnaDeBusqueda(SELECCIONACTUAL);
    if (columna != 0) {
        AnotarCriterio(TABLASELECCION, SELECCIONACTUAL, texto);
        ORDEN = static_cast<uint8_t>(columna);
    }
    SELECCIONACTUAL = QStringLiteral("0");
}

void cPreLista::CambiarBusqueda()
{
    if (BUSQUEDA == QLatin1String("N")) {
        BUSQUEDA = QStringLiteral("B");
        TABLASELECCION.reset();
        SELECCIONACTUAL = QStringLiteral("0");
        ENTRADA.clear();
        CSPR = 0;
        NUMPRESENSEL = 0;
        NUMDECLARACIONES = 0;
    } else {
        BUSQUEDA = QStringLiteral("N");
        SELECCIONACTUAL = QStringLiteral("0");
    }
}

void cPreLista::Todos()
{
    BUSQUEDA = QStringLiteral("N");
    TABLASELECCION.reset();
    SELECCIONACTUAL = QStringLiteral("0");
    ORDEN = 1;
    CSPR = 0;
    NUMDECLARACIONES = 0;
    ENTRADA.clear();
}

bool cPreLista::OrdenarPor(int columna)
{
    if (columna != 1 && columna != 2)
        return false;
    CSPR = 0;
    NUMDECLARACIONES = 0;
    ORDEN = static_cast<uint8_t>(columna);
    ENTRADA.clear();
    return true;
}

bool cPreLista::ElegirColumnaBusqueda(int columna)
{
    if (columna != 1 && columna != 2)
        return false;
    SELECCIONACTUAL = QString::number(columna);
    return true;
}

void cPreLista::Seleccionar(int32_t codigo, int32_t numDeclaraciones)
{
    CSPR = codigo;
    NUMDECLARACIONES = numDeclaraciones;
}

cPreLista& PreLista()
{
    return Estado().de<cPreLista>();
}
