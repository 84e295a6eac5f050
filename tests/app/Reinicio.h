#pragma once
// Puts the application-wide state back as a fresh process has it, between two start-ups
// inside one test process.
#include "actualizacion/cActOnline.h"
#include "app/MDIVeldo.h"
#include "app/nucleo/CEntrada.h"
#include "app/Arranque.h"
#include "app/plataforma/General.h"
#include "app/plataforma/Reloj.h"
#include "comun/Entorno.h"
#include "servicios/cTraspaso.h"

#include <QApplication>
#include <memory>

inline void ReiniciarEstado()
{
    delete VentanaMDI();
    for (QWidget* w : QApplication::topLevelWidgets())
        w->close();
    QApplication::processEvents();
    Entrada() = CEntrada();
    ActOnline() = cActOnline();
    OffsetIdioma = 0;
    VersionPrograma.clear();
    VersionProducto.clear();
}

// A program folder with a new read/write database, the application state loaded from it as
// start-up does, every seam recording, and the main window shown (its first activation still
// to come). The folder lives as long as the answer.
inline std::unique_ptr<CarpetaDePrueba> ProgramaConAlmacenNuevo()
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
    (new MDIVeldo)->show();
    return carpeta;
}
