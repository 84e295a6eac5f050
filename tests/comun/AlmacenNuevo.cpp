#include "comun/AlmacenNuevo.h"

#include "registros/actualizacion/cActOnline.h"
#include "aplicacion/Arranque.h"
#include "aplicacion/MDIVeldo.h"
#include "registros/nucleo/CEntrada.h"
#include "plataforma/General.h"
#include "plataforma/Reloj.h"
#include "registros/partes/cConDatos.h"
#include "registros/partes/cConLista.h"
#include "registros/partes/cPreDatos.h"
#include "registros/partes/cPreLista.h"
#include "servicios/cTraspaso.h"

#include <QApplication>

void ReiniciarEstado()
{
    delete VentanaMDI();
    for (QWidget* w : QApplication::topLevelWidgets())
        w->close();
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Entrada() = CEntrada();
    ActOnline() = cActOnline();
    ConLista() = cConLista();
    PreLista() = cPreLista();
    ConDatos() = cConDatos();
    PreDatos() = cPreDatos();
    OffsetIdioma = 0;
    VersionPrograma.clear();
    VersionProducto.clear();
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
