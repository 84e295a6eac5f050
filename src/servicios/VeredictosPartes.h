#pragma once
// The messages of the contributor's and the presenter's saves, written down once.
#include "valores/Veredicto.h"
#include "valores/Vigencia.h"

namespace VeredictosPartes {

// The catalogue text `id` in an information box, no field to focus: a save refused because
// the number is held, or a broken rule before its field is named.
Veredicto Informacion(int id);
// A save refused because the stored row is no longer the version loaded: nothing to say here,
// the panel tells it by `vigencia`.
Veredicto NoVigente(Vigencia vigencia);

}  // namespace VeredictosPartes
