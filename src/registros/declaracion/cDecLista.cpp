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

QList<FilaDeclaracion> cDecLista::CargarDeclaraciones()
{
    QList<FilaDeclaracion> filas =
        Almacen<cDeclaSvr>().dameResultadoBusqueda(Criterios(), ORDEN, TIPOORDEN, IdiomaPrograma());
    NUMDECLASEL = static_cast<int32_t>(filas.size());
    return filas;
}

cDecLista& DecLista()
{
    return Estado().de<cDecLista>();
}
