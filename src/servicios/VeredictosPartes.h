#pragma once
// The messages of the contributor's and the presenter's rules and saves, written down once:
// the catalogue text of each rule and the field that takes the focus after it.
#include "valores/Veredicto.h"
#include "valores/Vigencia.h"

#include <cstdint>

namespace VeredictosPartes {

// The verdict of a broken rule of the contributor (1 to 14) or of the presenter (1 to 11), as
// ReglasContribuyente and ReglasPresentador number them; an empty verdict for 0 or any other.
Veredicto ValidacionContribuyente(int16_t regla);
Veredicto ValidacionPresentador(int16_t regla);
// The verdict of a save refused because the number is held: the catalogue text `id` in an
// information box, no field to focus.
Veredicto Informacion(int id);
// A save refused because the stored row is no longer the version loaded: nothing to say here,
// the panel tells it by `vigencia`.
Veredicto NoVigente(Vigencia vigencia);

}  // namespace VeredictosPartes
