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
    m_cancelar = boton;
    m_alPulsarCancelar = std::move(alPulsar);
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
    if (razon == Qt::ActiveWindowFocusReason || razon == Qt::PopupFocusReason)
        return false;
    if (evento->type() == QEvent::FocusIn) {
        m_conFoco = campo;
        return false;
    }
    const bool loTenia = m_conFoco == campo;
    if (loTenia)
        m_conFoco = nullptr;
    if (!loTenia)
        return false;
    // The mouse went down on the cancel button: the focus is already the button's.
    if (m_cancelar && QApplication::focusWidget() == m_cancelar && razon == Qt::MouseFocusReason
        && m_alPulsarCancelar)
        m_alPulsarCancelar();
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
