// The presenter panel driven as a user drives it: its fields and pickers, the municipality pair
// that follows the province, the telephone, a change that counts only when a field is left
// with another text, Aceptar with every verdict of the store, and the way back to the list.
#include "aplicacion/Navegacion.h"
#include "ApoyoDatos.h"
#include "catalogo/IdsCatalogo.h"

#include "aplicacion/MDIVeldo.h"
#include "paneles/dialogos/Mensaje.h"
#include "catalogo/Catalogo.h"
#include "paneles/controles/CajaNum.h"
#include "paneles/controles/cListaClaves.h"
#include "paneles/partes/FrmPreDatos.h"
#include "registros/partes/cPreDatos.h"
#include "registros/partes/cPreLista.h"
#include "valores/EstadoNavegacion.h"

#include <QAction>
#include <QFrame>
#include <QLabel>
#include <QMenu>
#include <QPushButton>

namespace {

void RegistroValido(cPreDatos& p)
{
    p.DNIP = QStringLiteral("87654321X");
    p.NOMBREP = QStringLiteral("GESTORIA ARBELIA");
    p.VIAP = QStringLiteral("CL");
    p.DOMICILIOP = QStringLiteral("NUEVA");
    p.CODPROVP = QStringLiteral("77");
    p.CODPOSP = QStringLiteral("77200");
    p.CODMUNP = QStringLiteral("001");
    p.NOMMUNP.clear();
    p.TELEFONOP = QStringLiteral("945123456");
}

}  // namespace

class TestFrmPreDatos : public QObject, ControlesDePanel {
    Q_OBJECT

    std::unique_ptr<ProgramaDePrueba> m_prog;

    FrmPreDatos* frm() const { return qobject_cast<FrmPreDatos*>(m_panel.data()); }

    void abrirNuevo(const QString& lista = QString())
    {
        m_panel = AbrirDatos<FrmPreDatos>(PreDatos(), PreDatos().CSPR, QStringLiteral("A"), lista, 0);
    }
    void abrirExistente(int32_t cspr, const QString& lista = QStringLiteral("S"))
    {
        m_panel = AbrirDatos<FrmPreDatos>(PreDatos(), PreDatos().CSPR, QStringLiteral("C"), lista, cspr);
    }
    void abrirConRegistro() { m_panel = AbrirConRegistro<FrmPreDatos>(PreDatos()); }
    bool menusApagados() const { return MenuApagado(*m_prog, "mnuPresentador"); }
    QString almacenado(const char* columna, int32_t cspr) const
    {
        return ValorAlmacenado(QStringLiteral("SELECT %1 FROM PRESENTADORES WHERE CSPR = ?")
                                   .arg(QString::fromLatin1(columna)),
                               {cspr})
            .toString();
    }

private slots:
    void init()
    {
        m_prog = std::make_unique<ProgramaDePrueba>();
        PreLista().ENTRADA = Navegacion::EntradaLista::Abrir;
        PreLista().CSPR = 0;
    }
    void cleanup()
    {
        m_prog.reset();
        Procesar();
    }

    void nuevoPresentadorConSusValoresIniciales()
    {
        PreDatos().DNIP = QStringLiteral("11111111H");
        PreDatos().CODPROVP = QStringLiteral("01");
        abrirNuevo();
        QVERIFY(m_panel);
        QCOMPARE(m_panel->objectName(), QStringLiteral("FrmPreDatos"));
        QVERIFY(menusApagados());
        QCOMPARE(m_panel->windowTitle(), QStringLiteral("Datos del Presentador"));
        QCOMPARE(b("cmdAceptar")->toolTip(), QStringLiteral("Guardar datos del presentador"));
        QCOMPARE(c<QLabel>("lbltelefonop")->text(), QStringLiteral("Teléfono:"));
        QCOMPARE(t("txtdnip")->text(), QString());
        QCOMPARE(t("txtviap")->text(), QStringLiteral("CL"));
        QCOMPARE(t("txtviaaux")->text(), QStringLiteral("Calle"));
        QCOMPARE(n("txtcodprovp")->text(), QStringLiteral("77"));
        QCOMPARE(t("txtnomprovp")->text(), QStringLiteral("Arbelia"));
        QVERIFY(cerrado(t("txtnomprovp")));
        QVERIFY(cerrado(t("txtviaaux")));
        QVERIFY(abierto(n("txtcodmunp")));
        QVERIFY(cerrado(t("txtnommunp")));
        QCOMPARE(n("txtcodposp")->formato(), QStringLiteral("00000"));
        QVERIFY(b("cmdMunicipio")->isEnabled());
        QVERIFY(b("cmdProvincia")->isEnabled());
        QCOMPARE(Foco(), t("txtdnip"));
        QVERIFY(!frm()->Modificado());
        // No kinds of document or domicile, no country, no counters.
        for (const char* ausente : {"chktipodni", "chktipodomi", "txtpais", "txtnumsp", "txtnumtr"})
            QVERIFY2(!m_panel->findChild<QWidget*>(QString::fromLatin1(ausente)), ausente);
    }

    void desdeElMenuPrincipal()
    {
        // What the list left behind does not count: the command opens a new one.
        Navegacion::RutaPre().modo = Navegacion::Modo::Abrir;
        Navegacion::RutaPre().origen = Navegacion::OrigenParte::Lista;
        PreDatos().DNIP = QStringLiteral("12345678Z");
        QAction* nuevo = m_prog->ventana()->findChild<QAction*>(QStringLiteral("mnuNuevoPresentador"));
        QVERIFY(nuevo && nuevo->isEnabled());
        nuevo->trigger();
        Procesar();
        m_panel = m_prog->panel(QStringLiteral("FrmPreDatos"));
        QVERIFY(m_panel);
        QCOMPARE(Navegacion::Letras(Navegacion::RutaPre().modo), QStringLiteral("A"));
        QVERIFY(Navegacion::Letras(Navegacion::RutaPre().origen).isEmpty());
        QVERIFY(PreDatos().DNIP.isEmpty());
        QVERIFY(menusApagados());
        Clic(b("cmdCancelar"));
        QVERIFY(!m_panel);
        QVERIFY(m_prog->paneles().isEmpty());
        QVERIFY(!menusApagados());
    }

    void rotulosEnEuskera()
    {
        m_prog.reset();
        m_prog = std::make_unique<ProgramaDePrueba>(QStringLiteral("E"));
        abrirNuevo();
        QCOMPARE(m_panel->windowTitle(), QStringLiteral("Aurkezlearen datuak"));
        QCOMPARE(c<QLabel>("lbltelefonop")->text(), QStringLiteral("Telefonoa:"));
        QCOMPARE(b("cmdAceptar")->toolTip(), QStringLiteral("Gorde aurkezlearen datuak"));
        QCOMPARE(t("txtviaaux")->text(), QStringLiteral("Kalea"));
        QCOMPARE(t("txtnomprovp")->text(), QStringLiteral("Arbelia"));
    }

    void tabulacion()
    {
        abrirNuevo();
        const QStringList orden = {"txtnombrep", "txtviap", "cmdVia", "txtdomiciliop",
                                   "txtnumerop", "txtletrap", "txtescalerap", "txtpisop",
                                   "txtmanop", "txtcodprovp", "cmdProvincia", "txtcodposp",
                                   "txtcodmunp"};
        // Enter moves on from a field as Tab does; on a button it presses the button.
        for (const QString& siguiente : orden) {
            const bool boton = qobject_cast<QPushButton*>(Foco()) != nullptr;
            QTest::keyClick(Foco(), boton ? Qt::Key_Tab : Qt::Key_Return);
            Procesar();
            QCOMPARE(Foco()->objectName(), siguiente);
        }
        Escribir(n("txtcodmunp"), QStringLiteral("1"));
        Entrar(b("cmdVia"));
        QTest::keyClick(Foco(), Qt::Key_Return);
        Procesar();
        QVERIFY(l("lstviap")->isVisible());
        QTest::keyClick(l("lstviap"), Qt::Key_Escape);
        Procesar();
        Entrar(t("txttelefonop"));
        Tabular();
        QCOMPARE(Foco(), b("cmdAceptar"));
        Tabular();
        QCOMPARE(Foco(), b("cmdCancelar"));
    }

    void otraProvinciaConMunicipioTecleado()
    {
        abrirNuevo();
        EscribirYSalir(n("txtcodmunp"), QStringLiteral("1"));
        QCOMPARE(PreDatos().CODMUNP, QStringLiteral("1"));
        QCOMPARE(t("txtnommunp")->text(), QStringLiteral("ARBELGAIN"));
        EscribirYSalir(n("txtcodprovp"), QStringLiteral("1"));
        QCOMPARE(PreDatos().CODPROVP, QStringLiteral("01"));
        QCOMPARE(t("txtnomprovp")->text(), QStringLiteral("Álava"));
        QVERIFY(PreDatos().CODMUNP.isEmpty());
        QVERIFY(PreDatos().NOMMUNP.isEmpty());
        QCOMPARE(t("txtnommunp")->text(), QString());
        QVERIFY(!b("cmdMunicipio")->isEnabled());
        QVERIFY(b("cmdProvincia")->isEnabled());
        QVERIFY(b("cmdVia")->isEnabled());
        QVERIFY(cerrado(n("txtcodmunp")));
        QVERIFY(abierto(t("txtnommunp")));

        EscribirYSalir(t("txtdnip"), QStringLiteral("87654321X"));
        EscribirYSalir(t("txtnombrep"), QStringLiteral("GESTORIA"));
        EscribirYSalir(t("txtdomiciliop"), QStringLiteral("NUEVA"));
        EscribirYSalir(n("txtcodposp"), QStringLiteral("1001"));
        QCOMPARE(n("txtcodposp")->text(), QStringLiteral("01001"));  // always five digits
        EscribirYSalir(t("txtnommunp"), QStringLiteral("vitoria"));
        EscribirYSalir(t("txttelefonop"), QStringLiteral("945123456"));
        Clic(b("cmdAceptar"));
        QVERIFY(MensajeSeam::registro().isEmpty());
        QVERIFY(!m_panel);
        const int32_t cspr = ValorAlmacenado(QStringLiteral("SELECT CSPR FROM PRESENTADORES")).toInt();
        QCOMPARE(almacenado("CODPROVP", cspr), QStringLiteral("01"));
        QCOMPARE(almacenado("NOMMUNP", cspr), QStringLiteral("VITORIA"));
        QCOMPARE(almacenado("CODPOSP", cspr), QStringLiteral("01001"));
        QVERIFY(!menusApagados());
    }

    void telefono()
    {
        RegistroValido(PreDatos());
        PreDatos().TELEFONOP = QStringLiteral("94512345");  // eight digits
        abrirConRegistro();
        QCOMPARE(t("txttelefonop")->text(), QStringLiteral("94512345"));
        MensajeSeam::setNextAnswer(vb::OK);  // the verdict's notice
        Clic(b("cmdAceptar"));
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro()[0].texto, Texto(kIdTelefonoNueveCifras));
        QCOMPARE(Foco(), t("txttelefonop"));
        EscribirYSalir(t("txttelefonop"), QString());
        MensajeSeam::setNextAnswer(vb::OK);  // the verdict's notice
        Clic(b("cmdAceptar"));
        QCOMPARE(MensajeSeam::registro().size(), 2);
        QCOMPARE(MensajeSeam::registro()[1].texto, Texto(kIdTelefonoVacio));
        QCOMPARE(Foco(), t("txttelefonop"));
        // Letters cannot be typed.
        Escribir(t("txttelefonop"), QStringLiteral("94a5b123c4567"));
        QCOMPARE(t("txttelefonop")->text(), QStringLiteral("945123456"));
        Tabular();
        QCOMPARE(PreDatos().TELEFONOP, QStringLiteral("945123456"));
        Clic(b("cmdAceptar"));
        QCOMPARE(MensajeSeam::registro().size(), 2);
        QVERIFY(!m_panel);
    }

    void telefonoCeroSeMuestraVacio()
    {
        PresentadorDePanel p;
        p.TELEFONOP = QStringLiteral("0");
        const int32_t cspr = GuardarEnAlmacen(p);
        QVERIFY(cspr > 0);
        abrirExistente(cspr);
        QCOMPARE(t("txttelefonop")->text(), QString());
        QVERIFY(PreDatos().TELEFONOP.isEmpty());
    }

    void cambioDeDniConDeclaraciones()
    {
        const int32_t cspr = GuardarEnAlmacen(PresentadorDePanel());
        DeclaracionCon("CSPR", cspr);
        abrirExistente(cspr);
        EscribirYSalir(t("txtdnip"), QStringLiteral("12345678Z"));
        MensajeSeam::setNextAnswer(vb::OK);  // the verdict's notice
        Clic(b("cmdAceptar"));
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro()[0].texto, Texto(kIdDniPresentadorEnDeclaraciones));
        QCOMPARE(MensajeSeam::registro()[0].titulo, QStringLiteral("Datos del Presentador"));
        QCOMPARE(MensajeSeam::registro()[0].botones, 64);
        QVERIFY(m_panel);
        QCOMPARE(t("txtdnip")->text(), QStringLiteral("12345678Z"));
        QCOMPARE(almacenado("DNIP", cspr), QStringLiteral("87654321X"));
        // Other data of the same presenter may change.
        EscribirYSalir(t("txtdnip"), QStringLiteral("87654321X"));
        EscribirYSalir(t("txtnombrep"), QStringLiteral("OTRA GESTORIA"));
        Clic(b("cmdAceptar"));
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QVERIFY(!m_panel);
        QCOMPARE(almacenado("NOMBREP", cspr), QStringLiteral("OTRA GESTORIA"));
    }

    void codigoPostalSiempreDeCincoCifras()
    {
        PresentadorDePanel p;
        p.CODPROVP = QStringLiteral("01");
        p.CODPOSP = QStringLiteral("1001");
        p.CODMUNP.clear();
        p.NOMMUNP = QStringLiteral("VITORIA");
        const int32_t cspr = GuardarEnAlmacen(p);
        abrirExistente(cspr);
        QCOMPARE(PreDatos().CODPOSP, QStringLiteral("01001"));
        QCOMPARE(n("txtcodposp")->text(), QStringLiteral("01001"));
        EscribirYSalir(n("txtcodposp"), QStringLiteral("5"));
        QCOMPARE(n("txtcodposp")->text(), QStringLiteral("00005"));
        QCOMPARE(t("txtnommunp")->text(), QStringLiteral("VITORIA"));
    }

    void cambioDeshechoNoCuenta()
    {
        const int32_t cspr = GuardarEnAlmacen(PresentadorDePanel());
        abrirExistente(cspr, QString());
        // Typed and changed back before leaving: no change.
        Escribir(t("txtnombrep"), QStringLiteral("OTRO"));
        Escribir(t("txtnombrep"), QStringLiteral("GESTORIA ARBELIA"));
        Tabular();
        QVERIFY(!frm()->Modificado());
        EjecutarEnAlmacen(QStringLiteral("UPDATE PRESENTADORES SET DOMICILIOP = 'AJENA' WHERE CSPR = ?"), {cspr});
        Clic(b("cmdAceptar"));
        QVERIFY(!m_panel);
        QCOMPARE(almacenado("DOMICILIOP", cspr), QStringLiteral("AJENA"));
        // Typed and left: a change.
        abrirExistente(cspr, QString());
        EscribirYSalir(t("txtnombrep"), QStringLiteral("OTRO"));
        QVERIFY(frm()->Modificado());
        Clic(b("cmdAceptar"));
        QCOMPARE(almacenado("NOMBREP", cspr), QStringLiteral("OTRO"));
    }

    void veredictosDeValidacion_data()
    {
        QTest::addColumn<int>("caso");
        QTest::addColumn<int>("id");
        QTest::addColumn<QString>("foco");
        QTest::newRow("1 DNI") << 1 << 330 << "txtdnip";
        QTest::newRow("1 DNI vacio") << 12 << 330 << "txtdnip";
        QTest::newRow("2 nombre") << 2 << 30 << "txtnombrep";
        QTest::newRow("3 domicilio") << 3 << 31 << "txtdomiciliop";
        QTest::newRow("4 codigo de municipio") << 4 << 40 << "txtcodmunp";
        QTest::newRow("5 municipio") << 5 << 38 << "txtnommunp";
        QTest::newRow("6 postal cero") << 6 << 36 << "txtcodposp";
        QTest::newRow("7 provincia y postal") << 7 << 33 << "txtcodposp";
        QTest::newRow("8 tres ceros") << 8 << 35 << "txtcodposp";
        QTest::newRow("9 telefono corto") << 9 << 198 << "txttelefonop";
        QTest::newRow("10 sin telefono") << 10 << 199 << "txttelefonop";
        QTest::newRow("11 digito de control") << 11 << 329 << "txtdnip";
    }

    void veredictosDeValidacion()
    {
        QFETCH(int, caso);
        QFETCH(int, id);
        QFETCH(QString, foco);
        cPreDatos& r = PreDatos();
        r.IniciarNuevo();
        r.CSPR = 0;
        RegistroValido(r);
        switch (caso) {
        case 1: r.DNIP = QStringLiteral("X1"); break;
        case 12: r.DNIP.clear(); break;
        case 2: r.NOMBREP.clear(); break;
        case 3: r.DOMICILIOP.clear(); break;
        case 4: r.CODMUNP.clear(); break;
        case 5: r.CODPROVP = QStringLiteral("01"); r.CODMUNP.clear(); r.CODPOSP = QStringLiteral("01001"); break;
        case 6: r.CODPOSP.clear(); break;
        case 7: r.CODPOSP = QStringLiteral("48001"); break;
        case 8: r.CODPOSP = QStringLiteral("77000"); break;
        case 9: r.TELEFONOP = QStringLiteral("9451234"); break;
        case 10: r.TELEFONOP.clear(); break;
        case 11: r.DNIP = QStringLiteral("87654321A"); break;
        }
        abrirConRegistro();
        MensajeSeam::setNextAnswer(vb::OK);  // the verdict's notice
        Clic(b("cmdAceptar"));
        QCOMPARE(MensajeSeam::registro().size(), 1);
        const auto& m = MensajeSeam::registro()[0];
        QCOMPARE(m.texto, Texto(id));
        QCOMPARE(m.titulo, Texto(kIdDatosPresentador));
        QCOMPARE(m.botones, int(vb::OKOnly + vb::Information));
        QVERIFY(m_panel);
        QCOMPARE(Foco()->objectName(), foco);
        QCOMPARE(ValorAlmacenado(QStringLiteral("SELECT COUNT(*) FROM PRESENTADORES")).toInt(), 0);
    }

    void veredictosDeGuardar()
    {
        GuardarEnAlmacen(PresentadorDePanel());
        // A new presenter with a number already in the store.
        RegistroValido(PreDatos());
        abrirConRegistro();
        EscribirYSalir(t("txtnombrep"), QStringLiteral("OTRA"));
        MensajeSeam::setNextAnswer(vb::OK);  // the verdict's notice
        Clic(b("cmdAceptar"));
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro()[0].texto, Texto(kIdAltaPresentadorDniExistente));
        QVERIFY(m_panel);
        QCOMPARE(Foco(), b("cmdAceptar"));
        Clic(b("cmdCancelar"));
        QVERIFY(!m_panel);
        // An existing one changed to the number of another.
        PresentadorDePanel otro;
        otro.DNIP = QStringLiteral("12345678Z");
        const int32_t co = GuardarEnAlmacen(otro);
        abrirExistente(co, QString());
        EscribirYSalir(t("txtdnip"), QStringLiteral("87654321X"));
        MensajeSeam::setNextAnswer(vb::OK);  // the verdict's notice
        Clic(b("cmdAceptar"));
        QCOMPARE(MensajeSeam::registro().size(), 2);
        QCOMPARE(MensajeSeam::registro()[1].texto, Texto(kIdModificarPresentadorDniExistente));
        QVERIFY(m_panel);
        QCOMPARE(almacenado("DNIP", co), QStringLiteral("12345678Z"));
    }

    void nuevoDesdeLaListaVuelveSeleccionado()
    {
        RegistroValido(PreDatos());
        Navegacion::RutaPre().modo = Navegacion::Modo::Nuevo;
        PreDatos().IniciarNuevo();
        Navegacion::RutaPre().origen = Navegacion::OrigenParte::Lista;
        PreDatos().CSPR = 0;
        m_panel = Navegacion::AbrirPreDatos();
        Procesar();
        EscribirYSalir(t("txtdnip"), QStringLiteral("87654321X"));
        EscribirYSalir(t("txtnombrep"), QStringLiteral("NUEVA GESTORIA"));
        EscribirYSalir(t("txtdomiciliop"), QStringLiteral("NUEVA"));
        EscribirYSalir(n("txtcodposp"), QStringLiteral("77200"));
        EscribirYSalir(n("txtcodmunp"), QStringLiteral("1"));
        EscribirYSalir(t("txttelefonop"), QStringLiteral("945123456"));
        Clic(b("cmdAceptar"));
        QVERIFY(MensajeSeam::registro().isEmpty());
        QVERIFY(!m_panel);
        const int32_t nuevo =
            ValorAlmacenado(QStringLiteral("SELECT CSPR FROM PRESENTADORES WHERE DNIP = '87654321X'")).toInt();
        QVERIFY(nuevo > 0);
        QCOMPARE(almacenado("CODMUNP", nuevo), QStringLiteral("001"));
        QCOMPARE(PreLista().CSPR, nuevo);
        QCOMPARE(Navegacion::Letras(PreLista().ENTRADA), QStringLiteral("P"));
        QCOMPARE(m_prog->paneles(), QStringList{QStringLiteral("FrmPreLista")});
    }

    void cancelarDesdeLaListaVuelveALaLista()
    {
        const int32_t cspr = GuardarEnAlmacen(PresentadorDePanel());
        PreLista().CSPR = cspr;
        abrirExistente(cspr);
        Escribir(t("txtviap"), QStringLiteral("QQ"));
        Clic(b("cmdCancelar"));
        QVERIFY(!m_panel);
        QVERIFY(MensajeSeam::registro().isEmpty());
        QCOMPARE(Navegacion::Letras(PreLista().ENTRADA), QStringLiteral("P"));
        QCOMPARE(PreLista().CSPR, cspr);
        QCOMPARE(m_prog->paneles(), QStringList{QStringLiteral("FrmPreLista")});
    }

    void selectoresDelPresentador()
    {
        abrirNuevo();
        // Street type by the button and a double click.
        Clic(b("cmdVia"));
        QVERIFY(l("lstviap")->isVisible());
        QVERIFY(!c<QFrame>("fraDatos")->isEnabled());
        QVERIFY(!c<QFrame>("fraBotones")->isEnabled());
        DobleClicEnTexto(l("lstviap"), QStringLiteral("Plaza"));
        QCOMPARE(PreDatos().VIAP, QStringLiteral("PZ"));
        QCOMPARE(Foco(), t("txtdomiciliop"));
        QVERIFY(frm()->Modificado());
        // An unknown province by keyboard: the picker, Escape, the box empty again.
        EscribirYSalir(n("txtcodprovp"), QStringLiteral("00"));
        QVERIFY(l("lstcodprovp")->isVisible());
        QCOMPARE(n("txtcodprovp")->text(), QString());
        QTest::keyClick(l("lstcodprovp"), Qt::Key_Escape);
        Procesar();
        QCOMPARE(Foco(), n("txtcodprovp"));
        QCOMPARE(PreDatos().CODPROVP, QStringLiteral("77"));
        // Province by the button and Enter.
        Clic(b("cmdProvincia"));
        ElegirConEnter(l("lstcodprovp"), QStringLiteral("Vizcaya"));
        QCOMPARE(PreDatos().CODPROVP, QStringLiteral("48"));
        QCOMPARE(t("txtnomprovp")->text(), QStringLiteral("Vizcaya"));
        QCOMPARE(Foco(), n("txtcodposp"));
        QVERIFY(!b("cmdMunicipio")->isEnabled());
        // Back to 77, then the municipality with Enter: the telephone comes next.
        Clic(b("cmdProvincia"));
        ElegirConEnter(l("lstcodprovp"), QStringLiteral("Arbelia"));
        QVERIFY(b("cmdMunicipio")->isEnabled());
        QVERIFY(abierto(n("txtcodmunp")));
        Clic(b("cmdMunicipio"));
        QTest::keyClicks(l("lstcodmunp"), QStringLiteral("pe"));
        QCOMPARE(TextoActual(l("lstcodmunp")), QStringLiteral("PEÑAVELDA"));
        QTest::keyClick(l("lstcodmunp"), Qt::Key_Enter);
        Procesar();
        QCOMPARE(PreDatos().CODMUNP, QStringLiteral("17"));
        QCOMPARE(t("txtnommunp")->text(), QStringLiteral("PEÑAVELDA"));
        QCOMPARE(Foco(), t("txttelefonop"));
        // An empty municipality in 77 opens its picker each time it is left.
        Entrar(n("txtcodmunp"));
        EscribirYSalir(n("txtcodmunp"), QString());
        QVERIFY(l("lstcodmunp")->isVisible());
        QTest::keyClick(l("lstcodmunp"), Qt::Key_Escape);
        Procesar();
        QCOMPARE(Foco(), n("txtcodmunp"));
        Tabular();
        QVERIFY(l("lstcodmunp")->isVisible());
    }
};

QTEST_MAIN(TestFrmPreDatos)
#include "test_frmpredatos.moc"
