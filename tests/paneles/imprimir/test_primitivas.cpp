// The six drawing routines on a recording surface: centring, right alignment, the 35 % raise
// of left-placed texts, the boxes, the fonts the form names and their metric twins.
#include "paneles/imprimir/FuentesImpreso.h"
#include "paneles/imprimir/cSuperficieGrabadora.h"
#include "registros/imprimir/Primitivas.h"
#include "valores/Formato.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QTest>

namespace {
// A recorder whose texts are all 30 mm wide and 4 mm high.
class SuperficieFija : public cSuperficieGrabadora {
public:
    float TextWidth(const QString&) override { return 30; }
    float TextHeight(const QString&) override { return 4; }
};

void enMilimetros(cSuperficieGrabadora& s, const QString& fuente, float tamano)
{
    s.ScaleMode = 6;
    s.FontName = fuente;
    s.FontSize = tamano;
}
}

class TestPrimitivas : public QObject {
    Q_OBJECT

private slots:
    void centradoMasAnchoQueLaCeldaEmpiezaALaIzquierda()
    {
        SuperficieFija s;
        TextoCentrado(s, 100, 50, 10, QStringLiteral("ANCHO"));
        QCOMPARE(s.Llamadas.size(), 1);
        QCOMPARE(s.Llamadas[0].x1, 90.0f);
        QCOMPARE(s.Llamadas[0].y1, 50.0f);
    }

    void centradoDeUnTextoReal()
    {
        cSuperficieGrabadora s;
        s.ScaleMode = 6;
        s.FontName = QStringLiteral("Arial");
        s.FontSize = 9;
        s.FontBold = true;
        TextoCentrado(s, 45, 62, 130, QStringLiteral("GARCIA"));
        const LlamadaPagina& l = s.Llamadas.at(0);
        QVERIFY(qAbs((l.x1 + l.x2) / 2 - 110.0f) < 1e-3f);
        QCOMPARE(s.Medidas.size(), 1);  // one metric per text
        QVERIFY(s.Medidas[0].ancho);
    }

    void vacioNoImprimeNada()
    {
        SuperficieFija s;
        TextoCentrado(s, 1, 1, 1, QString());
        TextoDerecha(s, 1, 1, QString());
        TextoIzquierda(s, 1, 1, QString());
        QVERIFY(s.Llamadas.isEmpty());
    }

    void derechaTerminaEnXSeaCualSeaLaCifra()
    {
        for (const double centimos : {123450.0, 5.0, 99999999999.0}) {
            cSuperficieGrabadora s;
            enMilimetros(s, QStringLiteral("Arial"), 9);
            const QString t = Formato(centimos / 100, QStringLiteral("###,###,###,##0.00"));
            TextoDerecha(s, 187, 204.5f, t);
            const LlamadaPagina& l = s.Llamadas.at(0);
            QVERIFY(qAbs(l.x2 - 187.0f) < 1e-3f);
            QCOMPARE(l.y1, 204.5f);
        }
        QCOMPARE(Formato(123450.0 / 100, QStringLiteral("###,###,###,##0.00")),
                 QStringLiteral("1.234,50"));
    }

    void izquierdaSubeUn35PorCientoDeSuAltura()
    {
        SuperficieFija s;
        TextoIzquierda(s, 12, 10, QStringLiteral("I.F.Z./"));
        QCOMPARE(s.Llamadas[0].x1, 12.0f);
        QVERIFY(qAbs(s.Llamadas[0].y1 - (10.0f - 1.4f)) < 1e-5f);
    }

    void cajasYLineas()
    {
        cSuperficieGrabadora s;
        s.DrawWidth = 6;
        LineaNegra(s, 1, 2, 3, 4);
        CajaBlanca(s, 75, 17, 87, 29);
        QCOMPARE(s.FillColor, 0xFFFFFFu);
        CajaGris(s, 75.2f, 17.2f, 86.8f, 28.8f);
        QCOMPARE(s.FillColor, 0xE0E0E0u);
        QCOMPARE(s.Llamadas.size(), 3);
        QCOMPARE(s.Llamadas[0].modo, ModoLinea::Linea);
        QCOMPARE(s.Llamadas[0].color, 0u);
        QCOMPARE(s.Llamadas[1].modo, ModoLinea::Caja);
        QCOMPARE(s.Llamadas[1].color, 0u);
        QCOMPARE(s.Llamadas[2].modo, ModoLinea::CajaRellena);
        QCOMPARE(s.Llamadas[2].color, 0xE0E0E0u);
        // The grey panel lies inside the outline, which stays visible around it.
        QVERIFY(s.Llamadas[2].x1 > s.Llamadas[1].x1 && s.Llamadas[2].x2 < s.Llamadas[1].x2);
        QCOMPARE(s.Llamadas[0].grosor, int16_t(6));
    }

    void fuentesDelImpresoSonSusGemelas()
    {
        QCOMPARE(FamiliaInstalada(QStringLiteral("Times New Roman")),
                 QStringLiteral("Liberation Serif"));
        QCOMPARE(FamiliaInstalada(QStringLiteral("Arial")), QStringLiteral("Liberation Sans"));
        const QFontInfo times(FuenteImpreso(QStringLiteral("Times New Roman"), 9, false, false,
                                            false));
        QCOMPARE(times.family(), QStringLiteral("Liberation Serif"));
        const QFontInfo arial(FuenteImpreso(QStringLiteral("Arial"), 9, true, false, false));
        QCOMPARE(arial.family(), QStringLiteral("Liberation Sans"));
        // Arial's digits are 0.556 em wide: ten of them at 10 points are 19.6 mm.
        cSuperficieGrabadora s;
        enMilimetros(s, QStringLiteral("Arial"), 10);
        QVERIFY(qAbs(s.TextWidth(QStringLiteral("0123456789")) - 10 * 0.556f * 10 * 25.4f / 72)
                < 0.05f);
    }

    // Each font of the form is made once per process, and a width measured again, kept or
    // measured anew after the kept ones were given back, is the font's own.
    void fuentesHechasUnaVez()
    {
        const FuenteMedida& a = FuenteDeImpreso(QStringLiteral("Arial"), 8, true, false, false);
        QCOMPARE(&FuenteDeImpreso(QStringLiteral("Arial"), 8, true, false, false), &a);
        QVERIFY(&FuenteDeImpreso(QStringLiteral("Arial"), 8, false, false, false) != &a);
        QVERIFY(&FuenteDeImpreso(QStringLiteral("Arial"), 8.5, true, false, false) != &a);
        QVERIFY(&FuenteDeImpreso(QStringLiteral("Times New Roman"), 8, true, false, false) != &a);
        QCOMPARE(a.Fuente().family(), QStringLiteral("Liberation Sans"));
        QVERIFY(a.Fuente().bold());

        QFont grande(a.Fuente());
        grande.setPixelSize(1000);
        const QFontMetricsF m(grande);
        const double mmPorPixel = 8 * 25.4 / 72 / 1000;
        const QString texto = QStringLiteral("Base imponible (1)");
        const MedidaTexto primera = a.Medir(texto);
        QCOMPARE(primera.ancho, m.horizontalAdvance(texto) * mmPorPixel);
        QCOMPARE(primera.alto, m.height() * mmPorPixel);
        QCOMPARE(primera.ascenso, m.ascent() * mmPorPixel);
        QCOMPARE(a.Medir(texto).ancho, primera.ancho);
        for (int i = 0; i < 5000; ++i)
            a.Medir(QString::number(i));
        QCOMPARE(a.Medir(texto).ancho, primera.ancho);
        QCOMPARE(a.Medir(QStringLiteral("4999")).ancho,
                 m.horizontalAdvance(QStringLiteral("4999")) * mmPorPixel);
    }

    void escalaEnOtrasUnidades()
    {
        cSuperficieGrabadora s;
        enMilimetros(s, QStringLiteral("Arial"), 10);
        const float mm = s.TextWidth(QStringLiteral("ABC"));
        s.ScaleMode = 7;
        QVERIFY(qAbs(s.TextWidth(QStringLiteral("ABC")) * 10 - mm) < 1e-4f);
    }
};

QTEST_MAIN(TestPrimitivas)
#include "test_primitivas.moc"
