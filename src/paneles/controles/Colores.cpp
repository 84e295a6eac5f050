#include "paneles/controles/Colores.h"

#include <QPalette>
#include <QWidget>

void PonerColorFondo(QWidget* campo, QColor color)
{
    if (!campo)
        return;
    QPalette paleta = campo->palette();
    // Entry fields paint with Base, the other widgets with Window; both roles, every state,
    // so that a disabled field keeps its colour too.
    paleta.setColor(QPalette::Base, color);
    paleta.setColor(QPalette::Window, color);
    campo->setPalette(paleta);
}

void ColorearCampo(QWidget* campo, bool abierto)
{
    PonerColorFondo(campo, QColor::fromRgb(abierto ? kColorAbierto : kColorBloqueado));
}

QColor ColorFondo(const QWidget* campo)
{
    return campo ? campo->palette().color(QPalette::Base) : QColor();
}
