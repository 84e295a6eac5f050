#pragma once
// The leaving of a field, as the data panels of parties see it. A panel watches its fields and
// is told when the user leaves one (Tab, Enter, a click elsewhere), after the field has done
// its own leaving work (a numeric box has formatted its text again), so that the panel compares
// the finished text with the record.
//
// Not every loss of focus is a leaving:
//  - a popup that opens (a combo's list, a context menu) does not leave the field;
//  - when the program's window loses the activation (another program, a message box) the user
//    has not left the field; when it gets it back, the field that receives the focus is the one
//    the user will leave next, whether it had the focus before or was given it meanwhile;
//  - a field that never really held the focus (the focus only passed it on the way to another
//    widget that was given the focus meanwhile) has nothing to leave;
//  - the panel can hold the watcher back while it works (a picker open, the panel closing).
//
// The press of the mouse on the panel's cancel button takes the focus before the button sees
// the press. The watcher reports that case before the leaving, so that the panel can skip the
// checks that would stop the user on the way out.
#include <QObject>
#include <QPointer>
#include <functional>

class QWidget;

class SalidaCampos : public QObject {
    Q_OBJECT
public:
    explicit SalidaCampos(QObject* parent);

    // Calls `alSalir` each time the user leaves `campo`.
    void Vigilar(QWidget* campo, std::function<void()> alSalir);
    // A press of the mouse on `boton`, or its access key, that takes the focus from a field
    // calls `alPulsar` before the field's leaving. A panel may name several such ways out, one
    // call each.
    void setBotonCancelar(QWidget* boton, std::function<void()> alPulsar);
    // While `activo` answers false, leavings are not reported.
    void setActivo(std::function<bool()> activo) { m_activo = std::move(activo); }

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    struct Vigilado {
        QPointer<QWidget> campo;
        std::function<void()> alSalir;
    };
    QList<Vigilado> m_campos;
    QPointer<QWidget> m_conFoco;  // the watched field that last received the focus
    struct Salida {
        QPointer<QWidget> boton;
        std::function<void()> alPulsar;
    };
    QList<Salida> m_cancelar;
    std::function<bool()> m_activo;
};
