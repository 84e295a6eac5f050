#include "comun/AlmacenNuevo.h"

#include "actualizacion/cActOnline.h"
#include "app/Arranque.h"
#include "app/MDIVeldo.h"
#include "app/nucleo/CEntrada.h"
#include "app/plataforma/General.h"
#include "app/plataforma/Reloj.h"
#include "partes/cConDatos.h"
#include "partes/cConLista.h"
#include "partes/cPreDatos.h"
#include "partes/cPreLista.h"
#include "registros/intercambio/cExportar.h"
#include "registros/intercambio/cImportar.h"
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
    Exportar() = cExportar();
    Importar() = cImportar();
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
