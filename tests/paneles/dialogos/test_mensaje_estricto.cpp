// The message seam's strict mode: a box that finds no queued answer is reported to the function
// given, with what it showed, and still gets its default answer; a box whose answer was queued
// is not reported; with strict mode off nothing is.
#include "comun/Entorno.h"

#include "paneles/dialogos/Mensaje.h"

#include <QTest>

namespace {
QList<MensajeSeam::Registro> g_avisados;
void avisar(const MensajeSeam::Registro& mensaje) { g_avisados << mensaje; }
}  // namespace

class TestMensajeEstricto : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        GrabarSeams();
        g_avisados.clear();
    }
    void cleanup() { MensajeSeam::estricto(nullptr); }

    void sinRespuestaSeAvisa()
    {
        MensajeSeam::estricto(&avisar);
        const int botones = vb::YesNo + vb::Question + vb::DefaultButton2;
        QCOMPARE(Mensaje(QStringLiteral("¿Seguro?"), botones, QStringLiteral("Título")),
                 int(vb::No));
        QCOMPARE(g_avisados.size(), 1);
        QCOMPARE(g_avisados[0].texto, QStringLiteral("¿Seguro?"));
        QCOMPARE(g_avisados[0].titulo, QStringLiteral("Título"));
        QCOMPARE(g_avisados[0].botones, botones);
        QCOMPARE(g_avisados[0].respuesta, int(vb::No));
        QCOMPARE(MensajeSeam::registro().size(), 1);
    }

    void conRespuestaNoSeAvisa()
    {
        MensajeSeam::estricto(&avisar);
        MensajeSeam::setNextAnswer(vb::Yes);
        QCOMPARE(Mensaje(QStringLiteral("uno"), vb::YesNo), int(vb::Yes));
        QVERIFY(g_avisados.isEmpty());
        // The queue is used up: the next box is reported.
        QCOMPARE(Mensaje(QStringLiteral("dos"), vb::OKOnly), int(vb::OK));
        QCOMPARE(g_avisados.size(), 1);
        QCOMPARE(g_avisados[0].texto, QStringLiteral("dos"));
    }

    void apagadoNoSeAvisa()
    {
        MensajeSeam::estricto(&avisar);
        MensajeSeam::estricto(nullptr);
        QCOMPARE(Mensaje(QStringLiteral("tres"), vb::OKCancel), int(vb::OK));
        QVERIFY(g_avisados.isEmpty());
        QCOMPARE(MensajeSeam::registro().size(), 1);
    }
};

QTEST_MAIN(TestMensajeEstricto)
#include "test_mensaje_estricto.moc"
