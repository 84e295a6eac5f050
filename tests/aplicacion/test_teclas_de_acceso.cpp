// The access keys of the panels' buttons beside the main window's menu bar: while a panel is open
// the menus are switched off, and a letter that one of them shares with a button of the panel
// (Datos and Declaración, Cancelar and Contribuyente, Ados and Aitorpena) belongs to the button;
// with no panel the menus keep their keys.
#include "comun/PartesPrueba.h"
#include "comun/ProgramaPrueba.h"

#include "aplicacion/Navegacion.h"
#include "paneles/dialogos/Mensaje.h"
#include "registros/declaracion/cDecDatos.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <memory>

class TestTeclasDeAcceso : public QObject {
    Q_OBJECT

    std::unique_ptr<ProgramaDePrueba> m_prog;

    // Alt + `letra` pressed in the widget that has the focus, as a keyboard gives it; the button
    // it reaches acts a moment later, as on screen.
    static void teclaDeAcceso(Qt::Key letra)
    {
        QWidget* foco = QApplication::focusWidget();
        QVERIFY(foco);
        QTest::keyClick(foco, letra, Qt::AltModifier);
        QTest::qWait(150);
        Procesar();
    }

private slots:
    void cleanup()
    {
        m_prog.reset();
        Procesar();
    }

    // Alt+D on the list of contributors is its Datos: the contributor's panel opens.
    void datosDeLaListaYNoElMenuDeclaracion()
    {
        m_prog = std::make_unique<ProgramaDePrueba>();
        NuevoContribuyente(Dni(11111111), QStringLiteral("PEREZ ANA"));
        Navegacion::AbrirConLista(Navegacion::EntradaLista::Abrir);
        Procesar();
        QTRY_COMPARE(m_prog->paneles(), QStringList{QStringLiteral("FrmConLista")});
        teclaDeAcceso(Qt::Key_D);
        QTRY_COMPARE(m_prog->paneles(), QStringList{QStringLiteral("FrmConDatos")});
        QCOMPARE(QApplication::activePopupWidget(), nullptr);
    }

    // In Basque, Alt+A on the declaration form is its Ados (Aceptar), not the menu Aitorpena:
    // an unchanged new return closes the form.
    void adosDelFormularioEnEuskera()
    {
        m_prog = std::make_unique<ProgramaDePrueba>(QStringLiteral("E"));
        Navegacion::NuevaDeclaracion();
        Procesar();
        QTRY_COMPARE(m_prog->paneles(), QStringList{QStringLiteral("FrmDeclaracion")});
        m_prog->panel(QStringLiteral("FrmDeclaracion"))
            ->findChild<QLineEdit*>(QStringLiteral("txtfechad"))
            ->setFocus(Qt::OtherFocusReason);
        Procesar();
        teclaDeAcceso(Qt::Key_A);
        QTRY_COMPARE(m_prog->paneles(), QStringList());
        QVERIFY(MensajeSeam::registro().isEmpty());
    }

    // With no panel open, Alt+D drops the menu Declaración down.
    void sinPanelLaTeclaEsDelMenu()
    {
        m_prog = std::make_unique<ProgramaDePrueba>();
        QMenu* menu = m_prog->ventana()->findChild<QMenu*>(QStringLiteral("mnuDeclaracion"));
        m_prog->ventana()->setFocus(Qt::OtherFocusReason);
        Procesar();
        teclaDeAcceso(Qt::Key_D);
        QTRY_VERIFY(menu->isVisible());
        menu->hide();
        Procesar();
    }
};

QTEST_MAIN(TestTeclasDeAcceso)
#include "test_teclas_de_acceso.moc"
