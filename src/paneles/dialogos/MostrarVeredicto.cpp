#include "paneles/dialogos/MostrarVeredicto.h"

#include "paneles/dialogos/Mensaje.h"

#include <QTabWidget>
#include <QWidget>

namespace {

// The tab widget whose pages hold `control`, nearest first.
QTabWidget* pestanasDe(QWidget* control)
{
    for (QWidget* w = control->parentWidget(); w; w = w->parentWidget())
        if (auto* pestanas = qobject_cast<QTabWidget*>(w))
            return pestanas;
    return nullptr;
}

void enfocar(const Veredicto& v, QWidget* panel)
{
    if (!panel || v.control.isEmpty())
        return;
    QWidget* control = panel->findChild<QWidget*>(v.control);
    if (!control)
        return;
    if (v.pestana != kSinPestana)
        if (QTabWidget* pestanas = pestanasDe(control))
            pestanas->setCurrentIndex(v.pestana);
    control->setFocus(Qt::OtherFocusReason);
}

}  // namespace

int MostrarVeredicto(const Veredicto& veredicto, QWidget* panel)
{
    if (veredicto.vacio())
        return 0;
    const int respuesta = Mensaje(veredicto.mensaje, veredicto.botones, veredicto.titulo);
    enfocar(veredicto, panel);
    return respuesta;
}
