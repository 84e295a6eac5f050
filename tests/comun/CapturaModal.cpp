#include "comun/CapturaModal.h"

#include <QApplication>
#include <QDialog>
#include <QWidget>

CapturaModal::CapturaModal(Mirada mirada) : m_mirada(std::move(mirada))
{
    connect(&m_reloj, &QTimer::timeout, this, &CapturaModal::mirar);
    m_reloj.start(10);
}

void CapturaModal::mirar()
{
    QWidget* modal = QApplication::activeModalWidget();
    if (!modal || modal == m_ultimo || !modal->isVisible())
        return;
    m_ultimo = modal;
    m_vistos.append(modal->objectName());
    if (m_mirada)
        m_mirada(modal);
    if (modal->isVisible()) {
        if (auto* d = qobject_cast<QDialog*>(modal))
            d->reject();
        else
            modal->close();
    }
}
