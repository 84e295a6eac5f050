#include "servicios/VeredictosPartes.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "valores/BotonesMensaje.h"

namespace VeredictosPartes {

Veredicto Informacion(int id)
{
    Veredicto v;
    v.id = id;
    v.mensaje = Texto(id);
    v.botones = vb::OKOnly + vb::Information;
    return v;
}

Veredicto NoVigente(Vigencia vigencia)
{
    Veredicto v;
    v.vigencia = vigencia;
    return v;
}

}  // namespace VeredictosPartes
