// The road of a new user through a real message box: Contribuyente, Nuevo; a DNI; Aceptar; the
// box "La casilla Nombre debe tener algún valor" closed with the keyboard; a name typed in the
// field that got the focus back, Tab, Aceptar. The box is a real one here (no scripted answer),
// so that the main window loses the activation and gets it back as on a desktop: under a window
// manager the focus returns to the field only with the window's reactivation.
#include "ApoyoDatos.h"

#include "aplicacion/MDIVeldo.h"
#include "paneles/dialogos/Mensaje.h"
#include "registros/partes/cConDatos.h"

#include <QAction>
#include <QMessageBox>
#include <QTimer>

namespace {
const QString kNombreVacio = QStringLiteral("La casilla Nombre debe tener algún valor");

// Closes every real message box that opens, with the Enter key as a user would, and keeps its
// text.
class CierreDeCajas : public QObject {
public:
    CierreDeCajas()
    {
        connect(&m_reloj, &QTimer::timeout, this, [this] {
            auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!caja || caja == m_ultima || !caja->isActiveWindow())
                return;
            m_ultima = caja;
            m_textos << caja->text();
            QTest::keyClick(caja, Qt::Key_Return);
        });
        m_reloj.start(20);
    }
    const QStringList& textos() const { return m_textos; }

private:
    QTimer m_reloj;
    QPointer<QMessageBox> m_ultima;
    QStringList m_textos;
};
}  // namespace

class TestFocoTrasMensaje : public QObject {
    Q_OBJECT
    std::unique_ptr<ProgramaDePrueba> m_prog;

private slots:
    void init()
    {
        m_prog = std::make_unique<ProgramaDePrueba>();
        // Real boxes: the road goes through the window system.
        MensajeSeam::grabar(false);
    }
    void cleanup()
    {
        MensajeSeam::grabar(true);
        m_prog.reset();
        Procesar();
    }

    void nombreEscritoTrasElMensajeSeToma()
    {
        QAction* nuevo = m_prog->ventana()->findChild<QAction*>(QStringLiteral("mnuNuevoContribuyente"));
        QVERIFY(nuevo);
        nuevo->trigger();
        Procesar();
        QWidget* panel = m_prog->panel(QStringLiteral("FrmConDatos"));
        QVERIFY(panel);
        auto* dni = Control<QLineEdit>(panel, "txtdnic");
        auto* nombre = Control<QLineEdit>(panel, "txtnombrec");
        auto* aceptar = Control<QPushButton>(panel, "cmdAceptar");
        QVERIFY(dni && nombre && aceptar);
        QTRY_COMPARE(Foco(), dni);

        CierreDeCajas cajas;
        QTest::keyClicks(dni, QStringLiteral("12345678Z"));
        Clic(aceptar);
        QTRY_COMPARE(cajas.textos(), QStringList{kNombreVacio});
        // The box is gone; the window gets the activation back and the field the focus. A
        // window manager hands the activation back on its own; without one (offscreen) the
        // window asks for it, as the window manager would give it.
        if (!QTest::qWaitFor([this] { return m_prog->ventana()->isActiveWindow(); }, 2000))
            m_prog->ventana()->activateWindow();
        QTRY_VERIFY(m_prog->ventana()->isActiveWindow());
        QTRY_COMPARE(Foco(), nombre);

        QTest::keyClicks(Foco(), QStringLiteral("PEREZ ANA"));
        QTest::keyClick(Foco(), Qt::Key_Tab);
        Procesar();
        QCOMPARE(nombre->text(), QStringLiteral("PEREZ ANA"));
        QCOMPARE(ConDatos().NOMBREC, QStringLiteral("PEREZ ANA"));
        Clic(aceptar);
        QTest::qWait(300);
        Procesar();
        // Whatever the panel asks next, it is not the name again.
        QVERIFY2(!cajas.textos().mid(1).contains(kNombreVacio),
                 qPrintable(cajas.textos().join(QLatin1String(" | "))));
        QCOMPARE(ConDatos().NOMBREC, QStringLiteral("PEREZ ANA"));
    }
};

QTEST_MAIN(TestFocoTrasMensaje)
#include "test_foco_tras_mensaje.moc"
