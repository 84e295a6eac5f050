// The small panels of the core: the first-run language chooser, the preferences and the splash.
#include "catalogo/IdsCatalogo.h"
#include "comun/ProgramaPrueba.h"
#include "registros/actualizacion/cActOnline.h"
#include "registros/nucleo/CEntrada.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "comun/CapturaModal.h"
#include "comun/Entorno.h"

#include "aplicacion/Arranque.h"
#include "aplicacion/FrmIdioma.h"
#include "aplicacion/frmPreferencias.h"
#include "aplicacion/frmVeldoInicio.h"
#include "paneles/dialogos/Mensaje.h"
#include "plataforma/Reloj.h"
#include "catalogo/Catalogo.h"
#include "servicios/cGeneralSvr.h"
#include "servicios/cTraspaso.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTest>
#include <memory>
#include <optional>

class TestPanelesApp : public QObject {
    Q_OBJECT

    std::unique_ptr<CarpetaDePrueba> m_carpeta;

    static int16_t ajusteGuardado()
    {
        cGeneralSvr g;
        g.mdbmod = mdbmod;
        return g.ObtenerActOnline();
    }
    static void apuntarActualizacionA(const QString& url)
    {
        QSqlDatabase lec = QSqlDatabase::addDatabase("QSQLITE", "lec-prueba");
        lec.setDatabaseName(mdblec);
        QVERIFY(lec.open());
        QSqlQuery q(lec);
        q.prepare("UPDATE T10_GENERAL SET T10_URLACT = ?");
        q.addBindValue(url);
        QVERIFY(q.exec());
        lec.close();
        lec = QSqlDatabase();
        QSqlDatabase::removeDatabase("lec-prueba");
        ActOnline().ObtenerURLAct();
    }

    // Every box of a test has its answer queued; the closing after the test is no part of it.
    std::optional<MensajesEstrictos> m_estrictos;

private slots:
    void init()
    {
        m_carpeta = ProgramaConAlmacenNuevo();
        m_estrictos.emplace();
    }
    void cleanup()
    {
        m_estrictos.reset();
        ReiniciarEstado();
        m_carpeta.reset();
    }

    void selectorConRotulosEnLosDosIdiomas()
    {
        FrmIdioma idioma(VentanaMDI());
        QCOMPARE(idioma.windowTitle(), QStringLiteral("Selección de Idioma/Hizkuntzaren hautapena"));
        QCOMPARE(idioma.findChild<QGroupBox*>("Frame1")->title(), QStringLiteral("Idioma/Hizkuntza"));
        QCOMPARE(idioma.findChild<QPushButton*>("cmdcastellano")->text(),
                 QStringLiteral("&Castellano\n\n") + TextoFila(kIdCastellanoEnOtraLengua));
        QCOMPARE(idioma.findChild<QPushButton*>("cmdeuskera")->text(),
                 QStringLiteral("&Euskera\n\n") + TextoFila(kIdEuskeraEnOtraLengua));
        Entrada().CambiarIdioma(Idioma::Euskera);
        FrmIdioma vasco(VentanaMDI());
        QCOMPARE(vasco.windowTitle(), QStringLiteral("Hizkuntzaren hautapena/Selección de idioma"));
    }

    void abrirElSelectorTerminaLaIndecision()
    {
        QCOMPARE(ajusteGuardado(), int16_t(-1));
        FrmIdioma idioma(VentanaMDI());
        QVERIFY(idioma.findChild<QCheckBox*>("chkActOnline")->isChecked());
        QCOMPARE(ActOnline().ActOnline, int16_t(1));
        QCOMPARE(ajusteGuardado(), int16_t(1));
        // It switched the main window's commands off while it is open.
        QVERIFY(!VentanaMDI()->findChild<QMenu*>("mnuDeclaracion")->menuAction()->isEnabled());
    }

    void selectorConLaComprobacionApagada()
    {
        ActOnline().ActOnline = 0;
        ActOnline().GuardarActOnline();
        FrmIdioma idioma(VentanaMDI());
        auto* caja = idioma.findChild<QCheckBox*>("chkActOnline");
        QVERIFY(!caja->isChecked());
        QCOMPARE(ajusteGuardado(), int16_t(0));
        caja->click();
        QCOMPARE(ajusteGuardado(), int16_t(1));
        caja->click();
        QCOMPARE(ajusteGuardado(), int16_t(0));
    }

    void elegirEuskeraDesdeElSelector()
    {
        FrmIdioma idioma(VentanaMDI());
        idioma.setModal(false);
        idioma.show();
        QApplication::setActiveWindow(&idioma);
        QVERIFY(QTest::qWaitForWindowActive(&idioma));
        QCOMPARE(idioma.focusWidget(), idioma.findChild<QPushButton*>("cmdcastellano"));
        QTest::keyClick(idioma.focusWidget(), Qt::Key_Return);
        QCOMPARE(idioma.focusWidget(), idioma.findChild<QPushButton*>("cmdeuskera"));
        QTest::keyClick(idioma.focusWidget(), Qt::Key_Space);
        QVERIFY(!idioma.isVisible());
        QCOMPARE(Entrada().IDI(), QStringLiteral("E"));
        QCOMPARE(VentanaMDI()->windowTitle(), QStringLiteral("Veldoriak"));
        cGeneralSvr g;
        g.mdbmod = mdbmod;
        QCOMPARE(g.ObtenerIdioma(), QStringLiteral("E"));
    }

    void preferenciasConAjusteIndeciso()
    {
        frmPreferencias prefs(VentanaMDI());
        QVERIFY(!prefs.findChild<QCheckBox*>("chkActOnline")->isChecked());
        QVERIFY(prefs.findChild<QRadioButton*>("optCast")->isChecked());
        QCOMPARE(prefs.windowTitle(), QStringLiteral("Preferencias"));
        QCOMPARE(prefs.findChild<QLabel*>("lblActAhora")->text(), QStringLiteral("Actualizar ahora"));
        QCOMPARE(prefs.findChild<QRadioButton*>("optEusk")->text(), QStringLiteral("Euskera"));
    }

    void preferenciasAceptadasCambianLosMenusEnElActo()
    {
        VentanaMDI()->ActualizarMenus();
        frmPreferencias prefs(VentanaMDI());
        prefs.show();
        prefs.findChild<QRadioButton*>("optEusk")->click();
        prefs.findChild<QCheckBox*>("chkActOnline")->click();
        QCOMPARE(prefs.idiomaElegido(), Idioma(Idioma::Euskera));
        prefs.findChild<QPushButton*>("cmdAceptar")->click();
        QCOMPARE(Entrada().IDI(), QStringLiteral("E"));
        QCOMPARE(ajusteGuardado(), int16_t(1));
        QCOMPARE(VentanaMDI()->findChild<QMenu*>("mnuUtilidades")->title(), QStringLiteral("Au&kerak"));
        QCOMPARE(VentanaMDI()->findChild<QAction*>("d1")->text(), QStringLiteral("d1"));
    }

    void cancelarConservaElIdioma()
    {
        frmPreferencias prefs(VentanaMDI());
        prefs.show();
        prefs.findChild<QRadioButton*>("optEusk")->click();
        prefs.findChild<QCheckBox*>("chkActOnline")->click();
        prefs.findChild<QPushButton*>("cmdCancelar")->click();
        QCOMPARE(Entrada().IDI(), QStringLiteral("C"));
        QCOMPARE(ajusteGuardado(), int16_t(-1));
        QCOMPARE(VentanaMDI()->windowTitle(), QStringLiteral("Veldoria"));
    }

    void actualizarAhoraMuestraElResultado()
    {
        apuntarActualizacionA("http://127.0.0.1:1/version");
        frmPreferencias prefs(VentanaMDI());
        // Shown without modality, so that the only modal panel is the check's outcome.
        prefs.setModal(false);
        prefs.show();
        prefs.findChild<QRadioButton*>("optEusk")->click();
        CapturaModal captura;
        QTest::mouseClick(prefs.findChild<QLabel*>("lblActAhora"), Qt::LeftButton);
        // (The main window's first activation may have shown the first-run chooser before.)
        QCOMPARE(captura.vistos().last(), QStringLiteral("FrmSinConexion"));
        // Back from the check the panel shows the stored settings again.
        QVERIFY(prefs.findChild<QRadioButton*>("optCast")->isChecked());
    }

    void pantallaInicialTresOCuatroSegundos()
    {
        ActOnline().ActOnline = 0;
        VersionPrograma = "1.0.0";
        {
            frmVeldoInicio inicio;
            inicio.Mostrar();
            QCOMPARE(inicio.findChild<QLabel*>("lblVersion")->text(), QStringLiteral("Bertsioa/Versión1.0.0"));
            QCOMPARE(inicio.findChild<QLabel*>("lblTitulo")->text(), QStringLiteral("747 Eredua / Modelo 747"));
            QCOMPARE(inicio.findChild<QLabel*>("lblTitulo1")->text(),
                     QStringLiteral("Veldorio Zerga/Impuesto de veldoriación"));
        }
        QCOMPARE(RelojSeam::esperas().size(), 1);
        QVERIFY(EsperaDe(RelojSeam::esperas()[0], 3000));
        apuntarActualizacionA("http://127.0.0.1:1/version");
        ActOnline().ActOnline = 1;
        EstablecerIdiomaPrograma(Idioma::Euskera);
        CapturaModal captura;
        {
            frmVeldoInicio inicio;
            inicio.Mostrar();
            QCOMPARE(inicio.findChild<QLabel*>("lblTitulo1")->text(),
                     QStringLiteral("Veldorio Zerga/Veldorio Zerga"));
            QVERIFY(!inicio.findChild<QLabel*>("LblAct")->isVisible());
        }
        QVERIFY(EsperaDe(RelojSeam::esperas().last(), 4000));
        QCOMPARE(captura.vistos(), QStringList{"FrmSinConexion"});
    }
};

QTEST_MAIN(TestPanelesApp)
#include "test_paneles_app.moc"
