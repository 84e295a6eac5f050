#pragma once
// The main window's routines that the panels call, reached through hooks so that the modules
// of panels do not depend on the main window. MDIVeldo installs them when it is created.
#include <functional>

class QWidget;

namespace Ventanas {
struct Ganchos {
    std::function<void()> actualizarMenus;
    std::function<void()> deshabilitarMenus;
    std::function<void(QWidget*)> abrirPanel;  // shows a panel as a child window of the main one
    std::function<QWidget*()> ventanaPrincipal;
};
void instalar(Ganchos ganchos);
}

// Every child panel calls DeshabilitarMenus when it opens and ActualizarMenus when it closes.
void ActualizarMenus();
void DeshabilitarMenus();
// Shows `panel` as a child window of the main window (free-standing when there is none).
void AbrirPanel(QWidget* panel);
QWidget* VentanaPrincipal();
