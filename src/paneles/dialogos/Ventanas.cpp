#include "paneles/dialogos/Ventanas.h"

#include <QMdiSubWindow>
#include <QWidget>

namespace {
Ventanas::Ganchos g_ganchos;
}

void Ventanas::instalar(Ganchos ganchos) { g_ganchos = std::move(ganchos); }

void AbrirPanel(QWidget* panel)
{
    if (g_ganchos.abrirPanel)
        g_ganchos.abrirPanel(panel);
    else
        panel->show();
}

QWidget* VentanaPrincipal()
{
    return g_ganchos.ventanaPrincipal ? g_ganchos.ventanaPrincipal() : nullptr;
}

void CerrarPanel(QWidget* panel)
{
    if (auto* marco = qobject_cast<QMdiSubWindow*>(panel->parentWidget()))
        marco->close();
    else
        panel->close();
}
