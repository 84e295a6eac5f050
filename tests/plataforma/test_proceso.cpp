// The program's end: a clean end stops the event loops and hands its status to the program's
// entry, which does the clean-end work on its way out.
#include "plataforma/Proceso.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTest>
#include <QTimer>

class TestProceso : public QObject {
    Q_OBJECT
private slots:
    void terminarSaleDeLosBuclesConSuEstado()
    {
        int hechos = 0;
        Proceso::AlTerminarBien([&] { ++hechos; });
        QVERIFY(!Proceso::FinPedido());
        bool interiorAcabado = false;
        // The end is asked for from inside a nested loop, as a menu of a dialog would.
        QTimer::singleShot(0, [&] {
            QEventLoop interior;
            QTimer::singleShot(0, [] { Proceso::Terminar(0); });
            interior.exec();
            interiorAcabado = true;
        });
        QCOMPARE(QCoreApplication::exec(), 0);
        QVERIFY(interiorAcabado);
        QCOMPARE(Proceso::FinPedido(), std::optional<int>(0));
        QCOMPARE(hechos, 0);  // the clean-end work is the entry's last step, not the loop's
        QCOMPARE(Proceso::Salida(*Proceso::FinPedido()), 0);
        QCOMPARE(hechos, 1);
        // A failing status does none of it.
        QCOMPARE(Proceso::Salida(3), 3);
        QCOMPARE(hechos, 1);
    }
};

QTEST_GUILESS_MAIN(TestProceso)
#include "test_proceso.moc"
