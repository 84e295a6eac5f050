// The returns of one party, reached from the party lists' CmdDeclaraciones: the header with
// the counters, the column "S-T", a new return made from the panel (the counters go up when it
// comes back), Atrás back to the list with the party still selected, and the deletion of the
// last return, which closes the panel.
#include "ApoyoDeclaracionPanel.h"
#include "catalogo/IdsCatalogo.h"

#include "aplicacion/MDIVeldo.h"
#include "catalogo/Catalogo.h"
#include "paneles/controles/cFlexGrid.h"
#include "paneles/dialogos/Mensaje.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/partes/cConDeclaraciones.h"
#include "registros/partes/cConLista.h"
#include "registros/partes/cPreLista.h"
#include "valores/EstadoNavegacion.h"
#include "valores/Twips.h"

#include <QLabel>

class TestConDeclaraciones : public QObject, ControlesDePanel {
    Q_OBJECT

    std::unique_ptr<ProgramaDePrueba> m_prog;
    int32_t m_csco = 0;

    QLabel* lbl(const char* nombre) const { return c<QLabel>(nombre); }
    cFlexGrid* grid() const { return c<cFlexGrid>("flxDeclaraciones"); }
    void clicCabecera(int columna) { ClicEnCabecera(grid(), columna); }
    void clicFila(QWidget* panel, const char* nombreGrid, int fila)
    {
        ClicEnCelda(Control<cFlexGrid>(panel, nombreGrid), fila, 1);
    }
    // The contributors' list, the contributor's row, CmdDeclaraciones.
    void abrirDesdeLaLista(const char* comando, const char* lista, const char* grid, const char* panel)
    {
        m_prog->ventana()->ActualizarMenus();
        Comando(*m_prog, comando);
        QWidget* l = m_prog->panel(QString::fromLatin1(lista));
        clicFila(l, grid, 1);
        Clic(Control<QPushButton>(l, "CmdDeclaraciones"));
        m_panel = m_prog->panel(QString::fromLatin1(panel));
    }

private slots:
    void init()
    {
        m_prog = std::make_unique<ProgramaDePrueba>();
        ContribuyenteDePanel c;
        c.DNIC = Dni(22222222);
        c.NOMBREC = QStringLiteral("AGIRRE ZUBIA MIREN");
        m_csco = GuardarEnAlmacen(c);
        MensajeSeam::limpiar();
    }
    void cleanup()
    {
        m_prog.reset();
        Procesar();
    }

    void lasDeUnContribuyente()
    {
        DeclaracionGuardada(QStringLiteral("COMO-S"), 20100315, QStringLiteral("T2"), m_csco, 0);
        DeclaracionGuardada(QStringLiteral("COMO-T"), 20100316, QStringLiteral("T2"), 0, m_csco);
        DeclaracionGuardada(QStringLiteral("OTRA"));
        abrirDesdeLaLista("mnuAbrirContribuyente", "FrmConLista", "flxContribuyentes",
                          "FrmConDeclaraciones");
        QVERIFY(m_panel);
        QCOMPARE(m_prog->paneles(), QStringList{QStringLiteral("FrmConDeclaraciones")});
        QCOMPARE(m_panel->windowTitle(), Texto(kIdDeclaracionesDeContribuyente));
        QCOMPARE(lbl("lbldcontribuyente")->text(), QStringLiteral("AGIRRE ZUBIA MIREN"));
        QCOMPARE(lbl("lblddni")->text(), Dni(22222222));
        QCOMPARE(lbl("lblnumsp")->text(), QStringLiteral("1"));
        QCOMPARE(lbl("lblnumtr")->text(), QStringLiteral("1"));
        QCOMPARE(grid()->Cols(), 7);
        QCOMPARE(grid()->TextMatrix(0, 6), QStringLiteral("S-T"));
        QCOMPARE(grid()->TextMatrix(1, 1), QStringLiteral("COMO-T"));
        QCOMPARE(grid()->TextMatrix(1, 6), QStringLiteral("T"));
        QCOMPARE(grid()->TextMatrix(2, 6), QStringLiteral("S"));
        QCOMPARE(ConDeclaraciones().NUMDECLASEL, 2);
        // A new return from here: LISTA "C", and the counters go up when it comes back.
        Clic(b("cmdNuevo"));
        QCOMPARE(ConDeclaraciones().ENTRADA.letras(), QStringLiteral("AD"));
        m_panel = m_prog->panel(QStringLiteral("FrmDeclaracion"));
        QVERIFY(m_panel);
        QCOMPARE(Navegacion::RutaDec().lista.letras(), QStringLiteral("C"));
        EscribirFecha(t("txtfechad"), QStringLiteral("15032010"));
        EscribirYSalir(t("txtoperacion"), QStringLiteral("T2"));
        EscribirYSalir(t("txtmarca"), QStringLiteral("SEAT"));
        EscribirYSalir(t("txttipo"), QStringLiteral("6J"));
        EscribirYSalir(t("txtmodelo"), QStringLiteral("IBIZA"));
        EscribirYSalir(t("txtbastidor"), QStringLiteral("VSSZZZ6JZAR000001"));
        EscribirYSalir(n("txtclasificacion"), QStringLiteral("1000"));
        EscribirYSalir(n("txtcilindrada"), QStringLiteral("1598"));
        EscribirYSalir(n("txtbasei"), QStringLiteral("1000"));
        EscribirYSalir(t("txtdnisp"), Dni(22222222));
        EscribirYSalir(t("txtdnitr"), Dni(87654321));
        EscribirYSalir(t("txtnombretr"), QStringLiteral("AUTOS VELDO SA"));
        EscribirYSalir(t("txtdomiciliotr"), QStringLiteral("GASTEIZ"));
        EscribirYSalir(n("txtcodpostr"), QStringLiteral("77002"));
        EscribirYSalir(n("txtcodmuntr"), QStringLiteral("2"));
        Clic(b("cmdAceptar"));
        QCOMPARE(MensajeSeam::registro().size(), 0);
        m_panel = m_prog->panel(QStringLiteral("FrmConDeclaraciones"));
        QVERIFY(m_panel);
        QCOMPARE(lbl("lblnumsp")->text(), QStringLiteral("2"));
        QCOMPARE(ConDeclaraciones().NUMDECLASEL, 3);
        QCOMPARE(grid()->TextMatrix(grid()->Row(), 0).toInt(), ConDeclaraciones().CSDE);
        // Atrás: the list, with the contributor still selected.
        Clic(b("cmdCancelar"));
        QVERIFY(m_prog->panel(QStringLiteral("FrmConLista")));
        QCOMPARE(ConLista().CSCO, m_csco);
    }

    // The order of a contributor's returns: a first click on the number, the date or the
    // amount orders descending, on the reference or the operation ascending; the description
    // and "S-T" do not order. The order and its direction survive a side trip.
    void ordenDeLasDeUnContribuyente()
    {
        DeclaracionGuardada(QStringLiteral("BBB"), 20100315, QStringLiteral("T2"), m_csco);
        DeclaracionGuardada(QStringLiteral("AAA"), 20090101, QStringLiteral("T4"), 0, m_csco);
        DeclaracionGuardada(QStringLiteral("CCC"), 20110101, QStringLiteral("T3"), m_csco);
        abrirDesdeLaLista("mnuAbrirContribuyente", "FrmConLista", "flxContribuyentes",
                          "FrmConDeclaraciones");
        QVERIFY(m_panel);
        QCOMPARE(int(ConDeclaraciones().ORDEN), 1);
        QCOMPARE(ConDeclaraciones().TIPOORDEN, QStringLiteral("DESC"));
        const auto referencias = [this] {
            QStringList r;
            for (int f = 1; f < grid()->Rows(); ++f)
                r << grid()->TextMatrix(f, 1);
            return r;
        };
        QCOMPARE(grid()->Rows(), 4);
        const struct {
            int columna;
            int orden;
            const char* tipo;
            QStringList filas;
        } casos[] = {{1, 2, "ASC", {"AAA", "BBB", "CCC"}},
                     {2, 3, "DESC", {"CCC", "BBB", "AAA"}},
                     {4, 5, "ASC", {"BBB", "CCC", "AAA"}},
                     {5, 5, "ASC", {"BBB", "CCC", "AAA"}},   // the description: nothing changes
                     {6, 5, "ASC", {"BBB", "CCC", "AAA"}},   // "S-T": nothing changes
                     {3, 4, "DESC", {}},
                     {0, 1, "DESC", {"CCC", "AAA", "BBB"}}};
        for (const auto& caso : casos) {
            clicCabecera(caso.columna);
            QCOMPARE(int(ConDeclaraciones().ORDEN), caso.orden);
            QCOMPARE(ConDeclaraciones().TIPOORDEN, QString::fromLatin1(caso.tipo));
            if (!caso.filas.isEmpty())
                QCOMPARE(referencias(), caso.filas);
        }
        clicCabecera(1);
        ClicEnCelda(grid(), 2, 1);
        QCOMPARE(grid()->TextMatrix(2, 1), QStringLiteral("BBB"));
        Clic(b("cmdAceptar"));
        m_panel = m_prog->panel(QStringLiteral("FrmDeclaracion"));
        QVERIFY(m_panel);
        Clic(b("cmdCancelar"));
        m_panel = m_prog->panel(QStringLiteral("FrmConDeclaraciones"));
        QVERIFY(m_panel);
        QCOMPARE(int(ConDeclaraciones().ORDEN), 2);
        QCOMPARE(referencias(), (QStringList{"AAA", "BBB", "CCC"}));
        QCOMPARE(grid()->TextMatrix(grid()->Row(), 1), QStringLiteral("BBB"));
    }

    // The criteria of a party's returns in their own words, in both lists.
    void criteriosDeLasDeUnaParte()
    {
        const int32_t primera = DeclaracionGuardada(QStringLiteral("ABC"), 20100315, QStringLiteral("T2"), m_csco);
        DeclaracionGuardada(QStringLiteral("XYZ"), 20090101, QStringLiteral("T2"), m_csco);
        abrirDesdeLaLista("mnuAbrirContribuyente", "FrmConLista", "flxContribuyentes",
                          "FrmConDeclaraciones");
        QVERIFY(m_panel);
        Clic(b("cmdBuscar"));
        QCOMPARE(lbl("lblayuda")->text(), Texto(kIdAyudaCriterioDeclaraciones));
        CondicionesEnCincoColumnas(grid(), t("txtBusqueda"), primera);
        Clic(b("cmdBuscar"));
        QCOMPARE(ConDeclaraciones().NUMDECLASEL, 1);
        QCOMPARE(lbl("lblResultado")->text(),
                 QStringLiteral("Código Declaración >= %1 , Referencia empieza por 'AB' , "
                                "Fecha >= 01/01/2010' , Importe >= 1, Operación empieza por 'T' "
                                "1 declaración(es) seleccionada(s). ")
                     .arg(primera));
        QCOMPARE(lbl("lblayuda")->text(), Texto(kIdAyudaOrdenarDeclaraciones));
        // Nothing found: the criteria and id 63.
        Clic(b("cmdBuscar"));
        CondicionDeBusqueda(grid(), t("txtBusqueda"), 1, QStringLiteral("QQ"));
        Clic(b("cmdBuscar"));
        QCOMPARE(ConDeclaraciones().NUMDECLASEL, 0);
        QCOMPARE(lbl("lblResultado")->text(), QStringLiteral("Referencia empieza por 'QQ' ")
                 + Texto(kIdSinDatosCondicion));
        // Todos: all again, by number, newest first.
        Clic(b("cmdTodos"));
        QCOMPARE(ConDeclaraciones().NUMDECLASEL, 2);
        QCOMPARE(int(ConDeclaraciones().ORDEN), 1);
        QVERIFY(!ConDeclaraciones().HayCriterios());
    }

    void borrarLaUltimaCierra()
    {
        const int32_t csde = DeclaracionGuardada(QStringLiteral("UNICA"), 20100315, QStringLiteral("T2"), m_csco);
        abrirDesdeLaLista("mnuAbrirContribuyente", "FrmConLista", "flxContribuyentes",
                          "FrmConDeclaraciones");
        QVERIFY(m_panel);
        MensajeSeam::setNextAnswer(vb::Yes);
        Clic(b("cmdEliminar"));
        QCOMPARE(MensajeSeam::registro().first().texto, Texto(kIdPreguntaEliminarDeclaracion)
                 + QString::number(csde) + Texto(kIdGuionEliminarDeclaracion)
                 + QStringLiteral("UNICA") + Texto(kIdInterrogacionEliminarDeclaracion));
        QCOMPARE(Declaraciones(), 0);
        QVERIFY(!m_prog->panel(QStringLiteral("FrmConDeclaraciones")));
        QVERIFY(m_prog->panel(QStringLiteral("FrmConLista")));
        QCOMPARE(ConLista().NUMSP, 0);
    }

    void lasDeUnPresentador()
    {
        const int32_t cspr = NuevoPresentador(QStringLiteral("87654321X"), QStringLiteral("GESTORIA ARBELIA"), QStringLiteral("NUEVA"));
        DeclaracionGuardada(QStringLiteral("P1"), 20100315, QStringLiteral("T2"), 0, 0, cspr);
        abrirDesdeLaLista("mnuAbrirPresentador", "FrmPreLista", "flxPresentadores",
                          "FrmPreDeclaraciones");
        QVERIFY(m_panel);
        QCOMPARE(m_panel->windowTitle(), Texto(kIdDeclaracionesDePresentador));
        QCOMPARE(grid()->Cols(), 6);
        // The operation's column keeps its width; the number's grows to hold "NºDecl." and
        // the order's arrow.
        QCOMPARE(grid()->ColWidth(4), TwipsAPixeles(800));
        QVERIFY(grid()->ColWidth(0) >= TwipsAPixeles(900));
        QCOMPARE(lbl("lblnumdecla")->text(), QStringLiteral("1"));
        QCOMPARE(grid()->TextMatrix(1, 1), QStringLiteral("P1"));
        Clic(b("cmdCancelar"));
        QVERIFY(m_prog->panel(QStringLiteral("FrmPreLista")));
    }
};

QTEST_MAIN(TestConDeclaraciones)
#include "test_condeclaraciones.moc"
