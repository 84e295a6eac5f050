#pragma once
// A tiny HTTP server on 127.0.0.1 for the update check: it keeps the target of every request
// and answers each one with a canned response, or never answers at all.
#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>
#include <QTcpServer>

class QTcpSocket;

class ServidorPrueba : public QObject {
    Q_OBJECT
public:
    ServidorPrueba();

    quint16 puerto() const { return m_servidor.serverPort(); }
    // The address of the service, without query keys.
    QString url() const;

    // Every later request gets this status and body.
    void responder(int estado, const QByteArray& cuerpo);
    // Every later request is accepted and read, and never answered.
    void callar();

    // The request targets received ("/version.php?Programa=...").
    const QList<QByteArray>& peticiones() const { return m_peticiones; }

    // A port of this machine on which nobody listens.
    static quint16 puertoCerrado();

private:
    void alConectar();
    void alLeer(QTcpSocket* s);

    QTcpServer m_servidor;
    bool m_calla = false;
    int m_estado = 200;
    QByteArray m_cuerpo;
    QList<QByteArray> m_peticiones;
};
