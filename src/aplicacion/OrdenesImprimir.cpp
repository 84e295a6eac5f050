#include "aplicacion/OrdenesImprimir.h"

#include "aplicacion/Arranque.h"
#include "catalogo/Catalogo.h"
#include "paneles/imprimir/cSuperficieImpresora.h"
#include "paneles/imprimir/cSuperficiePdf.h"
#include "plataforma/Fallo.h"
#include "plataforma/General.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/imprimir/CopiasImpresas.h"
#include "registros/imprimir/FechaPresentacion.h"
#include "registros/imprimir/cImOf.h"
#include "valores/cFecha.h"

#include <QDate>
#include <QFile>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSaveFile>
#include <QTextStream>

namespace {
struct PeticionPdf {
    int32_t csde = 0;
    QString fichero;         // --pdf: the file written
    bool impresora = false;  // --imprimir: to a printer instead of a file
    QString nombreImpresora; // --impresora: that printer, else the system's default
    bool borrador = false;
    bool sinPresentador = false;
    std::optional<QStringList> copias;
    QString fecha;
};

// A refusal carries the message for stderr.
struct Rechazo {
    QString mensaje;
};

QString uso()
{
    return TextoSegunIdioma(
        QStringLiteral("Uso: Veldo --pdf CODIGO FICHERO [--borrador] [--sin-presentador] "
                       "[--copias trafico,interesado,administracion,banco] [--fecha DD/MM/AAAA]\n"
                       "     Veldo --imprimir CODIGO [--impresora NOMBRE] [mismas opciones]"),
        QStringLiteral("Erabilera: Veldo --pdf KODEA FITXATEGIA [--borrador] [--sin-presentador] "
                       "[--copias trafico,interesado,administracion,banco] [--fecha EE/HH/UUUU]\n"
                       "     Veldo --imprimir KODEA [--impresora IZENA] [aukera berak]"));
}

QString valorDe(const QStringList& a, int& i)
{
    if (i + 1 >= a.size())
        throw Rechazo{uso()};
    return a.at(++i);
}

PeticionPdf leer(const QStringList& a)
{
    PeticionPdf p;
    for (int i = 1; i < a.size(); ++i) {
        const QString& o = a.at(i);
        if (o == QLatin1String("--pdf")) {
            bool ok = false;
            p.csde = valorDe(a, i).toInt(&ok);
            p.fichero = valorDe(a, i);
            if (!ok || p.csde <= 0)
                throw Rechazo{uso()};
        } else if (o == QLatin1String("--imprimir")) {
            bool ok = false;
            p.csde = valorDe(a, i).toInt(&ok);
            p.impresora = true;
            if (!ok || p.csde <= 0)
                throw Rechazo{uso()};
        } else if (o == QLatin1String("--impresora")) {
            p.nombreImpresora = valorDe(a, i);
        } else if (o == QLatin1String("--borrador")) {
            p.borrador = true;
        } else if (o == QLatin1String("--sin-presentador")) {
            p.sinPresentador = true;
        } else if (o == QLatin1String("--copias")) {
            p.copias = p.copias.value_or(QStringList())
                       + valorDe(a, i).split(QLatin1Char(','), Qt::SkipEmptyParts);
        } else if (o == QLatin1String("--fecha")) {
            p.fecha = valorDe(a, i);
        } else {
            throw Rechazo{uso()};
        }
    }
    // One destination: a file or a printer, never both; a printer's name only with a printer.
    if (p.impresora == !p.fichero.isEmpty() || (!p.impresora && !p.nombreImpresora.isEmpty()))
        throw Rechazo{uso()};
    return p;
}

// The date of presentation checked as the print panel checks it, but always read day first;
// today's date when none is given.
int32_t fechaPresentacion(const QString& texto)
{
    cFecha& fecha = Fecha();
    const QString antes = fecha.fecidioma;
    fecha.fecidioma = QStringLiteral("C");
    const QString dada = texto.isEmpty()
                             ? QDate::currentDate().toString(QStringLiteral("dd/MM/yyyy"))
                             : texto;
    const Veredicto v = VeredictoFechaPresentacion(dada);
    const int32_t numero = v.vacio() ? fecha.StringToLong(dada) : 0;
    fecha.fecidioma = antes;
    if (!v.vacio())
        throw Rechazo{v.mensaje};
    return numero;
}

void fijarCopias(const PeticionPdf& p)
{
    cImOf& o = ImOf();
    o.TIPOIMP = p.borrador ? QStringLiteral("B") : QStringLiteral("O");
    const QStringList todas{"trafico", "interesado", "administracion", "banco"};
    const QStringList pedidas = p.copias.value_or(todas);
    for (const QString& c : pedidas)
        if (!todas.contains(c))
            throw Rechazo{uso()};
    const auto marca = [&](const char* c) {
        return !p.borrador && pedidas.contains(QLatin1String(c)) ? QStringLiteral("X") : QString();
    };
    o.COPIAINF = marca("trafico");
    o.COPIAINT = marca("interesado");
    o.COPIAADM = marca("administracion");
    o.COPIABAN = marca("banco");
}

// The return loaded and ImOf() set as the request says; the data are checked before anything
// is drawn.
void preparar(const PeticionPdf& p)
{
    ConfigurarRutas(CarpetaPrograma(), CarpetaDatos());
    if (!QFile::exists(mdbmod) || !QFile::exists(mdblec))
        throw Rechazo{TextoSegunIdioma(QStringLiteral("No se encuentra la base de datos: ") + mdbmod,
                                       QStringLiteral("Ez da datu-basea aurkitu: ") + mdbmod)};
    // A damaged store is refused as start-up refuses it, before anything is read from it.
    if (const QString aviso = PrepararAlmacenes(); !aviso.isEmpty())
        throw Rechazo{aviso};
    InicializarAplicacion();
    ImOf().FECHAPRE = fechaPresentacion(p.fecha);
    fijarCopias(p);
    if (!CargarParaImprimir(p.csde))
        throw Rechazo{TextoSegunIdioma(
            QStringLiteral("No existe la declaración %1").arg(p.csde),
            QStringLiteral("Ez dago %1 aitorpenik").arg(p.csde))};
    ImOf().CSDE = p.csde;
    ImOf().CONPRESENTADOR = DecDatos().CSPR != 0 && !p.sinPresentador ? QStringLiteral("S")
                                                                      : QString();
}

bool conPresentador() { return ImOf().CONPRESENTADOR == QLatin1String("S"); }

int imprimirPdf(const PeticionPdf& p)
{
    preparar(p);
    // The file appears whole or not at all.
    QSaveFile destino(p.fichero);
    bool bien = destino.open(QIODevice::WriteOnly);
    if (bien) {
        cSuperficiePdf pdf(&destino);
        const int hojas = ImprimirCopias(pdf, conPresentador());
        bien = pdf.Terminar() && hojas > 0;
    }
    if (!bien || !destino.commit())
        throw Rechazo{TextoSegunIdioma(QStringLiteral("No se ha podido escribir el fichero ") +
                                           p.fichero,
                                       QStringLiteral("Ezin izan da fitxategia idatzi: ") +
                                           p.fichero)};
    return 0;
}

// The printer asked for by name, or the system's default; refused when there is none.
void elegirImpresora(const PeticionPdf& p, QPrinter& impresora)
{
    if (cSuperficieImpresora::NumeroImpresoras() == 0)
        throw Rechazo{Texto(191)};
    const QPrinterInfo info = p.nombreImpresora.isEmpty()
                                  ? QPrinterInfo::defaultPrinter()
                                  : QPrinterInfo::printerInfo(p.nombreImpresora);
    if (info.isNull())
        throw Rechazo{TextoSegunIdioma(
            QStringLiteral("No existe la impresora ") + p.nombreImpresora,
            QStringLiteral("Ez dago inprimagailu hau: ") + p.nombreImpresora)};
    impresora.setPrinterName(info.printerName());
}

int imprimirEnImpresora(const PeticionPdf& p, QPrinter* dada)
{
    QPrinter propia(QPrinter::HighResolution);
    QPrinter& impresora = dada ? *dada : propia;
    preparar(p);
    // A printer handed in (tests: one that writes a file) is used as it stands.
    if (!dada)
        elegirImpresora(p, impresora);
    cSuperficieImpresora superficie(impresora);
    const int hojas = ImprimirCopias(superficie, conPresentador());
    if (!superficie.Bien() || hojas == 0)
        throw Rechazo{TextoSegunIdioma(
            QStringLiteral("No se ha podido imprimir en ") + impresora.printerName(),
            QStringLiteral("Ezin izan da inprimatu hemen: ") + impresora.printerName())};
    return 0;
}
}

std::optional<int> OrdenesImprimir(const QStringList& argumentos, QPrinter* impresora)
{
    if (!argumentos.contains(QLatin1String("--pdf"))
        && !argumentos.contains(QLatin1String("--imprimir")))
        return std::nullopt;
    QTextStream error(stderr);
    try {
        const PeticionPdf p = leer(argumentos);
        return p.impresora ? imprimirEnImpresora(p, impresora) : imprimirPdf(p);
    } catch (const Rechazo& r) {
        error << r.mensaje << Qt::endl;
    } catch (const cFallo& f) {
        error << f.origen() << QLatin1Char('\n') << f.descripcion() << Qt::endl;
    }
    return 1;
}
