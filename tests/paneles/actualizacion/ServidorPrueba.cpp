#include "ServidorPrueba.h"

#include <QHostAddress>
#include <QTcpSocket>

ServidorPrueba::ServidorPrueba()
{
    if (!m_servidor.listen(QHostAddress::LocalHost, 0))
        qFatal("No se puede escuchar en 127.0.0.1: %s", qPrintable(m_servidor.errorString()));
    connect(&m_servidor, &QTcpServer::newConnection, this, &ServidorPrueba::alConectar);
}

QString ServidorPrueba::url() const
{
    return QStringLiteral("http://127.0.0.1:%1/version.php").arg(puerto());
}

void ServidorPrueba::responder(int estado, const QByteArray& cuerpo)
{
    m_calla = false;
    m_sinFin = false;
    m_codificacion.clear();
    m_estado = estado;
    m_cuerpo = cuerpo;
}

void ServidorPrueba::comprimido(const QByteArray& codificacion, const QByteArray& cuerpo,
                                bool abierta)
{
    responder(200, cuerpo);
    m_codificacion = codificacion;
    m_abierta = abierta;
}

void ServidorPrueba::callar()
{
    m_calla = true;
    m_sinFin = false;
}

void ServidorPrueba::sinFin()
{
    m_calla = false;
    m_sinFin = true;
}

// One more piece of the endless body each time the former one has gone out.
void ServidorPrueba::seguir(QTcpSocket* s)
{
    if (s->state() != QAbstractSocket::ConnectedState || s->bytesToWrite() > 0)
        return;
    const QByteArray trozo(16 * 1024, 'v');
    m_enviados += s->write(trozo);
}

void ServidorPrueba::alConectar()
{
    while (QTcpSocket* s = m_servidor.nextPendingConnection()) {
        s->setParent(this);
        s->setProperty("leido", QByteArray());
        connect(s, &QTcpSocket::readyRead, this, [this, s] { alLeer(s); });
        connect(s, &QTcpSocket::disconnected, s, &QObject::deleteLater);
    }
}

void ServidorPrueba::alLeer(QTcpSocket* s)
{
    QByteArray leido = s->property("leido").toByteArray() + s->readAll();
    s->setProperty("leido", leido);
    if (!leido.contains("\r\n\r\n") || s->property("atendido").toBool())
        return;
    s->setProperty("atendido", true);
    const QList<QByteArray> primera = leido.left(leido.indexOf("\r\n")).split(' ');
    m_peticiones.append(primera.value(1));
    if (m_calla)
        return;
    if (m_sinFin) {
        s->write("HTTP/1.1 200 OK\r\nContent-Type: text/plain\r\nConnection: close\r\n\r\n"
                 "[informacion]\r\ncurrentversion=1.30.2\r\n");
        connect(s, &QTcpSocket::bytesWritten, this, [this, s] { seguir(s); });
        return;
    }
    if (!m_codificacion.isEmpty()) {
        s->write("HTTP/1.1 200 OK\r\nContent-Type: text/plain\r\nContent-Encoding: "
                 + m_codificacion + "\r\n\r\n" + m_cuerpo);
        if (!m_abierta)
            s->disconnectFromHost();
        return;
    }
    const QByteArray razon = m_estado == 200 ? "OK" : m_estado == 404 ? "Not Found" : "Status";
    QByteArray respuesta = "HTTP/1.1 " + QByteArray::number(m_estado) + ' ' + razon + "\r\n"
                           + "Content-Type: text/plain\r\n"
                           + "Content-Length: " + QByteArray::number(m_cuerpo.size()) + "\r\n"
                           + "Connection: close\r\n\r\n" + m_cuerpo;
    s->write(respuesta);
    s->disconnectFromHost();
}

quint16 ServidorPrueba::puertoCerrado()
{
    QTcpServer provisional;
    provisional.listen(QHostAddress::LocalHost, 0);
    const quint16 puerto = provisional.serverPort();
    provisional.close();
    return puerto;
}
