#pragma once
// Puts the application-wide state back as a fresh process has it, between two start-ups
// inside one test process.
#include "actualizacion/cActOnline.h"
#include "app/MDIVeldo.h"
#include "app/nucleo/CEntrada.h"
#include "app/plataforma/General.h"

#include <QApplication>

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
