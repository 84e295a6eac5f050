// The data panels when another running copy of the program has saved or deleted the party the
// panel loaded: Aceptar writes nothing over it, shows why, keeps what was typed, and on the
// user's Yes puts the stored party in the panel instead; a No leaves the panel as typed.
#include "ApoyoDatos.h"
#include "catalogo/IdsCatalogo.h"

#include "catalogo/Catalogo.h"
#include "comun/OtraConexion.h"
#include "paneles/dialogos/Mensaje.h"
#include "registros/partes/cConDatos.h"
#include "registros/partes/cPreDatos.h"
#include "servicios/Almacen.h"
#include "servicios/cContribSvr.h"
#include "servicios/cPresenSvr.h"

#include <stdexcept>

namespace {

const QString kDelPanel = QStringLiteral("ESCRITO EN EL PANEL");
const QString kDeLaOtra = QStringLiteral("DE LA OTRA COPIA");

// The box that asks whether to load the stored party.
QString pregunta()
{
    return Texto(kIdDatosCambiadosDesdeApertura) + QStringLiteral("\n")
        + Texto(kIdPreguntaCargarDatosGuardados);
}

QString nombreContribuyente(int32_t csco)
{
    return ValorAlmacenado(QStringLiteral("SELECT NOMBREC FROM CONTRIBUYENTES WHERE CSCO = ?"), {csco})
        .toString();
}

QString nombrePresentador(int32_t cspr)
{
    return ValorAlmacenado(QStringLiteral("SELECT NOMBREP FROM PRESENTADORES WHERE CSPR = ?"), {cspr})
        .toString();
}

// Another copy of the program, on a connection of its own, renames the contributor (a save
// that renews the stored row's version, as every save does).
bool otraCopiaRenombraContribuyente(int32_t csco)
{
    return EnOtraConexion([csco] {
        Contribuyente c = Almacen<cContribSvr>().CargarContribuyente(csco).value();
        c.NOMBREC = kDeLaOtra;
        if (!Almacen<cContribSvr>().GuardarContribuyente(c))
            throw std::runtime_error("no guardado");
    });
}

bool otraCopiaRenombraPresentador(int32_t cspr)
{
    return EnOtraConexion([cspr] {
        Presentador p = Almacen<cPresenSvr>().CargarPresentador(cspr).value();
        p.NOMBREP = kDeLaOtra;
        if (!Almacen<cPresenSvr>().GuardarPresentador(p))
            throw std::runtime_error("no guardado");
    });
}

}  // namespace

class TestDatosCambiados : public QObject, ControlesDePanel {
    Q_OBJECT

    std::unique_ptr<ProgramaDePrueba> m_prog;

    void abrirContribuyente(int32_t csco)
    {
        m_panel = AbrirDatos<FrmConDatos>(ConDatos(), ConDatos().CSCO, QStringLiteral("C"),
                                          QString(), csco);
    }
    void abrirPresentador(int32_t cspr)
    {
        m_panel = AbrirDatos<FrmPreDatos>(PreDatos(), PreDatos().CSPR, QStringLiteral("C"),
                                          QString(), cspr);
    }
    // Aceptar with the answer to the box queued; the box's text and buttons are checked.
    void aceptarConRespuesta(int respuesta, const QString& texto, int botones)
    {
        MensajeSeam::limpiar();
        MensajeSeam::setNextAnswer(respuesta);
        Clic(b("cmdAceptar"));
        Procesar();
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro()[0].texto, texto);
        QCOMPARE(MensajeSeam::registro()[0].botones, botones);
    }

private slots:
    void init() { m_prog = std::make_unique<ProgramaDePrueba>(); }
    void cleanup()
    {
        m_prog.reset();
        Procesar();
    }

    void contribuyenteCambiadoSeConservaLoEscrito()
    {
        const int32_t cs = GuardarEnAlmacen(ContribuyenteDePanel());
        abrirContribuyente(cs);
        QVERIFY(m_panel);
        QVERIFY(otraCopiaRenombraContribuyente(cs));
        EscribirYSalir(t("txtnombrec"), kDelPanel);

        // No: nothing written, the panel and the record keep what was typed.
        aceptarConRespuesta(vb::No, pregunta(), vb::YesNo + vb::Question + vb::DefaultButton2);
        QVERIFY(m_panel);
        QCOMPARE(nombreContribuyente(cs), kDeLaOtra);
        QCOMPARE(t("txtnombrec")->text(), kDelPanel);
        QCOMPARE(ConDatos().NOMBREC, kDelPanel);

        // Asked again on the next Aceptar; Yes: the stored contributor in the panel.
        aceptarConRespuesta(vb::Yes, pregunta(), vb::YesNo + vb::Question + vb::DefaultButton2);
        QVERIFY(m_panel);
        QCOMPARE(nombreContribuyente(cs), kDeLaOtra);
        QCOMPARE(t("txtnombrec")->text(), kDeLaOtra);
        QCOMPARE(ConDatos().NOMBREC, kDeLaOtra);
        QVERIFY(!qobject_cast<FrmConDatos*>(m_panel.data())->Modificado());

        // Edited from the stored contributor, the save goes through.
        EscribirYSalir(t("txtnombrec"), QStringLiteral("TRAS CARGAR"));
        MensajeSeam::limpiar();
        Clic(b("cmdAceptar"));
        Procesar();
        QVERIFY(MensajeSeam::registro().isEmpty());
        QVERIFY(!m_panel);
        QCOMPARE(nombreContribuyente(cs), QStringLiteral("TRAS CARGAR"));
    }

    void contribuyenteBorradoNoSeVuelveAEscribir()
    {
        const int32_t cs = GuardarEnAlmacen(ContribuyenteDePanel());
        abrirContribuyente(cs);
        QVERIFY(EnOtraConexion([cs] { Almacen<cContribSvr>().BorrarContribuyente(cs); }));
        EscribirYSalir(t("txtnombrec"), kDelPanel);
        aceptarConRespuesta(vb::OK, Texto(kIdDatosBorradosDesdeApertura), vb::OKOnly
                            + vb::Information);
        QVERIFY(m_panel);
        QCOMPARE(t("txtnombrec")->text(), kDelPanel);
        QCOMPARE(ValorAlmacenado(QStringLiteral("SELECT COUNT(*) FROM CONTRIBUYENTES")).toInt(), 0);
        Clic(b("cmdCancelar"));
        QVERIFY(!m_panel);
        QCOMPARE(ValorAlmacenado(QStringLiteral("SELECT COUNT(*) FROM CONTRIBUYENTES")).toInt(), 0);
    }

    void presentadorCambiadoAmbasRespuestas()
    {
        const int32_t cp = GuardarEnAlmacen(PresentadorDePanel());
        abrirPresentador(cp);
        QVERIFY(m_panel);
        QVERIFY(otraCopiaRenombraPresentador(cp));
        EscribirYSalir(t("txtnombrep"), kDelPanel);

        aceptarConRespuesta(vb::No, pregunta(), vb::YesNo + vb::Question + vb::DefaultButton2);
        QVERIFY(m_panel);
        QCOMPARE(nombrePresentador(cp), kDeLaOtra);
        QCOMPARE(t("txtnombrep")->text(), kDelPanel);

        aceptarConRespuesta(vb::Yes, pregunta(), vb::YesNo + vb::Question + vb::DefaultButton2);
        QVERIFY(m_panel);
        QCOMPARE(nombrePresentador(cp), kDeLaOtra);
        QCOMPARE(t("txtnombrep")->text(), kDeLaOtra);
        QCOMPARE(PreDatos().NOMBREP, kDeLaOtra);
    }
};

QTEST_MAIN(TestDatosCambiados)
#include "test_datos_cambiados.moc"
