// The operation record and the computation of a return: rounding of the operation's numbers,
// the rate without fixed value recognised by its bits, what an operation does to the return,
// the amounts, the reductions, the typed rate, and the base read from its text.
#include "catalogo/IdsCatalogo.h"
#include "comun/DeclaracionPrueba.h"

#include "paneles/declaracion/ComprobacionesDeclaracion.h"
#include "paneles/dialogos/Mensaje.h"
#include "catalogo/Catalogo.h"
#include "registros/declaracion/Calculo.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cOperacion.h"
#include "valores/EstadoNavegacion.h"
#include "valores/Formato.h"
#include "valores/Redondeo.h"

#include <QLocale>
#include <QRandomGenerator>
#include <QTest>
#include <bit>
#include <clocale>
#include <cmath>
#include <cstdint>

class TestCalculo : public QObject {
    Q_OBJECT

private:
    static void operacion(const QString& nsuj, const QString& exe, double tip, double min = 0,
                          double max = 0, double dedu = 0)
    {
        Operacion().ActualizaOperacion({QStringLiteral("DESC"), QStringLiteral("K"), nsuj, exe,
                                        tip, min, max, dedu},
                                       false);
    }

private slots:
    void init()
    {
        GrabarSeams();
        MensajeSeam::limpiar();
        Navegacion::RutaDec().modo = Navegacion::Modo::Nuevo;
        DecDatos().IniciarNuevo();
        Operacion().Inicializa();
    }

    // --- cOperacion ------------------------------------------------------------------------

    void redondeaCadaNumeroAlAsignarlo()
    {
        cOperacion& op = Operacion();
        op.setT_TIP(7.125);
        op.setT_MIN(-2.125);
        op.setT_MAX(14.754);
        op.setT_DEDU(48081.0049);
        QCOMPARE(op.T_TIP(), 7.13);
        QCOMPARE(op.T_MIN(), -2.13);
        QCOMPARE(op.T_MAX(), 14.75);
        QCOMPARE(op.T_DEDU(), 48081.0);
    }

    void actualizaOperacionRedondeaLosCuatroNumeros()
    {
        Operacion().ActualizaOperacion({QStringLiteral("Turismo"), QStringLiteral("T7"),
                                        QString(), QString(), 7.125, 0.375, 12.625, 48080.999},
                                       false);
        const cOperacion& op = Operacion();
        QCOMPARE(op.DESCRIP, QStringLiteral("Turismo"));
        QCOMPARE(op.T_IMPR, QStringLiteral("T7"));
        QCOMPARE(op.T_TIP(), 7.13);
        QCOMPARE(op.T_MIN(), 0.38);
        QCOMPARE(op.T_MAX(), 12.63);
        QCOMPARE(op.T_DEDU(), 48081.0);
    }

    void inicializaVaciaTodo()
    {
        operacion(QStringLiteral("X"), QString(), 12, 1, 2, 3);
        Operacion().T_RED = QStringLiteral("Y");
        Operacion().Inicializa();
        const cOperacion& op = Operacion();
        QVERIFY(op.DESCRIP.isEmpty() && op.T_IMPR.isEmpty() && op.T_NSUJ.isEmpty()
                && op.T_EXE.isEmpty() && op.T_RED.isEmpty());
        QCOMPARE(op.T_TIP(), 0.0);
        QCOMPARE(op.T_MIN(), 0.0);
        QCOMPARE(op.T_MAX(), 0.0);
        QCOMPARE(op.T_DEDU(), 0.0);
    }

    void laReduccionSeConservaSalvoExentoNoSujetoOSinReduccion()
    {
        Operacion().T_RED = QStringLiteral("X");
        operacion(QString(), QString(), 12);
        QCOMPARE(Operacion().T_RED, QStringLiteral("X"));
        Operacion().ActualizaOperacion({QString(), QString(), QString(), QString(), 12, 0, 0, 0},
                                       true);
        QVERIFY(Operacion().T_RED.isEmpty());
        Operacion().T_RED = QStringLiteral("Y");
        operacion(QString(), QStringLiteral("X"), 0);
        QVERIFY(Operacion().T_RED.isEmpty());
        Operacion().T_RED = QStringLiteral("Z");
        operacion(QStringLiteral("X"), QString(), 0);
        QVERIFY(Operacion().T_RED.isEmpty());
    }

    void tasaLibrePorSuPatronDeBits()
    {
        QVERIFY(EsTasaLibre(99.99));
        QVERIFY(EsTasaLibre(Redondear(99.99, 2)));
        QVERIFY(!EsTasaLibre(std::nextafter(99.99, 100.0)));
        QVERIFY(!EsTasaLibre(std::nextafter(99.99, 0.0)));
        QVERIFY(!EsTasaLibre(99.0));
        Operacion().setT_TIP(99.99);
        QVERIFY(EsTasaLibre(Operacion().T_TIP()));
        Operacion().setT_TIP(99.9899999);  // rounds to 99.99 and becomes the sentinel
        QVERIFY(EsTasaLibre(Operacion().T_TIP()));
    }

    // --- AplicarOperacion --------------------------------------------------------------------

    void tasaLibreDejaElTipoQueHabia()
    {
        DecDatos().TIPOIMP = 9.5;
        operacion(QString(), QString(), 99.99, 0, 14.75);
        AplicarOperacion();
        QCOMPARE(DecDatos().TIPOIMP, 9.5);
    }

    void tipoNoventaYNueveSeAplica()
    {
        DecDatos().TIPOIMP = 9.5;
        operacion(QString(), QString(), 99.0);
        AplicarOperacion();
        QCOMPARE(DecDatos().TIPOIMP, 99.0);
    }

    void tipoNoventaYNueveYMedioNoSeAplica()
    {
        DecDatos().TIPOIMP = 9.5;
        operacion(QString(), QString(), 99.5);
        QVERIFY(!EsTasaLibre(Operacion().T_TIP()));
        AplicarOperacion();
        QCOMPARE(DecDatos().TIPOIMP, 9.5);
    }

    void noSujetoBorraReduccionYBaseReducida()
    {
        cDecDatos& d = DecDatos();
        d.BASEI = Importe(1000000);
        d.REDUCCION = QStringLiteral("X");
        d.BASEIREDUCIDA = Importe(500000);
        d.TIPOIMP = 12;
        Operacion().T_RED = QStringLiteral("X");
        operacion(QStringLiteral("X"), QString(), 0);
        AplicarOperacion();
        QCOMPARE(d.NOSUJETO, QStringLiteral("X"));
        QVERIFY(d.EXENTO.isEmpty());
        QVERIFY(d.REDUCCION.isEmpty());
        QVERIFY(Operacion().T_RED.isEmpty());
        QCOMPARE(d.BASEIREDUCIDA.centimos(), 0.0);
        QCOMPARE(d.TIPOIMP, 0.0);
        QCOMPARE(d.CUOTA.centimos(), 0.0);
        QCOMPARE(d.BASEI.centimos(), 1000000.0);
    }

    void conLasDosMarcasQuedaExento()
    {
        operacion(QStringLiteral("X"), QStringLiteral("X"), 12);
        AplicarOperacion();
        QCOMPARE(DecDatos().EXENTO, QStringLiteral("X"));
        QVERIFY(DecDatos().NOSUJETO.isEmpty());
        QCOMPARE(DecDatos().TIPOIMP, 0.0);
    }

    void laReduccionDeLaOperacionPasaAlRegistroYQuitaMarcas()
    {
        cDecDatos& d = DecDatos();
        d.BASEI = Importe(1000000);
        d.NOSUJETO = QStringLiteral("X");
        operacion(QString(), QString(), 12);
        Operacion().T_RED = QStringLiteral("Y");
        AplicarOperacion();
        QCOMPARE(d.REDUCCION, QStringLiteral("Y"));
        QVERIFY(d.NOSUJETO.isEmpty() && d.EXENTO.isEmpty());
        QCOMPARE(d.BASEIREDUCIDA.centimos(), 700000.0);
        QCOMPARE(d.CUOTA.centimos(), 84000.0);
    }

    void laDeduccionVieneDeLaOperacion()
    {
        cDecDatos& d = DecDatos();
        d.BASEI = Importe(1000000);
        operacion(QString(), QString(), 12, 0, 0, 48081);
        AplicarOperacion();
        QCOMPARE(d.DEDUCCION.centimos(), 48081.0);
        QCOMPARE(d.TOTAL.centimos(), 120000.0 - 48081.0);
        // The computation itself never changes the deduction.
        d.BASEI = Importe(2000000);
        CalcularValores();
        QCOMPARE(d.DEDUCCION.centimos(), 48081.0);
        QCOMPARE(d.TOTAL.centimos(), 240000.0 - 48081.0);
    }

    void operacionDesconocidaLimpiaMarcasTipoYDeduccion()
    {
        cDecDatos& d = DecDatos();
        d.EXENTO = QStringLiteral("X");
        d.REDUCCION = QStringLiteral("X");
        d.TIPOIMP = 7;
        d.DEDUCCION = Importe(48081);
        Operacion().Inicializa();
        AplicarOperacion();
        QVERIFY(d.EXENTO.isEmpty() && d.NOSUJETO.isEmpty() && d.REDUCCION.isEmpty());
        QCOMPARE(d.TIPOIMP, 0.0);
        QCOMPARE(d.DEDUCCION.centimos(), 0.0);
    }

    // --- CalcularValores ---------------------------------------------------------------------

    void sinReduccion()
    {
        cDecDatos& d = DecDatos();
        d.BASEI = Importe(1000000);
        d.TIPOIMP = 12;
        d.BASEIREDUCIDA = Importe(5);
        CalcularValores();
        QCOMPARE(d.BASEIREDUCIDA.centimos(), 0.0);
        QCOMPARE(d.CUOTA.centimos(), 120000.0);
        QCOMPARE(d.TOTAL.centimos(), 120000.0);
        QCOMPARE(Formato(d.BASEI.centimos() / 100, QStringLiteral("#,###,###,###,##0.00")),
                 QStringLiteral("10.000,00"));
        QCOMPARE(Formato(d.TOTAL.centimos() / 100, QStringLiteral("#,###,###,###,##0.00")),
                 QStringLiteral("1.200,00"));
    }

    void reducciones_data()
    {
        QTest::addColumn<QString>("codigo");
        QTest::addColumn<double>("reducida");
        QTest::addColumn<double>("cuota");
        QTest::newRow("X") << QStringLiteral("X") << 500000.0 << 60000.0;
        QTest::newRow("Y") << QStringLiteral("Y") << 700000.0 << 84000.0;
        QTest::newRow("Z") << QStringLiteral("Z") << 200000.0 << 24000.0;
    }

    void reducciones()
    {
        QFETCH(QString, codigo);
        QFETCH(double, reducida);
        QFETCH(double, cuota);
        cDecDatos& d = DecDatos();
        d.BASEI = Importe(1000000);
        d.TIPOIMP = 12;
        d.REDUCCION = codigo;
        CalcularValores();
        QCOMPARE(d.BASEIREDUCIDA.centimos(), reducida);
        QCOMPARE(d.CUOTA.centimos(), cuota);
        QCOMPARE(d.TOTAL.centimos(), cuota);
    }

    void otraReduccionDejaLaBaseReducidaComoEsta()
    {
        cDecDatos& d = DecDatos();
        d.BASEI = Importe(1000000);
        d.TIPOIMP = 10;
        d.REDUCCION = QStringLiteral("W");
        d.BASEIREDUCIDA = Importe(300000);
        CalcularValores();
        QCOMPARE(d.BASEIREDUCIDA.centimos(), 300000.0);
        QCOMPARE(d.CUOTA.centimos(), 30000.0);
    }

    void cuotaConDecimalesDeCentimo()
    {
        cDecDatos& d = DecDatos();
        d.BASEI = Importe(123457);
        d.TIPOIMP = 12;
        CalcularValores();
        QCOMPARE(d.CUOTA.centimos(), 14814.84);
        QCOMPARE(Formato(d.CUOTA.centimos() / 100, QStringLiteral("##,###,###,##0.00")),
                 QStringLiteral("148,15"));
    }

    void totalNuncaNegativo()
    {
        cDecDatos& d = DecDatos();
        d.BASEI = Importe(100000);
        d.TIPOIMP = 7;
        d.DEDUCCION = Importe(48081);
        CalcularValores();
        QCOMPARE(d.CUOTA.centimos(), 7000.0);
        QCOMPARE(d.TOTAL.centimos(), 0.0);
    }

    void exentoTipoCeroCuotaCeroBaseIntacta()
    {
        cDecDatos& d = DecDatos();
        d.BASEI = Importe(2345600);
        d.TIPOIMP = 12;
        operacion(QString(), QStringLiteral("X"), 0);
        AplicarOperacion();
        QCOMPARE(d.TIPOIMP, 0.0);
        QCOMPARE(d.CUOTA.centimos(), 0.0);
        QCOMPARE(d.TOTAL.centimos(), 0.0);
        QCOMPARE(d.BASEI.centimos(), 2345600.0);
    }

    void redondeoDeMedioNegativo()
    {
        QCOMPARE(Redondear(-2.5, 0), -3.0);
    }

    void baseGrandeExacta()
    {
        cDecDatos& d = DecDatos();
        d.BASEI = Importe(999999999999999.0);  // 9.999.999.999.999,99 on screen
        d.TIPOIMP = 1;
        CalcularValores();
        QCOMPARE(d.CUOTA.centimos(), 9999999999999.99);
    }

    // --- ActualizarReduccion -----------------------------------------------------------------

    void reduccionDesdeLasCasillas_data()
    {
        QTest::addColumn<bool>("m1");
        QTest::addColumn<bool>("m2");
        QTest::addColumn<QString>("codigo");
        QTest::newRow("primera") << true << false << QStringLiteral("X");
        QTest::newRow("segunda") << false << true << QStringLiteral("Y");
        QTest::newRow("las dos") << true << true << QStringLiteral("Z");
        QTest::newRow("ninguna") << false << false << QString();
    }

    void reduccionDesdeLasCasillas()
    {
        QFETCH(bool, m1);
        QFETCH(bool, m2);
        QFETCH(QString, codigo);
        DecDatos().REDUCCION = QStringLiteral("Q");
        DecDatos().BASEIREDUCIDA = Importe(77);
        Operacion().T_RED = QStringLiteral("Q");
        ActualizarReduccion({true, m1, true, m2});
        QCOMPARE(DecDatos().REDUCCION, codigo);
        QCOMPARE(Operacion().T_RED, codigo);
        QCOMPARE(DecDatos().BASEIREDUCIDA.centimos(), codigo.isEmpty() ? 0.0 : 77.0);
    }

    void casillasDeshabilitadasNoCambianNada()
    {
        DecDatos().REDUCCION = QStringLiteral("X");
        Operacion().T_RED = QStringLiteral("X");
        ActualizarReduccion({false, false, false, true});
        QCOMPARE(DecDatos().REDUCCION, QStringLiteral("X"));
        QCOMPARE(Operacion().T_RED, QStringLiteral("X"));
        // Only the second box enabled still counts (the first one is checked as unticked).
        ActualizarReduccion({false, false, true, true});
        QCOMPARE(DecDatos().REDUCCION, QStringLiteral("Y"));
    }

    // --- ValidarTipoImpositivo ---------------------------------------------------------------

    void tipoBloqueadoOSaltandoNoHaceNada()
    {
        operacion(QString(), QString(), 99.99, 0, 14.75);
        DecDatos().TIPOIMP = 3;
        ResultadoTipo r = ValidarTipoImpositivo(20, true, false);
        QVERIFY(!r.presentar && !r.volverAlTipo);
        r = ValidarTipoImpositivo(20, false, true);
        QVERIFY(!r.presentar && !r.volverAlTipo);
        QCOMPARE(DecDatos().TIPOIMP, 3.0);
        QVERIFY(MensajeSeam::registro().isEmpty());
    }

    void mismoTipoNoCeroNoHaceNada()
    {
        operacion(QString(), QString(), 99.99, 0, 14.75);
        DecDatos().TIPOIMP = 20;  // already out of the limits: not checked again
        const ResultadoTipo r = ValidarTipoImpositivo(20, false, false);
        QVERIFY(!r.presentar);
        QVERIFY(MensajeSeam::registro().isEmpty());
    }

    void tipoCeroSiempreSigue()
    {
        operacion(QString(), QString(), 99.99, 7, 12);
        DecDatos().TIPOIMP = 0;
        const ResultadoTipo r = ValidarTipoImpositivo(0, false, false);
        QVERIFY(r.presentar);
        QVERIFY(r.volverAlTipo);
        QCOMPARE(MensajeSeam::registro().size(), 1);
    }

    void tipoLibreDentroDeLimites()
    {
        DecDatos().BASEI = Importe(1000000);
        operacion(QString(), QString(), 99.99, 0, 14.75);
        const ResultadoTipo r = ValidarTipoImpositivo(14.75, false, false);
        QVERIFY(r.presentar && !r.volverAlTipo);
        QCOMPARE(DecDatos().TIPOIMP, 14.75);
        QCOMPARE(DecDatos().CUOTA.centimos(), 147500.0);
        QVERIFY(MensajeSeam::registro().isEmpty());
    }

    void tipoLibreFueraDeLimites()
    {
        DecDatos().BASEI = Importe(1000000);
        DecDatos().TIPOIMP = 9;
        operacion(QString(), QString(), 99.99, 7, 12);
        const ResultadoTipo r = ValidarTipoImpositivo(12.01, false, false);
        QVERIFY(r.presentar && r.volverAlTipo);
        QCOMPARE(DecDatos().TIPOIMP, 9.0);
        QCOMPARE(DecDatos().CUOTA.centimos(), 90000.0);  // computed all the same
        QCOMPARE(MensajeSeam::registro().size(), 1);
        const auto& m = MensajeSeam::registro().first();
        QCOMPARE(m.texto, QStringLiteral("El Tipo Impositivo no puede ser menor que 7 ni mayor que 12"));
        QCOMPARE(m.titulo, Texto(kIdErrorIntroduccionDatos));
        QCOMPARE(m.icono(), int(vb::Exclamation));
    }

    void tipoFijoSeAceptaTalCual()
    {
        DecDatos().BASEI = Importe(1000000);
        operacion(QString(), QString(), 12);
        const ResultadoTipo r = ValidarTipoImpositivo(50, false, false);
        QVERIFY(r.presentar && !r.volverAlTipo);
        QCOMPARE(DecDatos().TIPOIMP, 50.0);
    }

    // --- AjustarTipoImpositivo, LimpiarOperacion ------------------------------------------------

    void ajustarTipoFueraDeLosNuevosLimites()
    {
        operacion(QString(), QString(), 99.99, 7, 12);
        DecDatos().TIPOIMP = 13;
        AjustarTipoImpositivo(true);
        QCOMPARE(DecDatos().TIPOIMP, 13.0);  // locked box: nothing
        AjustarTipoImpositivo(false);
        QCOMPARE(DecDatos().TIPOIMP, 0.0);
        DecDatos().TIPOIMP = 8;
        AjustarTipoImpositivo(false);
        QCOMPARE(DecDatos().TIPOIMP, 8.0);
        operacion(QString(), QString(), 12);
        DecDatos().TIPOIMP = 30;
        AjustarTipoImpositivo(false);
        QCOMPARE(DecDatos().TIPOIMP, 30.0);  // not the free rate: nothing
        QVERIFY(MensajeSeam::registro().isEmpty());
    }

    void limpiarOperacion()
    {
        DecDatos().OPERACION = QStringLiteral("P6");
        DecDatos().BASEIREDUCIDA = Importe(5);
        operacion(QStringLiteral("X"), QStringLiteral("X"), 12, 1, 2, 48081);
        Operacion().T_RED = QStringLiteral("X");
        LimpiarOperacion();
        QVERIFY(DecDatos().OPERACION.isEmpty());
        QCOMPARE(DecDatos().BASEIREDUCIDA.centimos(), 0.0);
        QCOMPARE(Operacion().T_DEDU(), 0.0);
        QCOMPARE(Operacion().T_TIP(), 0.0);
        QVERIFY(Operacion().T_NSUJ.isEmpty() && Operacion().T_EXE.isEmpty()
                && Operacion().T_RED.isEmpty());
    }

    // --- The rate rule of passenger cars ----------------------------------------------------

    void tipoDeTurismo_data()
    {
        QTest::addColumn<int>("clasificacion");
        QTest::addColumn<QString>("motor");
        QTest::addColumn<int>("cilindrada");
        QTest::addColumn<double>("tipo");
        QTest::newRow("gasolina 1599") << 1000 << "G" << 1599 << 7.0;
        QTest::newRow("gasolina 1600") << 1000 << "G" << 1600 << 12.0;
        QTest::newRow("gasoleo 1999") << 1099 << "D" << 1999 << 7.0;
        QTest::newRow("gasoleo 2000") << 1050 << "D" << 2000 << 12.0;
        QTest::newRow("sin motor") << 1000 << "" << 900 << 12.0;
        QTest::newRow("no turismo") << 2000 << "G" << 1200 << -1.0;
        QTest::newRow("tres cifras") << 100 << "G" << 1200 << -1.0;
    }

    void tipoDeTurismo()
    {
        QFETCH(int, clasificacion);
        QFETCH(QString, motor);
        QFETCH(int, cilindrada);
        QFETCH(double, tipo);
        const auto r = TipoTurismo(clasificacion, motor, cilindrada);
        QCOMPARE(r.has_value(), tipo >= 0);
        if (r)
            QCOMPARE(*r, tipo);
    }

    void tipoInicialTurismo()
    {
        cDecDatos& d = DecDatos();
        d.BASEI = Importe(1000000);
        d.CLASIFICACION = 1000;
        d.MOTOR = QStringLiteral("G");
        d.CILINDRADA = 1400;
        TipoInicialTurismo(QStringLiteral("1000"));
        QCOMPARE(d.TIPOIMP, 7.0);
        QCOMPARE(d.CUOTA.centimos(), 70000.0);
        d.CILINDRADA = 1800;
        TipoInicialTurismo(QStringLiteral("100"));  // not four characters: nothing
        QCOMPARE(d.TIPOIMP, 7.0);
        d.EXENTO = QStringLiteral("X");
        TipoInicialTurismo(QStringLiteral("1000"));  // exempt: nothing
        QCOMPARE(d.TIPOIMP, 7.0);
        // The sibling sets the rate and computes nothing.
        TipoInicialTurismoSinCalcular();
        QCOMPARE(d.TIPOIMP, 12.0);
        QCOMPARE(d.CUOTA.centimos(), 70000.0);
    }

    // --- Reading the base ----------------------------------------------------------------------

    void baseDesdeTexto_data()
    {
        QTest::addColumn<QString>("locale");
        for (const char* l : {"C", "en_US", "de_DE", "es_ES", "fr_FR"})
            QTest::newRow(l) << QString::fromLatin1(l);
    }

    void baseDesdeTexto()
    {
        QFETCH(QString, locale);
        const QLocale anterior;
        QLocale::setDefault(QLocale(locale));
        std::setlocale(LC_ALL, locale == QLatin1String("C") ? "C" : (locale + ".UTF-8").toLatin1().constData());
        QCOMPARE(BaseDeTexto(QStringLiteral("1.234,50")).centimos(), 123450.0);
        QCOMPARE(BaseDeTexto(QStringLiteral("10.000,00")).centimos(), 1000000.0);
        QCOMPARE(BaseDeTexto(QStringLiteral("0,00")).centimos(), 0.0);
        QCOMPARE(BaseDeTexto(QStringLiteral("0,01")).centimos(), 1.0);
        QCOMPARE(BaseDeTexto(QStringLiteral("1.234,56")).centimos(), 123456.0);
        QCOMPARE(BaseDeTexto(QStringLiteral("9.999.999.999.999,99")).centimos(), 999999999999999.0);
        QCOMPARE(BaseDeTexto(QString()).centimos(), 0.0);
        QCOMPARE(BaseDeTexto(QStringLiteral("ABC")).centimos(), 0.0);
        std::setlocale(LC_ALL, "C");
        QLocale::setDefault(anterior);
    }

    // The amounts kept as Importe come out of the computation with the very bits that plain
    // doubles give by the same arithmetic, over many bases, rates, reductions and deductions
    // (the shapes the form produces: whole cents, rates with two decimals, and a few odd ones).
    void importesIgualesBitABitQueConDouble()
    {
        QRandomGenerator azar(747);
        const QString reducciones[] = {QString(), QStringLiteral("X"), QStringLiteral("Y"),
                                       QStringLiteral("Z")};
        cDecDatos& d = DecDatos();
        for (int i = 0; i < 20000; ++i) {
            const double base = i % 97 == 0 ? azar.generateDouble() * 1e15
                                            : std::round(azar.generateDouble() * 1e9);
            const double tipo = i % 89 == 0 ? azar.generateDouble() * 100
                                            : int(azar.bounded(10000)) / 100.0;
            const double deduccion = i % 3 == 0 ? std::round(azar.generateDouble() * 1e7) : 0;
            const QString& reduccion = reducciones[azar.bounded(4)];
            d.BASEI = Importe(base);
            d.TIPOIMP = tipo;
            d.REDUCCION = reduccion;
            d.DEDUCCION = Importe(deduccion);
            CalcularValores();

            double reducida = 0;
            double cuota = 0;
            if (reduccion.isEmpty()) {
                cuota = Redondear(tipo * base / 100, 2);
            } else {
                const double factor = reduccion == QLatin1String("X") ? 0.5
                    : reduccion == QLatin1String("Y")                 ? 0.7
                                                                      : 0.2;
                reducida = base * factor;
                cuota = Redondear(tipo * reducida / 100, 2);
            }
            double total = cuota - deduccion;
            if (total < 0)
                total = 0;
            const auto bits = [](double v) { return std::bit_cast<std::uint64_t>(v); };
            QCOMPARE(bits(d.BASEIREDUCIDA.centimos()), bits(reducida));
            QCOMPARE(bits(d.CUOTA.centimos()), bits(cuota));
            QCOMPARE(bits(d.TOTAL.centimos()), bits(total));
            QCOMPARE(bits(d.BASEI.centimos()), bits(base));
        }
    }

    void tasaEnTexto()
    {
        QCOMPARE(TextoTasa(14.75), QStringLiteral("14,75"));
        QCOMPARE(TextoTasa(7), QStringLiteral("7"));
        QCOMPARE(TextoTasa(0), QStringLiteral("0"));
        QCOMPARE(TextoTasa(9.5), QStringLiteral("9,5"));
    }
};

QTEST_MAIN(TestCalculo)
#include "test_decl_calculo.moc"
