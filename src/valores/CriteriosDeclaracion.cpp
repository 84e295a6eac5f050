#include "valores/CriteriosDeclaracion.h"

#include "plataforma/Idioma.h"
#include "valores/cFecha.h"

namespace CriteriosDeclaracion {

CondicionesDeclaracion Condiciones(const std::optional<TablaCriterios>& tabla)
{
    CondicionesDeclaracion condiciones;
    if (!tabla)
        return condiciones;
    for (const cCriterio& c : *tabla) {
        switch (c.CAMPOSELECCION.toInt()) {
        case kCodigo:
            condiciones.CSDE = c.VALORSELECCION;
            break;
        case kReferencia:
            condiciones.REFERENCIA = c.VALORSELECCION;
            break;
        case kFecha:
            condiciones.FECHAD = cFecha::StringToLong(c.VALORSELECCION, IdiomaPrograma());
            break;
        case kTotal:
            condiciones.TOTAL = c.VALORSELECCION;
            break;
        case kOperacion:
            condiciones.OPERACION = c.VALORSELECCION;
            break;
        default:
            break;
        }
    }
    return condiciones;
}

bool Hay(const std::optional<TablaCriterios>& tabla)
{
    return tabla && !tabla->isEmpty();
}

}  // namespace CriteriosDeclaracion
