#pragma once
// Watches for the modal panels that a routine opens while it runs: for each one it calls the
// given function, then closes the panel if it is still open, so the routine goes on.
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <functional>

class QWidget;

class CapturaModal : public QObject {
    Q_OBJECT
public:
    using Mirada = std::function<void(QWidget*)>;
    explicit CapturaModal(Mirada mirada = {});

    // The objectNames of the modal panels seen, in order.
    const QStringList& vistos() const { return m_vistos; }

private:
    void mirar();

    Mirada m_mirada;
    QTimer m_reloj;
    QPointer<QWidget> m_ultimo;
    QStringList m_vistos;
};
