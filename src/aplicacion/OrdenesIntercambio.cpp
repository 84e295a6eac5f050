#include "aplicacion/OrdenesIntercambio.h"

#include "aplicacion/Arranque.h"
#include "aplicacion/AvisoAlmacen.h"
#include "aplicacion/LineaDeOrdenes.h"
#include "catalogo/IdsCatalogo.h"
#include "plataforma/Fallo.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "catalogo/Catalogo.h"
#include "registros/intercambio/LineaIntercambio.h"
#include "registros/intercambio/cExportar.h"
#include "registros/intercambio/cImportar.h"
#include "servicios/Almacen.h"
#include "servicios/cTraspaso.h"
#include "valores/cFecha.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QTextStream>

namespace {

enum Estado { Hecho = 0, Refusado = 1, Imposible = 2, SinAlmacen = 3 };

QString Absoluta(const QString& ruta)
{
    return QFileInfo(ruta).absoluteFilePath();
}

int Uso(const LineaDeOrdenes::Llamada& llamada, const QString& forma)
{
    llamada.errores << TextoSegunIdioma(QStringLiteral("Uso: %1 %2"),
                                        QStringLiteral("Erabilera: %1 %2"))
                           .arg(llamada.programa, forma)
                    << '\n'
                    << LineaDeOrdenes::Pista(llamada.programa) << Qt::endl;
    return Imposible;
}

// The store and language of the program's data folder, as start-up sets them, without a
// window. The messages stay in the language the line chose.
bool Preparar(QTextStream& errores)
{
    const Idioma idioma = IdiomaPrograma();
    ConfigurarRutas(CarpetaPrograma(), CarpetaDatos());
    try {
        if (const QString aviso = PrepararAlmacenes(); !aviso.isEmpty()) {
            errores << aviso << Qt::endl;
            return false;
        }
        InicializarAplicacion();
    } catch (const cFallo& f) {
        errores << f.origen() << ": " << f.descripcion() << Qt::endl;
        return false;
    }
    EstablecerIdiomaPrograma(idioma);
    return true;
}

int HacerImportacion(const LineaDeOrdenes::Llamada& llamada)
{
    QTextStream& salida = llamada.salida;
    QTextStream& errores = llamada.errores;
    cImportar& i = Importar();
    i.Iniciar();
    i.FICHEROAIMPORTAR = Absoluta(llamada.linea.value(QStringLiteral("importar")));
    // Without a name, the error file goes beside the exchange file, where the user can read it.
    i.FICHEROERRORES = llamada.linea.isSet(QStringLiteral("errores"))
        ? Absoluta(llamada.linea.value(QStringLiteral("errores")))
        : QFileInfo(i.FICHEROAIMPORTAR).absoluteDir().filePath(QStringLiteral("Erorres.txt"));
    i.AUTOMATICO = QStringLiteral("X");
    const Veredicto aviso = i.Ejecutar({});
    if (i.TERMINADA != QLatin1String("S")) {
        errores << aviso.mensaje << Qt::endl;
        return Imposible;
    }
    salida << Texto(kIdEtiquetaTotal) << ' ' << i.LineasLeidas << '\n'
           << Texto(kIdEtiquetaImportados) << ' ' << i.NUMEROIMP << '\n'
           << Texto(kIdEtiquetaIncorrectos) << ' ' << i.NUMEROINC << '\n'
           << Texto(kIdEtiquetaSustituidos) << ' ' << i.NUMEROSUS << '\n'
           << Texto(kIdEtiquetaIgnorados) << ' ' << i.NUMEROIGN << '\n';
    if (!aviso.vacio())
        salida << aviso.mensaje << '\n';
    if (i.NUMEROINC > 0) {
        salida << Texto(kIdConsulteFicheroErrores) << i.FICHEROERRORES << Qt::endl;
        return Refusado;
    }
    salida.flush();
    return Hecho;
}

// The found contributor of this number, 0 when none (numbers compare as the store's do,
// without regard to case).
int IndiceDeDni(const cExportar& e, const QString& dni)
{
    for (int i = 1; i <= e.TablaContriCOUNT(); ++i)
        if (e.TablaContriELEMENTO(i).texto(CampoIntercambio::DNI).trimmed().compare(
                dni.trimmed(), Qt::CaseInsensitive) == 0)
            return i;
    return 0;
}

// Selects the contributors of these numbers, in this order; answers false, with the message
// written, at the first number no contributor has.
bool SeleccionarDnis(cExportar& e, const QStringList& dnis, QTextStream& errores)
{
    for (const QString& dni : dnis) {
        const int indice = IndiceDeDni(e, dni);
        if (indice == 0) {
            errores << TextoSegunIdioma(QStringLiteral("No existe ningún contribuyente con DNI "),
                                        QStringLiteral("Ez dago NA hau duen zergadunik: "))
                    << dni << Qt::endl;
            return false;
        }
        e.CSCO = e.TablaContriELEMENTO(indice).CSCO;
        e.SeleccionarUno();
    }
    return true;
}

int HacerExportacion(const LineaDeOrdenes::Llamada& llamada)
{
    QTextStream& errores = llamada.errores;
    cExportar& e = Exportar();
    e.Iniciar();
    e.FICHEROAEXPORTAR = Absoluta(llamada.linea.value(QStringLiteral("exportar")));
    e.CargarFlxDeclaraciones();
    if (llamada.linea.isSet(QStringLiteral("todos")))
        e.SeleccionarTodos();
    else if (!SeleccionarDnis(e, llamada.linea.positionalArguments(), errores))
        return Imposible;
    if (const Resultado<void> r = e.ComprobarIdentidades(); !r) {
        errores << r.veredicto().mensaje << Qt::endl;
        return Refusado;
    }
    // The destination is checked first; a file that cannot be named is not written.
    Resultado<void> r = e.ComprobarDestino();
    if (r)
        r = e.EscribirFichero();
    if (!r) {
        errores << r.veredicto().mensaje.trimmed() << Qt::endl;
        return Imposible;
    }
    llamada.salida << e.NUMCONTRIEXP
                   << Texto(kIdContribuyentesParaExportar).trimmed().prepend(QLatin1Char(' '))
                   << ": " << e.FICHEROAEXPORTAR << Qt::endl;
    return Hecho;
}

}  // namespace

namespace OrdenesIntercambio {

int ConAlmacen(const LineaDeOrdenes::Llamada& llamada,
               int (*trabajo)(const LineaDeOrdenes::Llamada&))
{
    if (!Preparar(llamada.errores))
        return SinAlmacen;
    try {
        return trabajo(llamada);
    } catch (const cFallo& f) {
        llamada.errores << f.origen() << ": " << f.descripcion() << Qt::endl;
    }
    return Imposible;
}

int Importacion(const LineaDeOrdenes::Llamada& llamada)
{
    if (!llamada.linea.positionalArguments().isEmpty() || llamada.linea.isSet(QStringLiteral("todos")))
        return Uso(llamada, QStringLiteral("--importar FICHERO [--errores FICHERO]"));
    return ConAlmacen(llamada, HacerImportacion);
}

int Exportacion(const LineaDeOrdenes::Llamada& llamada)
{
    const bool todos = llamada.linea.isSet(QStringLiteral("todos"));
    const bool dnis = !llamada.linea.positionalArguments().isEmpty();
    if (todos == dnis || llamada.linea.isSet(QStringLiteral("errores")))
        return Uso(llamada, QStringLiteral("--exportar FICHERO --todos | --exportar FICHERO DNI..."));
    return ConAlmacen(llamada, HacerExportacion);
}

}  // namespace OrdenesIntercambio
