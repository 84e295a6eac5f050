#include "paneles/actualizacion/LanzarExplorador.h"

#include "plataforma/Fallo.h"
#include "plataforma/General.h"
#include "paneles/dialogos/Mensaje.h"
#include "paneles/dialogos/Navegador.h"
#include "catalogo/Catalogo.h"

#include <QFile>
#include <QFileInfo>

namespace {

// The page, byte for byte. The address is written as it stands, not escaped: an apostrophe in
// it ends the attribute early.
QByteArray pagina(const QString& url)
{
    return QByteArrayLiteral("<HTML> ")
           + QByteArrayLiteral(" <BODY ONLOAD='document.formulario.submit();'> ")
           + QByteArrayLiteral(" <FORM NAME='formulario' action='") + url.toUtf8()
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
    return CarpetaPrograma() + QStringLiteral("/temphtm.HTM");
}

void LanzarExplorador(QWidget* /*owner*/, const QString& url)
{
    const QString ruta = RutaPaginaTemporal();
    escribirPagina(ruta, url);
    // The page stays in place after the browser opens it; the next call deletes it.
    if (!AbrirEnNavegador(QUrl::fromLocalFile(ruta)))
        Mensaje(Texto(335), vb::Exclamation, Texto(336));
}
