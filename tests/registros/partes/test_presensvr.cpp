// The store of presenters: the verdicts of the validation on their own and in order, the
// verdicts of the save (with the number of a presenter named in a declaration), load, delete,
// the number of declarations and the search.
#include "comun/AlmacenPrueba.h"
#include "comun/PartesPrueba.h"

#include "plataforma/Fallo.h"
#include "plataforma/General.h"
#include "comun/ArregloPrueba.h"
#include "servicios/PosicionesPresentador.h"
#include "servicios/cPresenSvr.h"

#include <QtTest>

namespace P = PosPresentador;
namespace V = PosValidacionPresentador;

namespace {

cPresenSvr Svr()
{
    cPresenSvr s;
    s.mdbmod = mdbmod;
    s.mdblec = mdblec;
    return s;
}

Arreglo Tesoreria()
{
    return ArregloPorPosiciones(V::Tamano, {{V::DNIP, "12345678Z"},
                                            {V::NOMBREP, "GESTORIA ARBEL SL"},
                                            {V::DOMICILIOP, "NUEVA"},
                                            {V::CODPROVP, "77"},
                                            {V::CODMUNP, "2"},
                                            {V::NOMMUNP, ""},
                                            {V::CODPOSP, "77002"},
                                            {V::TELEFONOP, "945123456"}});
}
Arreglo OtraProvincia()
{
    return ArregloPorPosiciones(V::Tamano, {{V::DNIP, "B12345674"},
                                            {V::NOMBREP, "GESTORIA BILBAO SL"},
                                            {V::DOMICILIOP, "GRAN VIA"},
                                            {V::CODPROVP, "48"},
                                            {V::CODMUNP, ""},
                                            {V::NOMMUNP, "BILBAO"},
                                            {V::CODPOSP, "48001"},
                                            {V::TELEFONOP, "944000000"}});
}

Arreglo Con(const Arreglo& a, ValoresEnPosicion cambios)
{
    return ArregloCambiado(a, cambios);
}

int32_t Guardar(const Arreglo& a)
{
    const int16_t v = Svr().GuardarPresentador(a);
    return v != 0 ? -v : Svr().ObtenerCodigoPresentador(a[P::DNIP].toString());
}

Arreglo Cargar(int32_t cspr)
{
    Arreglo d;
    Svr().CargarPresentador(cspr, d);
    return d;
}

}  // namespace

class TestPresenSvr : public QObject {
    Q_OBJECT

private slots:
    void validos()
    {
        QCOMPARE(Svr().ValidarDatosPresentador(Tesoreria()), 0);
        QCOMPARE(Svr().ValidarDatosPresentador(OtraProvincia()), 0);
        // A postal code of fewer digits stands for the same code with leading zeros.
        QCOMPARE(Svr().ValidarDatosPresentador(
                     Con(OtraProvincia(), {{V::CODPROVP, "01"}, {V::CODPOSP, "1001"}})), 0);
    }

    void veredictos_data()
    {
        QTest::addColumn<Arreglo>("datos");
        QTest::addColumn<int>("veredicto");
        QTest::newRow("1 vacío") << Con(Tesoreria(), {{V::DNIP, ""}}) << 1;
        QTest::newRow("1 forma") << Con(Tesoreria(), {{V::DNIP, "1234"}}) << 1;
        QTest::newRow("1 extranjero") << Con(Tesoreria(), {{V::DNIP, "AB1234567"}}) << 1;
        QTest::newRow("2") << Con(Tesoreria(), {{V::NOMBREP, ""}}) << 2;
        QTest::newRow("3") << Con(Tesoreria(), {{V::DOMICILIOP, " "}}) << 3;
        QTest::newRow("4") << Con(Tesoreria(), {{V::CODMUNP, ""}}) << 4;
        QTest::newRow("5") << Con(OtraProvincia(), {{V::NOMMUNP, ""}}) << 5;
        QTest::newRow("6") << Con(Tesoreria(), {{V::CODPOSP, "00000"}}) << 6;
        QTest::newRow("6 vacío") << Con(Tesoreria(), {{V::CODPOSP, ""}}) << 6;
        QTest::newRow("7") << Con(Tesoreria(), {{V::CODPOSP, "48001"}}) << 7;
        QTest::newRow("8") << Con(Tesoreria(), {{V::CODPOSP, "77000"}}) << 8;
        QTest::newRow("9 ocho cifras") << Con(Tesoreria(), {{V::TELEFONOP, "94512345"}}) << 9;
        QTest::newRow("9 letras") << Con(Tesoreria(), {{V::TELEFONOP, "94512345X"}}) << 9;
        QTest::newRow("10") << Con(Tesoreria(), {{V::TELEFONOP, ""}}) << 10;
        QTest::newRow("10 cero") << Con(Tesoreria(), {{V::TELEFONOP, "0"}}) << 10;
        QTest::newRow("11") << Con(Tesoreria(), {{V::DNIP, "12345678A"}}) << 11;
        QTest::newRow("11 sin letra") << Con(Tesoreria(), {{V::DNIP, "12345678"}}) << 11;
    }

    void veredictos()
    {
        QFETCH(Arreglo, datos);
        QFETCH(int, veredicto);
        QCOMPARE(int(Svr().ValidarDatosPresentador(datos)), veredicto);
    }

    void ordenDeLosVeredictos()
    {
        QCOMPARE(Svr().ValidarDatosPresentador(Con(Tesoreria(), {{V::DNIP, ""}, {V::NOMBREP, ""}})), 1);
        QCOMPARE(Svr().ValidarDatosPresentador(Con(Tesoreria(), {{V::NOMBREP, ""}, {V::DOMICILIOP, ""}})), 2);
        QCOMPARE(Svr().ValidarDatosPresentador(Con(Tesoreria(), {{V::DOMICILIOP, ""}, {V::CODMUNP, ""}})), 3);
        QCOMPARE(Svr().ValidarDatosPresentador(Con(Tesoreria(), {{V::CODMUNP, ""}, {V::CODPOSP, ""}})), 4);
        QCOMPARE(Svr().ValidarDatosPresentador(Con(OtraProvincia(), {{V::NOMMUNP, ""}, {V::CODPOSP, "77001"}})), 5);
        QCOMPARE(Svr().ValidarDatosPresentador(Con(Tesoreria(), {{V::CODPOSP, ""}, {V::TELEFONOP, ""}})), 6);
        QCOMPARE(Svr().ValidarDatosPresentador(Con(Tesoreria(), {{V::CODPOSP, "48000"}})), 7);
        QCOMPARE(Svr().ValidarDatosPresentador(Con(Tesoreria(), {{V::CODPOSP, "77000"}, {V::TELEFONOP, "1"}})), 8);
        QCOMPARE(Svr().ValidarDatosPresentador(Con(Tesoreria(), {{V::TELEFONOP, "1"}, {V::DNIP, "12345678A"}})), 9);
        QCOMPARE(Svr().ValidarDatosPresentador(Con(Tesoreria(), {{V::TELEFONOP, ""}, {V::DNIP, "12345678A"}})), 10);
    }

    void guardarYCargar()
    {
        AlmacenDePrueba almacen;
        const Arreglo a = Presentador(Dni(100), QStringLiteral("GESTORIA"));
        const int32_t c = Guardar(a);
        QVERIFY(c > 0);
        const Arreglo d = Cargar(c);
        QCOMPARE(d.size(), 15);
        for (int i = P::DNIP; i < P::Tamano; ++i)
            QCOMPARE(d[i].toString(), a[i].toString());
        QCOMPARE(d[P::NUMEROP].typeId(), QMetaType::Int);
        QVERIFY(Cargar(c + 1000).isEmpty());
    }

    void guardarVeredictos()
    {
        AlmacenDePrueba almacen;
        const int32_t a = Guardar(Presentador(Dni(101), QStringLiteral("A")));
        const int32_t b = Guardar(Presentador(Dni(102), QStringLiteral("B")));
        QCOMPARE(Svr().GuardarPresentador(Presentador(Dni(101), QStringLiteral("C"))), 1);
        QCOMPARE(Svr().GuardarPresentador(Presentador(Dni(102), QStringLiteral("A"), a)), 2);
        QCOMPARE(almacen.Filas(QStringLiteral("PRESENTADORES")), 2);
        QCOMPARE(Cargar(a)[P::NOMBREP].toString(), QStringLiteral("A"));
        // Not named in any declaration: the number may change.
        QCOMPARE(Svr().GuardarPresentador(Presentador(Dni(103), QStringLiteral("A"), a)), 0);
        QCOMPARE(Svr().ObtenerCodigoPresentador(Dni(103)), a);
        QVERIFY(b != a);
    }

    void dniDePresentadorEnDeclaracion()
    {
        AlmacenDePrueba almacen;
        const int32_t p = Guardar(Presentador(Dni(110), QStringLiteral("NOMBRADO")));
        almacen.NuevaDeclaracion(0, 0, p);
        // 3: the number may not change once a declaration names him, and nothing is written.
        QCOMPARE(Svr().GuardarPresentador(Presentador(Dni(111), QStringLiteral("NOMBRADO BIS"), p)), 3);
        QCOMPARE(Cargar(p)[P::DNIP].toString(), Dni(110));
        QCOMPARE(Cargar(p)[P::NOMBREP].toString(), QStringLiteral("NOMBRADO"));
        // Everything else may change.
        QCOMPARE(Svr().GuardarPresentador(Presentador(Dni(110), QStringLiteral("NOMBRADO BIS"), p)), 0);
        QCOMPARE(Cargar(p)[P::NOMBREP].toString(), QStringLiteral("NOMBRADO BIS"));
        // 2 comes before 3: a number held by another presenter.
        Guardar(Presentador(Dni(112), QStringLiteral("OTRO")));
        QCOMPARE(Svr().GuardarPresentador(Presentador(Dni(112), QStringLiteral("X"), p)), 2);
    }

    void numeroDeDeclaracionesYBorrado()
    {
        AlmacenDePrueba almacen;
        const int32_t p = Guardar(Presentador(Dni(120), QStringLiteral("P")));
        const int32_t q = Guardar(Presentador(Dni(121), QStringLiteral("Q")));
        QCOMPARE(Svr().NumDeclaPresentador(p), 0);
        const int32_t d1 = almacen.NuevaDeclaracion(0, 0, p);
        const int32_t d2 = almacen.NuevaDeclaracion(0, 0, p);
        QCOMPARE(Svr().NumDeclaPresentador(p), 2);
        QCOMPARE(Svr().NDeclaPresentador(p), int16_t(2));
        QCOMPARE(Svr().NumDeclaPresentador(q), 0);
        QVERIFY(!Svr().BorrarPresentador(p));
        QCOMPARE(almacen.Filas(QStringLiteral("PRESENTADORES")), 2);
        almacen.BorrarDeclaracion(d1);
        QCOMPARE(Svr().NumDeclaPresentador(p), 1);
        almacen.BorrarDeclaracion(d2);
        QVERIFY(Svr().BorrarPresentador(p));
        QVERIFY(!Svr().BorrarPresentador(p));
        QCOMPARE(almacen.Filas(QStringLiteral("PRESENTADORES")), 1);
    }

    void guardarFormaAlmacenada()
    {
        AlmacenDePrueba almacen;
        Arreglo a = Presentador(Dni(130), QStringLiteral("  FORMA  "));
        a[P::CODPROVP] = "1";
        a[P::CODPOSP] = "1001";
        a[P::CODMUNP] = "";
        a[P::NOMMUNP] = "VITORIA";
        a[P::TELEFONOP] = "0";
        const int32_t p = Guardar(a);
        const Arreglo d = Cargar(p);
        QCOMPARE(d[P::NOMBREP].toString(), QStringLiteral("FORMA"));
        QCOMPARE(d[P::CODPROVP].toString(), QStringLiteral("01"));
        QCOMPARE(d[P::CODPOSP].toString(), QStringLiteral("01001"));
        QCOMPARE(d[P::TELEFONOP].toString(), QString());
        a[P::TELEFONOP] = "94512X";
        QVERIFY_THROWS_EXCEPTION(cFallo, Svr().GuardarPresentador(a));
    }

    void busqueda()
    {
        AlmacenDePrueba almacen;
        const int32_t a = Guardar(Presentador(Dni(140), QStringLiteral("ASESORES O'NEILL")));
        Guardar(Presentador(Dni(141), QStringLiteral("ASESORES 50% SL")));
        Arreglo b = Presentador(QStringLiteral("B12345674"), QStringLiteral("BILBAO GESTION"));
        b[P::CODPROVP] = "48";
        b[P::CODPOSP] = "48001";
        b[P::CODMUNP] = "";
        b[P::NOMMUNP] = "BILBAO";
        const int32_t bilbao = Guardar(b);
        almacen.NuevaDeclaracion(0, 0, a);
        Arreglo2D d;
        QCOMPARE(Svr().dameResultadoBusqueda({0, 0, 0}, d, 1), 3);
        QCOMPARE(d.size(), 6);
        QCOMPARE(d[1][0].toString(), QStringLiteral("ASESORES 50% SL"));
        QCOMPARE(d[0][1].toInt(), a);
        QCOMPARE(d[4][1].toString(), QStringLiteral("VELDORRETA"));
        QCOMPARE(d[5][1].toInt(), 1);
        QCOMPARE(d[4][2].toString(), QStringLiteral("BILBAO"));
        QCOMPARE(d[0][2].toInt(), bilbao);
        QCOMPARE(Svr().dameResultadoBusqueda({0, "asesores o'", 0}, d, 1), 1);
        QCOMPARE(Svr().dameResultadoBusqueda({0, "ASESORES 50%", 0}, d, 1), 1);
        QCOMPARE(Svr().dameResultadoBusqueda({0, "ASESORES _", 0}, d, 1), 0);
        QCOMPARE(Svr().dameResultadoBusqueda({0, 0, "B"}, d, 1), 1);
        QCOMPARE(Svr().dameResultadoBusqueda({0, 0, 0}, d, 2), 3);
        QCOMPARE(d[2][2].toString(), QStringLiteral("B12345674"));
    }
};

QTEST_GUILESS_MAIN(TestPresenSvr)
#include "test_presensvr.moc"
