// The store of presenters: the verdicts of the validation on their own and in order, the
// verdicts of the save (with the number of a presenter named in a declaration), load, delete,
// the number of declarations and the search.
#include "AlmacenPartes.h"

#include "plataforma/Fallo.h"
#include "plataforma/General.h"
#include "servicios/cPresenSvr.h"

#include <QtTest>

namespace {

cPresenSvr Svr()
{
    cPresenSvr s;
    s.mdbmod = mdbmod;
    s.mdblec = mdblec;
    return s;
}

enum { DNI, NOMBRE, DOMICILIO, CODPROV, CODMUN, NOMMUN, CODPOS, TELEFONO };

Arreglo Tesoreria()
{
    return {"12345678Z", "GESTORIA ARBEL SL", "NUEVA", "77", "2", "", "77002", "945123456"};
}
Arreglo OtraProvincia()
{
    return {"B12345674", "GESTORIA BILBAO SL", "GRAN VIA", "48", "", "BILBAO", "48001", "944000000"};
}

Arreglo Con(Arreglo a, std::initializer_list<std::pair<int, QVariant>> cambios)
{
    for (const auto& [i, v] : cambios)
        a[i] = v;
    return a;
}

int32_t Guardar(const Arreglo& a)
{
    const int16_t v = Svr().GuardarPresentador(a);
    return v != 0 ? -v : Svr().ObtenerCodigoPresentador(a[1].toString());
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
                     Con(OtraProvincia(), {{CODPROV, "01"}, {CODPOS, "1001"}})), 0);
    }

    void veredictos_data()
    {
        QTest::addColumn<Arreglo>("datos");
        QTest::addColumn<int>("veredicto");
        QTest::newRow("1 vacío") << Con(Tesoreria(), {{DNI, ""}}) << 1;
        QTest::newRow("1 forma") << Con(Tesoreria(), {{DNI, "1234"}}) << 1;
        QTest::newRow("1 extranjero") << Con(Tesoreria(), {{DNI, "AB1234567"}}) << 1;
        QTest::newRow("2") << Con(Tesoreria(), {{NOMBRE, ""}}) << 2;
        QTest::newRow("3") << Con(Tesoreria(), {{DOMICILIO, " "}}) << 3;
        QTest::newRow("4") << Con(Tesoreria(), {{CODMUN, ""}}) << 4;
        QTest::newRow("5") << Con(OtraProvincia(), {{NOMMUN, ""}}) << 5;
        QTest::newRow("6") << Con(Tesoreria(), {{CODPOS, "00000"}}) << 6;
        QTest::newRow("6 vacío") << Con(Tesoreria(), {{CODPOS, ""}}) << 6;
        QTest::newRow("7") << Con(Tesoreria(), {{CODPOS, "48001"}}) << 7;
        QTest::newRow("8") << Con(Tesoreria(), {{CODPOS, "77000"}}) << 8;
        QTest::newRow("9 ocho cifras") << Con(Tesoreria(), {{TELEFONO, "94512345"}}) << 9;
        QTest::newRow("9 letras") << Con(Tesoreria(), {{TELEFONO, "94512345X"}}) << 9;
        QTest::newRow("10") << Con(Tesoreria(), {{TELEFONO, ""}}) << 10;
        QTest::newRow("10 cero") << Con(Tesoreria(), {{TELEFONO, "0"}}) << 10;
        QTest::newRow("11") << Con(Tesoreria(), {{DNI, "12345678A"}}) << 11;
        QTest::newRow("11 sin letra") << Con(Tesoreria(), {{DNI, "12345678"}}) << 11;
    }

    void veredictos()
    {
        QFETCH(Arreglo, datos);
        QFETCH(int, veredicto);
        QCOMPARE(int(Svr().ValidarDatosPresentador(datos)), veredicto);
    }

    void ordenDeLosVeredictos()
    {
        QCOMPARE(Svr().ValidarDatosPresentador(Con(Tesoreria(), {{DNI, ""}, {NOMBRE, ""}})), 1);
        QCOMPARE(Svr().ValidarDatosPresentador(Con(Tesoreria(), {{NOMBRE, ""}, {DOMICILIO, ""}})), 2);
        QCOMPARE(Svr().ValidarDatosPresentador(Con(Tesoreria(), {{DOMICILIO, ""}, {CODMUN, ""}})), 3);
        QCOMPARE(Svr().ValidarDatosPresentador(Con(Tesoreria(), {{CODMUN, ""}, {CODPOS, ""}})), 4);
        QCOMPARE(Svr().ValidarDatosPresentador(Con(OtraProvincia(), {{NOMMUN, ""}, {CODPOS, "77001"}})), 5);
        QCOMPARE(Svr().ValidarDatosPresentador(Con(Tesoreria(), {{CODPOS, ""}, {TELEFONO, ""}})), 6);
        QCOMPARE(Svr().ValidarDatosPresentador(Con(Tesoreria(), {{CODPOS, "48000"}})), 7);
        QCOMPARE(Svr().ValidarDatosPresentador(Con(Tesoreria(), {{CODPOS, "77000"}, {TELEFONO, "1"}})), 8);
        QCOMPARE(Svr().ValidarDatosPresentador(Con(Tesoreria(), {{TELEFONO, "1"}, {DNI, "12345678A"}})), 9);
        QCOMPARE(Svr().ValidarDatosPresentador(Con(Tesoreria(), {{TELEFONO, ""}, {DNI, "12345678A"}})), 10);
    }

    void guardarYCargar()
    {
        AlmacenDePrueba almacen;
        const Arreglo a = Presentador(Dni(100), QStringLiteral("GESTORIA"));
        const int32_t c = Guardar(a);
        QVERIFY(c > 0);
        const Arreglo d = Cargar(c);
        QCOMPARE(d.size(), 15);
        for (int i = 1; i < 15; ++i)
            QCOMPARE(d[i].toString(), a[i].toString());
        QCOMPARE(d[5].typeId(), QMetaType::Int);
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
        QCOMPARE(Cargar(a)[2].toString(), QStringLiteral("A"));
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
        QCOMPARE(Cargar(p)[1].toString(), Dni(110));
        QCOMPARE(Cargar(p)[2].toString(), QStringLiteral("NOMBRADO"));
        // Everything else may change.
        QCOMPARE(Svr().GuardarPresentador(Presentador(Dni(110), QStringLiteral("NOMBRADO BIS"), p)), 0);
        QCOMPARE(Cargar(p)[2].toString(), QStringLiteral("NOMBRADO BIS"));
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
        a[10] = "1";
        a[11] = "1001";
        a[12] = "";
        a[13] = "VITORIA";
        a[14] = "0";
        const int32_t p = Guardar(a);
        const Arreglo d = Cargar(p);
        QCOMPARE(d[2].toString(), QStringLiteral("FORMA"));
        QCOMPARE(d[10].toString(), QStringLiteral("01"));
        QCOMPARE(d[11].toString(), QStringLiteral("01001"));
        QCOMPARE(d[14].toString(), QString());
        a[14] = "94512X";
        QVERIFY_THROWS_EXCEPTION(cFallo, Svr().GuardarPresentador(a));
    }

    void busqueda()
    {
        AlmacenDePrueba almacen;
        const int32_t a = Guardar(Presentador(Dni(140), QStringLiteral("ASESORES O'NEILL")));
        Guardar(Presentador(Dni(141), QStringLiteral("ASESORES 50% SL")));
        Arreglo b = Presentador(QStringLiteral("B12345674"), QStringLiteral("BILBAO GESTION"));
        b[10] = "48";
        b[11] = "48001";
        b[12] = "";
        b[13] = "BILBAO";
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
