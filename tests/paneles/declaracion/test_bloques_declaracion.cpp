// The blocks of the declaration form on their own: each one made in a bare panel, with a link
// that records what the block asks of the form. A block draws its controls from the record,
// writes the record back when one of its fields is left, runs that field's checks, and asks
// the form for what must follow (the calculation, a drawing, a tab).
#include "ApoyoDeclaracionPanel.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "comun/DeclaracionPrueba.h"
#include "comun/ProgramaPrueba.h"
#include "paneles/controles/CajaNum.h"
#include "paneles/declaracion/BloqueImportes.h"
#include "paneles/declaracion/BloquePresentador.h"
#include "paneles/declaracion/BloqueSujeto.h"
#include "paneles/declaracion/BloqueTransmitente.h"
#include "paneles/declaracion/BloqueVehiculo.h"
#include "paneles/dialogos/Mensaje.h"
#include "paneles/partes/BloqueDomicilio.h"
#include "paneles/partes/SalidaCampos.h"
#include "registros/declaracion/cDecDatos.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QVBoxLayout>

namespace {

// A bare panel for one block: the block's frame, a field outside the block to leave to, and
// the link, whose calls are written down in `pedidos` in the order they come.
struct PanelDePrueba {
    std::unique_ptr<QWidget> panel = std::make_unique<QWidget>();
    QFrame* marco = new QFrame(panel.get());
    QLineEdit* fuera = new QLineEdit(panel.get());
    SalidaCampos* salidas = new SalidaCampos(panel.get());
    QStringList pedidos;
    bool saltando = false;

    PanelDePrueba()
    {
        panel->setWindowTitle(QStringLiteral("Bloque"));
        fuera->setObjectName(QStringLiteral("fuera"));
        auto* todo = new QVBoxLayout(panel.get());
        todo->addWidget(marco);
        todo->addWidget(fuera);
    }

    EnlaceDeclaracion Enlace()
    {
        EnlaceDeclaracion e;
        auto anotar = [this](const char* pedido) {
            return [this, pedido] { pedidos << QString::fromLatin1(pedido); };
        };
        e.salidas = salidas;
        e.saltando = [this] { return saltando; };
        e.saltar = [this](bool si) { saltando = si; };
        e.modificado = anotar("modificado");
        e.presentar = anotar("presentar");
        e.redibujar = anotar("redibujar");
        e.activarSelectores = anotar("activarSelectores");
        e.calcular = anotar("calcular");
        e.tipoBloqueado = [] { return true; };
        e.cargarNombres = anotar("cargarNombres");
        e.mostrarPestana = [this](int p) { pedidos << QStringLiteral("pestana%1").arg(p); };
        e.domicilioCambiado = [this](bool sp) {
            pedidos << QString::fromLatin1(sp ? "espejoSp" : "espejoTr");
        };
        e.elegir = [this](EleccionParte) { pedidos << QStringLiteral("elegir"); };
        e.aceptar = fuera;
        return e;
    }

    // The block laid out in the frame, connected, captioned, drawn, and the panel on screen.
    void Montar(BloqueDeclaracion& bloque)
    {
        bloque.Disponer(new QVBoxLayout(marco));
        bloque.Conectar(Enlace());
        bloque.Anadir_captions();
        bloque.Presentar();
        panel->show();
        panel->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(panel.get()));
    }

    // The focus taken to the field outside the block: the field that had it is left.
    void Salir()
    {
        fuera->setFocus(Qt::MouseFocusReason);
        Procesar();
    }
};

}  // namespace

class TestBloquesDeclaracion : public QObject, ControlesDeDeclaracion {
    Q_OBJECT

private slots:
    void init()
    {
        arrancar();
        DeclaracionValida();
    }

    void cleanup() { cerrar(); }

    // --- Amounts -----------------------------------------------------------------------------

    void importesDibujadosDelRegistro()
    {
        PanelDePrueba p;
        BloqueImportes b(p.panel.get(), p.marco, DecDatos());
        b.FormatearImportes();
        p.Montar(b);
        const cDecDatos& d = DecDatos();
        QCOMPARE(b.txtbasei->text(), QStringLiteral("15.000,00"));
        QCOMPARE(b.txttipoimp->value(), d.TIPOIMP);
        QCOMPARE(b.txtcuota->value(), d.CUOTA.euros());
        QCOMPARE(b.txttotal->value(), d.TOTAL.euros());
        QVERIFY(!b.chkexento->isChecked());
        QVERIFY(b.chkReduccion2->isEnabled());  // a date of 2010
        QCOMPARE(b.chkReduccion1->text(), QStringLiteral("50 %"));
        QVERIFY(p.pedidos.isEmpty());
    }

    void importesBaseEscritaAlSalirPideElCalculo()
    {
        PanelDePrueba p;
        BloqueImportes b(p.panel.get(), p.marco, DecDatos());
        b.FormatearImportes();
        p.Montar(b);
        Escribir(b.txtbasei, QStringLiteral("2000"));
        p.Salir();
        QCOMPARE(DecDatos().BASEI.euros(), 2000.0);
        QCOMPARE(p.pedidos, (QStringList{"modificado", "calcular"}));

        // The same base left again changes nothing; on the way out nothing is written.
        p.pedidos.clear();
        Entrar(b.txtbasei);
        p.Salir();
        QVERIFY(p.pedidos.isEmpty());
        p.saltando = true;
        Escribir(b.txtbasei, QStringLiteral("3000"));
        p.Salir();
        QCOMPARE(DecDatos().BASEI.euros(), 2000.0);
        QVERIFY(p.pedidos.isEmpty());
    }

    void importesExentoAnulaElTipoYPideElCalculo()
    {
        PanelDePrueba p;
        BloqueImportes b(p.panel.get(), p.marco, DecDatos());
        p.Montar(b);
        clicCasilla(b.chkexento);
        const cDecDatos& d = DecDatos();
        QCOMPARE(d.EXENTO, QStringLiteral("X"));
        QCOMPARE(d.TIPOIMP, 0.0);
        QCOMPARE(p.pedidos, (QStringList{"modificado", "calcular"}));
        // Drawn from the record, the reductions close, and drawing asks nothing of the form.
        p.pedidos.clear();
        b.Presentar();
        QVERIFY(b.chkexento->isChecked());
        QVERIFY(!b.chkReduccion1->isEnabled());
        QVERIFY(p.pedidos.isEmpty());
    }

    // --- Date, operation and vehicle ---------------------------------------------------------

    void vehiculoDibujadoYEscritoAlSalir()
    {
        PanelDePrueba p;
        BloqueVehiculo b(p.panel.get(), p.marco, DecDatos());
        b.FormatosFecha();
        b.SeleccionarOperacion();
        p.Montar(b);
        QCOMPARE(b.txtfechad->displayText(), QStringLiteral("15/03/2010"));
        QCOMPARE(b.txtmarca->text(), QStringLiteral("SEAT"));
        QCOMPARE(b.txtoperacion->text(), QStringLiteral("T2"));
        QVERIFY(b.optGasolina->isChecked());
        QVERIFY(!b.TextoOperacion().isEmpty());

        Escribir(b.txtmarca, QStringLiteral("FIAT"));
        p.Salir();
        QCOMPARE(DecDatos().MARCA, QStringLiteral("FIAT"));
        QCOMPARE(p.pedidos, (QStringList{"modificado", "redibujar"}));

        p.pedidos.clear();
        QTest::mouseClick(b.optDiesel, Qt::LeftButton, Qt::NoModifier, QPoint(6, b.optDiesel->height() / 2));
        Procesar();
        QCOMPARE(DecDatos().MOTOR, QStringLiteral("D"));
        QCOMPARE(p.pedidos, (QStringList{"modificado", "presentar"}));
    }

    void vehiculoFechaImposibleAvisaYVuelveLaAnterior()
    {
        PanelDePrueba p;
        BloqueVehiculo b(p.panel.get(), p.marco, DecDatos());
        b.FormatosFecha();
        b.SeleccionarOperacion();
        p.Montar(b);
        MensajeSeam::setNextAnswer(vb::OK);
        Entrar(b.txtfechad);
        b.txtfechad->selectAll();
        QTest::keyClick(b.txtfechad, Qt::Key_Backspace);
        b.txtfechad->setCursorPosition(0);
        Teclear(b.txtfechad, QStringLiteral("31022010"));
        p.Salir();
        QCOMPARE(mensajes().size(), 1);
        QCOMPARE(DecDatos().FECHAD, 20100315);
        QCOMPARE(b.txtfechad->displayText(), QStringLiteral("15/03/2010"));
        QTRY_COMPARE(Foco(), static_cast<QWidget*>(b.txtfechad));
        QVERIFY(!p.pedidos.contains(QStringLiteral("modificado")));
        QVERIFY(!p.saltando);  // the flag raised while the old date came back is down again
    }

    // --- The subject -------------------------------------------------------------------------

    void sujetoNumeroErroneoAvisaYNoSeEscribe()
    {
        PanelDePrueba p;
        BloqueSujeto b(p.panel.get(), p.marco, DecDatos());
        b.Domicilio()->CrearSelectores({p.marco});
        b.Domicilio()->CargarListas();
        p.Montar(b);
        const QString antes = DecDatos().DNISP;
        QCOMPARE(b.txtdnisp->text(), antes);
        QCOMPARE(b.txtnombresp->text(), QStringLiteral("GARCIA LOPEZ JUAN"));
        QCOMPARE(b.Domicilio()->txtdomicilio->text(), QStringLiteral("MAYOR"));

        MensajeSeam::setNextAnswer(vb::OK);
        Escribir(b.txtdnisp, QStringLiteral("12345678A"));
        p.Salir();
        QCOMPARE(mensajes(), QStringList{Texto(kIdDniCifErroneoODigitoControl)});
        QCOMPARE(MensajeSeam::registro().first().titulo, QStringLiteral("Bloque"));
        QCOMPARE(DecDatos().DNISP, antes);
        QCOMPARE(p.pedidos, (QStringList{"presentar", "pestana0"}));
        QTRY_COMPARE(Foco(), static_cast<QWidget*>(b.txtdnisp));
    }

    void sujetoNumeroNuevoEscritoYNombresBuscados()
    {
        PanelDePrueba p;
        BloqueSujeto b(p.panel.get(), p.marco, DecDatos());
        b.Domicilio()->CrearSelectores({p.marco});
        b.Domicilio()->CargarListas();
        p.Montar(b);
        const QString nuevo = Dni(11223344);
        Escribir(b.txtdnisp, nuevo);
        p.Salir();
        QCOMPARE(DecDatos().DNISP, nuevo);
        QCOMPARE(p.pedidos, (QStringList{"modificado", "cargarNombres", "redibujar"}));

        // The address is the block's too: a street left writes the record and asks the form
        // to mirror it on the other side.
        p.pedidos.clear();
        Escribir(b.Domicilio()->txtdomicilio, QStringLiteral("NUEVA"));
        p.Salir();
        QCOMPARE(DecDatos().DOMICILIOSP, QStringLiteral("NUEVA"));
        QCOMPARE(p.pedidos, (QStringList{"modificado", "espejoSp", "redibujar"}));
    }

    // --- The transmitter ---------------------------------------------------------------------

    void transmitenteDomicilioExtranjeroYSalidaPorSuBoton()
    {
        PanelDePrueba p;
        BloqueTransmitente b(p.panel.get(), p.marco, DecDatos());
        b.Domicilio()->CrearSelectores({p.marco});
        b.Domicilio()->CargarListas();
        p.Montar(b);
        QCOMPARE(b.txtdnitr->text(), DecDatos().DNITR);
        QCOMPARE(b.txtnombretr->text(), QStringLiteral("AUTOS VELDO SA"));
        QVERIFY(!b.chktipodomitr->isChecked());
        QVERIFY(cerrado(b.txtpaistr));  // a national address has no country

        clicCasilla(b.chktipodomitr);
        const cDecDatos& d = DecDatos();
        QCOMPARE(d.TIPODOMITR, QStringLiteral("E"));
        QVERIFY(d.CODPROVTR.isEmpty());
        QCOMPARE(p.pedidos, (QStringList{"modificado", "cargarNombres", "redibujar"}));
        b.Presentar();
        QVERIFY(abierto(b.txtpaistr));

        // The press on the transmitter's button is a way out: the form's checks stand aside.
        p.pedidos.clear();
        Clic(b.cmdTransmitente);
        QVERIFY(p.saltando);
        QCOMPARE(p.pedidos, QStringList{"elegir"});
    }

    // --- The presenter -----------------------------------------------------------------------

    void presentadorQuitadoConSuCasilla()
    {
        cDecDatos& d = DecDatos();
        d.CSPR = 7;
        d.DNIPR = Dni(11223344);
        d.NOMBREPR = QStringLiteral("GESTORIA ARBELIA");
        PanelDePrueba p;
        BloquePresentador b(p.panel.get(), p.marco, d);
        p.Montar(b);
        QVERIFY(b.chkConPresentador->isChecked());
        QVERIFY(b.chkConPresentador->isEnabled());
        QCOMPARE(b.txtnombrepr->text(), QStringLiteral("GESTORIA ARBELIA"));

        clicCasilla(b.chkConPresentador);
        QCOMPARE(d.CSPR, 0);
        QVERIFY(d.DNIPR.isEmpty());
        QVERIFY(d.NOMBREPR.isEmpty());
        QCOMPARE(p.pedidos, (QStringList{"modificado", "redibujar"}));
        b.Presentar();
        QVERIFY(!b.chkConPresentador->isEnabled());
        QVERIFY(b.txtnombrepr->text().isEmpty());
    }
};

QTEST_MAIN(TestBloquesDeclaracion)
#include "test_bloques_declaracion.moc"
