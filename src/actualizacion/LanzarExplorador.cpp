#include "actualizacion/LanzarExplorador.h"

#include "app/plataforma/Fallo.h"
#include "app/plataforma/General.h"
#include "app/plataforma/Mensaje.h"
#include "catalogue/Catalogo.h"

#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>

namespace {

bool g_grabando = false;
bool g_hayNavegador = true;
QList<QUrl> g_abiertos;

// The page, byte for byte. The address is written as it stands: an apostrophe in it ends the
// attribute early, as it always has.
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

bool abrir(const QUrl& pagina)
{
    if (g_grabando) {
        g_abiertos.append(pagina);
        return g_hayNavegador;
    }
    return QDesktopServices::openUrl(pagina);
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
    if (!abrir(QUrl::fromLocalFile(ruta)))
        Mensaje(Texto(335), vb::Exclamation, Texto(336));
}

namespace ExploradorSeam {
void grabar(bool activo)
{
    g_grabando = activo;
    g_hayNavegador = true;
    g_abiertos.clear();
}
bool grabando() { return g_grabando; }
void setHayNavegador(bool hay) { g_hayNavegador = hay; }
const QList<QUrl>& abiertos() { return g_abiertos; }
}
