#include "registros/declaracion/cDecLista.h"

#include "plataforma/Estado.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "servicios/Almacen.h"
#include "servicios/cDeclaSvr.h"

void cDecLista::IniciarLista()
{
    if (ENTRADA == QLatin1String("A") || ENTRADA == QLatin1String("E")) {
        MODO = ENTRADA == QLatin1String("A") ? QStringLiteral("C") : QStringLiteral("E");
        Reiniciar();
        return;
    }
    MODO = QStringLiteral("C");
    BUSQUEDA = QStringLiteral("N");
}

int32_t cDecLista::CargarDeclaraciones(Arreglo2D& datos)
{
    NUMDECLASEL = Almacen<cDeclaSvr>().dameResultadoBusqueda(datos, Criterios(), ORDEN,
                                                             TIPOORDEN, OffsetIdioma());
    return NUMDECLASEL;
}

cDecLista& DecLista()
{
    return Estado().de<cDecLista>();
}
