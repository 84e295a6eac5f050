// The contributor panel driven as a user drives it: defaults of a new contributor, the open and
// closed fields after each change, the pickers that open on unknown codes, the check boxes,
// Aceptar with every verdict of the store, Cancelar, and the way back to the list.
#include "aplicacion/Navegacion.h"
#include "ApoyoDatos.h"
#include "catalogo/IdsCatalogo.h"

#include "aplicacion/MDIVeldo.h"
#include "plataforma/General.h"
#include "paneles/dialogos/Mensaje.h"
#include "catalogo/Catalogo.h"
#include "paneles/controles/CajaNum.h"
#include "paneles/controles/cListaClaves.h"
#include "paneles/partes/FrmConDatos.h"
#include "registros/partes/cConDatos.h"
#include "registros/partes/cConLista.h"
#include "valores/EstadoNavegacion.h"

#include <QCheckBox>
#include <QAction>
#include <QFrame>
#include <QLabel>
#include <QMenu>
#include <QPushButton>

namespace {

// The record of a valid national contributor in the province of the treasury.
void RegistroValido(cConDatos& c)
{
    c.TIPODNI = QStringLiteral("O");
    c.DNIC = QStringLiteral("12345678Z");
    c.NOMBREC = QStringLiteral("PEREZ LOPEZ JUAN");
    c.VIAC = QStringLiteral("CL");
    c.DOMICILIOC = QStringLiteral("MAYOR");
    c.TIPODOMI = QStringLiteral("N");
    c.PAIS.clear();
    c.CODPROVC = QStringLiteral("77");
    c.NOMPROVC.clear();
    c.CODPOSC = QStringLiteral("77100");
    c.CODMUNC = QStringLiteral("001");
    c.NOMMUNC.clear();
}

}  // namespace

class TestFrmConDatos : public QObject, ControlesDePanel {
    Q_OBJECT

    std::unique_ptr<ProgramaDePrueba> m_prog;

    FrmConDatos* frm() const { return qobject_cast<FrmConDatos*>(m_panel.data()); }

    // As the main menu opens it: a new contributor.
    void abrirNuevo(const QString& lista = QString())
    {
        m_panel = AbrirDatos<FrmConDatos>(ConDatos(), ConDatos().CSCO, QStringLiteral("A"), lista, 0);
    }
    // As the list opens it: an existing contributor.
    void abrirExistente(int32_t csco, const QString& lista = QStringLiteral("S"))
    {
        m_panel = AbrirDatos<FrmConDatos>(ConDatos(), ConDatos().CSCO, QStringLiteral("C"), lista, csco);
    }
    // The panel as it is with the record as it stands (MODO "A" shows what is there).
    void abrirConRegistro() { m_panel = AbrirConRegistro<FrmConDatos>(ConDatos()); }
    bool menusApagados() const { return MenuApagado(*m_prog, "mnuContribuyente"); }
    void clicEnCasilla(QCheckBox* casilla)
    {
        QTest::mouseClick(casilla, Qt::LeftButton, Qt::NoModifier, QPoint(6, casilla->height() / 2));
        Procesar();
    }
    void escape(QWidget* w)
    {
        QTest::keyClick(w, Qt::Key_Escape);
        Procesar();
    }

private slots:
    void init()
    {
        m_prog = std::make_unique<ProgramaDePrueba>();
        ConLista().ENTRADA = Navegacion::EntradaLista::Abrir;
        ConLista().CSCO = 0;
    }
    void cleanup()
    {
        m_prog.reset();
        Procesar();
    }

    void nuevoContribuyenteConSusValoresIniciales()
    {
        // What a previous contributor left in the record goes with the reset.
        ConDatos().DNIC = QStringLiteral("11111111H");
        ConDatos().CODPROVC = QStringLiteral("01");
        ConDatos().TIPODOMI = QStringLiteral("E");
        abrirNuevo();
        QVERIFY(m_panel);
        QCOMPARE(m_panel->objectName(), QStringLiteral("FrmConDatos"));
        QCOMPARE(m_prog->paneles(), QStringList{QStringLiteral("FrmConDatos")});
        QVERIFY(menusApagados());
        QCOMPARE(m_panel->windowTitle(), QStringLiteral("Datos del Contribuyente"));
        QCOMPARE(t("txtdnic")->text(), QString());
        QCOMPARE(t("txtviac")->text(), QStringLiteral("CL"));
        QCOMPARE(t("txtviaaux")->text(), QStringLiteral("Calle"));
        QCOMPARE(n("txtcodprovc")->text(), QStringLiteral("77"));
        QCOMPARE(t("txtnomprovc")->text(), QStringLiteral("Arbelia"));
        for (const char* siempreAbierto : {"txtdnic", "txtnombrec", "txtviac", "txtdomicilioc",
                                           "txtletrac", "txtescalerac", "txtpisoc", "txtmanoc"})
            QVERIFY2(abierto(t(siempreAbierto)), siempreAbierto);
        QVERIFY(abierto(n("txtnumeroc")));
        QVERIFY(abierto(n("txtcodposc")));
        QVERIFY(abierto(n("txtcodprovc")));
        QVERIFY(abierto(n("txtcodmunc")));
        QVERIFY(cerrado(t("txtnommunc")));
        QVERIFY(cerrado(t("txtnomprovc")));
        QVERIFY(cerrado(t("txtpais")));
        QVERIFY(cerrado(t("txtviaaux")));
        QVERIFY(n("txtnumsp")->locked() && Gris(n("txtnumsp")));
        QVERIFY(n("txtnumtr")->locked() && Gris(n("txtnumtr")));
        QCOMPARE(n("txtcodposc")->formato(), QStringLiteral("00000"));
        QVERIFY(b("cmdProvincia")->isEnabled());
        QVERIFY(b("cmdMunicipio")->isEnabled());
        QVERIFY(b("cmdVia")->isEnabled());
        QVERIFY(!c<QCheckBox>("chktipodni")->isChecked());
        QVERIFY(!c<QCheckBox>("chktipodomi")->isChecked());
        QVERIFY(c<QCheckBox>("chktipodni")->isEnabled());
        QVERIFY(!frm()->Modificado());
        QCOMPARE(Foco(), t("txtdnic"));
        QVERIFY(!l("lstviac")->isVisible());
        QVERIFY(!l("lstcodprovc")->isVisible());
        QVERIFY(!l("lstcodmunc")->isVisible());
        // The defaults are the record's.
        QCOMPARE(ConDatos().VIAC, QStringLiteral("CL"));
        QCOMPARE(ConDatos().CODPROVC, QStringLiteral("77"));
        QCOMPARE(ConDatos().TIPODOMI, QStringLiteral("N"));
        QVERIFY(ConDatos().DNIC.isEmpty());
    }

    void desdeElMenuPrincipal()
    {
        // What the list left behind does not count: the command opens a new one.
        Navegacion::RutaCon().modo = Navegacion::Modo::Abrir;
        Navegacion::RutaCon().origen = Navegacion::OrigenParte::Lista;
        ConDatos().DNIC = QStringLiteral("12345678Z");
        QAction* nuevo = m_prog->ventana()->findChild<QAction*>(QStringLiteral("mnuNuevoContribuyente"));
        QVERIFY(nuevo && nuevo->isEnabled());
        nuevo->trigger();
        Procesar();
        m_panel = m_prog->panel(QStringLiteral("FrmConDatos"));
        QVERIFY(m_panel);
        QCOMPARE(Navegacion::Letras(Navegacion::RutaCon().modo), QStringLiteral("A"));
        QVERIFY(Navegacion::Letras(Navegacion::RutaCon().origen).isEmpty());
        QVERIFY(ConDatos().DNIC.isEmpty());
        QVERIFY(menusApagados());
        Clic(b("cmdCancelar"));
        QVERIFY(!m_panel);
        QVERIFY(m_prog->paneles().isEmpty());
        QVERIFY(!menusApagados());
    }

    void rotulosEnCastellano()
    {
        abrirNuevo();
        QCOMPARE(c<QLabel>("lblnumtr")->text(), QStringLiteral("Trasmitentes:"));
        QCOMPARE(c<QLabel>("lblnumsp")->text(), QStringLiteral("S. Pasivos:"));
        QCOMPARE(c<QLabel>("lblnumeroc")->text(), QStringLiteral("Nº"));
        QCOMPARE(c<QLabel>("lbldnic")->text(), QStringLiteral("DNI-CIF:"));
        QCOMPARE(c<QLabel>("lblnombrec")->text(), QStringLiteral("Apellidos y Nombre:"));
        QCOMPARE(c<QLabel>("lblpais")->text(), QStringLiteral("Pais:"));
        QCOMPARE(c<QCheckBox>("chktipodomi")->text(), QStringLiteral("Domicilio extranjero"));
        QCOMPARE(c<QCheckBox>("chktipodni")->text(), QStringLiteral("Dni extranjero"));
        QCOMPARE(b("cmdProvincia")->text(), QStringLiteral("Provincia ..."));
        QCOMPARE(b("cmdMunicipio")->text(), QStringLiteral("Municipio ..."));
        QCOMPARE(b("cmdVia")->text(), QStringLiteral("..."));
        QCOMPARE(b("cmdAceptar")->text(), QStringLiteral("&Aceptar"));
        QCOMPARE(b("cmdAceptar")->toolTip(), QStringLiteral("Guardar datos del contribuyente"));
        QCOMPARE(b("cmdCancelar")->text(), QStringLiteral("&Cancelar"));
        QCOMPARE(b("cmdCancelar")->toolTip(), QStringLiteral("Cancelar"));
        QVERIFY(c<QLabel>("PicAce"));
        QVERIFY(c<QLabel>("PicCan"));
        QCOMPARE(l("lstviac")->TextoElemento(0), QStringLiteral("Alameda"));
    }

    void rotulosYListasEnEuskera()
    {
        m_prog.reset();
        m_prog = std::make_unique<ProgramaDePrueba>(QStringLiteral("E"));
        abrirNuevo();
        QCOMPARE(m_panel->windowTitle(), QStringLiteral("Zergadunaren datuak"));
        QCOMPARE(t("txtviaaux")->text(), QStringLiteral("Kalea"));
        QCOMPARE(b("cmdAceptar")->text(), QStringLiteral("&Ados"));
        QCOMPARE(b("cmdCancelar")->text(), QStringLiteral("&Utzi"));
        QCOMPARE(c<QLabel>("lblnumtr")->text(), QStringLiteral("Eskualdatzaileak:"));
        QCOMPARE(c<QCheckBox>("chktipodomi")->text(), QStringLiteral("Atzerriko helbidea"));
        // The street types come in the order of their Basque names.
        cListaClaves* vias = l("lstviac");
        QVERIFY(vias->IndiceDeTexto(QStringLiteral("Kalea")) >= 0);
        QCOMPARE(vias->TextoElemento(0), QStringLiteral("Aldapa"));
        QCOMPARE(vias->ClaveElemento(0), QStringLiteral("CU"));
        // A message comes in Basque, with the panel's title.
        MensajeSeam::setNextAnswer(vb::OK);  // the verdict's notice
        Clic(b("cmdAceptar"));
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro()[0].texto, TextoFila(kIdDniVacio + 10000));
        QCOMPARE(MensajeSeam::registro()[0].titulo, QStringLiteral("Zergadunaren datuak"));
    }

    void tabulacionYEnterComoTabulador()
    {
        abrirNuevo();
        QCOMPARE(Foco(), t("txtdnic"));
        Tabular();
        QCOMPARE(Foco(), t("txtnombrec"));
        Tabular();
        QCOMPARE(Foco(), c<QCheckBox>("chktipodomi"));
        Tabular();
        QCOMPARE(Foco(), t("txtviac"));
        Tabular();
        QCOMPARE(Foco(), b("cmdVia"));
        Tabular();  // the street type's name is passed over
        QCOMPARE(Foco(), t("txtdomicilioc"));
        QTest::keyClick(Foco(), Qt::Key_Return);  // Enter acts as Tab
        Procesar();
        QCOMPARE(Foco(), n("txtnumeroc"));
        for (const char* siguiente : {"txtletrac", "txtescalerac", "txtpisoc", "txtmanoc",
                                      "txtcodprovc"}) {
            QTest::keyClick(Foco(), Qt::Key_Enter);
            Procesar();
            QCOMPARE(Foco()->objectName(), QString::fromLatin1(siguiente));
        }
        Tabular();
        QCOMPARE(Foco(), b("cmdProvincia"));
        Tabular();  // the province's name is closed
        QCOMPARE(Foco(), n("txtcodposc"));
        Tabular();
        QCOMPARE(Foco(), n("txtcodmunc"));
        // Leaving the empty municipality of 77 opens its picker, even towards a button.
        Entrar(b("cmdAceptar"));
        QVERIFY(l("lstcodmunc")->isVisible());
        escape(l("lstcodmunc"));
        QCOMPARE(Foco(), n("txtcodmunc"));
        Escribir(n("txtcodmunc"), QStringLiteral("1"));
        // From the buttons on: the check box of the document comes last.
        Entrar(b("cmdAceptar"));
        QVERIFY(!l("lstcodmunc")->isVisible());
        Tabular();
        QCOMPARE(Foco(), b("cmdCancelar"));
        Tabular();
        QCOMPARE(Foco(), c<QCheckBox>("chktipodni"));
        QVERIFY(MensajeSeam::registro().isEmpty());
    }

    void camposQueEscribenEnElRegistroAlSalir()
    {
        abrirNuevo();
        EscribirYSalir(t("txtdnic"), QStringLiteral("12345678z"));
        QCOMPARE(ConDatos().DNIC, QStringLiteral("12345678Z"));  // capitals only
        QVERIFY(frm()->Modificado());
        Escribir(t("txtnombrec"), QStringLiteral("peña \"ruiz\" #1"));
        QCOMPARE(t("txtnombrec")->text(), QStringLiteral("PEÑA RUIZ 1"));
        QVERIFY(ConDatos().NOMBREC.isEmpty());  // not yet left
        Tabular();
        QCOMPARE(ConDatos().NOMBREC, QStringLiteral("PEÑA RUIZ 1"));
        EscribirYSalir(t("txtdomicilioc"), QStringLiteral("MAYOR"));
        EscribirYSalir(n("txtnumeroc"), QStringLiteral("12a3"));
        QCOMPARE(ConDatos().NUMEROC, 123);
        QCOMPARE(n("txtnumeroc")->text(), QStringLiteral("123"));
        EscribirYSalir(t("txtletrac"), QStringLiteral("bcd"));
        QCOMPARE(ConDatos().LETRAC, QStringLiteral("BC"));  // two characters at most
        EscribirYSalir(t("txtmanoc"), QStringLiteral("izda"));
        QCOMPARE(ConDatos().MANOC, QStringLiteral("IZD"));
        // Emptying the number shows it empty, and the record has 0.
        EscribirYSalir(n("txtnumeroc"), QString());
        QCOMPARE(ConDatos().NUMEROC, 0);
        QCOMPARE(n("txtnumeroc")->text(), QString());
        EscribirYSalir(n("txtcodposc"), QStringLiteral("77100"));
        QCOMPARE(ConDatos().CODPOSC, QStringLiteral("77100"));
        QCOMPARE(Foco(), n("txtcodmunc"));
    }

    void provinciaDistintaDe77VaciaElMunicipio()
    {
        abrirNuevo();
        EscribirYSalir(n("txtcodmunc"), QStringLiteral("2"));
        QCOMPARE(ConDatos().CODMUNC, QStringLiteral("2"));
        QCOMPARE(t("txtnommunc")->text(), QStringLiteral("VELDORRETA"));
        QVERIFY(!l("lstcodmunc")->isVisible());
        EscribirYSalir(n("txtcodprovc"), QStringLiteral("1"));
        QCOMPARE(n("txtcodprovc")->text(), QStringLiteral("01"));
        QCOMPARE(ConDatos().CODPROVC, QStringLiteral("01"));
        QCOMPARE(t("txtnomprovc")->text(), QStringLiteral("Álava"));
        QVERIFY(ConDatos().CODMUNC.isEmpty());
        QVERIFY(ConDatos().NOMMUNC.isEmpty());
        QCOMPARE(n("txtcodmunc")->text(), QString());
        QCOMPARE(t("txtnommunc")->text(), QString());
        QVERIFY(cerrado(n("txtcodmunc")));
        QVERIFY(abierto(t("txtnommunc")));
        QVERIFY(!b("cmdMunicipio")->isEnabled());
        QVERIFY(!l("lstcodprovc")->isVisible());
        // The municipality is typed now, and stays in the record.
        Escribir(t("txtnommunc"), QStringLiteral("vitoria"));
        Tabular();
        QCOMPARE(ConDatos().NOMMUNC, QStringLiteral("VITORIA"));
        // Back to 77: the typed name goes, the code opens.
        EscribirYSalir(n("txtcodprovc"), QStringLiteral("77"));
        QVERIFY(ConDatos().NOMMUNC.isEmpty());
        QVERIFY(abierto(n("txtcodmunc")));
        QVERIFY(cerrado(t("txtnommunc")));
        QCOMPARE(t("txtnommunc")->text(), QString());
        QVERIFY(b("cmdMunicipio")->isEnabled());
    }

    void provincia00AbreElSelectorYDejaLaCajaVacia()
    {
        abrirNuevo();
        EscribirYSalir(n("txtcodprovc"), QStringLiteral("00"));
        cListaClaves* lista = l("lstcodprovc");
        QVERIFY(lista->isVisible());
        QCOMPARE(Foco(), lista);
        QCOMPARE(n("txtcodprovc")->text(), QString());
        QVERIFY(!c<QFrame>("fraDatos")->isEnabled());
        QVERIFY(!c<QFrame>("fraBotones")->isEnabled());
        QCOMPARE(ConDatos().CODPROVC, QStringLiteral("77"));  // the record keeps its code
        escape(lista);
        QVERIFY(!lista->isVisible());
        QVERIFY(c<QFrame>("fraDatos")->isEnabled());
        QVERIFY(c<QFrame>("fraBotones")->isEnabled());
        QCOMPARE(Foco(), n("txtcodprovc"));
        QCOMPARE(n("txtcodprovc")->text(), QString());
        QCOMPARE(ConDatos().CODPROVC, QStringLiteral("77"));
        QVERIFY(MensajeSeam::registro().isEmpty());
    }

    void provinciaDesconocidaAbreElSelector()
    {
        abrirNuevo();
        EscribirYSalir(n("txtcodprovc"), QStringLiteral("99"));
        QVERIFY(l("lstcodprovc")->isVisible());
        QCOMPARE(n("txtcodprovc")->text(), QStringLiteral("99"));
        QCOMPARE(t("txtnomprovc")->text(), QString());
        escape(l("lstcodprovc"));
        QCOMPARE(ConDatos().CODPROVC, QStringLiteral("77"));
    }

    void municipioVacioAbreElSelectorCadaVez()
    {
        abrirNuevo();
        cListaClaves* lista = l("lstcodmunc");
        for (int vez = 0; vez < 3; ++vez) {
            Entrar(n("txtcodmunc"));
            QCOMPARE(Foco(), n("txtcodmunc"));
            Tabular();
            QVERIFY2(lista->isVisible(), qPrintable(QString::number(vez)));
            QCOMPARE(Foco(), lista);
            escape(lista);
            QVERIFY(!lista->isVisible());
            QCOMPARE(Foco(), n("txtcodmunc"));
        }
        // Only a choice (or Cancelar) gets the user out of it.
        Entrar(n("txtcodprovc"));
        QCOMPARE(Foco(), lista);
        ElegirConEnter(lista, QStringLiteral("IRUBIDE"));
        QCOMPARE(ConDatos().CODMUNC, QStringLiteral("18"));
        // Another province closes the box: nothing opens then.
        EscribirYSalir(n("txtcodprovc"), QStringLiteral("48"));
        QVERIFY(cerrado(n("txtcodmunc")));
        Entrar(n("txtcodmunc"));
        QVERIFY(Foco() != n("txtcodmunc"));
        QVERIFY(!lista->isVisible());
    }

    void municipioDesconocidoAbreElSelector()
    {
        abrirNuevo();
        EscribirYSalir(n("txtcodmunc"), QStringLiteral("999"));
        QVERIFY(l("lstcodmunc")->isVisible());
        QCOMPARE(t("txtnommunc")->text(), QString());
        QVERIFY(ConDatos().CODMUNC.isEmpty());
        ElegirConEnter(l("lstcodmunc"), QStringLiteral("MENDIOLATZA"));
        QCOMPARE(ConDatos().CODMUNC, QStringLiteral("4"));
        QCOMPARE(n("txtcodmunc")->text(), QStringLiteral("4"));
        QCOMPARE(t("txtnommunc")->text(), QStringLiteral("MENDIOLATZA"));
        QCOMPARE(Foco(), b("cmdAceptar"));
    }

    void domicilioExtranjeroYVuelta()
    {
        abrirNuevo();
        EscribirYSalir(n("txtcodmunc"), QStringLiteral("1"));
        clicEnCasilla(c<QCheckBox>("chktipodomi"));
        cConDatos& r = ConDatos();
        QCOMPARE(r.TIPODOMI, QStringLiteral("E"));
        QVERIFY(r.CODPROVC.isEmpty() && r.CODMUNC.isEmpty() && r.NOMMUNC.isEmpty()
                && r.NOMPROVC.isEmpty());
        QVERIFY(frm()->Modificado());
        QVERIFY(abierto(t("txtpais")));
        QVERIFY(abierto(t("txtnomprovc")));
        QVERIFY(abierto(t("txtnommunc")));
        QVERIFY(cerrado(n("txtcodprovc")));
        QVERIFY(cerrado(n("txtcodmunc")));
        QCOMPARE(n("txtcodprovc")->text(), QString());
        QCOMPARE(t("txtnomprovc")->text(), QString());
        QCOMPARE(t("txtnommunc")->text(), QString());
        QVERIFY(!b("cmdProvincia")->isEnabled());
        QVERIFY(!b("cmdMunicipio")->isEnabled());
        QCOMPARE(n("txtcodposc")->formato(), QString());
        QCOMPARE(Foco(), t("txtviac"));

        EscribirYSalir(t("txtpais"), QStringLiteral("francia"));
        EscribirYSalir(t("txtnomprovc"), QStringLiteral("ile de france"));
        EscribirYSalir(t("txtnommunc"), QStringLiteral("paris"));
        QCOMPARE(r.PAIS, QStringLiteral("FRANCIA"));
        QCOMPARE(r.NOMPROVC, QStringLiteral("ILE DE FRANCE"));
        QCOMPARE(r.NOMMUNC, QStringLiteral("PARIS"));

        clicEnCasilla(c<QCheckBox>("chktipodomi"));
        QCOMPARE(r.TIPODOMI, QStringLiteral("N"));
        QVERIFY(r.PAIS.isEmpty() && r.NOMPROVC.isEmpty() && r.NOMMUNC.isEmpty());
        QVERIFY(r.CODPROVC.isEmpty());  // no province is given back
        QVERIFY(cerrado(t("txtpais")));
        QCOMPARE(t("txtpais")->text(), QString());
        QVERIFY(abierto(n("txtcodprovc")));
        QCOMPARE(n("txtcodprovc")->text(), QString());
        QVERIFY(cerrado(n("txtcodmunc")));
        QVERIFY(b("cmdProvincia")->isEnabled());

        // With everything else right, the missing province stops Aceptar.
        EscribirYSalir(t("txtdnic"), QStringLiteral("12345678Z"));
        EscribirYSalir(t("txtnombrec"), QStringLiteral("PEREZ"));
        EscribirYSalir(t("txtdomicilioc"), QStringLiteral("MAYOR"));
        EscribirYSalir(n("txtcodposc"), QStringLiteral("48001"));
        MensajeSeam::setNextAnswer(vb::OK);  // the verdict's notice
        Clic(b("cmdAceptar"));
        QCOMPARE(MensajeSeam::registro().size(), 1);
        const QString texto = MensajeSeam::registro()[0].texto;
        QVERIFY2(texto == Texto(kIdProvinciaYCodigoPostalNoCoinciden)
                 || texto == Texto(kIdCodigoProvinciaVacio), qPrintable(texto));
        QCOMPARE(Foco(), texto == Texto(kIdProvinciaYCodigoPostalNoCoinciden)
                 ? static_cast<QWidget*>(n("txtcodposc"))
                 : static_cast<QWidget*>(n("txtcodprovc")));
        QVERIFY(m_prog->panel(QStringLiteral("FrmConDatos")));
        QCOMPARE(ValorAlmacenado(QStringLiteral("SELECT COUNT(*) FROM CONTRIBUYENTES")).toInt(), 0);
    }

    void dniExtranjero()
    {
        abrirNuevo();
        clicEnCasilla(c<QCheckBox>("chktipodni"));
        QCOMPARE(ConDatos().TIPODNI, QStringLiteral("N"));
        QVERIFY(frm()->Modificado());
        QCOMPARE(Foco(), t("txtdnic"));
        clicEnCasilla(c<QCheckBox>("chktipodni"));
        QCOMPARE(ConDatos().TIPODNI, QStringLiteral("O"));
    }

    void casillasSegunLasDeclaracionesComoSujeto()
    {
        ContribuyenteDePanel sujeto;
        const int32_t cs = GuardarEnAlmacen(sujeto);
        ContribuyenteDePanel transmitente;
        transmitente.DNIC = QStringLiteral("87654321X");
        const int32_t ct = GuardarEnAlmacen(transmitente);
        QVERIFY(cs > 0 && ct > 0);
        DeclaracionCon("CSSU", cs);
        DeclaracionCon("CSTRA", ct);

        abrirExistente(cs);
        QCOMPARE(ConDatos().NUMSP, 1.0);
        QVERIFY(!c<QCheckBox>("chktipodni")->isEnabled());
        QVERIFY(!c<QCheckBox>("chktipodomi")->isEnabled());
        QCOMPARE(n("txtnumsp")->text(), QStringLiteral("1"));
        Clic(b("cmdCancelar"));
        QVERIFY(!m_panel);

        abrirExistente(ct);
        QCOMPARE(ConDatos().NUMTR, 1.0);
        QCOMPARE(ConDatos().NUMSP, 0.0);
        QVERIFY(c<QCheckBox>("chktipodni")->isEnabled());
        QVERIFY(c<QCheckBox>("chktipodomi")->isEnabled());
        QCOMPARE(n("txtnumtr")->text(), QStringLiteral("1"));
    }

    void contribuyenteExistenteSeMuestraDelAlmacen()
    {
        ContribuyenteDePanel x;
        x.CODPROVC = QStringLiteral("1");
        x.CODPOSC = QStringLiteral("01001");
        x.CODMUNC.clear();
        x.NOMMUNC = QStringLiteral("VITORIA");
        const int32_t cs = GuardarEnAlmacen(x);
        abrirExistente(cs);
        QCOMPARE(ConDatos().CODPROVC, QStringLiteral("01"));
        QCOMPARE(n("txtcodprovc")->text(), QStringLiteral("01"));
        QCOMPARE(t("txtnomprovc")->text(), QStringLiteral("Álava"));
        QCOMPARE(t("txtnommunc")->text(), QStringLiteral("VITORIA"));
        QCOMPARE(t("txtviac")->text(), QStringLiteral("AV"));
        QCOMPARE(t("txtviaaux")->text(), QStringLiteral("Avenida"));
        QCOMPARE(n("txtnumeroc")->text(), QStringLiteral("12"));
        QCOMPARE(n("txtcodposc")->text(), QStringLiteral("01001"));
        QVERIFY(cerrado(n("txtcodmunc")));
        QVERIFY(abierto(t("txtnommunc")));
        QVERIFY(!frm()->Modificado());

        ContribuyenteDePanel y;
        y.DNIC = QStringLiteral("87654321X");
        y.CODMUNC = QStringLiteral("5");
        const int32_t cy = GuardarEnAlmacen(y);
        Clic(b("cmdCancelar"));
        Procesar();
        abrirExistente(cy);
        QCOMPARE(t("txtnommunc")->text(), QStringLiteral("TORREMOLAR DE ARBELIA"));
        QCOMPARE(n("txtcodmunc")->text(), QStringLiteral("5"));
        QVERIFY(abierto(n("txtcodmunc")));
    }

    void aceptarSinCambiosValidaPeroNoEscribe()
    {
        const int32_t cs = GuardarEnAlmacen(ContribuyenteDePanel());
        abrirExistente(cs, QString());
        // Someone else changes the stored row meanwhile: an unchanged panel does not overwrite it.
        EjecutarEnAlmacen(QStringLiteral("UPDATE CONTRIBUYENTES SET NOMBREC = 'OTRO' WHERE CSCO = ?"), {cs});
        Clic(b("cmdAceptar"));
        QVERIFY(MensajeSeam::registro().isEmpty());
        QVERIFY(!m_panel);
        QCOMPARE(ValorAlmacenado(QStringLiteral("SELECT NOMBREC FROM CONTRIBUYENTES WHERE CSCO = ?"), {cs})
                     .toString(),
                 QStringLiteral("OTRO"));
        QVERIFY(!menusApagados());
    }

    void aceptarConCambiosEscribe()
    {
        const int32_t cs = GuardarEnAlmacen(ContribuyenteDePanel());
        abrirExistente(cs, QString());
        EscribirYSalir(t("txtnombrec"), QStringLiteral("GARCIA"));
        Entrar(b("cmdVia"));
        Clic(b("cmdAceptar"));
        QVERIFY(!m_panel);
        QVERIFY(MensajeSeam::registro().isEmpty());
        QCOMPARE(ValorAlmacenado(QStringLiteral("SELECT NOMBREC FROM CONTRIBUYENTES WHERE CSCO = ?"), {cs})
                     .toString(),
                 QStringLiteral("GARCIA"));
    }

    void loTecleadoSinSalirSeGuardaConAceptar()
    {
        // The click on Aceptar leaves the field first.
        const int32_t cs = GuardarEnAlmacen(ContribuyenteDePanel());
        abrirExistente(cs, QString());
        Escribir(t("txtdomicilioc"), QStringLiteral("NUEVA"));
        Clic(b("cmdAceptar"));
        QVERIFY(!m_panel);
        QCOMPARE(ValorAlmacenado(QStringLiteral("SELECT DOMICILIOC FROM CONTRIBUYENTES WHERE CSCO = ?"), {cs})
                     .toString(),
                 QStringLiteral("NUEVA"));
    }

    void teclaDeAccesoDeAceptarDejaElCampoAntes()
    {
        const int32_t cs = GuardarEnAlmacen(ContribuyenteDePanel());
        abrirExistente(cs, QString());
        Escribir(t("txtpisoc"), QStringLiteral("3"));
        QTest::keyClick(t("txtpisoc"), Qt::Key_A, Qt::AltModifier);
        QTRY_VERIFY(!m_panel);
        QCOMPARE(ValorAlmacenado(QStringLiteral("SELECT PISOC FROM CONTRIBUYENTES WHERE CSCO = ?"), {cs})
                     .toString(),
                 QStringLiteral("3"));
    }

    void teclaDeAccesoDeAceptarConUnCodigoDesconocido()
    {
        abrirNuevo();
        Escribir(t("txtviac"), QStringLiteral("ZZ"));
        QTest::keyClick(t("txtviac"), Qt::Key_A, Qt::AltModifier);
        QTRY_VERIFY(l("lstviac")->isVisible());
        QVERIFY(m_panel);
        QVERIFY(MensajeSeam::registro().isEmpty());
    }

    void dniInvalidoCargadoDetieneAceptar()
    {
        ContribuyenteDePanel x;
        x.DNIC = QStringLiteral("12345678A");  // wrong check letter
        const int32_t cs = GuardarEnAlmacen(x);
        QVERIFY(cs > 0);
        abrirExistente(cs);
        MensajeSeam::setNextAnswer(vb::OK);  // the verdict's notice
        Clic(b("cmdAceptar"));
        QCOMPARE(MensajeSeam::registro().size(), 1);
        const auto& m = MensajeSeam::registro()[0];
        QCOMPARE(m.texto, Texto(kIdNifSinDigitoControl));
        QCOMPARE(m.titulo, QStringLiteral("Datos del Contribuyente"));
        QCOMPARE(m.botones, 64);
        QVERIFY(m_panel);
        QCOMPARE(Foco(), t("txtdnic"));
    }

    void veredictosDeValidacion_data()
    {
        QTest::addColumn<int>("caso");
        QTest::addColumn<int>("id");
        QTest::addColumn<QString>("foco");
        QTest::newRow("1 DNI mal formado") << 1 << 330 << "txtdnic";
        QTest::newRow("2 DNI vacio") << 2 << 29 << "txtdnic";
        QTest::newRow("3 nombre") << 3 << 30 << "txtnombrec";
        QTest::newRow("4 domicilio") << 4 << 31 << "txtdomicilioc";
        QTest::newRow("5 pais") << 5 << 32 << "txtpais";
        QTest::newRow("6 provincia y postal") << 6 << 33 << "txtcodposc";
        QTest::newRow("7 cinco cifras") << 7 << 34 << "txtcodposc";
        QTest::newRow("8 tres ceros") << 8 << 35 << "txtcodposc";
        QTest::newRow("9 postal cero") << 9 << 36 << "txtcodposc";
        QTest::newRow("10 nombre de provincia") << 10 << 37 << "txtnomprovc";
        QTest::newRow("11 nombre de municipio") << 11 << 38 << "txtnommunc";
        QTest::newRow("12 codigo de provincia") << 12 << 39 << "txtcodprovc";
        QTest::newRow("13 codigo de municipio") << 13 << 40 << "txtcodmunc";
        QTest::newRow("14 digito de control") << 14 << 329 << "txtdnic";
    }

    void veredictosDeValidacion()
    {
        QFETCH(int, caso);
        QFETCH(int, id);
        QFETCH(QString, foco);
        cConDatos& r = ConDatos();
        r.IniciarNuevo();
        r.CSCO = 0;
        RegistroValido(r);
        const auto extranjero = [&r] {
            r.TIPODOMI = QStringLiteral("E");
            r.CODPROVC.clear();
            r.CODMUNC.clear();
            r.PAIS = QStringLiteral("FRANCIA");
            r.NOMPROVC = QStringLiteral("PARIS");
            r.NOMMUNC = QStringLiteral("PARIS");
            r.CODPOSC = QStringLiteral("75001");
        };
        switch (caso) {
        case 1: r.DNIC = QStringLiteral("1234"); break;
        case 2: r.DNIC.clear(); break;
        case 3: r.NOMBREC.clear(); break;
        case 4: r.DOMICILIOC.clear(); break;
        case 5: extranjero(); r.PAIS.clear(); break;
        case 6: r.CODPOSC = QStringLiteral("01001"); break;
        case 7: r.CODPOSC = QStringLiteral("7710"); break;
        case 8: r.CODPOSC = QStringLiteral("77000"); break;
        case 9: r.CODPOSC.clear(); break;
        case 10: extranjero(); r.NOMPROVC.clear(); break;
        case 11: r.CODPROVC = QStringLiteral("01"); r.CODPOSC = QStringLiteral("01001"); r.CODMUNC.clear(); break;
        case 12: r.CODPROVC.clear(); r.CODPOSC = QStringLiteral("01001"); r.CODMUNC.clear(); r.NOMMUNC = QStringLiteral("X"); break;
        case 13: r.CODMUNC.clear(); break;
        case 14: r.DNIC = QStringLiteral("12345678A"); break;
        }
        abrirConRegistro();
        MensajeSeam::setNextAnswer(vb::OK);  // the verdict's notice
        Clic(b("cmdAceptar"));
        QCOMPARE(MensajeSeam::registro().size(), 1);
        const auto& m = MensajeSeam::registro()[0];
        QCOMPARE(m.texto, Texto(id));
        QCOMPARE(m.titulo, Texto(kIdDatosContribuyente));
        QCOMPARE(m.botones, int(vb::OKOnly + vb::Information));
        QVERIFY(m_panel);
        QCOMPARE(Foco()->objectName(), foco);
        QCOMPARE(ValorAlmacenado(QStringLiteral("SELECT COUNT(*) FROM CONTRIBUYENTES")).toInt(), 0);
    }

    void registroValidoSeGuardaComoNuevo()
    {
        RegistroValido(ConDatos());
        ConDatos().CODMUNC = QStringLiteral("1");
        abrirConRegistro();
        // Nothing typed yet: Aceptar validates, writes nothing and closes.
        Clic(b("cmdAceptar"));
        QVERIFY(!m_panel);
        QCOMPARE(ValorAlmacenado(QStringLiteral("SELECT COUNT(*) FROM CONTRIBUYENTES")).toInt(), 0);
        abrirConRegistro();
        EscribirYSalir(t("txtnombrec"), QStringLiteral("PEREZ LOPEZ ANA"));
        Clic(b("cmdAceptar"));
        QVERIFY(!m_panel);
        QCOMPARE(ValorAlmacenado(QStringLiteral("SELECT NOMBREC FROM CONTRIBUYENTES WHERE DNIC = '12345678Z'"))
                     .toString(),
                 QStringLiteral("PEREZ LOPEZ ANA"));
        QCOMPARE(ValorAlmacenado(QStringLiteral("SELECT CODMUNC FROM CONTRIBUYENTES WHERE DNIC = '12345678Z'"))
                     .toString(),
                 QStringLiteral("001"));
    }

    void altaDeUnDniQueYaExiste()
    {
        GuardarEnAlmacen(ContribuyenteDePanel());
        RegistroValido(ConDatos());
        abrirConRegistro();
        EscribirYSalir(t("txtnombrec"), QStringLiteral("OTRO NOMBRE"));
        MensajeSeam::setNextAnswer(vb::OK);  // the verdict's notice
        Clic(b("cmdAceptar"));
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro()[0].texto, Texto(kIdAltaContribuyenteDniExistente));
        QCOMPARE(MensajeSeam::registro()[0].botones, 64);
        QVERIFY(m_panel);
        QCOMPARE(Foco(), b("cmdAceptar"));  // the focus does not move
        QCOMPARE(ValorAlmacenado(QStringLiteral("SELECT COUNT(*) FROM CONTRIBUYENTES")).toInt(), 1);
    }

    void cambioADniDeOtro()
    {
        GuardarEnAlmacen(ContribuyenteDePanel());
        ContribuyenteDePanel otro;
        otro.DNIC = QStringLiteral("87654321X");
        const int32_t co = GuardarEnAlmacen(otro);
        abrirExistente(co);
        EscribirYSalir(t("txtdnic"), QStringLiteral("12345678Z"));
        MensajeSeam::setNextAnswer(vb::OK);  // the verdict's notice
        Clic(b("cmdAceptar"));
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro()[0].texto, Texto(kIdModificarContribuyenteDniExistente));
        QVERIFY(m_panel);
        QCOMPARE(t("txtdnic")->text(), QStringLiteral("12345678Z"));
        QCOMPARE(ValorAlmacenado(QStringLiteral("SELECT DNIC FROM CONTRIBUYENTES WHERE CSCO = ?"), {co}).toString(),
                 QStringLiteral("87654321X"));
    }

    void cancelarDesdeUnCampoConSelectorNoAbreNada()
    {
        abrirNuevo();
        Escribir(t("txtviac"), QStringLiteral("ZZ"));
        Clic(b("cmdCancelar"));
        QVERIFY(!m_panel);
        QVERIFY(m_prog->paneles().isEmpty());
        QCOMPARE(ConDatos().VIAC, QStringLiteral("CL"));
        QVERIFY(MensajeSeam::registro().isEmpty());
        QVERIFY(!menusApagados());

        // An empty municipality in 77, left by the press on Cancelar.
        abrirNuevo();
        Entrar(n("txtcodmunc"));
        Clic(b("cmdCancelar"));
        QVERIFY(!m_panel);

        // The same fields left by Tab do open their picker.
        abrirNuevo();
        Escribir(t("txtviac"), QStringLiteral("ZZ"));
        Tabular();
        QVERIFY(l("lstviac")->isVisible());
        QCOMPARE(t("txtviaaux")->text(), QString());
        QCOMPARE(ConDatos().VIAC, QStringLiteral("CL"));
        escape(l("lstviac"));
        QCOMPARE(Foco(), t("txtviac"));
        QCOMPARE(t("txtviac")->text(), QStringLiteral("ZZ"));
        // The icon acts as the button.
        Clic(c<QLabel>("PicCan"));
        QVERIFY(!m_panel);
        QVERIFY(MensajeSeam::registro().isEmpty());
    }

    void clicFueraDeLosCamposNoMueveElFoco()
    {
        abrirNuevo();
        Escribir(t("txtviac"), QStringLiteral("ZZ"));
        Clic(c<QLabel>("lbldomicilioc"));
        Clic(c<QFrame>("fraDatos"));
        QCOMPARE(Foco(), t("txtviac"));
        QVERIFY(!l("lstviac")->isVisible());
        Clic(t("txtnombrec"));
        QVERIFY(l("lstviac")->isVisible());
    }

    void codigoPostalExtranjeroSinRelleno()
    {
        abrirNuevo();
        EscribirYSalir(n("txtcodmunc"), QStringLiteral("1"));
        EscribirYSalir(n("txtcodposc"), QStringLiteral("123"));
        QCOMPARE(n("txtcodposc")->text(), QStringLiteral("00123"));
        QCOMPARE(ConDatos().CODPOSC, QStringLiteral("00123"));
        clicEnCasilla(c<QCheckBox>("chktipodomi"));
        EscribirYSalir(n("txtcodposc"), QStringLiteral("456"));
        QCOMPARE(n("txtcodposc")->text(), QStringLiteral("456"));
        QCOMPARE(ConDatos().CODPOSC, QStringLiteral("456"));
    }

    void vueltaALaListaConElNuevoSeleccionado()
    {
        RegistroValido(ConDatos());
        Navegacion::RutaCon().modo = Navegacion::Modo::Nuevo;
        ConDatos().IniciarNuevo();
        Navegacion::RutaCon().origen = Navegacion::OrigenParte::Lista;
        ConDatos().CSCO = 0;
        m_panel = Navegacion::AbrirConDatos();
        Procesar();
        EscribirYSalir(t("txtdnic"), QStringLiteral("12345678Z"));
        EscribirYSalir(t("txtnombrec"), QStringLiteral("NUEVO"));
        EscribirYSalir(t("txtdomicilioc"), QStringLiteral("MAYOR"));
        EscribirYSalir(n("txtcodposc"), QStringLiteral("77100"));
        EscribirYSalir(n("txtcodmunc"), QStringLiteral("3"));
        Clic(b("cmdAceptar"));
        QVERIFY(MensajeSeam::registro().isEmpty());
        QVERIFY(!m_panel);
        const int32_t nuevo =
            ValorAlmacenado(QStringLiteral("SELECT CSCO FROM CONTRIBUYENTES WHERE DNIC = '12345678Z'")).toInt();
        QVERIFY(nuevo > 0);
        QCOMPARE(ConLista().CSCO, nuevo);
        QCOMPARE(Navegacion::Letras(ConLista().ENTRADA), QStringLiteral("P"));
        QCOMPARE(m_prog->paneles(), QStringList{QStringLiteral("FrmConLista")});
    }

    void cancelarVuelveALaLista()
    {
        const int32_t cs = GuardarEnAlmacen(ContribuyenteDePanel());
        ConLista().CSCO = cs;
        abrirExistente(cs, QStringLiteral("S"));
        Clic(b("cmdCancelar"));
        QVERIFY(!m_panel);
        QCOMPARE(Navegacion::Letras(ConLista().ENTRADA), QStringLiteral("P"));
        QCOMPARE(ConLista().CSCO, cs);
        QCOMPARE(m_prog->paneles(), QStringList{QStringLiteral("FrmConLista")});
    }

    void cerrarElMarcoCierraElPanel()
    {
        abrirNuevo();
        QVERIFY(menusApagados());
        m_panel->parentWidget()->close();
        Procesar();
        QVERIFY(!m_panel);
        QVERIFY(!menusApagados());
        QVERIFY(m_prog->paneles().isEmpty());
    }

    // ----- The pickers on this panel -----

    void viaPorBotonYDobleClic()
    {
        abrirNuevo();
        Clic(b("cmdVia"));
        cListaClaves* lista = l("lstviac");
        QVERIFY(lista->isVisible());
        QCOMPARE(Foco(), lista);
        QCOMPARE(TextoActual(lista), QStringLiteral("Calle"));
        QVERIFY(!c<QFrame>("fraDatos")->isEnabled());
        QVERIFY(!c<QFrame>("fraBotones")->isEnabled());
        // The rest of the panel takes nothing meanwhile.
        Clic(t("txtnombrec"));
        QCOMPARE(Foco(), lista);
        DobleClicEnTexto(lista, QStringLiteral("Avenida"));
        QVERIFY(!lista->isVisible());
        QCOMPARE(ConDatos().VIAC, QStringLiteral("AV"));
        QCOMPARE(t("txtviac")->text(), QStringLiteral("AV"));
        QCOMPARE(t("txtviaaux")->text(), QStringLiteral("Avenida"));
        QCOMPARE(Foco(), t("txtdomicilioc"));
        QVERIFY(c<QFrame>("fraDatos")->isEnabled());
        QVERIFY(c<QFrame>("fraBotones")->isEnabled());
        QVERIFY(frm()->Modificado());
    }

    void viaTecleadaConocida()
    {
        abrirNuevo();
        EscribirYSalir(t("txtviac"), QStringLiteral("pj"));
        QCOMPARE(ConDatos().VIAC, QStringLiteral("PJ"));
        QCOMPARE(t("txtviaaux")->text(), QStringLiteral("Pasaje"));
        QVERIFY(!l("lstviac")->isVisible());
    }

    void provinciaPorTecladoBusquedaYEnter()
    {
        abrirNuevo();
        Entrar(n("txtcodprovc"));
        Tabular();
        QCOMPARE(Foco(), b("cmdProvincia"));
        QTest::keyClick(b("cmdProvincia"), Qt::Key_Space);
        Procesar();
        cListaClaves* lista = l("lstcodprovc");
        QVERIFY(lista->isVisible());
        QCOMPARE(TextoActual(lista), QStringLiteral("Arbelia"));
        // Letters look names up by their first letters; other keys do nothing.
        QTest::keyClick(lista, Qt::Key_B);
        QVERIFY2(TextoActual(lista).startsWith(QLatin1Char('B')), qPrintable(TextoActual(lista)));
        QTest::keyClicks(lista, QStringLiteral("#"));
        QVERIFY(TextoActual(lista).startsWith(QLatin1Char('B')));
        QTest::qWait(1100);
        QTest::keyClicks(lista, QStringLiteral("al"));
        QCOMPARE(TextoActual(lista), QStringLiteral("Álava"));
        // Enter chooses; it does not move to the next field.
        QTest::keyClick(lista, Qt::Key_Return);
        Procesar();
        QVERIFY(!lista->isVisible());
        QCOMPARE(ConDatos().CODPROVC, QStringLiteral("01"));
        QCOMPARE(n("txtcodprovc")->text(), QStringLiteral("01"));
        QCOMPARE(t("txtnomprovc")->text(), QStringLiteral("Álava"));
        QVERIFY(ConDatos().CODMUNC.isEmpty());
        QVERIFY(cerrado(n("txtcodmunc")));
        QVERIFY(abierto(t("txtnommunc")));
        QVERIFY(!b("cmdMunicipio")->isEnabled());
        QCOMPARE(Foco(), n("txtcodposc"));
    }

    void eligiendo77SeAbreElCodigoDeMunicipio()
    {
        abrirNuevo();
        EscribirYSalir(n("txtcodprovc"), QStringLiteral("20"));
        EscribirYSalir(t("txtnommunc"), QStringLiteral("DONOSTIA"));
        QVERIFY(cerrado(n("txtcodmunc")));
        Clic(b("cmdProvincia"));
        QCOMPARE(TextoActual(l("lstcodprovc")), t("txtnomprovc")->text());
        DobleClicEnTexto(l("lstcodprovc"), QStringLiteral("Arbelia"));
        QCOMPARE(ConDatos().CODPROVC, QStringLiteral("77"));
        QVERIFY(ConDatos().NOMMUNC.isEmpty());
        QVERIFY(abierto(n("txtcodmunc")));
        QVERIFY(cerrado(t("txtnommunc")));
        QCOMPARE(t("txtnommunc")->text(), QString());
        QVERIFY(b("cmdMunicipio")->isEnabled());
    }

    void de77AOtraProvinciaPorElSelector()
    {
        abrirNuevo();
        Clic(b("cmdMunicipio"));
        ElegirConEnter(l("lstcodmunc"), QStringLiteral("VELDORRETA"));
        QCOMPARE(ConDatos().CODMUNC, QStringLiteral("2"));
        QCOMPARE(n("txtcodmunc")->text(), QStringLiteral("2"));
        QCOMPARE(t("txtnommunc")->text(), QStringLiteral("VELDORRETA"));
        QCOMPARE(Foco(), b("cmdAceptar"));
        Clic(b("cmdProvincia"));
        DobleClicEnTexto(l("lstcodprovc"), QStringLiteral("Burgos"));
        QCOMPARE(ConDatos().CODPROVC, QStringLiteral("09"));
        QVERIFY(ConDatos().CODMUNC.isEmpty());
        QVERIFY(ConDatos().NOMMUNC.isEmpty());
        QCOMPARE(t("txtnommunc")->text(), QString());
        QCOMPARE(n("txtcodmunc")->text(), QString());
    }

    void escapeNoCambiaNada()
    {
        abrirNuevo();
        Clic(b("cmdVia"));
        escape(l("lstviac"));
        QCOMPARE(Foco(), t("txtviac"));
        QCOMPARE(ConDatos().VIAC, QStringLiteral("CL"));
        QCOMPARE(t("txtviaaux")->text(), QStringLiteral("Calle"));
        Clic(b("cmdMunicipio"));
        cListaClaves* lista = l("lstcodmunc");
        QTest::keyClick(lista, Qt::Key_Down);
        escape(lista);
        QVERIFY(!lista->isVisible());
        QVERIFY(ConDatos().CODMUNC.isEmpty());
        QCOMPARE(t("txtnommunc")->text(), QString());
        QCOMPARE(Foco(), n("txtcodmunc"));
        QVERIFY(!frm()->Modificado());
    }
};

QTEST_MAIN(TestFrmConDatos)
#include "test_frmcondatos.moc"
