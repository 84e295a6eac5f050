// The declaration form driven as a user drives it: opened from the main menu and the recent
// entries, the date of accrual and the operations it brings, the rate, marks and reductions,
// the amounts the Spanish way, the parties typed by number, Aceptar, Cancelar and the copy.
#include "ApoyoDeclaracionPanel.h"
#include "catalogo/IdsCatalogo.h"

#include "aplicacion/MDIVeldo.h"
#include "aplicacion/Navegacion.h"
#include "catalogo/Catalogo.h"
#include "comun/OtraConexion.h"
#include "paneles/declaracion/FrmDeclaracion.h"
#include "paneles/dialogos/Mensaje.h"
#include "plataforma/General.h"
#include "plataforma/Proceso.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/nucleo/CEntrada.h"
#include "servicios/Almacen.h"
#include "servicios/cDeclaSvr.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QMenu>
#include <QRadioButton>
#include <QTabBar>
#include <stdexcept>

class TestFrmDeclaracion : public QObject, ControlesDeDeclaracion {
    Q_OBJECT

    // The vehicle of a valid return, typed.
    void vehiculo()
    {
        EscribirYSalir(t("txtmarca"), QStringLiteral("SEAT"));
        EscribirYSalir(t("txttipo"), QStringLiteral("6J"));
        EscribirYSalir(t("txtmodelo"), QStringLiteral("IBIZA"));
        EscribirYSalir(t("txtbastidor"), QStringLiteral("VSSZZZ6JZAR000001"));
        EscribirYSalir(n("txtclasificacion"), QStringLiteral("1000"));
        EscribirYSalir(n("txtcilindrada"), QStringLiteral("1598"));
    }

private slots:
    void init() { arrancar(); }
    void cleanup() { cerrar(); }

    void nuevaDesdeElMenu()
    {
        nueva();
        QVERIFY(m_panel);
        QCOMPARE(m_prog->paneles(), QStringList{QStringLiteral("FrmDeclaracion")});
        QVERIFY(MenuApagado(*m_prog, "mnuDeclaracion"));
        QCOMPARE(m_panel->windowTitle(), QStringLiteral("Datos Declaración"));
        QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().entrada), QStringLiteral("A"));
        QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().modo), QStringLiteral("A"));
        QCOMPARE(Navegacion::RutaDec().lista.letras(), QString());
        QCOMPARE(t("txtfechad")->displayText(), QStringLiteral("__/__/____"));
        QCOMPARE(cmb()->count(), 0);
        QCOMPARE(Foco(), t("txtfechad"));
        for (const char* f : {"FraDeclaracion", "FraPresentador", "FraSujetoPasivo", "fraBotones"})
            QVERIFY2(c<QWidget>(f)->isVisible(), f);
        QVERIFY(!c<QWidget>("FraTransmitente")->isVisible());
        QVERIFY(cerrado(n("txttipoimp")));
        QVERIFY(cerrado(n("txtcuota")) && cerrado(n("txttotal")) && n("txttotal")->fontbold());
        QCOMPARE(t("txtviasp")->text(), QStringLiteral("CL"));
        QCOMPARE(t("txtnomprovsp")->text(), QStringLiteral("Arbelia"));
        QVERIFY(abierto(n("txtcodmunsp")) && cerrado(t("txtnommunsp")));
        // No presenter: the box is off; no parties stored: the lists' buttons are off.
        QVERIFY(!k("chkConPresentador")->isEnabled());
        QVERIFY(!b("cmdSujetoPasivo")->isEnabled());
        QVERIFY(!b("CmdPresentador")->isEnabled());
        QVERIFY(b("cmdImprimir")->isEnabled());
        // Cancel closes with no question and the commands come back.
        Clic(b("cmdCancelar"));
        QVERIFY(m_prog->paneles().isEmpty());
        QVERIFY(!MenuApagado(*m_prog, "mnuDeclaracion"));
        QVERIFY(MensajeSeam::registro().isEmpty());
    }

    void fechaYOperacionYImportes()
    {
        nueva();
        // Without a date the operation does nothing.
        EscribirYSalir(t("txtoperacion"), QStringLiteral("T2"));
        QCOMPARE(DecDatos().OPERACION, QString());
        EscribirFecha(t("txtfechad"), QStringLiteral("15032010"));
        QCOMPARE(DecDatos().FECHAD, 20100315);
        QVERIFY(DecDatos().MODIFICADO);
        QVERIFY(cmb()->count() > 5);
        EscribirYSalir(t("txtoperacion"), QStringLiteral("T2"));
        QCOMPARE(DecDatos().OPERACION, QStringLiteral("T2"));
        QVERIFY(cmb()->currentText().startsWith(QStringLiteral("Emisiones de CO2 de más de 120")));
        QCOMPARE(DecDatos().TIPOIMP, 4.75);
        QVERIFY(cerrado(n("txttipoimp")));
        QCOMPARE(n("txttipoimp")->text(), QStringLiteral("4,75"));
        EscribirYSalir(n("txtbasei"), QStringLiteral("15000"));
        QCOMPARE(DecDatos().BASEI.centimos(), 1500000.0);
        QCOMPARE(n("txtbasei")->text(), QStringLiteral("15.000,00"));
        QCOMPARE(n("txtcuota")->text(), QStringLiteral("712,50"));
        QCOMPARE(n("txttotal")->text(), QStringLiteral("712,50"));
        // A reduction of 50 %: the base halves.
        clicCasilla(k("chkReduccion1"));
        QCOMPARE(DecDatos().REDUCCION, QStringLiteral("X"));
        QCOMPARE(n("txtBaseIReducida")->text(), QStringLiteral("7.500,00"));
        QCOMPARE(n("txtcuota")->text(), QStringLiteral("356,25"));
        QVERIFY(MensajeSeam::registro().isEmpty());
    }

    void laFechaQueQuitaLaOperacion()
    {
        nueva();
        EscribirFecha(t("txtfechad"), QStringLiteral("15032006"));
        EscribirYSalir(t("txtoperacion"), QStringLiteral("TN"));
        EscribirYSalir(n("txtbasei"), QStringLiteral("1000"));
        QCOMPARE(DecDatos().TIPOIMP, 12.0);
        QCOMPARE(n("txtcuota")->text(), QStringLiteral("120,00"));
        // TN does not exist in 2010: the operation goes, the amounts and, on a new return,
        // the base too.
        EscribirFecha(t("txtfechad"), QStringLiteral("15032010"));
        QCOMPARE(DecDatos().OPERACION, QString());
        QCOMPARE(t("txtoperacion")->text(), QString());
        QCOMPARE(cmb()->currentIndex(), -1);
        QCOMPARE(DecDatos().BASEI.centimos(), 0.0);
        QCOMPARE(n("txtcuota")->text(), QStringLiteral("0,00"));
    }

    void fechaVaciaYFechaMala()
    {
        nueva();
        EscribirFecha(t("txtfechad"), QStringLiteral("15032010"));
        // Left empty: the stored date stays and nothing is asked.
        EscribirFecha(t("txtfechad"), QString());
        QCOMPARE(DecDatos().FECHAD, 20100315);
        QVERIFY(MensajeSeam::registro().isEmpty());
        // A bad date: message 169 under title 131, the old date back, the focus on the field.
        MensajeSeam::setNextAnswer(vb::OK);
        EscribirFecha(t("txtfechad"), QStringLiteral("31022010"));
        QCOMPARE(mensajes(), QStringList{Texto(kIdFechaDevengoIncorrecta)});
        QCOMPARE(MensajeSeam::registro().first().titulo, Texto(kIdErrorIntroduccionDatos));
        QCOMPARE(DecDatos().FECHAD, 20100315);
        Procesar();
        QCOMPARE(t("txtfechad")->text(), QStringLiteral("15/03/2010"));
        QCOMPARE(Foco(), t("txtfechad"));
        // Out of the program's limits.
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::OK);
        EscribirFecha(t("txtfechad"), QStringLiteral("01011990"));
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QVERIFY(MensajeSeam::registro().first().texto.startsWith(Texto(kIdFechaDevengoAnteriorA)));
        QCOMPARE(DecDatos().FECHAD, 20100315);
    }

    void listaSinEleccion()
    {
        nueva();
        EscribirFecha(t("txtfechad"), QStringLiteral("15032010"));
        // Leaving the list with nothing chosen: message 130 under 131; back to the code.
        Entrar(cmb());
        MensajeSeam::setNextAnswer(vb::OK);
        Tabular();
        QCOMPARE(mensajes(), QStringList{Texto(kIdSeleccionarCodigoLista)});
        QCOMPARE(MensajeSeam::registro().first().titulo, Texto(kIdErrorIntroduccionDatos));
        QCOMPARE(Foco(), t("txtoperacion"));
        // Choosing in the list writes the code.
        MensajeSeam::limpiar();
        const int t4 = cmb()->findText(QStringLiteral("Emisiones de CO2 desde 200 g/km: tipo 14,75 %"));
        QVERIFY(t4 >= 0);
        cmb()->setCurrentIndex(t4);
        emit cmb()->activated(t4);
        Procesar();
        QCOMPARE(DecDatos().OPERACION, QStringLiteral("T4"));
        QCOMPARE(t("txtoperacion")->text(), QStringLiteral("T4"));
        QCOMPARE(DecDatos().TIPOIMP, 14.75);
        QVERIFY(MensajeSeam::registro().isEmpty());
    }

    void tipoLibre()
    {
        nueva();
        EscribirFecha(t("txtfechad"), QStringLiteral("15032010"));
        EscribirYSalir(t("txtoperacion"), QStringLiteral("TL"));
        QVERIFY(abierto(n("txttipoimp")));
        EscribirYSalir(n("txtbasei"), QStringLiteral("1000"));
        EscribirYSalir(n("txttipoimp"), QStringLiteral("10"));
        QCOMPARE(DecDatos().TIPOIMP, 10.0);
        QCOMPARE(n("txtcuota")->text(), QStringLiteral("100,00"));
        // Out of the limits: message 140 + 141, the rate stays, the focus comes back.
        MensajeSeam::setNextAnswer(vb::OK);
        EscribirYSalir(n("txttipoimp"), QStringLiteral("20"));
        QCOMPARE(mensajes(), QStringList{Texto(kIdTipoImpositivoMenorQue) + QStringLiteral("0")
                                         + Texto(kIdTipoImpositivoNiMayorQue)
                                         + QStringLiteral("14,75")});
        QCOMPARE(DecDatos().TIPOIMP, 10.0);
        QCOMPARE(n("txttipoimp")->value(), 10.0);
        QCOMPARE(Foco(), n("txttipoimp"));
    }

    void exentoYReducciones()
    {
        nueva();
        EscribirFecha(t("txtfechad"), QStringLiteral("15032008"));
        EscribirYSalir(t("txtoperacion"), QStringLiteral("T3"));
        EscribirYSalir(n("txtbasei"), QStringLiteral("1000"));
        // Before 2009 only the first reduction exists.
        QVERIFY(k("chkReduccion1")->isEnabled());
        QVERIFY(!k("chkReduccion2")->isEnabled());
        EscribirFecha(t("txtfechad"), QStringLiteral("15032009"));
        QVERIFY(k("chkReduccion2")->isEnabled());
        clicCasilla(k("chkReduccion2"));
        QCOMPARE(DecDatos().REDUCCION, QStringLiteral("Y"));
        // Back to 2008: the second reduction is dropped from the record.
        EscribirFecha(t("txtfechad"), QStringLiteral("15122008"));
        QCOMPARE(DecDatos().REDUCCION, QString());
        QVERIFY(!k("chkReduccion2")->isChecked() && !k("chkReduccion2")->isEnabled());
        // Exempt: no rate, no tax, no reductions; the base stays.
        clicCasilla(k("chkexento"));
        QCOMPARE(DecDatos().EXENTO, QStringLiteral("X"));
        QCOMPARE(DecDatos().TIPOIMP, 0.0);
        QCOMPARE(DecDatos().CUOTA.centimos(), 0.0);
        QCOMPARE(DecDatos().BASEI.centimos(), 100000.0);
        QVERIFY(!k("chkReduccion1")->isEnabled());
        // Not subject takes the place of exempt.
        clicCasilla(k("chknosujeto"));
        QCOMPARE(DecDatos().NOSUJETO, QStringLiteral("X"));
        QCOMPARE(DecDatos().EXENTO, QString());
        QVERIFY(!k("chkexento")->isChecked());
        // The engine: the rate is not touched.
        clicCasilla(c<QRadioButton>("optDiesel"));
        QCOMPARE(DecDatos().MOTOR, QStringLiteral("D"));
    }

    void sujetoPorDni()
    {
        nueva();
        // A number without its right letter: message 330, the box empty again.
        MensajeSeam::setNextAnswer(vb::OK);
        EscribirYSalir(t("txtdnisp"), QStringLiteral("12345678A"));
        QCOMPARE(mensajes(), QStringList{Texto(kIdDniCifErroneoODigitoControl)});
        QCOMPARE(t("txtdnisp")->text(), QString());
        QCOMPARE(DecDatos().DNISP, QString());
        // A stored foreign contributor cannot be the subject: message 167.
        ContribuyenteDePanel extranjero;
        extranjero.TIPODNI = QStringLiteral("O");
        extranjero.DNIC = Dni(11111111);
        extranjero.TIPODOMI = QStringLiteral("E");
        extranjero.PAIS = QStringLiteral("FRANCIA");
        extranjero.CODPROVC.clear();
        extranjero.NOMPROVC = QStringLiteral("PARIS");
        extranjero.CODPOSC = QStringLiteral("75002");
        extranjero.CODMUNC.clear();
        extranjero.NOMMUNC = QStringLiteral("PARIS");
        QVERIFY(GuardarEnAlmacen(extranjero) > 0);
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::OK);
        EscribirYSalir(t("txtdnisp"), Dni(11111111));
        QCOMPARE(mensajes(), QStringList{Texto(kIdDniOficialDomicilioNacional)});
        QCOMPARE(t("txtdnisp")->text(), QString());
        // A stored national one is loaded.
        ContribuyenteDePanel nacional;
        nacional.DNIC = Dni(22222222);
        nacional.NOMBREC = QStringLiteral("PEREZ LOPEZ JUAN");
        const int32_t codigo = GuardarEnAlmacen(nacional);
        MensajeSeam::limpiar();
        EscribirYSalir(t("txtdnisp"), Dni(22222222));
        QVERIFY(MensajeSeam::registro().isEmpty());
        QCOMPARE(DecDatos().CSSU, codigo);
        QCOMPARE(t("txtnombresp")->text(), QStringLiteral("PEREZ LOPEZ JUAN"));
        QCOMPARE(t("txtviaauxsp")->text(), QStringLiteral("Avenida"));
        QCOMPARE(t("txtnommunsp")->text(), QStringLiteral("VELDORRETA"));
        // An unknown number over a stored contributor: question 168; No keeps the party.
        MensajeSeam::setNextAnswer(vb::No);
        EscribirYSalir(t("txtdnisp"), Dni(33333333));
        QCOMPARE(mensajes(), QStringList{Texto(kIdPreguntaCargarNuevoContribuyente)});
        QCOMPARE(MensajeSeam::registro().first().botones, 292);
        QCOMPARE(DecDatos().CSSU, codigo);
        QCOMPARE(t("txtdnisp")->text(), Dni(22222222));
        // Yes: a party of its own, in the home province.
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::Yes);
        EscribirYSalir(t("txtdnisp"), Dni(33333333));
        QCOMPARE(DecDatos().CSSU, 0);
        QCOMPARE(DecDatos().DNISP, Dni(33333333));
        QCOMPARE(DecDatos().NOMBRESP, QString());
        QCOMPARE(DecDatos().CODPROVSP, QStringLiteral("77"));
        QCOMPARE(DecDatos().VIASP, QStringLiteral("CL"));
    }

    void unaParteEnAmbosLados()
    {
        ContribuyenteDePanel nacional;
        nacional.DNIC = Dni(22222222);
        const int32_t codigo = GuardarEnAlmacen(nacional);
        nueva();
        EscribirYSalir(t("txtdnisp"), Dni(22222222));
        // The transmitter's number typed on its tab: the same party on both tabs, the boxes off.
        pestana(1);
        QVERIFY(c<QWidget>("FraTransmitente")->isVisible());
        QCOMPARE(Foco(), t("txtdnitr"));
        EscribirYSalir(t("txtdnitr"), Dni(22222222));
        QCOMPARE(DecDatos().CSTRA, codigo);
        QCOMPARE(t("txtnombretr")->text(), t("txtnombresp")->text());
        QVERIFY(!k("chktipodnitr")->isEnabled());
        QVERIFY(!k("chktipodomitr")->isEnabled());
        // A municipality typed on one tab shows on the other.
        EscribirYSalir(n("txtcodmuntr"), QStringLiteral("4"));
        QCOMPARE(DecDatos().CODMUNTR, QStringLiteral("4"));
        QCOMPARE(DecDatos().CODMUNSP, QStringLiteral("4"));
        QCOMPARE(t("txtnommunsp")->text(), QStringLiteral("MENDIOLATZA"));
    }

    void transmitenteExtranjero()
    {
        nueva();
        pestana(1);
        QVERIFY(k("chktipodnitr")->isEnabled());
        clicCasilla(k("chktipodnitr"));
        QCOMPARE(DecDatos().TIPODNITR, QStringLiteral("N"));
        // A foreign number is not checked.
        EscribirYSalir(t("txtdnitr"), QStringLiteral("X1234"));
        QVERIFY(MensajeSeam::registro().isEmpty());
        QCOMPARE(DecDatos().DNITR, QStringLiteral("X1234"));
        clicCasilla(k("chktipodomitr"));
        QCOMPARE(DecDatos().TIPODOMITR, QStringLiteral("E"));
        QCOMPARE(DecDatos().CODPROVTR, QString());
        QVERIFY(abierto(t("txtpaistr")) && abierto(t("txtnomprovtr")) && abierto(t("txtnommuntr")));
        QVERIFY(cerrado(n("txtcodprovtr")) && cerrado(n("txtcodmuntr")));
        QVERIFY(!b("cmdProvinciatr")->isEnabled());
        EscribirYSalir(t("txtpaistr"), QStringLiteral("FRANCIA"));
        QCOMPARE(DecDatos().PAISTR, QStringLiteral("FRANCIA"));
    }

    void cancelarSaltaLaValidacion()
    {
        nueva();
        Escribir(t("txtdnisp"), QStringLiteral("12345678A"));
        // The mouse on Cancelar: the bad number is left without a message.
        QTest::mousePress(b("cmdCancelar"), Qt::LeftButton, Qt::NoModifier, b("cmdCancelar")->rect().center());
        QTest::mouseRelease(b("cmdCancelar"), Qt::LeftButton, Qt::NoModifier, b("cmdCancelar")->rect().center());
        Procesar();
        QVERIFY(MensajeSeam::registro().isEmpty());
        QVERIFY(m_prog->paneles().isEmpty());
    }

    void aceptarUnaNuevaValida()
    {
        nueva();
        EscribirFecha(t("txtfechad"), QStringLiteral("15032010"));
        EscribirYSalir(t("txtoperacion"), QStringLiteral("T2"));
        EscribirYSalir(t("txtreferencia"), QStringLiteral("REF-9"));
        vehiculo();
        EscribirYSalir(n("txtbasei"), QStringLiteral("15000"));
        EscribirYSalir(t("txtdnisp"), Dni(12345678));
        EscribirYSalir(t("txtnombresp"), QStringLiteral("GARCIA LOPEZ JUAN"));
        EscribirYSalir(t("txtdomiciliosp"), QStringLiteral("MAYOR"));
        EscribirYSalir(n("txtcodpossp"), QStringLiteral("77001"));
        EscribirYSalir(n("txtcodmunsp"), QStringLiteral("1"));
        // Accept with the transmitter missing: rule 19/20's message and its tab with the focus.
        MensajeSeam::setNextAnswer(vb::OK);
        Clic(b("cmdAceptar"));
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro().first().titulo, QStringLiteral("Datos Declaración"));
        QVERIFY(c<QWidget>("FraTransmitente")->isVisible());
        Procesar();
        QCOMPARE(Foco(), t("txtdnitr"));
        QCOMPARE(Declaraciones(), 0);
        MensajeSeam::limpiar();
        EscribirYSalir(t("txtdnitr"), Dni(87654321));
        EscribirYSalir(t("txtnombretr"), QStringLiteral("AUTOS VELDO SA"));
        EscribirYSalir(t("txtdomiciliotr"), QStringLiteral("GASTEIZ"));
        EscribirYSalir(n("txtcodpostr"), QStringLiteral("77002"));
        EscribirYSalir(n("txtcodmuntr"), QStringLiteral("2"));
        Clic(b("cmdAceptar"));
        QCOMPARE(mensajes(), QStringList());
        QCOMPARE(Declaraciones(), 1);
        QVERIFY(m_prog->paneles().isEmpty());
        QCOMPARE(ValorAlmacenado(QStringLiteral("SELECT TOTAL FROM DECLARACIONES")).toDouble(), 71250.0);
        // The main window shows it among the recent returns.
        QAction* d1 = m_prog->ventana()->findChild<QAction*>(QStringLiteral("d1"));
        QVERIFY(d1->isVisible());
        QVERIFY(d1->text().endsWith(QStringLiteral(" - REF-9")));
    }

    void abrirDesdeRecientesYAceptarSinCambios()
    {
        const int32_t csde = DeclaracionGuardada(QStringLiteral("REF-1"));
        m_prog->ventana()->ActualizarMenus();
        Comando(*m_prog, "d1");
        m_panel = m_prog->panel(QStringLiteral("FrmDeclaracion"));
        QVERIFY(m_panel);
        QCOMPARE(DecDatos().CSDE, csde);
        QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().modo), QStringLiteral("C"));
        QVERIFY(!DecDatos().MODIFICADO);
        QCOMPARE(t("txtfechad")->text(), QStringLiteral("15/03/2010"));
        QCOMPARE(t("txtreferencia")->text(), QStringLiteral("REF-1"));
        QCOMPARE(t("txtoperacion")->text(), QStringLiteral("T2"));
        QVERIFY(cmb()->currentText().startsWith(QStringLiteral("Emisiones de CO2 de más de 120")));
        QCOMPARE(n("txtbasei")->text(), QStringLiteral("15.000,00"));
        QCOMPARE(n("txttotal")->text(), QStringLiteral("712,50"));
        QCOMPARE(t("txtnommuntr")->text(), QStringLiteral("VELDORRETA"));
        // Unchanged: Aceptar calls no store. A record that would now fail validation and a
        // reference store that is gone show it: no message, no failure.
        DecDatos().MARCA.clear();
        const QString lec = mdblec;
        mdblec = QStringLiteral("/nonexistent/VELDOLEC.mdb");
        Clic(b("cmdAceptar"));
        mdblec = lec;
        QVERIFY(MensajeSeam::registro().isEmpty());
        QVERIFY(ProcesoSeam::avisos().isEmpty());
        QVERIFY(m_prog->paneles().isEmpty());
        QCOMPARE(ValorAlmacenado(QStringLiteral("SELECT MARCA FROM DECLARACIONES")).toString(),
                 QStringLiteral("SEAT"));
    }

    void laCopiaEsUnaNueva()
    {
        const int32_t csde = DeclaracionGuardada(QStringLiteral("REF-1"));
        abrirGuardada(csde, QStringLiteral("D"));
        QVERIFY(DecDatos().MODIFICADO);
        QCOMPARE(DecDatos().CSDE, 0);
        QCOMPARE(t("txtreferencia")->text(), QStringLiteral("REF-1"));
        Clic(b("cmdAceptar"));
        QCOMPARE(mensajes(), QStringList());
        QCOMPARE(Declaraciones(), 2);
        QVERIFY(m_prog->paneles().isEmpty());
    }

    void enEuskera()
    {
        m_prog.reset();
        m_prog = std::make_unique<ProgramaDePrueba>(QStringLiteral("E"));
        nueva();
        QCOMPARE(m_panel->windowTitle(), QStringLiteral("Aitorpenaren datuak"));
        QCOMPARE(t("txtfechad")->displayText(), QStringLiteral("____/__/__"));
        EscribirFecha(t("txtfechad"), QStringLiteral("20100315"));
        QCOMPARE(DecDatos().FECHAD, 20100315);
        EscribirYSalir(t("txtoperacion"), QStringLiteral("T2"));
        QVERIFY(cmb()->currentText().startsWith(QStringLiteral("CO2 isurpenak 120 g/km baino gehiago")));
        EscribirYSalir(n("txtbasei"), QStringLiteral("1234,5"));
        QCOMPARE(n("txtbasei")->text(), QStringLiteral("1.234,50"));
    }

    // A stored contributor who is the subject of another return, typed as transmitter: the
    // national/foreign boxes stay off; one who is subject of none leaves them on.
    void transmitenteSujetoDeOtraNoSeCambia()
    {
        const int32_t sujeto = NuevoContribuyente(Dni(44444444), QStringLiteral("SUJETO DE OTRA"));
        NuevoContribuyente(Dni(55555555), QStringLiteral("SOLO TRANSMITENTE"));
        DeclaracionGuardada(QStringLiteral("OTRA"), 20100315, QStringLiteral("T2"), sujeto);
        nueva();
        pestana(1);
        EscribirYSalir(t("txtdnitr"), Dni(55555555));
        QCOMPARE(DecDatos().DECLASP, 0.0);
        QVERIFY(k("chktipodnitr")->isEnabled() && k("chktipodomitr")->isEnabled());
        EscribirYSalir(t("txtdnitr"), Dni(44444444));
        QCOMPARE(DecDatos().CSTRA, sujeto);
        QVERIFY(DecDatos().DECLASP > 0);
        QVERIFY(!k("chktipodnitr")->isEnabled());
        QVERIFY(!k("chktipodomitr")->isEnabled());
        QVERIFY(MensajeSeam::registro().isEmpty());
    }

    // Another running copy saves the return while the form has it open: Aceptar writes
    // nothing over it and asks; No keeps what was typed, Yes shows the stored return, which
    // can then be edited and saved.
    void declaracionCambiadaEnOtraCopia()
    {
        const int32_t csde = DeclaracionGuardada(QStringLiteral("REF-1"));
        abrirGuardada(csde);
        QVERIFY(m_panel);
        QVERIFY(EnOtraConexion([csde] {
            std::optional<Declaracion> otra = Almacen<cDeclaSvr>().CargarDeclaracion(csde);
            if (!otra)
                throw std::runtime_error("no cargada");
            otra->REFERENCIA = QStringLiteral("OTRA");
            const Resultado<Declaracion> r = Almacen<cDeclaSvr>().GuardarDeclaracion(*otra);
            if (!r || r->CSDE != csde)
                throw std::runtime_error("no guardada");
        }));
        EscribirYSalir(t("txtreferencia"), QStringLiteral("MIA"));
        const QString pregunta = Texto(kIdDatosCambiadosDesdeApertura) + QStringLiteral("\n")
            + Texto(kIdPreguntaCargarDatosGuardados);
        const auto referencia = [] {
            return ValorAlmacenado(QStringLiteral("SELECT REFERENCIA FROM DECLARACIONES")).toString();
        };

        MensajeSeam::setNextAnswer(vb::No);
        Clic(b("cmdAceptar"));
        QCOMPARE(mensajes(), QStringList{pregunta});
        QCOMPARE(MensajeSeam::registro().first().botones, vb::YesNo + vb::Question + vb::DefaultButton2);
        QCOMPARE(MensajeSeam::registro().first().titulo, QStringLiteral("Datos Declaración"));
        QCOMPARE(m_prog->paneles(), QStringList{QStringLiteral("FrmDeclaracion")});
        QCOMPARE(t("txtreferencia")->text(), QStringLiteral("MIA"));
        QCOMPARE(DecDatos().REFERENCIA, QStringLiteral("MIA"));
        QCOMPARE(referencia(), QStringLiteral("OTRA"));
        QCOMPARE(Declaraciones(), 1);

        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(vb::Yes);
        Clic(b("cmdAceptar"));
        QCOMPARE(mensajes(), QStringList{pregunta});
        QCOMPARE(m_prog->paneles(), QStringList{QStringLiteral("FrmDeclaracion")});
        QCOMPARE(t("txtreferencia")->text(), QStringLiteral("OTRA"));
        QCOMPARE(DecDatos().REFERENCIA, QStringLiteral("OTRA"));
        QVERIFY(!DecDatos().MODIFICADO);
        QCOMPARE(referencia(), QStringLiteral("OTRA"));

        MensajeSeam::limpiar();
        EscribirYSalir(t("txtreferencia"), QStringLiteral("NUEVA"));
        Clic(b("cmdAceptar"));
        QCOMPARE(mensajes(), QStringList());
        QVERIFY(m_prog->paneles().isEmpty());
        QCOMPARE(referencia(), QStringLiteral("NUEVA"));
        QCOMPARE(Declaraciones(), 1);
    }

    // A reference with a NUL, dropped on the field of a stored return: Aceptar shows the
    // store's message under the form's title, the focus goes to the field, the form stays
    // open and the stored return is as it was; once mended, the return is saved.
    void textoQueElAlmacenNoGuarda()
    {
        DeclaracionGuardada(QStringLiteral("REF-1"));
        m_prog->ventana()->ActualizarMenus();
        Comando(*m_prog, "d1");
        m_panel = m_prog->panel(QStringLiteral("FrmDeclaracion"));
        QVERIFY(m_panel);
        Entrar(t("txtreferencia"));
        Soltar(t("txtreferencia"), QString(QChar(u'\0')) + QStringLiteral("X"));
        Tabular();
        QVERIFY(DecDatos().MODIFICADO);
        MensajeSeam::setNextAnswer(vb::OK);
        Clic(b("cmdAceptar"));
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QVERIFY2(MensajeSeam::registro().first().texto.contains(QStringLiteral("Referencia")),
                 qPrintable(MensajeSeam::registro().first().texto));
        QCOMPARE(MensajeSeam::registro().first().titulo, QStringLiteral("Datos Declaración"));
        Procesar();
        QCOMPARE(Foco(), t("txtreferencia"));
        QCOMPARE(m_prog->paneles(), QStringList{QStringLiteral("FrmDeclaracion")});
        QCOMPARE(ValorAlmacenado(QStringLiteral("SELECT REFERENCIA FROM DECLARACIONES")).toString(),
                 QStringLiteral("REF-1"));
        MensajeSeam::limpiar();
        EscribirYSalir(t("txtreferencia"), QStringLiteral("REF-2"));
        Clic(b("cmdAceptar"));
        QCOMPARE(mensajes(), QStringList());
        QVERIFY(m_prog->paneles().isEmpty());
        QCOMPARE(ValorAlmacenado(QStringLiteral("SELECT REFERENCIA FROM DECLARACIONES")).toString(),
                 QStringLiteral("REF-2"));
    }
};

QTEST_MAIN(TestFrmDeclaracion)
#include "test_frmdeclaracion.moc"
#include "valores/EstadoNavegacion.h"
