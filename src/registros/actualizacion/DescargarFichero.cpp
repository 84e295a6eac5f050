// The download of the version file over HTTP. It runs a local event loop that keeps window
// events (painting, exposure) flowing but holds the user's input back until it ends, so the
// check blocks the user as a plain download would while the windows stay painted.
#include "registros/actualizacion/ActualizacionOnline.h"
#include "registros/actualizacion/cActOnline.h"

#include "plataforma/Estado.h"
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

// How long a download may take before it counts as no connection.
struct EsperaDescarga {
    std::chrono::milliseconds maxima{15000};
};

std::chrono::milliseconds& esperaMaxima()
{
    return Estado().de<EsperaDescarga>().maxima;
}

// A version file is a few hundred bytes. A reply above this size is not one: the download
// stops reading there and the check goes on as if there were no connection, so an endless or
// huge reply neither grows the program nor is ever kept.
constexpr qint64 kTamannoMaximo = 64 * 1024;

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
    peticion.setTransferTimeout(static_cast<int>(esperaMaxima().count()));

    std::unique_ptr<QNetworkReply> respuesta(red.get(peticion));
    // Qt keeps no more than this unread; the body is taken as it comes and counted.
    respuesta->setReadBufferSize(kTamannoMaximo + 1);
    QByteArray cuerpo;
    bool demasiado = false;
    QEventLoop bucle;
    // A reply that has said enough is done with: the wait ends at once, without counting on
    // `finished` after an abort. Qt inflates a compressed body itself and may end a reply that
    // inflates too far with an error of its own while the body is being read; after two such
    // ends, Qt sends no `finished` at all.
    auto basta = [&] {
        demasiado = true;
        respuesta->abort();
        bucle.quit();
    };
    auto leer = [&] {
        if (demasiado)
            return;
        cuerpo += respuesta->read(kTamannoMaximo + 1 - cuerpo.size());
        const QVariant anunciado = respuesta->header(QNetworkRequest::ContentLengthHeader);
        if (cuerpo.size() > kTamannoMaximo
            || (anunciado.isValid() && anunciado.toLongLong() > kTamannoMaximo))
            basta();
    };
    QTimer limite;
    limite.setSingleShot(true);
    QObject::connect(&limite, &QTimer::timeout, respuesta.get(), &QNetworkReply::abort);
    QObject::connect(respuesta.get(), &QNetworkReply::metaDataChanged, &bucle, leer);
    QObject::connect(respuesta.get(), &QNetworkReply::readyRead, &bucle, leer);
    QObject::connect(respuesta.get(), &QNetworkReply::errorOccurred, &bucle, &QEventLoop::quit);
    QObject::connect(respuesta.get(), &QNetworkReply::finished, &bucle, &QEventLoop::quit);
    limite.start(esperaMaxima());
    if (!respuesta->isFinished() && respuesta->error() == QNetworkReply::NoError)
        bucle.exec(QEventLoop::ExcludeUserInputEvents);
    limite.stop();
    if (!demasiado && respuesta->isOpen())
        leer();

    if (demasiado || respuesta->error() != QNetworkReply::NoError)
        return std::nullopt;
    const QVariant estado = respuesta->attribute(QNetworkRequest::HttpStatusCodeAttribute);
    if (estado.isValid() && (estado.toInt() < 200 || estado.toInt() > 299))
        return std::nullopt;
    return cuerpo;
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
    esperaMaxima() = espera;
}

std::chrono::milliseconds EsperaMaximaDescarga()
{
    return esperaMaxima();
}
