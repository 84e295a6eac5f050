// The list of returns driven as a user drives it: the open and delete commands, the order by
// the headings, the search with its conditions, Todos, open, copy and new through the form and
// the way back to the list with the new row selected; and the whole road of one return.
#include "ApoyoDeclaracionPanel.h"
#include "catalogo/IdsCatalogo.h"

#include "aplicacion/MDIVeldo.h"
#include "catalogo/Catalogo.h"
#include "paneles/controles/cFlexGrid.h"
#include "paneles/dialogos/Mensaje.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cDecLista.h"

#include <QAction>
#include <QLabel>
#include <QTabBar>

#include <algorithm>

class TestFrmDecLista : public QObject, ControlesDePanel {
    Q_OBJECT

    std::unique_ptr<ProgramaDePrueba> m_prog;

    cFlexGrid* grid() const { return c<cFlexGrid>("flxDeclaraciones"); }
    QLabel* lbl(const char* nombre) const { return c<QLabel>(nombre); }
    void abrir(const char* comando = "mnuAbrirDeclaracion")
    {
        m_prog->ventana()->ActualizarMenus();
        Comando(*m_prog, comando);
        m_panel = m_prog->panel(QStringLiteral("FrmDecLista"));
    }
    // A click on a heading or on a cell, as the mouse gives it.
    void clicCabecera(int columna) { ClicEnCabecera(grid(), columna); }
    void clicCelda(int fila, int columna) { ClicEnCelda(grid(), fila, columna); }
    QStringList columna(int col) const
    {
        QStringList textos;
        for (int f = 1; f < grid()->Rows() && !grid()->TextMatrix(f, 0).isEmpty(); ++f)
            textos << grid()->TextMatrix(f, col);
        return textos;
    }

private slots:
    void init()
    {
        m_prog = std::make_unique<ProgramaDePrueba>();
        MensajeSeam::limpiar();
    }
    void cleanup()
    {
        m_prog.reset();
        Procesar();
    }

    void abrirMuestraLasDeclaracionesDeLaMasNueva()
    {
        DeclaracionGuardada(QStringLiteral("AAA"), 20100315, QStringLiteral("T2"));
        DeclaracionGuardada(QStringLiteral("BBB"), 20090101, QStringLiteral("T3"));
        DeclaracionGuardada(QStringLiteral("CCC"), 20110101, QStringLiteral("T4"));
        abrir();
        QVERIFY(m_panel);
        QCOMPARE(m_panel->windowTitle(), QStringLiteral("Abrir Declaración"));
        QVERIFY(MenuApagado(*m_prog, "mnuDeclaracion"));
        QCOMPARE(grid()->TextMatrix(0, 5), QStringLiteral("Descripción Operación"));
        QCOMPARE(columna(1), (QStringList{"CCC", "BBB", "AAA"}));
        QCOMPARE(grid()->TextMatrix(1, 2), QStringLiteral("01/01/2011"));
        QCOMPARE(grid()->TextMatrix(1, 3), QStringLiteral("712,50"));
        QCOMPARE(DecLista().CSDE, grid()->TextMatrix(1, 0).toInt());
        QCOMPARE(lbl("lblResultado")->text(), QStringLiteral("3 declaración(es) seleccionada(s) "));
        QVERIFY(c<QWidget>("picdesc")->isVisible() && !c<QWidget>("picasc")->isVisible());
        QVERIFY(b("cmdAceptar")->isEnabled());
        QCOMPARE(b("cmdAceptar")->text(), Texto(kIdBotonDatos));
        // The description does not order.
        clicCabecera(5);
        QCOMPARE(DecLista().ORDEN, 1);
        QCOMPARE(columna(1), (QStringList{"CCC", "BBB", "AAA"}));
        // The reference orders ascending, the date descending.
        clicCabecera(1);
        QCOMPARE(DecLista().ORDEN, 2);
        QCOMPARE(DecLista().TIPOORDEN, QStringLiteral("ASC"));
        QCOMPARE(columna(1), (QStringList{"AAA", "BBB", "CCC"}));
        QVERIFY(c<QWidget>("picasc")->isVisible());
        clicCabecera(2);
        QCOMPARE(DecLista().TIPOORDEN, QStringLiteral("DESC"));
        QCOMPARE(columna(1), (QStringList{"CCC", "AAA", "BBB"}));
        // Cancelar: back to the main window.
        Clic(b("cmdCancelar"));
        QVERIFY(m_prog->paneles().isEmpty());
        QVERIFY(!MenuApagado(*m_prog, "mnuDeclaracion"));
    }

    void busquedaYTodos()
    {
        DeclaracionGuardada(QStringLiteral("AAA"), 20100315);
        DeclaracionGuardada(QStringLiteral("ABB"), 20090101);
        DeclaracionGuardada(QStringLiteral("CCC"), 20110101);
        abrir();
        Clic(b("cmdBuscar"));
        QCOMPARE(DecLista().BUSQUEDA, QStringLiteral("B"));
        QCOMPARE(b("cmdBuscar")->text(), Texto(kIdResultado));
        QVERIFY(t("txtBusqueda")->isVisible());
        // The search box stands on the code; a click on the reference moves it there.
        clicCelda(1, 1);
        QCOMPARE(DecLista().SELECCIONACTUAL, QStringLiteral("2"));
        Escribir(t("txtBusqueda"), QStringLiteral("A"));
        Tabular();
        Clic(b("cmdBuscar"));
        QCOMPARE(columna(1), (QStringList{"AAA", "ABB"}));
        QCOMPARE(lbl("lblResultado")->text(),
                 QStringLiteral("Refererencia empieza por 'A' 2 declaración(es) seleccionada(s). "));
        QVERIFY(b("cmdTodos")->isEnabled());
        // A bad date leaves the conditions as they were.
        Clic(b("cmdBuscar"));
        clicCelda(1, 2);
        MensajeSeam::limpiar();
        Escribir(t("txtBusqueda"), QStringLiteral("31022010"));
        MensajeSeam::setNextAnswer(vb::OK);
        Tabular();
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro().first().texto, Texto(kIdFechaNoValida));
        QCOMPARE(MensajeSeam::registro().first().titulo, Texto(kIdErrorIntroduccionFecha));
        const auto& tabla = DecLista().TABLASELECCION;
        QVERIFY(!tabla || std::none_of(tabla->cbegin(), tabla->cend(), [](const cCriterio& c) {
                    return c.CAMPOSELECCION == QLatin1String("3");
                }));
        QCOMPARE(DecLista().SELECCIONACTUAL, QStringLiteral("3"));
        // Todos: no conditions, by code, the newest selected.
        Clic(b("cmdTodos"));
        QCOMPARE(DecLista().BUSQUEDA, QStringLiteral("N"));
        QCOMPARE(DecLista().ORDEN, 1);
        QCOMPARE(columna(1), (QStringList{"CCC", "ABB", "AAA"}));
        QCOMPARE(grid()->Row(), 1);
    }

    // The grid has a row for each return and the heading, no blank rows: a click below the
    // last row leaves the return marked and its commands on.
    void filasDeLaCuenta()
    {
        DeclaracionGuardada(QStringLiteral("AAA"), 20100315);
        DeclaracionGuardada(QStringLiteral("BBB"), 20090101);
        abrir();
        QCOMPARE(grid()->Rows(), 3);
        const int32_t marcada = DecLista().CSDE;
        QVERIFY(marcada != 0);
        const QRect ultima = grid()->visualRect(grid()->model()->index(1, 1));
        QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {}, ultima.center() + QPoint(0, 3 * ultima.height()));
        Procesar();
        QCOMPARE(DecLista().CSDE, marcada);
        for (const char* boton : {"cmdAceptar", "cmdCopiar", "cmdImprimir"})
            QVERIFY2(b(boton)->isEnabled(), boton);
        // Twenty returns: twenty rows and the heading.
        for (int i = 0; i < 18; ++i)
            DeclaracionGuardada(QStringLiteral("R%1").arg(i), 20100315);
        Clic(b("cmdTodos"));
        Clic(b("cmdBuscar"));
        Clic(b("cmdBuscar"));
        QCOMPARE(DecLista().NUMDECLASEL, 20);
        QCOMPARE(grid()->Rows(), 21);
    }

    // Nuevo needs no row: it stays on in the search state. Nothing found: the count of none
    // without conditions, the texts of the conditions alone with them.
    void nuevoYNadaEncontrado()
    {
        abrir();
        QCOMPARE(lbl("lblResultado")->text(), QStringLiteral("0 declaración(es) seleccionada(s) "));
        QCOMPARE(grid()->Rows(), 2);
        QVERIFY(b("cmdNuevo")->isEnabled());
        QVERIFY(!b("cmdAceptar")->isEnabled());
        Clic(b("cmdBuscar"));
        QCOMPARE(DecLista().BUSQUEDA, QStringLiteral("B"));
        QVERIFY(b("cmdNuevo")->isEnabled());
        clicCelda(1, 1);
        Escribir(t("txtBusqueda"), QStringLiteral("ZZ"));
        Tabular();
        QVERIFY(b("cmdNuevo")->isEnabled());
        Clic(b("cmdBuscar"));
        QCOMPARE(DecLista().NUMDECLASEL, 0);
        QCOMPARE(lbl("lblResultado")->text(), QStringLiteral("Refererencia empieza por 'ZZ' "));
        // Nuevo from the search state opens a new return.
        Clic(b("cmdBuscar"));
        Clic(b("cmdNuevo"));
        m_panel = m_prog->panel(QStringLiteral("FrmDeclaracion"));
        QVERIFY(m_panel);
        QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().modo), QStringLiteral("A"));
        QCOMPARE(Navegacion::RutaDec().lista.letras(), QStringLiteral("D"));
    }

    // The first click on the code, the date or the amount orders descending, on the reference
    // or the operation ascending; the arrow shows which.
    void direccionesDelOrden()
    {
        DeclaracionGuardada(QStringLiteral("BBB"), 20100315, QStringLiteral("T2"));
        DeclaracionGuardada(QStringLiteral("AAA"), 20090101, QStringLiteral("T4"));
        DeclaracionGuardada(QStringLiteral("CCC"), 20110101, QStringLiteral("T3"));
        abrir();
        const struct {
            int columna;
            const char* tipo;
            QStringList referencias;
        } casos[] = {{1, "ASC", {"AAA", "BBB", "CCC"}},
                     {0, "DESC", {"CCC", "AAA", "BBB"}},
                     {2, "DESC", {"CCC", "BBB", "AAA"}},
                     {4, "ASC", {"BBB", "CCC", "AAA"}},
                     {3, "DESC", {}}};
        for (const auto& caso : casos) {
            clicCabecera(caso.columna);
            QCOMPARE(int(DecLista().ORDEN), caso.columna + 1);
            QCOMPARE(DecLista().TIPOORDEN, QString::fromLatin1(caso.tipo));
            const bool asc = DecLista().TIPOORDEN == QLatin1String("ASC");
            QCOMPARE(c<QWidget>("picasc")->isVisible(), asc);
            QCOMPARE(c<QWidget>("picdesc")->isVisible(), !asc);
            if (!caso.referencias.isEmpty())
                QCOMPARE(columna(1), caso.referencias);
        }
        // The amounts, descending.
        QList<double> importes;
        for (const QString& i : columna(3))
            importes << QString(i).remove(QLatin1Char('.')).replace(QLatin1Char(','), QLatin1Char('.')).toDouble();
        QVERIFY(std::is_sorted(importes.crbegin(), importes.crend()));
        QCOMPARE(DecLista().CSDE, grid()->TextMatrix(1, 0).toInt());
    }

    // Each column's condition in its words, joined in the order the columns were searched.
    void textosDeLasCondiciones()
    {
        const int32_t primera = DeclaracionGuardada(QStringLiteral("ABC"), 20100315, QStringLiteral("T2"));
        DeclaracionGuardada(QStringLiteral("XYZ"), 20090101, QStringLiteral("T2"));
        abrir();
        Clic(b("cmdBuscar"));
        CondicionesEnCincoColumnas(grid(), t("txtBusqueda"), primera);
        Clic(b("cmdBuscar"));
        QCOMPARE(DecLista().NUMDECLASEL, 1);
        QCOMPARE(lbl("lblResultado")->text(),
                 QStringLiteral("Código de Declaración >= %1 , Refererencia empieza por 'AB' , "
                                "Fecha devengo >= '01/01/2010' , Total a ingresar >= 1 , "
                                "Operación empieza por 'T' 1 declaración(es) seleccionada(s). ")
                     .arg(primera));
        QCOMPARE(columna(1), QStringList{QStringLiteral("ABC")});
    }

    void eliminarHastaLaUltima()
    {
        const int32_t csde = DeclaracionGuardada(QStringLiteral("AAA"));
        abrir("mnuEliminarDeclaracion");
        QCOMPARE(m_panel->windowTitle(), Texto(kIdEliminarDeclaracion));
        QCOMPARE(b("cmdAceptar")->text(), Texto(kIdBotonEliminar));
        QVERIFY(!b("cmdNuevo")->isVisible() && !b("cmdCopiar")->isVisible());
        // No: nothing goes.
        MensajeSeam::setNextAnswer(vb::No);
        Clic(b("cmdAceptar"));
        QCOMPARE(MensajeSeam::registro().first().texto, Texto(kIdPreguntaEliminarDeclaracion)
                 + QString::number(csde) + Texto(kIdGuionEliminarDeclaracionLista)
                 + QStringLiteral("AAA") + Texto(kIdInterrogacionEliminarDeclaracion));
        QCOMPARE(MensajeSeam::registro().first().titulo, Texto(kIdBorradoDeclaracion));
        QCOMPARE(MensajeSeam::registro().first().botones, 292);
        QCOMPARE(Declaraciones(), 1);
        MensajeSeam::setNextAnswer(vb::Yes);
        Clic(b("cmdAceptar"));
        QCOMPARE(Declaraciones(), 0);
        QCOMPARE(grid()->Rows(), 2);
        QCOMPARE(lbl("lblResultado")->text(), Texto(kIdSinDatosCondicion));
        QVERIFY(!b("cmdAceptar")->isEnabled());
        Clic(b("cmdCancelar"));
        // The main window: no recent returns, open and delete off.
        QVERIFY(!m_prog->ventana()->findChild<QAction*>(QStringLiteral("d1"))->isVisible());
    }

    // The whole road of one return: new from the list, typed, accepted, found in the list,
    // opened, copied, deleted.
    void elCaminoEntero()
    {
        DeclaracionGuardada(QStringLiteral("PRIMERA"));
        abrir();
        Clic(b("cmdNuevo"));
        m_panel = m_prog->panel(QStringLiteral("FrmDeclaracion"));
        QVERIFY(m_panel);
        QCOMPARE(Navegacion::RutaDec().lista.letras(), QStringLiteral("D"));
        QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().modo), QStringLiteral("A"));
        EscribirFecha(t("txtfechad"), QStringLiteral("15032010"));
        EscribirYSalir(t("txtoperacion"), QStringLiteral("T2"));
        EscribirYSalir(t("txtreferencia"), QStringLiteral("NUEVA"));
        EscribirYSalir(t("txtmarca"), QStringLiteral("SEAT"));
        EscribirYSalir(t("txttipo"), QStringLiteral("6J"));
        EscribirYSalir(t("txtmodelo"), QStringLiteral("IBIZA"));
        EscribirYSalir(t("txtbastidor"), QStringLiteral("VSSZZZ6JZAR000001"));
        EscribirYSalir(n("txtclasificacion"), QStringLiteral("1000"));
        EscribirYSalir(n("txtcilindrada"), QStringLiteral("1598"));
        EscribirYSalir(n("txtbasei"), QStringLiteral("20000"));
        EscribirYSalir(t("txtdnisp"), Dni(12345678));
        EscribirYSalir(t("txtnombresp"), QStringLiteral("GARCIA LOPEZ JUAN"));
        EscribirYSalir(t("txtdomiciliosp"), QStringLiteral("MAYOR"));
        EscribirYSalir(n("txtcodpossp"), QStringLiteral("77001"));
        EscribirYSalir(n("txtcodmunsp"), QStringLiteral("1"));
        QTabBar* tab = c<QTabBar>("tabTerceros");
        QTest::mouseClick(tab, Qt::LeftButton, Qt::NoModifier, tab->tabRect(1).center());
        Procesar();
        EscribirYSalir(t("txtdnitr"), Dni(87654321));
        EscribirYSalir(t("txtnombretr"), QStringLiteral("AUTOS VELDO SA"));
        EscribirYSalir(t("txtdomiciliotr"), QStringLiteral("GASTEIZ"));
        EscribirYSalir(n("txtcodpostr"), QStringLiteral("77002"));
        EscribirYSalir(n("txtcodmuntr"), QStringLiteral("2"));
        Clic(b("cmdAceptar"));
        QVERIFY(MensajeSeam::registro().isEmpty());
        // Back in the list, the new return selected.
        m_panel = m_prog->panel(QStringLiteral("FrmDecLista"));
        QVERIFY(m_panel);
        QCOMPARE(Declaraciones(), 2);
        const int32_t nueva = DecLista().CSDE;
        QCOMPARE(grid()->TextMatrix(grid()->Row(), 0).toInt(), nueva);
        QCOMPARE(grid()->TextMatrix(grid()->Row(), 1), QStringLiteral("NUEVA"));
        QCOMPARE(grid()->TextMatrix(grid()->Row(), 3), QStringLiteral("950,00"));
        // Opened with a double click.
        DobleClicEnCelda(grid(), grid()->Row(), 1);
        m_panel = m_prog->panel(QStringLiteral("FrmDeclaracion"));
        QVERIFY(m_panel);
        QCOMPARE(DecDatos().CSDE, nueva);
        QCOMPARE(t("txtreferencia")->text(), QStringLiteral("NUEVA"));
        QVERIFY(!DecDatos().MODIFICADO);
        Clic(b("cmdCancelar"));
        // Copied.
        m_panel = m_prog->panel(QStringLiteral("FrmDecLista"));
        QVERIFY(m_panel);
        Clic(b("cmdCopiar"));
        m_panel = m_prog->panel(QStringLiteral("FrmDeclaracion"));
        QCOMPARE(DecDatos().CSDE, 0);
        Clic(b("cmdAceptar"));
        QVERIFY(MensajeSeam::registro().isEmpty());
        QCOMPARE(Declaraciones(), 3);
        m_panel = m_prog->panel(QStringLiteral("FrmDecLista"));
        QVERIFY(DecLista().CSDE > nueva);
        QCOMPARE(grid()->TextMatrix(grid()->Row(), 0).toInt(), DecLista().CSDE);
        Clic(b("cmdCancelar"));
        // Deleted from the delete list.
        abrir("mnuEliminarDeclaracion");
        MensajeSeam::setNextAnswer(vb::Yes);
        Clic(b("cmdAceptar"));
        QCOMPARE(Declaraciones(), 2);
    }

    // In Basque: the panel's title, headings and counter in Basque, dates as yyyy/mm/dd, amounts
    // the Spanish way.
    void enEuskera()
    {
        m_prog.reset();
        m_prog = std::make_unique<ProgramaDePrueba>(QStringLiteral("E"));
        DeclaracionGuardada(QStringLiteral("AAA"), 20110101, QStringLiteral("T4"));
        abrir();
        QVERIFY(m_panel);
        QCOMPARE(m_panel->windowTitle(), TextoFila(kIdAbrirDeclaracion + 10000));
        QVERIFY(m_panel->windowTitle() != TextoFila(kIdAbrirDeclaracion));
        QCOMPARE(grid()->TextMatrix(1, 2), QStringLiteral("2011/01/01"));
        QCOMPARE(grid()->TextMatrix(1, 3), QStringLiteral("712,50"));
        QVERIFY(MensajeSeam::registro().isEmpty());
    }
};

QTEST_MAIN(TestFrmDecLista)
#include "test_frmdeclista.moc"
#include "valores/EstadoNavegacion.h"
