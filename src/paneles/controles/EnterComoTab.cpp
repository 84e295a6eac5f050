#include "paneles/controles/EnterComoTab.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <QWidget>

EnterComoTab::EnterComoTab(QWidget* panel) : QObject(panel), m_panel(panel)
{
    // Key events go to the field that has the focus, not to the panel: the filter watches the
    // application and keeps to the panel's own fields.
    qApp->installEventFilter(this);
}

bool EnterComoTab::eventFilter(QObject* objeto, QEvent* evento)
{
    if (evento->type() != QEvent::KeyPress || !m_panel || !objeto->isWidgetType())
        return false;
    auto* tecla = static_cast<QKeyEvent*>(evento);
    if (tecla->key() != Qt::Key_Return && tecla->key() != Qt::Key_Enter)
        return false;
    if (tecla->modifiers() & ~Qt::KeypadModifier)
        return false;
    auto* campo = static_cast<QWidget*>(objeto);
    // Only the key as the field receives it: a key a field or button has refused travels up
    // to its parents, and is theirs no more.
    if (campo != QApplication::focusWidget() || !m_panel->isAncestorOf(campo))
        return false;
    if (qobject_cast<QAbstractButton*>(campo) || qobject_cast<QAbstractItemView*>(campo)
        || qobject_cast<QTextEdit*>(campo) || qobject_cast<QPlainTextEdit*>(campo))
        return false;
    if (auto* combo = qobject_cast<QComboBox*>(campo->parentWidget()); combo && combo->view()->isVisible())
        return false;
    if (m_activo && !m_activo())
        return false;
    QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    QApplication::sendEvent(campo, &tab);
    return true;
}
