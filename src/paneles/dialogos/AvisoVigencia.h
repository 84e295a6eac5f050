#pragma once
// What a panel says when the store wrote nothing because the record is no longer the one the
// panel loaded: saved again since (by another running copy of the program, or put back by a
// restore) or deleted. The panel keeps what was typed either way.
#include "valores/Vigencia.h"

#include <QString>

// Cambiada: the message and the question whether to load the stored record (Yes) or to keep
// the form as typed without saving (No, the default); true for Yes. Borrada: the message
// alone; false. Vigente: nothing is shown; false. The box has the panel's title.
bool AvisarVigencia(Vigencia vigencia, const QString& titulo);
