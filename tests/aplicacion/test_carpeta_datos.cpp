// Where the program keeps what it writes: beside itself when it may write there, in the user's
// own data folder when its folder is read-only (an installed program), one store per user.
#include "comun/ProgramaPrueba.h"
#include "paneles/dialogos/Mensaje.h"
#include "registros/actualizacion/ActualizacionOnline.h"
#include "paneles/actualizacion/LanzarExplorador.h"
#include "aplicacion/Arranque.h"
#include "registros/nucleo/CEntrada.h"
#include "plataforma/General.h"
#include "plataforma/Proceso.h"
#include "plataforma/Reloj.h"
#include "comun/CapturaModal.h"
#include "comun/Entorno.h"
#include "servicios/cGeneralSvr.h"

#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <memory>
#include <optional>

namespace {

// Sets an environment variable for the life of the object, then puts back what was there.
class Variable {
public:
    Variable(const char* nombre, const std::optional<QString>& valor)
        : m_nombre(nombre), m_antes(qEnvironmentVariableIsSet(nombre)
                                        ? std::optional(qEnvironmentVariable(nombre))
                                        : std::nullopt)
    {
        poner(valor);
    }
    ~Variable() { poner(m_antes); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    void poner(const std::optional<QString>& valor)
    {
        if (valor)
            qputenv(m_nombre, valor->toLocal8Bit());
        else
            qunsetenv(m_nombre);
    }
    const char* m_nombre;
    std::optional<QString> m_antes;
};

// A user: a home of their own and, when given, their own XDG_DATA_HOME.
class Usuario {
public:
    explicit Usuario(bool conXdg)
        : m_home("HOME", m_casa.path()),
          m_xdg("XDG_DATA_HOME",
                conXdg ? std::optional(m_casa.path() + QStringLiteral("/xdg")) : std::nullopt),
          m_datos(QDir::cleanPath(m_casa.path()
                                  + (conXdg ? QStringLiteral("/xdg/veldoria")
                                            : QStringLiteral("/.local/share/veldoria"))))
    {
    }
    // Where this user's data is expected.
    const QString& datos() const { return m_datos; }

private:
    QTemporaryDir m_casa;
    Variable m_home;
    Variable m_xdg;
    QString m_datos;
};

// A program folder (the test's folder with the reference database) made read-only for its
// life, as an installed program's folder is; it is writable again when the test ends.
class ProgramaDeSoloLectura {
public:
    // With `conAlmacen`, a read/write database lies beside the program already.
    explicit ProgramaDeSoloLectura(bool conAlmacen = false)
    {
        if (conAlmacen) {
            QFile almacen(m_carpeta.tablas() + QStringLiteral("VELDOMOD.mdb"));
            QVERIFY(almacen.open(QIODevice::WriteOnly));
        }
        for (const QString& c : {m_carpeta.tablas(), m_carpeta.ruta()})
            QFile::setPermissions(c, QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup
                                         | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther);
    }
    ~ProgramaDeSoloLectura()
    {
        for (const QString& c : {m_carpeta.ruta(), m_carpeta.tablas()})
            QFile::setPermissions(c, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    ProgramaDeSoloLectura(const ProgramaDeSoloLectura&) = delete;
    ProgramaDeSoloLectura& operator=(const ProgramaDeSoloLectura&) = delete;

    const CarpetaDePrueba& carpeta() const { return m_carpeta; }

private:
    CarpetaDePrueba m_carpeta;
};

}  // namespace

class TestCarpetaDatos : public QObject {
    Q_OBJECT

    std::unique_ptr<CapturaModal> m_captura;

    // Start-up as the program runs it. A test folder has no version record beside the
    // program, so start-up tells so (id 342) before any window: that notice is answered.
    static bool Arrancar()
    {
        MensajeSeam::setNextAnswer(vb::OK);
        bool sigue = false;
        Proceso::Protegido([&] { sigue = Main(); });
        return sigue;
    }

    static cGeneralSvr ajustes()
    {
        cGeneralSvr g;
        g.mdbmod = mdbmod;
        return g;
    }

    // Starts the program as on a first run and answers the language chooser with `boton`.
    void primerArranque(const char* boton)
    {
        m_captura = std::make_unique<CapturaModal>([boton](QWidget* w) {
            if (w->objectName() == QLatin1String("FrmIdioma"))
                w->findChild<QPushButton*>(QLatin1String(boton))->click();
        });
        QVERIFY(Arrancar());
        QVERIFY(VentanaMDI() && VentanaMDI()->isVisible());
        VentanaMDI()->activateWindow();
        QTRY_VERIFY(m_captura->vistos().contains(QStringLiteral("FrmIdioma")));
    }

private slots:
    void init()
    {
        GrabarSeams();
        RelojSeam::grabar(true);
        ReiniciarEstado();
        m_captura = std::make_unique<CapturaModal>();
    }
    void cleanup()
    {
        ReiniciarEstado();
        m_captura.reset();
    }

    void carpetaEscribibleGuardaJuntoAlPrograma()
    {
        const Usuario usuario(true);
        CarpetaDePrueba carpeta;
        QCOMPARE(CarpetaDatos(), carpeta.ruta());
        QVERIFY(Arrancar());
        QCOMPARE(mdbmod, carpeta.tablas() + "VELDOMOD.mdb");
        QVERIFY(QFile::exists(mdbmod));
        QCOMPARE(RutaVersionIni(), carpeta.ruta() + "/version.ini");
        QVERIFY(!QFileInfo::exists(usuario.datos()));
    }

    void carpetaDeSoloLecturaGuardaEnLaDelUsuario()
    {
        const Usuario usuario(true);
        const ProgramaDeSoloLectura programa;
        const QString ruta = programa.carpeta().ruta();
        const QStringList antes = Contenido(ruta);
        QCOMPARE(CarpetaDatos(), usuario.datos());

        primerArranque("cmdeuskera");
        // The store is made under the user's folder, the reference data read from the program's.
        QCOMPARE(mdbmod, usuario.datos() + "/Tablas/VELDOMOD.mdb");
        QCOMPARE(mdbPath, usuario.datos() + "/Tablas/");
        QCOMPARE(mdblec, ruta + "/Tablas/VELDOLEC.mdb");
        QVERIFY(QFile::exists(mdbmod));
        QCOMPARE(ajustes().ObtenerIdioma(), QStringLiteral("E"));
        QCOMPARE(Entrada().NUMCONTRI, 0);
        // The other files the program writes go there too.
        QCOMPARE(RutaVersionIni(), usuario.datos() + "/version.ini");
        QCOMPARE(RutaPaginaTemporal(), usuario.datos() + "/temphtm.HTM");
        const QString copia = usuario.datos() + "/backups/VELDOMod_bak.mdb";
        VentanaMDI()->findChild<QAction*>(QStringLiteral("mnuBackup"))->trigger();
        QVERIFY(QFile::exists(copia));
        QCOMPARE(Contenido(ruta), antes);

        // The next run finds the store again and does not ask for the language.
        ReiniciarEstado();
        m_captura = std::make_unique<CapturaModal>();
        QVERIFY(Arrancar());
        VentanaMDI()->activateWindow();
        QTest::qWait(100);
        QVERIFY(!m_captura->vistos().contains(QStringLiteral("FrmIdioma")));
        QCOMPARE(Entrada().IDI(), QStringLiteral("E"));
        QCOMPARE(Contenido(ruta), antes);
    }

    void cadaUsuarioTieneSuAlmacen()
    {
        const ProgramaDeSoloLectura programa;
        const QStringList antes = Contenido(programa.carpeta().ruta());
        QString primero;
        {
            // No XDG_DATA_HOME: ~/.local/share/veldoria.
            const Usuario ana(false);
            primerArranque("cmdeuskera");
            QCOMPARE(mdbmod, ana.datos() + "/Tablas/VELDOMOD.mdb");
            primero = mdbmod;
            ReiniciarEstado();
            {
                const Usuario jon(false);
                primerArranque("cmdcastellano");
                QCOMPARE(mdbmod, jon.datos() + "/Tablas/VELDOMOD.mdb");
                QVERIFY(mdbmod != primero);
                QCOMPARE(ajustes().ObtenerIdioma(), QStringLiteral("C"));
                ReiniciarEstado();
            }
            // The first user's store kept its own choice.
            mdbmod = primero;
            QCOMPARE(ajustes().ObtenerIdioma(), QStringLiteral("E"));
        }
        QCOMPARE(Contenido(programa.carpeta().ruta()), antes);
    }

    void unAlmacenJuntoAlProgramaSeQuedaAhi()
    {
        // A copy carried with its data: the database is used where it is, even read-only.
        const Usuario usuario(true);
        const ProgramaDeSoloLectura programa(true);
        QCOMPARE(CarpetaDatos(), programa.carpeta().ruta());
        ConfigurarRutas(CarpetaPrograma(), CarpetaDatos());
        QCOMPARE(mdbmod, programa.carpeta().tablas() + "VELDOMOD.mdb");
    }

    void unXdgRelativoNoCuenta()
    {
        const Usuario usuario(false);
        const Variable xdg("XDG_DATA_HOME", QStringLiteral("relativo/datos"));
        const ProgramaDeSoloLectura programa;
        QCOMPARE(CarpetaDatos(), usuario.datos());
    }

    void bajoUsrNuncaSeEscribe()
    {
        // Whoever runs it, root included: /usr is read-only by the file system's rules.
        const Usuario usuario(true);
        EstablecerCarpetaPrograma(QStringLiteral("/usr/lib/veldoria"));
        QCOMPARE(CarpetaDatos(), usuario.datos());
        EstablecerCarpetaPrograma(QStringLiteral("/usr"));
        QCOMPARE(CarpetaDatos(), usuario.datos());
        // A folder that only starts with the same letters is not under /usr.
        EstablecerCarpetaPrograma(QStringLiteral("/usrx/veldoria"));
        QCOMPARE(CarpetaDatos(), usuario.datos());  // it does not exist: not writable either
    }

    void rutasConLaCarpetaDeDatosAparte_data()
    {
        QTest::addColumn<QString>("programa");
        QTest::addColumn<QString>("datos");
        QTest::addColumn<QString>("lec");
        QTest::addColumn<QString>("tablasMod");
        QTest::newRow("instalado") << "/usr/lib/veldoria" << "/home/ana/.local/share/veldoria"
                                   << "/usr/lib/veldoria/Tablas/VELDOLEC.mdb"
                                   << "/home/ana/.local/share/veldoria/Tablas/";
        // The "cliente" rule holds for the program's folder only, never for the user's.
        QTest::newRow("cliente en el programa")
            << "/D/App/Cliente/bin" << "/home/clientes/.local/share/veldoria"
            << "/D/App/Tablas/VELDOLEC.mdb" << "/home/clientes/.local/share/veldoria/Tablas/";
        QTest::newRow("datos junto al programa")
            << "/D/App/Cliente/bin" << "/D/App/Cliente/bin" << "/D/App/Tablas/VELDOLEC.mdb"
            << "/D/App/Tablas/";
    }
    void rutasConLaCarpetaDeDatosAparte()
    {
        QFETCH(QString, programa);
        QFETCH(QString, datos);
        QFETCH(QString, lec);
        QFETCH(QString, tablasMod);
        ConfigurarRutas(programa, datos);
        QCOMPARE(mdblec, lec);
        QCOMPARE(mdbPath, tablasMod);
        QCOMPARE(mdbmod, tablasMod + "VELDOMOD.mdb");
    }
};

QTEST_MAIN(TestCarpetaDatos)
#include "test_carpeta_datos.moc"
