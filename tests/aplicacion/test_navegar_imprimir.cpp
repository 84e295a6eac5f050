// The ways to the print panel and back, through the real panels of the main window: the list
// of returns, the return's form opened from it, a contributor's returns and a presenter's
// returns. Each opens FrmImprimir on its return with its own letter, the commands stay off
// while it stands, and closing it (after printing or not) brings the caller back.
#include "ApoyoDeclaracionPanel.h"
#include "ApoyoImpreso.h"

#include "aplicacion/MDIVeldo.h"
#include "paneles/controles/cFlexGrid.h"
#include "paneles/dialogos/Mensaje.h"
#include "paneles/imprimir/ImpresoraSistema.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cDecLista.h"
#include "registros/imprimir/cImOf.h"
#include "registros/partes/cConDeclaraciones.h"

#include <QAction>
#include <QMenu>
#include <QPushButton>
#include <QTest>

class TestNavegarImprimir : public QObject, ControlesDePanel {
    Q_OBJECT

    std::unique_ptr<ProgramaDePrueba> m_prog;
    cSuperficieGrabadora m_hojas;
    int32_t m_csde = 0;

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
    // Imprimir on the open panel: the print panel for the return, with the caller's letter.
    void alImprimir(const QString& letra)
    {
        Clic(b("cmdImprimir"));
        irA("FrmImprimir");
        QCOMPARE(ImOf().CSDE, m_csde);
        QCOMPARE(ImOf().ENTRADA, letra);
        QCOMPARE(DecDatos().CSDE, m_csde);
        QVERIFY(!comandosActivos());
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
        m_hojas.Llamadas.clear();
        const int32_t csco = NuevoContribuyente(Dni(22222222), QStringLiteral("AGIRRE ZUBIA MIREN"));
        const int32_t cspr = NuevoPresentador(Dni(33333333), QStringLiteral("GESTORIA ARBELIA"));
        m_csde = DeclaracionGuardada(QStringLiteral("IMPRESA"), 20100315, QStringLiteral("T2"),
                                     csco, 0, cspr);
        MensajeSeam::limpiar();
    }
    void cleanup()
    {
        ImpresoraSistemaSeam::limpiar();
        m_prog.reset();
        Procesar();
    }

    void desdeLaListaYElFormulario()
    {
        m_prog->ventana()->ActualizarMenus();
        Comando(*m_prog, "mnuAbrirDeclaracion");
        irA("FrmDecLista");
        // From the list: Aceptar prints the four copies and the list comes back.
        alImprimir(QStringLiteral("L"));
        Clic(b("cmdAceptar"));
        QCOMPARE(FinesDeDocumento(m_hojas), 4);
        irA("FrmDecLista");
        QCOMPARE(DecLista().ENTRADA, QStringLiteral("P"));
        QVERIFY(!comandosActivos());  // the list itself keeps them off
        // The return opened from the list, then printed from its form: Cancelar brings the
        // form back with LISTA "D" only, and the form's Cancelar the list.
        Clic(b("cmdAceptar"));
        irA("FrmDeclaracion");
        QCOMPARE(DecDatos().LISTA, QStringLiteral("D"));
        alImprimir(QStringLiteral("D"));
        QCOMPARE(DecDatos().LISTA, QStringLiteral("DI"));
        Clic(b("cmdCancelar"));
        irA("FrmDeclaracion");
        QCOMPARE(DecDatos().LISTA, QStringLiteral("D"));
        QCOMPARE(DecDatos().ENTRADA, QStringLiteral("P"));
        QCOMPARE(FinesDeDocumento(m_hojas), 4);
        Clic(b("cmdCancelar"));
        irA("FrmDecLista");
        Clic(b("cmdCancelar"));
        QVERIFY(m_prog->paneles().isEmpty());
        QVERIFY(comandosActivos());
        QCOMPARE(MensajeSeam::registro().size(), 0);
    }

    void desdeUnContribuyente()
    {
        declaracionesDeParte("mnuAbrirContribuyente", "FrmConLista", "flxContribuyentes",
                             "FrmConDeclaraciones");
        alImprimir(QStringLiteral("C"));
        QCOMPARE(ConDeclaraciones().ENTRADA, QStringLiteral("AI"));
        Clic(b("cmdCancelar"));
        irA("FrmConDeclaraciones");
        QCOMPARE(ConDeclaraciones().ENTRADA, QStringLiteral("P"));
        QCOMPARE(m_hojas.Llamadas.size(), 0);
    }

    void desdeUnPresentador()
    {
        declaracionesDeParte("mnuAbrirPresentador", "FrmPreLista", "flxPresentadores",
                             "FrmPreDeclaraciones");
        alImprimir(QStringLiteral("P"));
        Clic(b("cmdAceptar"));
        QCOMPARE(FinesDeDocumento(m_hojas), 4);
        irA("FrmPreDeclaraciones");
        QCOMPARE(PreDeclaraciones().ENTRADA, QStringLiteral("P"));
    }
};

QTEST_MAIN(TestNavegarImprimir)
#include "test_navegar_imprimir.moc"
