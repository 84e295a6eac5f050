#include "comun/CapturaModal.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QWidget>

CapturaModal::CapturaModal(Mirada mirada) : m_mirada(std::move(mirada))
{
    // A filter is dropped by the application when its object is destroyed.
    qApp->installEventFilter(this);
}

bool CapturaModal::eventFilter(QObject* objeto, QEvent* evento)
{
    if (evento->type() == QEvent::Show && objeto->isWidgetType()) {
        const auto* w = static_cast<QWidget*>(objeto);
        // Queued: the call runs in the modal panel's own loop, once it is fully shown.
        if (w->isWindow() && w->isModal())
            QMetaObject::invokeMethod(this, &CapturaModal::mirar, Qt::QueuedConnection);
    }
    return false;
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
