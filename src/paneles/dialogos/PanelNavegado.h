#pragma once
// A panel that the navigator opens in the main window and that tells it, once, when it has
// closed. The frame of the sub-window and the panel itself may both report the closing, and a
// panel may be closed by its own button, by the frame or by the main window: whichever comes
// first, `cerrado` is emitted once, inside the failure guard (its receiver opens the next
// panel, outside any handler of the panel's own).
#include <QWidget>

class PanelNavegado : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;

signals:
    // The panel has closed (once, whatever closed it).
    void cerrado();

protected:
    void closeEvent(QCloseEvent* evento) override;
    // Each report of the closing, before the navigator is told: the panel stops reacting to
    // fields left on the way out.
    virtual void AlCerrar() {}

private:
    bool m_cerrado = false;
};
