#include "registros/imprimir/FechaPresentacion.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "registros/imprimir/cImOf.h"
#include "plataforma/Idioma.h"
#include "valores/cFecha.h"

Veredicto VeredictoFechaPresentacion(const QString& texto, Idioma formato)
{
    Veredicto v;
    v.botones = vb::OKOnly | vb::Exclamation;
    v.titulo = Texto(kIdErrorIntroduccionDatos);
    v.control = QStringLiteral("txtFechaPresentacion");
    // An empty date is a date (0) for the date check: it is refused by the limit below, with
    // the limit's message.
    if (!cFecha::EsFecha(texto, formato)) {
        v.id = kIdFechaPresentacionIncorrecta;
        v.mensaje = Texto(kIdFechaPresentacionIncorrecta);
        return v;
    }
    if (cFecha::StringToLong(texto, formato) >= kFechaPresentacionMinima)
        return {};
    // The one message of the form that is not in the catalogue.
    const QString limite = cFecha::LongToString(kFechaPresentacionMinima, formato);
    v.mensaje = TextoSegunIdioma(
        QStringLiteral("La Fecha de presentación no puede ser anterior al ") + limite,
        QStringLiteral("Aurkezpen data ezin da ") + limite + QStringLiteral(" baino lehenagokoa izan"));
    return v;
}

Veredicto FijarFechaPresentacion(const QString& texto)
{
    Veredicto v = VeredictoFechaPresentacion(texto, IdiomaPrograma());
    if (v.vacio())
        ImOf().FECHAPRE = cFecha::StringToLong(texto, IdiomaPrograma());
    return v;
}
