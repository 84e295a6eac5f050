#include "paneles/dialogos/PanelNavegado.h"

#include "plataforma/Proceso.h"

#include <QCloseEvent>

void PanelNavegado::closeEvent(QCloseEvent* evento)
{
    evento->accept();
    AlCerrar();
    if (m_cerrado)
        return;
    m_cerrado = true;
    Proceso::Protegido([this] { emit cerrado(); });
}
