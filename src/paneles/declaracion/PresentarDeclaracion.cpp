// The one drawing of the declaration form from DecDatos(): each block draws its part, in the
// order of the form; and the enabling of the buttons of the pickers and lists.
#include "paneles/declaracion/FrmDeclaracion.h"

#include "paneles/declaracion/BloqueDeclaracion.h"

void FrmDeclaracion::PresentarDeclaracion()
{
    for (BloqueDeclaracion* bloque : Bloques())
        bloque->Presentar();
}

void FrmDeclaracion::ActivarSelectores()
{
    for (BloqueDeclaracion* bloque : Bloques())
        bloque->ActivarSelectores();
}

void FrmDeclaracion::Redibujar()
{
    PresentarDeclaracion();
    ActivarSelectores();
}
