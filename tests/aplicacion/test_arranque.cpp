// Start-up end to end on a temporary program folder: the paths, the first run with the
// language chooser, a later run, and the ways start-up stops.
#include "catalogo/IdsCatalogo.h"
#include "comun/ProgramaPrueba.h"
#include "registros/actualizacion/cActOnline.h"
#include "registros/nucleo/CEntrada.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "comun/CapturaModal.h"
#include "comun/Entorno.h"
#include "comun/BaseCruda.h"

#include "aplicacion/Arranque.h"
#include "paneles/dialogos/Mensaje.h"
#include "plataforma/Fallo.h"
#include "plataforma/Proceso.h"
#include "plataforma/Reloj.h"
#include "catalogo/Catalogo.h"
#include "valores/cFecha.h"
#include "servicios/Conexion.h"
#include "servicios/Esquema.h"
#include "servicios/cGeneralSvr.h"
#include "servicios/cTraspaso.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>
#include <memory>
#include <optional>
#include <stdexcept>
#include <system_error>

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

    // A store of the program with rows enough for several pages, closed, and one leaf page of
    // `objeto` (a table or an index) written over, as a failing disk or an interrupted copy
    // leaves it; the header and the schema stay whole, so the file still opens.
    static void danarPagina(const QString& ruta, const QString& objeto)
    {
        cTraspaso t;
        t.mdbmod = ruta;
        t.mdbPath = QFileInfo(ruta).absolutePath() + QLatin1Char('/');
        QCOMPARE(t.Traspaso(), false);
        Conexion::Cerrar(ruta);
        InsertarContribuyentes(ruta, 3000);
        qint64 pagina = 0;
        qint64 tamanno = 0;
        {
            ConexionCruda c(ruta);
            c.ejecutar(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"));
            tamanno = c.escalar(QStringLiteral("PRAGMA page_size")).toLongLong();
            pagina = c.escalar(QStringLiteral("SELECT MAX(pageno) FROM dbstat WHERE name = '%1' "
                                              "AND pagetype = 'leaf'").arg(objeto))
                         .toLongLong();
        }
        QVERIFY(pagina > 1 && tamanno > 0);
        QFile f(ruta);
        QVERIFY(f.open(QIODevice::ReadWrite));
        QVERIFY(f.seek((pagina - 1) * tamanno + 8));
        f.write(QByteArray(int(tamanno) - 8, '\x5A'));
    }

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
        QCOMPARE(MensajeSeam::registro().value(0).texto, Texto(kIdSinInformacionVersion));
        QCOMPARE(RelojSeam::esperas().size(), 1);
        QVERIFY(EsperaDe(RelojSeam::esperas()[0], 3000));
        QVERIFY(VentanaMDI() && VentanaMDI()->isVisible());
        VentanaMDI()->activateWindow();
        QTRY_COMPARE(captura.vistos(), QStringList{"FrmIdioma"});
        QCOMPARE(Entrada().IDI(), QStringLiteral("E"));
        QCOMPARE(OffsetIdioma(), int16_t(10000));
        QCOMPARE(IdiomaPrograma(), Idioma(Idioma::Euskera));
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
        QCOMPARE(OffsetIdioma(), int16_t(10000));
        QCOMPARE(VentanaMDI()->findChild<QMenu*>("mnuDeclaracion")->title(),
                 QStringLiteral("&Aitorpena"));
        QVERIFY(EsperaDe(RelojSeam::esperas().last(), 3000));
    }

    void otroIdiomaGuardadoEsCastellano()
    {
        CarpetaDePrueba carpeta;
        QVERIFY(arrancar());
        ReiniciarEstado();
        ajustes().CambiarIdioma("X");
        ajustes().GuardarActOnline(0);
        QVERIFY(arrancar());
        QCOMPARE(OffsetIdioma(), int16_t(0));
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
        QVERIFY(EsperaDe(RelojSeam::esperas().last(), 4000));
        QVERIFY(captura.vistos().contains("FrmSinConexion"));
    }

    // A database the program cannot use: a message says what is wrong with which file and what
    // the user can do, in both languages (the stored one cannot be read), and the program ends
    // with a status that is not 0, without a window and without a failure notice.
    void baseInservibleAvisaYTermina_data()
    {
        QTest::addColumn<int>("caso");
        QTest::addColumn<QString>("problema");
        QTest::addColumn<QString>("arazoa");
        QTest::addColumn<QString>("remedio");
        QTest::newRow("mas nueva") << 0 << "es de una versión más moderna del programa"
                                   << "bertsio berriago batekoa da" << "Instale la versión más reciente";
        QTest::newRow("cabecera rota") << 1 << "está dañada y el programa no puede abrirla"
                                       << "hondatuta dago" << "restaurar su copia de seguridad desde el menú Utilidades";
        QTest::newRow("texto") << 2 << "está dañada" << "hondatuta dago" << "Cambie el nombre de ese archivo";
        QTest::newRow("otro programa") << 3 << "no es una base de datos de este programa"
                                       << "ez da programa honen datu base bat" << "Cambie el nombre de ese archivo";
        QTest::newRow("carpeta") << 4 << "hay una carpeta" << "karpeta bat dago" << "Cambie el nombre de esa carpeta";
        QTest::newRow("pagina de indice danada") << 5 << "está dañada y el programa no puede abrirla"
                                                 << "hondatuta dago" << "Cambie el nombre de ese archivo";
        QTest::newRow("pagina de tabla danada") << 6 << "está dañada y el programa no puede abrirla"
                                                << "hondatuta dago" << "Cambie el nombre de ese archivo";
        QTest::newRow("enlace roto") << 7 << "hay un enlace a un archivo que no existe"
                                     << "existitzen ez den fitxategi baterako esteka bat dago"
                                     << "Devuelva a su sitio el archivo al que apunta el enlace";
    }
    void baseInservibleAvisaYTermina()
    {
        QFETCH(int, caso);
        QFETCH(QString, problema);
        QFETCH(QString, arazoa);
        QFETCH(QString, remedio);
        MensajeSeam::setNextAnswer(vb::OK);  // the notice of the unusable store
        CarpetaDePrueba carpeta;
        const QString ruta = carpeta.tablas() + "VELDOMOD.mdb";
        auto escribir = [&](const QByteArray& bytes) {
            QFile f(ruta);
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write(bytes);
        };
        switch (caso) {
        case 0: {
            QSqlDatabase db = QSqlDatabase::addDatabase("QSQLITE", "nueva");
            db.setDatabaseName(ruta);
            QVERIFY(db.open());
            QSqlQuery q(db);
            QVERIFY(q.exec("CREATE TABLE X (A)"));
            QVERIFY(q.exec(QStringLiteral("PRAGMA application_id = %1").arg(Esquema::MarcaAplicacion)));
            QVERIFY(q.exec("PRAGMA user_version = 999"));
            q = QSqlQuery();
            db.close();
            db = QSqlDatabase();
            QSqlDatabase::removeDatabase("nueva");
            break;
        }
        case 1: escribir(QByteArray("SQLite format 3", 16) + QByteArray(8192, '\x5A')); break;
        case 2: escribir("VELDOMOD\r\nno es una base de datos\r\n"); break;
        case 3: {
            QSqlDatabase db = QSqlDatabase::addDatabase("QSQLITE", "ajena");
            db.setDatabaseName(ruta);
            QVERIFY(db.open());
            QSqlQuery q(db);
            QVERIFY(q.exec("CREATE TABLE AGENDA (NOMBRE TEXT)"));
            q = QSqlQuery();
            db.close();
            db = QSqlDatabase();
            QSqlDatabase::removeDatabase("ajena");
            break;
        }
        case 4: QVERIFY(QDir().mkpath(ruta)); break;
        case 5: danarPagina(ruta, QStringLiteral("CONTRIBUYENTES_NOMBREC")); break;
        case 6: danarPagina(ruta, QStringLiteral("CONTRIBUYENTES")); break;
        case 7: QVERIFY(QFile::link(carpeta.ruta() + "/no-existe.mdb", ruta)); break;
        }
        const QStringList antes = Contenido(carpeta.ruta());
        const QByteArray bytes = Bytes(ruta);
        QVERIFY(!arrancar());
        // Nothing written: no file made, none changed.
        QCOMPARE(Contenido(carpeta.ruta()), antes);
        QCOMPARE(Bytes(ruta), bytes);
        QString aviso;
        for (const auto& m : MensajeSeam::registro())
            if (m.texto.contains(QDir::toNativeSeparators(ruta)) || m.texto.contains(QDir::toNativeSeparators(carpeta.tablas())))
                aviso = m.texto;
        QVERIFY2(!aviso.isEmpty(), "no hay aviso con la ruta");
        QVERIFY2(aviso.contains(problema), qPrintable(aviso));
        QVERIFY2(aviso.contains(arazoa), qPrintable(aviso));
        QVERIFY2(aviso.contains(remedio), qPrintable(aviso));
        QVERIFY(aviso.contains("El programa se cerrará.") && aviso.contains("Programa itxi egingo da."));
        QCOMPARE(ProcesoSeam::finales(), 1);
        QCOMPARE(ProcesoSeam::ultimoCodigo(), 2);
        QVERIFY(ProcesoSeam::avisos().isEmpty());
        QVERIFY(!VentanaMDI());
        if (caso == 4)
            QVERIFY(QFileInfo(ruta).isDir());
    }

    void unFalloDelTraspasoLlevaSuOrigen()
    {
        // A later layout whose step fails with the program's own failure: the notice carries
        // the source "MDIVeldo.Traspaso" + CRLF + the component's.
        CarpetaDePrueba carpeta;
        EsquemaSeam::agregarPaso({Esquema::VersionActual() + 1, [](const QSqlDatabase&, const QString& origen) {
                                      throw cFallo(75, origen, QStringLiteral("paso roto"));
                                  }});
        const bool sigue = arrancar();
        EsquemaSeam::limpiar();
        QApplication::restoreOverrideCursor();
        QVERIFY(!sigue);
        QCOMPARE(ProcesoSeam::avisos().size(), 1);
        QVERIFY(ProcesoSeam::avisos()[0].origen.startsWith("MDIVeldo.Traspaso\r\n"));
        QCOMPARE(ProcesoSeam::finales(), 1);
        QVERIFY(!VentanaMDI());
    }

    // The reference database missing, or not a database: a message that names it, in both
    // languages, status 2, no window, no failure notice, and nothing written (the read/write
    // database is not made).
    void sinBaseDeReferenciaAvisaYTermina_data()
    {
        QTest::addColumn<int>("caso");
        QTest::newRow("falta") << 0;
        QTest::newRow("no es una base de datos") << 1;
        QTest::newRow("tabla de menos") << 2;
    }
    void sinBaseDeReferenciaAvisaYTermina()
    {
        QFETCH(int, caso);
        MensajeSeam::setNextAnswer(vb::OK);  // the notice of the missing reference
        CarpetaDePrueba carpeta;
        QVERIFY(QFile::remove(mdblec));
        if (caso == 1) {
            QFile f(mdblec);
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write("VELDOLEC\r\nno es una base de datos\r\n");
        } else if (caso == 2) {
            ConexionCruda c(mdblec);
            c.ejecutar(QStringLiteral("CREATE TABLE OTRA (A)"));
        }
        const QStringList antes = Contenido(carpeta.ruta());
        QVERIFY(!arrancar());
        QCOMPARE(Contenido(carpeta.ruta()), antes);
        QString aviso;
        for (const auto& m : MensajeSeam::registro())
            if (m.texto.contains(QDir::toNativeSeparators(mdblec)))
                aviso = m.texto;
        QVERIFY2(aviso.contains(QDir::toNativeSeparators(mdblec)), qPrintable(aviso));
        QVERIFY2(aviso.contains("No se puede leer la base de datos de referencia"), qPrintable(aviso));
        QVERIFY2(aviso.contains("erreferentziako datu basea irakurri"), qPrintable(aviso));
        QCOMPARE(ProcesoSeam::finales(), 1);
        QCOMPARE(ProcesoSeam::ultimoCodigo(), 2);
        QVERIFY(ProcesoSeam::avisos().isEmpty());
        QVERIFY(!VentanaMDI());
    }

    // A failure of another kind inside the migration ends start-up the same way: its number
    // kept where it has one, and the source "MDIVeldo.Traspaso" + CRLF + the component's.
    void unFalloAjenoDelTraspasoLlevaSuOrigen_data()
    {
        QTest::addColumn<int>("clase");
        QTest::addColumn<int>("numero");
        QTest::newRow("std::runtime_error") << 0 << 5;
        QTest::newRow("std::system_error") << 1 << 13;
        QTest::newRow("otro tipo") << 2 << 5;
    }
    void unFalloAjenoDelTraspasoLlevaSuOrigen()
    {
        QFETCH(int, clase);
        QFETCH(int, numero);
        CarpetaDePrueba carpeta;
        QVERIFY(arrancar());
        ReiniciarEstado();
        // A later layout whose step fails with a failure that is not the program's own.
        EsquemaSeam::agregarPaso({Esquema::VersionActual() + 1, [clase](const QSqlDatabase&, const QString&) {
                                      if (clase == 0)
                                          throw std::runtime_error("paso roto");
                                      if (clase == 1)
                                          throw std::system_error(13, std::generic_category(), "paso roto");
                                      throw 42;
                                  }});
        ConfigurarRutas(CarpetaPrograma());
        std::optional<cFallo> fallo;
        try {
            Traspaso();
        } catch (const cFallo& f) {
            fallo = f;
        }
        EsquemaSeam::limpiar();
        QApplication::restoreOverrideCursor();
        QVERIFY(fallo);
        QCOMPARE(fallo->origen(), QStringLiteral("MDIVeldo.Traspaso\r\nsvrVeldoV1.cTraspaso"));
        QCOMPARE(fallo->numero(), numero);
        // Nothing of the broken step stays: the store is still of the program's layout.
        EsquemaSeam::limpiar();
        QCOMPARE(Traspaso(), true);
    }

    // A copy of the program killed half-way through a restore or a backup left hidden
    // temporary copies: the next start removes them, but not those of a copy still running.
    void restosDeCopiasSeLimpianAlArrancar()
    {
        CarpetaDePrueba carpeta;
        QDir().mkpath(carpeta.ruta() + "/backups");
        const QString enTablas = carpeta.tablas() + ".VELDOMOD.mdb.0123456789ab.tmp";
        const QString enCopias = carpeta.ruta() + "/backups/.VELDOMod_bak.mdb.0123456789ab.tmp";
        const QString enUso = carpeta.tablas() + ".VELDOMOD.mdb.aaaaaaaaaaaa.tmp";
        for (const QString& f : {enTablas, enCopias, enUso}) {
            QFile resto(f);
            QVERIFY(resto.open(QIODevice::WriteOnly));
            resto.write(QByteArray(1024, 'x'));
        }
        QLockFile cerrojo(enUso + ".lock");
        QVERIFY(cerrojo.tryLock(0));
        QVERIFY(arrancar());
        QVERIFY(!QFile::exists(enTablas));
        QVERIFY(!QFile::exists(enCopias));
        QVERIFY(QFile::exists(enUso));
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
