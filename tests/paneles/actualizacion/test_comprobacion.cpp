// The whole update check against a local HTTP server: a current program, an older or newer
// version offered, a file without a three-part version, a missing page, no server, a server
// that never answers, the query keys of either language, and the outcome panels.
#include "catalogo/IdsCatalogo.h"
#include "comun/CapturaModal.h"
#include "ServidorPrueba.h"
#include "comun/Entorno.h"
#include "comun/MensajesEstrictos.h"

#include "paneles/actualizacion/ActualizacionOnline.h"
#include "registros/actualizacion/ActualizacionOnline.h"
#include "paneles/actualizacion/LanzarExplorador.h"
#include "registros/actualizacion/cActOnline.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "paneles/dialogos/Navegador.h"
#include "paneles/dialogos/Mensaje.h"
#include "plataforma/Reloj.h"
#include "catalogo/Catalogo.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QUrlQuery>
#include <memory>
#include <optional>

namespace {

QByteArray ficheroVersion(const QByteArray& version)
{
    return "[informacion]\r\n"
           "currentversion=" + version + "\r\n"
           "downloadurl=http://descargas.veldoria.example/Veldo-" + version + ".exe\r\n"
           "descripcion=Nueva versión con mejoras\r\n";
}

// `datos` compressed for a reply's Content-Encoding. qCompress gives a length of 4 bytes and
// a zlib stream, which is a "deflate" body; a "gzip" body is the stream's deflate data behind
// gzip's header. The gzip trailer (checksum and size) is left out: the server keeps the
// connection open, so the body never ends and the client must judge it as it inflates.
QByteArray Comprimir(const QByteArray& codificacion, const QByteArray& datos)
{
    const QByteArray zlib = qCompress(datos, 9).mid(4);
    if (codificacion == "deflate")
        return zlib;
    static const char cabecera[] = {'\x1f', '\x8b', 8, 0, 0, 0, 0, 0, 2, 3};
    return QByteArray(cabecera, sizeof cabecera) + zlib.mid(2, zlib.size() - 6);
}

// What a panel showed when it opened.
struct Vista {
    QString objeto;
    QString titulo;
    QString actual, disponible, url, ruta, info;
    bool botonDescarga = false;
    int altoBotonDescarga = -1;
    QString tituloC, tituloE;
};

Vista mirar(QWidget* w)
{
    Vista v;
    v.objeto = w->objectName();
    v.titulo = w->windowTitle();
    auto texto = [w](const char* nombre) {
        if (auto* l = w->findChild<QLabel*>(QLatin1String(nombre)))
            return l->text();
        if (auto* e = w->findChild<QLineEdit*>(QLatin1String(nombre)))
            return e->text();
        if (auto* p = w->findChild<QPlainTextEdit*>(QLatin1String(nombre)))
            return p->toPlainText();
        return QStringLiteral("<no hay %1>").arg(QLatin1String(nombre));
    };
    v.actual = texto("LblActual");
    v.disponible = texto("LblDisponible");
    v.url = texto("TxtUrl");
    v.ruta = texto("TxtPath");
    v.info = texto("TxtInfo");
    v.tituloC = texto("lblTituloC");
    v.tituloE = texto("lblTituloE");
    if (auto* b = w->findChild<QPushButton*>(QStringLiteral("CmdActualizar"))) {
        v.botonDescarga = b->isVisible();
        v.altoBotonDescarga = b->height();
    }
    return v;
}

}  // namespace

class TestComprobacion : public QObject {
    Q_OBJECT

    std::unique_ptr<CarpetaDePrueba> m_carpeta;
    std::optional<MensajesEstrictos> m_estrictos;  // every box has its answer queued
    std::unique_ptr<ServidorPrueba> m_servidor;
    QList<Vista> m_vistas;

    // Runs the check with the panels watched: each one is looked at and closed.
    QStringList comprobar()
    {
        m_vistas.clear();
        CapturaModal captura([this](QWidget* w) { m_vistas.append(mirar(w)); });
        ComprobarActualizacion();
        return captura.vistos();
    }

    void programaEnVersion(const QString& v1, const QString& v2, const QString& v3)
    {
        ActOnline().ProgVer1 = v1;
        ActOnline().ProgVer2 = v2;
        ActOnline().ProgVer3 = v3;
    }

private slots:
    void init()
    {
        m_carpeta = std::make_unique<CarpetaDePrueba>();
        GrabarSeams();
        RelojSeam::grabar(true);
        NavegadorSeam::grabar(true);
        EstablecerIdiomaPrograma(Idioma::Castellano);
        ActOnline() = cActOnline{};
        ActOnline().ActFile = m_carpeta->ruta() + QStringLiteral("/Veldo");
        programaEnVersion(QStringLiteral("1"), QStringLiteral("28"), QStringLiteral("1"));
        m_servidor = std::make_unique<ServidorPrueba>();
        ActOnline().URLAct = m_servidor->url();
        EstablecerEsperaMaximaDescarga(std::chrono::milliseconds(15000));
        m_estrictos.emplace();
    }

    void cleanup()
    {
        m_estrictos.reset();
        m_servidor.reset();
        m_carpeta.reset();
        EstablecerIdiomaPrograma(Idioma::Castellano);
    }

    void mismaVersionEsSilenciosaAlArrancar()
    {
        m_servidor->responder(200, ficheroVersion("1.28.1"));
        QCOMPARE(comprobar(), QStringList());
        QCOMPARE(ActOnline().SitAct, int16_t(3));
        QCOMPARE(ActOnline().ComVer, int16_t(0));
        // The check first gives the windows a second to paint.
        QCOMPARE(RelojSeam::esperas().size(), 1);
        QVERIFY(EsperaDe(RelojSeam::esperas()[0], 1000));
        // The file stays in the program's folder until the next check.
        QFile f(m_carpeta->ruta() + QStringLiteral("/version.ini"));
        QVERIFY(f.open(QIODevice::ReadOnly));
        QCOMPARE(f.readAll(), ficheroVersion("1.28.1"));
        QVERIFY(MensajeSeam::registro().isEmpty());
    }

    void mismaVersionDesdePreferenciasMuestraElPanelSinDescarga()
    {
        QWidget preferencias;
        preferencias.setObjectName(QStringLiteral("frmPreferencias"));
        preferencias.show();
        m_servidor->responder(200, ficheroVersion("1.28.1"));
        QCOMPARE(comprobar(), QStringList{QStringLiteral("FrmVersionCheck")});
        const Vista& v = m_vistas.at(0);
        QCOMPARE(v.actual, QStringLiteral("1.28.1"));
        QCOMPARE(v.disponible, QStringLiteral("1.28.1"));
        QVERIFY(!v.botonDescarga);
        QCOMPARE(v.altoBotonDescarga, 0);
        QCOMPARE(ActOnline().ComVer, int16_t(0));
        QCOMPARE(ActOnline().SitAct, int16_t(3));
    }

    void preferenciasOcultasNoCuentan()
    {
        QWidget preferencias;
        preferencias.setObjectName(QStringLiteral("frmPreferencias"));
        preferencias.show();
        preferencias.hide();
        m_servidor->responder(200, ficheroVersion("1.28.1"));
        QCOMPARE(comprobar(), QStringList());
    }

    void versionAnteriorSeOfreceComoNueva()
    {
        m_servidor->responder(200, ficheroVersion("1.27.9"));
        QCOMPARE(comprobar(), QStringList{QStringLiteral("FrmVersionCheck")});
        const Vista& v = m_vistas.at(0);
        QCOMPARE(v.titulo, QStringLiteral("Actualizar versión"));
        QCOMPARE(v.actual, QStringLiteral("1.28.1"));
        QCOMPARE(v.disponible, QStringLiteral("1.27.9"));
        QVERIFY(v.botonDescarga);
        QCOMPARE(v.url, QStringLiteral("http://descargas.veldoria.example/Veldo-1.27.9.exe"));
        QCOMPARE(v.ruta, m_carpeta->ruta() + QStringLiteral("/Veldo"));
        QCOMPARE(v.info, QStringLiteral("Nueva versión con mejoras"));
        QCOMPARE(ActOnline().ComVer, int16_t(1));
        QCOMPARE(ActOnline().SitAct, int16_t(3));
        QCOMPARE(ActOnline().ActVer1, QStringLiteral("1"));
        QCOMPARE(ActOnline().ActVer2, QStringLiteral("27"));
        QCOMPARE(ActOnline().ActVer3, QStringLiteral("9"));
    }

    void versionPosteriorSeOfrece()
    {
        m_servidor->responder(200, ficheroVersion("1.29.0"));
        QCOMPARE(comprobar(), QStringList{QStringLiteral("FrmVersionCheck")});
        QVERIFY(m_vistas.at(0).botonDescarga);
    }

    void versionComoTextoNoComoNumero()
    {
        // "01" and "1" differ as text.
        m_servidor->responder(200, ficheroVersion("1.28.01"));
        QCOMPARE(comprobar(), QStringList{QStringLiteral("FrmVersionCheck")});
        QCOMPARE(ActOnline().ComVer, int16_t(1));
    }

    void versionConBlancosYCuartaParteEsLaMisma()
    {
        m_servidor->responder(200, "[informacion]\ncurrentversion =  1.28.1.7  \n");
        QCOMPARE(comprobar(), QStringList());
        QCOMPARE(ActOnline().ComVer, int16_t(0));
        QCOMPARE(ActOnline().SitAct, int16_t(3));
        QCOMPARE(ActOnline().ActDownloadURL, QString());
    }

    void versionDeDosPartesEsDatoErroneo()
    {
        m_servidor->responder(200, ficheroVersion("2.0"));
        QCOMPARE(comprobar(), QStringList{QStringLiteral("FrmSinConexion")});
        const Vista& v = m_vistas.at(0);
        QCOMPARE(v.titulo, TextoFila(kIdDatosErroneos) + QStringLiteral(" / ")
                 + TextoFila(kIdDatosErroneos + 10000));
        QCOMPARE(v.tituloC, TextoFila(kIdErrorDatosActualizacion));
        QCOMPARE(v.tituloE, TextoFila(kIdErrorDatosActualizacion + 10000));
        QCOMPARE(ActOnline().SitAct, int16_t(4));
        QCOMPARE(ActOnline().ComVer, int16_t(0));
        // A bad file changes nothing of the version offered before.
        QCOMPARE(ActOnline().ActVer1, QString());
    }

    void ficheroSinSeccionEsDatoErroneo()
    {
        m_servidor->responder(200, "<html><body>Mantenimiento</body></html>");
        QCOMPARE(comprobar(), QStringList{QStringLiteral("FrmSinConexion")});
        QCOMPARE(ActOnline().SitAct, int16_t(4));
    }

    void pagina404EsSinConexion()
    {
        m_servidor->responder(404, "<html>Not found</html>");
        QCOMPARE(comprobar(), QStringList{QStringLiteral("FrmSinConexion")});
        const Vista& v = m_vistas.at(0);
        QCOMPARE(v.titulo, TextoFila(kIdFalloConexion) + QStringLiteral(" / ")
                 + TextoFila(kIdFalloConexion + 10000));
        QCOMPARE(v.tituloC, TextoFila(kIdSinConexionInternet));
        QCOMPARE(v.tituloE, TextoFila(kIdSinConexionInternet + 10000));
        QCOMPARE(ActOnline().SitAct, int16_t(1));
        QVERIFY(!QFile::exists(m_carpeta->ruta() + QStringLiteral("/version.ini")));
        QCOMPARE(m_servidor->peticiones().size(), 1);
    }

    void errorDelServidorEsSinConexion()
    {
        m_servidor->responder(500, "fallo");
        QCOMPARE(comprobar(), QStringList{QStringLiteral("FrmSinConexion")});
        QCOMPARE(ActOnline().SitAct, int16_t(1));
    }

    void sinServidorEsSinConexion()
    {
        ActOnline().URLAct =
            QStringLiteral("http://127.0.0.1:%1/version.php").arg(ServidorPrueba::puertoCerrado());
        QCOMPARE(comprobar(), QStringList{QStringLiteral("FrmSinConexion")});
        QCOMPARE(m_vistas.at(0).tituloC, TextoFila(kIdSinConexionInternet));
        QCOMPARE(ActOnline().SitAct, int16_t(1));
    }

    void direccionVaciaEsSinConexion()
    {
        ActOnline().URLAct.clear();
        QCOMPARE(comprobar(), QStringList{QStringLiteral("FrmSinConexion")});
        QCOMPARE(ActOnline().SitAct, int16_t(1));
    }

    void servidorMudoEsSinConexion()
    {
        EstablecerEsperaMaximaDescarga(std::chrono::milliseconds(400));
        m_servidor->callar();
        QCOMPARE(comprobar(), QStringList{QStringLiteral("FrmSinConexion")});
        QCOMPARE(ActOnline().SitAct, int16_t(1));
        QCOMPARE(m_servidor->peticiones().size(), 1);  // it did reach the server
        QVERIFY(!QFile::exists(m_carpeta->ruta() + QStringLiteral("/version.ini")));
    }

    void consultaEnCastellano()
    {
        m_servidor->responder(200, ficheroVersion("1.28.1"));
        comprobar();
        QCOMPARE(m_servidor->peticiones(),
                 QList<QByteArray>{"/version.php?Programa=Veldoria&idioma=c"});
    }

    void consultaEnEuskera()
    {
        EstablecerIdiomaPrograma(Idioma::Euskera);
        m_servidor->responder(200, ficheroVersion("1.28.1"));
        comprobar();
        QCOMPARE(m_servidor->peticiones().size(), 1);
        const QByteArray peticion = m_servidor->peticiones().at(0);
        QVERIFY2(peticion.endsWith("&idioma=e"), peticion.constData());
        const QUrlQuery consulta(QUrl(QString::fromLatin1(peticion)));
        QCOMPARE(consulta.queryItemValue(QStringLiteral("Programa")), TituloPrograma());
        QCOMPARE(consulta.queryItemValue(QStringLiteral("idioma")), QStringLiteral("e"));
    }

    void panelSinConexionEnEuskeraSigueBilingue()
    {
        EstablecerIdiomaPrograma(Idioma::Euskera);
        m_servidor->responder(404, "");
        QCOMPARE(comprobar(), QStringList{QStringLiteral("FrmSinConexion")});
        QCOMPARE(m_vistas.at(0).titulo, TextoFila(kIdFalloConexion) + QStringLiteral(" / ")
                 + TextoFila(kIdFalloConexion + 10000));
        QCOMPARE(m_vistas.at(0).tituloC, TextoFila(kIdSinConexionInternet));
        QCOMPARE(m_vistas.at(0).tituloE, TextoFila(kIdSinConexionInternet + 10000));
    }

    void comVerNoSeBorraEnLaMismaSesion()
    {
        m_servidor->responder(200, ficheroVersion("1.27.9"));
        QCOMPARE(comprobar(), QStringList{QStringLiteral("FrmVersionCheck")});
        QCOMPARE(ActOnline().ComVer, int16_t(1));
        // A later file equal to the running version: the earlier difference is kept.
        m_servidor->responder(200, ficheroVersion("1.28.1"));
        QCOMPARE(comprobar(), QStringList{QStringLiteral("FrmVersionCheck")});
        QCOMPARE(ActOnline().ComVer, int16_t(1));
        QCOMPARE(m_vistas.at(0).disponible, QStringLiteral("1.28.1"));
        QVERIFY(m_vistas.at(0).botonDescarga);
    }

    void programaSinVersionSiempreDifiere()
    {
        programaEnVersion(QString(), QString(), QString());
        m_servidor->responder(200, ficheroVersion("1.28.1"));
        QCOMPARE(comprobar(), QStringList{QStringLiteral("FrmVersionCheck")});
        QCOMPARE(m_vistas.at(0).actual, QStringLiteral(".."));
        QCOMPARE(ActOnline().ComVer, int16_t(1));
    }

    void ficheroAnteriorSeBorraAntesDeDescargar()
    {
        QFile viejo(m_carpeta->ruta() + QStringLiteral("/version.ini"));
        QVERIFY(viejo.open(QIODevice::WriteOnly));
        viejo.write(ficheroVersion("1.27.9"));
        viejo.close();
        m_servidor->responder(404, "");
        QCOMPARE(comprobar(), QStringList{QStringLiteral("FrmSinConexion")});
        QVERIFY(!viejo.exists());
        QCOMPARE(ActOnline().ComVer, int16_t(0));
    }

    void ficheroQueNoSePuedeBorrarNoMuestraNada()
    {
        // A folder in the place of the file cannot be deleted: an unexpected failure, which
        // ends the check with no panel and leaves the outcome of the last one.
        QVERIFY(QDir(m_carpeta->ruta()).mkdir(QStringLiteral("version.ini")));
        ActOnline().SitAct = 3;
        m_servidor->responder(200, ficheroVersion("1.27.9"));
        QCOMPARE(DescargarVersionIni(), 4);
        QCOMPARE(comprobar(), QStringList());
        QCOMPARE(ActOnline().SitAct, int16_t(3));
        QCOMPARE(ActOnline().ComVer, int16_t(0));
        QVERIFY(m_servidor->peticiones().isEmpty());
    }

    void unaComprobacionALaVez()
    {
        // A check asked for while one is running (a second click) does nothing.
        m_servidor->responder(200, ficheroVersion("1.27.9"));
        int anidadas = 0;
        {
            CapturaModal captura([&anidadas](QWidget*) {
                ++anidadas;
                ComprobarActualizacion();
            });
            ComprobarActualizacion();
            QCOMPARE(captura.vistos(), QStringList{QStringLiteral("FrmVersionCheck")});
        }
        QCOMPARE(anidadas, 1);
        QCOMPARE(m_servidor->peticiones().size(), 1);
        QCOMPARE(RelojSeam::esperas().size(), 1);
        QVERIFY(EsperaDe(RelojSeam::esperas()[0], 1000));
        // Once it has ended, the next check runs.
        m_vistas.clear();
        QCOMPARE(comprobar(), QStringList{QStringLiteral("FrmVersionCheck")});
        QCOMPARE(m_servidor->peticiones().size(), 2);
    }

    void descargaDejaElFicheroTalCual()
    {
        const QByteArray cuerpo = ficheroVersion("1.30.2") + QByteArray(5000, 'x');
        m_servidor->responder(200, cuerpo);
        QCOMPARE(DescargarVersionIni(), 3);
        QFile f(RutaVersionIni());
        QVERIFY(f.open(QIODevice::ReadOnly));
        QCOMPARE(f.readAll(), cuerpo);
        QCOMPARE(LeerVersionIni(), 3);
        QCOMPARE(ActOnline().ActVer2, QStringLiteral("30"));
        QCOMPARE(ActOnline().ActDownloadURL,
                 QStringLiteral("http://descargas.veldoria.example/Veldo-1.30.2.exe"));
    }

    // A reply far above the size of a version file is no version file: the reading stops at
    // 64 KiB, the check goes on as without connection, and nothing is kept.
    void respuestaEnormeEsSinConexion()
    {
        m_servidor->responder(200, ficheroVersion("1.30.2") + QByteArray(10 * 1024 * 1024, 'x'));
        QCOMPARE(DescargarVersionIni(), 1);
        QVERIFY(!QFile::exists(RutaVersionIni()));
    }

    void respuestaSinFinEsSinConexion()
    {
        m_servidor->sinFin();
        QElapsedTimer reloj;
        reloj.start();
        QCOMPARE(DescargarVersionIni(), 1);
        QVERIFY(!QFile::exists(RutaVersionIni()));
        // Stopped soon after the limit: far less than the 15 s wait, and not megabytes later.
        QVERIFY(reloj.elapsed() < 10000);
        QVERIFY(m_servidor->enviados() < 8 * 1024 * 1024);
        QCOMPARE(comprobar(), QStringList{QStringLiteral("FrmSinConexion")});
    }

    // A compressed reply is counted as it inflates: one that grows past the limit stops there,
    // at once, and does not keep the check waiting for the end of the time allowed.
    void respuestaComprimidaEnormeEsSinConexion_data()
    {
        QTest::addColumn<QByteArray>("codificacion");
        QTest::addColumn<int>("megas");
        QTest::newRow("gzip 4 MiB") << QByteArray("gzip") << 4;
        QTest::newRow("gzip 64 MiB") << QByteArray("gzip") << 64;
        QTest::newRow("deflate 4 MiB") << QByteArray("deflate") << 4;
        QTest::newRow("deflate 64 MiB") << QByteArray("deflate") << 64;
    }
    void respuestaComprimidaEnormeEsSinConexion()
    {
        QFETCH(QByteArray, codificacion);
        QFETCH(int, megas);
        const QByteArray cuerpo = ficheroVersion("1.30.2") + QByteArray(megas * 1024 * 1024, ' ');
        m_servidor->comprimido(codificacion, Comprimir(codificacion, cuerpo), true);
        EstablecerEsperaMaximaDescarga(std::chrono::seconds(60));
        QElapsedTimer reloj;
        reloj.start();
        QCOMPARE(DescargarVersionIni(), 1);
        QVERIFY2(reloj.elapsed() < 20000, qPrintable(QString::number(reloj.elapsed())));
        QVERIFY(!QFile::exists(RutaVersionIni()));
    }

    void respuestaComprimidaPequenaSeLee()
    {
        // A compressed version file within the limit is read as any other.
        m_servidor->comprimido("deflate", Comprimir("deflate", ficheroVersion("1.30.2")), false);
        EstablecerEsperaMaximaDescarga(std::chrono::seconds(60));
        QElapsedTimer reloj;
        reloj.start();
        QCOMPARE(DescargarVersionIni(), 3);
        QVERIFY2(reloj.elapsed() < 20000, qPrintable(QString::number(reloj.elapsed())));
        QCOMPARE(LeerVersionIni(), 3);
        QCOMPARE(ActOnline().ActVer2, QStringLiteral("30"));
    }

    void respuestaEnElLimiteSeGuarda()
    {
        QByteArray cuerpo = ficheroVersion("1.30.2");
        cuerpo += QByteArray(64 * 1024 - cuerpo.size(), ';');
        m_servidor->responder(200, cuerpo);
        QCOMPARE(DescargarVersionIni(), 3);
        QFile f(RutaVersionIni());
        QVERIFY(f.open(QIODevice::ReadOnly));
        QCOMPARE(f.readAll(), cuerpo);
    }

    // A version with a control character is a bad file, as is a download address that is not
    // a web address.
    void versionConCaracterDeControlEsDatoErroneo_data()
    {
        QTest::addColumn<QByteArray>("version");
        QTest::newRow("campana") << QByteArray("1.30\a.2");
        QTest::newRow("escape") << QByteArray("1.\x1b[31m30.2");
        QTest::newRow("borrar") << QByteArray("1.30.2\x7f");
        QTest::newRow("tabulador dentro") << QByteArray("1.3\t0.2");
        // Bidirectional controls turn the text around on screen ("9.9.9" U+202E "1" shows
        // "9.9.91").
        QTest::newRow("U+202E") << QByteArray("9.9.9\xE2\x80\xAE" "1");
        QTest::newRow("U+200F") << QByteArray("1.\xE2\x80\x8F" "30.2");
        QTest::newRow("U+2066") << QByteArray("\xE2\x81\xA6" "1.30.2");
    }
    void versionConCaracterDeControlEsDatoErroneo()
    {
        QFETCH(QByteArray, version);
        m_servidor->responder(200, ficheroVersion(version));
        QCOMPARE(DescargarVersionIni(), 3);
        QCOMPARE(LeerVersionIni(), 4);
    }

    void direccionDeDescargaNoWebEsDatoErroneo_data()
    {
        QTest::addColumn<QByteArray>("direccion");
        QTest::newRow("fichero") << QByteArray("file:///etc/passwd");
        QTest::newRow("javascript") << QByteArray("javascript:alert(1)");
        QTest::newRow("sin esquema") << QByteArray("descargas.veldoria.example/v.exe");
    }
    void direccionDeDescargaNoWebEsDatoErroneo()
    {
        QFETCH(QByteArray, direccion);
        m_servidor->responder(200, "[informacion]\r\ncurrentversion=1.30.2\r\ndownloadurl="
                                       + direccion + "\r\n");
        QCOMPARE(DescargarVersionIni(), 3);
        QCOMPARE(LeerVersionIni(), 4);
    }

    void descargaAOtroNombreNoCuenta()
    {
        // Only version.ini in the program's folder counts as a file that came back.
        m_servidor->responder(200, ficheroVersion("1.28.1"));
        const QString otro = m_carpeta->ruta() + QStringLiteral("/otro.ini");
        QCOMPARE(DescargarFichero(m_servidor->url(), otro), 1);
        QVERIFY(QFile::exists(otro));
    }
};

QTEST_MAIN(TestComprobacion)
#include "test_comprobacion.moc"
