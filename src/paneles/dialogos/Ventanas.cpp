#include "paneles/dialogos/Ventanas.h"

#include "plataforma/Estado.h"

#include <QMdiSubWindow>
#include <QWidget>

namespace {
// Installed by the main window; a reset of the program's state drops them with it.
Ventanas::Ganchos& ganchos()
{
    return Estado().de<Ventanas::Ganchos>();
}
}  // namespace

void Ventanas::instalar(Ganchos nuevos) { ganchos() = std::move(nuevos); }

void AbrirPanel(QWidget* panel)
{
    if (const Ventanas::Ganchos& g = ganchos(); g.abrirPanel)
        g.abrirPanel(panel);
    else
        panel->show();
}

QWidget* VentanaPrincipal()
{
    const Ventanas::Ganchos& g = ganchos();
    return g.ventanaPrincipal ? g.ventanaPrincipal() : nullptr;
}

void CerrarPanel(QWidget* panel)
{
    if (auto* marco = qobject_cast<QMdiSubWindow*>(panel->parentWidget()))
        marco->close();
    else
        panel->close();
}
