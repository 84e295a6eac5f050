// The message box as the user sees it (a real box, not the recording seam): its buttons in the
// language in use, the default one, and the keys that answer it.
#include "paneles/dialogos/Mensaje.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>

namespace {
// Looks at the box that `mostrar` opens, then answers it with `tecla` on its focused button.
struct Visto {
    QStringList botones;
    QString porDefecto;
};

Visto mirarCaja(const std::function<void()>& mostrar, Qt::Key tecla = Qt::Key_Escape)
{
    Visto visto;
    QTimer reloj;
    QObject::connect(&reloj, &QTimer::timeout, [&] {
        auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!caja || !visto.botones.isEmpty())
            return;
        for (QAbstractButton* b : caja->buttons())
            visto.botones << b->text();
        if (caja->defaultButton())
            visto.porDefecto = caja->defaultButton()->text();
        QWidget* foco = caja->focusWidget() ? caja->focusWidget() : caja;
        QTest::keyClick(foco, tecla);
    });
    reloj.start(20);
    mostrar();
    return visto;
}
}  // namespace

class TestMensaje : public QObject {
    Q_OBJECT

private slots:
    void init() { MensajeSeam::grabar(false); }
    void cleanup() { EstablecerIdiomaPrograma(Idioma::Castellano); }

    void botonesEnCastellano()
    {
        EstablecerIdiomaPrograma(Idioma::Castellano);
        int r = 0;
        const Visto v = mirarCaja([&] { r = Mensaje(QStringLiteral("¿Seguro?"), vb::Question | vb::YesNo | vb::DefaultButton2); });
        QCOMPARE(v.botones, (QStringList{QStringLiteral("Sí"), QStringLiteral("No")}));
        QCOMPARE(v.porDefecto, QStringLiteral("No"));
        QCOMPARE(r, int(vb::No));
    }

    void botonesEnEuskera_data()
    {
        QTest::addColumn<int>("botones");
        QTest::addColumn<QStringList>("rotulos");
        QTest::newRow("Ados") << int(vb::OKOnly) << QStringList{QStringLiteral("Ados")};
        QTest::newRow("Ados Utzi") << int(vb::OKCancel)
                                   << QStringList{QStringLiteral("Ados"), QStringLiteral("Utzi")};
        QTest::newRow("Bai Ez") << int(vb::YesNo)
                                << QStringList{QStringLiteral("Bai"), QStringLiteral("Ez")};
        QTest::newRow("Bai Ez Utzi")
            << int(vb::YesNoCancel)
            << QStringList{QStringLiteral("Bai"), QStringLiteral("Ez"), QStringLiteral("Utzi")};
    }
    void botonesEnEuskera()
    {
        QFETCH(int, botones);
        QFETCH(QStringList, rotulos);
        EstablecerIdiomaPrograma(Idioma::Euskera);
        const Visto v = mirarCaja([&] { Mensaje(QStringLiteral("Ziur?"), botones); });
        QCOMPARE(v.botones, rotulos);
    }
};

QTEST_MAIN(TestMensaje)
#include "test_mensaje.moc"
