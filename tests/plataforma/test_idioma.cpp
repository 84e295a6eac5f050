// The language value: everything that depends on the language follows from it, and the
// program's language is one state that a reset puts back to Spanish.
#include "plataforma/Estado.h"
#include "plataforma/Idioma.h"

#include <QTest>

class TestIdioma : public QObject {
    Q_OBJECT
private slots:
    void cleanup() { EstablecerIdiomaPrograma(Idioma::Castellano); }

    void loQueSigueDelIdioma()
    {
        const Idioma es(Idioma::Castellano), eu(Idioma::Euskera);
        QCOMPARE(es.offset(), int16_t(0));
        QCOMPARE(eu.offset(), int16_t(10000));
        QCOMPARE(es.letra(), QStringLiteral("C"));
        QCOMPARE(eu.letra(), QStringLiteral("E"));
        QCOMPARE(es.carpetaAyuda(), QStringLiteral("Ayuda"));
        QCOMPARE(eu.carpetaAyuda(), QStringLiteral("Laguntza"));
        QCOMPARE(eu.segun(QStringLiteral("sí"), QStringLiteral("bai")), QStringLiteral("bai"));
        QVERIFY(eu.esEuskera() && !eu.esCastellano());
    }

    void laLetraGuardada()
    {
        QCOMPARE(Idioma::DeLetra(u"E"), Idioma(Idioma::Euskera));
        QCOMPARE(Idioma::DeLetra(u"C"), Idioma(Idioma::Castellano));
        // Whatever else a store holds is read as Spanish, the program's first language.
        QCOMPARE(Idioma::DeLetra(u""), Idioma(Idioma::Castellano));
        QCOMPARE(Idioma::DeLetra(u"e"), Idioma(Idioma::Castellano));
    }

    void unSoloEstado()
    {
        QCOMPARE(IdiomaPrograma(), Idioma(Idioma::Castellano));
        EstablecerIdiomaPrograma(Idioma::Euskera);
        QCOMPARE(IdiomaPrograma(), Idioma(Idioma::Euskera));
        QCOMPARE(OffsetIdioma(), int16_t(10000));
        Estado().Reiniciar();
        QCOMPARE(IdiomaPrograma(), Idioma(Idioma::Castellano));
        QCOMPARE(OffsetIdioma(), int16_t(0));
    }
};

QTEST_GUILESS_MAIN(TestIdioma)
#include "test_idioma.moc"
