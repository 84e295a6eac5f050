#include "paneles/dialogos/AvisoVigencia.h"

#include "catalogo/Catalogo.h"
#include "paneles/dialogos/Mensaje.h"

namespace {
constexpr int kIdCambiado = 367;
constexpr int kIdCargarGuardado = 368;
constexpr int kIdBorrado = 369;
}  // namespace

bool AvisarVigencia(Vigencia vigencia, const QString& titulo)
{
    switch (vigencia) {
    case Vigencia::Vigente:
        return false;
    case Vigencia::Borrada:
        Mensaje(Texto(kIdBorrado), vb::OKOnly + vb::Information, titulo);
        return false;
    case Vigencia::Cambiada:
        break;
    }
    const QString pregunta = Texto(kIdCambiado) + QStringLiteral("\n") + Texto(kIdCargarGuardado);
    return Mensaje(pregunta, vb::YesNo + vb::Question + vb::DefaultButton2, titulo) == vb::Yes;
}
