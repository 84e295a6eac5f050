// A text the store cannot keep, brought into a party's panel the one way a user can: dragged
// from another program and dropped on a field (the drop, like the field's own context menu, does
// not pass the key filter). Aceptar then shows the program's message, in a box with the panel's
// title, and puts the focus on the field; the panel stays open, the store as it was, and no
// failure notice ends the program. A name of blanks never gets that far: the panel's own check
// answers it first.
#include "ApoyoDatos.h"
#include "catalogo/IdsCatalogo.h"

#include "catalogo/Catalogo.h"
#include "paneles/dialogos/Mensaje.h"
#include "plataforma/Proceso.h"
#include "registros/partes/cConDatos.h"
#include "registros/partes/cPreDatos.h"

namespace {

void ContribuyenteValido(cConDatos& c)
{
    c.IniciarNuevo();
    c.DNIC = QStringLiteral("12345678Z");
    c.NOMBREC.clear();
    c.DOMICILIOC = QStringLiteral("MAYOR");
    c.CODPOSC = QStringLiteral("77100");
    c.CODMUNC = QStringLiteral("001");
}

}  // namespace

class TestTextoArrastrado : public QObject, ControlesDePanel {
    Q_OBJECT
    std::unique_ptr<ProgramaDePrueba> m_prog;

private slots:
    void init() { m_prog = std::make_unique<ProgramaDePrueba>(); }
    void cleanup()
    {
        m_prog.reset();
        Procesar();
    }

    void nombreConNulEnContribuyente()
    {
        ContribuyenteValido(ConDatos());
        m_panel = AbrirConRegistro<FrmConDatos>(ConDatos());
        QVERIFY(m_panel);
        Entrar(t("txtnombrec"));
        Soltar(t("txtnombrec"), QString(QChar(u'\0')) + QStringLiteral("GARCIA LOPEZ"));
        QCOMPARE(t("txtnombrec")->text().size(), 13);
        Tabular();
        QCOMPARE(ConDatos().NOMBREC.size(), 13);

        MensajeSeam::setNextAnswer(vb::OK);  // the store's refusal
        Clic(b("cmdAceptar"));
        QCOMPARE(MensajeSeam::registro().size(), 1);
        const auto& m = MensajeSeam::registro()[0];
        QCOMPARE(m.texto, QStringLiteral("La casilla Apellidos y Nombre contiene caracteres que "
                                         "no se pueden guardar"));
        QCOMPARE(m.titulo, QStringLiteral("Datos del Contribuyente"));
        QCOMPARE(m.botones, vb::OKOnly + vb::Information);
        QVERIFY(ProcesoSeam::avisos().isEmpty());
        QCOMPARE(ProcesoSeam::finales(), 0);
        QVERIFY(m_panel);
        QCOMPARE(Foco(), t("txtnombrec"));
        QCOMPARE(ValorAlmacenado(QStringLiteral("SELECT COUNT(*) FROM CONTRIBUYENTES")).toInt(), 0);

        // Put right, the same panel saves.
        EscribirYSalir(t("txtnombrec"), QStringLiteral("GARCIA LOPEZ"));
        Clic(b("cmdAceptar"));
        QVERIFY(!m_panel);
        QCOMPARE(ValorAlmacenado(QStringLiteral("SELECT NOMBREC FROM CONTRIBUYENTES")).toString(),
                 QStringLiteral("GARCIA LOPEZ"));
    }

    void nombreRotoEnPresentadorEnEuskera()
    {
        m_prog.reset();
        Procesar();
        m_prog = std::make_unique<ProgramaDePrueba>(QStringLiteral("E"));
        const int32_t p = GuardarEnAlmacen(PresentadorDePanel());
        m_panel = AbrirDatos<FrmPreDatos>(PreDatos(), PreDatos().CSPR, QStringLiteral("C"),
                                          QString(), p);
        QVERIFY(m_panel);
        // Half of a surrogate pair, alone, at the end of the name.
        Entrar(t("txtnombrep"));
        t("txtnombrep")->end(false);
        Soltar(t("txtnombrep"), QString(QChar(char16_t(0xD83D))));
        Tabular();

        MensajeSeam::setNextAnswer(vb::OK);
        Clic(b("cmdAceptar"));
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro()[0].texto,
                 QStringLiteral("Deiturak eta izena laukiak gorde ezin diren karaktereak ditu"));
        QCOMPARE(MensajeSeam::registro()[0].titulo, TextoFila(kIdDatosPresentador + 10000));
        QVERIFY(ProcesoSeam::avisos().isEmpty());
        QVERIFY(m_panel);
        QCOMPARE(Foco(), t("txtnombrep"));
        QCOMPARE(ValorAlmacenado(QStringLiteral("SELECT NOMBREP FROM PRESENTADORES WHERE CSPR = ?"),
                                 {p})
                     .toString(),
                 QStringLiteral("GESTORIA ARBELIA"));
    }
};

QTEST_MAIN(TestTextoArrastrado)
#include "test_texto_arrastrado.moc"
