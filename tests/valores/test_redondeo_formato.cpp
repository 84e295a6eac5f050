// Rounding of amounts and the Spanish display formats, under a foreign process locale.
#include "plataforma/Fallo.h"
#include "valores/Formato.h"
#include "valores/Redondeo.h"
#include "valores/Val.h"

#include <QLocale>
#include <QTest>
#include <cmath>
#include <limits>

class TestRedondeoFormato : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // Whatever the machine says, the program writes numbers the Spanish way.
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    }

    void redondearFraccionDecide()
    {
        // 2.675 is stored a hair below; the fraction times 100 is just under 67.5.
        const double fraccion = (2.675 - 2.0) * 100.0;
        QVERIFY(fraccion < 67.5);
        QCOMPARE(Redondear(2.675, 2), 2.0 + 67.0 / 100.0);
        // A fraction that is exact in binary rounds up.
        QCOMPARE(Redondear(2.625, 2), 2.63);
        QCOMPARE(Redondear(2.125, 2), 2.13);
    }

    void redondearMitadesLejosDelCero()
    {
        QCOMPARE(Redondear(1.5, 0), 2.0);
        QCOMPARE(Redondear(-1.5, 0), -2.0);
        QCOMPARE(Redondear(-2.5, 0), -3.0);
        QCOMPARE(Redondear(2.5, 0), 3.0);
        QCOMPARE(Redondear(0.5, 0), 1.0);
        QCOMPARE(Redondear(-0.5, 0), -1.0);
        QCOMPARE(Redondear(-1.4, 0), -1.0);
        QCOMPARE(Redondear(1.49, 0), 1.0);
        QCOMPARE(Redondear(-1.25, 1), -1.3);
    }

    void redondearMasDeSeisDecimales()
    {
        QCOMPARE(Redondear(1.23456789, 7), 1.23456789);
        QCOMPARE(Redondear(1.23456789, 100), 1.23456789);
        QCOMPARE(Redondear(1.23456789, 6), 1.234568);
    }

    void redondearImportes()
    {
        // Cents times a rate: 123457 * 12 / 100 keeps two decimals of a cent.
        QCOMPARE(Redondear(123457.0 * 12.0 / 100.0, 2), 14814.84);
        QCOMPARE(Redondear(0.0, 2), 0.0);
        QCOMPARE(Redondear(100.0, 2), 100.0);
        // The integer part of a big amount stays exact.
        const double grande = 9007199254740.25;
        QCOMPARE(Redondear(grande, 1), 9007199254740.3);
        QCOMPARE(Redondear(1234567890123.0, 2), 1234567890123.0);
    }

    void redondearDesbordamiento()
    {
        QVERIFY_THROWS_EXCEPTION(cFallo, Redondear(std::numeric_limits<double>::infinity(), 2));
        QVERIFY_THROWS_EXCEPTION(cFallo, Redondear(std::nan(""), 2));
        // The largest finite values still round: the work is on the fraction alone.
        QCOMPARE(Redondear(1.7e308, 6), 1.7e308);
    }

    void redondearEntero()
    {
        QCOMPARE(RedondearEntero(2.5), 3.0);
        QCOMPARE(RedondearEntero(2.4999), 2.0);
        QCOMPARE(RedondearEntero(0.0), 0.0);
        QCOMPARE(RedondearEntero(0.49), 0.0);
        QCOMPARE(RedondearEntero(7.0), 7.0);
        QCOMPARE(RedondearEntero(67.49999999999999), 67.0);
        // On negative values the rule gives the sign plus the floor: kept as it is, nobody
        // passes them.
        QCOMPARE(RedondearEntero(-1.3), -3.0);
        QCOMPARE(RedondearEntero(-1.7), 2.0);
    }

    void formatosDeImportes()
    {
        QCOMPARE(Formato(1234.5, QStringLiteral("###,###,###,##0.00")), QStringLiteral("1.234,50"));
        QCOMPARE(Formato(0.0, QStringLiteral("###,###,###,##0.00")), QStringLiteral("0,00"));
        QCOMPARE(Formato(0.5, QStringLiteral("###,###,###,##0.00")), QStringLiteral("0,50"));
        QCOMPARE(Formato(1234567890123.45, QStringLiteral("#,###,###,###,##0.00")),
                 QStringLiteral("1.234.567.890.123,45"));
        QCOMPARE(Formato(148.1484, QStringLiteral("##,###,###,##0.00")), QStringLiteral("148,15"));
        QCOMPARE(Formato(1200.0, QStringLiteral("##,###,###,##0.00")), QStringLiteral("1.200,00"));
        QCOMPARE(Formato(-1234.5, QStringLiteral("###,###,###,##0.00")), QStringLiteral("-1.234,50"));
        QCOMPARE(Formato(999999.995, QStringLiteral("###,###,###,##0.00")),
                 QStringLiteral("1.000.000,00"));
    }

    void formatosSencillos()
    {
        QCOMPARE(Formato(12.0, QStringLiteral("##0.00")), QStringLiteral("12,00"));
        QCOMPARE(Formato(0.0, QStringLiteral("##0.00")), QStringLiteral("0,00"));
        QCOMPARE(Formato(99.99, QStringLiteral("##0.00")), QStringLiteral("99,99"));
        QCOMPARE(Formato(3.14159, QStringLiteral("0.00")), QStringLiteral("3,14"));
        QCOMPARE(Formato(2.675, QStringLiteral("0.00")), QStringLiteral("2,68"));
        QCOMPARE(Formato(2.5, QStringLiteral("0")), QStringLiteral("3"));
        QCOMPARE(Formato(7.0, QStringLiteral("00")), QStringLiteral("07"));
        QCOMPARE(Formato(77.0, QStringLiteral("00")), QStringLiteral("77"));
        QCOMPARE(Formato(123.0, QStringLiteral("00")), QStringLiteral("123"));
        QCOMPARE(Formato(1001.0, QStringLiteral("00000")), QStringLiteral("01001"));
        QCOMPARE(Formato(24.0, QStringLiteral("0000")), QStringLiteral("0024"));
    }

    void almohadillasOcultanElCero()
    {
        QCOMPARE(Formato(0.0, QStringLiteral("#####")), QString());
        QCOMPARE(Formato(0.0, QStringLiteral("###")), QString());
        QCOMPARE(Formato(12.0, QStringLiteral("#####")), QStringLiteral("12"));
        QCOMPARE(Formato(5.0, QStringLiteral("##")), QStringLiteral("5"));
    }

    void agrupacion()
    {
        QCOMPARE(Formato(1234567.0, QStringLiteral("#,###,###")), QStringLiteral("1.234.567"));
        QCOMPARE(Formato(999.0, QStringLiteral("#,###,###")), QStringLiteral("999"));
        QCOMPARE(Formato(1600.0, QStringLiteral("##,###")), QStringLiteral("1.600"));
        QCOMPARE(Formato(0.0, QStringLiteral("##,###")), QString());
        QCOMPARE(Formato(100000000000.0, QStringLiteral("##,###,###,###")),
                 QStringLiteral("100.000.000.000"));
        QCOMPARE(Formato(1234567.891, QStringLiteral("#,###,###,###,###")),
                 QStringLiteral("1.234.568"));
    }

    void seccionesYLiterales()
    {
        QCOMPARE(Formato(-5.0, QStringLiteral("0.00;(0.00)")), QStringLiteral("(5,00)"));
        QCOMPARE(Formato(0.0, QStringLiteral("0;-0;\"cero\"")), QStringLiteral("cero"));
        QCOMPARE(Formato(12.0, QStringLiteral("0.0 \\%")), QStringLiteral("12,0 %"));
        QCOMPARE(Formato(0.125, QStringLiteral("0.0%")), QStringLiteral("12,5%"));
        QCOMPARE(Formato(-0.001, QStringLiteral("0.00")), QStringLiteral("0,00"));
    }

    void sinFormato()
    {
        QCOMPARE(Formato(1234.5, QString()), QStringLiteral("1234,5"));
        QCOMPARE(Formato(42.0, QString()), QStringLiteral("42"));
        QCOMPARE(Formato(-0.25, QString()), QStringLiteral("-0,25"));
    }

    void formatoDeTextos()
    {
        QCOMPARE(Formato(QStringLiteral("1"), QStringLiteral("00")), QStringLiteral("01"));
        QCOMPARE(Formato(QStringLiteral("77"), QStringLiteral("00")), QStringLiteral("77"));
        QCOMPARE(Formato(QStringLiteral("1001"), QStringLiteral("00000")), QStringLiteral("01001"));
        QCOMPARE(Formato(QString(), QStringLiteral("00")), QString());
        QCOMPARE(Formato(QStringLiteral("AB12"), QStringLiteral("00")), QStringLiteral("AB12"));
        QCOMPARE(Formato(QStringLiteral("1.234,5"), QStringLiteral("#,##0.00")),
                 QStringLiteral("1.234,50"));
    }

    void numeroDeTexto()
    {
        bool ok = false;
        QCOMPARE(NumeroDeTexto(QStringLiteral("1.234,50"), &ok), 1234.5);
        QVERIFY(ok);
        QCOMPARE(NumeroDeTexto(QStringLiteral("01.234.50"), &ok), 123450.0);
        QVERIFY(ok);
        QCOMPARE(NumeroDeTexto(QStringLiteral(" -12,5 "), &ok), -12.5);
        QVERIFY(ok);
        QCOMPARE(NumeroDeTexto(QStringLiteral("12a"), &ok), 0.0);
        QVERIFY(!ok);
        QCOMPARE(NumeroDeTexto(QString(), &ok), 0.0);
        QVERIFY(!ok);
        QCOMPARE(NumeroDeTexto(QStringLiteral("1,2,3"), &ok), 0.0);
        QVERIFY(!ok);
    }

    void lecturaVal()
    {
        QCOMPARE(Val(QStringLiteral("77")), 77.0);
        QCOMPARE(Val(QStringLiteral(" 12 34abc")), 1234.0);
        QCOMPARE(Val(QStringLiteral("abc")), 0.0);
        QCOMPARE(Val(QStringLiteral("-3.5x")), -3.5);
        QCOMPARE(Val(QStringLiteral("1,5")), 1.0);
        QCOMPARE(Val(QStringLiteral("2024/02")), 2024.0);
        QCOMPARE(Val(QString()), 0.0);
        QCOMPARE(Val(QStringLiteral("1e3")), 1000.0);
        QCOMPARE(Val(QStringLiteral("7e")), 7.0);
        QCOMPARE(Val(QStringLiteral("-.5")), -0.5);
        QCOMPARE(Val(QStringLiteral("+3")), 3.0);
        QCOMPARE(Val(QStringLiteral(".")), 0.0);
        QCOMPARE(Val(QStringLiteral("--5")), 0.0);
        QCOMPARE(Val(QStringLiteral("1e999")), 0.0);
    }

    void enteroEstricto()
    {
        QCOMPARE(EnteroEstricto(QStringLiteral(" 012 "), 0, 100).value_or(-1), 12);
        QVERIFY(!EnteroEstricto(QStringLiteral("0__"), 0, 100));
        QVERIFY(!EnteroEstricto(QStringLiteral("101"), 0, 100));
        QVERIFY(!EnteroEstricto(QStringLiteral("-"), -10, 100));
        QCOMPARE(EnteroEstricto(QStringLiteral("-5"), -10, 100).value_or(0), -5);
    }
};

QTEST_GUILESS_MAIN(TestRedondeoFormato)
#include "test_redondeo_formato.moc"
