#pragma once
// What the tests of the whole program share: the state of a fresh process, and a program
// folder with a new read/write database loaded as start-up loads it.
#include "comun/Entorno.h"

#include <memory>

// The state a fresh process has: no main window or other window, the shared objects new, the
// language offset Spanish, no version read.
void ReiniciarEstado();

// Every seam recording, the state of a fresh process, a new program folder whose read/write
// database the migration has created, and the application state loaded from it as start-up
// loads it (the update setting still undecided). The folder lives as long as the answer.
std::unique_ptr<CarpetaDePrueba> AlmacenNuevo();
