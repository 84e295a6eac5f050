// The settings kept in the read/write database (language, update setting) and the counters of
// the user's records, with one or two connections on the same file.
#include "comun/BaseCruda.h"
#include "comun/Entorno.h"

#include "plataforma/Fallo.h"
#include "plataforma/General.h"
#include "servicios/Conexion.h"
#include "servicios/cDatosGeneral.h"
#include "servicios/cGeneralSvr.h"
#include "servicios/cTraspaso.h"

#include <QSqlQuery>
#include <QTest>
#include <QThread>
#include <atomic>
#include <thread>

namespace {
cGeneralSvr general()
{
    cGeneralSvr g;
    g.mdbmod = mdbmod;
    return g;
}

cDatosGeneral datos()
{
    cDatosGeneral d;
    d.mdbmod = mdbmod;
    return d;
}

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
}  // namespace

class TestAjustes : public QObject {
    Q_OBJECT
    std::unique_ptr<CarpetaDePrueba> m_carpeta;

private slots:
    void init()
    {
        m_carpeta = std::make_unique<CarpetaDePrueba>();
        cTraspaso t;
        t.mdbmod = mdbmod;
        t.mdbPath = mdbPath;
        QCOMPARE(t.Traspaso(), false);
    }
    void cleanup() { m_carpeta.reset(); }

    // A database that has never been through the language chooser.
    void valoresDeUnaBaseNueva()
    {
        QCOMPARE(general().ObtenerIdioma(), QStringLiteral("C"));
        QCOMPARE(general().ObtenerActOnline(), int16_t(-1));
    }

    void cambiarIdioma()
    {
        general().CambiarIdioma(QStringLiteral("E"));
        QCOMPARE(general().ObtenerIdioma(), QStringLiteral("E"));
        general().CambiarIdioma(QStringLiteral("C"));
        QCOMPARE(general().ObtenerIdioma(), QStringLiteral("C"));
    }

    // Another letter is kept as given; the program reads it as Spanish.
    void otraLetraSeGuardaTalCual()
    {
        general().CambiarIdioma(QStringLiteral("X"));
        QCOMPARE(general().ObtenerIdioma(), QStringLiteral("X"));
        QVERIFY(general().ObtenerIdioma() != QLatin1String("E"));
    }

    void guardarActOnline()
    {
        for (const int16_t v : {int16_t(1), int16_t(0), int16_t(-1), int16_t(1)}) {
            general().GuardarActOnline(v);
            QCOMPARE(general().ObtenerActOnline(), v);
        }
        // The two settings are independent.
        general().CambiarIdioma(QStringLiteral("E"));
        QCOMPARE(general().ObtenerActOnline(), int16_t(1));
    }

    void actOnlineFueraDeRangoNoSeGuarda()
    {
        general().GuardarActOnline(1);
        const QString antes = Volcado(mdbmod);
        QVERIFY_THROWS_EXCEPTION(cFallo, general().GuardarActOnline(2));
        QVERIFY_THROWS_EXCEPTION(cFallo, general().GuardarActOnline(-2));
        QCOMPARE(Volcado(mdbmod), antes);
    }

    // The stores never create the database: that is the migration's work at start-up.
    void sinBaseEsUnFallo()
    {
        cGeneralSvr g;
        g.mdbmod = m_carpeta->tablas() + QStringLiteral("OTRA.mdb");
        QVERIFY_THROWS_EXCEPTION(cFallo, g.ObtenerIdioma());
        QVERIFY_THROWS_EXCEPTION(cFallo, g.CambiarIdioma(QStringLiteral("E")));
        cDatosGeneral d;
        d.mdbmod = g.mdbmod;
        QVERIFY_THROWS_EXCEPTION(cFallo, d.NumeroContribuyentes());
        QVERIFY(!QFile::exists(g.mdbmod));
    }

    void contadores()
    {
        QCOMPARE(datos().NumeroDeclaraciones(), 0);
        QCOMPARE(datos().NumeroContribuyentes(), 0);
        QCOMPARE(datos().NumeroPresentadores(), int16_t(0));
        InsertarFilas(mdbmod, QStringLiteral("CONTRIBUYENTES"), 3);
        InsertarFilas(mdbmod, QStringLiteral("PRESENTADORES"), 2);
        InsertarFilas(mdbmod, QStringLiteral("DECLARACIONES"), 7);
        QCOMPARE(datos().NumeroContribuyentes(), 3);
        QCOMPARE(datos().NumeroPresentadores(), int16_t(2));
        QCOMPARE(datos().NumeroDeclaraciones(), 7);
    }

    // The presenters' counter is 16-bit: beyond that it answers the largest value, never a
    // negative one that would hide the presenters from the menus.
    void contadorDePresentadoresDe16Bits()
    {
        InsertarFilas(mdbmod, QStringLiteral("PRESENTADORES"), 40000);
        QCOMPARE(datos().NumeroPresentadores(), int16_t(32767));
    }

    // A second running instance is another connection on the same file: while it holds the
    // write lock, this one waits for it instead of failing.
    void otraInstanciaConElCerrojo()
    {
        std::atomic<bool> tomado{false};
        std::thread otra([&] {
            {
                ConexionCruda c(mdbmod);
                c.ejecutar(QStringLiteral("BEGIN IMMEDIATE"));
                c.ejecutar(QStringLiteral("UPDATE CONFIGURACION SET ACTONLINE = 0"));
                tomado = true;
                QThread::msleep(400);
                c.ejecutar(QStringLiteral("COMMIT"));
            }
        });
        // The other thread is joined before any check can end the test.
        const bool aTiempo = QTest::qWaitFor([&] { return tomado.load(); }, 10000);
        if (aTiempo)
            general().CambiarIdioma(QStringLiteral("E"));  // waits for the other's commit
        otra.join();
        QVERIFY(aTiempo);
        QCOMPARE(general().ObtenerIdioma(), QStringLiteral("E"));
        QCOMPARE(general().ObtenerActOnline(), int16_t(0));
    }

    // Two instances writing at the same time, each through the stores: no lock failure, and
    // every write of both is there.
    void dosInstanciasEscribiendo()
    {
        constexpr int kVeces = 150;
        std::atomic<int> fallos{0};
        const QString ruta = mdbmod;
        std::thread otra([&] {
            cGeneralSvr g;
            g.mdbmod = ruta;
            for (int i = 0; i < kVeces; ++i) {
                try {
                    g.CambiarIdioma(i % 2 ? QStringLiteral("E") : QStringLiteral("C"));
                    InsertarFilas(ruta, QStringLiteral("CONTRIBUYENTES"), 1);
                } catch (...) {
                    ++fallos;
                }
            }
            soltarConexionesDelHilo();
        });
        for (int i = 0; i < kVeces; ++i) {
            try {
                general().GuardarActOnline(i % 2 ? 1 : 0);
                (void)datos().NumeroContribuyentes();
            } catch (...) {
                ++fallos;
            }
        }
        otra.join();
        QCOMPARE(fallos.load(), 0);
        QCOMPARE(datos().NumeroContribuyentes(), kVeces);
        QCOMPARE(general().ObtenerIdioma(), QStringLiteral("E"));
        QCOMPARE(general().ObtenerActOnline(), int16_t(1));
    }
};

QTEST_MAIN(TestAjustes)
#include "test_ajustes.moc"
