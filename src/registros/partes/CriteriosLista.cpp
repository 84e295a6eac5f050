#include "registros/partes/CriteriosLista.h"

#include "valores/Val.h"

namespace CriteriosLista {

CriteriosParte Criterios(const std::optional<TablaCriterios>& tabla)
{
    CriteriosParte criterios;
    if (!tabla)
        return criterios;
    for (const cCriterio& c : *tabla) {
        switch (ColumnaDeBusqueda(c.CAMPOSELECCION)) {
        case 1:
            criterios.NOMBRE = c.VALORSELECCION;
            break;
        case 2:
            criterios.DNI = c.VALORSELECCION;
            break;
        default:
            break;
        }
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

namespace {
QString TextoCriterio(const cCriterio& c, const QString& nombre, const QString& dni)
{
    const int campo = int(Val(c.CAMPOSELECCION));
    if (c.VALORSELECCION.isEmpty() || campo == 0)
        return QString();
    QString texto;
    if (campo == 1)
        texto = nombre;
    else if (campo == 2)
        texto = dni;
    else
        return QString();
    return texto + QStringLiteral(" '") + c.VALORSELECCION + QStringLiteral("' ");
}
}  // namespace

QString Texto(const std::optional<TablaCriterios>& tabla, const QString& nombre,
              const QString& dni)
{
    QString texto;
    const int n = tabla ? int(tabla->size()) : 0;
    for (int i = 0; i < n; ++i) {
        const QString parte = TextoCriterio(tabla->at(i), nombre, dni);
        if (i > 0 && !parte.trimmed().isEmpty() && !texto.trimmed().isEmpty())
            texto += QStringLiteral(", ");
        texto += parte;
    }
    return texto;
}

}  // namespace CriteriosLista
