#pragma once
// On the panels that ask for it, the Enter key moves the focus to the next field, as Tab
// does. Buttons, lists, grids and multi-line texts keep their own Enter; a panel can also
// switch the behaviour off for a while (an open picker list, for instance).
#include <QObject>
#include <QPointer>
#include <functional>

class QWidget;

class EnterComoTab : public QObject {
    Q_OBJECT
public:
    // Watches the keys of every field inside `panel`; lives as the panel's child.
    explicit EnterComoTab(QWidget* panel);
    // While `activo` answers false, Enter is left alone.
    void setActivo(std::function<bool()> activo) { m_activo = std::move(activo); }

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    QPointer<QWidget> m_panel;
    std::function<bool()> m_activo;
};
