#include "paneles/partes/SalidaCampos.h"

#include <QApplication>
#include <QFocusEvent>
#include <QWidget>
#include <algorithm>

SalidaCampos::SalidaCampos(QObject* parent) : QObject(parent) {}

void SalidaCampos::Vigilar(QWidget* campo, std::function<void()> alSalir)
{
    if (!campo)
        return;
    m_campos.append({campo, std::move(alSalir)});
    campo->installEventFilter(this);
}

void SalidaCampos::setBotonCancelar(QWidget* boton, std::function<void()> alPulsar)
{
    m_cancelar.append({boton, std::move(alPulsar)});
}

bool SalidaCampos::eventFilter(QObject* objeto, QEvent* evento)
{
    if (evento->type() != QEvent::FocusIn && evento->type() != QEvent::FocusOut)
        return false;
    auto* campo = qobject_cast<QWidget*>(objeto);
    const auto it = std::find_if(m_campos.cbegin(), m_campos.cend(),
                                 [campo](const Vigilado& v) { return v.campo == campo; });
    if (!campo || it == m_campos.cend())
        return false;
    const auto* foco = static_cast<QFocusEvent*>(evento);
    const Qt::FocusReason razon = foco->reason();
    // The field holds the focus now, however it came: also when it comes back with the
    // window's activation (a message box closed, whose panel gave the field the focus while
    // the box was still active) or after a popup. What the user types next is left from here.
    if (evento->type() == QEvent::FocusIn) {
        m_conFoco = campo;
        return false;
    }
    // The window lost the activation or a popup opened: the user has not left the field. A
    // combo's list, once open, also takes the focus into itself with another reason.
    if (razon == Qt::ActiveWindowFocusReason || razon == Qt::PopupFocusReason
        || QApplication::activePopupWidget())
        return false;
    const bool loTenia = m_conFoco == campo;
    if (loTenia)
        m_conFoco = nullptr;
    if (!loTenia)
        return false;
    // The mouse went down on a way out, or its access key was pressed: the focus is already
    // that button's.
    if (razon == Qt::MouseFocusReason || razon == Qt::ShortcutFocusReason)
        for (const Salida& salida : std::as_const(m_cancelar))
            if (salida.boton && QApplication::focusWidget() == salida.boton && salida.alPulsar)
                salida.alPulsar();
    // The field finishes its own leaving first (a numeric box formats its text again).
    const std::function<void()> alSalir = it->alSalir;
    QPointer<QWidget> vivo = campo;
    static_cast<QObject*>(campo)->event(evento);
    if (!vivo || (m_activo && !m_activo()))
        return true;
    if (alSalir)
        alSalir();
    return true;
}
