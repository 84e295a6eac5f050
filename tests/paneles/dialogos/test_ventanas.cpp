// The main window as the panels reach it: hooks the main window installs, which a reset of
// the program's state drops, so that a panel made afterwards stands free instead of calling a
// window that is gone.
#include "paneles/dialogos/Ventanas.h"
#include "plataforma/Estado.h"

#include <QTest>
#include <QWidget>

class TestVentanas : public QObject {
    Q_OBJECT
private slots:
    void losGanchosSeVanConElEstado()
    {
        QWidget principal;
        int abiertos = 0;
        Ventanas::instalar({[&](QWidget*) { ++abiertos; }, [&] { return &principal; }});
        QCOMPARE(VentanaPrincipal(), &principal);
        QWidget panel;
        AbrirPanel(&panel);
        QCOMPARE(abiertos, 1);
        QVERIFY(!panel.isVisible());

        Estado().Reiniciar();
        QCOMPARE(VentanaPrincipal(), nullptr);
        AbrirPanel(&panel);
        QCOMPARE(abiertos, 1);
        QVERIFY(panel.isVisible());  // without a main window the panel shows on its own
    }
};

QTEST_MAIN(TestVentanas)
#include "test_ventanas.moc"
