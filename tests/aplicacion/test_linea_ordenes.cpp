// The command line: what starts the program as usual, what is done without a window, what is
// refused, in the language of the locale.
#include "catalogo/IdsCatalogo.h"
#include "registros/actualizacion/FormatoRegistroVersion.h"
#include "aplicacion/LineaDeOrdenes.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "catalogo/Catalogo.h"
#include "comun/Entorno.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

namespace {

// One call of the command line, with what it wrote.
struct Resultado {
    std::optional<int> estado;
    QString salida;
    QString errores;
};

Resultado Llamar(const QStringList& argumentos)
{
    Resultado r;
    QTextStream salida(&r.salida);
    QTextStream errores(&r.errores);
    r.estado = LineaDeOrdenes::Atender(QStringList{QStringLiteral("/usr/bin/veldoria")}
                                           + argumentos,
                                       salida, errores);
    salida.flush();
    errores.flush();
    return r;
}

// Whether a whole line of `texto` matches `patron`.
bool tieneLinea(const QString& texto, const char* patron)
{
    const QRegularExpression exp(QStringLiteral("^") + QString::fromUtf8(patron) + "$",
                                 QRegularExpression::MultilineOption);
    return exp.match(texto).hasMatch();
}

}  // namespace

class TestLineaOrdenes : public QObject {
    Q_OBJECT

    QTemporaryDir m_carpeta;

    // Writes the program's file of the test folder: some bytes, the record when given, more bytes.
    void escribirPrograma(const std::optional<RegistroVersion::Bytes>& registro)
    {
        QFile f(m_carpeta.path() + QStringLiteral("/Veldo"));
        QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(QByteArray(1000, '\x7f'));
        if (registro)
            f.write(reinterpret_cast<const char*>(registro->data()),
                    static_cast<qint64>(registro->size()));
        f.write(QByteArray(500, '\0'));
    }

private slots:
    void init()
    {
        EstablecerCarpetaPrograma(m_carpeta.path());
        qputenv("LC_ALL", "C.UTF-8");
    }
    void cleanup() { EstablecerIdiomaPrograma(Idioma::Castellano); }

    void sinOpcionesConTrabajoArranca_data()
    {
        QTest::addColumn<QStringList>("argumentos");
        QTest::newRow("nada") << QStringList{};
        QTest::newRow("opciones de Qt")
            << QStringList{"-platform", "offscreen", "-style", "Fusion", "-reverse"};
        QTest::newRow("sesión") << QStringList{"-session", "1234abcd"};
        QTest::newRow("argumentos sueltos") << QStringList{"fichero.txt"};
    }
    void sinOpcionesConTrabajoArranca()
    {
        QFETCH(QStringList, argumentos);
        const Resultado r = Llamar(argumentos);
        QVERIFY(!r.estado);
        QVERIFY(r.salida.isEmpty());
        QVERIFY(r.errores.isEmpty());
    }

    void versionDelRegistro()
    {
        escribirPrograma(RegistroVersion::Construir({2, 5, 0, 7}, {2, 5, 0, 9}));
        for (const char* opcion : {"--version", "-v"}) {
            const Resultado r = Llamar({QString::fromLatin1(opcion)});
            QCOMPARE(r.estado, std::optional(0));
            // major.minor.revision: the third number of the file version is not shown.
            QCOMPARE(r.salida, QStringLiteral("Veldoria 2.5.7\n"));
            QVERIFY(r.errores.isEmpty());
        }
        qputenv("LC_ALL", "eu_ES.UTF-8");
        QCOMPARE(Llamar({"--version"}).salida, QStringLiteral("Veldoriak 2.5.7\n"));
    }

    void versionSinRegistro()
    {
        escribirPrograma(std::nullopt);
        const Resultado r = Llamar({"--version"});
        QCOMPARE(r.estado, std::optional(1));
        QVERIFY(r.salida.isEmpty());
        QCOMPARE(r.errores, TextoFila(kIdSinInformacionVersion) + "\n");
    }

    void ayudaListaLasOpciones()
    {
        const Resultado r = Llamar({"--help"});
        QCOMPARE(r.estado, std::optional(0));
        QVERIFY(r.errores.isEmpty());
        const QStringList lineas = r.salida.split('\n');
        QCOMPARE(lineas.value(0), QStringLiteral("Uso: veldoria [opciones]"));
        QVERIFY(lineas.contains("Opciones:"));
        QVERIFY(tieneLinea(r.salida, "  -h, --help +Muestra esta ayuda."));
        QVERIFY(tieneLinea(r.salida, "  -v, --version +Muestra la versión del programa."));
        QVERIFY(tieneLinea(r.salida, "  --pdf CODIGO FICHERO +Guarda en FICHERO el impreso de la "
                                     "declaración CODIGO, en PDF. Con varios códigos "
                                     "\\(12,15-40\\) o con --desde, --hasta o --dni .* "
                                     "747_<código>_<NIF>.pdf, o con --un-fichero todas en un "
                                     "solo PDF."));
        QVERIFY(tieneLinea(r.salida, "  --imprimir CODIGO +Imprime la declaración CODIGO en la "
                                     "impresora del sistema; o varias, como --pdf."));
        QVERIFY(tieneLinea(r.salida, "  --un-fichero FICHERO +Con --pdf, todas las declaraciones "
                                     "en FICHERO, una tras otra."));
        QVERIFY(tieneLinea(r.salida, "  --desde DD/MM/AAAA +Con --pdf, --imprimir o --listar, las "
                                     "declaraciones devengadas desde esa fecha."));
        QVERIFY(tieneLinea(r.salida, "  --dni NIF +Con --pdf, --imprimir o --listar, las "
                                     "declaraciones de ese sujeto pasivo."));
        QVERIFY(tieneLinea(r.salida, "  --listar FICHERO +Escribe en FICHERO \\(CSV\\) una fila "
                                     "por declaración: .*"));
        QVERIFY(tieneLinea(r.salida, "  --fecha DD/MM/AAAA +Con --pdf o --imprimir, la fecha de "
                                     "presentación \\(hoy, si no\\)."));
        QVERIFY(tieneLinea(r.salida, "  --importar FICHERO +Importa los contribuyentes de FICHERO "
                                     "en modo automático: un fichero de intercambio, o un CSV .*"));
        // Qt's own options are accepted but not listed.
        QVERIFY(!r.salida.contains("platform"));
        // Help comes first when both are asked for.
        QCOMPARE(Llamar({"--version", "-h"}).salida, r.salida);
    }

    void ayudaEnEuskera()
    {
        qputenv("LC_ALL", "");
        qputenv("LC_MESSAGES", "eu_ES.UTF-8");
        const Resultado r = Llamar({"-h"});
        qunsetenv("LC_MESSAGES");
        QCOMPARE(r.estado, std::optional(0));
        QVERIFY(r.salida.startsWith("Erabilera: veldoria [aukerak]\n"));
        QVERIFY(tieneLinea(r.salida, "  -v, --version +Programaren bertsioa erakusten du."));
        QVERIFY(tieneLinea(r.salida, "  --pdf KODEA FITXATEGIA +KODEA aitorpenaren inprimakia "
                                     "FITXATEGIAn gordetzen du, PDFn. Kode batzuekin .*"));
    }

    void opcionDesconocida()
    {
        const Resultado r = Llamar({"--nada", "--version"});
        QCOMPARE(r.estado, std::optional(2));
        QVERIFY(r.salida.isEmpty());
        QCOMPARE(r.errores, QStringLiteral("Opción desconocida: --nada\n"
                                           "Las opciones se listan con: veldoria --help\n"));
        qputenv("LC_ALL", "eu_ES.UTF-8");
        QCOMPARE(Llamar({"-x"}).errores, QStringLiteral("Aukera ezezaguna: -x\n"
                                                        "Aukeren zerrenda: veldoria --help\n"));
    }

    void valorQueSobra()
    {
        const Resultado r = Llamar({"--version=3"});
        QCOMPARE(r.estado, std::optional(2));
        QVERIFY(r.errores.startsWith(
            "La opción --version lleva mal su valor: le falta o le sobra.\n"));
    }

    void pdfLlegaALaImpresion()
    {
        // The test folder has no store: the printing itself refuses, with its own message.
        const QString fichero = m_carpeta.filePath(QStringLiteral("d.pdf"));
        const Resultado r = Llamar({"--pdf", "7", fichero, "--borrador"});
        QCOMPARE(r.estado, std::optional(1));
        QVERIFY(!QFile::exists(fichero));
        // Its qualifiers alone ask for no work: the program starts as usual.
        QVERIFY(!Llamar({"--borrador", "--fecha", "01/01/2025"}).estado);
        QCOMPARE(Llamar({"--pdf"}).estado, std::optional(2));
    }

    void valorQueFalta()
    {
        const Resultado r = Llamar({"-platform"});
        QCOMPARE(r.estado, std::optional(2));
        QVERIFY(r.errores.startsWith("La opción -platform lleva mal su valor"));
    }
};

QTEST_MAIN(TestLineaOrdenes)
#include "test_linea_ordenes.moc"
