#include "registros/imprimir/FechaPresentacion.h"

#include "catalogo/Catalogo.h"
#include "registros/imprimir/cImOf.h"
#include "valores/cFecha.h"

Veredicto VeredictoFechaPresentacion(const QString& texto)
{
    Veredicto v;
    v.botones = vb::OKOnly | vb::Exclamation;
    v.titulo = Texto(131);
    v.control = QStringLiteral("txtFechaPresentacion");
    cFecha& fecha = Fecha();
    if (!fecha.EsFecha(texto) || fecha.StringToLong(texto) <= 0) {
        v.id = 327;
        v.mensaje = Texto(327);
        return v;
    }
    if (fecha.StringToLong(texto) >= kFechaPresentacionMinima)
        return {};
    // The one message of the form that is not in the catalogue.
    const QString limite = fecha.LongToString(kFechaPresentacionMinima);
    v.mensaje = TextoSegunIdioma(
        QStringLiteral("La Fecha de presentación no puede ser anterior al ") + limite,
        QStringLiteral("Aurkezpen data ezin da ") + limite + QStringLiteral(" baino lehenagokoa izan"));
    return v;
}

Veredicto FijarFechaPresentacion(const QString& texto)
{
    Veredicto v = VeredictoFechaPresentacion(texto);
    if (v.vacio())
        ImOf().FECHAPRE = Fecha().StringToLong(texto);
    return v;
}
