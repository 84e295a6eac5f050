// The closing of a panel told once to the navigator: the frame of the sub-window and the panel
// may both report it, and each report lets the panel stop its field checks.
#include "paneles/dialogos/PanelNavegado.h"

#include <QSignalSpy>
#include <QTest>

namespace {

class PanelDePrueba final : public PanelNavegado {
public:
    int avisos = 0;

protected:
    void AlCerrar() override { ++avisos; }
};

}  // namespace

class TestPanelNavegado : public QObject {
    Q_OBJECT
private slots:
    void seAvisaUnaSolaVez()
    {
        PanelDePrueba panel;
        QSignalSpy cerrado(&panel, &PanelNavegado::cerrado);
        panel.show();
        QVERIFY(panel.close());
        QCOMPARE(cerrado.count(), 1);
        // A second report of the same closing, as the frame in the main window gives it.
        panel.show();
        QVERIFY(panel.close());
        QCOMPARE(cerrado.count(), 1);
        QCOMPARE(panel.avisos, 2);
    }
};

QTEST_MAIN(TestPanelNavegado)
#include "test_panel_navegado.moc"
