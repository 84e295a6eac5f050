#include "valores/CriteriosDeclaracion.h"

#include "plataforma/Idioma.h"
#include "valores/cFecha.h"

namespace CriteriosDeclaracion {

namespace {
enum Posicion : int { kPosCodigo = 0, kPosReferencia, kPosFecha, kPosTotal, kPosOperacion, kPosiciones };
}

QVariantList Arreglo5(const std::optional<TablaCriterios>& tabla)
{
    QVariantList criterios(kPosiciones);
    criterios[kPosCodigo] = 0;
    criterios[kPosReferencia] = QString();
    criterios[kPosFecha] = 0;
    criterios[kPosTotal] = 0;
    criterios[kPosOperacion] = QString();
    if (!tabla)
        return criterios;
    for (const cCriterio& c : *tabla) {
        const int campo = c.CAMPOSELECCION.toInt();
        if (campo < kCodigo || campo > kOperacion)
            continue;
        if (campo == kFecha)
            criterios[campo - 1] = cFecha::StringToLong(c.VALORSELECCION, IdiomaPrograma());
        else
            criterios[campo - 1] = c.VALORSELECCION;
    }
    return criterios;
}

bool Hay(const std::optional<TablaCriterios>& tabla)
{
    return tabla && !tabla->isEmpty();
}

}  // namespace CriteriosDeclaracion
