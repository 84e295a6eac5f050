#pragma once
// The main window tests start from a new store with the main window shown.
#include "aplicacion/MDIVeldo.h"
#include "comun/AlmacenNuevo.h"

#include <memory>

// A new store loaded as start-up loads it (see AlmacenNuevo), and the main window shown, its
// first activation still to come. The folder lives as long as the answer.
inline std::unique_ptr<CarpetaDePrueba> ProgramaConAlmacenNuevo()
{
    auto carpeta = AlmacenNuevo();
    (new MDIVeldo)->show();
    return carpeta;
}
