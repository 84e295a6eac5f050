#include "paneles/actualizacion/LanzarExplorador.h"

#include "catalogo/IdsCatalogo.h"
#include "plataforma/Fallo.h"
#include "plataforma/General.h"
#include "paneles/dialogos/Mensaje.h"
#include "paneles/dialogos/Navegador.h"
#include "catalogo/Catalogo.h"
#include "registros/actualizacion/ActualizacionOnline.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

// The address as the value of an attribute in apostrophes: the characters that could end it or
// open markup are written as references. An ampersand is escaped only where it would start a
// character reference ("&amp;", "&#38;"), so that an address with a plain query ("?x=1&y=2")
// is written as it stands, and the browser reads back the very same address either way.
QByteArray escapar(const QString& url)
{
    static const QRegularExpression referencia(QStringLiteral("^&(#?[A-Za-z0-9]+);"));
    QString salida;
    for (qsizetype i = 0; i < url.size(); ++i) {
        const QChar c = url.at(i);
        if (c == QLatin1Char('\''))
            salida += QStringLiteral("&#39;");
        else if (c == QLatin1Char('"'))
            salida += QStringLiteral("&quot;");
        else if (c == QLatin1Char('<'))
            salida += QStringLiteral("&lt;");
        else if (c == QLatin1Char('>'))
            salida += QStringLiteral("&gt;");
        else if (c == QLatin1Char('&') && referencia.match(url.mid(i)).hasMatch())
            salida += QStringLiteral("&amp;");
        else
            salida += c;
    }
    return salida.toUtf8();
}

// The page, byte for byte.
QByteArray pagina(const QString& url)
{
    return QByteArrayLiteral("<HTML> ")
           + QByteArrayLiteral(" <BODY ONLOAD='document.formulario.submit();'> ")
           + QByteArrayLiteral(" <FORM NAME='formulario' action='") + escapar(url)
           + QByteArrayLiteral("' method=post> ") + QByteArrayLiteral(" </FORM></BODY> </HTML>");
}

[[noreturn]] void falloAlEscribir(const QFile& f)
{
    throw cFallo(75, QStringLiteral("ActualizacionOnline.LanzarExplorador"),
                 QStringLiteral("Error de acceso a la ruta o el archivo: %1 (%2)")
                     .arg(f.fileName(), f.errorString()));
}

void escribirPagina(const QString& ruta, const QString& url)
{
    QFile f(ruta);
    const QFileInfo existente(ruta);
    if ((existente.exists() || existente.isSymLink()) && !f.remove())
        falloAlEscribir(f);
    if (!f.open(QIODevice::WriteOnly))
        falloAlEscribir(f);
    const QByteArray datos = pagina(url);
    if (f.write(datos) != datos.size() || !f.flush())
        falloAlEscribir(f);
    f.close();
}

}  // namespace

QString RutaPaginaTemporal()
{
    return CarpetaDatos() + QStringLiteral("/temphtm.HTM");
}

void LanzarExplorador(QWidget* /*owner*/, const QString& url)
{
    // The version file's address has been checked on reading; anything else here is a fault.
    if (!EsDireccionWeb(url))
        throw cFallo(5, QStringLiteral("ActualizacionOnline.LanzarExplorador"),
                     QStringLiteral("La dirección de descarga no es una dirección web: %1").arg(url));
    const QString ruta = RutaPaginaTemporal();
    escribirPagina(ruta, url);
    // The page stays in place after the browser opens it; the next call deletes it.
    if (!AbrirEnNavegador(QUrl::fromLocalFile(ruta)))
        Mensaje(Texto(kIdNavegadorNoEncontradoMensaje), vb::Exclamation,
                Texto(kIdNavegadorNoEncontrado));
}
