#include "servicios/ImporteGuardable.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "servicios/TextoGuardable.h"

#include <cmath>

Veredicto ComprobarImporte(double valor, const ColumnaImporte& columna)
{
    if (std::isfinite(valor))
        return {};
    Veredicto v;
    v.id = kIdCasillaImporteNoValido;
    v.mensaje = Texto(kIdCasillaImporteNoValido).arg(NombreDeCampo(columna.idEtiqueta));
    v.botones = vb::OKOnly + vb::Information;
    v.control = QLatin1String(columna.control);
    return v;
}
