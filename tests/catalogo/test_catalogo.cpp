// The catalogue, row by row against the list of texts kept beside this test, and the lookup
// rules: offset by language, rows read in a fixed language, literal pairs.
#include "plataforma/Fallo.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "catalogo/Catalogo.h"

#include <QFile>
#include <QTest>
#include <QTextStream>

class TestCatalogo : public QObject {
    Q_OBJECT

    QList<QPair<int, QString>> m_filas;

private slots:
    void initTestCase()
    {
        QFile f(QStringLiteral(FILAS_ESPERADAS));
        QVERIFY(f.open(QIODevice::ReadOnly));
        QTextStream in(&f);
        in.setEncoding(QStringConverter::Utf8);
        while (!in.atEnd()) {
            const QString linea = in.readLine();
            const int tab = linea.indexOf(QLatin1Char('\t'));
            m_filas.append({linea.left(tab).toInt(), linea.mid(tab + 1)});
        }
        QCOMPARE(m_filas.size(), 790);
    }

    void cadaFilaTalCual()
    {
        for (const auto& [fila, texto] : m_filas)
            QVERIFY2(TextoFila(fila) == texto,
                     qPrintable(QStringLiteral("fila %1: «%2»").arg(fila).arg(TextoFila(fila))));
    }

    void cadaIdSegunIdioma()
    {
        for (const auto& [fila, texto] : m_filas) {
            EstablecerIdiomaPrograma(fila > 10000 ? Idioma::Euskera : Idioma::Castellano);
            QCOMPARE(Texto(fila - OffsetIdioma()), texto);
        }
        EstablecerIdiomaPrograma(Idioma::Castellano);
    }

    void cancelarEnLosDosIdiomas()
    {
        EstablecerIdiomaPrograma(Idioma::Euskera);
        QCOMPARE(Texto(4), QStringLiteral("&Utzi"));
        EstablecerIdiomaPrograma(Idioma::Castellano);
        QCOMPARE(Texto(4), QStringLiteral("&Cancelar"));
    }

    void filasInvertidas315a318()
    {
        EstablecerIdiomaPrograma(Idioma::Castellano);
        const QString vasco = Texto(315);
        EstablecerIdiomaPrograma(Idioma::Euskera);
        const QString castellano = Texto(315);
        EstablecerIdiomaPrograma(Idioma::Castellano);
        QVERIFY(vasco != castellano);
        QCOMPARE(TextoFila(10315), castellano);
        // The Spanish base row of 215 and the Basque row of 315 say the same in the other tongue.
        QCOMPARE(Texto(215), QStringLiteral("Idioma"));
    }

    void marcadoresRecientes()
    {
        for (int i = 0; i < 4; ++i) {
            const QString esperado = QStringLiteral("d%1").arg(i + 1);
            QCOMPARE(TextoFila(226 + i), esperado);
            QCOMPARE(TextoFila(10226 + i), esperado);
        }
    }

    void filasConservadasComoEstan()
    {
        QCOMPARE(TextoFila(10001), QStringLiteral("No se"));
        QCOMPARE(TextoFila(10002), TextoFila(2));
        QCOMPARE(TextoFila(48), QStringLiteral("     &Copiar"));
        QCOMPARE(TextoFila(356) + QStringLiteral("T1") + TextoFila(357),
                 QStringLiteral("La operación no puede ser \"T1\" si el año de devengo es superior "
                                "al 2006 y la cilindrada es superior a 2499CC"));
    }

    void textoSegunIdioma()
    {
        EstablecerIdiomaPrograma(Idioma::Castellano);
        QCOMPARE(TextoSegunIdioma("cap.html", "kap.html"), QStringLiteral("cap.html"));
        EstablecerIdiomaPrograma(Idioma::Euskera);
        QCOMPARE(TextoSegunIdioma("cap.html", "kap.html"), QStringLiteral("kap.html"));
        EstablecerIdiomaPrograma(Idioma::Castellano);
    }

    void filaInexistenteEsUnFallo()
    {
        QVERIFY_THROWS_EXCEPTION(cFallo, TextoFila(9999));
        QVERIFY_THROWS_EXCEPTION(cFallo, TextoFila(0));
        QVERIFY_THROWS_EXCEPTION(cFallo, TextoFila(19999));
    }
};

QTEST_GUILESS_MAIN(TestCatalogo)
#include "test_catalogo.moc"
