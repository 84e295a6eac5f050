// Printing from the command line: Veldo --pdf CODE FILE with its options writes the copies of
// a stored return to a PDF file and answers 0; a bad code, date, option or file answers
// non-zero with the program's message on stderr and writes nothing.
#include "comun/DeclaracionPrueba.h"
#include "ApoyoImpreso.h"
#include "SalidaOrdenes.h"

#include "aplicacion/OrdenesImprimir.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/partes/cPreDatos.h"

#include <QFile>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

class TestOrdenesImprimir : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<AlmacenDePrueba> m_almacen;
    QTemporaryDir m_dir;
    int32_t m_codigo = 0;

    QString pdf(const char* nombre) const { return m_dir.filePath(QString::fromLatin1(nombre)); }

private slots:
    void initTestCase()
    {
        if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
            QSKIP("pdftotext (poppler-utils) is not installed: scripts/instalar.sh installs it");
    }
    void init()
    {
        m_almacen = std::make_unique<AlmacenDePrueba>();
        m_codigo = DeclaracionLlena();
        Navegacion::RutaDec().modo = Navegacion::Modo::Nuevo;
        DecDatos().IniciarNuevo();
        Navegacion::RutaPre().modo = Navegacion::Modo::Nuevo;
        PreDatos().IniciarNuevo();
    }
    void cleanup() { m_almacen.reset(); }

    void sinPdfNoEsCosaSuya()
    {
        QVERIFY(!OrdenesImprimir({QStringLiteral("Veldo")}).has_value());
        QVERIFY(!OrdenesImprimir({QStringLiteral("Veldo"), QStringLiteral("--help")}).has_value());
    }

    void cuatroCopias()
    {
        const ResultadoOrdenes r = ejecutar({QStringLiteral("--pdf"), QString::number(m_codigo),
                                      pdf("todas.pdf"), QStringLiteral("--fecha"),
                                      QStringLiteral("11/03/2004")},
                                     m_dir.path());
        QCOMPARE(r.estado, std::optional<int>(0));
        QCOMPARE(r.error, QString());
        QCOMPARE(PaginasDePdf(pdf("todas.pdf")), 4);
        const QString t = TextoDePdf(pdf("todas.pdf"));
        QVERIFY(t.contains(QLatin1String("2004/03/11n /// 11/03/2004")));
        QVERIFY(t.contains(QLatin1String("GESTORIA UNO")));
        QVERIFY(t.contains(QLatin1String("999,95")));
        QVERIFY(t.contains(QLatin1String("Total a ingresar(8)")));
    }

    void opciones()
    {
        ResultadoOrdenes r = ejecutar({QStringLiteral("--pdf"), QString::number(m_codigo),
                                pdf("banco.pdf"), QStringLiteral("--copias"),
                                QStringLiteral("banco,interesado")},
                               m_dir.path());
        QCOMPARE(r.estado, std::optional<int>(0));
        QCOMPARE(PaginasDePdf(pdf("banco.pdf")), 2);

        r = ejecutar({QStringLiteral("--pdf"), QString::number(m_codigo), pdf("borrador.pdf"),
                      QStringLiteral("--borrador"), QStringLiteral("--sin-presentador")},
                     m_dir.path());
        QCOMPARE(r.estado, std::optional<int>(0));
        QCOMPARE(PaginasDePdf(pdf("borrador.pdf")), 1);
        QVERIFY(!TextoDePdf(pdf("borrador.pdf")).contains(QLatin1String("GESTORIA UNO")));
        QVERIFY(TextoDePdf(pdf("borrador.pdf")).contains(QLatin1String("NNNNNNNNNN")));
    }

    void rechazos_data()
    {
        QTest::addColumn<QStringList>("extra");
        QTest::addColumn<QString>("mensaje");
        QTest::newRow("antes del limite")
            << QStringList{QStringLiteral("--fecha"), QStringLiteral("30/11/2003")}
            << QStringLiteral("La Fecha de presentación no puede ser anterior al 01/12/2003");
        QTest::newRow("fecha mala")
            << QStringList{QStringLiteral("--fecha"), QStringLiteral("31/02/2010")}
            << QStringLiteral("La Fecha de presentación introducida no es correcta");
        QTest::newRow("copia desconocida")
            << QStringList{QStringLiteral("--copias"), QStringLiteral("notario")}
            << QStringLiteral("Uso: Veldo --pdf");
        QTest::newRow("opcion desconocida") << QStringList{QStringLiteral("--color")}
                                            << QStringLiteral("Uso: Veldo --pdf");
    }

    void rechazos()
    {
        QFETCH(QStringList, extra);
        QFETCH(QString, mensaje);
        const QString fichero = pdf("rechazo.pdf");
        const ResultadoOrdenes r = ejecutar(
            QStringList{QStringLiteral("--pdf"), QString::number(m_codigo), fichero} + extra,
            m_dir.path());
        QCOMPARE(r.estado, std::optional<int>(1));
        QVERIFY2(r.error.startsWith(mensaje), qPrintable(r.error));
        QVERIFY(!QFile::exists(fichero));
    }

    void limiteAceptado()
    {
        const ResultadoOrdenes r = ejecutar({QStringLiteral("--pdf"), QString::number(m_codigo),
                                      pdf("limite.pdf"), QStringLiteral("--fecha"),
                                      QStringLiteral("01/12/2003"), QStringLiteral("--copias"),
                                      QStringLiteral("trafico")},
                                     m_dir.path());
        QCOMPARE(r.estado, std::optional<int>(0));
        QVERIFY(TextoDePdf(pdf("limite.pdf")).contains(QLatin1String("2003/12/01ean /// 01/12/2003")));
    }

    void declaracionQueNoExiste()
    {
        const ResultadoOrdenes r = ejecutar({QStringLiteral("--pdf"), QString::number(m_codigo + 50),
                                      pdf("nada.pdf")},
                                     m_dir.path());
        QCOMPARE(r.estado, std::optional<int>(1));
        QCOMPARE(r.error, QStringLiteral("No existe la declaración %1").arg(m_codigo + 50));
        QVERIFY(!QFile::exists(pdf("nada.pdf")));
    }

    void ficheroQueNoSePuedeEscribir()
    {
        const ResultadoOrdenes r = ejecutar({QStringLiteral("--pdf"), QString::number(m_codigo),
                                      m_dir.filePath(QStringLiteral("no/hay/carpeta.pdf"))},
                                     m_dir.path());
        QCOMPARE(r.estado, std::optional<int>(1));
        QVERIFY2(r.error.startsWith(QLatin1String("No se ha podido escribir el fichero")),
                 qPrintable(r.error));
    }

    // --imprimir draws through the printer surface: a printer that writes a file shows what
    // went out. Each sheet is a job of its own, so the file holds the last one sent.
    void imprimirEnUnaImpresora()
    {
        QPrinter impresora(QPrinter::HighResolution);
        impresora.setOutputFormat(QPrinter::PdfFormat);
        impresora.setOutputFileName(pdf("impresora.pdf"));
        ResultadoOrdenes r = ejecutar({QStringLiteral("--imprimir"), QString::number(m_codigo),
                                QStringLiteral("--copias"), QStringLiteral("trafico"),
                                QStringLiteral("--fecha"), QStringLiteral("11/03/2004")},
                               m_dir.path(), &impresora);
        QCOMPARE(r.estado, std::optional<int>(0));
        QCOMPARE(r.error, QString());
        QCOMPARE(PaginasDePdf(pdf("impresora.pdf")), 1);
        QVERIFY(TextoDePdf(pdf("impresora.pdf")).contains(QLatin1String("GESTORIA UNO")));
        QVERIFY(TextoDePdf(pdf("impresora.pdf")).contains(QLatin1String("2004/03/11n /// 11/03/2004")));

        r = ejecutar({QStringLiteral("--imprimir"), QString::number(m_codigo),
                      QStringLiteral("--borrador"), QStringLiteral("--sin-presentador")},
                     m_dir.path(), &impresora);
        QCOMPARE(r.estado, std::optional<int>(0));
        QCOMPARE(PaginasDePdf(pdf("impresora.pdf")), 1);
        QVERIFY(!TextoDePdf(pdf("impresora.pdf")).contains(QLatin1String("GESTORIA UNO")));
    }

    void imprimirRechazos()
    {
        QPrinter impresora(QPrinter::HighResolution);
        impresora.setOutputFormat(QPrinter::PdfFormat);
        impresora.setOutputFileName(pdf("rechazada.pdf"));
        ResultadoOrdenes r = ejecutar({QStringLiteral("--imprimir"), QString::number(m_codigo),
                                QStringLiteral("--fecha"), QStringLiteral("30/11/2003")},
                               m_dir.path(), &impresora);
        QCOMPARE(r.estado, std::optional<int>(1));
        QVERIFY2(r.error.startsWith(QStringLiteral("La Fecha de presentación no puede ser anterior")),
                 qPrintable(r.error));
        QVERIFY(!QFile::exists(pdf("rechazada.pdf")));
        r = ejecutar({QStringLiteral("--imprimir"), QString::number(m_codigo + 50)}, m_dir.path(),
                     &impresora);
        QCOMPARE(r.estado, std::optional<int>(1));
        QCOMPARE(r.error, QStringLiteral("No existe la declaración %1").arg(m_codigo + 50));
        // A file and a printer at once is no valid request.
        r = ejecutar({QStringLiteral("--imprimir"), QString::number(m_codigo),
                      QStringLiteral("--pdf"), QString::number(m_codigo), pdf("ambos.pdf")},
                     m_dir.path());
        QCOMPARE(r.estado, std::optional<int>(1));
        QVERIFY2(r.error.startsWith(QLatin1String("Uso: Veldo --pdf")), qPrintable(r.error));
    }

    // The system's printers: a name it does not know, or no printer at all, is refused with
    // the program's message.
    void impresoraQueNoExiste()
    {
        const ResultadoOrdenes r = ejecutar({QStringLiteral("--imprimir"), QString::number(m_codigo),
                                      QStringLiteral("--impresora"),
                                      QStringLiteral("veldo-no-existe-9")},
                                     m_dir.path());
        QCOMPARE(r.estado, std::optional<int>(1));
        if (QPrinterInfo::availablePrinters().isEmpty())
            QCOMPARE(r.error, QStringLiteral("No es posible imprimir. No hay impresoras instaladas"));
        else
            QCOMPARE(r.error, QStringLiteral("No existe la impresora veldo-no-existe-9"));
    }
};

QTEST_MAIN(TestOrdenesImprimir)
#include "test_ordenes_imprimir.moc"
#include "valores/EstadoNavegacion.h"
