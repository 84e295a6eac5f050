// Compiled into every program that links the panels' test support (an interface source of
// veldo_testpaneles): from the start, GrabarSeams() records the message boxes, the file dialogs
// and the browser of the panels too.
#include "comun/Entorno.h"

#include "paneles/dialogos/DialogoFichero.h"
#include "paneles/dialogos/Mensaje.h"
#include "paneles/dialogos/Navegador.h"

namespace {
const bool kSeamsPanelesGrabados = [] {
    AnadirGrabacionDeSeams([] {
        MensajeSeam::grabar(true);
        DialogoFicheroSeam::grabar(true);
        NavegadorSeam::grabar(true);
    });
    return true;
}();
}  // namespace
