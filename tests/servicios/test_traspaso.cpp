// Bringing the read/write database to the current layout: the first run, the runs after it,
// the migration of a file of an older layout (the rows' versions included), the refusal of a
// newer layout and of files that are not this program's, a failing migration that leaves the
// file as it was, and two instances starting at once.
#include "comun/BaseCruda.h"
#include "comun/Entorno.h"

#include "plataforma/Fallo.h"
#include "plataforma/General.h"
#include "servicios/Conexion.h"
#include "servicios/Esquema.h"
#include "servicios/cDatosGeneral.h"
#include "servicios/cGeneralSvr.h"
#include "servicios/cTraspaso.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>
#include <QSqlQuery>
#include <QSysInfo>
#include <QThread>
#include <atomic>
#include <thread>

namespace {
bool traspaso()
{
    cTraspaso t;
    t.mdbmod = mdbmod;
    t.mdbPath = mdbPath;
    return t.Traspaso();
}

cGeneralSvr general()
{
    cGeneralSvr g;
    g.mdbmod = mdbmod;
    return g;
}

void escribir(const QString& ruta, const QByteArray& contenido)
{
    QFile f(ruta);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(contenido);
}

// Connections are kept per file and thread; a thread that ends drops its own.
void soltarConexionesDelHilo()
{
    const QString hilo = QStringLiteral("|%1").arg(reinterpret_cast<quintptr>(QThread::currentThreadId()));
    for (const QString& nombre : QSqlDatabase::connectionNames()) {
        if (nombre.endsWith(hilo)) {
            QSqlDatabase::database(nombre, false).close();
            QSqlDatabase::removeDatabase(nombre);
        }
    }
}

// One contributor's name changed in its table page only, to a text of the same length that
// sorts in the same place: every page stays well formed (the quick check finds nothing), but
// the index of names no longer matches the table (the full check finds it).
void desacordarIndice(const QString& ruta)
{
    QList<qint64> paginas;
    qint64 tamanno = 0;
    {
        ConexionCruda c(ruta);
        c.ejecutar(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"));
        tamanno = c.escalar(QStringLiteral("PRAGMA page_size")).toLongLong();
        QSqlQuery q(c.db());
        QVERIFY(q.exec(QStringLiteral("SELECT pageno FROM dbstat WHERE name = 'CONTRIBUYENTES' "
                                      "AND pagetype = 'leaf'")));
        while (q.next())
            paginas << q.value(0).toLongLong();
    }
    QFile f(ruta);
    QVERIFY(f.open(QIODevice::ReadWrite));
    QByteArray bytes = f.readAll();
    const QByteArray nombre("CONTRIBUYENTE 1500");
    for (const qint64 pagina : std::as_const(paginas)) {
        const qint64 desde = (pagina - 1) * tamanno;
        const qsizetype donde = bytes.indexOf(nombre, desde);
        if (donde >= 0 && donde < desde + tamanno) {
            QVERIFY(f.seek(donde + nombre.size() - 1));
            f.write("/");
            return;
        }
    }
    QFAIL("nombre no encontrado en las paginas de la tabla");
}

// A mark of a copy of the program that had the store open and ended without closing it: its
// process does not exist.
void marcaAbandonada(const QString& ruta)
{
    const QFileInfo info(ruta);
    QFile f(info.absolutePath() + QStringLiteral("/.") + info.fileName()
            + QStringLiteral(".0123456789ab.abierta"));
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write("2147483646\nVeldo\n" + QSysInfo::machineHostName().toUtf8() + "\n");
}

Esquema::Paso pasoConSentencias(int version, QStringList sentencias)
{
    return {version, [sentencias](const QSqlDatabase& db, const QString& origen) {
                for (const QString& s : sentencias)
                    Ejecutar(db, s, {}, origen);
            }};
}
}  // namespace

class TestTraspaso : public QObject {
    Q_OBJECT
    std::unique_ptr<CarpetaDePrueba> m_carpeta;

    void comprobarLayoutActual()
    {
        QCOMPARE(VersionDeArchivo(mdbmod), Esquema::VersionActual());
        QCOMPARE(MarcaDeArchivo(mdbmod), Esquema::MarcaAplicacion);
        const QStringList tablas = TablasDe(mdbmod);
        for (const char* t : {"CONFIGURACION", "CONTRIBUYENTES", "PRESENTADORES", "DECLARACIONES"})
            QVERIFY2(tablas.contains(QLatin1String(t)), t);
    }

private slots:
    void init() { m_carpeta = std::make_unique<CarpetaDePrueba>(); }
    void cleanup()
    {
        EsquemaSeam::limpiar();
        m_carpeta.reset();
    }

    void primeraEjecucionCreaLaBase()
    {
        QVERIFY(!QFile::exists(mdbmod));
        QCOMPARE(traspaso(), false);
        QVERIFY(QFile::exists(mdbmod));
        comprobarLayoutActual();
        QCOMPARE(general().ObtenerIdioma(), QStringLiteral("C"));
        QCOMPARE(general().ObtenerActOnline(), int16_t(-1));
        // WAL journal and foreign keys on the stores' connection.
        const QSqlDatabase db = Conexion::Modificable(mdbmod, QStringLiteral("prueba"));
        QCOMPARE(Escalar(db, QStringLiteral("PRAGMA journal_mode"), {}, QStringLiteral("prueba"))
                     .toString(),
                 QStringLiteral("wal"));
        QCOMPARE(Escalar(db, QStringLiteral("PRAGMA foreign_keys"), {}, QStringLiteral("prueba"))
                     .toInt(),
                 1);
        // An empty database counts nothing.
        cDatosGeneral d;
        d.mdbmod = mdbmod;
        QCOMPARE(d.NumeroDeclaraciones(), 0);
        QCOMPARE(d.NumeroContribuyentes(), 0);
        QCOMPARE(d.NumeroPresentadores(), int16_t(0));
    }

    void laCarpetaDeTablasSeCreaSiFalta()
    {
        QDir(m_carpeta->tablas()).removeRecursively();
        QCOMPARE(traspaso(), false);
        comprobarLayoutActual();
    }

    // A database that cannot be created is a failure, not a refusal: the user is told why.
    void sinPoderCrearLaBaseEsUnFallo()
    {
        QDir(m_carpeta->tablas()).removeRecursively();
        escribir(m_carpeta->ruta() + QStringLiteral("/Tablas"), "soy un fichero");
        try {
            traspaso();
            QFAIL("sin fallo");
        } catch (const cFallo& f) {
            QVERIFY(f.origen().contains(QLatin1String("cTraspaso")));
        }
    }

    // Later runs keep what the user chose and the data.
    void segundaEjecucionConservaLosDatos()
    {
        QCOMPARE(traspaso(), false);
        general().CambiarIdioma(QStringLiteral("E"));
        general().GuardarActOnline(0);
        InsertarContribuyentes(mdbmod, 3);
        const QString antes = Volcado(mdbmod);
        QCOMPARE(traspaso(), false);
        QCOMPARE(traspaso(), false);
        QCOMPARE(Volcado(mdbmod), antes);
        QCOMPARE(general().ObtenerIdioma(), QStringLiteral("E"));
        QCOMPARE(general().ObtenerActOnline(), int16_t(0));
    }

    // Layout 0, the file of the first release, is migrated in place and its settings kept.
    void migraUnaBaseDelLayout0()
    {
        CrearLayout0(mdbmod, QStringLiteral("E"), 1);
        QCOMPARE(VersionDeArchivo(mdbmod), 0);
        QCOMPARE(traspaso(), false);
        comprobarLayoutActual();
        QCOMPARE(ColumnasDe(mdbmod, QStringLiteral("CONFIGURACION")),
                 (QStringList{QStringLiteral("ID"), QStringLiteral("IDIOMA"), QStringLiteral("ACTONLINE")}));
        QVERIFY(!TablasDe(mdbmod).contains(QStringLiteral("CONFIGURACION_V0")));
        QCOMPARE(general().ObtenerIdioma(), QStringLiteral("E"));
        QCOMPARE(general().ObtenerActOnline(), int16_t(1));
        // And it is usable at once.
        general().GuardarActOnline(0);
        QCOMPARE(general().ObtenerActOnline(), int16_t(0));
    }

    void layout0ConValoresRaros()
    {
        CrearLayout0(mdbmod, QString(), 7);
        QCOMPARE(traspaso(), false);
        QCOMPARE(general().ObtenerIdioma(), QStringLiteral("C"));
        QCOMPARE(general().ObtenerActOnline(), int16_t(-1));
    }

    // A store of layout 1 (before rows had versions) gets its version column at open: each
    // row a version of its own, never 0, and the data as they were.
    void migraUnaBaseDelLayout1ConVersiones()
    {
        CrearLayout0(mdbmod, QStringLiteral("C"), 0);
        {
            ConexionCruda c(mdbmod);
            Esquema::Pasos().first().aplicar(c.db(), QStringLiteral("prueba"));
            c.ejecutar(QStringLiteral("PRAGMA user_version = 1"));
        }
        for (const char* tabla : {"CONTRIBUYENTES", "PRESENTADORES", "DECLARACIONES"})
            QVERIFY2(!ColumnasDe(mdbmod, QLatin1String(tabla)).contains(QStringLiteral("VERSION")), tabla);
        InsertarFilas(mdbmod, QStringLiteral("CONTRIBUYENTES"), 3);
        InsertarFilas(mdbmod, QStringLiteral("PRESENTADORES"), 2);
        const QString nombres = [] {
            ConexionCruda c(mdbmod, true);
            return c.escalar(QStringLiteral("SELECT group_concat(NOMBREC, '|') FROM CONTRIBUYENTES")).toString();
        }();
        QCOMPARE(traspaso(), false);
        comprobarLayoutActual();
        ConexionCruda c(mdbmod, true);
        for (const char* tabla : {"CONTRIBUYENTES", "PRESENTADORES", "DECLARACIONES"})
            QVERIFY2(ColumnasDe(mdbmod, QLatin1String(tabla)).contains(QStringLiteral("VERSION")), tabla);
        QCOMPARE(c.escalar(QStringLiteral("SELECT COUNT(DISTINCT VERSION) FROM CONTRIBUYENTES "
                                          "WHERE VERSION > 0")).toInt(), 3);
        QCOMPARE(c.escalar(QStringLiteral("SELECT COUNT(DISTINCT VERSION) FROM PRESENTADORES "
                                          "WHERE VERSION > 0")).toInt(), 2);
        QCOMPARE(c.escalar(QStringLiteral("SELECT group_concat(NOMBREC, '|') FROM CONTRIBUYENTES")).toString(),
                 nombres);
    }

    // A later layout is one more step: a layout-1 file reaches it, keeping its data.
    void unLayoutPosteriorEsUnPasoMas()
    {
        QCOMPARE(traspaso(), false);
        general().CambiarIdioma(QStringLiteral("E"));
        EsquemaSeam::agregarPaso(pasoConSentencias(
            Esquema::VersionActual() + 1,
            {QStringLiteral("ALTER TABLE CONFIGURACION ADD COLUMN PRUEBA TEXT DEFAULT 'nueva'")}));
        const int nueva = Esquema::VersionActual();
        QCOMPARE(traspaso(), false);
        QCOMPARE(VersionDeArchivo(mdbmod), nueva);
        QVERIFY(ColumnasDe(mdbmod, QStringLiteral("CONFIGURACION")).contains(QStringLiteral("PRUEBA")));
        QCOMPARE(general().ObtenerIdioma(), QStringLiteral("E"));
    }

    // From layout 0 every step runs in turn.
    void delLayout0AlPosterior()
    {
        CrearLayout0(mdbmod, QStringLiteral("E"), 0);
        EsquemaSeam::agregarPaso(pasoConSentencias(
            Esquema::VersionActual() + 1,
            {QStringLiteral("UPDATE CONFIGURACION SET ACTONLINE = 1")}));
        QCOMPARE(traspaso(), false);
        QCOMPARE(VersionDeArchivo(mdbmod), Esquema::VersionActual());
        QCOMPARE(general().ObtenerActOnline(), int16_t(1));
    }

    // A step that fails half-way leaves the file as it was, and the failure reaches the caller.
    void unaMigracionFallidaNoTocaNada()
    {
        CrearLayout0(mdbmod, QStringLiteral("E"), 1);
        const QString antes = Volcado(mdbmod);
        EsquemaSeam::agregarPaso(pasoConSentencias(
            Esquema::VersionActual() + 1,
            {QStringLiteral("UPDATE CONFIGURACION SET IDIOMA = 'Z'"),
             QStringLiteral("INSERT INTO TABLA_QUE_NO_EXISTE VALUES (1)")}));
        try {
            traspaso();
            QFAIL("sin fallo");
        } catch (const cFallo& f) {
            QVERIFY(f.origen().contains(QLatin1String("cTraspaso")));
            QVERIFY(f.descripcion().contains(QLatin1String("TABLA_QUE_NO_EXISTE")));
        }
        QCOMPARE(Volcado(mdbmod), antes);
        QCOMPARE(VersionDeArchivo(mdbmod), 0);
        // Once the step is right the same file migrates.
        EsquemaSeam::limpiar();
        QCOMPARE(traspaso(), false);
        comprobarLayoutActual();
        QCOMPARE(general().ObtenerIdioma(), QStringLiteral("E"));
    }

    void unaMigracionQueRompeClavesAjenasSeDeshace()
    {
        QCOMPARE(traspaso(), false);
        const QString antes = Volcado(mdbmod);
        EsquemaSeam::agregarPaso(pasoConSentencias(
            Esquema::VersionActual() + 1,
            {QStringLiteral("CREATE TABLE HIJA (ID INTEGER PRIMARY KEY, "
                            "CSCO INTEGER REFERENCES CONTRIBUYENTES (CSCO))"),
             QStringLiteral("INSERT INTO HIJA (CSCO) VALUES (12345)")}));
        QVERIFY_THROWS_EXCEPTION(cFallo, traspaso());
        EsquemaSeam::limpiar();
        QCOMPARE(Volcado(mdbmod), antes);
    }

    // A newer layout cannot be brought back: stop, and leave the file alone.
    void rechazaUnLayoutMasNuevo()
    {
        CrearLayoutPosterior(mdbmod, Esquema::VersionActual() + 1);
        const QByteArray antes = Bytes(mdbmod);
        QCOMPARE(traspaso(), true);
        QCOMPARE(Bytes(mdbmod), antes);
    }

    void rechazaLaBaseDeOtroPrograma()
    {
        CrearBaseAjena(mdbmod);
        const QByteArray antes = Bytes(mdbmod);
        QCOMPARE(traspaso(), true);
        QCOMPARE(Bytes(mdbmod), antes);
        QVERIFY(!QFile::exists(mdbmod + QStringLiteral("-wal")));
    }

    void rechazaUnaBaseConOtraMarca()
    {
        CrearBaseAjena(mdbmod, 0x12345678);
        const QByteArray antes = Bytes(mdbmod);
        QCOMPARE(traspaso(), true);
        QCOMPARE(Bytes(mdbmod), antes);
    }

    void rechazaUnFicheroDeTexto()
    {
        const QByteArray texto("Esto no es una base de datos.\r\nSolo texto.\r\n");
        escribir(mdbmod, texto);
        QCOMPARE(traspaso(), true);
        QCOMPARE(Bytes(mdbmod), texto);
    }

    void rechazaUnaCabeceraSqliteRota()
    {
        QByteArray roto("SQLite format 3", 16);
        roto.append(QByteArray(4096, '\xAB'));
        escribir(mdbmod, roto);
        QCOMPARE(traspaso(), true);
        QCOMPARE(Bytes(mdbmod), roto);
    }

    void rechazaUnaCarpetaConElNombreDeLaBase()
    {
        QVERIFY(QDir().mkpath(mdbmod));
        QCOMPARE(traspaso(), true);
    }

    // An empty file (left by a first run cut short) or an empty SQLite file are laid out.
    void unFicheroVacioSeCrea()
    {
        escribir(mdbmod, QByteArray());
        QCOMPARE(traspaso(), false);
        comprobarLayoutActual();
        QCOMPARE(general().ObtenerActOnline(), int16_t(-1));
    }

    void unaBaseSqliteVaciaSeCrea()
    {
        { ConexionCruda c(mdbmod); c.ejecutar(QStringLiteral("PRAGMA user_version = 0")); }
        QCOMPARE(traspaso(), false);
        comprobarLayoutActual();
    }

    // A second instance starting at the same time: neither is refused, both end with one
    // database in the current layout.
    void dosInstanciasArrancanALaVez()
    {
        std::atomic<int> fallos{0};
        std::atomic<int> paradas{0};
        const QString mod = mdbmod;
        const QString path = mdbPath;
        auto instancia = [&] {
            try {
                cTraspaso t;
                t.mdbmod = mod;
                t.mdbPath = path;
                if (t.Traspaso())
                    ++paradas;
                cGeneralSvr g;
                g.mdbmod = mod;
                g.GuardarActOnline(0);
            } catch (...) {
                ++fallos;
            }
        };
        auto otraInstancia = [&] {
            instancia();
            soltarConexionesDelHilo();
        };
        std::thread otra(otraInstancia);
        instancia();
        otra.join();
        QCOMPARE(fallos.load(), 0);
        QCOMPARE(paradas.load(), 0);
        comprobarLayoutActual();
        QCOMPARE(general().ObtenerActOnline(), int16_t(0));
    }
    // The quick check at every start; the full one, which compares every index with its
    // table, after a copy of the program ended without closing the store.
    void unFinSucioRevisaLaBaseEntera()
    {
        QCOMPARE(traspaso(), false);
        Conexion::Cerrar(mdbmod);
        InsertarContribuyentes(mdbmod, 3000);
        desacordarIndice(mdbmod);
        cTraspaso t;
        t.mdbmod = mdbmod;
        t.mdbPath = mdbPath;
        QCOMPARE(t.Comprobar(), cTraspaso::Impedimento::Ninguno);
        marcaAbandonada(mdbmod);
        QCOMPARE(t.Comprobar(), cTraspaso::Impedimento::Danada);
    }
    // Rows written by another tool that break a CHECK or a NOT NULL are not damage of the
    // file: the store opens, after the full check too.
    void filasFueraDeLasReglasNoSonDanno()
    {
        QCOMPARE(traspaso(), false);
        Conexion::Cerrar(mdbmod);
        {
            ConexionCruda c(mdbmod);
            c.ejecutar(QStringLiteral("PRAGMA ignore_check_constraints = ON"));
            c.ejecutar(QStringLiteral("INSERT INTO CONTRIBUYENTES (TIPODNI, DNIC, NOMBREC, TIPODOMI, "
                                      "CODPROVC) VALUES ('Q', 'X1', 'OTRA HERRAMIENTA', 'N', '77')"));
        }
        cTraspaso t;
        t.mdbmod = mdbmod;
        t.mdbPath = mdbPath;
        QCOMPARE(t.Comprobar(), cTraspaso::Impedimento::Ninguno);
        marcaAbandonada(mdbmod);
        QCOMPARE(t.Comprobar(), cTraspaso::Impedimento::Ninguno);
    }
};

QTEST_MAIN(TestTraspaso)
#include "test_traspaso.moc"
