// The two outcome panels of the update check, the browser launch through the local page, and
// the update setting kept in the read/write database.
#include "catalogo/IdsCatalogo.h"
#include "comun/Entorno.h"
#include "comun/MensajesEstrictos.h"

#include "paneles/actualizacion/FrmSinConexion.h"
#include "paneles/actualizacion/FrmVersionCheck.h"
#include "paneles/actualizacion/LanzarExplorador.h"
#include "registros/actualizacion/cActOnline.h"
#include "plataforma/Fallo.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "paneles/dialogos/Navegador.h"
#include "paneles/dialogos/Mensaje.h"
#include "plataforma/Proceso.h"
#include "catalogo/Catalogo.h"
#include "servicios/cTraspaso.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTextStream>
#include <memory>
#include <optional>

namespace {

QByteArray leer(const QString& ruta)
{
    QFile f(ruta);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<no se puede leer>");
}

QByteArray paginaEsperada(const QByteArray& url)
{
    return "<HTML>  <BODY ONLOAD='document.formulario.submit();'>  <FORM NAME='formulario' "
           "action='" + url + "' method=post>  </FORM></BODY> </HTML>";
}

template <typename W>
W* hijo(QWidget* panel, const char* nombre)
{
    W* w = panel->findChild<W*>(QLatin1String(nombre));
    if (!w)
        qFatal("El panel %s no tiene %s", qPrintable(panel->objectName()), nombre);
    return w;
}

// The address of the service as the generated reference data holds it.
QString urlDeLosDatos()
{
    QFile f(CarpetaFuentes() + QStringLiteral("/data/T10_GENERAL.tsv"));
    if (!f.open(QIODevice::ReadOnly))
        return QStringLiteral("<sin T10_GENERAL.tsv>");
    QTextStream in(&f);
    in.setEncoding(QStringConverter::Utf8);
    int columna = -1;
    while (!in.atEnd()) {
        const QString linea = in.readLine();
        if (linea.startsWith(QLatin1Char('#')) || linea.isEmpty())
            continue;
        const QStringList campos = linea.split(QLatin1Char('\t'));
        if (columna < 0) {
            for (int i = 0; i < campos.size(); ++i)
                if (campos.at(i).startsWith(QLatin1String("T10_URLACT")))
                    columna = i;
            continue;
        }
        return campos.value(columna).trimmed();
    }
    return QStringLiteral("<sin fila>");
}

}  // namespace

class TestPaneles : public QObject {
    Q_OBJECT

    std::unique_ptr<CarpetaDePrueba> m_carpeta;
    std::optional<MensajesEstrictos> m_estrictos;  // every box has its answer queued

    void crearBaseModificable()
    {
        cTraspaso traspaso;
        traspaso.mdbmod = mdbmod;
        traspaso.mdbPath = mdbPath;
        QVERIFY(!traspaso.Traspaso());
    }

    void versionesDePrueba(int16_t comVer)
    {
        cActOnline& act = ActOnline();
        act = cActOnline{};
        act.ComVer = comVer;
        act.ProgVer1 = QStringLiteral("1");
        act.ProgVer2 = QStringLiteral("28");
        act.ProgVer3 = QStringLiteral("1");
        act.ActVer1 = QStringLiteral("1");
        act.ActVer2 = comVer ? QStringLiteral("29") : QStringLiteral("28");
        act.ActVer3 = QStringLiteral("1");
        act.ActDownloadURL = QStringLiteral("http://descargas.veldoria.example/alta.php");
        act.ActFile = m_carpeta->ruta() + QStringLiteral("/Veldo");
        act.ActDescripcion = QStringLiteral("Corrige la impresión.\nMejora la búsqueda.");
    }

private slots:
    void init()
    {
        m_carpeta = std::make_unique<CarpetaDePrueba>();
        GrabarSeams();
        NavegadorSeam::grabar(true);
        EstablecerIdiomaPrograma(Idioma::Castellano);
        versionesDePrueba(0);
        m_estrictos.emplace();
    }

    void cleanup()
    {
        m_estrictos.reset();
        m_carpeta.reset();
        EstablecerIdiomaPrograma(Idioma::Castellano);
    }

    // FrmVersionCheck

    void versionCheckTextosFijos()
    {
        FrmVersionCheck panel;
        QCOMPARE(panel.objectName(), QStringLiteral("FrmVersionCheck"));
        QCOMPARE(panel.windowTitle(), QStringLiteral("Actualizar versión"));
        QCOMPARE(hijo<QGroupBox>(&panel, "FraVersion")->title(), QStringLiteral("Bertsioa / Versión"));
        QCOMPARE(hijo<QLabel>(&panel, "LblAct")->text(), QStringLiteral("Oraingoa / Actual"));
        QCOMPARE(hijo<QLabel>(&panel, "LblDisp")->text(), QStringLiteral("Erabilgarria / Disponible"));
        QCOMPARE(hijo<QLabel>(&panel, "LblUrl")->text(),
                 QStringLiteral("Deskarga helbidea / Dirección de descarga"));
        QCOMPARE(hijo<QLabel>(&panel, "LblArchivo")->text(), QStringLiteral("Fitxategia / Fichero"));
        QCOMPARE(hijo<QLabel>(&panel, "LblInfo")->text(), QStringLiteral("Argibideak / Información"));
        QCOMPARE(hijo<QPushButton>(&panel, "CmdActualizar")->text(),
                 QStringLiteral("Deskargatu Descargar"));
        QCOMPARE(hijo<QPushButton>(&panel, "CmdContinuar")->text(),
                 QStringLiteral("Aurrera jarraitu... Continuar..."));
    }

    void versionCheckTextosFijosEnEuskera()
    {
        EstablecerIdiomaPrograma(Idioma::Euskera);
        FrmVersionCheck panel;
        QCOMPARE(panel.windowTitle(), QStringLiteral("Actualizar versión"));
        QCOMPARE(hijo<QLabel>(&panel, "LblAct")->text(), QStringLiteral("Oraingoa / Actual"));
    }

    void versionCheckSinNovedadNoTieneBotonDeDescarga()
    {
        FrmVersionCheck panel;
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        QCOMPARE(hijo<QLabel>(&panel, "LblActual")->text(), QStringLiteral("1.28.1"));
        QCOMPARE(hijo<QLabel>(&panel, "LblDisponible")->text(), QStringLiteral("1.28.1"));
        auto* descargar = hijo<QPushButton>(&panel, "CmdActualizar");
        QVERIFY(!descargar->isVisible());
        QCOMPARE(descargar->height(), 0);
        auto* continuar = hijo<QPushButton>(&panel, "CmdContinuar");
        QVERIFY(continuar->isVisible());
        QTest::mouseClick(continuar, Qt::LeftButton);
        QVERIFY(!panel.isVisible());
        QVERIFY(NavegadorSeam::registro().isEmpty());
        QVERIFY(MensajeSeam::registro().isEmpty());
    }

    void versionCheckMuestraLoOfrecido()
    {
        versionesDePrueba(1);
        FrmVersionCheck panel;
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        QCOMPARE(hijo<QLabel>(&panel, "LblActual")->text(), QStringLiteral("1.28.1"));
        QCOMPARE(hijo<QLabel>(&panel, "LblDisponible")->text(), QStringLiteral("1.29.1"));
        QCOMPARE(hijo<QLineEdit>(&panel, "TxtUrl")->text(),
                 QStringLiteral("http://descargas.veldoria.example/alta.php"));
        QCOMPARE(hijo<QLineEdit>(&panel, "TxtPath")->text(), m_carpeta->ruta() + QStringLiteral("/Veldo"));
        QCOMPARE(hijo<QPlainTextEdit>(&panel, "TxtInfo")->toPlainText(),
                 QStringLiteral("Corrige la impresión.\nMejora la búsqueda."));
        QVERIFY(hijo<QLineEdit>(&panel, "TxtUrl")->isReadOnly());
        QVERIFY(hijo<QPushButton>(&panel, "CmdActualizar")->isVisible());
    }

    void versionCheckDevuelveElPunteroNormal()
    {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        FrmVersionCheck panel;
        QVERIFY(QApplication::overrideCursor() == nullptr);
    }

    void descargarAbreLaPaginaYCierra()
    {
        versionesDePrueba(1);
        FrmVersionCheck panel;
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        QTest::mouseClick(hijo<QPushButton>(&panel, "CmdActualizar"), Qt::LeftButton);
        QVERIFY(!panel.isVisible());
        QCOMPARE(NavegadorSeam::registro(),
                 QList<QUrl>{QUrl::fromLocalFile(m_carpeta->ruta() + QStringLiteral("/temphtm.HTM"))});
        QCOMPARE(leer(m_carpeta->ruta() + QStringLiteral("/temphtm.HTM")),
                 paginaEsperada("http://descargas.veldoria.example/alta.php"));
    }

    void clicEnLaDireccionAbreLaPaginaYSigueAbierto()
    {
        versionesDePrueba(1);
        FrmVersionCheck panel;
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        QTest::mouseClick(hijo<QLineEdit>(&panel, "TxtUrl"), Qt::LeftButton);
        QVERIFY(panel.isVisible());
        QCOMPARE(NavegadorSeam::registro().size(), 1);
        QCOMPARE(leer(RutaPaginaTemporal()),
                 paginaEsperada("http://descargas.veldoria.example/alta.php"));
    }

    // LanzarExplorador

    void paginaTemporalExacta()
    {
        LanzarExplorador(nullptr, QStringLiteral("https://www.veldoria.example/d?x=1&y=2"));
        QCOMPARE(RutaPaginaTemporal(), m_carpeta->ruta() + QStringLiteral("/temphtm.HTM"));
        QCOMPARE(leer(RutaPaginaTemporal()), paginaEsperada("https://www.veldoria.example/d?x=1&y=2"));
    }

    // The address cannot end the attribute nor open markup: it is HTML-escaped in the page.
    void direccionEscapadaEnLaPagina()
    {
        LanzarExplorador(nullptr, QStringLiteral("http://x.example/l'aurrera?a=<b>&amp;c=\"d\""));
        const QByteArray pagina = leer(RutaPaginaTemporal());
        QCOMPARE(pagina, paginaEsperada("http://x.example/l&#39;aurrera?a=&lt;b&gt;&amp;amp;c=&quot;d&quot;"));
    }

    // Only a web address is written into the page and opened.
    void direccionNoWebEsUnFallo_data()
    {
        QTest::addColumn<QString>("direccion");
        QTest::newRow("fichero") << QStringLiteral("file:///etc/passwd");
        QTest::newRow("javascript") << QStringLiteral("javascript:alert(1)");
        QTest::newRow("vacia") << QString();
    }
    void direccionNoWebEsUnFallo()
    {
        QFETCH(QString, direccion);
        QVERIFY_THROWS_EXCEPTION(cFallo, LanzarExplorador(nullptr, direccion));
        QVERIFY(!QFile::exists(RutaPaginaTemporal()));
        QVERIFY(NavegadorSeam::registro().isEmpty());
    }

    void paginaAnteriorSeReemplaza()
    {
        QFile vieja(RutaPaginaTemporal());
        QVERIFY(vieja.open(QIODevice::WriteOnly));
        vieja.write(QByteArray(4096, 'z'));
        vieja.close();
        LanzarExplorador(nullptr, QStringLiteral("http://a.example/"));
        QCOMPARE(leer(RutaPaginaTemporal()), paginaEsperada("http://a.example/"));
    }

    void sinNavegadorAvisa()
    {
        NavegadorSeam::setNextResult(false);
        MensajeSeam::setNextAnswer(vb::OK);  // the notice that no browser opened
        LanzarExplorador(nullptr, QStringLiteral("http://a.example/"));
        QCOMPARE(MensajeSeam::registro().size(), 1);
        const auto& m = MensajeSeam::registro().at(0);
        QCOMPARE(m.texto, Texto(kIdNavegadorNoEncontradoMensaje));
        QCOMPARE(m.titulo, Texto(kIdNavegadorNoEncontrado));
        QCOMPARE(m.botones, int(vb::Exclamation));
        // The page was written all the same, and stays.
        QVERIFY(QFile::exists(RutaPaginaTemporal()));
    }

    void sinNavegadorAvisaEnEuskera()
    {
        EstablecerIdiomaPrograma(Idioma::Euskera);
        NavegadorSeam::setNextResult(false);
        MensajeSeam::setNextAnswer(vb::OK);  // the notice that no browser opened
        LanzarExplorador(nullptr, QStringLiteral("http://a.example/"));
        QCOMPARE(MensajeSeam::registro().at(0).texto,
                 TextoFila(kIdNavegadorNoEncontradoMensaje + 10000));
        QCOMPARE(MensajeSeam::registro().at(0).titulo, TextoFila(kIdNavegadorNoEncontrado + 10000));
    }

    void paginaQueNoSePuedeEscribirEsUnFallo()
    {
        QVERIFY(QDir(m_carpeta->ruta()).mkdir(QStringLiteral("temphtm.HTM")));
        QVERIFY_THROWS_EXCEPTION(cFallo, LanzarExplorador(nullptr, QStringLiteral("http://a.example/")));
        QVERIFY(NavegadorSeam::registro().isEmpty());
    }

    void fallarAlDescargarDaElAvisoDeEjecucion()
    {
        versionesDePrueba(1);
        QVERIFY(QDir(m_carpeta->ruta()).mkdir(QStringLiteral("temphtm.HTM")));
        FrmVersionCheck panel;
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        QTest::mouseClick(hijo<QPushButton>(&panel, "CmdActualizar"), Qt::LeftButton);
        QCOMPARE(ProcesoSeam::avisos().size(), 1);
        QCOMPARE(ProcesoSeam::avisos().at(0).origen, QStringLiteral("ActualizacionOnline.LanzarExplorador"));
        QCOMPARE(ProcesoSeam::finales(), 1);
    }

    // FrmSinConexion

    void sinConexionTextos()
    {
        ActOnline().SitAct = 1;
        ActOnline().ActOnline = 1;
        FrmSinConexion panel;
        QCOMPARE(panel.objectName(), QStringLiteral("FrmSinConexion"));
        QCOMPARE(panel.windowTitle(), TextoFila(kIdFalloConexion) + QStringLiteral(" / ")
                 + TextoFila(kIdFalloConexion + 10000));
        QCOMPARE(hijo<QLabel>(&panel, "lblTituloC")->text(), TextoFila(kIdSinConexionInternet));
        QCOMPARE(hijo<QLabel>(&panel, "lblTituloE")->text(),
                 TextoFila(kIdSinConexionInternet + 10000));
        QCOMPARE(hijo<QCheckBox>(&panel, "ChkNoPreg")->text(),
                 QStringLiteral("Berriro kontsulta ez egin / No volver a consultar"));
        QCOMPARE(hijo<QPushButton>(&panel, "CmdContinuar")->text(),
                 QStringLiteral("Aurrera jarraitu... Continuar..."));
        QVERIFY(!hijo<QCheckBox>(&panel, "ChkNoPreg")->isChecked());
        QVERIFY(panel.windowFlags() & Qt::WindowStaysOnTopHint);
    }

    void datosErroneosTextos()
    {
        ActOnline().SitAct = 4;
        EstablecerIdiomaPrograma(Idioma::Euskera);  // the rows do not follow the language
        FrmSinConexion panel;
        QCOMPARE(panel.windowTitle(), TextoFila(kIdDatosErroneos) + QStringLiteral(" / ")
                 + TextoFila(kIdDatosErroneos + 10000));
        QCOMPARE(hijo<QLabel>(&panel, "lblTituloC")->text(), TextoFila(kIdErrorDatosActualizacion));
        QCOMPARE(hijo<QLabel>(&panel, "lblTituloE")->text(),
                 TextoFila(kIdErrorDatosActualizacion + 10000));
    }

    void sinConexionCentradoEnPantalla()
    {
        ActOnline().SitAct = 1;
        FrmSinConexion panel;
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        const QPoint centro = panel.screen()->availableGeometry().center();
        // A window manager places the frame it adds after the window is shown.
        QTRY_VERIFY2((panel.frameGeometry().center() - centro).manhattanLength() <= 2,
                 qPrintable(QStringLiteral("%1,%2").arg(panel.frameGeometry().center().x())
                                .arg(panel.frameGeometry().center().y())));
        QTest::mouseClick(hijo<QPushButton>(&panel, "CmdContinuar"), Qt::LeftButton);
        QVERIFY(!panel.isVisible());
    }

    void casillaMarcadaSiLaComprobacionEstaApagada()
    {
        crearBaseModificable();
        ActOnline().ActOnline = 0;
        FrmSinConexion panel;
        QVERIFY(hijo<QCheckBox>(&panel, "ChkNoPreg")->isChecked());
        ActOnline().ActOnline = -1;
        FrmSinConexion otro;
        QVERIFY(!hijo<QCheckBox>(&otro, "ChkNoPreg")->isChecked());
    }

    void marcarApagaYLoGuarda()
    {
        crearBaseModificable();
        ActOnline().LeerActOnline();
        QCOMPARE(ActOnline().ActOnline, int16_t(-1));  // a new database: undecided
        ActOnline().SitAct = 1;
        FrmSinConexion panel;
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        QTest::mouseClick(hijo<QCheckBox>(&panel, "ChkNoPreg"), Qt::LeftButton);
        QCOMPARE(ActOnline().ActOnline, int16_t(0));
        ActOnline().ActOnline = 7;
        ActOnline().LeerActOnline();
        QCOMPARE(ActOnline().ActOnline, int16_t(0));
    }

    void marcarYDesmarcarDejaUnoAunqueFueraIndeciso()
    {
        crearBaseModificable();
        ActOnline().LeerActOnline();
        QCOMPARE(ActOnline().ActOnline, int16_t(-1));
        FrmSinConexion panel;
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        auto* casilla = hijo<QCheckBox>(&panel, "ChkNoPreg");
        QTest::mouseClick(casilla, Qt::LeftButton);
        QTest::mouseClick(casilla, Qt::LeftButton);
        QVERIFY(!casilla->isChecked());
        QCOMPARE(ActOnline().ActOnline, int16_t(1));
        ActOnline().ActOnline = -1;
        ActOnline().LeerActOnline();
        QCOMPARE(ActOnline().ActOnline, int16_t(1));
    }

    void abrirNoGuardaNada()
    {
        crearBaseModificable();
        ActOnline().ActOnline = 0;  // in memory only; the database still says undecided
        FrmSinConexion panel;
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        ActOnline().LeerActOnline();
        QCOMPARE(ActOnline().ActOnline, int16_t(-1));
    }

    // The setting and the address in the stores

    void ajusteIdaYVuelta()
    {
        crearBaseModificable();
        for (int16_t valor : {int16_t(1), int16_t(0), int16_t(-1), int16_t(1)}) {
            ActOnline().ActOnline = valor;
            ActOnline().GuardarActOnline();
            ActOnline().ActOnline = 99;
            ActOnline().LeerActOnline();
            QCOMPARE(ActOnline().ActOnline, valor);
        }
    }

    void direccionDelServicioDesdeLaReferencia()
    {
        ActOnline().URLAct.clear();
        ActOnline().ObtenerURLAct();
        QVERIFY(!ActOnline().URLAct.isEmpty());
        QCOMPARE(ActOnline().URLAct, urlDeLosDatos());
    }
};

QTEST_MAIN(TestPaneles)
#include "test_paneles.moc"
