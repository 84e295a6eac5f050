// The logic of the declaration answers verdicts and shows nothing itself: the rate out of its
// limits, a bad date, a broken rule and wrong tax numbers each come back as catalogue id, text,
// icon, title and control, and the record as the rule leaves it. The test links no widget, so
// no message box can be asked for.
#include "catalogo/IdsCatalogo.h"
#include "comun/DeclaracionPrueba.h"

#include "catalogo/Catalogo.h"
#include "registros/declaracion/Calculo.h"
#include "registros/declaracion/FechaDevengo.h"
#include "registros/declaracion/Validacion.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cOperacion.h"
#include "registros/nucleo/CEntrada.h"

#include <QTest>

namespace {
const QString kTitulo = QStringLiteral("Declaración");
}

class TestVeredictos : public QObject {
    Q_OBJECT

    std::unique_ptr<AlmacenDePrueba> m_almacen;

private slots:
    void init()
    {
        m_almacen = std::make_unique<AlmacenDePrueba>();
        Entrada().FECMIN = 19930101;
        Entrada().FECMAX = 20271231;
        DeclaracionValida();
    }

    void cleanup() { m_almacen.reset(); }

    void tipoFueraDeLimites()
    {
        DecDatos().OPERACION = QStringLiteral("TL");
        DecDatos().ObtenerDatosOperacion(false);
        DecDatos().TIPOIMP = 3;
        const ResultadoTipo r = AceptarTipoImpositivo(15, false, false);
        QVERIFY(r.presentar && r.volverAlTipo);
        QCOMPARE(DecDatos().TIPOIMP, 3.0);
        QCOMPARE(r.veredicto.id, kIdTipoImpositivoMenorQue);
        QCOMPARE(r.veredicto.mensaje,
                 QStringLiteral("El Tipo Impositivo no puede ser menor que 0 ni mayor que 14,75"));
        QCOMPARE(r.veredicto.botones, int(vb::Exclamation));
        QCOMPARE(r.veredicto.titulo, Texto(kIdErrorIntroduccionDatos));
        QCOMPARE(r.veredicto.control, QStringLiteral("txttipoimp"));
        QVERIFY(AceptarTipoImpositivo(14, false, false).veredicto.vacio());
        QCOMPARE(DecDatos().TIPOIMP, 14.0);
    }

    void fechaErroneaNoCambiaElRegistro()
    {
        const int32_t antes = DecDatos().FECHAD;
        Veredicto v = CambiarFecha(QStringLiteral("31/04/2010"));
        QCOMPARE(v.id, kIdFechaDevengoIncorrecta);
        QCOMPARE(v.mensaje, Texto(kIdFechaDevengoIncorrecta));
        QCOMPARE(v.botones, int(vb::Exclamation));
        QCOMPARE(v.titulo, Texto(kIdErrorIntroduccionDatos));
        QCOMPARE(v.control, QStringLiteral("txtfechad"));
        QCOMPARE(DecDatos().FECHAD, antes);
        v = CambiarFecha(QStringLiteral("01/01/2028"));
        QCOMPARE(v.id, kIdFechaDevengoAnteriorA);
        QVERIFY(v.mensaje.endsWith(QStringLiteral("31/12/2027\n")));
        QCOMPARE(DecDatos().FECHAD, antes);
        QVERIFY(CambiarFecha(QStringLiteral("02/01/2013")).vacio());
        QCOMPARE(DecDatos().FECHAD, 20130102);
    }

    void reglaRotaConSuTituloYFoco()
    {
        DecDatos().NOMBRETR.clear();
        const Veredicto v = VeredictoCampos(true, kTitulo, Operacion().DESCRIP);
        QCOMPARE(ReglaDe(v), 21);
        QCOMPARE(v.id, kIdNombreTransmitenteVacio);
        QCOMPARE(v.mensaje, Texto(kIdNombreTransmitenteVacio));
        QCOMPARE(v.botones, int(vb::Information));
        QCOMPARE(v.titulo, kTitulo);
        QCOMPARE(v.control, QStringLiteral("txtnombretr"));
        QCOMPARE(v.pestana, kPestanaTransmitente);
        DecDatos().NOMBRETR = QStringLiteral("X");
        const Veredicto bueno = VeredictoCampos(true, kTitulo, Operacion().DESCRIP);
        QVERIFY(bueno.vacio());
    }

    void numerosErroneos()
    {
        DecDatos().DNIPR = QStringLiteral("11111111A");
        Veredicto v = VeredictoNifIntervinientes(kTitulo);
        QCOMPARE(v.id, kIdDniPresentadorErroneo);
        QCOMPARE(v.botones, int(vb::Information));
        QCOMPARE(v.titulo, kTitulo);
        DecDatos().DNIPR.clear();
        DecDatos().DNISP = QStringLiteral("22222222A");
        v = VeredictoNifIntervinientes(kTitulo);
        QCOMPARE(v.botones, int(vb::Exclamation));
        QVERIFY(v.mensaje.startsWith(QStringLiteral("El/Los Interviniente/s con NIF:  22222222A")));
        DecDatos().DNISP = Dni(12345678);
        QVERIFY(VeredictoNifIntervinientes(kTitulo).vacio());
    }
};

QTEST_MAIN(TestVeredictos)
#include "test_decl_veredictos.moc"
