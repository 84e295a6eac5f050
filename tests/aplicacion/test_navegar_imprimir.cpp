// The ways to the print panel and back, through the real panels of the main window: the list
// of returns, the return's form opened from it, a contributor's returns and a presenter's
// returns. Each opens FrmImprimir on its return with its own letter, the commands stay off
// while it stands, and closing it (after printing or not) brings the caller back.
#include "ApoyoDeclaracionPanel.h"
#include "ApoyoImpreso.h"

#include "aplicacion/MDIVeldo.h"
#include "paneles/controles/cFlexGrid.h"
#include "paneles/dialogos/DialogoFichero.h"
#include "paneles/dialogos/Mensaje.h"
#include "paneles/imprimir/ImpresoraSistema.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cDecLista.h"
#include "registros/imprimir/cImOf.h"
#include "registros/partes/cConDeclaraciones.h"

#include <QAction>
#include <QFile>
#include <QHeaderView>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QTemporaryDir>
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
        QCOMPARE(Navegacion::Letras(ImOf().ENTRADA), letra);
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
        QCOMPARE(DecLista().ENTRADA.letras(), QStringLiteral("P"));
        QVERIFY(!comandosActivos());  // the list itself keeps them off
        // The return opened from the list, then printed from its form: Cancelar brings the
        // form back with LISTA "D" only, and the form's Cancelar the list.
        Clic(b("cmdAceptar"));
        irA("FrmDeclaracion");
        QCOMPARE(Navegacion::RutaDec().lista.letras(), QStringLiteral("D"));
        alImprimir(QStringLiteral("D"));
        QCOMPARE(Navegacion::RutaDec().lista.letras(), QStringLiteral("DI"));
        Clic(b("cmdCancelar"));
        irA("FrmDeclaracion");
        QCOMPARE(Navegacion::RutaDec().lista.letras(), QStringLiteral("D"));
        QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().entrada), QStringLiteral("P"));
        QCOMPARE(FinesDeDocumento(m_hojas), 4);
        Clic(b("cmdCancelar"));
        irA("FrmDecLista");
        Clic(b("cmdCancelar"));
        QVERIFY(m_prog->paneles().isEmpty());
        QVERIFY(comandosActivos());
        QCOMPARE(MensajeSeam::registro().size(), 0);
    }

    // Every way out of the print panel leaves the caller's frame alone on the main window, no
    // empty "Imprimir declaración" frame behind it: after the preview and the PDF, Cancelar;
    // the frame's own closing; Aceptar; and then Atrás leaves no frame at all.
    void ningunMarcoQuedaAtras()
    {
        QMdiArea* area = m_prog->ventana()->area();
        ImpresoraSistemaSeam::vista([](QPrintPreviewDialog&) {});
        QTemporaryDir carpeta;
        m_prog->ventana()->ActualizarMenus();
        Comando(*m_prog, "mnuAbrirDeclaracion");
        irA("FrmDecLista");
        alImprimir(QStringLiteral("L"));
        Clic(b("cmdVistaPrevia"));
        const QString pdf = carpeta.filePath(QStringLiteral("copias.pdf"));
        DialogoFicheroSeam::setNextFileName(pdf);
        Clic(b("cmdPdf"));
        QVERIFY(QFile::exists(pdf));
        Clic(b("cmdCancelar"));
        irA("FrmDecLista");
        QCOMPARE(area->subWindowList().size(), 1);
        // The frame closed by its own button.
        alImprimir(QStringLiteral("L"));
        qobject_cast<QMdiSubWindow*>(m_panel->parentWidget())->close();
        Procesar();
        irA("FrmDecLista");
        QCOMPARE(area->subWindowList().size(), 1);
        alImprimir(QStringLiteral("L"));
        Clic(b("cmdAceptar"));
        irA("FrmDecLista");
        QCOMPARE(area->subWindowList().size(), 1);
        Clic(b("cmdCancelar"));
        QCOMPARE(m_prog->paneles(), QStringList());
        QCOMPARE(area->subWindowList().size(), 0);
        QCOMPARE(MensajeSeam::registro().size(), 0);
    }

    // After a click on a heading, ENTRADA is empty when Imprimir or Datos leaves for its side
    // trip: the way back is the contributor's returns alone, and Atrás then opens one list.
    void vueltaTrasOrdenar()
    {
        declaracionesDeParte("mnuAbrirContribuyente", "FrmConLista", "flxContribuyentes",
                             "FrmConDeclaraciones");
        const auto ordenar = [this](int columna) {
            QHeaderView* h = c<cFlexGrid>("flxDeclaraciones")->horizontalHeader();
            QTest::mouseClick(h->viewport(), Qt::LeftButton, Qt::NoModifier,
                              QPoint(h->sectionViewportPosition(columna) + h->sectionSize(columna) / 2,
                                     h->height() / 2));
            Procesar();
        };
        ordenar(1);
        QCOMPARE(ConDeclaraciones().ENTRADA.letras(), QString());
        ClicEnCelda(c<cFlexGrid>("flxDeclaraciones"), 1, 1);
        alImprimir(QStringLiteral("C"));
        Clic(b("cmdCancelar"));
        irA("FrmConDeclaraciones");
        ordenar(2);
        ClicEnCelda(c<cFlexGrid>("flxDeclaraciones"), 1, 1);
        Clic(b("cmdAceptar"));
        irA("FrmDeclaracion");
        Clic(b("cmdCancelar"));
        irA("FrmConDeclaraciones");
        Clic(b("cmdTodos"));
        Clic(b("cmdNuevo"));
        irA("FrmDeclaracion");
        Clic(b("cmdCancelar"));
        irA("FrmConDeclaraciones");
        Clic(b("cmdCancelar"));
        irA("FrmConLista");
        Clic(b("cmdCancelar"));
        QCOMPARE(m_prog->paneles(), QStringList());
    }

    void vueltaTrasBuscarEnUnPresentador()
    {
        declaracionesDeParte("mnuAbrirPresentador", "FrmPreLista", "flxPresentadores",
                             "FrmPreDeclaraciones");
        Clic(b("cmdBuscar"));
        Clic(b("cmdBuscar"));
        QCOMPARE(PreDeclaraciones().ENTRADA.letras(), QString());
        ClicEnCelda(c<cFlexGrid>("flxDeclaraciones"), 1, 1);
        Clic(b("cmdCopiar"));
        irA("FrmDeclaracion");
        Clic(b("cmdCancelar"));
        irA("FrmPreDeclaraciones");
        Clic(b("cmdCancelar"));
        irA("FrmPreLista");
    }

    void desdeUnContribuyente()
    {
        declaracionesDeParte("mnuAbrirContribuyente", "FrmConLista", "flxContribuyentes",
                             "FrmConDeclaraciones");
        alImprimir(QStringLiteral("C"));
        QCOMPARE(ConDeclaraciones().ENTRADA.letras(), QStringLiteral("AI"));
        Clic(b("cmdCancelar"));
        irA("FrmConDeclaraciones");
        QCOMPARE(ConDeclaraciones().ENTRADA.letras(), QStringLiteral("P"));
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
        QCOMPARE(PreDeclaraciones().ENTRADA.letras(), QStringLiteral("P"));
    }
};

QTEST_MAIN(TestNavegarImprimir)
#include "test_navegar_imprimir.moc"
#include "valores/EstadoNavegacion.h"
