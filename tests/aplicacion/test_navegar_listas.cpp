// The ways through the lists and back, through the real panels of the main window: a party's
// returns that open a return whose form goes on a side trip (choosing a contributor, a
// presenter, the print) and comes back; each panel that closes brings back the one it came
// from, and only that one, down to the party's list and the main window.
#include "ApoyoDeclaracionPanel.h"
#include "ApoyoImpreso.h"

#include "aplicacion/MDIVeldo.h"
#include "paneles/controles/cFlexGrid.h"
#include "paneles/dialogos/Mensaje.h"
#include "paneles/imprimir/ImpresoraSistema.h"
#include "registros/declaracion/cDecLista.h"
#include "registros/imprimir/cImOf.h"
#include "registros/partes/cConDeclaraciones.h"
#include "registros/partes/cConLista.h"
#include "registros/partes/cPreLista.h"
#include "valores/EstadoNavegacion.h"

#include <QMenu>
#include <QPushButton>
#include <QTest>

using Navegacion::Letras;
using Navegacion::RutaDec;

class TestNavegarListas : public QObject, ControlesDePanel {
    Q_OBJECT

    std::unique_ptr<ProgramaDePrueba> m_prog;
    cSuperficieGrabadora m_hojas;

    // The one panel on the main window is `nombre`; it becomes the panel of the gestures.
    void irA(const char* nombre)
    {
        m_panel = m_prog->panel(QString::fromLatin1(nombre));
        QVERIFY2(m_panel, nombre);
        QCOMPARE(m_prog->paneles(), QStringList{QString::fromLatin1(nombre)});
    }
    bool comandosActivos() const
    {
        return m_prog->ventana()->findChild<QMenu*>(QStringLiteral("mnuDeclaracion"))
            ->menuAction()->isEnabled();
    }
    // A party list from the main menu, its only row, CmdDeclaraciones.
    void declaracionesDeParte(const char* comando, const char* lista, const char* grid,
                              const char* panel)
    {
        m_prog->ventana()->ActualizarMenus();
        Comando(*m_prog, comando);
        irA(lista);
        ClicEnCelda(c<cFlexGrid>(grid), 1, 1);
        Clic(b("CmdDeclaraciones"));
        irA(panel);
    }

private slots:
    void init()
    {
        m_prog = std::make_unique<ProgramaDePrueba>();
        ImpresoraSistemaSeam::impresoras(1);
        ImpresoraSistemaSeam::superficie(&m_hojas);
        const int32_t csco = NuevoContribuyente(Dni(22222222), QStringLiteral("AGIRRE ZUBIA MIREN"));
        const int32_t cspr = NuevoPresentador(Dni(33333333), QStringLiteral("GESTORIA ARBELIA"));
        DeclaracionGuardada(QStringLiteral("VIAJERA"), 20100315, QStringLiteral("T2"), csco, 0,
                            cspr);
        MensajeSeam::limpiar();
    }
    void cleanup()
    {
        ImpresoraSistemaSeam::limpiar();
        m_prog.reset();
        Procesar();
    }

    // A contributor's returns, the return's form, and from the form the choice of a subject
    // and of a transmitter, both cancelled: the form comes back each time, then the returns,
    // then the contributors' list, each as it was left.
    void deLasDeclaracionesDeUnContribuyenteAUnContribuyenteYDeVuelta()
    {
        declaracionesDeParte("mnuAbrirContribuyente", "FrmConLista", "flxContribuyentes",
                             "FrmConDeclaraciones");
        QCOMPARE(Letras(ConLista().ENTRADA), QStringLiteral("A"));
        QCOMPARE(ConDeclaraciones().ENTRADA.letras(), QStringLiteral("A"));
        ClicEnCelda(c<cFlexGrid>("flxDeclaraciones"), 1, 1);
        Clic(b("cmdAceptar"));
        irA("FrmDeclaracion");
        QCOMPARE(ConDeclaraciones().ENTRADA.letras(), QStringLiteral("AD"));
        QCOMPARE(RutaDec().lista.letras(), QStringLiteral("C"));
        for (const char* boton : {"cmdSujetoPasivo", "cmdTransmitente"}) {
            Clic(b(boton));
            irA("FrmConSeleccion");
            QCOMPARE(RutaDec().lista.letras(), QStringLiteral("CT"));
            // The form, gone on its trip, has marked its list to come back as it was left.
            QCOMPARE(ConDeclaraciones().ENTRADA.letras(), QStringLiteral("P"));
            Clic(b("cmdCancelar"));
            irA("FrmDeclaracion");
            QCOMPARE(RutaDec().lista.letras(), QStringLiteral("C"));
            QCOMPARE(Letras(RutaDec().entrada), QStringLiteral("P"));
        }
        Clic(b("cmdCancelar"));
        irA("FrmConDeclaraciones");
        QCOMPARE(ConDeclaraciones().ENTRADA.letras(), QStringLiteral("P"));
        QVERIFY(!comandosActivos());
        Clic(b("cmdCancelar"));
        irA("FrmConLista");
        QCOMPARE(Letras(ConLista().ENTRADA), QStringLiteral("P"));
        Clic(b("cmdCancelar"));
        QCOMPARE(m_prog->paneles(), QStringList());
        QVERIFY(comandosActivos());
        QCOMPARE(MensajeSeam::registro().size(), 0);
    }

    // A presenter's returns, the return's form, the choice of a presenter cancelled and the
    // print of the form: each trip brings the form back; the print of the returns brings the
    // returns back; then the presenters' list.
    void deLasDeclaracionesDeUnPresentadorALaImpresionYDeVuelta()
    {
        declaracionesDeParte("mnuAbrirPresentador", "FrmPreLista", "flxPresentadores",
                             "FrmPreDeclaraciones");
        ClicEnCelda(c<cFlexGrid>("flxDeclaraciones"), 1, 1);
        Clic(b("cmdAceptar"));
        irA("FrmDeclaracion");
        QCOMPARE(RutaDec().lista.letras(), QStringLiteral("P"));
        Clic(b("CmdPresentador"));
        irA("FrmPreSeleccion");
        QCOMPARE(RutaDec().lista.letras(), QStringLiteral("PT"));
        Clic(b("cmdCancelar"));
        irA("FrmDeclaracion");
        Clic(b("cmdImprimir"));
        irA("FrmImprimir");
        QCOMPARE(Letras(ImOf().ENTRADA), QStringLiteral("D"));
        QCOMPARE(RutaDec().lista.letras(), QStringLiteral("PI"));
        Clic(b("cmdCancelar"));
        irA("FrmDeclaracion");
        QCOMPARE(RutaDec().lista.letras(), QStringLiteral("P"));
        Clic(b("cmdCancelar"));
        irA("FrmPreDeclaraciones");
        QCOMPARE(PreDeclaraciones().ENTRADA.letras(), QStringLiteral("P"));
        Clic(b("cmdImprimir"));
        irA("FrmImprimir");
        QCOMPARE(Letras(ImOf().ENTRADA), QStringLiteral("P"));
        QCOMPARE(PreDeclaraciones().ENTRADA.letras(), QStringLiteral("PI"));
        Clic(b("cmdCancelar"));
        irA("FrmPreDeclaraciones");
        Clic(b("cmdCancelar"));
        irA("FrmPreLista");
        QCOMPARE(Letras(PreLista().ENTRADA), QStringLiteral("P"));
        Clic(b("cmdCancelar"));
        QCOMPARE(m_prog->paneles(), QStringList());
        QCOMPARE(m_hojas.Llamadas.size(), 0);
        QCOMPARE(MensajeSeam::registro().size(), 0);
    }

    // The list of returns, the form, a subject's choice cancelled and the print: the list of
    // returns comes back, never a party's returns.
    void deLaListaDeDeclaracionesAUnContribuyenteYDeVuelta()
    {
        m_prog->ventana()->ActualizarMenus();
        Comando(*m_prog, "mnuAbrirDeclaracion");
        irA("FrmDecLista");
        QCOMPARE(Letras(DecLista().MODO), QStringLiteral("C"));
        Clic(b("cmdAceptar"));
        irA("FrmDeclaracion");
        Clic(b("cmdSujetoPasivo"));
        irA("FrmConSeleccion");
        QCOMPARE(RutaDec().lista.letras(), QStringLiteral("DT"));
        Clic(b("cmdCancelar"));
        irA("FrmDeclaracion");
        Clic(b("cmdCancelar"));
        irA("FrmDecLista");
        QCOMPARE(DecLista().ENTRADA.letras(), QStringLiteral("P"));
        Clic(b("cmdImprimir"));
        irA("FrmImprimir");
        QCOMPARE(Letras(ImOf().ENTRADA), QStringLiteral("L"));
        Clic(b("cmdCancelar"));
        irA("FrmDecLista");
        Clic(b("cmdCancelar"));
        QCOMPARE(m_prog->paneles(), QStringList());
        QVERIFY(comandosActivos());
    }
};

QTEST_MAIN(TestNavegarListas)
#include "test_navegar_listas.moc"
