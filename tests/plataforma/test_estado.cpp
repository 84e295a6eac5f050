// The one owner of what a run changes: a reset puts every record back in place and tells the
// caches kept per thread to start again.
#include "plataforma/Estado.h"

#include <QTest>
#include <thread>

namespace {
struct Contador {
    int valor = 0;
};
}  // namespace

class TestEstado : public QObject {
    Q_OBJECT
private slots:
    void losRegistrosVuelvenASuEstadoEnSuSitio()
    {
        Contador& c = Estado().de<Contador>();
        c.valor = 7;
        QCOMPARE(&Estado().de<Contador>(), &c);
        Estado().Reiniciar();
        QCOMPARE(c.valor, 0);
        QCOMPARE(&Estado().de<Contador>(), &c);
    }

    void laGeneracionAvisaALosHilos()
    {
        const uint64_t antes = cEstado::Generacion();
        uint64_t vista = 0;
        Estado().Reiniciar();
        std::thread([&] { vista = cEstado::Generacion(); }).join();
        QVERIFY(vista > antes);
    }
};

QTEST_GUILESS_MAIN(TestEstado)
#include "test_estado.moc"
