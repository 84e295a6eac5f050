// The office's server from the command line, on a real PostgreSQL server of the test's own:
// --crear-oficina makes the program's layout and says so, and a second run changes nothing and
// says that; --oficina points one run of any other order at the server, so that a contributor
// saved there is exported; a server that cannot be reached, or a database not made yet, stops
// the order with a message that names the server and what to do. Skipped, with the reason,
// where the server cannot run.
#include "comun/Entorno.h"
#include "comun/PartesPrueba.h"
#include "comun/ServidorPostgres.h"

#include "aplicacion/LineaDeOrdenes.h"
#include "aplicacion/PreferenciaOficina.h"
#include "plataforma/Estado.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "servicios/Conexion.h"
#include "servicios/MotorAlmacenes.h"
#include "servicios/Oficina.h"

#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>
#include <memory>
#include <optional>

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
    r.estado = LineaDeOrdenes::Atender(QStringList{QStringLiteral("/usr/bin/veldoria")} + argumentos,
                                       salida, errores);
    salida.flush();
    errores.flush();
    return r;
}

// The exit status of an exchange order whose store cannot be used.
constexpr int kSinAlmacen = 3;

const QString kLejos = QStringLiteral("host=127.0.0.1 port=1 dbname=veldo user=nadie connect_timeout=2");

}  // namespace

class TestOrdenesOficina : public QObject {
    Q_OBJECT

    std::unique_ptr<CarpetaDePrueba> m_carpeta;
    ServidorPostgres::Base m_base;
    // The user's configuration folder of the test, so that no real setting is read or written.
    QTemporaryDir m_configuracion;

    QString lugar() const
    {
        return QStringLiteral("127.0.0.1:%1/%2").arg(m_base.puerto).arg(m_base.nombre);
    }

private slots:
    void init()
    {
        ServidorPostgres* servidor = ServidorPostgres::Compartido();
        if (!servidor)
            QSKIP(qPrintable(ServidorPostgres::Motivo()));
        m_carpeta = std::make_unique<CarpetaDePrueba>();
        GrabarSeams();
        qputenv("LC_ALL", "C.UTF-8");
        qputenv("XDG_CONFIG_HOME", m_configuracion.path().toLocal8Bit());
        m_base = servidor->NuevaBase();
        m_base.RecordarClaves();
    }

    void cleanup()
    {
        Conexion::CerrarTodas();
        Conexion::Cerrar(m_base.CadenaDuenno());
        Conexion::Cerrar(m_base.CadenaPuesto());
        Conexion::Cerrar(mdblec);
        ElegirMotorDeLosAlmacenes(MotorElegido::Embebido);
        EstablecerIdiomaPrograma(Idioma::Castellano);
        m_carpeta.reset();
    }

    void crearOficinaDosVeces()
    {
        const Resultado primera = Llamar({QStringLiteral("--crear-oficina"), m_base.CadenaDuenno()});
        QCOMPARE(primera.estado, std::optional<int>(0));
        QCOMPARE(primera.salida,
                 QStringLiteral("La base de datos de la oficina %1 se ha creado.\n").arg(lugar()));
        QVERIFY2(primera.errores.isEmpty(), qPrintable(primera.errores));

        const Resultado segunda = Llamar({QStringLiteral("--crear-oficina"), m_base.CadenaDuenno()});
        QCOMPARE(segunda.estado, std::optional<int>(0));
        QCOMPARE(segunda.salida,
                 QStringLiteral("La base de datos de la oficina %1 ya estaba creada: no se ha "
                                "cambiado nada.\n").arg(lugar()));

        // In the user's language.
        qputenv("LC_ALL", "eu_ES.UTF-8");
        const Resultado tercera = Llamar({QStringLiteral("--crear-oficina"), m_base.CadenaDuenno()});
        QCOMPARE(tercera.estado, std::optional<int>(0));
        QCOMPARE(tercera.salida,
                 QStringLiteral("Bulegoko %1 datu-basea sortuta zegoen jada: ez da ezer aldatu.\n")
                     .arg(lugar()));
    }

    // A database of another program is left alone, and the order says it failed.
    void crearOficinaEnBaseAjena()
    {
        QVERIFY(ServidorPostgres::Compartido()->Ejecutar(
            m_base.nombre, QStringLiteral("CREATE TABLE FACTURAS (ID INTEGER PRIMARY KEY)")));
        const Resultado r = Llamar({QStringLiteral("--crear-oficina"), m_base.CadenaDuenno()});
        QCOMPARE(r.estado, std::optional<int>(2));
        QVERIFY(r.salida.isEmpty());
        QVERIFY2(r.errores.contains(lugar()) && r.errores.contains(QStringLiteral("otro programa")),
                 qPrintable(r.errores));
    }

    // A contributor saved through the stores on the server is exported by a run pointed at
    // it with --oficina, while this folder's own embedded store knows nothing of it.
    void otraOrdenEnLaOficina()
    {
        ElegirMotorDeLosAlmacenes(MotorElegido::Servidor);
        QCOMPARE(Oficina::CrearEsquema(m_base.CadenaDuenno()), Oficina::Creacion::Creada);
        mdbmod = m_base.CadenaPuesto();
        QVERIFY(NuevoContribuyente(Dni(801), QStringLiteral("GESTORIA DEL PUERTO")) > 0);
        Conexion::CerrarTodas();
        // The run starts from the embedded store of the test folder; only the line chooses.
        ElegirMotorDeLosAlmacenes(MotorElegido::Embebido);
        const QString fichero = m_carpeta->ruta() + QStringLiteral("/todos.csv");
        const Resultado r = Llamar({QStringLiteral("--oficina"), m_base.CadenaPuesto(),
                                    QStringLiteral("--exportar"), fichero, QStringLiteral("--todos")});
        QVERIFY2(r.estado == std::optional<int>(0), qPrintable(r.errores));
        QFile csv(fichero);
        QVERIFY(csv.open(QIODevice::ReadOnly));
        const QString texto = QString::fromUtf8(csv.readAll());
        QVERIFY2(texto.contains(QStringLiteral("GESTORIA DEL PUERTO")), qPrintable(texto));
        QVERIFY2(texto.contains(Dni(801)), qPrintable(texto));
        QCOMPARE(mdbmod, m_base.CadenaPuesto());
        // The embedded store of the folder was never made.
        QVERIFY(!QFile::exists(m_carpeta->tablas() + QStringLiteral("VELDOMOD.mdb")));
    }

    // The office kept as the user's choice holds for every run without --oficina, until the
    // user goes back to the embedded store.
    void oficinaGuardadaPorElUsuario()
    {
        ElegirMotorDeLosAlmacenes(MotorElegido::Servidor);
        QCOMPARE(Oficina::CrearEsquema(m_base.CadenaDuenno()), Oficina::Creacion::Creada);
        mdbmod = m_base.CadenaPuesto();
        QVERIFY(NuevoContribuyente(Dni(802), QStringLiteral("ASESORIA DEL MUELLE")) > 0);
        Conexion::CerrarTodas();
        ElegirMotorDeLosAlmacenes(MotorElegido::Embebido);

        QVERIFY(PreferenciaOficina::Guardar(m_base.CadenaPuesto()));
        QCOMPARE(PreferenciaOficina::Leer(), m_base.CadenaPuesto());
        // In the program's settings file of the user's configuration folder, never the password.
        QFile ajustes(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)
                      + QStringLiteral("/veldoria.conf"));
        QVERIFY2(ajustes.fileName().startsWith(m_configuracion.path()), qPrintable(ajustes.fileName()));
        QVERIFY(ajustes.open(QIODevice::ReadOnly));
        QVERIFY(!ajustes.readAll().contains(m_base.clavePuesto.toUtf8()));

        const QString fichero = m_carpeta->ruta() + QStringLiteral("/todos.csv");
        const Resultado r = Llamar({QStringLiteral("--exportar"), fichero, QStringLiteral("--todos")});
        QVERIFY2(r.estado == std::optional<int>(0), qPrintable(r.errores));
        QFile csv(fichero);
        QVERIFY(csv.open(QIODevice::ReadOnly));
        QVERIFY(QString::fromUtf8(csv.readAll()).contains(QStringLiteral("ASESORIA DEL MUELLE")));
        QVERIFY(!QFile::exists(m_carpeta->tablas() + QStringLiteral("VELDOMOD.mdb")));
        csv.close();
        Conexion::CerrarTodas();

        // Back to the embedded store: the folder's own store, which knows nothing of it.
        QVERIFY(PreferenciaOficina::Guardar(QString()));
        QVERIFY(PreferenciaOficina::Leer().isEmpty());
        ElegirMotorDeLosAlmacenes(MotorElegido::Embebido);
        const Resultado local = Llamar({QStringLiteral("--exportar"), fichero, QStringLiteral("--todos")});
        QVERIFY2(local.estado == std::optional<int>(0), qPrintable(local.errores));
        QVERIFY(QFile::exists(m_carpeta->tablas() + QStringLiteral("VELDOMOD.mdb")));
        QVERIFY(csv.open(QIODevice::ReadOnly));
        QVERIFY(!QString::fromUtf8(csv.readAll()).contains(QStringLiteral("ASESORIA DEL MUELLE")));
    }

    // A database the administrator has not made yet: the seat is told who makes it and how.
    void oficinaSinCrear()
    {
        const QString fichero = m_carpeta->ruta() + QStringLiteral("/todos.csv");
        const Resultado r = Llamar({QStringLiteral("--oficina"), m_base.CadenaPuesto(),
                                    QStringLiteral("--exportar"), fichero, QStringLiteral("--todos")});
        QCOMPARE(r.estado, std::optional<int>(kSinAlmacen));
        QVERIFY2(r.errores.contains(QStringLiteral("La base de datos de la oficina %1 aún no está "
                                                   "creada. El administrador de la oficina la crea "
                                                   "con: Veldo --crear-oficina SERVICIO").arg(lugar())),
                 qPrintable(r.errores));
        QVERIFY(!QFile::exists(fichero));
    }

    // A server that does not answer: the message names it and what to do, never the driver's
    // words, and the run ends with a failure status.
    void servidorInalcanzable()
    {
        const QString fichero = m_carpeta->ruta() + QStringLiteral("/todos.csv");
        const Resultado r = Llamar({QStringLiteral("--oficina"), kLejos, QStringLiteral("--exportar"),
                                    fichero, QStringLiteral("--todos")});
        QCOMPARE(r.estado, std::optional<int>(kSinAlmacen));
        QVERIFY2(r.errores.contains(QStringLiteral("No se puede trabajar con el servidor de la "
                                                   "oficina 127.0.0.1:1/veldo: no responde.")),
                 qPrintable(r.errores));
        QVERIFY2(!r.errores.contains(QLatin1String("Connection refused")), qPrintable(r.errores));
        QVERIFY(!QFile::exists(fichero));

        const Resultado crear = Llamar({QStringLiteral("--crear-oficina"), kLejos});
        QCOMPARE(crear.estado, std::optional<int>(2));
        QVERIFY2(crear.errores.contains(QStringLiteral("127.0.0.1:1/veldo: no responde")),
                 qPrintable(crear.errores));
    }

    // A wrong password is told as such.
    void claveEquivocada()
    {
        ElegirMotorDeLosAlmacenes(MotorElegido::Servidor);
        QCOMPARE(Oficina::CrearEsquema(m_base.CadenaDuenno()), Oficina::Creacion::Creada);
        Conexion::CerrarTodas();
        Conexion::Cerrar(m_base.CadenaPuesto());
        // The seat's role with a password that is not its own.
        ServidorPostgres::Base otra = m_base;
        otra.clavePuesto = QStringLiteral("otra");
        otra.RecordarClaves();
        const Resultado r = Llamar({QStringLiteral("--oficina"), m_base.CadenaPuesto(),
                                    QStringLiteral("--exportar"),
                                    m_carpeta->ruta() + QStringLiteral("/todos.csv"),
                                    QStringLiteral("--todos")});
        QCOMPARE(r.estado, std::optional<int>(kSinAlmacen));
        QVERIFY2(r.errores.contains(QStringLiteral("El servidor de la oficina %1 no acepta el "
                                                   "usuario o la contraseña.").arg(lugar())),
                 qPrintable(r.errores));
    }

    // The choice belongs to the program's state: starting again brings back the embedded store.
    void reiniciarVuelveAlEmbebido()
    {
        ElegirOficina(m_base.CadenaPuesto());
        QCOMPARE(MotorDeLosAlmacenesElegido(), MotorElegido::Servidor);
        QCOMPARE(OficinaElegida(), m_base.CadenaPuesto());
        Estado().Reiniciar();
        QCOMPARE(MotorDeLosAlmacenesElegido(), MotorElegido::Embebido);
        QVERIFY(OficinaElegida().isEmpty());
    }
};

QTEST_MAIN(TestOrdenesOficina)
#include "test_ordenes_oficina.moc"
