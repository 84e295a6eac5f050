#include "aplicacion/OrdenesImprimir.h"

#include "aplicacion/Arranque.h"
#include "aplicacion/FechaSeleccion.h"
#include "aplicacion/PdfEnParalelo.h"
#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "paneles/imprimir/cSuperficieGrabadora.h"
#include "paneles/imprimir/cSuperficieImpresora.h"
#include "paneles/imprimir/cSuperficiePdf.h"
#include "plataforma/Fallo.h"
#include "plataforma/General.h"
#include "registros/declaracion/Validacion.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cOperacion.h"
#include "registros/imprimir/CopiasImpresas.h"
#include "registros/imprimir/FechaPresentacion.h"
#include "registros/imprimir/cImOf.h"
#include "servicios/ListadoDeclaraciones.h"
#include "valores/cFecha.h"

#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QFile>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSaveFile>
#include <QTextStream>
#include <algorithm>
#include <memory>
#include <vector>

namespace {
struct PeticionPdf {
    int32_t csde = 0;
    QString fichero;         // --pdf: the file written (of many returns: the folder)
    bool impresora = false;  // --imprimir: to a printer instead of a file
    QString nombreImpresora; // --impresora: that printer, else the system's default
    bool borrador = false;
    bool sinPresentador = false;
    std::optional<QStringList> copias;
    QString fecha;
    // Many returns at once: the codes given, or the returns of a selection.
    bool lote = false;
    std::vector<int32_t> codigos;
    bool seleccion = false;  // --desde, --hasta or --dni
    FiltroDeclaraciones filtro;
    QString unFichero;       // --un-fichero: every return's copies in this one PDF
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
                       "     Veldo --imprimir CODIGO [--impresora NOMBRE] [mismas opciones]\n"
                       "     Veldo --pdf CODIGOS CARPETA | --pdf CODIGOS --un-fichero FICHERO "
                       "[mismas opciones]\n"
                       "     Veldo --pdf CARPETA | --pdf --un-fichero FICHERO, con --desde DD/MM/AAAA "
                       "--hasta DD/MM/AAAA --dni NIF\n"
                       "     Veldo --imprimir CODIGOS | --imprimir, con --desde, --hasta, --dni\n"
                       "     (CODIGOS: 12,15-40)"),
        QStringLiteral("Erabilera: Veldo --pdf KODEA FITXATEGIA [--borrador] [--sin-presentador] "
                       "[--copias trafico,interesado,administracion,banco] [--fecha EE/HH/UUUU]\n"
                       "     Veldo --imprimir KODEA [--impresora IZENA] [aukera berak]\n"
                       "     Veldo --pdf KODEAK KARPETA | --pdf KODEAK --un-fichero FITXATEGIA "
                       "[aukera berak]\n"
                       "     Veldo --pdf KARPETA | --pdf --un-fichero FITXATEGIA, --desde EE/HH/UUUU "
                       "--hasta EE/HH/UUUU --dni IFZ-ekin\n"
                       "     Veldo --imprimir KODEAK | --imprimir, --desde, --hasta, --dni-ekin\n"
                       "     (KODEAK: 12,15-40)"));
}

QString valorDe(const QStringList& a, int& i)
{
    if (i + 1 >= a.size())
        throw Rechazo{uso()};
    return a.at(++i);
}

// The values that follow an option, up to `maximo`, until the next option.
QStringList valoresDe(const QStringList& a, int& i, int maximo)
{
    QStringList valores;
    while (valores.size() < maximo && i + 1 < a.size() && !a.at(i + 1).startsWith(QLatin1String("--")))
        valores.append(a.at(++i));
    return valores;
}

// "12,15-40": the codes in the order given, each once; nothing for a text that is not such
// a list.
std::optional<std::vector<int32_t>> leerCodigos(const QString& texto)
{
    static const QRegularExpression tramo(QStringLiteral(R"(^\s*(\d{1,9})\s*(?:-\s*(\d{1,9})\s*)?$)"));
    std::vector<int32_t> codigos;
    for (const QString& parte : texto.split(QLatin1Char(','))) {
        const QRegularExpressionMatch m = tramo.match(parte);
        if (!m.hasMatch())
            return std::nullopt;
        const int32_t desde = m.captured(1).toInt();
        const int32_t hasta = m.captured(2).isEmpty() ? desde : m.captured(2).toInt();
        if (desde <= 0 || hasta < desde || hasta - desde > 1000000)
            return std::nullopt;
        for (int32_t c = desde; c <= hasta; ++c)
            if (std::find(codigos.begin(), codigos.end(), c) == codigos.end())
                codigos.push_back(c);
    }
    return codigos;
}

// A date of the selection as yyyymmdd.
int32_t fechaSeleccion(const QString& texto)
{
    const std::optional<int32_t> fecha = FechaSeleccion(texto);
    if (!fecha)
        throw Rechazo{FechaSeleccionNoValida(texto)};
    return *fecha;
}

PeticionPdf leer(const QStringList& a)
{
    PeticionPdf p;
    bool pdf = false;
    QStringList valoresPdf;
    QStringList valoresImprimir;
    for (int i = 1; i < a.size(); ++i) {
        const QString& o = a.at(i);
        if (o == QLatin1String("--pdf")) {
            if (pdf)
                throw Rechazo{uso()};
            pdf = true;
            valoresPdf = valoresDe(a, i, 2);
        } else if (o == QLatin1String("--imprimir")) {
            if (p.impresora)
                throw Rechazo{uso()};
            p.impresora = true;
            valoresImprimir = valoresDe(a, i, 1);
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
        } else if (o == QLatin1String("--desde")) {
            p.filtro.desde = fechaSeleccion(valorDe(a, i));
            p.seleccion = true;
        } else if (o == QLatin1String("--hasta")) {
            p.filtro.hasta = fechaSeleccion(valorDe(a, i));
            p.seleccion = true;
        } else if (o == QLatin1String("--dni")) {
            p.filtro.dni = valorDe(a, i);
            p.seleccion = true;
        } else if (o == QLatin1String("--un-fichero")) {
            p.unFichero = valorDe(a, i);
        } else {
            throw Rechazo{uso()};
        }
    }
    // One destination: a file or a printer, never both; a printer's name only with a printer.
    if (pdf == p.impresora || (!p.impresora && !p.nombreImpresora.isEmpty()))
        throw Rechazo{uso()};
    if (p.impresora && !p.unFichero.isEmpty())
        throw Rechazo{uso()};
    // What is left after the codes (when the line gives codes) is the file or the folder.
    QStringList valores = pdf ? valoresPdf : valoresImprimir;
    QString codigos;
    if (!p.seleccion) {
        if (valores.isEmpty())
            throw Rechazo{uso()};
        codigos = valores.takeFirst();
    }
    const int destinos = pdf && p.unFichero.isEmpty() ? 1 : 0;
    if (valores.size() != destinos)
        throw Rechazo{uso()};
    if (destinos)
        p.fichero = valores.first();
    if (p.seleccion) {
        p.lote = true;
        return p;
    }
    const std::optional<std::vector<int32_t>> lista = leerCodigos(codigos);
    if (!lista)
        throw Rechazo{uso()};
    // One code to a file, or to the printer, is the printing of one return; to a folder that
    // exists, or to one file with --un-fichero, it is a batch of one.
    const bool unCodigo = !codigos.contains(QLatin1Char(',')) && !codigos.contains(QLatin1Char('-'));
    p.lote = !unCodigo || !p.unFichero.isEmpty() || (pdf && QFileInfo(p.fichero).isDir());
    p.codigos = *lista;
    p.csde = p.codigos.front();
    return p;
}

// The date of presentation checked as the print panel checks it, but always read day first;
// today's date when none is given.
int32_t fechaPresentacion(const QString& texto)
{
    const QString dada = texto.isEmpty()
                             ? QDate::currentDate().toString(QStringLiteral("dd/MM/yyyy"))
                             : texto;
    const Veredicto v = VeredictoFechaPresentacion(dada, Idioma::Castellano);
    const int32_t numero = v.vacio() ? cFecha::StringToLong(dada, Idioma::Castellano) : 0;
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
// The store, the date of presentation and the copies: what every return of a request shares.
void prepararComun(const PeticionPdf& p)
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
}

// The return `csde` loaded for its drawing.
void cargar(const PeticionPdf& p, int32_t csde)
{
    if (!CargarParaImprimir(csde))
        throw Rechazo{TextoSegunIdioma(
            QStringLiteral("No existe la declaración %1").arg(csde),
            QStringLiteral("Ez dago %1 aitorpenik").arg(csde))};
    ImOf().CSDE = csde;
    ImOf().CONPRESENTADOR = DecDatos().CSPR != 0 && !p.sinPresentador ? QStringLiteral("S")
                                                                      : QString();
}

void preparar(const PeticionPdf& p)
{
    prepararComun(p);
    cargar(p, p.csde);
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
        throw Rechazo{Texto(kIdSinImpresoras)};
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

// --- Many returns at once.

// The checks a return passes before it is printed from the declaration form: the tax numbers
// of its parties, then the rules of the whole return. The message of the first one it fails.
std::optional<QString> reglasIncumplidas()
{
    const QString titulo = Texto(kIdImprimirDeclaracion);
    if (const Veredicto v = VeredictoNifIntervinientes(titulo); !v.vacio())
        return v.mensaje;
    const bool tipoBloqueado = !EsTasaLibre(Operacion().T_TIP());
    const Veredicto v = VeredictoCampos(tipoBloqueado, titulo, Operacion().DESCRIP.trimmed());
    if (!v.vacio())
        return v.mensaje.trimmed();
    return std::nullopt;
}

// A return's file in the folder: 747_<code>_<subject's number>.pdf, with anything but letters
// and digits of the number as "_", so that the name is a name on every system.
QString nombreFichero(int32_t csde)
{
    QString nif = DecDatos().DNISP.trimmed();
    for (QChar& c : nif)
        if (!c.isLetterOrNumber() || c.unicode() > 127)
            c = QLatin1Char('_');
    return QStringLiteral("747_%1_%2.pdf").arg(csde).arg(nif);
}

QString noSeEscribe(const QString& fichero)
{
    return TextoSegunIdioma(QStringLiteral("No se ha podido escribir el fichero ") + fichero,
                            QStringLiteral("Ezin izan da fitxategia idatzi: ") + fichero);
}

// Where the sheets of a batch go: one file per return in a folder, one file for them all, or
// a printer (each sheet a job of its own, as from the print panel).
class DestinoLote {
public:
    DestinoLote(const PeticionPdf& p, QPrinter* dada) : m_peticion(p), m_dada(dada)
    {
        if (p.impresora) {
            if (!dada)
                elegirImpresora(p, m_propia);
            return;
        }
        if (!p.unFichero.isEmpty()) {
            m_unico = std::make_unique<QSaveFile>(p.unFichero);
            if (!m_unico->open(QIODevice::WriteOnly))
                throw Rechazo{noSeEscribe(p.unFichero)};
            m_pdfUnico = std::make_unique<cSuperficiePdf>(m_unico.get());
            return;
        }
        if (!QDir().mkpath(p.fichero))
            throw Rechazo{noSeEscribe(p.fichero)};
    }

    // Draws the loaded return; the message of a failure.
    void imprimir(int32_t csde)
    {
        const bool presentador = conPresentador();
        if (m_pdfUnico) {
            ImprimirCopias(*m_pdfUnico, presentador);
            return;
        }
        if (m_peticion.impresora) {
            QPrinter& impresora = m_dada ? *m_dada : m_propia;
            cSuperficieImpresora superficie(impresora);
            const int hojas = ImprimirCopias(superficie, presentador);
            if (!superficie.Bien() || hojas == 0)
                throw Rechazo{TextoSegunIdioma(
                    QStringLiteral("No se ha podido imprimir en ") + impresora.printerName(),
                    QStringLiteral("Ezin izan da inprimatu hemen: ") + impresora.printerName())};
            return;
        }
        // The sheets are recorded here, where the return is loaded, and painted into their
        // file on another thread while the next return is loaded.
        cSuperficieGrabadora hojas;
        if (ImprimirCopias(hojas, presentador) == 0)
            throw Rechazo{noSeEscribe(nombreFichero(csde))};
        m_paralelo.Encargar(csde, QDir(m_peticion.fichero).filePath(nombreFichero(csde)),
                            std::move(hojas.Llamadas));
    }

    // The files of the folder that could not be written, among those finished; with
    // `esperar`, once all are.
    std::vector<PdfEnParalelo::Fallido> fallidos(bool esperar)
    {
        return m_paralelo.Fallidos(esperar);
    }

    // Finishes the one file; false when it could not be written. A file without any page
    // (every return failed) is not left behind.
    bool terminar(int impresas)
    {
        if (!m_pdfUnico)
            return true;
        const bool bien = m_pdfUnico->Terminar() && m_pdfUnico->Paginas() > 0;
        if (impresas == 0) {
            m_unico->cancelWriting();
            return true;
        }
        return bien && m_unico->commit();
    }

private:
    const PeticionPdf& m_peticion;
    QPrinter* m_dada;
    QPrinter m_propia{QPrinter::HighResolution};
    std::unique_ptr<QSaveFile> m_unico;
    std::unique_ptr<cSuperficiePdf> m_pdfUnico;
    PdfEnParalelo m_paralelo;
};

// The exit status of a batch: the number of returns that failed, at most 125 (the statuses
// above are the shell's).
int estadoLote(int fallos) { return std::min(fallos, 125); }

void fallo(QTextStream& error, int32_t csde, const QString& mensaje)
{
    error << TextoSegunIdioma(QStringLiteral("Declaración %1: "), QStringLiteral("%1 aitorpena: "))
                 .arg(csde)
          << mensaje << Qt::endl;
}

// Names each return whose file could not be written; how many there were.
int noEscritos(const std::vector<PdfEnParalelo::Fallido>& fallidos, QTextStream& error)
{
    for (const PdfEnParalelo::Fallido& f : fallidos)
        fallo(error, f.csde, noSeEscribe(f.fichero));
    return int(fallidos.size());
}

int imprimirLote(const PeticionPdf& p, QPrinter* dada, QTextStream& error)
{
    prepararComun(p);
    std::vector<int32_t> codigos = p.codigos;
    if (p.seleccion) {
        for (const FilaDeclaracion& f : ListarDeclaraciones(mdbmod, p.filtro))
            codigos.push_back(f.CSDE);
        if (codigos.empty()) {
            error << TextoSegunIdioma(QStringLiteral("Ninguna declaración cumple la selección"),
                                      QStringLiteral("Ez dago hautapena betetzen duen aitorpenik"))
                  << Qt::endl;
            return 0;
        }
    }
    DestinoLote destino(p, dada);
    const int total = int(codigos.size());
    int fallos = 0;
    int numero = 0;
    for (const int32_t csde : codigos) {
        ++numero;
        if (total > 1)
            error << TextoSegunIdioma(QStringLiteral("Declaración %1 (%2/%3)"),
                                      QStringLiteral("%1 aitorpena (%2/%3)"))
                         .arg(csde)
                         .arg(numero)
                         .arg(total)
                  << Qt::endl;
        try {
            cargar(p, csde);
            if (const std::optional<QString> motivo = reglasIncumplidas())
                throw Rechazo{*motivo};
            destino.imprimir(csde);
        } catch (const Rechazo& r) {
            ++fallos;
            fallo(error, csde, r.mensaje);
        }
        fallos += noEscritos(destino.fallidos(false), error);
    }
    fallos += noEscritos(destino.fallidos(true), error);
    if (!destino.terminar(total - fallos)) {
        error << noSeEscribe(p.unFichero) << Qt::endl;
        return estadoLote(total);
    }
    return estadoLote(fallos);
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
        if (p.lote)
            return imprimirLote(p, impresora, error);
        return p.impresora ? imprimirEnImpresora(p, impresora) : imprimirPdf(p);
    } catch (const Rechazo& r) {
        error << r.mensaje << Qt::endl;
    } catch (const cFallo& f) {
        error << f.origen() << QLatin1Char('\n') << f.descripcion() << Qt::endl;
    }
    return 1;
}
