// A verdict shown by a panel: its text, buttons and title through the message seam, the answer
// handed back, nothing for an empty verdict, and the focus on the control it names, on its tab.
#include "comun/Entorno.h"

#include "paneles/dialogos/Mensaje.h"
#include "paneles/dialogos/MostrarVeredicto.h"

#include <QApplication>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>
#include <QVBoxLayout>

class TestMostrarVeredicto : public QObject {
    Q_OBJECT

private slots:
    void init() { GrabarSeams(); }

    void vacioNoMuestraNada()
    {
        QCOMPARE(MostrarVeredicto(Veredicto{}), 0);
        QVERIFY(MensajeSeam::registro().isEmpty());
    }

    void textoBotonesYTitulo()
    {
        Veredicto v;
        v.mensaje = QStringLiteral("¿Seguro?");
        v.botones = vb::YesNo + vb::Question + vb::DefaultButton2;
        v.titulo = QStringLiteral("Título");
        MensajeSeam::setNextAnswer(vb::Yes);
        QCOMPARE(MostrarVeredicto(v), int(vb::Yes));
        // With no answer scripted the box's default button answers.
        QCOMPARE(MostrarVeredicto(v), int(vb::No));
        QCOMPARE(MensajeSeam::registro().size(), 2);
        const auto& m = MensajeSeam::registro().first();
        QCOMPARE(m.texto, v.mensaje);
        QCOMPARE(m.titulo, v.titulo);
        QCOMPARE(m.botones, v.botones);
        QCOMPARE(m.icono(), int(vb::Question));
    }

    void focoEnSuPestana()
    {
        QWidget panel;
        auto* pestanas = new QTabWidget(&panel);
        pestanas->setObjectName(QStringLiteral("tabTerceros"));
        auto* sujeto = new QWidget;
        auto* transmitente = new QWidget;
        auto* dnisp = new QLineEdit(sujeto);
        dnisp->setObjectName(QStringLiteral("txtdnisp"));
        auto* dnitr = new QLineEdit(transmitente);
        dnitr->setObjectName(QStringLiteral("txtdnitr"));
        pestanas->addTab(sujeto, QStringLiteral("Sujeto"));
        pestanas->addTab(transmitente, QStringLiteral("Transmitente"));
        (new QVBoxLayout(&panel))->addWidget(pestanas);
        panel.show();
        QApplication::setActiveWindow(&panel);
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        dnisp->setFocus();
        QCOMPARE(pestanas->currentIndex(), 0);

        Veredicto v;
        v.mensaje = QStringLiteral("El DNI del transmitente es erróneo");
        v.botones = vb::Information;
        v.control = QStringLiteral("txtdnitr");
        v.pestana = 1;
        MostrarVeredicto(v, &panel);
        QCOMPARE(pestanas->currentIndex(), 1);
        QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget*>(dnitr));

        // A control the panel does not hold moves nothing; the message is shown all the same.
        v.control = QStringLiteral("txtnoexiste");
        v.pestana = 0;
        MostrarVeredicto(v, &panel);
        QCOMPARE(pestanas->currentIndex(), 1);
        QCOMPARE(MensajeSeam::registro().size(), 2);
    }
};

QTEST_MAIN(TestMostrarVeredicto)
#include "test_mostrar_veredicto.moc"
