#pragma once
// The main window as the panels see it, reached through hooks so that the modules of panels do
// not depend on the main window. MDIVeldo installs them when it is created.
#include <functional>

class QWidget;

namespace Ventanas {
struct Ganchos {
    std::function<void(QWidget*)> abrirPanel;  // shows a panel as a child window of the main one
    std::function<QWidget*()> ventanaPrincipal;
};
void instalar(Ganchos ganchos);
}

// Shows `panel` as a child window of the main window (free-standing when there is none).
void AbrirPanel(QWidget* panel);
QWidget* VentanaPrincipal();
// Closes the child window that holds `panel`, or the panel itself when it stands free.
void CerrarPanel(QWidget* panel);
