// The table of operations in the reference database, as the store gives it: which codes apply
// on which date, their rates, limits, deductions and marks, the descriptions in both
// languages, the print keys, and what loading one does to the operation record.
#include "comun/DeclaracionPrueba.h"

#include "plataforma/General.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cOperacion.h"
#include "servicios/cDeclaSvr.h"

#include <QTest>

namespace {
cDeclaSvr servidor()
{
    cDeclaSvr svr;
    svr.mdblec = mdblec;
    return svr;
}

std::optional<DatosOperacion> datos(const QString& codigo, int32_t fecha,
                                    Idioma idioma = Idioma::Castellano)
{
    return servidor().ObtenerDatosOperacion(codigo, fecha, idioma);
}
}  // namespace

class TestOperaciones : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<CarpetaDePrueba> m_carpeta;

private slots:
    void initTestCase()
    {
        m_carpeta = std::make_unique<CarpetaDePrueba>();
        GrabarSeams();
    }

    void tiposPorFecha_data()
    {
        QTest::addColumn<QString>("codigo");
        QTest::addColumn<int>("fecha");
        QTest::addColumn<bool>("existe");
        QTest::addColumn<double>("tipo");
        QTest::addColumn<double>("deduccion");
        QTest::newRow("T7 2007") << "T7" << 20071231 << true << 7.0 << 0.0;
        QTest::newRow("T7 2008") << "T7" << 20080101 << false << 0.0 << 0.0;
        QTest::newRow("TN 1993") << "TN" << 19930101 << true << 12.0 << 0.0;
        QTest::newRow("TN 2008") << "TN" << 20080101 << false << 0.0 << 0.0;
        QTest::newRow("P6 1996") << "P6" << 19961231 << false << 0.0 << 0.0;
        QTest::newRow("P6 1997") << "P6" << 19970101 << true << 12.0 << 48081.0;
        QTest::newRow("P7 1999") << "P7" << 19991231 << false << 0.0 << 0.0;
        QTest::newRow("P7 2000") << "P7" << 20000101 << true << 12.0 << 72121.0;
        QTest::newRow("P6B 2003") << "P6B" << 20030101 << true << 7.0 << 48081.0;
        QTest::newRow("P7B 2007") << "P7B" << 20071231 << true << 7.0 << 72121.0;
        QTest::newRow("P7B 2008") << "P7B" << 20080101 << false << 0.0 << 0.0;
        QTest::newRow("T1 2007") << "T1" << 20071231 << false << 0.0 << 0.0;
        QTest::newRow("T1 2008") << "T1" << 20080101 << true << 0.0 << 0.0;
        QTest::newRow("T2") << "T2" << 20150101 << true << 4.75 << 0.0;
        QTest::newRow("T3") << "T3" << 20150101 << true << 9.75 << 0.0;
        QTest::newRow("T4") << "T4" << 20150101 << true << 14.75 << 0.0;
        QTest::newRow("T5") << "T5" << 20271231 << true << 14.75 << 0.0;
        QTest::newRow("N43 1993") << "N43" << 19930101 << true << 0.0 << 0.0;
        QTest::newRow("TE 2027") << "TE" << 20271231 << true << 0.0 << 0.0;
        QTest::newRow("sin fecha") << "TN" << 0 << false << 0.0 << 0.0;
        QTest::newRow("desconocida") << "XX" << 20100101 << false << 0.0 << 0.0;
    }

    void tiposPorFecha()
    {
        QFETCH(QString, codigo);
        QFETCH(int, fecha);
        QFETCH(bool, existe);
        QFETCH(double, tipo);
        QFETCH(double, deduccion);
        const std::optional<DatosOperacion> d = datos(codigo, fecha);
        QCOMPARE(d.has_value(), existe);
        if (!existe) {
            QVERIFY(servidor().ObtenImpresion(fecha, codigo).isEmpty());
            return;
        }
        QCOMPARE(d->tipo, tipo);
        QCOMPARE(d->deduccion, deduccion);
        QVERIFY(!servidor().ObtenImpresion(fecha, codigo).isEmpty());
    }

    void tasaLibreYSusLimitesPorFecha()
    {
        const auto antes = datos(QStringLiteral("TL"), 20071231);
        QVERIFY(antes.has_value());
        Operacion().ActualizaOperacion(*antes, false);
        QVERIFY(EsTasaLibre(Operacion().T_TIP()));
        QCOMPARE(Operacion().T_MIN(), 7.0);
        QCOMPARE(Operacion().T_MAX(), 12.0);
        const auto despues = datos(QStringLiteral("TL"), 20080101);
        QVERIFY(despues.has_value());
        Operacion().ActualizaOperacion(*despues, false);
        QVERIFY(EsTasaLibre(Operacion().T_TIP()));
        QCOMPARE(Operacion().T_MIN(), 0.0);
        QCOMPARE(Operacion().T_MAX(), 14.75);
        // The value as it comes from the store, unrounded, is already the sentinel.
        QVERIFY(EsTasaLibre(despues->tipo));
    }

    void marcasDeNoSujetoYExento()
    {
        const auto ns = datos(QStringLiteral("N43"), 20100101);
        QVERIFY(ns.has_value());
        QCOMPARE(ns->nosujeto, QStringLiteral("X"));
        QVERIFY(ns->exento.isEmpty());
        for (const char* c : {"TE", "E1", "E2", "E3", "E4", "E5", "E6"}) {
            const auto ex = datos(QString::fromLatin1(c), 20100101);
            QVERIFY2(ex.has_value(), c);
            QVERIFY(ex->nosujeto.isEmpty());
            QCOMPARE(ex->exento, QStringLiteral("X"));
            QCOMPARE(ex->tipo, 0.0);
        }
        const auto gravada = datos(QStringLiteral("T3"), 20100101);
        QVERIFY(gravada.has_value());
        QVERIFY(gravada->nosujeto.isEmpty() && gravada->exento.isEmpty());
    }

    void losCodigosQueNombranLosMensajesExisten()
    {
        const QStringList antes{"N43", "TN", "TE", "T7", "P6", "P7", "P6B", "P7B"};
        for (const QString& c : antes)
            QVERIFY2(datos(c, 20050101).has_value(), qPrintable(c));
        const QStringList despues{"N43", "TE", "T1", "T2", "T3", "T4", "T5"};
        for (const QString& c : despues)
            QVERIFY2(datos(c, 20100101).has_value(), qPrintable(c));
    }

    void clavesDeImpresion()
    {
        QCOMPARE(servidor().ObtenImpresion(20050101, QStringLiteral("P6B")), QStringLiteral("P6"));
        QCOMPARE(servidor().ObtenImpresion(20050101, QStringLiteral("P7B")), QStringLiteral("P7"));
        QCOMPARE(servidor().ObtenImpresion(20100101, QStringLiteral("T4")), QStringLiteral("T4"));
        QCOMPARE(servidor().ObtenImpresion(20100101, QStringLiteral(" N43 ")),
                 QStringLiteral("N43"));
    }

    void listaPorFechaEIdioma()
    {
        const QStringList antes = servidor().ObtenerOperaciones(20050101, Idioma::Castellano);
        const QStringList despues = servidor().ObtenerOperaciones(20100101, Idioma::Castellano);
        const QStringList vasco = servidor().ObtenerOperaciones(20100101, Idioma::Euskera);
        QCOMPARE(antes.size(), 15);   // 8 of every period, 6 up to 2007, TL
        QCOMPARE(despues.size(), 14); // 8 of every period, T1 to T5, TL
        QCOMPARE(vasco.size(), despues.size());
        QVERIFY(antes.contains(QStringLiteral("Tipo general: 12 %")));
        QVERIFY(!despues.contains(QStringLiteral("Tipo general: 12 %")));
        QVERIFY(despues.contains(QStringLiteral("Emisiones de CO2 hasta 120 g/km: tipo 0 %")));
        QVERIFY(vasco.contains(QStringLiteral("CO2 isurpenak 120 g/km arte: % 0ko tasa")));
        QVERIFY(servidor().ObtenerOperaciones(0, Idioma::Castellano).isEmpty());
    }

    void codigoPorDescripcion()
    {
        QCOMPARE(servidor().DameOperacionporDescripcion(QStringLiteral("Tipo general: 12 %"),
                                                         20050101, Idioma::Castellano),
                 QStringLiteral("TN"));
        QCOMPARE(servidor().DameOperacionporDescripcion(QStringLiteral("Tasa orokorra: % 12"),
                                                         20050101, Idioma::Euskera),
                 QStringLiteral("TN"));
        QVERIFY(servidor()
                    .DameOperacionporDescripcion(QStringLiteral("Tipo general: 12 %"), 20100101, Idioma::Castellano)
                    .isEmpty());
        // The same description on each side of 2008 names the operation of that date only.
        QCOMPARE(servidor().DameOperacionporDescripcion(
                     QStringLiteral("Tipo a declarar, entre el 0 % y el 14,75 %"), 20100101, Idioma::Castellano),
                 QStringLiteral("TL"));
    }

    void descripcionEnElIdiomaPedido()
    {
        const auto es = datos(QStringLiteral("E6"), 20100101, Idioma::Castellano);
        const auto eu = datos(QStringLiteral("E6"), 20100101, Idioma::Euskera);
        QVERIFY(es.has_value() && eu.has_value());
        QCOMPARE(es->descripcion, QStringLiteral("Exento: traslado de la residencia habitual"));
        QCOMPARE(eu->descripcion, QStringLiteral("Salbuetsia: ohiko bizilekuaren lekualdaketa"));
    }

    void registroCargaOVaciaLaOperacion()
    {
        cDecDatos& d = DecDatos();
        Navegacion::RutaDec().modo = Navegacion::Modo::Nuevo;
        d.IniciarNuevo();
        d.FECHAD = 20050101;
        d.OPERACION = QStringLiteral("P7B");
        d.ObtenerDatosOperacion(false);
        QCOMPARE(Operacion().T_IMPR, QStringLiteral("P7"));
        QCOMPARE(Operacion().T_TIP(), 7.0);
        QCOMPARE(Operacion().T_DEDU(), 72121.0);
        const QStringList lista = d.CargarListaOperaciones();
        QCOMPARE(lista.size(), 15);
        QVERIFY(lista.contains(Operacion().DESCRIP));
        d.FECHAD = 20100101;
        d.ObtenerDatosOperacion(false);
        QVERIFY(Operacion().DESCRIP.isEmpty());
        QCOMPARE(Operacion().T_TIP(), 0.0);
        QCOMPARE(Operacion().T_DEDU(), 0.0);
    }

    void cadaCodigoRigeUnaSolaVezPorFecha()
    {
        // On any date, a code has at most one row: the periods of a code do not overlap.
        for (int32_t fecha : {19930101, 19970101, 20000101, 20071231, 20080101, 20271231}) {
            const QStringList lista = servidor().ObtenerOperaciones(fecha, Idioma::Castellano);
            QStringList codigos;
            for (const QString& v : lista)
                codigos << servidor().DameOperacionporDescripcion(v, fecha, Idioma::Castellano);
            QCOMPARE(codigos.removeDuplicates(), 0);
            QVERIFY(!codigos.contains(QString()));
        }
    }
};

QTEST_MAIN(TestOperaciones)
#include "test_decl_operaciones.moc"
#include "valores/EstadoNavegacion.h"
