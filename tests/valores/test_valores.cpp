// The small value types the layers exchange: an amount keeps plain double arithmetic to the
// last bit, and an answer is either its value or its verdict.
#include "catalogo/IdsCatalogo.h"
#include "valores/Contribuyente.h"
#include "valores/Declaracion.h"
#include "valores/Importe.h"
#include "valores/Resultado.h"

#include <QTest>
#include <cstring>

class TestValores : public QObject {
    Q_OBJECT
private slots:
    void importeSigueLaAritmeticaDeDouble()
    {
        const double base = 12345.67, tipo = 12.0, deduccion = 0.1;
        const double cuota = Redondear(tipo * (base * 0.7) / 100, 2);
        const Importe i = (Importe(base) * 0.7);
        const Importe c = Importe(tipo * i.centimos() / 100).redondeado(2);
        QCOMPARE(std::memcmp(&cuota, &c, sizeof cuota), 0);
        const double total = cuota - deduccion;
        QCOMPARE((c - Importe(deduccion)).centimos(), total);
        QVERIFY(Importe(1) < Importe(2));
        QVERIFY(Importe(0.1) + Importe(0.2) == Importe(0.1 + 0.2));
    }
    void resultadoLlevaValorOVeredicto()
    {
        Resultado<int> bien(7);
        QVERIFY(bien.aceptado());
        QCOMPARE(*bien, 7);
        Veredicto v;
        v.id = kIdMunicipioPuntos;
        v.mensaje = QStringLiteral("x");
        Resultado<int> mal(v);
        QVERIFY(!mal);
        QCOMPARE(mal.veredicto().id, kIdMunicipioPuntos);
        Resultado<void> hecho;
        QVERIFY(hecho.aceptado());
        QVERIFY(!Resultado<void>(v).aceptado());
    }
    void valoresSeComparanCampoACampo()
    {
        Contribuyente a, b;
        QVERIFY(a == b);
        b.NOMBREC = QStringLiteral("B");
        QVERIFY(!(a == b));
        Declaracion d;
        QCOMPARE(d.MOTOR, QStringLiteral("G"));
        QCOMPARE(d.BASEI.euros(), 0.0);
    }
};

QTEST_GUILESS_MAIN(TestValores)
#include "test_valores.moc"
