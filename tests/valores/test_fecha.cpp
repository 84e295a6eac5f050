// The date value: validity rules, the two layouts, the numbers and the failures.
#include "plataforma/Idioma.h"
#include "valores/cFecha.h"

#include <QTest>

namespace {
// The conversions in one language, the one each case of the test sets.
struct FechaEn {
    Idioma idioma;
    QString FecVacia() const { return cFecha::FecVacia(idioma); }
    bool EsFecha(const QString& t, std::optional<int16_t> m = std::nullopt) const
    {
        return cFecha::EsFecha(t, idioma, m);
    }
    int32_t StringToLong(const QString& t, std::optional<int16_t> m = std::nullopt) const
    {
        return cFecha::StringToLong(t, idioma, m);
    }
    QString LongToString(int32_t n, std::optional<QString> marcador = std::nullopt) const
    {
        return cFecha::LongToString(n, idioma, marcador);
    }
};
}  // namespace

class TestFecha : public QObject {
    Q_OBJECT

    FechaEn f;

    void castellano() { f.idioma = Idioma::Castellano; }
    void euskera() { f.idioma = Idioma::Euskera; }

private slots:
    void init() { castellano(); }

    void mascarasVacias()
    {
        QCOMPARE(f.FecVacia(), QStringLiteral("__/__/____"));
        euskera();
        QCOMPARE(f.FecVacia(), QStringLiteral("____/__/__"));
    }

    void laLenguaDelProgramaNoCuenta()
    {
        // A conversion is told its language: the program's own does not reach it.
        EstablecerIdiomaPrograma(Idioma::Euskera);
        QCOMPARE(f.LongToString(20240229), QStringLiteral("29/02/2024"));
        QCOMPARE(f.FecVacia(), QStringLiteral("__/__/____"));
        EstablecerIdiomaPrograma(Idioma::Castellano);
        euskera();
        QCOMPARE(f.LongToString(20240229), QStringLiteral("2024/02/29"));
    }

    void bisiestos()
    {
        QVERIFY(f.EsFecha(QStringLiteral("29/02/2024")));
        QVERIFY(!f.EsFecha(QStringLiteral("29/02/2023")));
        QVERIFY(!f.EsFecha(QStringLiteral("29/02/1900")));
        QVERIFY(f.EsFecha(QStringLiteral("29/02/2000")));
        QVERIFY(!f.EsFecha(QStringLiteral("30/02/2024")));
        QVERIFY(f.EsFecha(QStringLiteral("28/02/2023")));
    }

    void treintaYUno()
    {
        QVERIFY(!f.EsFecha(QStringLiteral("31/04/2024")));
        QVERIFY(f.EsFecha(QStringLiteral("30/04/2024")));
        QVERIFY(!f.EsFecha(QStringLiteral("31/06/2024")));
        QVERIFY(!f.EsFecha(QStringLiteral("31/09/2024")));
        QVERIFY(!f.EsFecha(QStringLiteral("31/11/2024")));
        QVERIFY(f.EsFecha(QStringLiteral("31/12/2024")));
        QVERIFY(f.EsFecha(QStringLiteral("31/01/2024")));
    }

    void mismoNumeroEnLosDosIdiomas()
    {
        QCOMPARE(f.StringToLong(QStringLiteral("29/02/2024")), 20240229);
        euskera();
        QCOMPARE(f.StringToLong(QStringLiteral("2024/02/29")), 20240229);
        QVERIFY(f.EsFecha(QStringLiteral("2024/02/29")));
        QVERIFY(!f.EsFecha(QStringLiteral("2023/02/29")));
        QVERIFY(!f.EsFecha(QStringLiteral("29/02/2024")));  // the other layout is no date here
    }

    void mascaraVacia()
    {
        QCOMPARE(f.StringToLong(QStringLiteral("__/__/____")), 0);
        QVERIFY(f.EsFecha(QStringLiteral("__/__/____")));
        euskera();
        QCOMPARE(f.StringToLong(QStringLiteral("____/__/__")), 0);
        QVERIFY(f.EsFecha(QStringLiteral("____/__/__")));
        // The mask of the other language is no empty date, and no date at all.
        QVERIFY(!f.EsFecha(QStringLiteral("__/__/____")));
        QCOMPARE(f.StringToLong(QStringLiteral("__/__/____")), -1);
    }

    void diaYMesFueraDeRango()
    {
        QVERIFY(!f.EsFecha(QStringLiteral("00/01/2024")));
        QVERIFY(!f.EsFecha(QStringLiteral("01/13/2024")));
        QVERIFY(!f.EsFecha(QStringLiteral("01/00/2024")));
        QVERIFY(!f.EsFecha(QStringLiteral("32/01/2024")));
        QCOMPARE(f.StringToLong(QStringLiteral("01/13/2024")), -1);
    }

    void anioDeMenosDeCuatroCifras()
    {
        QVERIFY(!f.EsFecha(QStringLiteral("01/01/0999")));
        QVERIFY(!f.EsFecha(QStringLiteral("01/01/99")));
        QVERIFY(f.EsFecha(QStringLiteral("01/01/1000")));
        euskera();
        QVERIFY(!f.EsFecha(QStringLiteral("0999/01/01")));
    }

    void anioLargoMientrasQuepa()
    {
        // A year of five digits passes while it fits 16 bits; beyond, the date is bad.
        QVERIFY(f.EsFecha(QStringLiteral("01/01/12345")));
        QVERIFY(!f.EsFecha(QStringLiteral("01/01/40000")));
        // The number takes the last four characters of the text as the year.
        QCOMPARE(f.StringToLong(QStringLiteral("01/01/12345")), 23450101);
    }

    void parcialmenteRelleno()
    {
        QVERIFY(!f.EsFecha(QStringLiteral("12/__/2024")));
        QCOMPARE(f.StringToLong(QStringLiteral("12/__/2024")), -1);
        QVERIFY(!f.EsFecha(QStringLiteral("__/12/2024")));
        QVERIFY(!f.EsFecha(QStringLiteral("12/12/____")));
        QVERIFY(!f.EsFecha(QString()));
        euskera();
        QCOMPARE(f.StringToLong(QStringLiteral("2024/__/12")), -1);
        QCOMPARE(f.StringToLong(QStringLiteral("2024/12/__")), -1);
    }

    void anioMinimo()
    {
        QVERIFY(f.EsFecha(QStringLiteral("01/01/2000"), 2000));
        QVERIFY(!f.EsFecha(QStringLiteral("31/12/1999"), 2000));
        QCOMPARE(f.StringToLong(QStringLiteral("31/12/1999"), 2000), -1);
        QCOMPARE(f.StringToLong(QStringLiteral("31/12/1999")), 19991231);
        // The empty mask stays valid whatever the minimum.
        QVERIFY(f.EsFecha(QStringLiteral("__/__/____"), 3000));
    }

    void separadoresNoSeMiran()
    {
        // Only the positions of day, month and year are read.
        QVERIFY(f.EsFecha(QStringLiteral("01-02-2024")));
        QCOMPARE(f.StringToLong(QStringLiteral("01-02-2024")), 20240201);
    }

    void numeroATexto()
    {
        QCOMPARE(f.LongToString(20240229), QStringLiteral("29/02/2024"));
        QCOMPARE(f.LongToString(19991231), QStringLiteral("31/12/1999"));
        euskera();
        QCOMPARE(f.LongToString(20240229), QStringLiteral("2024/02/29"));
    }

    void numeroVacioOMalo()
    {
        QCOMPARE(f.LongToString(0), QStringLiteral("__/__/____"));
        QCOMPARE(f.LongToString(-1), QStringLiteral("__/__/____"));
        euskera();
        QCOMPARE(f.LongToString(0), QStringLiteral("____/__/__"));
        QCOMPARE(f.LongToString(-1), QStringLiteral("____/__/__"));
    }

    void numeroInvalidoDaLaMascara()
    {
        QCOMPARE(f.LongToString(20240231), QStringLiteral("__/__/____"));
        QCOMPARE(f.LongToString(20240228), QStringLiteral("28/02/2024"));
        euskera();
        QCOMPARE(f.LongToString(20240231), QStringLiteral("____/__/__"));
    }

    void conMarcador()
    {
        QCOMPARE(f.LongToString(29022024, QStringLiteral("")), QStringLiteral("29/02/2024"));
        QCOMPARE(f.LongToString(29022024, QStringLiteral("X")), QStringLiteral("29/02/2024"));
        // A day with a leading zero loses it as a number: 1122024 reads as 11/22/2024.
        QCOMPARE(f.LongToString(1122024, QStringLiteral("X")), QStringLiteral("__/__/____"));
        euskera();
        QCOMPARE(f.LongToString(29022024, QStringLiteral("X")), QStringLiteral("2024/02/29"));
    }

    void numerosCortos()
    {
        QCOMPARE(f.LongToString(5), QStringLiteral("__/__/____"));
        // Seven digits: month and day overlap, read by position from both ends.
        QCOMPARE(f.LongToString(2024011), QStringLiteral("11/01/2024"));
    }

    void cambioDeIdioma()
    {
        const int numero = 20241105;
        QCOMPARE(f.LongToString(numero), QStringLiteral("05/11/2024"));
        euskera();
        QCOMPARE(f.LongToString(numero), QStringLiteral("2024/11/05"));
        castellano();
        QCOMPARE(f.LongToString(numero), QStringLiteral("05/11/2024"));
        // And round trips in both layouts.
        QCOMPARE(f.StringToLong(f.LongToString(numero)), numero);
        euskera();
        QCOMPARE(f.StringToLong(f.LongToString(numero)), numero);
    }
};

QTEST_GUILESS_MAIN(TestFecha)
#include "test_fecha.moc"
