#pragma once
// The version record embedded in the executable. Its bytes are read back from the file on disk
// at start-up (ObtenerVersionPrograma), not from memory; the symbol exists so that the linker
// keeps the record in the program.
#include "registros/actualizacion/FormatoRegistroVersion.h"

extern "C" const RegistroVersion::Bytes VeldoRegistroVersion;
