#include "aplicacion/OrdenesImprimir.h"

#include "aplicacion/Arranque.h"
#include "catalogo/Catalogo.h"
#include "paneles/imprimir/cSuperficiePdf.h"
#include "plataforma/Fallo.h"
#include "plataforma/General.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/imprimir/CopiasImpresas.h"
#include "registros/imprimir/cImOf.h"
#include "valores/cFecha.h"

#include <QDate>
#include <QFile>
#include <QSaveFile>
#include <QTextStream>

namespace {
// The earliest date of presentation the form accepts.
constexpr int32_t kFechaMinima = 20031201;

struct PeticionPdf {
    int32_t csde = 0;
    QString fichero;
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
                       "[--copias trafico,interesado,administracion,banco] [--fecha DD/MM/AAAA]"),
        QStringLiteral("Erabilera: Veldo --pdf KODEA FITXATEGIA [--borrador] [--sin-presentador] "
                       "[--copias trafico,interesado,administracion,banco] [--fecha EE/HH/UUUU]"));
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
    return p;
}

// The date of presentation checked as the print panel checks it, read day first.
int32_t fechaPresentacion(const QString& texto)
{
    cFecha& fecha = Fecha();
    const QString antes = fecha.fecidioma;
    fecha.fecidioma = QStringLiteral("C");
    const QString dada = texto.isEmpty()
                             ? QDate::currentDate().toString(QStringLiteral("dd/MM/yyyy"))
                             : texto;
    const bool valida = !dada.isEmpty() && dada != fecha.FecVacia() && fecha.EsFecha(dada);
    const int32_t numero = valida ? fecha.StringToLong(dada) : -1;
    const QString limite = fecha.LongToString(kFechaMinima);
    fecha.fecidioma = antes;
    if (!valida || numero <= 0)
        throw Rechazo{Texto(327)};
    if (numero < kFechaMinima)
        throw Rechazo{TextoSegunIdioma(
            QStringLiteral("La Fecha de presentación no puede ser anterior al ") + limite,
            QStringLiteral("Aurkezpen data ezin da ") + limite +
                QStringLiteral(" baino lehenagokoa izan"))};
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

int imprimirPdf(const PeticionPdf& p)
{
    ConfigurarRutas(CarpetaPrograma());
    if (!QFile::exists(mdbmod) || !QFile::exists(mdblec))
        throw Rechazo{TextoSegunIdioma(QStringLiteral("No se encuentra la base de datos: ") + mdbmod,
                                       QStringLiteral("Ez da datu-basea aurkitu: ") + mdbmod)};
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
    // The file appears whole or not at all.
    QSaveFile destino(p.fichero);
    bool bien = destino.open(QIODevice::WriteOnly);
    if (bien) {
        cSuperficiePdf pdf(&destino);
        const int hojas = ImprimirCopias(pdf, ImOf().CONPRESENTADOR == QLatin1String("S"));
        bien = pdf.Terminar() && hojas > 0;
    }
    if (!bien || !destino.commit())
        throw Rechazo{TextoSegunIdioma(QStringLiteral("No se ha podido escribir el fichero ") +
                                           p.fichero,
                                       QStringLiteral("Ezin izan da fitxategia idatzi: ") +
                                           p.fichero)};
    return 0;
}
}

void PrepararSinVentana(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i)
        if (qstrcmp(argv[i], "--pdf") == 0 && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
}

std::optional<int> OrdenesImprimir(const QStringList& argumentos)
{
    if (!argumentos.contains(QLatin1String("--pdf")))
        return std::nullopt;
    QTextStream error(stderr);
    try {
        return imprimirPdf(leer(argumentos));
    } catch (const Rechazo& r) {
        error << r.mensaje << Qt::endl;
    } catch (const cFallo& f) {
        error << f.origen() << QLatin1Char('\n') << f.descripcion() << Qt::endl;
    }
    return 1;
}
