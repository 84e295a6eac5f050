// Many returns from the command line: --pdf with codes and ranges to a folder (one file per
// return, named by code and subject) and to one file (--un-fichero), --imprimir of many, the
// selection by date of accrual and subject (--desde, --hasta, --dni); a return that fails its
// checks is named on stderr and the others are printed, the status counting the failures. And
// --listar: the returns as a CSV table, read back with Python's csv module and compared with
// the store.
#include "catalogo/IdsCatalogo.h"
#include "comun/DeclaracionPrueba.h"
#include "ApoyoImpreso.h"
#include "SalidaOrdenes.h"

#include "aplicacion/LineaDeOrdenes.h"
#include "aplicacion/OrdenesImprimir.h"
#include "catalogo/Catalogo.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/partes/cPreDatos.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPrinter>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

namespace {
QString nombreSujeto(int i) { return QStringLiteral("SUJETO %1").arg(i, 3, 10, QLatin1Char('0')); }
}  // namespace

class TestOrdenesLote : public QObject {
    Q_OBJECT

    std::unique_ptr<AlmacenDePrueba> m_almacen;
    QTemporaryDir m_dir;
    QList<int32_t> m_codigos;  // the 50 returns, in the order of their codes
    int32_t m_mala = 0;        // the one that breaks a rule

    QString ruta(const QString& nombre) const { return m_dir.filePath(nombre); }
    QString rango() const
    {
        return QStringLiteral("%1-%2").arg(m_codigos.first()).arg(m_codigos.last());
    }

    // Return i (1 to 50): subject SUJETO i with a number of its own, accrued i - 1 days after
    // 15/03/2010.
    int32_t guardar(int i)
    {
        DeclaracionValida();
        cDecDatos& d = DecDatos();
        d.REFERENCIA = QStringLiteral("REF-%1").arg(i);
        d.DNISP = Dni(10000000 + quint32(i));
        d.NOMBRESP = nombreSujeto(i);
        const QDate fecha = QDate(2010, 3, 15).addDays(i - 1);
        d.FECHAD = fecha.year() * 10000 + fecha.month() * 100 + fecha.day();
        d.BASEI = Importe(1000000 + i * 12345);
        d.CUOTA = Importe(100000 + i * 7);
        d.TOTAL = Importe(99000 + i * 3);
        if (i == 20)
            d.MARCA.clear();  // the rule of the make: this return cannot be printed
        d.CSDE = 0;
        const int32_t codigo = d.GuardarDeclaracion() ? d.CSDE : 0;
        if (codigo <= 0)
            qFatal("return %d not saved", i);
        return codigo;
    }

    QStringList ficherosPdf() const
    {
        return QDir(ruta(QStringLiteral("carpeta"))).entryList({QStringLiteral("*.pdf")}, QDir::Files, QDir::Name);
    }

private slots:
    void initTestCase()
    {
        if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
            QSKIP("pdftotext (poppler-utils) is not installed: scripts/instalar.sh installs it");
        m_almacen = std::make_unique<AlmacenDePrueba>();
        for (int i = 1; i <= 50; ++i) {
            m_codigos << guardar(i);
            if (i == 20)
                m_mala = m_codigos.last();
        }
        Navegacion::RutaDec().modo = Navegacion::Modo::Nuevo;
        DecDatos().IniciarNuevo();
        Navegacion::RutaPre().modo = Navegacion::Modo::Nuevo;
        PreDatos().IniciarNuevo();
    }
    void cleanupTestCase() { m_almacen.reset(); }

    // Codes and a range to a folder: 49 files, one per return, named by code and subject; the
    // return that breaks a rule is named with the rule's message, the status counts it.
    void aUnaCarpeta()
    {
        const ResultadoOrdenes r = ejecutar({QStringLiteral("--pdf"), rango(), ruta(QStringLiteral("carpeta")),
                                      QStringLiteral("--copias"), QStringLiteral("interesado"),
                                      QStringLiteral("--fecha"), QStringLiteral("11/03/2004")},
                                     m_dir.path());
        QCOMPARE(r.estado, std::optional<int>(1));
        QVERIFY2(r.error.contains(QStringLiteral("Declaración %1: %2").arg(m_mala).arg(Texto(kIdMarcaVacia).trimmed())),
                 qPrintable(r.error));
        // Progress: one line per return.
        QVERIFY(r.error.contains(QStringLiteral("Declaración %1 (50/50)").arg(m_codigos.last())));
        const QStringList ficheros = ficherosPdf();
        QCOMPARE(ficheros.size(), 49);
        for (int i = 1; i <= 50; ++i) {
            const QString nombre = QStringLiteral("747_%1_%2.pdf").arg(m_codigos.at(i - 1)).arg(Dni(10000000 + quint32(i)));
            QCOMPARE(ficheros.contains(nombre), i != 20);
        }
        // Three of them read back: one page, their own subject.
        for (const int i : {1, 21, 50}) {
            const QString pdf = ruta(QStringLiteral("carpeta/747_%1_%2.pdf").arg(m_codigos.at(i - 1)).arg(Dni(10000000 + quint32(i))));
            QCOMPARE(PaginasDePdf(pdf), 1);
            QVERIFY(TextoDePdf(pdf).contains(nombreSujeto(i)));
        }
    }

    // All in one file, every return's copies in order: two pages per printed return, each
    // page of its own subject.
    void aUnFichero()
    {
        QStringList codigos;
        for (int32_t c : m_codigos.mid(0, 10))
            codigos << QString::number(c);
        const QString lista = codigos.join(QLatin1Char(',')) + QStringLiteral(",%1-%2")
                                                                   .arg(m_codigos.at(10))
                                                                   .arg(m_codigos.last());
        const QString fichero = ruta(QStringLiteral("todas.pdf"));
        const ResultadoOrdenes r = ejecutar({QStringLiteral("--pdf"), lista, QStringLiteral("--un-fichero"),
                                      fichero, QStringLiteral("--copias"),
                                      QStringLiteral("interesado,administracion")},
                                     m_dir.path());
        QCOMPARE(r.estado, std::optional<int>(1));
        QVERIFY(r.error.contains(QStringLiteral("Declaración %1: ").arg(m_mala)));
        const QString texto = TextoDePdf(fichero);
        const QStringList paginas = texto.split(QLatin1Char('\f'), Qt::SkipEmptyParts);
        QCOMPARE(PaginasDePdf(fichero), 98);
        int pagina = 0;
        for (int i = 1; i <= 50; ++i) {
            if (i == 20)
                continue;
            for (int copia = 0; copia < 2; ++copia, ++pagina)
                QVERIFY2(paginas.value(pagina).contains(nombreSujeto(i)),
                         qPrintable(QStringLiteral("página %1").arg(pagina + 1)));
        }
    }

    // The selection: dates of accrual from 19/03/2010 to 07/04/2010 (returns 5 to 24, the
    // 20th failing), and one subject's returns.
    void seleccion()
    {
        QDir(ruta(QStringLiteral("carpeta"))).removeRecursively();
        ResultadoOrdenes r = ejecutar({QStringLiteral("--pdf"), ruta(QStringLiteral("carpeta")),
                                QStringLiteral("--desde"), QStringLiteral("19/03/2010"),
                                QStringLiteral("--hasta"), QStringLiteral("07/04/2010"),
                                QStringLiteral("--borrador")},
                               m_dir.path());
        QCOMPARE(r.estado, std::optional<int>(1));
        QCOMPARE(ficherosPdf().size(), 19);
        QVERIFY(r.error.contains(QStringLiteral("(20/20)")));

        const QString fichero = ruta(QStringLiteral("sujeto.pdf"));
        r = ejecutar({QStringLiteral("--pdf"), QStringLiteral("--dni"), Dni(10000007).toLower(),
                      QStringLiteral("--un-fichero"), fichero, QStringLiteral("--borrador")},
                     m_dir.path());
        QCOMPARE(r.estado, std::optional<int>(0));
        QCOMPARE(r.error, QString());  // one return: no progress
        QCOMPARE(PaginasDePdf(fichero), 1);
        QVERIFY(TextoDePdf(fichero).contains(nombreSujeto(7)));

        r = ejecutar({QStringLiteral("--pdf"), ruta(QStringLiteral("nada")),
                      QStringLiteral("--desde"), QStringLiteral("01/01/2020")},
                     m_dir.path());
        QCOMPARE(r.estado, std::optional<int>(0));
        QCOMPARE(r.error, QStringLiteral("Ninguna declaración cumple la selección"));
    }

    // Unknown codes fail one by one; a bad date of presentation refuses the whole batch.
    void fallosYRechazos()
    {
        const int32_t ultimo = m_codigos.last();
        ResultadoOrdenes r = ejecutar({QStringLiteral("--pdf"),
                                QStringLiteral("%1,%2-%3").arg(ultimo).arg(ultimo + 1).arg(ultimo + 3),
                                QStringLiteral("--un-fichero"), ruta(QStringLiteral("tres.pdf")),
                                QStringLiteral("--borrador")},
                               m_dir.path());
        QCOMPARE(r.estado, std::optional<int>(3));
        QVERIFY(r.error.contains(QStringLiteral("Declaración %1: No existe la declaración %1").arg(ultimo + 2)));
        QCOMPARE(PaginasDePdf(ruta(QStringLiteral("tres.pdf"))), 1);

        r = ejecutar({QStringLiteral("--pdf"), QStringLiteral("%1-%2").arg(ultimo + 1).arg(ultimo + 2),
                      QStringLiteral("--un-fichero"), ruta(QStringLiteral("ninguna.pdf"))},
                     m_dir.path());
        QCOMPARE(r.estado, std::optional<int>(2));
        QVERIFY(!QFile::exists(ruta(QStringLiteral("ninguna.pdf"))));

        r = ejecutar({QStringLiteral("--pdf"), rango(), ruta(QStringLiteral("otra")),
                      QStringLiteral("--fecha"), QStringLiteral("30/11/2003")},
                     m_dir.path());
        QCOMPARE(r.estado, std::optional<int>(1));
        QVERIFY2(r.error.startsWith(QStringLiteral("La Fecha de presentación no puede ser anterior")),
                 qPrintable(r.error));
        QVERIFY(!QFile::exists(ruta(QStringLiteral("otra"))));

        for (const QStringList& mala : {QStringList{QStringLiteral("--pdf"), QStringLiteral("3-1"), ruta(QStringLiteral("x"))},
                                        QStringList{QStringLiteral("--pdf"), QStringLiteral("1,,2"), ruta(QStringLiteral("x"))},
                                        QStringList{QStringLiteral("--pdf"), QStringLiteral("1,2"), ruta(QStringLiteral("x")),
                                                    QStringLiteral("--desde"), QStringLiteral("01/01/2010")},
                                        QStringList{QStringLiteral("--imprimir"), QStringLiteral("1,2"),
                                                    QStringLiteral("--un-fichero"), ruta(QStringLiteral("x"))},
                                        QStringList{QStringLiteral("--pdf"), ruta(QStringLiteral("x")),
                                                    QStringLiteral("--desde"), QStringLiteral("32/01/2010")}}) {
            r = ejecutar(mala, m_dir.path());
            QCOMPARE(r.estado, std::optional<int>(1));
            QVERIFY(!QFile::exists(ruta(QStringLiteral("x"))));
        }
    }

    // A file of the folder that cannot be written (a folder stands in its place) names its
    // return and counts in the status; the files of the others are written.
    void ficheroQueNoSeEscribe()
    {
        const QString carpeta = ruta(QStringLiteral("ocupada"));
        const QString tapado = QStringLiteral("747_%1_%2.pdf").arg(m_codigos.at(2)).arg(Dni(10000003));
        QVERIFY(QDir().mkpath(carpeta + QLatin1Char('/') + tapado));
        const ResultadoOrdenes r = ejecutar({QStringLiteral("--pdf"),
                                      QStringLiteral("%1-%2").arg(m_codigos.at(0)).arg(m_codigos.at(5)),
                                      carpeta, QStringLiteral("--borrador")},
                                     m_dir.path());
        QCOMPARE(r.estado, std::optional<int>(1));
        QVERIFY2(r.error.contains(QStringLiteral("Declaración %1: No se ha podido escribir el fichero ")
                                      .arg(m_codigos.at(2))),
                 qPrintable(r.error));
        const QStringList escritos = QDir(carpeta).entryList({QStringLiteral("*.pdf")}, QDir::Files);
        QCOMPARE(escritos.size(), 5);
        QVERIFY(QFileInfo(carpeta + QLatin1Char('/') + tapado).isDir());
    }

    // --imprimir of many: each return's sheets to the printer, the failing one named.
    void imprimirVarias()
    {
        QPrinter impresora(QPrinter::HighResolution);
        impresora.setOutputFormat(QPrinter::PdfFormat);
        impresora.setOutputFileName(ruta(QStringLiteral("impresora.pdf")));
        const ResultadoOrdenes r = ejecutar({QStringLiteral("--imprimir"),
                                      QStringLiteral("%1-%2").arg(m_codigos.at(17)).arg(m_codigos.at(20)),
                                      QStringLiteral("--borrador")},
                                     m_dir.path(), &impresora);
        QCOMPARE(r.estado, std::optional<int>(1));
        QVERIFY(r.error.contains(QStringLiteral("Declaración %1: ").arg(m_mala)));
        QVERIFY(r.error.contains(QStringLiteral("(4/4)")));
        // The last job sent is the last return's sheet.
        QVERIFY(TextoDePdf(ruta(QStringLiteral("impresora.pdf"))).contains(nombreSujeto(21)));
    }

    // The table of returns, read back with Python's csv module: a heading and one row per
    // return of the selection, the amounts as the store holds them.
    void listado()
    {
        if (QStandardPaths::findExecutable(QStringLiteral("python3")).isEmpty())
            QSKIP("python3 is not installed");
        const QString csv = ruta(QStringLiteral("declaraciones.csv"));
        QString salida;
        QString errores;
        QTextStream s(&salida);
        QTextStream e(&errores);
        const std::optional<int> estado = LineaDeOrdenes::Atender(
            {QStringLiteral("Veldo"), QStringLiteral("--listar"), csv, QStringLiteral("--desde"),
             QStringLiteral("24/03/2010"), QStringLiteral("--hasta"), QStringLiteral("02/04/2010")},
            s, e);
        QCOMPARE(estado, std::optional<int>(0));
        QVERIFY2(salida.startsWith(QStringLiteral("10 declaración(es): ")), qPrintable(salida + errores));
        QFile f(csv);
        QVERIFY(f.open(QIODevice::ReadOnly));
        QVERIFY(f.readAll().startsWith("\xEF\xBB\xBF" "Código;Referencia;"));

        QProcess python;
        python.start(QStringLiteral("python3"),
                     {QStringLiteral("-c"),
                      QStringLiteral("import csv, json, sys\n"
                                     "with open(sys.argv[1], newline='', encoding='utf-8-sig') as f:\n"
                                     "    print(json.dumps(list(csv.reader(f, delimiter=';'))))\n"),
                      csv});
        QVERIFY(python.waitForFinished(30000));
        const QJsonArray filas = QJsonDocument::fromJson(python.readAllStandardOutput()).array();
        QCOMPARE(filas.size(), 11);
        QCOMPARE(filas.at(0).toArray().size(), 13);
        QCOMPARE(filas.at(0).toArray().at(2).toString(), QStringLiteral("Fecha de devengo"));
        for (int k = 1; k <= 10; ++k) {
            const QJsonArray fila = filas.at(k).toArray();
            const int i = 9 + k;  // returns 10 to 19
            const int32_t codigo = m_codigos.at(i - 1);
            QCOMPARE(fila.size(), 13);
            QCOMPARE(fila.at(0).toString(), QString::number(codigo));
            QCOMPARE(fila.at(1).toString(), QStringLiteral("REF-%1").arg(i));
            QCOMPARE(fila.at(2).toString(), QDate(2010, 3, 15).addDays(i - 1).toString(QStringLiteral("dd/MM/yyyy")));
            QCOMPARE(fila.at(3).toString(), Dni(10000000 + quint32(i)));
            QCOMPARE(fila.at(4).toString(), nombreSujeto(i));
            // The amounts as the store holds them, in euros with the decimal comma.
            const auto euros = [&](const char* columna) {
                const double centimos = m_almacen->Valor(QStringLiteral("SELECT %1 FROM DECLARACIONES WHERE CSDE = ?")
                                                             .arg(QLatin1String(columna)),
                                                         {codigo})
                                            .toDouble();
                return QString::number(centimos / 100.0, 'f', 2).replace(QLatin1Char('.'), QLatin1Char(','));
            };
            QCOMPARE(fila.at(8).toString(), euros("BASEI"));
            QCOMPARE(fila.at(10).toString(), euros("CUOTA"));
            QCOMPARE(fila.at(11).toString(), euros("DEDUCCION"));
            QCOMPARE(fila.at(12).toString(), euros("TOTAL"));
            QCOMPARE(fila.at(8).toString(), QString::number((1000000 + i * 12345) / 100.0, 'f', 2).replace(QLatin1Char('.'), QLatin1Char(',')));
        }

        // One subject's returns; a bad date is refused.
        salida.clear();
        QCOMPARE(LineaDeOrdenes::Atender({QStringLiteral("Veldo"), QStringLiteral("--listar"), csv,
                                          QStringLiteral("--dni"), Dni(10000033)},
                                         s, e),
                 std::optional<int>(0));
        QVERIFY(salida.startsWith(QStringLiteral("1 declaración(es)")));
        QCOMPARE(LineaDeOrdenes::Atender({QStringLiteral("Veldo"), QStringLiteral("--listar"), csv,
                                          QStringLiteral("--desde"), QStringLiteral("2010-01-01")},
                                         s, e),
                 std::optional<int>(2));
    }
};

QTEST_MAIN(TestOrdenesLote)
#include "test_ordenes_lote.moc"
#include "valores/EstadoNavegacion.h"
