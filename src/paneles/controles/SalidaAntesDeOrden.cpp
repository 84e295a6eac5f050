#include "paneles/controles/SalidaAntesDeOrden.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QKeySequence>
#include <QMenuBar>
#include <QPointer>
#include <QShortcutEvent>

namespace {

bool MismaTecla(const QString& rotulo, const QKeySequence& tecla)
{
    return !rotulo.isEmpty() && QKeySequence::mnemonic(rotulo) == tecla;
}

// The one button of the window being worked in, shown and enabled, whose access key is `tecla`;
// null when there is none or more than one.
QAbstractButton* BotonDeLaTecla(const QWidget* ventana, const QKeySequence& tecla)
{
    QAbstractButton* hallado = nullptr;
    for (QAbstractButton* boton : ventana->findChildren<QAbstractButton*>()) {
        if (!boton->isVisible() || !boton->isEnabled() || !MismaTecla(boton->text(), tecla))
            continue;
        if (hallado)
            return nullptr;
        hallado = boton;
    }
    return hallado;
}

// The menu bar keeps the access keys of its menus while they are switched off (a panel is
// open), and takes them before a panel's button with the same letter (Alt+C of Cancelar and
// the menu Contribuyente). A key whose menus are all off belongs to the panel's button.
bool DeLaBarraAlBoton(const QMenuBar* barra, const QKeySequence& tecla)
{
    for (const QAction* menu : barra->actions())
        if (menu->isEnabled() && menu->isVisible() && MismaTecla(menu->text(), tecla))
            return false;
    const QWidget* foco = QApplication::focusWidget();
    QAbstractButton* boton = BotonDeLaTecla(foco ? foco->window() : barra->window(), tecla);
    if (boton && DejarCampoPara(boton, Qt::ShortcutFocusReason))
        boton->animateClick();
    return true;
}

// The access key of a button reaches it as a shortcut event, which would click it at once:
// the field is left first, and the event is kept from the button when the user must stay.
class FiltroAtajos : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override
    {
        if (evento->type() != QEvent::Shortcut)
            return false;
        const auto* atajo = static_cast<QShortcutEvent*>(evento);
        if (const auto* barra = qobject_cast<QMenuBar*>(objeto))
            return DeLaBarraAlBoton(barra, atajo->key());
        auto* boton = qobject_cast<QAbstractButton*>(objeto);
        if (!boton || atajo->isAmbiguous())
            return false;
        return !DejarCampoPara(boton, Qt::ShortcutFocusReason);
    }
};

}  // namespace

void SalidaAntesDeOrden::Instalar()
{
    static QPointer<FiltroAtajos> filtro;
    if (filtro || !qApp)
        return;
    filtro = new FiltroAtajos(qApp);
    qApp->installEventFilter(filtro);
}

bool DejarCampoPara(QAbstractButton* boton, Qt::FocusReason razon)
{
    const QWidget* foco = QApplication::focusWidget();
    if (!boton || !foco || foco == boton || foco->window() != boton->window())
        return true;
    QPointer<QAbstractButton> vivo = boton;
    boton->setFocus(razon);
    return vivo && QApplication::focusWidget() == vivo;
}
