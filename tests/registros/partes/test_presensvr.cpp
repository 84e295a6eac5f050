// The store of presenters: the verdicts of the validation on their own and in order, the
// verdicts of the save (with the number of a presenter named in a declaration), load, delete,
// the number of declarations and the search.
#include "catalogo/IdsCatalogo.h"
#include "comun/AlmacenPrueba.h"
#include "comun/PartesPrueba.h"

#include "plataforma/Fallo.h"
#include "plataforma/General.h"
#include "catalogo/Catalogo.h"
#include "valores/BotonesMensaje.h"
#include "servicios/cPresenSvr.h"

#include <QtTest>
#include <iterator>


namespace {

cPresenSvr Svr()
{
    cPresenSvr s;
    s.mdbmod = mdbmod;
    s.mdblec = mdblec;
    return s;
}

Presentador Tesoreria()
{
    Presentador p;
    p.DNIP = "12345678Z";
    p.NOMBREP = "GESTORIA ARBEL SL";
    p.DOMICILIOP = "NUEVA";
    p.CODPROVP = "77";
    p.CODMUNP = "2";
    p.NOMMUNP = "";
    p.CODPOSP = "77002";
    p.TELEFONOP = "945123456";
    return p;
}
Presentador OtraProvincia()
{
    Presentador p;
    p.DNIP = "B12345674";
    p.NOMBREP = "GESTORIA BILBAO SL";
    p.DOMICILIOP = "GRAN VIA";
    p.CODPROVP = "48";
    p.CODMUNP = "";
    p.NOMMUNP = "BILBAO";
    p.CODPOSP = "48001";
    p.TELEFONOP = "944000000";
    return p;
}

using Cambios = std::initializer_list<std::pair<QString Presentador::*, QString>>;

Presentador Con(Presentador p, Cambios cambios)
{
    for (const auto& [campo, valor] : cambios)
        p.*campo = valor;
    return p;
}

// The rules by number, as the store's verdict tells them: its message and the field it
// focuses.
struct ReglaEsperada {
    int id;
    const char* control;
};
const ReglaEsperada kReglas[] = {
    {0, ""}, {kIdDniCifErroneoODigitoControl, "txtdnip"}, {kIdNombreVacio, "txtnombrep"},
    {kIdDomicilioVacio, "txtdomiciliop"},
    {kIdCodigoMunicipioVacio, "txtcodmunp"}, {kIdMunicipioVacio, "txtnommunp"},
    {kIdCodigoPostalCero, "txtcodposp"}, {kIdProvinciaYCodigoPostalNoCoinciden, "txtcodposp"},
    {kIdCodigoPostalTresUltimosCero, "txtcodposp"}, {kIdTelefonoNueveCifras, "txttelefonop"},
    {kIdTelefonoVacio, "txttelefonop"}, {kIdNifSinDigitoControl, "txtdnip"},
};

// The number of the rule that the store's validation reports, 0 for none; -1 for a verdict
// that is no rule's.
int Regla(const Presentador& p, const cPresenSvr& svr = Svr())
{
    const Resultado<void> r = svr.ValidarDatosPresentador(p);
    if (r)
        return 0;
    for (int n = 1; n < int(std::size(kReglas)); ++n)
        if (r.veredicto().id == kReglas[n].id) {
            const bool bien = r.veredicto().control == QLatin1String(kReglas[n].control)
                && r.veredicto().mensaje == Texto(kReglas[n].id)
                && r.veredicto().botones == vb::OKOnly + vb::Information;
            return bien ? n : -1;
        }
    return -1;
}

// The store's answer to a save by number: 0 saved, 1 number already in the store (message
// 195), 2 number of another (196), 3 number of a presenter named in a declaration (197), 4 a
// text refused at the door, 5 saved again since, 6 deleted since.
int NumeroGuardado(const Resultado<Presentador>& r)
{
    if (r)
        return 0;
    const Veredicto& v = r.veredicto();
    if (v.vigencia == Vigencia::Cambiada)
        return 5;
    if (v.vigencia == Vigencia::Borrada)
        return 6;
    switch (v.id) {
    case 195: return 1;
    case 196: return 2;
    case 197: return 3;
    default: return v.vacio() ? -1 : 4;
    }
}

// A save as the tests make it: over whatever the row holds, as nothing was loaded.
int GuardarV(const Presentador& p)
{
    return NumeroGuardado(Svr().GuardarPresentador(p, Sobrescritura::CualquierVersion));
}

int32_t Guardar(const Presentador& p)
{
    const Resultado<Presentador> r =
        Svr().GuardarPresentador(p, Sobrescritura::CualquierVersion);
    return r ? r->CSPR : -NumeroGuardado(r);
}

// The stored presenter; an empty one when there is none.
Presentador Cargar(int32_t cspr)
{
    return Svr().CargarPresentador(cspr).value_or(Presentador{});
}

}  // namespace

Q_DECLARE_METATYPE(Presentador)

class TestPresenSvr : public QObject {
    Q_OBJECT

private slots:
    void validos()
    {
        QCOMPARE(Regla(Tesoreria()), 0);
        QCOMPARE(Regla(OtraProvincia()), 0);
        // A postal code of fewer digits stands for the same code with leading zeros.
        QCOMPARE(Regla(
                     Con(OtraProvincia(), {{&Presentador::CODPROVP, "01"}, {&Presentador::CODPOSP, "1001"}})), 0);
    }

    void veredictos_data()
    {
        QTest::addColumn<Presentador>("datos");
        QTest::addColumn<int>("veredicto");
        QTest::newRow("1 vacío") << Con(Tesoreria(), {{&Presentador::DNIP, ""}}) << 1;
        QTest::newRow("1 forma") << Con(Tesoreria(), {{&Presentador::DNIP, "1234"}}) << 1;
        QTest::newRow("1 extranjero") << Con(Tesoreria(), {{&Presentador::DNIP, "AB1234567"}}) << 1;
        QTest::newRow("2") << Con(Tesoreria(), {{&Presentador::NOMBREP, ""}}) << 2;
        QTest::newRow("3") << Con(Tesoreria(), {{&Presentador::DOMICILIOP, " "}}) << 3;
        QTest::newRow("4") << Con(Tesoreria(), {{&Presentador::CODMUNP, ""}}) << 4;
        QTest::newRow("5") << Con(OtraProvincia(), {{&Presentador::NOMMUNP, ""}}) << 5;
        QTest::newRow("6") << Con(Tesoreria(), {{&Presentador::CODPOSP, "00000"}}) << 6;
        QTest::newRow("6 vacío") << Con(Tesoreria(), {{&Presentador::CODPOSP, ""}}) << 6;
        QTest::newRow("7") << Con(Tesoreria(), {{&Presentador::CODPOSP, "48001"}}) << 7;
        QTest::newRow("8") << Con(Tesoreria(), {{&Presentador::CODPOSP, "77000"}}) << 8;
        QTest::newRow("9 ocho cifras") << Con(Tesoreria(), {{&Presentador::TELEFONOP, "94512345"}}) << 9;
        QTest::newRow("9 letras") << Con(Tesoreria(), {{&Presentador::TELEFONOP, "94512345X"}}) << 9;
        QTest::newRow("10") << Con(Tesoreria(), {{&Presentador::TELEFONOP, ""}}) << 10;
        QTest::newRow("10 cero") << Con(Tesoreria(), {{&Presentador::TELEFONOP, "0"}}) << 10;
        QTest::newRow("11") << Con(Tesoreria(), {{&Presentador::DNIP, "12345678A"}}) << 11;
        QTest::newRow("11 sin letra") << Con(Tesoreria(), {{&Presentador::DNIP, "12345678"}}) << 11;
    }

    void veredictos()
    {
        QFETCH(Presentador, datos);
        QFETCH(int, veredicto);
        QCOMPARE(Regla(datos), veredicto);
    }

    void ordenDeLosVeredictos()
    {
        QCOMPARE(Regla(Con(Tesoreria(), {{&Presentador::DNIP, ""}, {&Presentador::NOMBREP, ""}})), 1);
        QCOMPARE(Regla(Con(Tesoreria(), {{&Presentador::NOMBREP, ""}, {&Presentador::DOMICILIOP, ""}})), 2);
        QCOMPARE(Regla(Con(Tesoreria(), {{&Presentador::DOMICILIOP, ""}, {&Presentador::CODMUNP, ""}})), 3);
        QCOMPARE(Regla(Con(Tesoreria(), {{&Presentador::CODMUNP, ""}, {&Presentador::CODPOSP, ""}})), 4);
        QCOMPARE(Regla(Con(OtraProvincia(), {{&Presentador::NOMMUNP, ""}, {&Presentador::CODPOSP, "77001"}})), 5);
        QCOMPARE(Regla(Con(Tesoreria(), {{&Presentador::CODPOSP, ""}, {&Presentador::TELEFONOP, ""}})), 6);
        QCOMPARE(Regla(Con(Tesoreria(), {{&Presentador::CODPOSP, "48000"}})), 7);
        QCOMPARE(Regla(Con(Tesoreria(), {{&Presentador::CODPOSP, "77000"}, {&Presentador::TELEFONOP, "1"}})), 8);
        QCOMPARE(Regla(Con(Tesoreria(), {{&Presentador::TELEFONOP, "1"}, {&Presentador::DNIP, "12345678A"}})), 9);
        QCOMPARE(Regla(Con(Tesoreria(), {{&Presentador::TELEFONOP, ""}, {&Presentador::DNIP, "12345678A"}})), 10);
    }

    void guardarYCargar()
    {
        AlmacenDePrueba almacen;
        const Presentador a = PresentadorValido(Dni(100), QStringLiteral("GESTORIA"));
        const int32_t c = Guardar(a);
        QVERIFY(c > 0);
        const Presentador d = Cargar(c);
        // Every field as saved; the code and the version are the store's.
        Presentador esperado = a;
        esperado.CSPR = c;
        esperado.VERSION = d.VERSION;
        QVERIFY(d.VERSION != 0);
        QCOMPARE(d, esperado);
        QVERIFY(!Svr().CargarPresentador(c + 1000));
    }

    void guardarVeredictos()
    {
        AlmacenDePrueba almacen;
        const int32_t a = Guardar(PresentadorValido(Dni(101), QStringLiteral("A")));
        const int32_t b = Guardar(PresentadorValido(Dni(102), QStringLiteral("B")));
        QCOMPARE(GuardarV(PresentadorValido(Dni(101), QStringLiteral("C"))), 1);
        QCOMPARE(GuardarV(PresentadorValido(Dni(102), QStringLiteral("A"), a)), 2);
        QCOMPARE(almacen.Filas(QStringLiteral("PRESENTADORES")), 2);
        QCOMPARE(Cargar(a).NOMBREP, QStringLiteral("A"));
        // Not named in any declaration: the number may change.
        QCOMPARE(GuardarV(PresentadorValido(Dni(103), QStringLiteral("A"), a)), 0);
        QCOMPARE(Svr().ObtenerCodigoPresentador(Dni(103)), a);
        QVERIFY(b != a);
    }

    void dniDePresentadorEnDeclaracion()
    {
        AlmacenDePrueba almacen;
        const int32_t p = Guardar(PresentadorValido(Dni(110), QStringLiteral("NOMBRADO")));
        almacen.NuevaDeclaracion(0, 0, p);
        // 3: the number may not change once a declaration names him, and nothing is written.
        QCOMPARE(GuardarV(PresentadorValido(Dni(111), QStringLiteral("NOMBRADO BIS"), p)), 3);
        QCOMPARE(Cargar(p).DNIP, Dni(110));
        QCOMPARE(Cargar(p).NOMBREP, QStringLiteral("NOMBRADO"));
        // Everything else may change.
        QCOMPARE(GuardarV(PresentadorValido(Dni(110), QStringLiteral("NOMBRADO BIS"), p)), 0);
        QCOMPARE(Cargar(p).NOMBREP, QStringLiteral("NOMBRADO BIS"));
        // 2 comes before 3: a number held by another presenter.
        Guardar(PresentadorValido(Dni(112), QStringLiteral("OTRO")));
        QCOMPARE(GuardarV(PresentadorValido(Dni(112), QStringLiteral("X"), p)), 2);
    }

    void numeroDeDeclaracionesYBorrado()
    {
        AlmacenDePrueba almacen;
        const int32_t p = Guardar(PresentadorValido(Dni(120), QStringLiteral("P")));
        const int32_t q = Guardar(PresentadorValido(Dni(121), QStringLiteral("Q")));
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
        Presentador a = PresentadorValido(Dni(130), QStringLiteral("  FORMA  "));
        a.CODPROVP = "1";
        a.CODPOSP = "1001";
        a.CODMUNP = "";
        a.NOMMUNP = "VITORIA";
        a.TELEFONOP = "0";
        const int32_t p = Guardar(a);
        const Presentador d = Cargar(p);
        QCOMPARE(d.NOMBREP, QStringLiteral("FORMA"));
        QCOMPARE(d.CODPROVP, QStringLiteral("01"));
        QCOMPARE(d.CODPOSP, QStringLiteral("01001"));
        QCOMPARE(d.TELEFONOP, QString());
        a.TELEFONOP = "94512X";
        QVERIFY_THROWS_EXCEPTION(cFallo, GuardarV(a));
    }

    void busqueda()
    {
        AlmacenDePrueba almacen;
        const int32_t a = Guardar(PresentadorValido(Dni(140), QStringLiteral("ASESORES O'NEILL")));
        Guardar(PresentadorValido(Dni(141), QStringLiteral("ASESORES 50% SL")));
        Presentador b = PresentadorValido(QStringLiteral("B12345674"), QStringLiteral("BILBAO GESTION"));
        b.CODPROVP = "48";
        b.CODPOSP = "48001";
        b.CODMUNP = "";
        b.NOMMUNP = "BILBAO";
        const int32_t bilbao = Guardar(b);
        almacen.NuevaDeclaracion(0, 0, a);
        const auto buscar = [](std::optional<QString> nombre, std::optional<QString> dni,
                               OrdenParte orden = OrdenParte::Nombre) {
            return Svr().dameResultadoBusqueda({std::move(nombre), std::move(dni)}, orden);
        };
        QList<FilaPresentador> d = buscar(std::nullopt, std::nullopt);
        QCOMPARE(d.size(), 3);
        QCOMPARE(d[0].NOMBREP, QStringLiteral("ASESORES 50% SL"));
        QCOMPARE(d[1].CSPR, a);
        QCOMPARE(d[1].MUNICIPIO, QStringLiteral("VELDORRETA"));
        QCOMPARE(d[1].NUMDECLARACIONES, 1);
        QCOMPARE(d[2].MUNICIPIO, QStringLiteral("BILBAO"));
        QCOMPARE(d[2].CSPR, bilbao);
        QCOMPARE(buscar("asesores o'", std::nullopt).size(), 1);
        QCOMPARE(buscar("ASESORES 50%", std::nullopt).size(), 1);
        QCOMPARE(buscar("ASESORES _", std::nullopt).size(), 0);
        QCOMPARE(buscar(std::nullopt, "B").size(), 1);
        d = buscar(std::nullopt, std::nullopt, OrdenParte::Dni);
        QCOMPARE(d.size(), 3);
        QCOMPARE(d[2].DNIP, QStringLiteral("B12345674"));
    }
};

QTEST_GUILESS_MAIN(TestPresenSvr)
#include "test_presensvr.moc"
