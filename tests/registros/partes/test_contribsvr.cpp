// The store of contributors: each verdict of the validation on its own and the order between
// them, the import's errors, saving, loading and deleting, the counters, and the search.
#include "comun/AlmacenPrueba.h"
#include "comun/PartesPrueba.h"

#include "plataforma/Fallo.h"
#include "plataforma/General.h"
#include "comun/ArregloPrueba.h"
#include "servicios/Conexion.h"
#include "servicios/PosicionesContribuyente.h"
#include "servicios/PosicionesImportar.h"
#include "servicios/ValidacionPartes.h"
#include "servicios/cContribSvr.h"

#include <QtTest>

namespace P = PosContribuyente;
namespace V = PosValidacionContribuyente;
namespace I = PosImportar;

namespace {

cContribSvr Svr()
{
    cContribSvr s;
    s.mdbmod = mdbmod;
    s.mdblec = mdblec;
    return s;
}

// The validation arrays of three valid contributors: national in the treasury's province,
// national elsewhere, foreign with a foreign document.
Arreglo Tesoreria()
{
    return ArregloPorPosiciones(V::Tamano, {{V::TIPODNI, "O"},
                                            {V::DNIC, "12345678Z"},
                                            {V::NOMBREC, "GARCIA LOPEZ JUAN"},
                                            {V::DOMICILIOC, "MAYOR"},
                                            {V::TIPODOMI, "N"},
                                            {V::PAIS, ""},
                                            {V::CODPROVC, "77"},
                                            {V::CODPOSC, "77001"},
                                            {V::NOMPROVC, ""},
                                            {V::NOMMUNC, ""},
                                            {V::CODMUNC, "1"}});
}
Arreglo OtraProvincia()
{
    return ArregloCambiado(Tesoreria(), {{V::CODPROVC, "48"},
                                         {V::CODPOSC, "48001"},
                                         {V::NOMMUNC, "BILBAO"},
                                         {V::CODMUNC, ""}});
}
Arreglo Extranjero()
{
    return ArregloPorPosiciones(V::Tamano, {{V::TIPODNI, "N"},
                                            {V::DNIC, "AB1234567"},
                                            {V::NOMBREC, "SMITH JOHN"},
                                            {V::DOMICILIOC, "HIGH STREET"},
                                            {V::TIPODOMI, "E"},
                                            {V::PAIS, "REINO UNIDO"},
                                            {V::CODPROVC, ""},
                                            {V::CODPOSC, ""},
                                            {V::NOMPROVC, "LONDRES"},
                                            {V::NOMMUNC, "LONDRES"},
                                            {V::CODMUNC, ""}});
}

Arreglo Con(const Arreglo& a, ValoresEnPosicion cambios)
{
    return ArregloCambiado(a, cambios);
}

QList<int> Errores(const Arreglo& importar)
{
    Arreglo2D e;
    Svr().ValidarDatosImportar(importar, e);
    QList<int> codigos;
    if (e.isEmpty())
        return codigos;
    const qsizetype ubound = e[0].size() - 1;
    for (qsizetype k = 0; k < ubound; ++k)
        codigos << e[0][k].toInt();
    return codigos;
}

Arreglo Cargar(int32_t csco)
{
    Arreglo d;
    Svr().CargarContribuyente(csco, d);
    return d;
}

int32_t Guardar(const Arreglo& a)
{
    const int16_t v = Svr().GuardarContribuyente(a);
    if (v != 0)
        return -v;
    return Svr().ObtenerCodigoContribuyente(a[P::DNIC].toString());
}

QStringList Columna(const Arreglo2D& datos, int c)
{
    QStringList t;
    for (const QVariant& v : datos[c])
        t << v.toString();
    return t;
}

Arreglo Criterios(const QVariant& nombre, const QVariant& dni)
{
    return {0, nombre, dni};
}

}  // namespace

class TestContribSvr : public QObject {
    Q_OBJECT

private slots:
    // --- Verdicts of ValidarDatosContribuyentes, each on its own -----------------------------
    void validos()
    {
        QCOMPARE(Svr().ValidarDatosContribuyentes(Tesoreria()), 0);
        QCOMPARE(Svr().ValidarDatosContribuyentes(OtraProvincia()), 0);
        QCOMPARE(Svr().ValidarDatosContribuyentes(Extranjero()), 0);
        // Each form of official number.
        for (const char* n : {"X1234567L", "K1234567L", "B12345674", "Q2826000H"})
            QCOMPARE(Svr().ValidarDatosContribuyentes(Con(Tesoreria(), {{V::DNIC, n}})), 0);
        // The validation needs no database at all.
        QCOMPARE(cContribSvr().ValidarDatosContribuyentes(Tesoreria()), 0);
    }

    void veredictos_data()
    {
        QTest::addColumn<Arreglo>("datos");
        QTest::addColumn<int>("veredicto");
        QTest::newRow("1 forma") << Con(Tesoreria(), {{V::DNIC, "1234X678Z"}}) << 1;
        QTest::newRow("1 largo") << Con(Tesoreria(), {{V::DNIC, "1234567Z"}}) << 1;
        QTest::newRow("1 extranjero cero") << Con(Extranjero(), {{V::DNIC, "0000"}}) << 1;
        QTest::newRow("2 vacío") << Con(Tesoreria(), {{V::DNIC, ""}}) << 2;
        QTest::newRow("2 extranjero vacío") << Con(Extranjero(), {{V::DNIC, "  "}}) << 2;
        QTest::newRow("3") << Con(Tesoreria(), {{V::NOMBREC, " "}}) << 3;
        QTest::newRow("4") << Con(Tesoreria(), {{V::DOMICILIOC, ""}}) << 4;
        QTest::newRow("5") << Con(Extranjero(), {{V::PAIS, ""}}) << 5;
        QTest::newRow("6") << Con(Tesoreria(), {{V::CODPOSC, "48001"}}) << 6;
        QTest::newRow("6 provincia 1") << Con(OtraProvincia(), {{V::CODPROVC, "1"}}) << 6;
        QTest::newRow("7 cuatro") << Con(Tesoreria(), {{V::CODPOSC, "7700"}}) << 7;
        QTest::newRow("7 seis") << Con(Tesoreria(), {{V::CODPOSC, "770011"}}) << 7;
        QTest::newRow("7 letras") << Con(Tesoreria(), {{V::CODPOSC, "77A01"}}) << 7;
        QTest::newRow("8") << Con(Tesoreria(), {{V::CODPOSC, "77000"}}) << 8;
        QTest::newRow("9 vacío") << Con(Tesoreria(), {{V::CODPOSC, ""}}) << 9;
        QTest::newRow("9 ceros") << Con(Tesoreria(), {{V::CODPOSC, "00000"}}) << 9;
        QTest::newRow("10") << Con(Extranjero(), {{V::NOMPROVC, ""}}) << 10;
        QTest::newRow("11 nacional") << Con(OtraProvincia(), {{V::NOMMUNC, ""}}) << 11;
        QTest::newRow("11 extranjero") << Con(Extranjero(), {{V::NOMMUNC, ""}}) << 11;
        QTest::newRow("12") << Con(OtraProvincia(), {{V::CODPROVC, ""}}) << 12;
        QTest::newRow("12 cero") << Con(OtraProvincia(), {{V::CODPROVC, "00"}}) << 12;
        QTest::newRow("13") << Con(Tesoreria(), {{V::CODMUNC, ""}}) << 13;
        QTest::newRow("13 cero") << Con(Tesoreria(), {{V::CODMUNC, "000"}}) << 13;
        QTest::newRow("14 letra") << Con(Tesoreria(), {{V::DNIC, "12345678A"}}) << 14;
        QTest::newRow("14 sin letra") << Con(Tesoreria(), {{V::DNIC, "12345678"}}) << 14;
        QTest::newRow("14 cif") << Con(Tesoreria(), {{V::DNIC, "B12345675"}}) << 14;
    }

    void veredictos()
    {
        QFETCH(Arreglo, datos);
        QFETCH(int, veredicto);
        QCOMPARE(int(Svr().ValidarDatosContribuyentes(datos)), veredicto);
    }

    // --- The order between the verdicts --------------------------------------------------------
    void ordenDeLosVeredictos()
    {
        // Each pair breaks two rules; the lower number is told.
        QCOMPARE(Svr().ValidarDatosContribuyentes(
                     Con(Tesoreria(), {{V::DNIC, ""}, {V::NOMBREC, ""}, {V::DOMICILIOC, ""}})), 2);
        QCOMPARE(Svr().ValidarDatosContribuyentes(
                     Con(Tesoreria(), {{V::DNIC, "1234"}, {V::NOMBREC, ""}})), 1);
        QCOMPARE(Svr().ValidarDatosContribuyentes(
                     Con(Tesoreria(), {{V::NOMBREC, ""}, {V::DOMICILIOC, ""}})), 3);
        QCOMPARE(Svr().ValidarDatosContribuyentes(
                     Con(Extranjero(), {{V::DOMICILIOC, ""}, {V::PAIS, ""}})), 4);
        QCOMPARE(Svr().ValidarDatosContribuyentes(
                     Con(Extranjero(), {{V::PAIS, ""}, {V::NOMPROVC, ""}, {V::NOMMUNC, ""}})), 5);
        QCOMPARE(Svr().ValidarDatosContribuyentes(
                     Con(Tesoreria(), {{V::CODPOSC, "48001"}, {V::CODMUNC, ""}})), 6);
        QCOMPARE(Svr().ValidarDatosContribuyentes(
                     Con(Tesoreria(), {{V::CODPOSC, "77000"}, {V::CODMUNC, ""}})), 8);
        QCOMPARE(Svr().ValidarDatosContribuyentes(
                     Con(Tesoreria(), {{V::CODPOSC, ""}, {V::CODMUNC, ""}})), 9);
        QCOMPARE(Svr().ValidarDatosContribuyentes(
                     Con(Extranjero(), {{V::NOMPROVC, ""}, {V::NOMMUNC, ""}})), 10);
        QCOMPARE(Svr().ValidarDatosContribuyentes(
                     Con(OtraProvincia(), {{V::NOMMUNC, ""}, {V::DNIC, "12345678A"}})), 11);
        QCOMPARE(Svr().ValidarDatosContribuyentes(
                     Con(Tesoreria(), {{V::CODMUNC, ""}, {V::DNIC, "12345678A"}})), 13);
        // The check character comes last: a wrong letter and an empty name tell the name.
        QCOMPARE(Svr().ValidarDatosContribuyentes(
                     Con(Tesoreria(), {{V::NOMBREC, ""}, {V::DNIC, "12345678A"}})), 3);
        // A domicile made national again, with no province: the missing province is told
        // (id 39), not a municipality name or a postal code of another province.
        QCOMPARE(Svr().ValidarDatosContribuyentes(
                     Con(Extranjero(), {{V::TIPODOMI, "N"}, {V::DNIC, "12345678Z"}, {V::TIPODNI, "O"},
                                        {V::PAIS, ""}, {V::NOMPROVC, ""}, {V::NOMMUNC, ""},
                                        {V::CODPOSC, "48001"}})),
                 12);
    }

    void documentoExtranjero()
    {
        // The Spanish rules do not hold for a foreign document, but an empty or zero number is
        // still refused; the same number as an official one is judged by its letter.
        QCOMPARE(Svr().ValidarDatosContribuyentes(Con(Extranjero(), {{V::DNIC, "12345678A"}})), 0);
        QCOMPARE(Svr().ValidarDatosContribuyentes(
                     Con(Extranjero(), {{V::DNIC, "12345678A"}, {V::TIPODNI, "O"}})), 14);
        // A foreign document with a national domicile is a valid contributor (a transmitter).
        QCOMPARE(Svr().ValidarDatosContribuyentes(Con(Tesoreria(), {{V::TIPODNI, "N"}, {V::DNIC, "P12"}})), 0);
    }

    // --- Import errors ------------------------------------------------------------------------
    void importarSinErrores()
    {
        AlmacenDePrueba almacen;
        Arreglo2D e;
        Svr().ValidarDatosImportar(ImportacionNacional(), e);
        QCOMPARE(e.size(), 1);
        QVERIFY(e[0].size() - 1 <= 0);
        // A foreign contributor with 00 and 000 for its codes.
        Arreglo ext = ImportacionNacional();
        ext[I::TIPODNI] = "N";
        ext[I::DNIC] = QStringLiteral("AB1234   ");
        ext[I::TIPODOMI] = "E";
        ext[I::PAIS] = QStringLiteral("FRANCIA").leftJustified(20);
        ext[I::CODPROVC] = "00";
        ext[I::CODPOSC] = "75001";
        ext[I::NOMPROVC] = QStringLiteral("PARIS").leftJustified(20);
        ext[I::NOMMUNC] = QStringLiteral("PARIS").leftJustified(25);
        ext[I::CODMUNC] = "000";
        QCOMPARE(Errores(ext), QList<int>());
        // Another province, its municipality typed.
        Arreglo otra = ImportacionNacional();
        otra[I::CODPROVC] = "01";
        otra[I::CODPOSC] = "01001";
        otra[I::CODMUNC] = "000";
        otra[I::NOMMUNC] = QStringLiteral("VITORIA").leftJustified(25);
        QCOMPARE(Errores(otra), QList<int>());
    }

    void importarCadaError_data()
    {
        QTest::addColumn<Arreglo>("datos");
        QTest::addColumn<QList<int>>("errores");
        const Arreglo n = ImportacionNacional();
        Arreglo ext = n;
        ext[I::TIPODOMI] = "E";
        ext[I::PAIS] = "FRANCIA";
        ext[I::CODPROVC] = "00";
        ext[I::CODPOSC] = "75001";
        ext[I::NOMPROVC] = "PARIS";
        ext[I::NOMMUNC] = "PARIS";
        ext[I::CODMUNC] = "000";
        Arreglo otra = n;
        otra[I::CODPROVC] = "01";
        otra[I::CODPOSC] = "01001";
        otra[I::CODMUNC] = "000";
        otra[I::NOMMUNC] = "VITORIA";
        using L = QList<int>;
        QTest::newRow("1") << Con(n, {{I::DNIC, "12345678A"}}) << L{1};
        QTest::newRow("1 forma") << Con(n, {{I::DNIC, "1234"}}) << L{1};
        QTest::newRow("2") << Con(n, {{I::DNIC, "         "}}) << L{2};
        QTest::newRow("3") << Con(n, {{I::NOMBREC, QString(40, ' ')}}) << L{3};
        QTest::newRow("4") << Con(n, {{I::DOMICILIOC, ""}}) << L{4};
        QTest::newRow("5") << Con(ext, {{I::PAIS, "   "}}) << L{5};
        QTest::newRow("6") << Con(n, {{I::CODPOSC, "48001"}}) << L{6};
        QTest::newRow("7") << Con(n, {{I::CODPOSC, " 7701"}}) << L{6, 7};
        QTest::newRow("8") << Con(n, {{I::CODPOSC, "77000"}}) << L{8};
        QTest::newRow("9") << Con(n, {{I::CODPOSC, "00000"}}) << L{6, 8, 9};
        QTest::newRow("10") << Con(ext, {{I::NOMPROVC, ""}}) << L{10};
        QTest::newRow("11") << Con(otra, {{I::NOMMUNC, ""}}) << L{11};
        QTest::newRow("12") << Con(otra, {{I::CODPROVC, "00"}, {I::CODPOSC, "00000"}}) << L{8, 9, 12};
        QTest::newRow("13") << Con(n, {{I::CODMUNC, "000"}}) << L{13};
        QTest::newRow("14") << Con(n, {{I::NUMEROC, "12A  "}}) << L{14};
        QTest::newRow("15") << Con(n, {{I::CODPROVC, "7X"}}) << L{6, 15, 28};
        QTest::newRow("16") << Con(n, {{I::CODPOSC, "77O01"}}) << L{6, 7, 16};
        QTest::newRow("17") << Con(n, {{I::CODMUNC, "0O1"}}) << L{17, 26};
        QTest::newRow("18") << Con(n, {{I::NUMSP, "00000-1"}}) << L{18};
        QTest::newRow("19") << Con(n, {{I::NUMTR, "ABC    "}}) << L{19};
        QTest::newRow("20") << Con(n, {{I::TIPODNI, "X"}}) << L{20};
        QTest::newRow("21") << Con(n, {{I::TIPODOMI, "Z"}}) << L{21};
        QTest::newRow("22") << Con(n, {{I::VIAC, "QQ"}}) << L{22};
        QTest::newRow("22 vacía") << Con(n, {{I::VIAC, "  "}}) << L{22};
        QTest::newRow("22 minúsculas") << Con(n, {{I::VIAC, "cl"}}) << L{22};
        QTest::newRow("23") << Con(ext, {{I::CODPROVC, "48"}}) << L{23};
        QTest::newRow("24") << Con(ext, {{I::CODMUNC, "001"}}) << L{24};
        QTest::newRow("25") << Con(n, {{I::NOMPROVC, "ARBELIA"}}) << L{25};
        QTest::newRow("26") << Con(n, {{I::CODMUNC, "999"}}) << L{26};
        QTest::newRow("27") << Con(n, {{I::NOMMUNC, "ARBELGAIN"}}) << L{27};
        QTest::newRow("28") << Con(n, {{I::CODPROVC, "99"}, {I::CODPOSC, "99001"}, {I::CODMUNC, "000"},
                                      {I::NOMMUNC, "NINGUNA"}})
                            << L{28};
        QTest::newRow("29") << Con(otra, {{I::CODMUNC, "005"}}) << L{29};
        QTest::newRow("30") << Con(n, {{I::PAIS, "ESPAÑA"}}) << L{30};
        // Each rule is judged apart: a code that is not a number breaks the rules of its
        // value as well.
        QTest::newRow("9 en blanco") << Con(n, {{I::CODPOSC, "     "}}) << L{6, 8, 9};
        QTest::newRow("15 extranjera") << Con(ext, {{I::CODPROVC, "AB"}}) << L{15, 23};
        QTest::newRow("17 extranjero") << Con(ext, {{I::CODMUNC, "X01"}}) << L{17, 24};
        QTest::newRow("17 otra provincia") << Con(otra, {{I::CODMUNC, "0X5"}}) << L{17, 29};
        QTest::newRow("16 de cuatro") << Con(n, {{I::CODPOSC, "7A01 "}}) << L{6, 7, 16};
        QTest::newRow("6 y 8") << Con(n, {{I::CODPOSC, "48000"}}) << L{6, 8};
        // Blanks in a number field stand for 0.
        QTest::newRow("número en blanco") << Con(n, {{I::NUMEROC, "     "}, {I::NUMSP, "       "}}) << L{};
    }

    void importarCadaError()
    {
        AlmacenDePrueba almacen;
        QFETCH(Arreglo, datos);
        QFETCH(QList<int>, errores);
        QCOMPARE(Errores(datos), errores);
    }

    void importarTodosLosErroresALaVez()
    {
        AlmacenDePrueba almacen;
        Arreglo a = ImportacionNacional();
        a[I::TIPODNI] = "Q";
        a[I::DNIC] = "12345678A";
        a[I::NOMBREC] = "";
        a[I::DOMICILIOC] = "";
        a[I::PAIS] = "FRANCIA";
        a[I::NOMPROVC] = "X";
        a[I::NOMMUNC] = "Y";
        a[I::NUMEROC] = "A";
        a[I::NUMSP] = "B";
        a[I::NUMTR] = "C";
        a[I::VIAC] = "ZZ";
        a[I::CODMUNC] = "998";
        const QList<int> esperados{1, 3, 4, 14, 18, 19, 20, 22, 25, 26, 27, 30};
        QCOMPARE(Errores(a), esperados);
        // The array has one spare element after the errors.
        Arreglo2D e;
        Svr().ValidarDatosImportar(a, e);
        QCOMPARE(e[0].size() - 1, esperados.size());
    }

    void importarNecesitaLaBaseDeReferencia()
    {
        AlmacenDePrueba almacen;
        cContribSvr s;
        s.mdbmod = mdbmod;
        s.mdblec = almacen.carpeta().tablas() + QStringLiteral("NOEXISTE.mdb");
        Arreglo2D e;
        QVERIFY_THROWS_EXCEPTION(cFallo, s.ValidarDatosImportar(ImportacionNacional(), e));
    }

    // --- Save, load, delete ------------------------------------------------------------------
    void guardarYCargar()
    {
        AlmacenDePrueba almacen;
        const Arreglo a = ContribuyenteNacional(Dni(11111111), QStringLiteral("PEREZ ANA"));
        const int32_t csco = Guardar(a);
        QVERIFY(csco > 0);
        const Arreglo d = Cargar(csco);
        QCOMPARE(d.size(), 20);
        for (int i = P::TIPODNI; i < P::NUMSP; ++i)
            QCOMPARE(d[i].toString(), a[i].toString());
        QCOMPARE(d[P::NUMEROC].typeId(), QMetaType::Int);
        QCOMPARE(d[P::NUMSP].toDouble(), 0.0);
        QCOMPARE(d[P::NUMTR].toDouble(), 0.0);

        const Arreglo e = ContribuyenteExtranjero(QStringLiteral("AB123"), QStringLiteral("SMITH"));
        const int32_t otro = Guardar(e);
        QVERIFY(otro > csco);
        const Arreglo de = Cargar(otro);
        QCOMPARE(de[P::CODPOSC].toString(), QStringLiteral("1234"));  // a foreign postal code as typed
        QCOMPARE(de[P::CODPROVC].toString(), QString());
    }

    void guardarFormaAlmacenada()
    {
        // The raw strings of an exchange line are stored in their plain form.
        AlmacenDePrueba almacen;
        Arreglo a = ContribuyenteNacional(QStringLiteral("12345678Z"), QString());
        a[P::NOMBREC] = QStringLiteral("GARCIA LOPEZ JUAN").leftJustified(40);
        a[P::DOMICILIOC] = QStringLiteral("MAYOR").leftJustified(20);
        a[P::NUMEROC] = QStringLiteral("00012");
        a[P::CODPROVC] = QStringLiteral("7");
        a[P::CODPOSC] = QStringLiteral("7001");
        a[P::CODMUNC] = QStringLiteral("1");
        a[P::NUMSP] = QStringLiteral("0000005");
        const int32_t csco = Guardar(a);
        QVERIFY(csco > 0);
        const Arreglo d = Cargar(csco);
        QCOMPARE(d[P::NOMBREC].toString(), QStringLiteral("GARCIA LOPEZ JUAN"));
        QCOMPARE(d[P::DOMICILIOC].toString(), QStringLiteral("MAYOR"));
        QCOMPARE(d[P::NUMEROC].toInt(), 12);
        QCOMPARE(d[P::CODPROVC].toString(), QStringLiteral("07"));
        QCOMPARE(d[P::CODPOSC].toString(), QStringLiteral("07001"));
        QCOMPARE(d[P::CODMUNC].toString(), QStringLiteral("001"));
        // The counter of the array is not stored: no declaration names the contributor.
        QCOMPARE(d[P::NUMSP].toDouble(), 0.0);
    }

    void guardarVeredictos()
    {
        AlmacenDePrueba almacen;
        const int32_t a = Guardar(ContribuyenteNacional(Dni(1), QStringLiteral("UNO")));
        const int32_t b = Guardar(ContribuyenteNacional(Dni(2), QStringLiteral("DOS")));
        QVERIFY(a > 0 && b > 0);
        // 1: insert of a number already in the store, whatever its case or blanks.
        QCOMPARE(Svr().GuardarContribuyente(ContribuyenteNacional(Dni(1), QStringLiteral("OTRO"))), 1);
        QCOMPARE(Svr().GuardarContribuyente(
                     ContribuyenteExtranjero(QStringLiteral("ab12"), QStringLiteral("X"))),
                 0);
        QCOMPARE(Svr().GuardarContribuyente(
                     ContribuyenteExtranjero(QStringLiteral(" AB12 "), QStringLiteral("Y"))),
                 1);
        // 2: update to a number held by another.
        QCOMPARE(Svr().GuardarContribuyente(ContribuyenteNacional(Dni(2), QStringLiteral("UNO"), a)), 2);
        // Neither changed anything.
        QCOMPARE(almacen.Filas(QStringLiteral("CONTRIBUYENTES")), 3);
        QCOMPARE(Cargar(a)[P::NOMBREC].toString(), QStringLiteral("UNO"));
        // An update keeping the own number, and one changing it to a free number.
        QCOMPARE(Svr().GuardarContribuyente(ContribuyenteNacional(Dni(1), QStringLiteral("UNO BIS"), a)), 0);
        QCOMPARE(Cargar(a)[P::NOMBREC].toString(), QStringLiteral("UNO BIS"));
        QCOMPARE(Svr().GuardarContribuyente(ContribuyenteNacional(Dni(3), QStringLiteral("TRES"), a)), 0);
        QCOMPARE(Svr().ObtenerCodigoContribuyente(Dni(3)), a);
        QCOMPARE(Svr().ObtenerCodigoContribuyente(Dni(1)), 0);
    }

    void guardarSustituir()
    {
        AlmacenDePrueba almacen;
        const int32_t a = Guardar(ContribuyenteNacional(Dni(5), QStringLiteral("VIEJO")));
        // The import's replace: element 0 from ExisteContribuyente.
        QCOMPARE(Svr().GuardarContribuyente(ContribuyenteNacional(Dni(5), QStringLiteral("NUEVO"), a), true), 0);
        QCOMPARE(Cargar(a)[P::NOMBREC].toString(), QStringLiteral("NUEVO"));
        QCOMPARE(almacen.Filas(QStringLiteral("CONTRIBUYENTES")), 1);
        // Replace without a code replaces the one that has the number.
        QCOMPARE(Svr().GuardarContribuyente(ContribuyenteNacional(Dni(5), QStringLiteral("OTRA VEZ")), true), 0);
        QCOMPARE(Cargar(a)[P::NOMBREC].toString(), QStringLiteral("OTRA VEZ"));
        // Add: a new one; the number must be free.
        QCOMPARE(Svr().GuardarContribuyente(ContribuyenteNacional(Dni(5), QStringLiteral("X"), a), false), 1);
        QCOMPARE(Svr().GuardarContribuyente(ContribuyenteNacional(Dni(6), QStringLiteral("X"), a), false), 0);
        QVERIFY(Svr().ExisteContribuyente(Dni(6)) != a);
        QCOMPARE(almacen.Filas(QStringLiteral("CONTRIBUYENTES")), 2);
    }

    void guardarCodigoDesaparecido()
    {
        // An update of a code the store no longer has writes the record back under that code.
        AlmacenDePrueba almacen;
        const int32_t a = Guardar(ContribuyenteNacional(Dni(7), QStringLiteral("SIETE")));
        QVERIFY(Svr().BorrarContribuyente(a));
        QCOMPARE(Svr().GuardarContribuyente(ContribuyenteNacional(Dni(7), QStringLiteral("SIETE"), a)), 0);
        QCOMPARE(Svr().ExisteContribuyente(Dni(7)), a);
    }

    void guardarValorImposibleNoEscribeNada()
    {
        AlmacenDePrueba almacen;
        const int32_t a = Guardar(ContribuyenteNacional(Dni(8), QStringLiteral("OCHO")));
        Arreglo malo = ContribuyenteNacional(Dni(8), QStringLiteral("CAMBIADO"), a);
        malo[P::NUMEROC] = QStringLiteral("12A");
        QVERIFY_THROWS_EXCEPTION(cFallo, Svr().GuardarContribuyente(malo));
        // A name too long is a verdict of the store's door, not a failure.
        malo = ContribuyenteNacional(Dni(8), QString(41, QLatin1Char('N')), a);
        QCOMPARE(Svr().GuardarContribuyente(malo), 3);
        malo = ContribuyenteNacional(Dni(8), QStringLiteral("CAMBIADO"), a);
        malo[P::TIPODOMI] = QStringLiteral("X");
        QVERIFY_THROWS_EXCEPTION(cFallo, Svr().GuardarContribuyente(malo));
        QCOMPARE(Cargar(a)[P::NOMBREC].toString(), QStringLiteral("OCHO"));
        QCOMPARE(almacen.Filas(QStringLiteral("CONTRIBUYENTES")), 1);
    }

    void cargarCodigoInexistente()
    {
        AlmacenDePrueba almacen;
        QVERIFY(Cargar(12345).isEmpty());
    }

    void borrar()
    {
        AlmacenDePrueba almacen;
        const int32_t a = Guardar(ContribuyenteNacional(Dni(9), QStringLiteral("NUEVE")));
        QVERIFY(Svr().BorrarContribuyente(a));
        QCOMPARE(almacen.Filas(QStringLiteral("CONTRIBUYENTES")), 0);
        // A code the store no longer has: no row, no failure.
        QVERIFY(!Svr().BorrarContribuyente(a));
    }

    void existeYCodigo()
    {
        AlmacenDePrueba almacen;
        const int32_t a = Guardar(ContribuyenteNacional(Dni(10), QStringLiteral("DIEZ")));
        const int32_t b = Guardar(ContribuyenteExtranjero(QStringLiteral("AB123"), QStringLiteral("E")));
        QCOMPARE(Svr().ExisteContribuyente(Dni(10)), a);
        // The field of an exchange line, with its blanks.
        QCOMPARE(Svr().ExisteContribuyente(QStringLiteral("AB123    ")), b);
        QCOMPARE(Svr().ExisteContribuyente(QStringLiteral("ab123")), b);
        QCOMPARE(Svr().ExisteContribuyente(Dni(11)), 0);
        QCOMPARE(Svr().ExisteContribuyente(QString()), 0);
        QCOMPARE(Svr().ObtenerCodigoContribuyente(Dni(10)), a);
    }

    void tipoDniDomicilio()
    {
        AlmacenDePrueba almacen;
        const int32_t nacional = Guardar(ContribuyenteNacional(Dni(20), QStringLiteral("A")));
        const int32_t extranjero = Guardar(ContribuyenteExtranjero(QStringLiteral("AB20"), QStringLiteral("B")));
        Arreglo docExtranjero = ContribuyenteNacional(QStringLiteral("PX20"), QStringLiteral("C"));
        docExtranjero[P::TIPODNI] = "N";
        const int32_t noOficial = Guardar(docExtranjero);
        Arreglo domExtranjero = ContribuyenteExtranjero(Dni(21), QStringLiteral("D"));
        domExtranjero[P::TIPODNI] = "O";
        const int32_t fuera = Guardar(domExtranjero);
        QVERIFY(Svr().ValidarTipoDniDomicilio(nacional));
        QVERIFY(!Svr().ValidarTipoDniDomicilio(extranjero));
        QVERIFY(!Svr().ValidarTipoDniDomicilio(noOficial));
        QVERIFY(!Svr().ValidarTipoDniDomicilio(fuera));
        QVERIFY(!Svr().ValidarTipoDniDomicilio(99999));
    }

    // --- Counters --------------------------------------------------------------------------
    void contadores()
    {
        AlmacenDePrueba almacen;
        const int32_t a = Guardar(ContribuyenteNacional(Dni(30), QStringLiteral("SUJETO")));
        const int32_t b = Guardar(ContribuyenteNacional(Dni(31), QStringLiteral("VENDEDOR")));
        QCOMPARE(Svr().ObtenerNumspNumtr(a), (Arreglo{0, 0}));
        const int32_t d1 = almacen.NuevaDeclaracion(a, b);
        almacen.NuevaDeclaracion(a, b);
        almacen.NuevaDeclaracion(a, a);
        almacen.NuevaDeclaracion(0, b);
        QCOMPARE(Svr().ObtenerNumspNumtr(a), (Arreglo{3, 1}));
        QCOMPARE(Svr().ObtenerNumspNumtr(b), (Arreglo{0, 3}));
        const Arreglo d = Cargar(a);
        QCOMPARE(d[P::NUMSP].toDouble(), 3.0);
        QCOMPARE(d[P::NUMTR].toDouble(), 1.0);

        // Whatever a save array carries, the counters stay those of the declarations.
        Arreglo g = ContribuyenteNacional(Dni(30), QStringLiteral("SUJETO"), a);
        g[P::NUMSP] = 0.0;
        g[P::NUMTR] = 77.0;
        QCOMPARE(Svr().GuardarContribuyente(g), 0);
        QCOMPARE(Svr().ObtenerNumspNumtr(a), (Arreglo{3, 1}));
        QCOMPARE(Svr().GuardarContribuyente(g, true), 0);
        QCOMPARE(Cargar(a)[P::NUMSP].toDouble(), 3.0);

        // The list shows the same.
        Arreglo2D datos;
        QCOMPARE(Svr().dameResultadoBusqueda(Criterios(0, 0), datos, 1), 2);
        const qsizetype fila = datos[0].indexOf(QVariant(a));
        QCOMPARE(datos[5][fila].toInt(), 3);
        QCOMPARE(datos[6][fila].toInt(), 1);
        QCOMPARE(Svr().dameResultadoBusquedaTodo(Criterios(0, 0), datos, 1), 2);
        QCOMPARE(datos[P::NUMSP][datos[0].indexOf(QVariant(b))].toDouble(), 0.0);
        QCOMPARE(datos[P::NUMTR][datos[0].indexOf(QVariant(b))].toDouble(), 3.0);

        // A declaration deleted: the counter follows.
        almacen.BorrarDeclaracion(d1);
        QCOMPARE(Svr().ObtenerNumspNumtr(a), (Arreglo{2, 1}));
        QCOMPARE(Svr().ObtenerNumspNumtr(b), (Arreglo{0, 2}));
    }

    void borrarNombradoEnDeclaracion()
    {
        AlmacenDePrueba almacen;
        const int32_t sujeto = Guardar(ContribuyenteNacional(Dni(40), QStringLiteral("S")));
        const int32_t transmitente = Guardar(ContribuyenteNacional(Dni(41), QStringLiteral("T")));
        const int32_t d = almacen.NuevaDeclaracion(sujeto, transmitente);
        QVERIFY(!Svr().BorrarContribuyente(sujeto));
        QVERIFY(!Svr().BorrarContribuyente(transmitente));
        QCOMPARE(almacen.Filas(QStringLiteral("CONTRIBUYENTES")), 2);
        // Its number may still change.
        QCOMPARE(Svr().GuardarContribuyente(ContribuyenteNacional(Dni(42), QStringLiteral("S"), sujeto)), 0);
        almacen.BorrarDeclaracion(d);
        QVERIFY(Svr().BorrarContribuyente(sujeto));
        QVERIFY(Svr().BorrarContribuyente(transmitente));
    }

    // --- Search --------------------------------------------------------------------------
    void busquedaPrefijos()
    {
        AlmacenDePrueba almacen;
        Guardar(ContribuyenteNacional(Dni(50), QStringLiteral("GARCIA PEREZ ANA")));
        Guardar(ContribuyenteNacional(Dni(51), QStringLiteral("GARCES LUIS")));
        Guardar(ContribuyenteNacional(Dni(60), QStringLiteral("ALONSO JUAN")));
        Guardar(ContribuyenteNacional(QStringLiteral("X1234567L"), QStringLiteral("GARZA MARIA")));
        Arreglo2D d;
        // No criteria: all, by name.
        QCOMPARE(Svr().dameResultadoBusqueda(Criterios(0, 0), d, 1), 4);
        QCOMPARE(d.size(), 7);
        QCOMPARE(Columna(d, 1), (QStringList{"ALONSO JUAN", "GARCES LUIS", "GARCIA PEREZ ANA", "GARZA MARIA"}));
        // By DNI.
        QCOMPARE(Svr().dameResultadoBusqueda(Criterios(0, 0), d, 2), 4);
        QCOMPARE(Columna(d, 2), (QStringList{Dni(50), Dni(51), Dni(60), "X1234567L"}));
        // Name prefix, without regard to case.
        QCOMPARE(Svr().dameResultadoBusqueda(Criterios("GARC", 0), d, 1), 2);
        QCOMPARE(Columna(d, 1), (QStringList{"GARCES LUIS", "GARCIA PEREZ ANA"}));
        QCOMPARE(Svr().dameResultadoBusqueda(Criterios("garc", 0), d, 1), 2);
        // DNI prefix; a prefix "0" given as text is a criterion.
        QCOMPARE(Svr().dameResultadoBusqueda(Criterios(0, "0000005"), d, 1), 2);
        QCOMPARE(Svr().dameResultadoBusqueda(Criterios(0, "0"), d, 1), 3);
        QCOMPARE(Svr().dameResultadoBusqueda(Criterios(0, "x"), d, 1), 1);
        // Both at once.
        QCOMPARE(Svr().dameResultadoBusqueda(Criterios("GAR", "X"), d, 1), 1);
        QCOMPARE(Columna(d, 1), QStringList{"GARZA MARIA"});
        // Both, ordered by DNI.
        QCOMPARE(Svr().dameResultadoBusqueda(Criterios("GAR", 0), d, 2), 3);
        QCOMPARE(Columna(d, 2), (QStringList{Dni(50), Dni(51), "X1234567L"}));
        // An emptied criterion matches all.
        QCOMPARE(Svr().dameResultadoBusqueda(Criterios("", 0), d, 1), 4);
        // Nothing found: the seven columns, no rows (an upper bound of -1).
        QCOMPARE(Svr().dameResultadoBusqueda(Criterios("ZZ", 0), d, 1), 0);
        QCOMPARE(d.size(), 7);
        QCOMPARE(d[0].size() - 1, -1);
    }

    void busquedaCaracteresEspeciales()
    {
        AlmacenDePrueba almacen;
        Guardar(ContribuyenteNacional(Dni(70), QStringLiteral("O'BRIEN SEAN")));
        Guardar(ContribuyenteNacional(Dni(71), QStringLiteral("OXBRIEN ANA")));
        Guardar(ContribuyenteNacional(Dni(72), QStringLiteral("100% MOTOR SL")));
        Guardar(ContribuyenteNacional(Dni(73), QStringLiteral("1000 MOTOS SL")));
        Guardar(ContribuyenteNacional(Dni(74), QStringLiteral("A_B SL")));
        Guardar(ContribuyenteNacional(Dni(75), QStringLiteral("AXB SL")));
        Guardar(ContribuyenteNacional(Dni(76), QStringLiteral("AB SL")));
        Arreglo2D d;
        QCOMPARE(Svr().dameResultadoBusqueda(Criterios("O'", 0), d, 1), 1);
        QCOMPARE(Columna(d, 1), QStringList{"O'BRIEN SEAN"});
        QCOMPARE(Svr().dameResultadoBusqueda(Criterios("O'BRIEN SEAN", 0), d, 1), 1);
        QCOMPARE(Svr().dameResultadoBusqueda(Criterios("100%", 0), d, 1), 1);
        QCOMPARE(Columna(d, 1), QStringList{"100% MOTOR SL"});
        QCOMPARE(Svr().dameResultadoBusqueda(Criterios("%", 0), d, 1), 0);
        QCOMPARE(Svr().dameResultadoBusqueda(Criterios("A_", 0), d, 1), 1);
        QCOMPARE(Columna(d, 1), QStringList{"A_B SL"});
        QCOMPARE(Svr().dameResultadoBusqueda(Criterios("_", 0), d, 1), 0);
        QCOMPARE(Svr().dameResultadoBusqueda(Criterios("' OR 1=1 --", 0), d, 1), 0);
        QCOMPARE(Svr().dameResultadoBusqueda(Criterios(0, "%"), d, 1), 0);
        QCOMPARE(almacen.Filas(QStringLiteral("CONTRIBUYENTES")), 7);
    }

    void ordenDeLaLista()
    {
        // Ñ after N, accents and case aside; ties by the code.
        AlmacenDePrueba almacen;
        Guardar(ContribuyenteNacional(Dni(100), QStringLiteral("MUOZ A")));
        Guardar(ContribuyenteNacional(Dni(101), QStringLiteral("MUÑOZ B")));
        Guardar(ContribuyenteNacional(Dni(102), QStringLiteral("MUNOZ C")));
        Guardar(ContribuyenteNacional(Dni(103), QStringLiteral("MUNIZ D")));
        Guardar(ContribuyenteNacional(Dni(104), QStringLiteral("muñoz a")));
        Guardar(ContribuyenteNacional(Dni(105), QStringLiteral("MÚGICA")));
        Guardar(ContribuyenteNacional(Dni(106), QStringLiteral("MUZA")));
        Guardar(ContribuyenteNacional(Dni(107), QStringLiteral("MUZA")));
        Arreglo2D d;
        QCOMPARE(Svr().dameResultadoBusqueda(Criterios("M", 0), d, 1), 8);
        QCOMPARE(Columna(d, 1), (QStringList{"MÚGICA", "MUNIZ D", "MUNOZ C", "muñoz a", "MUÑOZ B",
                                             "MUOZ A", "MUZA", "MUZA"}));
        QCOMPARE(Columna(d, 2).mid(6), (QStringList{Dni(106), Dni(107)}));
        QCOMPARE(Svr().dameResultadoBusquedaTodo(Criterios("m", 0), d, 1), 8);
        QCOMPARE(Columna(d, P::NOMBREC).first(), QStringLiteral("MÚGICA"));
        QCOMPARE(Columna(d, P::NOMBREC).at(4), QStringLiteral("MUÑOZ B"));
    }

    void conexionCerradaEntreLlamadas()
    {
        // A statement kept from an earlier call is compiled again once its connection has been
        // closed (a restore, for one).
        AlmacenDePrueba almacen;
        QVERIFY(Guardar(ContribuyenteNacional(Dni(110), QStringLiteral("ANTES"))) > 0);
        Conexion::Cerrar(mdbmod);
        QVERIFY(Guardar(ContribuyenteNacional(Dni(111), QStringLiteral("DESPUES"))) > 0);
        QCOMPARE(Svr().GuardarContribuyente(ContribuyenteNacional(Dni(110), QStringLiteral("X"))), 1);
        QCOMPARE(almacen.Filas(QStringLiteral("CONTRIBUYENTES")), 2);
    }

    void busquedaMunicipio()
    {
        AlmacenDePrueba almacen;
        const int32_t tesoreria = Guardar(ContribuyenteNacional(Dni(80), QStringLiteral("A")));
        Arreglo otra = ContribuyenteNacional(Dni(81), QStringLiteral("B"));
        otra[P::CODPROVC] = "48";
        otra[P::CODPOSC] = "48001";
        otra[P::CODMUNC] = "";
        otra[P::NOMMUNC] = "BILBAO";
        const int32_t bilbao = Guardar(otra);
        const int32_t londres = Guardar(ContribuyenteExtranjero(QStringLiteral("AB81"), QStringLiteral("C")));
        Arreglo2D d;
        QCOMPARE(Svr().dameResultadoBusqueda(Criterios(0, 0), d, 1), 3);
        const auto municipio = [&d](int32_t c) { return d[4][d[0].indexOf(QVariant(c))].toString(); };
        QCOMPARE(municipio(tesoreria), QStringLiteral("ARBELGAIN"));
        QCOMPARE(municipio(bilbao), QStringLiteral("BILBAO"));
        QCOMPARE(municipio(londres), QStringLiteral("LONDRES"));
        QCOMPARE(d[3][d[0].indexOf(QVariant(bilbao))].toString(), QStringLiteral("MAYOR"));
    }

    void busquedaTodo()
    {
        AlmacenDePrueba almacen;
        const Arreglo a = ContribuyenteNacional(Dni(90), QStringLiteral("TODO"));
        const int32_t c = Guardar(a);
        Guardar(ContribuyenteNacional(Dni(91), QStringLiteral("OTRO")));
        Arreglo2D d;
        QCOMPARE(Svr().dameResultadoBusquedaTodo(Criterios("TO", 0), d, 1), 1);
        QCOMPARE(d.size(), 20);
        QCOMPARE(d[P::CSCO][0].toInt(), c);
        for (int i = P::TIPODNI; i < P::NUMSP; ++i)
            QCOMPARE(d[i][0].toString(), a[i].toString());
        QCOMPARE(Svr().dameResultadoBusquedaTodo(Criterios(0, 0), d, 2), 2);
        QCOMPARE(Columna(d, P::DNIC), (QStringList{Dni(90), Dni(91)}));
    }
};

QTEST_GUILESS_MAIN(TestContribSvr)
#include "test_contribsvr.moc"
