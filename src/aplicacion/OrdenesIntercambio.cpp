#include "aplicacion/OrdenesIntercambio.h"

#include "aplicacion/Arranque.h"
#include "plataforma/Fallo.h"
#include "plataforma/General.h"
#include "catalogo/Catalogo.h"
#include "registros/intercambio/LineaIntercambio.h"
#include "registros/intercambio/cExportar.h"
#include "registros/intercambio/cImportar.h"
#include "servicios/cTraspaso.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QTextStream>
#include <cstdio>

namespace {

const QString kImportar = QStringLiteral("--importar");
const QString kErrores = QStringLiteral("--errores");
const QString kExportar = QStringLiteral("--exportar");
const QString kTodos = QStringLiteral("--todos");

enum Estado { Hecho = 0, Refusado = 1, Imposible = 2, SinAlmacen = 3 };

QString Absoluta(const QString& ruta)
{
    return QFileInfo(ruta).absoluteFilePath();
}

int Uso(QTextStream& errores)
{
    errores << OrdenesIntercambio::Ayuda();
    return Imposible;
}

int Importacion(const QStringList& a, QTextStream& salida, QTextStream& errores)
{
    // --importar FICHERO [--errores FICHERO]
    if (a.size() != 2 && !(a.size() == 4 && a[2] == kErrores))
        return Uso(errores);
    cImportar& i = Importar();
    i.Iniciar();
    i.FICHEROAIMPORTAR = Absoluta(a[1]);
    // Without a name, the error file goes beside the exchange file, where the user can read it.
    i.FICHEROERRORES = a.size() == 4
        ? Absoluta(a[3])
        : QFileInfo(i.FICHEROAIMPORTAR).absoluteDir().filePath(QStringLiteral("Erorres.txt"));
    i.AUTOMATICO = QStringLiteral("X");
    const AvisoIntercambio aviso = i.Ejecutar({});
    if (i.TERMINADA != QLatin1String("S")) {
        errores << aviso.texto() << '\n';
        return Imposible;
    }
    salida << Texto(257) << ' ' << i.LineasLeidas << '\n'
           << Texto(258) << ' ' << i.NUMEROIMP << '\n'
           << Texto(259) << ' ' << i.NUMEROINC << '\n'
           << Texto(260) << ' ' << i.NUMEROSUS << '\n'
           << Texto(291) << ' ' << i.NUMEROIGN << '\n';
    if (aviso)
        salida << aviso.texto() << '\n';
    if (i.NUMEROINC > 0) {
        salida << Texto(263) << i.FICHEROERRORES << '\n';
        return Refusado;
    }
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

int Exportacion(const QStringList& a, QTextStream& salida, QTextStream& errores)
{
    // --exportar FICHERO --todos | --exportar FICHERO DNI...
    if (a.size() < 3 || (a[2] == kTodos && a.size() != 3))
        return Uso(errores);
    cExportar& e = Exportar();
    e.Iniciar();
    e.FICHEROAEXPORTAR = Absoluta(a[1]);
    e.CargarFlxDeclaraciones();
    if (a[2] == kTodos) {
        e.SeleccionarTodos();
    } else {
        for (const QString& dni : a.mid(2)) {
            const int indice = IndiceDeDni(e, dni);
            if (indice == 0) {
                errores << TextoSegunIdioma(QStringLiteral("No existe ningún contribuyente con DNI "),
                                            QStringLiteral("Ez dago NA hau duen zergadunik: "))
                        << dni << '\n';
                return Imposible;
            }
            e.CSCO = e.TablaContriELEMENTO(indice).CSCO;
            e.SeleccionarUno();
        }
    }
    if (const AvisoIntercambio aviso = e.ComprobarIdentidades()) {
        errores << aviso.texto() << '\n';
        return Refusado;
    }
    for (const AvisoIntercambio& aviso : {e.ComprobarDestino(), e.EscribirFichero()}) {
        if (aviso) {
            errores << aviso.texto().trimmed() << '\n';
            return Imposible;
        }
    }
    salida << e.NUMCONTRIEXP << Texto(247).trimmed().prepend(QLatin1Char(' ')) << ": "
           << e.FICHEROAEXPORTAR << '\n';
    return Hecho;
}

// The store and language of the program's folder, as start-up sets them, without a window.
bool Preparar(QTextStream& errores)
{
    ConfigurarRutas(CarpetaPrograma());
    try {
        cTraspaso traspaso;
        traspaso.mdbmod = mdbmod;
        traspaso.mdbPath = mdbPath;
        if (traspaso.Traspaso()) {
            errores << mdbmod << '\n';
            return false;
        }
        InicializarAplicacion();
    } catch (const cFallo& f) {
        errores << f.origen() << ": " << f.descripcion() << '\n';
        return false;
    }
    return true;
}

}  // namespace

namespace OrdenesIntercambio {

bool Pedida(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        const QString a = QString::fromLocal8Bit(argv[i]);
        if (a == kImportar || a == kExportar)
            return true;
    }
    return false;
}

int Ejecutar(int argc, char** argv)
{
    // No window is shown; the platform without a display serves where there is none.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    app.setApplicationName(QStringLiteral("Veldoria"));
    QTextStream salida(stdout);
    QTextStream errores(stderr);
    if (!Preparar(errores))
        return SinAlmacen;
    int estado = Imposible;
    try {
        estado = Ejecutar(app.arguments().mid(1), salida, errores);
    } catch (const cFallo& f) {
        errores << f.origen() << ": " << f.descripcion() << '\n';
    }
    return estado;
}

int Ejecutar(const QStringList& argumentos, QTextStream& salida, QTextStream& errores)
{
    if (argumentos.value(0) == kImportar)
        return Importacion(argumentos, salida, errores);
    if (argumentos.value(0) == kExportar)
        return Exportacion(argumentos, salida, errores);
    return Uso(errores);
}

QString Ayuda()
{
    return QStringLiteral(
        "  --importar FICHERO [--errores FICHERO]\n"
        "        Importa los contribuyentes del fichero en modo automático, sin ventana.\n"
        "  --exportar FICHERO --todos\n"
        "        Exporta todos los contribuyentes al fichero, sin ventana.\n"
        "  --exportar FICHERO DNI...\n"
        "        Exporta al fichero los contribuyentes de esos DNI, en ese orden.\n");
}

}  // namespace OrdenesIntercambio
