// Printing on a real CUPS queue: a cupsd of the test's own (ColaCups) takes the jobs that the
// print panel's Aceptar sends to the system's default printer, and those of
// `Veldo --imprimir CODE --impresora QUEUE` run as a program of its own; each job's document
// is read back with pdftotext and must hold the return's data. CUPS_SERVER points this process
// at that server before the application exists, so no other printer is ever reached. Where
// cupsd cannot be run, the test says why and is skipped.
#include "ColaCups.h"
#include "comun/DeclaracionPrueba.h"
#include "ApoyoImpreso.h"

#include "paneles/dialogos/Mensaje.h"
#include "paneles/imprimir/FrmImprimir.h"
#include "paneles/imprimir/ImpresoraSistema.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/imprimir/cImOf.h"

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QPointer>
#include <QPrinterInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QPushButton>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

namespace {
const QString kCola = QStringLiteral("VeldoPrueba");
// Texts of the stored return (ApoyoImpreso): the subject's name, the presenter, the total and
// the date of presentation as the sheet prints them.
const QString kSujeto = QStringLiteral("NNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNNN");
const QString kPresentador = QStringLiteral("GESTORIA UNO");
const QString kTotal = QStringLiteral("999,95");
const QString kFecha = QStringLiteral("2004/03/11n /// 11/03/2004");
constexpr int kEsperaTrabajos = 60000;

// A job's document is one page of PDF that holds the return's data (the bank's sheet has no
// presenter's block, so the presenter is looked for on the other copies only).
void comprobarDocumento(const QString& documento)
{
    QFile f(documento);
    QVERIFY(f.open(QIODevice::ReadOnly));
    QVERIFY2(f.read(5) == "%PDF-", qPrintable(documento));
    const QString t = TextoDePdf(documento);
    QCOMPARE(t.count(QLatin1Char('\f')), 1);
    QVERIFY2(t.contains(kSujeto), qPrintable(t));
    QVERIFY2(t.contains(kTotal), qPrintable(t));
}
}

class TestImprimirCups : public QObject {
    Q_OBJECT

public:
    explicit TestImprimirCups(ColaCups& cola) : m_cola(cola) {}

private:
    ColaCups& m_cola;
    std::unique_ptr<AlmacenDePrueba> m_almacen;
    QPointer<FrmImprimir> m_panel;
    int32_t m_codigo = 0;
    QTemporaryDir m_ejecucion;  // XDG_RUNTIME_DIR of the program run on its own

    // Runs the program copied beside the test's store, with no display and printing to the
    // test's own server; answers its status (-1 when it did not end) and keeps its stderr.
    int Veldo(const QStringList& argumentos, QString& error)
    {
        const QString programa = m_almacen->carpeta().ruta() + QStringLiteral("/Veldo");
        if (!QFile::exists(programa) && !QFile::copy(QStringLiteral(VELDO_PROGRAMA), programa))
            return -1;
        QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
        entorno.remove(QStringLiteral("DISPLAY"));
        entorno.remove(QStringLiteral("WAYLAND_DISPLAY"));
        entorno.remove(QStringLiteral("QT_QPA_PLATFORM"));
        entorno.insert(QStringLiteral("CUPS_SERVER"), m_cola.Servidor());
        entorno.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_ejecucion.path());
        entorno.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        QProcess p;
        p.setProcessEnvironment(entorno);
        p.setWorkingDirectory(m_almacen->carpeta().ruta());
        p.start(programa, argumentos);
        if (!p.waitForFinished(120000))
            return -1;
        error = QString::fromUtf8(p.readAllStandardError()).trimmed();
        return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
    }

private slots:
    void initTestCase()
    {
        if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
            QSKIP("pdftotext (poppler-utils) is not installed: scripts/instalar.sh installs it");
        const QString fallo = m_cola.Arrancar(kCola);
        if (!fallo.isEmpty())
            QSKIP(qPrintable(QStringLiteral("no CUPS server of the test's own: ") + fallo));
    }
    void init()
    {
        m_almacen = std::make_unique<AlmacenDePrueba>();
        // Stored, and loaded for printing as the panels that open the print panel do.
        m_codigo = DeclaracionLlena();
        MensajeSeam::grabar(true);
        m_cola.Vaciar();
    }
    void cleanup()
    {
        delete m_panel;
        MensajeSeam::grabar(false);
        m_almacen.reset();
    }

    void laColaEsLaDelSistema()
    {
        QCOMPARE(qgetenv("CUPS_SERVER"), m_cola.Servidor().toUtf8());
        QCOMPARE(QPrinterInfo::availablePrinterNames(), QStringList{kCola});
        QCOMPARE(QPrinterInfo::defaultPrinterName(), kCola);
    }

    // Aceptar with the printer the system offers: four copies, four jobs, each the return.
    void elPanelImprimeEnLaCola()
    {
        ImOf().CSDE = m_codigo;
        m_panel = new FrmImprimir(DecDatos());
        m_panel->show();
        m_panel->findChild<QLineEdit*>(QStringLiteral("txtFechaPresentacion"))
            ->setText(QStringLiteral("11/03/2004"));
        m_panel->findChild<QPushButton*>(QStringLiteral("cmdAceptar"))->click();
        QVERIFY2(MensajeSeam::registro().isEmpty(),
                 qPrintable(MensajeSeam::registro().value(0).texto));
        QTRY_VERIFY(m_panel.isNull() || !m_panel->isVisible());
        const QStringList trabajos = m_cola.Trabajos(4, kEsperaTrabajos);
        QCOMPARE(trabajos.size(), 4);
        for (const QString& t : trabajos)
            comprobarDocumento(t);
        // In the fixed order: traffic, taxpayer, administration, then the bank's sheet.
        for (int i = 0; i < 3; ++i)
            QVERIFY(TextoDePdf(trabajos.at(i)).contains(kPresentador));
        QVERIFY(!TextoDePdf(trabajos.at(3)).contains(kPresentador));
        QVERIFY(TextoDePdf(trabajos.first()).contains(kFecha));
    }

    // The program on its own, with no window, names the queue.
    void laLineaDeOrdenesImprimeEnLaCola()
    {
        QString error;
        QCOMPARE(Veldo({QStringLiteral("--imprimir"), QString::number(m_codigo),
                        QStringLiteral("--impresora"), kCola, QStringLiteral("--copias"),
                        QStringLiteral("trafico,banco"), QStringLiteral("--fecha"),
                        QStringLiteral("11/03/2004")},
                       error),
                 0);
        QCOMPARE(error, QString());
        const QStringList trabajos = m_cola.Trabajos(2, kEsperaTrabajos);
        QCOMPARE(trabajos.size(), 2);
        for (const QString& t : trabajos)
            comprobarDocumento(t);
        QVERIFY(TextoDePdf(trabajos.first()).contains(kPresentador));
        QVERIFY(!TextoDePdf(trabajos.at(1)).contains(kPresentador));
        QVERIFY(TextoDePdf(trabajos.first()).contains(kFecha));
    }

    // A queue that the server does not have: the program's message, a non-zero status, no job.
    void unaColaQueNoExiste()
    {
        QString error;
        QCOMPARE(Veldo({QStringLiteral("--imprimir"), QString::number(m_codigo),
                        QStringLiteral("--impresora"), QStringLiteral("Ninguna")},
                       error),
                 1);
        QCOMPARE(error, QStringLiteral("No existe la impresora Ninguna"));
        QVERIFY(m_cola.Trabajos(1, 2000).isEmpty());
    }
};

int main(int argc, char** argv)
{
    // Before anything asks for printers: this process and its children print to the test's
    // own server, and its queue is the default one whatever the user's settings say.
    const quint16 puerto = ColaCups::PuertoLibre();
    qputenv("CUPS_SERVER", QStringLiteral("127.0.0.1:%1").arg(puerto).toUtf8());
    qputenv("LPDEST", kCola.toUtf8());
    QApplication app(argc, argv);
    QApplication::setAttribute(Qt::AA_Use96Dpi, true);
    ColaCups cola(puerto);
    TestImprimirCups prueba(cola);
    return QTest::qExec(&prueba, argc, argv);
}

#include "test_imprimir_cups.moc"
