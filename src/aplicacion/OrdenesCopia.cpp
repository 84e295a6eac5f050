#include "aplicacion/OrdenesCopia.h"

#include "aplicacion/Arranque.h"
#include "aplicacion/CopiaSeguridad.h"
#include "aplicacion/LineaDeOrdenes.h"
#include "catalogo/Catalogo.h"
#include "plataforma/Fallo.h"
#include "plataforma/General.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QTextStream>

namespace {

constexpr int kHecho = 0;
constexpr int kRechazo = 2;

int uso(const LineaDeOrdenes::Llamada& llamada, const QString& forma)
{
    llamada.errores << TextoSegunIdioma(QStringLiteral("Uso: %1 %2"),
                                        QStringLiteral("Erabilera: %1 %2"))
                           .arg(llamada.programa, forma)
                    << '\n'
                    << LineaDeOrdenes::Pista(llamada.programa) << Qt::endl;
    return kRechazo;
}

// The stores of the program's data folder, checked and brought to the current layout as
// start-up does; the reason on stderr when they cannot be used.
bool preparar(QTextStream& errores)
{
    ConfigurarRutas(CarpetaPrograma(), CarpetaDatos());
    try {
        const QString aviso = PrepararAlmacenes();
        if (!aviso.isEmpty()) {
            errores << aviso << Qt::endl;
            return false;
        }
    } catch (const cFallo& f) {
        errores << f.origen() << ": " << f.descripcion() << Qt::endl;
        return false;
    }
    return true;
}

int informar(const LineaDeOrdenes::Llamada& llamada, const CopiaSeguridad::Resultado& r)
{
    if (!r.hecho) {
        llamada.errores << r.mensaje << Qt::endl;
        return kRechazo;
    }
    llamada.salida << r.mensaje;
    if (!r.fichero.isEmpty())
        llamada.salida << ' ' << r.fichero;
    llamada.salida << Qt::endl;
    return kHecho;
}

}  // namespace

namespace OrdenesCopia {

int CopiaSeguridad(const LineaDeOrdenes::Llamada& llamada)
{
    const QStringList sueltos = llamada.linea.positionalArguments();
    if (sueltos.size() > 1)
        return uso(llamada, QStringLiteral("--copia-seguridad [FICHERO]"));
    if (!preparar(llamada.errores))
        return kRechazo;
    ::CopiaSeguridad copia = ::CopiaSeguridad::ParaBackup();
    if (!sueltos.isEmpty()) {
        const QFileInfo destino(sueltos.constFirst());
        copia.RutaDestino = destino.absolutePath() + QLatin1Char('/');
        copia.ArchivoDestino = destino.fileName();
    }
    return informar(llamada, copia.HacerBackup());
}

int Restauracion(const LineaDeOrdenes::Llamada& llamada)
{
    if (!llamada.linea.positionalArguments().isEmpty())
        return uso(llamada, QStringLiteral("--restaurar FICHERO"));
    if (!preparar(llamada.errores))
        return kRechazo;
    const QString origen =
        QFileInfo(llamada.linea.value(QStringLiteral("restaurar"))).absoluteFilePath();
    const ::CopiaSeguridad::Resultado r = ::CopiaSeguridad::ParaRestore().HacerRestore(origen);
    if (r.hecho && !preparar(llamada.errores))
        return kRechazo;
    return informar(llamada, r);
}

}  // namespace OrdenesCopia
