// The whole-return rules of the store, 1 to 40: each broken alone gives its number, any two
// broken together give the lower one, and the rules that tie an operation to the vehicle agree
// with their messages and with the rate rule of passenger cars.
#include "comun/DeclaracionPrueba.h"

#include "registros/declaracion/Calculo.h"
#include "servicios/cDeclaSvr.h"

#include "plataforma/General.h"

#include <QMap>
#include <QTest>
#include <variant>

namespace {

// What the rules judge of a valid return, with its date and the operation's print key.
struct Caso {
    DatosValidacion datos;
    int32_t fecha = 20100315;
    QString impresion = QStringLiteral("T2");
};

// The values the cases change, numbered so that changes can be combined and compared below.
using Texto = QString DatosValidacion::*;
using Numero = double DatosValidacion::*;
const std::variant<Texto, Numero> kValores[] = {
    &DatosValidacion::MARCA, &DatosValidacion::MODELO, &DatosValidacion::TIPO,          // 0-2
    &DatosValidacion::BASTIDOR, &DatosValidacion::CLASIFICACION,                        // 3-4
    &DatosValidacion::CILINDRADA, &DatosValidacion::OPERACION, &DatosValidacion::BASEI,  // 5-7
    &DatosValidacion::TIPOIMP, &DatosValidacion::TASA, &DatosValidacion::TASAMINIMA,    // 8-10
    &DatosValidacion::TASAMAXIMA, &DatosValidacion::DNISP, &DatosValidacion::NOMBRESP,  // 11-13
    &DatosValidacion::VIASP, &DatosValidacion::DOMICILIOSP, &DatosValidacion::CODPROVSP,  // 14-16
    &DatosValidacion::CODPOSSP, &DatosValidacion::CODMUNSP, &DatosValidacion::NOMMUNSP,  // 17-19
    &DatosValidacion::TIPODNITR, &DatosValidacion::DNITR, &DatosValidacion::NOMBRETR,   // 20-22
    &DatosValidacion::VIATR, &DatosValidacion::DOMICILIOTR, &DatosValidacion::TIPODOMITR,  // 23-25
    &DatosValidacion::PAISTR, &DatosValidacion::CODPROVTR, &DatosValidacion::NOMPROVTR,  // 26-28
    &DatosValidacion::CODPOSTR, &DatosValidacion::CODMUNTR, &DatosValidacion::NOMMUNTR,  // 29-31
    &DatosValidacion::MOTOR,                                                            // 32
};

Caso valido()
{
    Caso c;
    DatosValidacion& d = c.datos;
    d.MARCA = QStringLiteral("SEAT");
    d.MODELO = QStringLiteral("IBIZA");
    d.TIPO = QStringLiteral("6J");
    d.BASTIDOR = QStringLiteral("VSSZZZ6JZAR000001");
    d.CLASIFICACION = 1000;
    d.CILINDRADA = 1598;
    d.OPERACION = QStringLiteral("T2");
    d.BASEI = 1500000.0;
    d.TIPOIMP = 4.75;
    d.DNISP = Dni(12345678);
    d.NOMBRESP = QStringLiteral("GARCIA LOPEZ JUAN");
    d.VIASP = QStringLiteral("CL");
    d.DOMICILIOSP = QStringLiteral("MAYOR");
    d.CODPROVSP = QStringLiteral("77");
    d.CODPOSSP = QStringLiteral("77001");
    d.CODMUNSP = QStringLiteral("001");
    d.TIPODNITR = QStringLiteral("O");
    d.DNITR = Dni(87654321);
    d.NOMBRETR = QStringLiteral("AUTOS VELDO SA");
    d.VIATR = QStringLiteral("AV");
    d.DOMICILIOTR = QStringLiteral("GASTEIZ");
    d.TIPODOMITR = QStringLiteral("N");
    d.CODPROVTR = QStringLiteral("77");
    d.CODPOSTR = QStringLiteral("77002");
    d.CODMUNTR = QStringLiteral("002");
    d.MOTOR = QStringLiteral("G");
    return c;
}

// A change to the valid return: values by their number in kValores, and perhaps another date
// and print key. The keys -1 and -2 stand for the date and the print key.
using Cambio = QMap<int, QVariant>;
constexpr int kFecha = -1;
constexpr int kImpresion = -2;

Caso aplicar(const Cambio& cambio)
{
    Caso c = valido();
    for (auto it = cambio.cbegin(); it != cambio.cend(); ++it) {
        if (it.key() == kFecha) {
            c.fecha = it.value().toInt();
        } else if (it.key() == kImpresion) {
            c.impresion = it.value().toString();
        } else {
            const auto& valor = kValores[it.key()];
            if (std::holds_alternative<Texto>(valor))
                c.datos.*std::get<Texto>(valor) = it.value().toString();
            else
                c.datos.*std::get<Numero>(valor) = it.value().toDouble();
        }
    }
    return c;
}

// The number of the first rule the case breaks, 0 when none.
int validar(const Caso& c)
{
    const Resultado<void> r = cDeclaSvr().ValidarDatosDeclaraciones(c.datos, c.impresion, c.fecha);
    return r ? 0 : ReglaDe(r.veredicto());
}

const QString s(const char* t) { return QString::fromUtf8(t); }

// What breaks each rule, and nothing else. Each change also fixes the values its rule relies
// on (the home province, a national address, a passenger car...), so that two changes that
// cannot stand together are seen to set one value two ways.
QMap<int, Cambio> rupturas()
{
    const Cambio extranjero{{25, s("E")}, {26, s("FRANCIA")}, {27, s("00")}, {28, s("PARIS")},
                            {29, s("75001")}, {30, s("")}, {31, s("PARIS")}};
    auto con = [](Cambio base, const Cambio& mas) {
        for (auto it = mas.cbegin(); it != mas.cend(); ++it)
            base[it.key()] = it.value();
        return base;
    };
    QMap<int, Cambio> r;
    r[1] = {{0, s("")}};
    r[2] = {{1, s("  ")}};
    r[3] = {{2, s("")}};
    r[4] = {{3, s("")}};
    r[5] = {{4, 0}};
    r[6] = {{5, 0}};
    r[7] = {{6, s("")}};
    r[8] = {{7, 0.0}};
    r[9] = {{6, s("TL")}, {kImpresion, s("TL")}, {9, 99.99}, {10, 0.0}, {11, 14.75}, {8, 20.0}};
    r[10] = {{12, s("12345678A")}};
    r[11] = {{13, s("")}};
    r[12] = {{14, s("")}};
    r[13] = {{15, s("")}};
    r[14] = {{16, s("77")}, {18, s("")}};  // the home province, without municipality code
    r[15] = {{16, s("48")}, {17, s("48001")}, {18, s("")}, {19, s("")}};
    r[16] = {{16, s("77")}, {17, s("00000")}};
    r[17] = {{16, s("77")}, {17, s("48001")}};
    r[18] = {{16, s("77")}, {17, s("77000")}};
    r[19] = {{20, s("O")}, {21, s("87654321A")}};
    r[20] = {{21, s("")}};
    r[21] = {{22, s("")}};
    r[22] = {{23, s("")}};
    r[23] = {{24, s("")}};
    r[24] = con(extranjero, {{26, s("")}});
    r[25] = {{25, s("N")}, {27, s("77")}, {29, s("48001")}};
    r[26] = {{25, s("N")}, {27, s("77")}, {29, s("7700A")}};
    r[27] = {{25, s("N")}, {27, s("77")}, {29, s("77000")}};
    r[28] = con(extranjero, {{29, s("")}});
    r[29] = con(extranjero, {{28, s("")}});
    r[30] = {{25, s("N")}, {27, s("48")}, {29, s("48001")}, {30, s("")}, {31, s("")}};
    r[31] = {{25, s("N")}, {27, s("00")}, {29, s("00001")}, {30, s("")}, {31, s("ALGUNO")}};
    r[32] = {{25, s("N")}, {27, s("77")}, {30, s("")}};
    r[33] = {{4, 1000}, {kFecha, 20050610}, {6, s("TN")}, {kImpresion, s("TN")}, {5, 1400}, {32, s("G")}};
    r[34] = {{4, 1000}, {kFecha, 20050610}, {6, s("TN")}, {kImpresion, s("TN")}, {5, 1900}, {32, s("D")}};
    r[35] = {{4, 1000}, {kFecha, 20050610}, {6, s("T7")}, {kImpresion, s("T7")}, {5, 1800}, {32, s("G")}};
    r[36] = {{4, 1000}, {kFecha, 20050610}, {6, s("T7")}, {kImpresion, s("T7")}, {5, 2200}, {32, s("D")}};
    r[37] = {{12, s("")}};
    r[38] = {{kFecha, 20050610}, {4, 2000}, {6, s("T7")}, {kImpresion, s("T7")}};
    r[39] = {{4, 1000}, {kFecha, 20070610}, {6, s("P6")}, {kImpresion, s("P6")}, {5, 3000}, {32, s("G")}};
    r[40] = {{4, 5000}, {6, s("E1")}, {kImpresion, s("E1")}};
    return r;
}

// Two changes that set the same value differently cannot stand in one return.
bool compatibles(const Cambio& a, const Cambio& b)
{
    for (auto it = a.cbegin(); it != a.cend(); ++it) {
        if (b.contains(it.key()) && b.value(it.key()) != it.value())
            return false;
    }
    return true;
}

}  // namespace

class TestReglas : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<CarpetaDePrueba> m_carpeta;

private slots:
    void initTestCase() { m_carpeta = std::make_unique<CarpetaDePrueba>(); }

    void laDeclaracionValidaPasa()
    {
        QCOMPARE(validar(valido()), 0);
    }

    void cadaReglaSola_data()
    {
        QTest::addColumn<int>("regla");
        for (int n = 1; n <= 40; ++n)
            QTest::newRow(qPrintable(QStringLiteral("regla %1").arg(n))) << n;
    }

    void cadaReglaSola()
    {
        QFETCH(int, regla);
        const QMap<int, Cambio> r = rupturas();
        QVERIFY(r.contains(regla));
        QCOMPARE(int(validar(aplicar(r[regla]))), regla);
    }

    void porParesGanaLaMenor()
    {
        const QMap<int, Cambio> r = rupturas();
        int probados = 0;
        for (int i = 1; i <= 40; ++i) {
            for (int j = i + 1; j <= 40; ++j) {
                if (!compatibles(r[i], r[j]))
                    continue;
                Cambio juntos = r[i];
                for (auto it = r[j].cbegin(); it != r[j].cend(); ++it)
                    juntos[it.key()] = it.value();
                const int obtenida = validar(aplicar(juntos));
                QVERIFY2(obtenida == i,
                         qPrintable(QStringLiteral("%1 y %2 dan %3").arg(i).arg(j).arg(obtenida)));
                ++probados;
            }
        }
        // Most pairs can stand together; the others set one value two ways.
        QVERIFY2(probados > 650, qPrintable(QString::number(probados)));
    }

    void losDatosNoCambianAlValidar()
    {
        const Caso c = aplicar(rupturas()[17]);
        const Caso copia = c;
        validar(c);
        QCOMPARE(c.datos.CODPOSSP, copia.datos.CODPOSSP);
        QCOMPARE(c.datos.CODPROVSP, copia.datos.CODPROVSP);
    }

    void numeroDelSujetoErroneoAntesQueVacio()
    {
        // A wrong number is told at once, an empty one only after all the other rules.
        QCOMPARE(int(validar(aplicar({{12, s("12345678A")}, {0, s("SEAT")}}))), 10);
        QCOMPARE(int(validar(aplicar({{12, s("")}, {21, s("")}}))), 20);
    }

    void operacionQueNoRigeEnLaFecha()
    {
        // ObtenImpresion gives no key for a code that does not apply on the date.
        QCOMPARE(int(validar(aplicar({{6, s("T7")}, {kImpresion, s("")}}))), 7);
        QCOMPARE(int(validar(aplicar({{6, s("ZZZ")}, {kImpresion, s("")}}))), 7);
    }

    void tasaLibreSoloConElTipoAbierto()
    {
        // With the box locked, value 9 is 0: the limits are not checked.
        QCOMPARE(int(validar(aplicar({{6, s("TL")}, {kImpresion, s("TL")}, {9, 0.0},
                                      {10, 7.0}, {11, 12.0}, {8, 20.0}}))),
                 0);
        // Within the limits, both ends included.
        for (double t : {7.0, 12.0, 9.5})
            QCOMPARE(int(validar(aplicar({{6, s("TL")}, {kImpresion, s("TL")}, {9, 99.99},
                                          {10, 7.0}, {11, 12.0}, {8, t}}))),
                     0);
        for (double t : {6.99, 12.01, 0.0})
            QCOMPARE(int(validar(aplicar({{6, s("TL")}, {kImpresion, s("TL")}, {9, 99.99},
                                          {10, 7.0}, {11, 12.0}, {8, t}}))),
                     9);
    }

    void exentoYNoSujetoPasanLaMismaLista()
    {
        // Rate 0 and value 9 = 0 (locked box): only the other rules apply.
        QCOMPARE(int(validar(aplicar({{6, s("TE")}, {kImpresion, s("TE")}, {8, 0.0}}))), 0);
        QCOMPARE(int(validar(aplicar({{6, s("N43")}, {kImpresion, s("N43")}, {8, 0.0},
                                      {0, s("")}}))),
                 1);
    }

    void transmitenteExtranjero()
    {
        const Cambio extranjero{{20, s("N")}, {21, s("P1234567")}, {25, s("E")},
                                {26, s("FRANCIA")}, {27, s("")}, {28, s("PARIS")},
                                {29, s("75001")}, {30, s("")}, {31, s("PARIS")}};
        QCOMPARE(int(validar(aplicar(extranjero))), 0);
        // A foreign postal code keeps its own shape; the province rules do not apply.
        Cambio ingles = extranjero;
        ingles[29] = s("SW1A 1AA");
        QCOMPARE(int(validar(aplicar(ingles))), 0);
        // A foreign number of value 0 is not a number.
        Cambio ceros = extranjero;
        ceros[21] = s("000");
        QCOMPARE(int(validar(aplicar(ceros))), 19);
        // An official number must be a good one.
        Cambio oficial = extranjero;
        oficial[20] = s("O");
        QCOMPARE(int(validar(aplicar(oficial))), 19);
    }

    void codigosPostalesDelSujeto()
    {
        QCOMPARE(int(validar(aplicar({{17, s("")}}))), 16);
        QCOMPARE(int(validar(aplicar({{16, s("01")}, {17, s("01001")}, {18, s("")},
                                      {19, s("VITORIA")}}))),
                 0);
        QCOMPARE(int(validar(aplicar({{16, s("01")}, {17, s("01000")}, {18, s("")},
                                      {19, s("VITORIA")}}))),
                 18);
    }

    // The rate rule of passenger cars before 2008: 7 % for petrol under 1600 cc and diesel
    // under 2000 cc, 12 % otherwise; the code of the other rate is refused by 33 to 36.
    void reglasDeTurismoSiguenElTipo_data()
    {
        QTest::addColumn<QString>("motor");
        QTest::addColumn<int>("cilindrada");
        for (const char* m : {"G", "D", ""}) {
            for (int cc : {999, 1599, 1600, 1999, 2000, 2499, 2500, 4000})
                QTest::newRow(qPrintable(QStringLiteral("%1 %2").arg(QLatin1String(m)).arg(cc)))
                    << QString::fromLatin1(m) << cc;
        }
    }

    void reglasDeTurismoSiguenElTipo()
    {
        QFETCH(QString, motor);
        QFETCH(int, cilindrada);
        // The form's own rate rule for passenger cars decides which rate the car pays.
        const auto tipo = TipoTurismo(1010, motor, cilindrada);
        QVERIFY(tipo.has_value());
        const bool siete = *tipo == 7.0;
        const bool diesel = motor == QLatin1String("D");
        auto con = [&](const char* codigo, const char* impresion) {
            return validar(aplicar({{kFecha, 20060301}, {6, s(codigo)},
                                    {kImpresion, s(impresion)}, {5, cilindrada},
                                    {32, motor}, {4, 1010}}));
        };
        const int tipoGeneral = siete ? (diesel ? 34 : 33) : 0;
        const int tipoReducido = siete ? 0 : (diesel ? 36 : 35);
        QCOMPARE(int(con("TN", "TN")), tipoGeneral);
        QCOMPARE(int(con("P6", "P6")), tipoGeneral);
        QCOMPARE(int(con("P7", "P7")), tipoGeneral);
        QCOMPARE(int(con("T7", "T7")), tipoReducido);
        QCOMPARE(int(con("P6B", "P6")), tipoReducido);
        QCOMPARE(int(con("P7B", "P7")), tipoReducido);
        // Operations that do not depend on the engine pass.
        QCOMPARE(int(con("TE", "TE")), 0);
        QCOMPARE(int(con("N43", "N43")), 0);
        QCOMPARE(int(con("E1", "E1")), 0);
        // The operation of the car's rate carries that rate in the table.
        cDeclaSvr svr;
        svr.mdblec = mdblec;
        const std::optional<DatosOperacion> datos =
            svr.ObtenerDatosOperacion(siete ? QStringLiteral("T7") : QStringLiteral("TN"), 20060301,
                                      Idioma::Castellano);
        QVERIFY(datos.has_value());
        QCOMPARE(datos->tipo, *tipo);
    }

    void otrasClasificacionesAntesDe2008()
    {
        for (int clas : {2000, 5000, 999, 1100}) {
            for (const char* ok : {"N43", "TN", "TE"})
                QCOMPARE(int(validar(aplicar({{kFecha, 20071231}, {4, clas}, {6, s(ok)},
                                              {kImpresion, s(ok)}}))),
                         0);
            for (const char* no : {"T7", "P6", "P7B", "E2", "TL"})
                QCOMPARE(int(validar(aplicar({{kFecha, 20071231}, {4, clas}, {6, s(no)},
                                              {kImpresion, s(no)}, {5, 1200}}))),
                         38);
        }
    }

    void otrasClasificacionesDesde2008()
    {
        for (int clas : {2000, 5000, 999, 1100}) {
            for (const char* ok : {"N43", "T1", "T2", "T3", "T4", "T5", "TE"})
                QCOMPARE(int(validar(aplicar({{kFecha, 20080101}, {4, clas}, {6, s(ok)},
                                              {kImpresion, s(ok)}}))),
                         0);
            for (const char* no : {"E1", "E6", "TL"})
                QCOMPARE(int(validar(aplicar({{kFecha, 20080101}, {4, clas}, {6, s(no)},
                                              {kImpresion, s(no)}}))),
                         40);
        }
        // A passenger car may use every operation of the date.
        for (const char* op : {"T1", "T5", "E1", "E6", "TL", "N43", "TE"})
            QCOMPARE(int(validar(aplicar({{kFecha, 20080101}, {4, 1099}, {6, s(op)},
                                          {kImpresion, s(op)}}))),
                     0);
    }

    void planDeBajasPorAnoYCilindrada()
    {
        auto con = [](int32_t fecha, int cc) {
            return int(validar(aplicar({{kFecha, fecha}, {6, s("P6")}, {kImpresion, s("P6")},
                                        {5, cc}, {32, s("G")}})));
        };
        QCOMPARE(con(20061231, 3000), 0);  // the year must be above 2006
        QCOMPARE(con(20070101, 2499), 0);  // and the capacity above 2499
        QCOMPARE(con(20070101, 2500), 39);
        QCOMPARE(con(20071231, 5000), 39);
    }
};

QTEST_MAIN(TestReglas)
#include "test_decl_reglas.moc"
