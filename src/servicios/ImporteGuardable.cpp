#include "servicios/ImporteGuardable.h"

#include "catalogo/Catalogo.h"
#include "servicios/TextoGuardable.h"

#include <cmath>

bool ImporteNoFinito(const QVariant& valor)
{
    if (!valor.isValid() || valor.isNull())
        return false;
    bool ok = false;
    const double d = valor.typeId() == QMetaType::QString ? valor.toString().trimmed().toDouble(&ok)
                                                          : valor.toDouble(&ok);
    // What does not read as a number at all is the store's type mismatch, not this door's.
    return ok && !std::isfinite(d);
}

Veredicto ComprobarImportes(const Arreglo& datos, std::span<const ColumnaImporte> columnas)
{
    for (const ColumnaImporte& c : columnas) {
        if (c.posicion >= datos.size() || !ImporteNoFinito(datos[c.posicion]))
            continue;
        Veredicto v;
        v.id = kIdImporteNoValido;
        v.mensaje = Texto(kIdImporteNoValido).arg(NombreDeCampo(c.idEtiqueta));
        v.botones = vb::OKOnly + vb::Information;
        v.control = QLatin1String(c.control);
        return v;
    }
    return {};
}
