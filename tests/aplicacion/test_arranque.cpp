// Start-up end to end on a temporary program folder: the paths, the first run with the
// language chooser, a later run, and the ways start-up stops.
#include "comun/ProgramaPrueba.h"
#include "registros/actualizacion/cActOnline.h"
#include "registros/nucleo/CEntrada.h"
#include "plataforma/General.h"
#include "comun/CapturaModal.h"
#include "comun/Entorno.h"

#include "aplicacion/Arranque.h"
#include "paneles/dialogos/Mensaje.h"
#include "plataforma/Proceso.h"
#include "plataforma/Reloj.h"
#include "catalogo/Catalogo.h"
#include "valores/cFecha.h"
#include "servicios/Conexion.h"
#include "servicios/cGeneralSvr.h"

#include <QDir>
#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>
#include <memory>
#include <optional>

class TestArranque : public QObject {
    Q_OBJECT

    static cGeneralSvr ajustes()
    {
        cGeneralSvr g;
        g.mdbmod = mdbmod;
        return g;
    }

    // Runs Main as the program's entry does, with the failure notice in place.
    // Activates the main window, waits until it is active, and lets the work that its first
    // activation queues (the chooser of the first run, the menus) run.
    static bool activada()
    {
        VentanaMDI()->activateWindow();
        if (!QTest::qWaitForWindowActive(VentanaMDI()))
            return false;
        QCoreApplication::processEvents();
        return true;
    }

    // Start-up as the program runs it. A test folder has no version record beside the
    // program, so start-up tells so (id 342) before any window: that notice is answered.
    static bool arrancar()
    {
        MensajeSeam::setNextAnswer(vb::OK);
        bool sigue = false;
        Proceso::Protegido([&] { sigue = Main(); });
        return sigue;
    }

    // Closes every modal panel that start-up opens (the first run's chooser, the check's
    // outcome) unless a test watches them itself.
    std::unique_ptr<CapturaModal> m_captura;
    // Every box of a test has its answer queued; the closing after the test is no part of it.
    std::optional<MensajesEstrictos> m_estrictos;

private slots:
    void init()
    {
        GrabarSeams();
        RelojSeam::grabar(true);
        ReiniciarEstado();
        m_captura = std::make_unique<CapturaModal>();
        m_estrictos.emplace();
    }
    void cleanup()
    {
        m_estrictos.reset();
        ReiniciarEstado();
        m_captura.reset();
    }

    void rutas_data()
    {
        QTest::addColumn<QString>("carpeta");
        QTest::addColumn<QString>("tablas");
        QTest::newRow("cliente sin distinguir mayúsculas")
            << "/D/App/Cliente/bin" << "/D/App/Tablas/";
        QTest::newRow("sin la palabra") << "/opt/veldoria" << "/opt/veldoria/Tablas/";
        QTest::newRow("solo cuenta la primera")
            << "/srv/cliente/x/CLIENTE/y" << "/srv/Tablas/";
        QTest::newRow("palabra dentro de otra") << "/home/clientes2/app" << "/home/Tablas/";
    }
    void rutas()
    {
        QFETCH(QString, carpeta);
        QFETCH(QString, tablas);
        ConfigurarRutas(carpeta);
        QCOMPARE(mdbPath, tablas);
        QCOMPARE(mdbmod, tablas + "VELDOMOD.mdb");
        QCOMPARE(mdblec, tablas + "VELDOLEC.mdb");
    }

    void primerArranqueConElSelectorDeIdioma()
    {
        CarpetaDePrueba carpeta;
        QVERIFY(!QFile::exists(carpeta.tablas() + "VELDOMOD.mdb"));
        m_captura = std::make_unique<CapturaModal>([](QWidget* w) {
            if (w->objectName() == QLatin1String("FrmIdioma"))
                w->findChild<QPushButton*>("cmdeuskera")->click();
        });
        const CapturaModal& captura = *m_captura;
        QVERIFY(arrancar());
        QVERIFY(QFile::exists(carpeta.tablas() + "VELDOMOD.mdb"));
        // Without a version record in the program's folder, id 342 shows before any window.
        QCOMPARE(MensajeSeam::registro().value(0).texto, Texto(342));
        QCOMPARE(RelojSeam::esperas(), QList<int>{3000});
        QVERIFY(VentanaMDI() && VentanaMDI()->isVisible());
        VentanaMDI()->activateWindow();
        QTRY_COMPARE(captura.vistos(), QStringList{"FrmIdioma"});
        QCOMPARE(Entrada().IDI(), QStringLiteral("E"));
        QCOMPARE(OffsetIdioma, int16_t(10000));
        QCOMPARE(Fecha().fecidioma, QStringLiteral("E"));
        QCOMPARE(VentanaMDI()->windowTitle(), QStringLiteral("Veldoriak"));
        QCOMPARE(ajustes().ObtenerIdioma(), QStringLiteral("E"));
        // Opening the chooser ended the undecided state: the next run does not ask.
        QCOMPARE(ajustes().ObtenerActOnline(), int16_t(1));
        QTRY_VERIFY(VentanaMDI()->findChild<QMenu*>("mnuDeclaracion")->menuAction()->isEnabled());
    }

    void arranquePosteriorSinPreguntar()
    {
        CarpetaDePrueba carpeta;
        QVERIFY(arrancar());
        QVERIFY(activada());
        ReiniciarEstado();
        ajustes().CambiarIdioma("E");
        ajustes().GuardarActOnline(0);

        m_captura = std::make_unique<CapturaModal>();
        const CapturaModal& captura = *m_captura;
        QVERIFY(arrancar());
        QVERIFY(activada());
        QVERIFY(!captura.vistos().contains("FrmIdioma"));
        QCOMPARE(Entrada().IDI(), QStringLiteral("E"));
        QCOMPARE(OffsetIdioma, int16_t(10000));
        QCOMPARE(VentanaMDI()->findChild<QMenu*>("mnuDeclaracion")->title(),
                 QStringLiteral("&Aitorpena"));
        QCOMPARE(RelojSeam::esperas().last(), 3000);
    }

    void otroIdiomaGuardadoEsCastellano()
    {
        CarpetaDePrueba carpeta;
        QVERIFY(arrancar());
        ReiniciarEstado();
        ajustes().CambiarIdioma("X");
        ajustes().GuardarActOnline(0);
        QVERIFY(arrancar());
        QCOMPARE(OffsetIdioma, int16_t(0));
        QCOMPARE(VentanaMDI()->windowTitle(), QStringLiteral("Veldoria"));
    }

    void comprobacionAlArrancarEsperaCuatroSegundos()
    {
        CarpetaDePrueba carpeta;
        QVERIFY(arrancar());
        ReiniciarEstado();
        ajustes().GuardarActOnline(1);
        // No server answers on this address: the check ends in FrmSinConexion.
        {
            QSqlDatabase lec = QSqlDatabase::addDatabase("QSQLITE", "lec-prueba");
            lec.setDatabaseName(mdblec);
            QVERIFY(lec.open());
            QSqlQuery q(lec);
            QVERIFY(q.exec("UPDATE T10_GENERAL SET T10_URLACT = 'http://127.0.0.1:1/version'"));
            lec.close();
        }
        QSqlDatabase::removeDatabase("lec-prueba");
        m_captura = std::make_unique<CapturaModal>();
        const CapturaModal& captura = *m_captura;
        QVERIFY(arrancar());
        QCOMPARE(RelojSeam::esperas().last(), 4000);
        QVERIFY(captura.vistos().contains("FrmSinConexion"));
    }

    void unaBaseMasNuevaParaElPrograma()
    {
        CarpetaDePrueba carpeta;
        {
            QSqlDatabase db = QSqlDatabase::addDatabase("QSQLITE", "nueva");
            db.setDatabaseName(carpeta.tablas() + "VELDOMOD.mdb");
            QVERIFY(db.open());
            QSqlQuery q(db);
            QVERIFY(q.exec("CREATE TABLE X (A)"));
            QVERIFY(q.exec("PRAGMA user_version = 999"));
            db.close();
        }
        QSqlDatabase::removeDatabase("nueva");
        QVERIFY(!arrancar());
        QCOMPARE(ProcesoSeam::finales(), 1);
        QVERIFY(ProcesoSeam::avisos().isEmpty());
        QVERIFY(!VentanaMDI());
    }

    void unFalloDelTraspasoLlevaSuOrigen()
    {
        // A program folder whose "Tablas" is a plain file: the database cannot be created.
        QTemporaryDir otra;
        QFile tablas(otra.path() + "/Tablas");
        QVERIFY(tablas.open(QIODevice::WriteOnly));
        tablas.close();
        EstablecerCarpetaPrograma(otra.path());
        QVERIFY(!arrancar());
        QCOMPARE(ProcesoSeam::avisos().size(), 1);
        QVERIFY(ProcesoSeam::avisos()[0].origen.startsWith("MDIVeldo.Traspaso\r\n"));
        QCOMPARE(ProcesoSeam::finales(), 1);
        QVERIFY(!VentanaMDI());
    }

    void segundaInstanciaNoSeRechaza()
    {
        CarpetaDePrueba carpeta;
        QVERIFY(arrancar());
        ReiniciarEstado();
        // The same folder again, while the first run's connection is still open.
        QVERIFY(arrancar());
        QVERIFY(VentanaMDI());
    }
};

QTEST_MAIN(TestArranque)
#include "test_arranque.moc"
