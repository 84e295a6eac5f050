// Choosing the parties of a return from lists: the subject and the transmitter from the
// contributors (the subject refused when foreign, id 90), the presenter from the presenters,
// Cancelar, the criteria that survive a second trip, and the form that comes back.
#include "ApoyoDeclaracionPanel.h"
#include "catalogo/IdsCatalogo.h"

#include "aplicacion/MDIVeldo.h"
#include "catalogo/Catalogo.h"
#include "paneles/controles/cFlexGrid.h"
#include "paneles/dialogos/Mensaje.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/partes/cConSeleccion.h"
#include "servicios/Almacen.h"
#include "servicios/cContribSvr.h"
#include "servicios/cPresenSvr.h"

#include <QCheckBox>
#include <QLabel>
#include <tuple>
#include <QTabBar>

class TestSeleccion : public QObject, ControlesDePanel {
    Q_OBJECT

    std::unique_ptr<ProgramaDePrueba> m_prog;
    int32_t m_nacional = 0;
    int32_t m_extranjero = 0;

    void nueva()
    {
        m_prog->ventana()->ActualizarMenus();
        Comando(*m_prog, "mnuNuevaDeclaracion");
        m_panel = m_prog->panel(QStringLiteral("FrmDeclaracion"));
    }
    // From the form to a list: the button, and the list that opens.
    void ir(const char* boton, const char* lista)
    {
        Clic(b(boton));
        m_panel = m_prog->panel(QString::fromLatin1(lista));
    }
    void volver()
    {
        m_panel = m_prog->panel(QStringLiteral("FrmDeclaracion"));
    }
    cFlexGrid* grid(const char* nombre) const { return c<cFlexGrid>(nombre); }
    void clicFila(cFlexGrid* g, int fila) { ClicEnCelda(g, fila, 1); }
    int filaDe(cFlexGrid* g, const QString& nombre) const
    {
        for (int f = 1; f < g->Rows(); ++f)
            if (g->TextMatrix(f, 1) == nombre)
                return f;
        return -1;
    }

private slots:
    void init()
    {
        m_prog = std::make_unique<ProgramaDePrueba>();
        ContribuyenteDePanel nacional;
        nacional.DNIC = Dni(22222222);
        nacional.NOMBREC = QStringLiteral("AGIRRE ZUBIA MIREN");
        m_nacional = GuardarEnAlmacen(nacional);
        ContribuyenteDePanel extranjero;
        extranjero.TIPODNI = QStringLiteral("N");
        extranjero.DNIC = QStringLiteral("X9876");
        extranjero.NOMBREC = QStringLiteral("DUPONT JEAN");
        extranjero.TIPODOMI = QStringLiteral("E");
        extranjero.PAIS = QStringLiteral("FRANCIA");
        extranjero.CODPROVC.clear();
        extranjero.NOMPROVC = QStringLiteral("PARIS");
        extranjero.CODPOSC = QStringLiteral("75002");
        extranjero.CODMUNC.clear();
        extranjero.NOMMUNC = QStringLiteral("PARIS");
        m_extranjero = GuardarEnAlmacen(extranjero);
        QVERIFY(m_nacional > 0 && m_extranjero > 0);
        MensajeSeam::limpiar();
    }
    void cleanup()
    {
        m_prog.reset();
        Procesar();
    }

    // The selection panels show their own pictures beside Aceptar and Cancelar, not those of
    // the lists; a click on PicCan goes back to the form as Cancelar does.
    void dibujosPropios()
    {
        NuevoPresentador(QStringLiteral("87654321X"), QStringLiteral("GESTORIA ARBELIA"));
        nueva();
        for (const auto& [boton, lista] : {std::pair{"cmdSujetoPasivo", "FrmConSeleccion"},
                                           std::pair{"CmdPresentador", "FrmPreSeleccion"}}) {
            ir(boton, lista);
            QVERIFY2(m_panel, lista);
            for (const char* propio : {"PicAce", "PicCan"})
                QVERIFY2(c<QLabel>(propio)->isVisible(), propio);
            for (const char* ajeno : {"PicDatos", "PicAtras", "PicEliminar", "PicCancelar"})
                QVERIFY2(!c<QLabel>(ajeno)->isVisible(), ajeno);
            // Each stands on the left part of its button, as the lists' pictures do.
            QVERIFY(c<QLabel>("PicAce")->geometry().intersects(b("cmdAceptar")->geometry()));
            QVERIFY(c<QLabel>("PicCan")->geometry().intersects(b("cmdCancelar")->geometry()));
            QTest::mouseClick(c<QLabel>("PicCan"), Qt::LeftButton);
            Procesar();
            volver();
            QVERIFY(m_panel);
            QCOMPARE(m_prog->paneles(), QStringList{QStringLiteral("FrmDeclaracion")});
        }
    }

    void sujetoElegido()
    {
        nueva();
        QVERIFY(b("cmdSujetoPasivo")->isEnabled());
        ir("cmdSujetoPasivo", "FrmConSeleccion");
        QVERIFY(m_panel);
        QCOMPARE(m_prog->paneles(), QStringList{QStringLiteral("FrmConSeleccion")});
        QCOMPARE(m_panel->windowTitle(), Texto(kIdListaSeleccionContribuyente));
        QCOMPARE(b("cmdAceptar")->text(), Texto(kIdBotonAceptar));
        QCOMPARE(b("cmdCancelar")->toolTip(), Texto(kIdVolverDatosDeclaracion));
        QVERIFY(!b("cmdNuevo")->isVisible());
        QCOMPARE(Navegacion::RutaDec().lista.letras(), QStringLiteral("T"));
        QCOMPARE(Navegacion::Letras(ConSeleccion().ENTRADA), QStringLiteral("S"));
        cFlexGrid* g = grid("flxContribuyentes");
        clicFila(g, filaDe(g, QStringLiteral("AGIRRE ZUBIA MIREN")));
        Clic(b("cmdAceptar"));
        volver();
        QVERIFY(m_panel);
        QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().entrada), QStringLiteral("S"));
        QCOMPARE(Navegacion::RutaDec().lista.letras(), QString());
        QCOMPARE(DecDatos().CSSU, m_nacional);
        QVERIFY(DecDatos().MODIFICADO);
        QCOMPARE(t("txtdnisp")->text(), Dni(22222222));
        QCOMPARE(t("txtnombresp")->text(), QStringLiteral("AGIRRE ZUBIA MIREN"));
        // The same one again: no change, but the form still reloads it.
        DecDatos().MODIFICADO = false;
        ir("cmdSujetoPasivo", "FrmConSeleccion");
        g = grid("flxContribuyentes");
        clicFila(g, filaDe(g, QStringLiteral("AGIRRE ZUBIA MIREN")));
        Clic(b("cmdAceptar"));
        QVERIFY(!DecDatos().MODIFICADO);
        QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().entrada), QStringLiteral("S"));
    }

    void extranjeroRechazadoComoSujetoAceptadoComoTransmitente()
    {
        nueva();
        ir("cmdSujetoPasivo", "FrmConSeleccion");
        cFlexGrid* g = grid("flxContribuyentes");
        clicFila(g, filaDe(g, QStringLiteral("DUPONT JEAN")));
        MensajeSeam::setNextAnswer(vb::OK);
        Clic(b("cmdAceptar"));
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro().first().texto, Texto(kIdSujetoPasivoNoOficialNacional));
        QCOMPARE(MensajeSeam::registro().first().titulo, Texto(kIdListaSeleccionContribuyente));
        QVERIFY(m_prog->panel(QStringLiteral("FrmConSeleccion")));
        QCOMPARE(DecDatos().CSSU, 0);
        Clic(b("cmdCancelar"));
        volver();
        QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().entrada), QStringLiteral("P"));
        // As transmitter: taken, with its tab up.
        ir("cmdTransmitente", "FrmConSeleccion");
        QCOMPARE(Navegacion::Letras(ConSeleccion().ENTRADA), QStringLiteral("T"));
        g = grid("flxContribuyentes");
        clicFila(g, filaDe(g, QStringLiteral("DUPONT JEAN")));
        Clic(b("cmdAceptar"));
        volver();
        QCOMPARE(DecDatos().CSTRA, m_extranjero);
        QCOMPARE(DecDatos().TIPODOMITR, QStringLiteral("E"));
        QCOMPARE(c<QTabBar>("tabTerceros")->currentIndex(), 1);
        QVERIFY(c<QWidget>("FraTransmitente")->isVisible());
        QCOMPARE(t("txtpaistr")->text(), QStringLiteral("FRANCIA"));
    }

    void cancelarDejaElRegistro()
    {
        DeclaracionGuardada(QStringLiteral("R"));
        m_prog->ventana()->ActualizarMenus();
        Comando(*m_prog, "mnuAbrirDeclaracion");
        Clic(Control<QPushButton>(m_prog->panel(QStringLiteral("FrmDecLista")), "cmdAceptar"));
        volver();
        QCOMPARE(Navegacion::RutaDec().lista.letras(), QStringLiteral("D"));
        const QString dni = DecDatos().DNISP;
        ir("cmdTransmitente", "FrmConSeleccion");
        QCOMPARE(Navegacion::RutaDec().lista.letras(), QStringLiteral("DT"));
        Clic(b("cmdCancelar"));
        volver();
        QVERIFY(m_panel);
        QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().entrada), QStringLiteral("P"));
        QCOMPARE(Navegacion::RutaDec().lista.letras(), QStringLiteral("D"));
        QCOMPARE(DecDatos().DNISP, dni);
        QVERIFY(!DecDatos().MODIFICADO);
        // Back to the list from the form.
        Clic(b("cmdCancelar"));
        QVERIFY(m_prog->panel(QStringLiteral("FrmDecLista")));
    }

    void losCriteriosVuelvenEnLaSegundaVisita()
    {
        nueva();
        ir("cmdSujetoPasivo", "FrmConSeleccion");
        Clic(b("cmdBuscar"));
        cFlexGrid* g = grid("flxContribuyentes");
        clicFila(g, 1);  // the name column under edit
        Escribir(t("txtBusqueda"), QStringLiteral("AG"));
        Tabular();
        Clic(b("cmdBuscar"));
        QCOMPARE(Navegacion::Letras(ConSeleccion().CRITERIO), QStringLiteral("S"));
        QCOMPARE(ConSeleccion().NUMCONTRISEL, 1);
        Clic(b("cmdAceptar"));
        volver();
        QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().criterio), QStringLiteral("S"));
        ir("cmdTransmitente", "FrmConSeleccion");
        QCOMPARE(ConSeleccion().NUMCONTRISEL, 1);
        QCOMPARE(grid("flxContribuyentes")->TextMatrix(1, 1), QStringLiteral("AGIRRE ZUBIA MIREN"));
        Clic(b("cmdCancelar"));
    }

    // Cancelar carries CRITERIO back; Todos clears it, and so does a new return: the next
    // trip then finds every contributor.
    void criterioHastaQueElFormularioLoBorra()
    {
        const auto buscarAG = [this] {
            Clic(b("cmdBuscar"));
            clicFila(grid("flxContribuyentes"), 1);
            Escribir(t("txtBusqueda"), QStringLiteral("AG"));
            Tabular();
            Clic(b("cmdBuscar"));
            QCOMPARE(ConSeleccion().NUMCONTRISEL, 1);
        };
        nueva();
        ir("cmdSujetoPasivo", "FrmConSeleccion");
        QCOMPARE(ConSeleccion().NUMCONTRISEL, 2);
        buscarAG();
        Clic(b("cmdCancelar"));
        volver();
        QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().criterio), QStringLiteral("S"));
        QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().entrada), QStringLiteral("P"));
        ir("cmdTransmitente", "FrmConSeleccion");
        QCOMPARE(ConSeleccion().NUMCONTRISEL, 1);
        Clic(b("cmdTodos"));
        QCOMPARE(Navegacion::Letras(ConSeleccion().CRITERIO), QString());
        QCOMPARE(ConSeleccion().NUMCONTRISEL, 2);
        Clic(b("cmdCancelar"));
        volver();
        QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().criterio), QString());
        ir("cmdSujetoPasivo", "FrmConSeleccion");
        QCOMPARE(ConSeleccion().NUMCONTRISEL, 2);
        buscarAG();
        Clic(b("cmdCancelar"));
        volver();
        QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().criterio), QStringLiteral("S"));
        // The form closed and a new return: no criteria on the next trip.
        Clic(b("cmdCancelar"));
        QVERIFY(m_prog->paneles().isEmpty());
        nueva();
        QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().criterio), QString());
        ir("cmdSujetoPasivo", "FrmConSeleccion");
        QCOMPARE(ConSeleccion().NUMCONTRISEL, 2);
        Clic(b("cmdCancelar"));
        QVERIFY(MensajeSeam::registro().isEmpty());
    }

    // An empty store: both selection panels list nothing, Aceptar stays off (its picture and
    // the Enter key with it), and only Cancelar leaves. The form opens while the store still
    // has its parties; another seat then deletes them all.
    void almacenVacio()
    {
        m_prog.reset();
        Procesar();
        m_prog = std::make_unique<ProgramaDePrueba>();
        const int32_t csco = NuevoContribuyente(Dni(44444444), QStringLiteral("URIARTE ANE"));
        const int32_t cspr = NuevoPresentador(QStringLiteral("87654321X"), QStringLiteral("GESTORIA ARBELIA"));
        nueva();
        QVERIFY(Almacen<cContribSvr>().BorrarContribuyente(csco));
        for (const auto& [boton, lista, rejilla] :
             {std::tuple{"cmdSujetoPasivo", "FrmConSeleccion", "flxContribuyentes"},
              std::tuple{"CmdPresentador", "FrmPreSeleccion", "flxPresentadores"}}) {
            const QString antes = Navegacion::RutaDec().lista.letras();
            // The form back from the first trip counts the presenter still there.
            if (QByteArrayView(lista) == "FrmPreSeleccion")
                QVERIFY(Almacen<cPresenSvr>().BorrarPresentador(cspr));
            ir(boton, lista);
            QVERIFY2(m_panel, lista);
            QVERIFY(!b("cmdAceptar")->isEnabled());
            QVERIFY(b("cmdCancelar")->isEnabled());
            QTest::mouseClick(c<QLabel>("PicAce"), Qt::LeftButton);
            ClicEnCelda(grid(rejilla), 1, 1);
            QTest::keyClick(grid(rejilla), Qt::Key_Return);
            Procesar();
            QCOMPARE(m_prog->paneles(), QStringList{QString::fromLatin1(lista)});
            Clic(b("cmdCancelar"));
            volver();
            QVERIFY(m_panel);
            QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().entrada), QStringLiteral("P"));
            QCOMPARE(Navegacion::RutaDec().lista.letras(), antes);
            QCOMPARE(DecDatos().CSSU, 0);
            QCOMPARE(DecDatos().CSPR, 0);
        }
        QVERIFY(MensajeSeam::registro().isEmpty());
    }

    void presentador()
    {
        const int32_t cspr = NuevoPresentador(QStringLiteral("87654321X"), QStringLiteral("GESTORIA ARBELIA"), QStringLiteral("NUEVA"));
        nueva();
        QVERIFY(b("CmdPresentador")->isEnabled());
        ir("CmdPresentador", "FrmPreSeleccion");
        QVERIFY(m_panel);
        QCOMPARE(m_panel->windowTitle(), Texto(kIdListaSeleccionPresentador));
        QCOMPARE(grid("flxPresentadores")->Cols(), 5);
        Clic(b("cmdAceptar"));
        volver();
        QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().entrada), QStringLiteral("P"));
        QCOMPARE(DecDatos().CSPR, cspr);
        QCOMPARE(t("txtnombrepr")->text(), QStringLiteral("GESTORIA ARBELIA"));
        QCOMPARE(t("txtdnipr")->text(), QStringLiteral("87654321X"));
        QCheckBox* con = c<QCheckBox>("chkConPresentador");
        QVERIFY(con->isChecked() && con->isEnabled());
        // Unticked: the presenter goes.
        QTest::mouseClick(con, Qt::LeftButton, Qt::NoModifier, QPoint(6, con->height() / 2));
        Procesar();
        QCOMPARE(DecDatos().CSPR, 0);
        QCOMPARE(t("txtnombrepr")->text(), QString());
        QVERIFY(!con->isEnabled());
    }

    // The presenters' list keeps no criteria from one trip to the next.
    void presentadorSinCriteriosEnLaSegundaVisita()
    {
        NuevoPresentador(Dni(87654321), QStringLiteral("GESTORIA ARBELIA"));
        NuevoPresentador(Dni(76543210), QStringLiteral("ASESORIA VELDO"));
        nueva();
        ir("CmdPresentador", "FrmPreSeleccion");
        QCOMPARE(grid("flxPresentadores")->TextMatrix(2, 1).isEmpty(), false);
        Clic(b("cmdBuscar"));
        ClicEnCelda(grid("flxPresentadores"), 1, 1);
        Escribir(t("txtBusqueda"), QStringLiteral("GES"));
        Tabular();
        Clic(b("cmdBuscar"));
        QCOMPARE(grid("flxPresentadores")->TextMatrix(1, 1), QStringLiteral("GESTORIA ARBELIA"));
        QVERIFY(grid("flxPresentadores")->TextMatrix(2, 1).isEmpty());
        Clic(b("cmdAceptar"));
        volver();
        ir("CmdPresentador", "FrmPreSeleccion");
        QVERIFY(!grid("flxPresentadores")->TextMatrix(2, 1).isEmpty());
        Clic(b("cmdCancelar"));
        QVERIFY(MensajeSeam::registro().isEmpty());
    }
};

QTEST_MAIN(TestSeleccion)
#include "test_seleccion.moc"
#include "valores/EstadoNavegacion.h"
