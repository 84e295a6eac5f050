#include "paneles/dialogos/AvisoVigencia.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "paneles/dialogos/Mensaje.h"

bool AvisarVigencia(Vigencia vigencia, const QString& titulo)
{
    switch (vigencia) {
    case Vigencia::Vigente:
        return false;
    case Vigencia::Borrada:
        Mensaje(Texto(kIdDatosBorradosDesdeApertura), vb::OKOnly + vb::Information, titulo);
        return false;
    case Vigencia::Cambiada:
        break;
    }
    const QString pregunta = Texto(kIdDatosCambiadosDesdeApertura) + QStringLiteral("\n")
        + Texto(kIdPreguntaCargarDatosGuardados);
    return Mensaje(pregunta, vb::YesNo + vb::Question + vb::DefaultButton2, titulo) == vb::Yes;
}
