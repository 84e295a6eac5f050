// The download of the version file over HTTP. It runs a local event loop that keeps window
// events (painting, exposure) flowing but holds the user's input back until it ends, so the
// check blocks the user as a plain download would while the windows stay painted.
#include "registros/actualizacion/ActualizacionOnline.h"
#include "registros/actualizacion/cActOnline.h"

#include "plataforma/General.h"

#include <QEventLoop>
#include <QFile>
#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSaveFile>
#include <QTimer>
#include <QUrl>
#include <memory>
#include <optional>

namespace {

std::chrono::milliseconds g_esperaMaxima{15000};

bool esLocal(const QUrl& url)
{
    const QString host = url.host();
    if (host.compare(QLatin1String("localhost"), Qt::CaseInsensitive) == 0)
        return true;
    const QHostAddress direccion(host);
    return !direccion.isNull() && direccion.isLoopback();
}

// The machine's proxy, as the system download would use it; none for the local machine.
QNetworkProxy proxyPara(const QUrl& url)
{
    if (esLocal(url))
        return QNetworkProxy(QNetworkProxy::NoProxy);
    const QList<QNetworkProxy> proxies =
        QNetworkProxyFactory::systemProxyForQuery(QNetworkProxyQuery(url));
    return proxies.isEmpty() ? QNetworkProxy(QNetworkProxy::NoProxy) : proxies.first();
}

// Fetches `url`; the body when the server answered with success within the time limit.
std::optional<QByteArray> traer(const QUrl& url)
{
    QNetworkAccessManager red;
    red.setProxy(proxyPara(url));
    QNetworkRequest peticion(url);
    peticion.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                          QNetworkRequest::NoLessSafeRedirectPolicy);
    peticion.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                          QNetworkRequest::AlwaysNetwork);
    peticion.setTransferTimeout(static_cast<int>(g_esperaMaxima.count()));

    std::unique_ptr<QNetworkReply> respuesta(red.get(peticion));
    QEventLoop bucle;
    QTimer limite;
    limite.setSingleShot(true);
    QObject::connect(&limite, &QTimer::timeout, respuesta.get(), &QNetworkReply::abort);
    QObject::connect(respuesta.get(), &QNetworkReply::finished, &bucle, &QEventLoop::quit);
    limite.start(g_esperaMaxima);
    if (!respuesta->isFinished())
        bucle.exec(QEventLoop::ExcludeUserInputEvents);
    limite.stop();

    if (respuesta->error() != QNetworkReply::NoError)
        return std::nullopt;
    const QVariant estado = respuesta->attribute(QNetworkRequest::HttpStatusCodeAttribute);
    if (estado.isValid() && (estado.toInt() < 200 || estado.toInt() > 299))
        return std::nullopt;
    return respuesta->readAll();
}

bool grabar(const QString& fichero, const QByteArray& datos)
{
    QSaveFile f(fichero);
    if (!f.open(QIODevice::WriteOnly))
        return false;
    return f.write(datos) == datos.size() && f.commit();
}

}  // namespace

int DescargarFichero(const QString& url, const QString& fichero)
{
    const QUrl direccion(url);
    bool descargado = false;
    if (direccion.isValid() && !direccion.isRelative()) {
        if (const std::optional<QByteArray> cuerpo = traer(direccion))
            descargado = grabar(fichero, *cuerpo);
    }
    // Whatever file was asked for, the check goes on only with version.ini in place.
    return descargado && QFile::exists(RutaVersionIni()) ? SitActualizacion::FicheroLeido
                                                         : SitActualizacion::SinConexion;
}

void EstablecerEsperaMaximaDescarga(std::chrono::milliseconds espera)
{
    g_esperaMaxima = espera;
}

std::chrono::milliseconds EsperaMaximaDescarga()
{
    return g_esperaMaxima;
}
