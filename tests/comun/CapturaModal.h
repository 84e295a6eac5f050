#pragma once
// Watches for the modal panels that a routine opens while it runs: for each one it calls the
// given function, then closes the panel if it is still open, so the routine goes on. It looks
// when a modal window is shown (an application-wide event filter), from inside the panel's
// own event loop, rather than at intervals.
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <functional>

class QWidget;

class CapturaModal : public QObject {
    Q_OBJECT
public:
    using Mirada = std::function<void(QWidget*)>;
    explicit CapturaModal(Mirada mirada = {});

    // The objectNames of the modal panels seen, in order.
    const QStringList& vistos() const { return m_vistos; }

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void mirar();

    Mirada m_mirada;
    QPointer<QWidget> m_ultimo;
    QStringList m_vistos;
};
