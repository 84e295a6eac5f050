#include "registros/partes/CriteriosLista.h"

#include "valores/Val.h"

namespace CriteriosLista {

Arreglo Arreglo3(const std::optional<TablaCriterios>& tabla)
{
    Arreglo criterios{0, 0, 0};
    if (!tabla)
        return criterios;
    for (const cCriterio& c : *tabla) {
        const int columna = ColumnaDeBusqueda(c.CAMPOSELECCION);
        if (columna != 0)
            criterios[columna] = c.VALORSELECCION;
    }
    return criterios;
}

bool Hay(const std::optional<TablaCriterios>& tabla)
{
    return tabla && !tabla->isEmpty();
}

int ColumnaDeBusqueda(const QString& seleccion)
{
    const double columna = Val(seleccion);
    return columna == 1 || columna == 2 ? static_cast<int>(columna) : 0;
}

}  // namespace CriteriosLista
