#include "aplicacion/LineaDeOrdenes.h"

#include "aplicacion/OrdenesCopia.h"
#include "aplicacion/OrdenesImprimir.h"
#include "aplicacion/OrdenesIntercambio.h"
#include "aplicacion/OrdenesListar.h"
#include "aplicacion/OrdenesOficina.h"
#include "catalogo/IdsCatalogo.h"
#include "registros/actualizacion/LectorRegistroVersion.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
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
         {"Guarda en FICHERO el impreso de la declaración CODIGO, en PDF. Con varios códigos "
          "(12,15-40) o con --desde, --hasta o --dni (y entonces sin códigos), guarda en la "
          "carpeta un fichero por declaración, 747_<código>_<NIF>.pdf, o con --un-fichero todas "
          "en un solo PDF.",
          "KODEA aitorpenaren inprimakia FITXATEGIAn gordetzen du, PDFn. Kode batzuekin "
          "(12,15-40) edo --desde, --hasta edo --dni-ekin (eta orduan koderik gabe), aitorpen "
          "bakoitzeko fitxategi bat gordetzen du karpetan, 747_<kodea>_<IFZ>.pdf, edo "
          "--un-fichero-rekin guztiak PDF bakar batean."},
         {"CODIGO FICHERO", "KODEA FITXATEGIA"},
         ImprimirDeclaracion,
         true},
        {{QStringLiteral("imprimir")},
         {"Imprime la declaración CODIGO en la impresora del sistema; o varias, como --pdf.",
          "KODEA aitorpena sistemaren inprimagailuan inprimatzen du; edo batzuk, --pdf bezala."},
         {"CODIGO", "KODEA"},
         ImprimirDeclaracion,
         true},
        {{QStringLiteral("un-fichero")},
         {"Con --pdf, todas las declaraciones en FICHERO, una tras otra.",
          "--pdf-ekin, aitorpen guztiak FITXATEGIAn, bata bestearen atzetik."},
         {"FICHERO", "FITXATEGIA"}},
        {{QStringLiteral("desde")},
         {"Con --pdf, --imprimir o --listar, las declaraciones devengadas desde esa fecha.",
          "--pdf, --imprimir edo --listar-ekin, data horretatik aurrera sortutako aitorpenak."},
         {"DD/MM/AAAA", "EE/HH/UUUU"}},
        {{QStringLiteral("hasta")},
         {"Con --pdf, --imprimir o --listar, las declaraciones devengadas hasta esa fecha.",
          "--pdf, --imprimir edo --listar-ekin, data horretara arte sortutako aitorpenak."},
         {"DD/MM/AAAA", "EE/HH/UUUU"}},
        {{QStringLiteral("dni")},
         {"Con --pdf, --imprimir o --listar, las declaraciones de ese sujeto pasivo.",
          "--pdf, --imprimir edo --listar-ekin, subjektu pasibo horren aitorpenak."},
         {"NIF", "IFZ"}},
        {{QStringLiteral("listar")},
         {"Escribe en FICHERO (CSV) una fila por declaración: código, referencia, fecha, sujeto "
          "pasivo, transmitente, operación e importes.",
          "Aitorpen bakoitzeko errenkada bat idazten du FITXATEGIAn (CSV): kodea, erreferentzia, "
          "data, subjektu pasiboa, eskualdatzailea, eragiketa eta zenbatekoak."},
         {"FICHERO", "FITXATEGIA"},
         OrdenesListar::Listado},
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
         {"Importa los contribuyentes de FICHERO en modo automático: un fichero de intercambio, "
          "o un CSV (.csv) cuya primera fila nombra los campos (TIPODNI, DNI, NOMBRE...).",
          "FITXATEGIko zergadunak modu automatikoan inportatzen ditu: truke-fitxategi bat, edo "
          "CSV bat (.csv), zeinaren lehen errenkadak eremuak izendatzen dituen (TIPODNI, DNI, "
          "NOMBRE...)."},
         {"FICHERO", "FITXATEGIA"},
         OrdenesIntercambio::Importacion},
        {{QStringLiteral("errores")},
         {"Con --importar, el fichero de errores (Erorres.txt junto a FICHERO, si no).",
          "--importar-ekin, erroreen fitxategia (Erorres.txt FITXATEGIAren ondoan, bestela)."},
         {"FICHERO", "FITXATEGIA"}},
        {{QStringLiteral("exportar")},
         {"Exporta a FICHERO los contribuyentes de los DNI que siguen, en ese orden, o con "
          "--todos todos ellos; en CSV si FICHERO acaba en .csv.",
          "Ondoren datozen NAen zergadunak FITXATEGIra esportatzen ditu, ordena horretan, edo "
          "--todos-ekin guztiak; CSVn, FITXATEGIA .csv-z amaitzen bada."},
         {"FICHERO [DNI...]", "FITXATEGIA [NA...]"},
         OrdenesIntercambio::Exportacion},
        {{QStringLiteral("todos")},
         {"Con --exportar, todos los contribuyentes.", "--exportar-ekin, zergadun guztiak."},
         {}},
        {{QStringLiteral("crear-oficina")},
         {"Crea las tablas del programa en la base de datos vacía de la oficina SERVICIO (un "
          "servicio de pg_service.conf o una cadena de conexión de PostgreSQL); si ya están, no "
          "cambia nada y lo dice.",
          "Programaren taulak sortzen ditu ZERBITZUA bulegoko datu-base hutsean (pg_service.conf "
          "fitxategiko zerbitzu bat edo PostgreSQL konexio-kate bat); jada badaude, ez du ezer "
          "aldatzen eta hala dio."},
         {"SERVICIO", "ZERBITZUA"},
         OrdenesOficina::CrearOficina},
        {{QStringLiteral("oficina")},
         {"Trabaja en esta ejecución con la base de datos de la oficina SERVICIO, con o sin "
          "otra opción.",
          "Exekuzio honetan bulegoko ZERBITZUA datu-basearekin lan egiten du, beste aukera "
          "batekin edo gabe."},
         {"SERVICIO", "ZERBITZUA"}},
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
        llamada.errores << Texto(kIdSinInformacionVersion) << Qt::endl;
        return 1;
    }
    llamada.salida << Texto(kIdVeldoria) << QLatin1Char(' ') << VersionDelPrograma(version->fichero)
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
Idioma IdiomaDelEntorno()
{
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QString valor = qEnvironmentVariable(variable);
        if (!valor.isEmpty())
            return valor.startsWith(QLatin1String("eu")) ? Idioma::Euskera : Idioma::Castellano;
    }
    return Idioma::Castellano;
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
    // The choices of the line that hold for the window's run too (--oficina).
    void elegir() const { OrdenesOficina::ElegirDeLaLinea(m_linea); }
    bool pinta() const { return m_opcion && m_opcion->pinta; }

    // Does the work (or refuses the line) with `argumentos`, the line as the application
    // object left it.
    int atender(const QStringList& argumentos, QTextStream& salida, QTextStream& errores) const
    {
        EstablecerIdiomaPrograma(IdiomaDelEntorno());
        if (m_valida) {
            OrdenesOficina::ElegirDeLaLinea(m_linea);
            return m_opcion->trabajo(Llamada{m_programa, argumentos, m_linea, salida, errores});
        }
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

namespace {

// A text as roff shows it as it stands: a backslash and a dash escaped, and no line that a
// dot or an apostrophe would turn into a request.
QString Roff(QString texto)
{
    texto.replace(QLatin1Char('\\'), QStringLiteral("\\e"));
    texto.replace(QLatin1Char('-'), QStringLiteral("\\-"));
    if (texto.startsWith(QLatin1Char('.')) || texto.startsWith(QLatin1Char('\'')))
        texto.prepend(QStringLiteral("\\&"));
    return texto;
}

// "--pdf CODIGO FICHERO" in roff: the names in bold, the values in italics.
QString FirmaRoff(const Opcion& o)
{
    QStringList nombres;
    for (const QString& n : o.nombres)
        nombres.append(QStringLiteral("\\fB") + Roff(nombreConGuiones(n)) + QStringLiteral("\\fR"));
    QString texto = nombres.join(QStringLiteral(", "));
    if (o.valor.es)
        texto += QStringLiteral(" \\fI") + Roff(QString::fromUtf8(o.valor.es)) + QStringLiteral("\\fR");
    return texto;
}

}  // namespace

QString PaginaManual(const QString& version)
{
    QString t;
    QTextStream s(&t);
    s << "'\\\" -*- coding: utf-8 -*-\n"
      << ".TH VELDORIA 1 \"\" \"veldoria " << Roff(version) << QString::fromUtf8("\" \"Órdenes de usuario\"\n")
      << ".SH NOMBRE\n"
      << QString::fromUtf8("veldoria \\- autoliquidación del impuesto de matriculación, modelo 747\n")
      << ".SH SINOPSIS\n"
      << ".B veldoria\n"
      << "[\\fIopciones\\fR]\n"
      << QString::fromUtf8(".SH DESCRIPCIÓN\n")
      << QString::fromUtf8("Veldoria prepara el modelo 747, la autoliquidación del impuesto especial sobre\n")
      << "determinados medios de transporte, en castellano y en euskera. Guarda\n"
      << QString::fromUtf8("contribuyentes, presentadores y declaraciones, calcula y valida la declaración,\n")
      << "imprime el impreso oficial e intercambia contribuyentes con otras instalaciones.\n"
      << ".PP\n"
      << "Sin opciones, abre el programa. Con una de las opciones siguientes hace su trabajo\n"
      << "sin abrir ninguna ventana y termina.\n"
      << ".SH OPCIONES\n";
    for (const Opcion& o : Opciones()) {
        s << ".TP\n" << FirmaRoff(o) << '\n' << Roff(QString::fromUtf8(o.ayuda.es)) << '\n';
    }
    s << ".SH EJEMPLOS\n"
      << ".nf\n"
      << Roff(QStringLiteral("veldoria --pdf 42 d42.pdf --copias interesado,banco --fecha 15/03/2024")) << '\n'
      << Roff(QStringLiteral("veldoria --pdf 12,15-40 salida")) << '\n'
      << Roff(QStringLiteral("veldoria --pdf --desde 01/03/2024 --hasta 31/03/2024 --un-fichero marzo.pdf")) << '\n'
      << Roff(QStringLiteral("veldoria --listar declaraciones.csv --dni 12345678Z")) << '\n'
      << Roff(QStringLiteral("veldoria --importar clientes.csv --errores errores.txt")) << '\n'
      << Roff(QStringLiteral("veldoria --exportar contribuyentes.csv --todos")) << '\n'
      << ".fi\n"
      << ".SH ESTADO DE SALIDA\n"
      << QString::fromUtf8("0 cuando el trabajo se ha hecho. Al imprimir varias declaraciones, el número de\n")
      << QString::fromUtf8("las que no se han podido imprimir; en los demás casos, distinto de 0 cuando algo\n")
      << "ha fallado, con el mensaje en la salida de errores.\n"
      << ".SH ARCHIVOS\n"
      << ".TP\n"
      << Roff(QStringLiteral("~/.local/share/veldoria/Tablas/VELDOMOD.mdb")) << '\n'
      << "La base de datos de cada usuario, cuando la carpeta del programa no se puede escribir.\n"
      << ".SH ENTORNO\n"
      << ".TP\n"
      << ".B LC_ALL, LC_MESSAGES, LANG\n"
      << QString::fromUtf8("El idioma de los mensajes de la línea de órdenes: euskera para \"eu\", castellano\n")
      << "en otro caso.\n";
    s.flush();
    return t;
}

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
    if (lectura.arrancaSinMas()) {
        lectura.elegir();
        return std::nullopt;
    }
    return lectura.atender(argumentos, salida, errores);
}

std::optional<int> Atender(int argc, char** argv)
{
    QStringList argumentos;
    for (int i = 0; i < argc; ++i)
        argumentos.append(QString::fromLocal8Bit(argv[i]));
    const Lectura lectura(argumentos);
    if (lectura.arrancaSinMas()) {
        lectura.elegir();
        return std::nullopt;
    }
    const std::unique_ptr<QCoreApplication> aplicacion = Aplicacion(lectura.pinta(), argc, argv);
    QTextStream salida(stdout);
    QTextStream errores(stderr);
    // Qt has taken its own options (-platform, -style...) out of the line by now.
    return lectura.atender(QCoreApplication::arguments(), salida, errores);
}

}  // namespace LineaDeOrdenes
