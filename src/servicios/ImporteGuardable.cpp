#include "servicios/ImporteGuardable.h"

#include "catalogo/Catalogo.h"
#include "servicios/TextoGuardable.h"

#include <cmath>

Veredicto ComprobarImporte(double valor, const ColumnaImporte& columna)
{
    if (std::isfinite(valor))
        return {};
    Veredicto v;
    v.id = kIdImporteNoValido;
    v.mensaje = Texto(kIdImporteNoValido).arg(NombreDeCampo(columna.idEtiqueta));
    v.botones = vb::OKOnly + vb::Information;
    v.control = QLatin1String(columna.control);
    return v;
}
