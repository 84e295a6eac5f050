// An office's database on a real PostgreSQL server (the tests' own, started in a temporary
// folder): the program's layout made once on an empty database and the second time left as it
// is, with a typed answer each time; a database of another program left alone; the seats'
// role, which may only read and write rows, refused what it may not do with a message that
// names the server and not the driver's words; the codes taken from sequences by several
// connections at once. Skipped, with the reason, where the server cannot run.
#include "comun/Entorno.h"
#include "comun/OtraConexion.h"
#include "comun/PartesPrueba.h"
#include "comun/ServidorPostgres.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"

#include "plataforma/Fallo.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "servicios/Almacen.h"
#include "servicios/Conexion.h"
#include "servicios/Esquema.h"
#include "servicios/MotorAlmacenes.h"
#include "servicios/Oficina.h"
#include "servicios/cContribSvr.h"
#include "servicios/postgres/ConexionPostgres.h"

#include <QProcess>
#include <QSet>
#include <QSqlQuery>
#include <QTest>
#include <atomic>
#include <memory>
#include <thread>
#include <vector>

namespace {
const QString kOrigen = QStringLiteral("prueba");

// What the database holds, as the server lists it: every table, index, sequence, view and
// function of its schema with its definition, in order.
QStringList contenido(const QSqlDatabase& db)
{
    QSqlQuery q = Ejecutar(db,
                           QStringLiteral("SELECT c.relkind::text || ' ' || c.relname FROM pg_class c "
                                          "JOIN pg_namespace n ON n.oid = c.relnamespace "
                                          "WHERE n.nspname = 'public' "
                                          "UNION ALL SELECT 'f ' || p.proname || ' ' || p.prosrc "
                                          "FROM pg_proc p JOIN pg_namespace n ON n.oid = p.pronamespace "
                                          "WHERE n.nspname = 'public' "
                                          "UNION ALL SELECT 'x ' || pg_get_indexdef(i.indexrelid) "
                                          "FROM pg_index i JOIN pg_class c ON c.oid = i.indrelid "
                                          "JOIN pg_namespace n ON n.oid = c.relnamespace "
                                          "WHERE n.nspname = 'public' ORDER BY 1"),
                           {}, kOrigen);
    QStringList lineas;
    while (q.next())
        lineas << q.value(0).toString();
    return lineas;
}
}  // namespace

class TestOficina : public QObject {
    Q_OBJECT

    std::unique_ptr<CarpetaDePrueba> m_carpeta;
    ServidorPostgres::Base m_base;

private slots:
    void init()
    {
        ServidorPostgres* servidor = ServidorPostgres::Compartido();
        if (!servidor)
            QSKIP(qPrintable(ServidorPostgres::Motivo()));
        m_carpeta = std::make_unique<CarpetaDePrueba>();
        GrabarSeams();
        EstablecerIdiomaPrograma(Idioma::Castellano);
        m_base = servidor->NuevaBase();
        ElegirMotorDeLosAlmacenes(MotorElegido::Servidor);
        ConexionPostgres::RecordarClave(m_base.CadenaDuenno(), m_base.claveDuenno);
        ConexionPostgres::RecordarClave(m_base.CadenaPuesto(), m_base.clavePuesto);
    }

    void cleanup()
    {
        Conexion::CerrarTodas();
        Conexion::Cerrar(m_base.CadenaDuenno());
        Conexion::Cerrar(m_base.CadenaPuesto());
        Conexion::Cerrar(mdblec);
        ElegirMotorDeLosAlmacenes(MotorElegido::Embebido);
        m_carpeta.reset();
    }

    void esquemaCreadoUnaVez()
    {
        const QString duenno = m_base.CadenaDuenno();
        QCOMPARE(Oficina::CrearEsquema(duenno), Oficina::Creacion::Creada);
        const QSqlDatabase db = Conexion::Modificable(duenno, kOrigen);
        const QStringList antes = contenido(db);
        QVERIFY(antes.size() > 20);
        QCOMPARE(Esquema::VersionDe(db, kOrigen), Esquema::VersionActual());
        QCOMPARE(Esquema::MarcaDe(db, kOrigen), Esquema::MarcaAplicacion);
        // The same tables and columns as the embedded store of the current layout.
        QVERIFY(Esquema::TieneDisposicion(db, Esquema::VersionActual(), kOrigen));
        // The settings' single row.
        QCOMPARE(Escalar(db, QStringLiteral("SELECT COUNT(*) FROM CONFIGURACION"), {}, kOrigen).toInt(), 1);

        // The second time: nothing changes, and the answer says so.
        QCOMPARE(Oficina::CrearEsquema(duenno), Oficina::Creacion::YaCreada);
        QCOMPARE(contenido(db), antes);
        // By the seats' role too, which could not have made anything.
        QCOMPARE(Oficina::CrearEsquema(m_base.CadenaPuesto()), Oficina::Creacion::YaCreada);
    }

    // What the administrator is told names the server and says whether anything changed, in
    // the program's language; the faults of the server too.
    void avisosEnElIdiomaDelPrograma()
    {
        const QString lugar = QStringLiteral("127.0.0.1:%1/%2").arg(m_base.puerto).arg(m_base.nombre);
        const Veredicto creada = Oficina::Aviso(Oficina::CrearEsquema(m_base.CadenaDuenno()), m_base.CadenaDuenno());
        QCOMPARE(creada.id, kIdOficinaCreada);
        QCOMPARE(creada.mensaje, QStringLiteral("La base de datos de la oficina %1 se ha creado.").arg(lugar));
        EstablecerIdiomaPrograma(Idioma::Euskera);
        const Veredicto otra = Oficina::Aviso(Oficina::CrearEsquema(m_base.CadenaDuenno()), m_base.CadenaDuenno());
        QCOMPARE(otra.id, kIdOficinaYaCreada);
        QCOMPARE(otra.mensaje, QStringLiteral("Bulegoko %1 datu-basea sortuta zegoen jada: ez da ezer aldatu.").arg(lugar));
        try {
            Conexion::Modificable(QStringLiteral("host=127.0.0.1 port=1 dbname=veldo user=nadie "
                                                 "connect_timeout=2"), kOrigen);
            QFAIL("abierto");
        } catch (const cFallo& f) {
            QCOMPARE(f.numero(), kIdServidorNoResponde);
            QVERIFY2(f.descripcion().startsWith(QStringLiteral("Ezin da bulegoko 127.0.0.1:1/veldo zerbitzariarekin")),
                     qPrintable(f.descripcion()));
        }
        EstablecerIdiomaPrograma(Idioma::Castellano);
    }

    void baseAjenaNoSeToca()
    {
        const QString duenno = m_base.CadenaDuenno();
        const QSqlDatabase db = Conexion::Modificable(duenno, kOrigen, true);
        Ejecutar(db, QStringLiteral("CREATE TABLE FACTURAS (ID INTEGER PRIMARY KEY)"), {}, kOrigen);
        const QStringList antes = contenido(db);
        QCOMPARE(Oficina::CrearEsquema(duenno), Oficina::Creacion::Ajena);
        QCOMPARE(contenido(db), antes);
    }

    // The seats' role reads and writes rows and nothing more; what it may not do fails with a
    // message that names the server, and the server's own words stay out of it.
    void puestoSinDerechosDeDuenno()
    {
        QCOMPARE(Oficina::CrearEsquema(m_base.CadenaDuenno()), Oficina::Creacion::Creada);
        const QSqlDatabase db = Conexion::Modificable(m_base.CadenaPuesto(), kOrigen);
        QCOMPARE(Escalar(db, QStringLiteral("SELECT COUNT(*) FROM CONTRIBUYENTES"), {}, kOrigen).toInt(), 0);
        for (const char* sql : {"CREATE TABLE OTRA (ID INTEGER)", "DROP TABLE CONTRIBUYENTES",
                                "ALTER TABLE CONTRIBUYENTES ADD COLUMN X INTEGER",
                                "TRUNCATE CONTRIBUYENTES"}) {
            try {
                Ejecutar(db, QLatin1String(sql), {}, kOrigen);
                QFAIL(sql);
            } catch (const cFallo& f) {
                QVERIFY2(f.descripcion().contains(QStringLiteral("127.0.0.1:%1/%2")
                                                      .arg(m_base.puerto)
                                                      .arg(m_base.nombre)),
                         qPrintable(f.descripcion()));
                QVERIFY2(!f.descripcion().contains(QLatin1String("ERROR")), qPrintable(f.descripcion()));
                QVERIFY2(!f.descripcion().contains(QLatin1String("permission")), qPrintable(f.descripcion()));
                QVERIFY2(!f.descripcion().contains(QLatin1String("QPSQL")), qPrintable(f.descripcion()));
            }
        }
        QVERIFY(Esquema::TieneDisposicion(db, Esquema::VersionActual(), kOrigen));
    }

    // A server that is not there: the message names it and what to do.
    void servidorInalcanzable()
    {
        const QString lejos = QStringLiteral("host=127.0.0.1 port=1 dbname=veldo user=nadie "
                                             "connect_timeout=2");
        try {
            Conexion::Modificable(lejos, kOrigen);
            QFAIL("abierto");
        } catch (const cFallo& f) {
            QCOMPARE(f.numero(), kIdServidorNoResponde);
            QVERIFY2(f.descripcion().contains(QLatin1String("127.0.0.1:1/veldo")), qPrintable(f.descripcion()));
            QVERIFY2(f.descripcion().contains(QLatin1String("no responde")), qPrintable(f.descripcion()));
            QVERIFY2(!f.descripcion().contains(QLatin1String("Connection refused")),
                     qPrintable(f.descripcion()));
        }
        // A wrong password: said as such.
        ConexionPostgres::RecordarClave(m_base.CadenaPuesto(), QStringLiteral("otra"));
        try {
            Conexion::Modificable(m_base.CadenaPuesto(), kOrigen);
            QFAIL("abierto");
        } catch (const cFallo& f) {
            QCOMPARE(f.numero(), kIdServidorRechazaUsuario);
            QVERIFY2(f.descripcion().contains(QStringLiteral("contraseña")), qPrintable(f.descripcion()));
        }
    }

    // The server drops the seat's connection in the middle of work (a restart, a network cut):
    // that operation fails with a message that names the server, nothing half-written stays,
    // and the next operation connects again and works.
    void servidorPerdidoYRecuperado()
    {
        QCOMPARE(Oficina::CrearEsquema(m_base.CadenaDuenno()), Oficina::Creacion::Creada);
        mdbmod = m_base.CadenaPuesto();
        const int32_t antes = NuevoContribuyente(Dni(701), QStringLiteral("ANTES DEL CORTE"));
        QVERIFY(antes > 0);
        QVERIFY(ServidorPostgres::Compartido()->Ejecutar(
            QString(), QStringLiteral("SELECT pg_terminate_backend(pid) FROM pg_stat_activity "
                                      "WHERE usename = '%1'").arg(m_base.puesto)));
        try {
            Almacen<cContribSvr>().GuardarContribuyente(
                ContribuyenteNacional(Dni(702), QStringLiteral("DURANTE EL CORTE")));
            QFAIL("guardado sin servidor");
        } catch (const cFallo& f) {
            QCOMPARE(f.numero(), kIdServidorNoResponde);
            QVERIFY2(f.descripcion().contains(QStringLiteral("127.0.0.1:%1/%2").arg(m_base.puerto).arg(m_base.nombre)),
                     qPrintable(f.descripcion()));
        }
        const Resultado<Contribuyente> despues = Almacen<cContribSvr>().GuardarContribuyente(
            ContribuyenteNacional(Dni(703), QStringLiteral("DESPUES DEL CORTE")));
        QVERIFY(despues);
        QCOMPARE(ValorDelPuesto(QStringLiteral("SELECT COUNT(*) FROM CONTRIBUYENTES")), 2);
        QVERIFY(Almacen<cContribSvr>().CargarContribuyente(antes));
    }

    // The codes come from sequences: connections that save at the same moment never get the
    // same one, and nothing is lost.
    void codigosDistintosDesdeVariasConexiones()
    {
        QCOMPARE(Oficina::CrearEsquema(m_base.CadenaDuenno()), Oficina::Creacion::Creada);
        mdbmod = m_base.CadenaPuesto();
        constexpr int kHilos = 4;
        constexpr int kCada = 60;
        std::vector<std::thread> hilos;
        std::vector<QList<int32_t>> codigos(kHilos);
        std::atomic<int> fallos{0};
        for (int h = 0; h < kHilos; ++h)
            hilos.emplace_back([h, &codigos, &fallos] {
                const bool bien = EnOtraConexion([h, &codigos] {
                    for (int i = 0; i < kCada; ++i) {
                        const Resultado<Contribuyente> r = Almacen<cContribSvr>().GuardarContribuyente(
                            ContribuyenteNacional(Dni(quint32(1000 + h * kCada + i)),
                                                  QStringLiteral("SOCIO %1 %2").arg(h).arg(i)));
                        if (!r)
                            throw cFallo(1, kOrigen, r.veredicto().mensaje);
                        codigos[h] << r->CSCO;
                    }
                });
                if (!bien)
                    ++fallos;
            });
        for (std::thread& t : hilos)
            t.join();
        QCOMPARE(fallos.load(), 0);
        QSet<int32_t> todos;
        for (const QList<int32_t>& c : codigos)
            for (int32_t v : c)
                todos.insert(v);
        QCOMPARE(todos.size(), kHilos * kCada);
        QCOMPARE(ValorDelPuesto(QStringLiteral("SELECT COUNT(*) FROM CONTRIBUYENTES")), kHilos * kCada);
    }

    // Two copies of the program, each its own process, saving new contributors on the same
    // database at the same moment: every save is there, each under a code of its own.
    void dosProcesosALaVez()
    {
        QCOMPARE(Oficina::CrearEsquema(m_base.CadenaDuenno()), Oficina::Creacion::Creada);
        constexpr int kCada = 400;
        QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
        entorno.insert(QStringLiteral("VELDO_PRUEBA_CLAVE"), m_base.clavePuesto);
        std::vector<std::unique_ptr<QProcess>> procesos;
        for (int p = 0; p < 2; ++p) {
            auto proceso = std::make_unique<QProcess>();
            proceso->setProcessEnvironment(entorno);
            proceso->start(QStringLiteral(VELDO_AYUDANTE_OFICINA),
                           {m_base.CadenaPuesto(), QString::number(20000 + p * 10000),
                            QString::number(kCada)});
            QVERIFY(proceso->waitForStarted());
            procesos.push_back(std::move(proceso));
        }
        QSet<int32_t> codigos;
        for (const auto& proceso : procesos) {
            QVERIFY(proceso->waitForFinished(300000));
            QVERIFY2(proceso->exitStatus() == QProcess::NormalExit && proceso->exitCode() == 0,
                     proceso->readAllStandardError().constData());
            const QList<QByteArray> lineas = proceso->readAllStandardOutput().split('\n');
            for (const QByteArray& l : lineas)
                if (!l.trimmed().isEmpty())
                    codigos.insert(l.trimmed().toInt());
        }
        QCOMPARE(codigos.size(), 2 * kCada);
        QCOMPARE(ValorDelPuesto(QStringLiteral("SELECT COUNT(*) FROM CONTRIBUYENTES")), 2 * kCada);
        QCOMPARE(ValorDelPuesto(QStringLiteral("SELECT COUNT(DISTINCT CSCO) FROM CONTRIBUYENTES")),
                 2 * kCada);
    }

private:
    int ValorDelPuesto(const QString& sql)
    {
        return Escalar(Conexion::Modificable(m_base.CadenaPuesto(), kOrigen), sql, {}, kOrigen).toInt();
    }
};

QTEST_GUILESS_MAIN(TestOficina)
#include "test_oficina.moc"
