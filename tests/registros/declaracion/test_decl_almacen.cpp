// The store of returns: every field saved and loaded back, new rows and updates, copies,
// deletion, the counters of the parties after saves and deletions, the recent returns, the
// parties as a return takes them.
#include "comun/DeclaracionPrueba.h"

#include "plataforma/Fallo.h"
#include "plataforma/General.h"
#include "registros/declaracion/cDecDatos.h"
#include "servicios/cContribSvr.h"
#include "servicios/cDeclaSvr.h"
#include "servicios/cPresenSvr.h"

#include <QTest>

namespace {

cDeclaSvr servidor()
{
    cDeclaSvr svr;
    svr.mdbmod = mdbmod;
    svr.mdblec = mdblec;
    return svr;
}

int32_t guardar()
{
    const int32_t codigo = DecDatos().GuardarDeclaracion() ? DecDatos().CSDE : 0;
    return codigo;
}

// Number of returns of a contributor as subject (0) and as transmitter (1).
QPair<int, int> contadores(int32_t csco)
{
    cContribSvr svr;
    svr.mdbmod = mdbmod;
    const DeclaracionesContribuyente n = svr.ObtenerNumspNumtr(csco);
    return {n.comoSujeto, n.comoTransmitente};
}

int declaracionesDe(int32_t cspr)
{
    cPresenSvr svr;
    svr.mdbmod = mdbmod;
    return svr.NumDeclaPresentador(cspr);
}

// Every field of DecDatos with a value of its own.
void rellenarTodo(int32_t cspr, int32_t cssu, int32_t cstra)
{
    cDecDatos& d = DecDatos();
    Navegacion::RutaDec().modo = Navegacion::Modo::Nuevo;
    d.IniciarNuevo();
    d.REFERENCIA = QStringLiteral("REF-0042");
    d.CSPR = cspr;
    d.CSSU = cssu;
    d.CSTRA = cstra;
    d.FECHAD = 20061115;
    d.ADQUIRIDO = QStringLiteral("X");
    d.MARCA = QStringLiteral("AUDI");
    d.TIPO = QStringLiteral("8P");
    d.MODELO = QStringLiteral("A3 SPORTBACK");
    d.BASTIDOR = QStringLiteral("WAUZZZ8P07A123456");
    d.CLASIFICACION = 1010;
    d.MOTOR = QStringLiteral("D");
    d.CILINDRADA = 1968;
    d.OPERACION = QStringLiteral("P7B");
    d.NOSUJETO = QStringLiteral("X");
    d.EXENTO = QStringLiteral("X");
    d.REDUCCION = QStringLiteral("Y");
    d.BASEI = Importe(2345678);
    d.BASEIREDUCIDA = Importe(1641974.6);
    d.TIPOIMP = 7;
    d.CUOTA = Importe(114938.22);
    d.DEDUCCION = Importe(72121);
    d.TOTAL = Importe(42817.22);
    d.DNISP = QStringLiteral("SP1");
    d.NOMBRESP = QStringLiteral("SUJETO ÑANDÚ");
    d.VIASP = QStringLiteral("AV");
    d.DOMICILIOSP = QStringLiteral("GASTEIZ");
    d.NUMEROSP = 12345;
    d.LETRASP = QStringLiteral("BI");
    d.ESCALERASP = QStringLiteral("E2");
    d.PISOSP = QStringLiteral("3");
    d.MANOSP = QStringLiteral("IZQ");
    d.CODPROVSP = QStringLiteral("77");
    d.CODPOSSP = QStringLiteral("77008");
    d.CODMUNSP = QStringLiteral("008");
    d.NOMMUNSP = QStringLiteral("MUNI SP");
    d.TIPODNITR = QStringLiteral("N");
    d.DNITR = QStringLiteral("TR1");
    d.NOMBRETR = QStringLiteral("TRANSMITENTE");
    d.TIPODOMITR = QStringLiteral("E");
    d.VIATR = QStringLiteral("PZ");
    d.DOMICILIOTR = QStringLiteral("RUE");
    d.NUMEROTR = 99;
    d.LETRATR = QStringLiteral("C");
    d.ESCALERATR = QStringLiteral("D");
    d.PISOTR = QStringLiteral("10");
    d.MANOTR = QStringLiteral("DCH");
    d.PAISTR = QStringLiteral("FRANCIA");
    d.CODPROVTR = QStringLiteral("00");
    d.NOMPROVTR = QStringLiteral("ILE DE FRANCE");
    d.CODPOSTR = QStringLiteral("F-75");
    d.CODMUNTR = QStringLiteral("000");
    d.NOMMUNTR = QStringLiteral("PARIS");
}

}  // namespace

class TestAlmacen : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<AlmacenDePrueba> m_almacen;

private slots:
    void init() { m_almacen = std::make_unique<AlmacenDePrueba>(); }
    void cleanup() { m_almacen.reset(); }

    void idaYVueltaDeCadaCampo()
    {
        const int32_t pr = NuevoPresentador(Dni(11111111), QStringLiteral("GESTORIA UNO"));
        const int32_t sp = NuevoContribuyente(Dni(22222222), QStringLiteral("SUJETO"));
        const int32_t tr = NuevoContribuyente(Dni(33333333), QStringLiteral("TRANS"));
        rellenarTodo(pr, sp, tr);
        Declaracion guardado = DecDatos().valor();
        const int32_t codigo = guardar();
        QVERIFY(codigo > 0);

        Navegacion::RutaDec().modo = Navegacion::Modo::Nuevo;

        DecDatos().IniciarNuevo();
        DecDatos().CSDE = codigo;
        Navegacion::RutaDec().modo = Navegacion::Modo::Abrir;
        DecDatos().CargarDeclaracion();
        const cDecDatos& d = DecDatos();
        QCOMPARE(d.CSDE, codigo);
        QVERIFY(d.VERSION != 0);
        // Every stored field comes back as it went; what is not stored is read beside it.
        guardado.CSDE = codigo;
        guardado.VERSION = d.VERSION;
        guardado.DNIPR = d.DNIPR;
        guardado.NOMBREPR = d.NOMBREPR;
        guardado.DECLASP = d.DECLASP;
        QVERIFY(d.valor() == guardado);
        QCOMPARE(d.BASEIREDUCIDA.centimos(), 1641974.6);
        QCOMPARE(d.CUOTA.centimos(), 114938.22);
        QCOMPARE(d.NOMBRESP, QStringLiteral("SUJETO ÑANDÚ"));
        // The presenter's number and name come from the presenter.
        QCOMPARE(d.DNIPR, Dni(11111111));
        QCOMPARE(d.NOMBREPR, QStringLiteral("GESTORIA UNO"));
        // Returns whose subject is this return's transmitter: none yet.
        QCOMPARE(d.DECLASP, 0.0);
    }

    // Each field of the return is stored in its own column (the load reads the same columns
    // into the same fields, which the round trip above checks).
    void cadaCampoEnSuColumna()
    {
        const int32_t pr = NuevoPresentador(Dni(11111111), QStringLiteral("GESTORIA UNO"));
        const int32_t sp = NuevoContribuyente(Dni(22222222), QStringLiteral("SUJETO"));
        const int32_t tr = NuevoContribuyente(Dni(33333333), QStringLiteral("TRANS"));
        rellenarTodo(pr, sp, tr);
        DecDatos().NOMPROVSP = QStringLiteral("ALAVA");  // never stored
        const int32_t codigo = guardar();
        const QList<QPair<const char*, QString>> esperado{
            {"REFERENCIA", QStringLiteral("REF-0042")}, {"CSPR", QString::number(pr)},
            {"CSSU", QString::number(sp)}, {"CSTRA", QString::number(tr)},
            {"FECHAD", QStringLiteral("20061115")}, {"ADQUIRIDO", QStringLiteral("X")},
            {"MARCA", QStringLiteral("AUDI")}, {"TIPO", QStringLiteral("8P")},
            {"MODELO", QStringLiteral("A3 SPORTBACK")},
            {"BASTIDOR", QStringLiteral("WAUZZZ8P07A123456")},
            {"CLASIFICACION", QStringLiteral("1010")}, {"MOTOR", QStringLiteral("D")},
            {"CILINDRADA", QStringLiteral("1968")}, {"OPERACION", QStringLiteral("P7B")},
            {"NOSUJETO", QStringLiteral("X")}, {"EXENTO", QStringLiteral("X")},
            {"REDUCCION", QStringLiteral("Y")}, {"BASEI", QStringLiteral("2345678")},
            {"BASEIREDUCIDA", QStringLiteral("1641974.6")}, {"TIPOIMP", QStringLiteral("7")},
            {"CUOTA", QStringLiteral("114938.22")}, {"DEDUCCION", QStringLiteral("72121")},
            {"TOTAL", QStringLiteral("42817.22")}, {"DNISP", QStringLiteral("SP1")},
            {"NOMBRESP", QStringLiteral("SUJETO ÑANDÚ")}, {"VIASP", QStringLiteral("AV")},
            {"DOMICILIOSP", QStringLiteral("GASTEIZ")}, {"NUMEROSP", QStringLiteral("12345")},
            {"LETRASP", QStringLiteral("BI")}, {"ESCALERASP", QStringLiteral("E2")},
            {"PISOSP", QStringLiteral("3")}, {"MANOSP", QStringLiteral("IZQ")},
            {"CODPROVSP", QStringLiteral("77")}, {"NOMPROVSP", QString()},
            {"CODPOSSP", QStringLiteral("77008")}, {"CODMUNSP", QStringLiteral("008")},
            {"NOMMUNSP", QStringLiteral("MUNI SP")}, {"TIPODNITR", QStringLiteral("N")},
            {"DNITR", QStringLiteral("TR1")}, {"NOMBRETR", QStringLiteral("TRANSMITENTE")},
            {"VIATR", QStringLiteral("PZ")}, {"DOMICILIOTR", QStringLiteral("RUE")},
            {"NUMEROTR", QStringLiteral("99")}, {"LETRATR", QStringLiteral("C")},
            {"ESCALERATR", QStringLiteral("D")}, {"PISOTR", QStringLiteral("10")},
            {"MANOTR", QStringLiteral("DCH")}, {"TIPODOMITR", QStringLiteral("E")},
            {"PAISTR", QStringLiteral("FRANCIA")}, {"CODPROVTR", QStringLiteral("00")},
            {"NOMPROVTR", QStringLiteral("ILE DE FRANCE")}, {"CODPOSTR", QStringLiteral("F-75")},
            {"CODMUNTR", QStringLiteral("000")}, {"NOMMUNTR", QStringLiteral("PARIS")},
        };
        for (const auto& [columna, valor] : esperado)
            QVERIFY2(ValorAlmacenado(QStringLiteral("SELECT %1 FROM DECLARACIONES WHERE CSDE = ?")
                                         .arg(QLatin1String(columna)),
                                     {codigo})
                             .toString()
                         == valor,
                     columna);
    }

    void cargaCompleta()
    {
        rellenarTodo(0, 0, 0);
        DecDatos().NOMPROVSP = QStringLiteral("ALAVA");  // never stored
        const int32_t codigo = guardar();
        const std::optional<Declaracion> a = servidor().CargarDeclaracion(codigo);
        QVERIFY(a.has_value());
        QCOMPARE(a->CSDE, codigo);
        QCOMPARE(a->DNIPR, QString());
        QCOMPARE(a->NOMBREPR, QString());
        QCOMPARE(a->DNISP, QStringLiteral("SP1"));
        QCOMPARE(a->NOMPROVSP, QString());
        QCOMPARE(a->NOMMUNTR, QStringLiteral("PARIS"));
        QCOMPARE(a->DECLASP, 0.0);
        QCOMPARE(a->VERSION, DecDatos().VERSION);
        // An unknown code gives nothing; the record then holds an empty return.
        QVERIFY(!servidor().CargarDeclaracion(codigo + 100).has_value());
        DecDatos().CSDE = codigo + 100;
        DecDatos().CargarDeclaracion();
        QCOMPARE(DecDatos().CSDE, codigo + 100);
        QCOMPARE(DecDatos().MARCA, QString());
        QCOMPARE(DecDatos().MOTOR, QString());
        QCOMPARE(DecDatos().VERSION, int64_t(0));
    }

    void numeroDeDeclaracionesComoSujetoDelTransmitente()
    {
        const int32_t a = NuevoContribuyente(Dni(44444444), QStringLiteral("A"));
        const int32_t b = NuevoContribuyente(Dni(55555555), QStringLiteral("B"));
        rellenarTodo(0, a, b);
        guardar();
        rellenarTodo(0, b, a);  // b is the subject of one return
        guardar();
        rellenarTodo(0, b, b);
        const int32_t tercera = guardar();
        DecDatos().CSDE = tercera;
        DecDatos().CargarDeclaracion();
        QCOMPARE(DecDatos().DECLASP, 2.0);
    }

    void guardarSinCodigoCreaFilaYConCodigoActualiza()
    {
        DeclaracionValida();
        const int32_t primera = guardar();
        QVERIFY(primera > 0);
        QCOMPARE(FilasDeclaraciones(), 1);
        DecDatos().CSDE = primera;
        DecDatos().MARCA = QStringLiteral("CUPRA");
        QCOMPARE(guardar(), primera);
        QCOMPARE(FilasDeclaraciones(), 1);
        Navegacion::RutaDec().modo = Navegacion::Modo::Nuevo;
        DecDatos().IniciarNuevo();
        DecDatos().CSDE = primera;
        DecDatos().CargarDeclaracion();
        QCOMPARE(DecDatos().MARCA, QStringLiteral("CUPRA"));
    }

    void unaCopiaSeGuardaComoFilaNueva()
    {
        DeclaracionValida();
        const int32_t original = guardar();
        Navegacion::RutaDec().modo = Navegacion::Modo::Nuevo;
        DecDatos().IniciarNuevo();
        DecDatos().CSDE = original;
        Navegacion::RutaDec().modo = Navegacion::Modo::Copia;
        DecDatos().CargarDeclaracion();
        const Declaracion antes = DecDatos().valor();
        DecDatos().CSDE = 0;  // what the form does to a copy
        DecDatos().REFERENCIA = QStringLiteral("COPIA");
        const int32_t copia = guardar();
        QVERIFY(copia > original);
        QCOMPARE(FilasDeclaraciones(), 2);
        DecDatos().CSDE = original;
        DecDatos().CargarDeclaracion();
        QVERIFY(DecDatos().valor() == antes);
        DecDatos().CSDE = copia;
        DecDatos().CargarDeclaracion();
        QCOMPARE(DecDatos().REFERENCIA, QStringLiteral("COPIA"));
        QCOMPARE(DecDatos().MARCA, QStringLiteral("SEAT"));
    }

    // The record's save of a return deleted since it was saved is not written back: the
    // answer says so and no row appears. Saved without a version (by a caller that loaded
    // nothing) it still makes a new row, under a new code.
    void codigoBorradoMientrasTantoNoVuelve()
    {
        DeclaracionValida();
        const int32_t codigo = guardar();
        QVERIFY(DecDatos().VERSION > 0);
        QVERIFY(servidor().BorrarDeclaracion(codigo));
        DecDatos().CSDE = codigo;
        const Resultado<void> respuesta = DecDatos().GuardarDeclaracion();
        QVERIFY(!respuesta);
        QCOMPARE(respuesta.veredicto().vigencia, Vigencia::Borrada);
        QVERIFY(respuesta.veredicto().vacio());
        QCOMPARE(DecDatos().CSDE, codigo);
        QCOMPARE(FilasDeclaraciones(), 0);

        const Resultado<Declaracion> otra =
            servidor().GuardarDeclaracion(DecDatos().valor(), ComprobarVersion::No);
        QVERIFY(otra.aceptado());
        const int32_t nuevo = otra->CSDE;
        QVERIFY(nuevo > 0);
        QVERIFY(nuevo != codigo);  // codes are never given twice
        QCOMPARE(FilasDeclaraciones(), 1);
    }

    void partesQueNoExistenQuedanEnCero()
    {
        DeclaracionValida();
        DecDatos().CSSU = 999;
        DecDatos().CSTRA = 998;
        DecDatos().CSPR = 997;
        const int32_t codigo = guardar();
        QVERIFY(codigo > 0);
        DecDatos().CSDE = codigo;
        DecDatos().CargarDeclaracion();
        QCOMPARE(DecDatos().CSSU, 0);
        QCOMPARE(DecDatos().CSTRA, 0);
        QCOMPARE(DecDatos().CSPR, 0);
        QCOMPARE(DecDatos().NOMBRESP, QStringLiteral("GARCIA LOPEZ JUAN"));
    }

    void borrar()
    {
        DeclaracionValida();
        const int32_t codigo = guardar();
        DecDatos().CSDE = codigo;
        DecDatos().BorrarDeclaracion();
        QCOMPARE(FilasDeclaraciones(), 0);
        QVERIFY(!servidor().BorrarDeclaracion(codigo));
    }

    void contadoresTrasGuardarYBorrar()
    {
        const int32_t a = NuevoContribuyente(Dni(10000001), QStringLiteral("A"));
        const int32_t b = NuevoContribuyente(Dni(10000002), QStringLiteral("B"));
        const int32_t c = NuevoContribuyente(Dni(10000003), QStringLiteral("C"));
        const int32_t p = NuevoPresentador(Dni(10000004), QStringLiteral("P"));
        const int32_t q = NuevoPresentador(Dni(10000005), QStringLiteral("Q"));

        DeclaracionValida();
        DecDatos().CSSU = a;
        DecDatos().CSTRA = b;
        DecDatos().CSPR = p;
        const int32_t d1 = guardar();
        QCOMPARE(contadores(a), qMakePair(1, 0));
        QCOMPARE(contadores(b), qMakePair(0, 1));
        QCOMPARE(declaracionesDe(p), 1);

        DecDatos().CSDE = 0;
        const int32_t d2 = guardar();
        QCOMPARE(contadores(a), qMakePair(2, 0));
        QCOMPARE(contadores(b), qMakePair(0, 2));
        QCOMPARE(declaracionesDe(p), 2);

        // An update that changes the parties moves the counts.
        DecDatos().CSDE = d2;
        DecDatos().CSSU = c;
        DecDatos().CSTRA = c;
        DecDatos().CSPR = q;
        QCOMPARE(guardar(), d2);
        QCOMPARE(contadores(a), qMakePair(1, 0));
        QCOMPARE(contadores(b), qMakePair(0, 1));
        QCOMPARE(contadores(c), qMakePair(1, 1));
        QCOMPARE(declaracionesDe(p), 1);
        QCOMPARE(declaracionesDe(q), 1);

        // A party named in a return cannot be deleted.
        cContribSvr contribuyentes;
        contribuyentes.mdbmod = mdbmod;
        QVERIFY(!contribuyentes.BorrarContribuyente(c));

        servidor().BorrarDeclaracion(d2);
        QCOMPARE(contadores(c), qMakePair(0, 0));
        QCOMPARE(declaracionesDe(q), 0);
        servidor().BorrarDeclaracion(d1);
        QCOMPARE(contadores(a), qMakePair(0, 0));
        QCOMPARE(contadores(b), qMakePair(0, 0));
        QCOMPARE(declaracionesDe(p), 0);
        QVERIFY(contribuyentes.BorrarContribuyente(c));
    }

    void ultimasDeclaraciones()
    {
        QVERIFY(DecDatos().ObtenerUltimasDeclaraciones().isEmpty());
        QList<int32_t> codigos;
        for (int i = 1; i <= 6; ++i) {
            DeclaracionValida();
            DecDatos().REFERENCIA = QStringLiteral("R%1").arg(i);
            if (i == 5)
                DecDatos().REFERENCIA.clear();
            codigos << guardar();
        }
        QList<UltimaDeclaracion> lista = DecDatos().ObtenerUltimasDeclaraciones();
        QCOMPARE(lista.size(), 4);
        QCOMPARE(lista[0].CSDE, codigos[5]);
        QCOMPARE(lista[0].descripcion, QStringLiteral("R6"));
        QCOMPARE(lista[1].CSDE, codigos[4]);
        QCOMPARE(lista[1].descripcion, QStringLiteral("GARCIA LOPEZ JUAN"));
        QCOMPARE(lista[3].CSDE, codigos[2]);
        // Saving an older return again makes it the most recent.
        DecDatos().CSDE = codigos[0];
        DecDatos().CargarDeclaracion();
        guardar();
        lista = DecDatos().ObtenerUltimasDeclaraciones();
        QCOMPARE(lista[0].CSDE, codigos[0]);
        QCOMPARE(lista[0].descripcion, QStringLiteral("R1"));
        QCOMPARE(lista[1].CSDE, codigos[5]);
    }

    void existeContribuyente()
    {
        const int32_t a = NuevoContribuyente(Dni(20000001), QStringLiteral("ANA"));
        DeclaracionValida();
        DecDatos().CSSU = a;
        guardar();
        const std::optional<Contribuyente> datos = DecDatos().ExisteContribuyente(Dni(20000001));
        QVERIFY(datos.has_value());
        QCOMPARE(datos->CSCO, a);
        QCOMPARE(datos->TIPODNI, QStringLiteral("O"));
        QCOMPARE(datos->DNIC, Dni(20000001));
        QCOMPARE(datos->NOMBREC, QStringLiteral("ANA"));
        QCOMPARE(datos->VIAC, QStringLiteral("CL"));
        QCOMPARE(datos->DOMICILIOC, QStringLiteral("MAYOR"));
        QCOMPARE(datos->NUMEROC, 7);
        QCOMPARE(datos->TIPODOMI, QStringLiteral("N"));
        QCOMPARE(datos->CODPROVC, QStringLiteral("77"));
        QCOMPARE(datos->CODPOSC, QStringLiteral("77001"));
        QCOMPARE(datos->CODMUNC, QStringLiteral("001"));
        QCOMPARE(datos->NUMSP, 1.0);

        // An unknown number: nothing; an empty contributor clears the party.
        QVERIFY(!DecDatos().ExisteContribuyente(Dni(20000002)).has_value());
        QVERIFY(!DecDatos().ExisteContribuyente(QStringLiteral("   ")).has_value());
        DecDatos().CargarSujetoPasivo(Contribuyente());
        QCOMPARE(DecDatos().CSSU, 0);
        QVERIFY(DecDatos().DNISP.isEmpty() && DecDatos().NOMBRESP.isEmpty());
    }

    void cargarContribuyenteSegunEntrada()
    {
        const int32_t sp = NuevoContribuyente(Dni(30000001), QStringLiteral("SUJ"));
        const int32_t tr = NuevoContribuyenteExtranjero(QStringLiteral("P998877"),
                                                         QStringLiteral("TRA"));
        cDecDatos& d = DecDatos();
        Navegacion::RutaDec().modo = Navegacion::Modo::Nuevo;
        d.IniciarNuevo();
        d.CSSU = sp;
        d.CSTRA = tr;
        d.CargarContribuyente(Navegacion::Entrada::Sujeto);
        QCOMPARE(d.NOMBRESP, QStringLiteral("SUJ"));
        QVERIFY(d.NOMBRETR.isEmpty());
        d.CargarContribuyente(Navegacion::Entrada::Transmitente);
        QCOMPARE(d.NOMBRETR, QStringLiteral("TRA"));
        QCOMPARE(d.TIPODOMITR, QStringLiteral("E"));
        QCOMPARE(d.PAISTR, QStringLiteral("FRANCIA"));
        QCOMPARE(d.CODPOSTR, QStringLiteral("75002"));
    }

    void validarDniOficialDelRegistro()
    {
        QVERIFY(DecDatos().ValidarDniOficial(Dni(12345678)));
        QVERIFY(!DecDatos().ValidarDniOficial(QStringLiteral("12345678A")));
    }
};

QTEST_MAIN(TestAlmacen)
#include "test_decl_almacen.moc"
#include "valores/EstadoNavegacion.h"
