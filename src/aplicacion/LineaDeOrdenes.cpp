#include "aplicacion/LineaDeOrdenes.h"

#include "aplicacion/OrdenesCopia.h"
#include "aplicacion/OrdenesImprimir.h"
#include "aplicacion/OrdenesIntercambio.h"
#include "registros/actualizacion/LectorRegistroVersion.h"
#include "plataforma/General.h"
#include "catalogo/Catalogo.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextStream>
#include <memory>
#include <vector>

namespace LineaDeOrdenes {
namespace {

// A text of the command line in both languages.
struct EnDosIdiomas {
    const char* es = nullptr;
    const char* eu = nullptr;
};

QString enIdioma(const EnDosIdiomas& t)
{
    return TextoSegunIdioma(QString::fromUtf8(t.es), QString::fromUtf8(t.eu));
}

// One option of the command line.
struct Opcion {
    QStringList nombres;   // its names without dashes, the short one first
    EnDosIdiomas ayuda;    // what --help says of it
    EnDosIdiomas valor;    // what follows it on the line, as --help names it; none when nothing
    // The work it does without a window, answering the exit status. An option without work
    // only qualifies another one (a file name that the other option's work reads).
    int (*trabajo)(const Llamada&) = nullptr;
    // The work draws pages (fonts, a PDF): it needs a QApplication, not a QCoreApplication.
    bool pinta = false;
};

int MostrarAyuda(const Llamada& llamada);
int MostrarVersion(const Llamada& llamada);
int ImprimirDeclaracion(const Llamada& llamada);

// The options, in the order --help lists them. When several options with work are given, the
// first of them in this table does its work and the others are not looked at.
const std::vector<Opcion>& Opciones()
{
    static const std::vector<Opcion> opciones = {
        {{QStringLiteral("h"), QStringLiteral("help")},
         {"Muestra esta ayuda.", "Laguntza hau erakusten du."},
         {},
         MostrarAyuda},
        {{QStringLiteral("v"), QStringLiteral("version")},
         {"Muestra la versión del programa.", "Programaren bertsioa erakusten du."},
         {},
         MostrarVersion},
        {{QStringLiteral("copia-seguridad")},
         {"Hace una copia de seguridad de la base de datos en FICHERO (en backups/VELDOMod_bak.mdb, si no).",
          "Datu basearen segurtasun kopia egiten du FITXATEGIAn (backups/VELDOMod_bak.mdb-n, bestela)."},
         {"[FICHERO]", "[FITXATEGIA]"},
         OrdenesCopia::CopiaSeguridad},
        {{QStringLiteral("restaurar")},
         {"Restaura la base de datos desde la copia de seguridad FICHERO.",
          "Datu basea FITXATEGIA segurtasun kopiatik leheneratzen du."},
         {"FICHERO", "FITXATEGIA"},
         OrdenesCopia::Restauracion},
        {{QStringLiteral("pdf")},
         {"Guarda en FICHERO el impreso de la declaración CODIGO, en PDF.",
          "KODEA aitorpenaren inprimakia FITXATEGIAn gordetzen du, PDFn."},
         {"CODIGO FICHERO", "KODEA FITXATEGIA"},
         ImprimirDeclaracion,
         true},
        {{QStringLiteral("imprimir")},
         {"Imprime la declaración CODIGO en la impresora del sistema.",
          "KODEA aitorpena sistemaren inprimagailuan inprimatzen du."},
         {"CODIGO", "KODEA"},
         ImprimirDeclaracion,
         true},
        {{QStringLiteral("impresora")},
         {"Con --imprimir, la impresora (la predeterminada, si no).",
          "--imprimir-ekin, inprimagailua (lehenetsia, bestela)."},
         {"NOMBRE", "IZENA"}},
        {{QStringLiteral("copias")},
         {"Con --pdf o --imprimir, las copias: trafico, interesado, administracion, banco (todas, si no).",
          "--pdf edo --imprimir-ekin, kopiak: trafico, interesado, administracion, banco (guztiak, bestela)."},
         {"LISTA", "ZERRENDA"}},
        {{QStringLiteral("fecha")},
         {"Con --pdf o --imprimir, la fecha de presentación (hoy, si no).",
          "--pdf edo --imprimir-ekin, aurkezpen data (gaur, bestela)."},
         {"DD/MM/AAAA", "EE/HH/UUUU"}},
        {{QStringLiteral("borrador")},
         {"Con --pdf o --imprimir, solo la hoja de borrador.", "--pdf edo --imprimir-ekin, zirriborro orria bakarrik."},
         {}},
        {{QStringLiteral("sin-presentador")},
         {"Con --pdf o --imprimir, sin los datos del presentador.", "--pdf edo --imprimir-ekin, aurkezlearen datuak gabe."},
         {}},
        {{QStringLiteral("importar")},
         {"Importa los contribuyentes de FICHERO en modo automático.",
          "FITXATEGIko zergadunak modu automatikoan inportatzen ditu."},
         {"FICHERO", "FITXATEGIA"},
         OrdenesIntercambio::Importacion},
        {{QStringLiteral("errores")},
         {"Con --importar, el fichero de errores (Erorres.txt junto a FICHERO, si no).",
          "--importar-ekin, erroreen fitxategia (Erorres.txt FITXATEGIAren ondoan, bestela)."},
         {"FICHERO", "FITXATEGIA"}},
        {{QStringLiteral("exportar")},
         {"Exporta a FICHERO los contribuyentes de los DNI que siguen, en ese orden, o con "
          "--todos todos ellos.",
          "Ondoren datozen NAen zergadunak FITXATEGIra esportatzen ditu, ordena horretan, edo "
          "--todos-ekin guztiak."},
         {"FICHERO [DNI...]", "FITXATEGIA [NA...]"},
         OrdenesIntercambio::Exportacion},
        {{QStringLiteral("todos")},
         {"Con --exportar, todos los contribuyentes.", "--exportar-ekin, zergadun guztiak."},
         {}},
    };
    return opciones;
}

// The options that Qt itself takes from the line of any graphical program (a session manager
// restarts a program with -session, a user may ask for -style). They are accepted, left out
// of --help, and reach the application object as they were.
struct OpcionQt {
    const char* nombre;
    bool conValor;
};
constexpr OpcionQt kOpcionesQt[] = {
    {"platform", true}, {"platformpluginpath", true}, {"platformtheme", true}, {"plugin", true},
    {"qwindowgeometry", true}, {"qwindowicon", true}, {"qwindowtitle", true}, {"session", true},
    {"style", true}, {"stylesheet", true}, {"display", true}, {"name", true},
    {"reverse", false}, {"widgetcount", false}, {"nograb", false}, {"dograb", false},
    {"sync", false},
};

QString nombreConGuiones(const QString& nombre)
{
    return (nombre.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + nombre;
}

// "-h, --help" or "--pdf CODIGO FICHERO", as --help shows an option.
QString firma(const Opcion& o)
{
    QStringList nombres;
    for (const QString& n : o.nombres)
        nombres.append(nombreConGuiones(n));
    QString texto = nombres.join(QStringLiteral(", "));
    if (o.valor.es)
        texto += QLatin1Char(' ') + enIdioma(o.valor);
    return texto;
}

int MostrarAyuda(const Llamada& llamada)
{
    std::vector<std::pair<QString, QString>> filas;
    qsizetype ancho = 0;
    for (const Opcion& o : Opciones()) {
        filas.emplace_back(firma(o), enIdioma(o.ayuda));
        ancho = qMax(ancho, filas.back().first.size());
    }
    QTextStream& s = llamada.salida;
    s << TextoSegunIdioma(QStringLiteral("Uso: %1 [opciones]"),
                          QStringLiteral("Erabilera: %1 [aukerak]"))
             .arg(llamada.programa)
      << '\n'
      << TextoSegunIdioma(QStringLiteral("Sin opciones, abre el programa."),
                          QStringLiteral("Aukerarik gabe, programa irekitzen du."))
      << "\n\n"
      << TextoSegunIdioma(QStringLiteral("Opciones:"), QStringLiteral("Aukerak:")) << '\n';
    for (const auto& [nombres, ayuda] : filas)
        s << "  " << nombres.leftJustified(ancho + 2) << ayuda << '\n';
    s.flush();
    return 0;
}

int MostrarVersion(const Llamada& llamada)
{
    // The record of the program's file, as start-up reads it; 218 is the program's title.
    const auto version = LeerRegistroVersion(CarpetaPrograma() + QStringLiteral("/Veldo"));
    if (!version) {
        llamada.errores << Texto(342) << Qt::endl;
        return 1;
    }
    llamada.salida << Texto(218) << QLatin1Char(' ') << VersionDelPrograma(version->fichero)
                   << Qt::endl;
    return 0;
}

int ImprimirDeclaracion(const Llamada& llamada)
{
    // The printing reads the line itself (its code and file, its qualifiers); a line it does
    // not take as a printing one ("--pdf=12") is a wrong line.
    if (const std::optional<int> estado = OrdenesImprimir(llamada.argumentos))
        return *estado;
    llamada.errores << Pista(llamada.programa) << Qt::endl;
    return 2;
}

// The language of the user's locale for messages: the first of LC_ALL, LC_MESSAGES and LANG
// that is set decides, Basque for "eu" and Spanish for anything else. The language stored in
// the user's database is not used: the line does its work without opening it.
int16_t OffsetDelEntorno()
{
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QString valor = qEnvironmentVariable(variable);
        if (!valor.isEmpty())
            return valor.startsWith(QLatin1String("eu")) ? 10000 : 0;
    }
    return 0;
}

// Declares every option of the table and of Qt to the parser; answers the table's options in
// the parser's terms, in the table's order.
std::vector<QCommandLineOption> Declarar(QCommandLineParser& linea)
{
    // "-platform" is one option, as Qt reads it, not the letters p, l, a...
    linea.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    std::vector<QCommandLineOption> propias;
    for (const Opcion& o : Opciones()) {
        QCommandLineOption opcion(o.nombres);
        // A value between brackets ("[FICHERO]") may be left out: the work reads it from the
        // line's loose arguments, and the option itself takes none.
        if (o.valor.es && o.valor.es[0] != '[')
            opcion.setValueName(QString::fromUtf8(o.valor.es));
        linea.addOption(opcion);
        propias.push_back(opcion);
    }
    for (const OpcionQt& q : kOpcionesQt) {
        QCommandLineOption opcion(QString::fromLatin1(q.nombre));
        if (q.conValor)
            opcion.setValueName(QStringLiteral("valor"));
        opcion.setFlags(QCommandLineOption::HiddenFromHelp);
        linea.addOption(opcion);
    }
    return propias;
}

// The message for a line the parser refused: the unknown option by name, or the option whose
// value is missing or not expected (the parser names it between quotes in its own text).
QString Rechazo(const QCommandLineParser& linea)
{
    if (!linea.unknownOptionNames().isEmpty())
        return TextoSegunIdioma(QStringLiteral("Opción desconocida: %1"),
                                QStringLiteral("Aukera ezezaguna: %1"))
            .arg(nombreConGuiones(linea.unknownOptionNames().constFirst()));
    static const QRegularExpression entreComillas(QStringLiteral("'([^']*)'"));
    const QString opcion = entreComillas.match(linea.errorText()).captured(1);
    return TextoSegunIdioma(QStringLiteral("La opción %1 lleva mal su valor: le falta o le sobra."),
                            QStringLiteral("%1 aukeraren balioa ez dago ondo: falta da edo "
                                           "soberan dago."))
        .arg(opcion);
}

// The line read once, before any application object exists; the work runs later, under one.
class Lectura {
public:
    explicit Lectura(const QStringList& argumentos)
        : m_programa(QFileInfo(argumentos.value(0)).fileName())
    {
        const std::vector<QCommandLineOption> propias = Declarar(m_linea);
        m_valida = m_linea.parse(argumentos);
        for (std::size_t i = 0; m_valida && !m_opcion && i < propias.size(); ++i)
            if (Opciones()[i].trabajo && m_linea.isSet(propias[i]))
                m_opcion = &Opciones()[i];
    }

    // A line without work for the command line: the program starts as usual.
    bool arrancaSinMas() const { return m_valida && !m_opcion; }
    bool pinta() const { return m_opcion && m_opcion->pinta; }

    // Does the work (or refuses the line) with `argumentos`, the line as the application
    // object left it.
    int atender(const QStringList& argumentos, QTextStream& salida, QTextStream& errores) const
    {
        OffsetIdioma = OffsetDelEntorno();
        if (m_valida)
            return m_opcion->trabajo(Llamada{m_programa, argumentos, m_linea, salida, errores});
        errores << Rechazo(m_linea) << '\n' << Pista(m_programa) << Qt::endl;
        return 2;
    }

private:
    QString m_programa;
    QCommandLineParser m_linea;
    bool m_valida = false;
    const Opcion* m_opcion = nullptr;
};

// The application object the work runs under. Work that draws pages gets one that can paint,
// on the platform without windows unless the user chose one: the line never opens a window.
std::unique_ptr<QCoreApplication> Aplicacion(bool pinta, int& argc, char** argv)
{
    std::unique_ptr<QCoreApplication> aplicacion;
    if (pinta) {
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
        aplicacion = std::make_unique<QApplication>(argc, argv);
    } else {
        aplicacion = std::make_unique<QCoreApplication>(argc, argv);
    }
    QCoreApplication::setApplicationName(QStringLiteral("Veldoria"));
    return aplicacion;
}

}  // namespace

QString Pista(const QString& programa)
{
    return TextoSegunIdioma(QStringLiteral("Las opciones se listan con: %1 --help"),
                            QStringLiteral("Aukeren zerrenda: %1 --help"))
        .arg(programa);
}

std::optional<int> Atender(const QStringList& argumentos, QTextStream& salida,
                           QTextStream& errores)
{
    const Lectura lectura(argumentos);
    if (lectura.arrancaSinMas())
        return std::nullopt;
    return lectura.atender(argumentos, salida, errores);
}

std::optional<int> Atender(int argc, char** argv)
{
    QStringList argumentos;
    for (int i = 0; i < argc; ++i)
        argumentos.append(QString::fromLocal8Bit(argv[i]));
    const Lectura lectura(argumentos);
    if (lectura.arrancaSinMas())
        return std::nullopt;
    const std::unique_ptr<QCoreApplication> aplicacion = Aplicacion(lectura.pinta(), argc, argv);
    QTextStream salida(stdout);
    QTextStream errores(stderr);
    // Qt has taken its own options (-platform, -style...) out of the line by now.
    return lectura.atender(QCoreApplication::arguments(), salida, errores);
}

}  // namespace LineaDeOrdenes
