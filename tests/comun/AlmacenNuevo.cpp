#include "comun/AlmacenNuevo.h"

#include "aplicacion/Arranque.h"
#include "aplicacion/MDIVeldo.h"
#include "plataforma/Estado.h"
#include "plataforma/General.h"
#include "plataforma/Reloj.h"
#include "servicios/cTraspaso.h"

#include <QApplication>

void ReiniciarEstado()
{
    delete VentanaMDI();
    for (QWidget* w : QApplication::topLevelWidgets())
        w->close();
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Estado().Reiniciar();
}

std::unique_ptr<CarpetaDePrueba> AlmacenNuevo()
{
    GrabarSeams();
    RelojSeam::grabar(true);
    ReiniciarEstado();
    auto carpeta = std::make_unique<CarpetaDePrueba>();
    cTraspaso traspaso;
    traspaso.mdbmod = mdbmod;
    traspaso.mdbPath = mdbPath;
    if (traspaso.Traspaso())
        qFatal("The new database was refused");
    InicializarAplicacion();
    return carpeta;
}
