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
    // Every later request gets a success status without a length and a body that never ends.
    void sinFin();
    // Every later request gets a success status and `cuerpo` as a body compressed with
    // `codificacion` ("gzip", "deflate"), without a length; the connection is then closed, or
    // left open when `abierta`.
    void comprimido(const QByteArray& codificacion, const QByteArray& cuerpo, bool abierta);
    // Bytes of body written so far by the endless replies.
    qint64 enviados() const { return m_enviados; }

    // The request targets received ("/version.php?Programa=...").
    const QList<QByteArray>& peticiones() const { return m_peticiones; }

    // A port of this machine on which nobody listens.
    static quint16 puertoCerrado();

private:
    void alConectar();
    void alLeer(QTcpSocket* s);

    QTcpServer m_servidor;
    void seguir(QTcpSocket* s);

    bool m_calla = false;
    bool m_sinFin = false;
    QByteArray m_codificacion;
    bool m_abierta = false;
    qint64 m_enviados = 0;
    int m_estado = 200;
    QByteArray m_cuerpo;
    QList<QByteArray> m_peticiones;
};
