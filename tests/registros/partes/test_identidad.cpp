// Identity numbers of each kind, valid and invalid, and the codes of a national address.
#include "servicios/CodigoPostal.h"
#include "servicios/ValidarDniOficial.h"
#include "servicios/cContribSvr.h"

#include <QtTest>

Q_DECLARE_METATYPE(EstadoNif)

class TestIdentidad : public QObject {
    Q_OBJECT

private slots:
    void letraDni()
    {
        // The table of remainders by 23, one number for each letter.
        const QString letras = QStringLiteral("TRWAGMYFPDXBNJZSQVHLCKE");
        for (quint32 r = 0; r < 23; ++r)
            QCOMPARE(LetraDni(23u * 1000u + r), letras[int(r)]);
        QCOMPARE(LetraDni(12345678), QLatin1Char('Z'));
    }

    void controlCif()
    {
        QCOMPARE(ControlCif(QStringLiteral("5881850")), 1);
        QCOMPARE(ControlCif(QStringLiteral("1234567")), 4);
        QCOMPARE(ControlCif(QStringLiteral("2826000")), 8);
    }

    void oficial_data()
    {
        QTest::addColumn<QString>("dni");
        QTest::addColumn<EstadoNif>("estado");
        const auto v = EstadoNif::Valido, c = EstadoNif::ControlErroneo,
                   m = EstadoNif::MalFormado, e = EstadoNif::Vacio;
        // DNI
        QTest::newRow("dni") << "12345678Z" << v;
        QTest::newRow("dni ceros delante") << "00000023T" << v;
        QTest::newRow("dni blancos alrededor") << " 12345678Z " << v;
        QTest::newRow("dni letra errónea") << "12345678A" << c;
        QTest::newRow("dni sin letra") << "12345678" << c;
        QTest::newRow("dni minúscula") << "12345678z" << m;
        QTest::newRow("dni siete cifras y letra") << "1234567Z" << m;
        QTest::newRow("dni diez caracteres") << "123456789Z" << m;
        QTest::newRow("dni letra en medio") << "1234X678Z" << m;
        QTest::newRow("dni control cifra") << "123456789" << m;
        QTest::newRow("dni cero") << "00000000T" << m;
        QTest::newRow("dni cero sin letra") << "00000000" << m;
        // NIE
        QTest::newRow("nie X") << "X1234567L" << v;
        QTest::newRow("nie Y") << "Y1234567X" << v;
        QTest::newRow("nie Z") << "Z1234567R" << v;
        QTest::newRow("nie letra errónea") << "X1234567R" << c;
        QTest::newRow("nie sin letra") << "X1234567" << c;
        QTest::newRow("nie seis cifras") << "X123456L" << m;
        QTest::newRow("nie control cifra") << "X12345671" << m;
        // K, L, M
        QTest::newRow("K") << "K1234567L" << v;
        QTest::newRow("L") << "L1234567L" << v;
        QTest::newRow("M") << "M1234567L" << v;
        QTest::newRow("M letra errónea") << "M1234567T" << c;
        QTest::newRow("K cero") << "K0000000T" << m;
        // CIF
        QTest::newRow("cif A dígito") << "A58818501" << v;
        QTest::newRow("cif B dígito") << "B12345674" << v;
        QTest::newRow("cif B con letra") << "B1234567D" << c;
        QTest::newRow("cif B dígito erróneo") << "B12345675" << c;
        QTest::newRow("cif P letra") << "P1234567D" << v;
        QTest::newRow("cif P con dígito") << "P12345674" << c;
        QTest::newRow("cif Q letra") << "Q2826000H" << v;
        QTest::newRow("cif Q letra errónea") << "Q2826000J" << c;
        QTest::newRow("cif C dígito") << "C12345674" << v;
        QTest::newRow("cif C letra") << "C1234567D" << v;
        QTest::newRow("cif C letra errónea") << "C1234567E" << c;
        QTest::newRow("cif sin control") << "B1234567" << c;
        QTest::newRow("cif letra inadmisible") << "I12345674" << m;
        QTest::newRow("cif ocho cifras") << "B123456789" << m;
        QTest::newRow("cif con símbolo") << "B1234567-" << m;
        // Nothing
        QTest::newRow("vacío") << "" << e;
        QTest::newRow("blancos") << "         " << e;
        QTest::newRow("letras") << "ABCDEFGHI" << m;
    }

    void oficial()
    {
        QFETCH(QString, dni);
        QFETCH(EstadoNif, estado);
        QCOMPARE(ExaminarNifOficial(dni), estado);
        QCOMPARE(EsNifOficialValido(dni), estado == EstadoNif::Valido);
        cContribSvr svr;
        QCOMPARE(svr.ValidarDniOficial(dni), estado == EstadoNif::Valido);
        // An official number is judged the same whatever the kind says, but "N".
        QCOMPARE(ExaminarDni(QStringLiteral("O"), dni), estado);
    }

    void extranjero_data()
    {
        QTest::addColumn<QString>("dni");
        QTest::addColumn<EstadoNif>("estado");
        QTest::newRow("pasaporte") << "AB1234567" << EstadoNif::Valido;
        QTest::newRow("corto") << "P12" << EstadoNif::Valido;
        QTest::newRow("eñe") << QStringLiteral("Ñ1234") << EstadoNif::Valido;
        // The Spanish rules do not hold: a number with a wrong DNI letter is accepted.
        QTest::newRow("parece un dni") << "12345678A" << EstadoNif::Valido;
        QTest::newRow("vacío") << "" << EstadoNif::Vacio;
        QTest::newRow("cero") << "000000000" << EstadoNif::MalFormado;
        QTest::newRow("diez") << "AB12345678" << EstadoNif::MalFormado;
        QTest::newRow("guion") << "AB-123" << EstadoNif::MalFormado;
        QTest::newRow("minúsculas") << "ab123" << EstadoNif::MalFormado;
    }

    void extranjero()
    {
        QFETCH(QString, dni);
        QFETCH(EstadoNif, estado);
        QCOMPARE(ExaminarDocumentoExtranjero(dni), estado);
        QCOMPARE(ExaminarDni(QStringLiteral("N"), dni), estado);
    }

    void codigoPostal()
    {
        using namespace CodigoPostal;
        QVERIFY(EsCero(QString()));
        QVERIFY(EsCero(QStringLiteral("00000")));
        QVERIFY(EsCero(QStringLiteral("0")));
        QVERIFY(!EsCero(QStringLiteral("01001")));
        QVERIFY(TieneCincoCifras(QStringLiteral("01001")));
        QVERIFY(!TieneCincoCifras(QStringLiteral("1001")));
        QVERIFY(!TieneCincoCifras(QStringLiteral("010011")));
        QVERIFY(!TieneCincoCifras(QStringLiteral("01A01")));
        QVERIFY(TerminaEnCeros(QStringLiteral("77000")));
        QVERIFY(!TerminaEnCeros(QStringLiteral("00000")));
        QVERIFY(!TerminaEnCeros(QStringLiteral("77001")));
        QVERIFY(EsDeProvincia(QStringLiteral("01001"), QStringLiteral("1")));
        QVERIFY(EsDeProvincia(QStringLiteral("01001"), QStringLiteral("01")));
        QVERIFY(!EsDeProvincia(QStringLiteral("48001"), QStringLiteral("77")));
        QVERIFY(!EsDeProvincia(QStringLiteral("77001"), QString()));
        QVERIFY(EsValidoEnProvincia(QStringLiteral("77001"), QStringLiteral("77")));
        QVERIFY(!EsValidoEnProvincia(QStringLiteral("77000"), QStringLiteral("77")));
        QVERIFY(!EsValidoEnProvincia(QStringLiteral("00000"), QStringLiteral("00")));
        QVERIFY(!EsValidoEnProvincia(QStringLiteral("7700"), QStringLiteral("77")));
    }

    void codigosNormalizados()
    {
        QCOMPARE(CodigoProvincia::Normalizado(QStringLiteral("1")), QStringLiteral("01"));
        QCOMPARE(CodigoProvincia::Normalizado(QStringLiteral(" 77")), QStringLiteral("77"));
        QCOMPARE(CodigoProvincia::Normalizado(QStringLiteral("00")), QString());
        QCOMPARE(CodigoProvincia::Normalizado(QStringLiteral("AB")), QString());
        QCOMPARE(CodigoProvincia::Normalizado(QStringLiteral("123")), QStringLiteral("123"));
        QCOMPARE(CodigoMunicipio::Normalizado(QStringLiteral("5")), QStringLiteral("005"));
        QCOMPARE(CodigoMunicipio::Normalizado(QStringLiteral("005")), QStringLiteral("005"));
        QCOMPARE(CodigoMunicipio::Normalizado(QStringLiteral("0005")), QStringLiteral("005"));
        QCOMPARE(CodigoMunicipio::Normalizado(QStringLiteral(" 05 ")), QStringLiteral("005"));
        QCOMPARE(CodigoProvincia::Normalizado(QStringLiteral("0077")), QStringLiteral("77"));
        QCOMPARE(CodigoProvincia::Normalizado(QStringLiteral("0123")), QStringLiteral("123"));
        QCOMPARE(CodigoMunicipio::Normalizado(QStringLiteral("000")), QString());
        QCOMPARE(CodigoMunicipio::Normalizado(QStringLiteral("0005")), QStringLiteral("005"));
    }
};

QTEST_GUILESS_MAIN(TestIdentidad)
#include "test_identidad.moc"
