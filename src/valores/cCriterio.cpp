#include "valores/cCriterio.h"

void AnotarCriterio(TablaCriterios& tabla, const QString& seleccionActual, const QString& texto)
{
    for (cCriterio& criterio : tabla) {
        if (criterio.CAMPOSELECCION == seleccionActual) {
            criterio.VALORSELECCION = texto;
            return;
        }
    }
    tabla.append(cCriterio{seleccionActual, texto});
}

void AnotarCriterio(std::optional<TablaCriterios>& tabla, const QString& seleccionActual,
                    const QString& texto)
{
    if (!tabla)
        tabla.emplace();
    AnotarCriterio(*tabla, seleccionActual, texto);
}
