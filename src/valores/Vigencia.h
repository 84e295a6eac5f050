#pragma once
// Whether a stored record is still the one a copy of it was loaded from. Every save of a
// contributor, a presenter or a return carries the version it loaded; the store writes only
// over that same version, and otherwise tells why it wrote nothing.
enum class Vigencia {
    Vigente,   // the row was as loaded: the save went through
    Cambiada,  // the row was saved again since it was loaded (another copy, a restore)
    Borrada,   // the row is no longer in the store
};
