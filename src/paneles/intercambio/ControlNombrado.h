#pragma once
// A control of the exchange panels, made with its objectName (its name in the panel's design).
#include <QString>
#include <QWidget>

template <class W>
W* ControlNombrado(QWidget* padre, const char* nombre)
{
    auto* w = new W(padre);
    w->setObjectName(QString::fromLatin1(nombre));
    return w;
}
