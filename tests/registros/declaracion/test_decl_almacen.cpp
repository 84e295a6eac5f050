// The store of returns: every field saved and loaded back, new rows and updates, copies,
// deletion, the counters of the parties after saves and deletions, the recent returns, the
// parties as a return takes them, and bad arrays refused with nothing written.
#include "comun/DeclaracionPrueba.h"

#include "plataforma/Fallo.h"
#include "plataforma/General.h"
#include "registros/declaracion/cDecDatos.h"
#include "servicios/PosicionesContribuyente.h"
#include "servicios/PosicionesDeclaracion.h"
#include "servicios/cContribSvr.h"
#include "servicios/cDeclaSvr.h"
#include "servicios/cPresenSvr.h"

#include <QTest>

namespace C = PosContribuyente;
namespace G = PosGuardarDeclaracion;
namespace L = PosCargarDeclaracion;

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
    int32_t codigo = 0;
    DecDatos().GuardarDeclaracion(DecDatos().DatosGuardar(), codigo);
    return codigo;
}

// Number of returns of a contributor as subject (0) and as transmitter (1).
QPair<int, int> contadores(int32_t csco)
{
    cContribSvr svr;
    svr.mdbmod = mdbmod;
    const Arreglo a = svr.ObtenerNumspNumtr(csco);
    return {a.value(0).toInt(), a.value(1).toInt()};
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
    d.BASEI = 2345678;
    d.BASEIREDUCIDA = 1641974.6;
    d.TIPOIMP = 7;
    d.CUOTA = 114938.22;
    d.DEDUCCION = 72121;
    d.TOTAL = 42817.22;
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
        const Arreglo guardado = DecDatos().DatosGuardar();
        const int32_t codigo = guardar();
        QVERIFY(codigo > 0);

        Navegacion::RutaDec().modo = Navegacion::Modo::Nuevo;

        DecDatos().IniciarNuevo();
        DecDatos().CSDE = codigo;
        Navegacion::RutaDec().modo = Navegacion::Modo::Abrir;
        DecDatos().CargarDeclaracion();
        const cDecDatos& d = DecDatos();
        QCOMPARE(d.CSDE, codigo);
        Arreglo leido = d.DatosGuardar();
        leido[G::CSDE] = 0;
        QCOMPARE(leido.size(), guardado.size());
        for (int i = 0; i < guardado.size(); ++i)
            QVERIFY2(leido[i].toString() == guardado[i].toString(),
                     qPrintable(QStringLiteral("%1: %2 / %3")
                                    .arg(i)
                                    .arg(leido[i].toString(), guardado[i].toString())));
        QCOMPARE(d.BASEIREDUCIDA, 1641974.6);
        QCOMPARE(d.CUOTA, 114938.22);
        QCOMPARE(d.NOMBRESP, QStringLiteral("SUJETO ÑANDÚ"));
        // The presenter's number and name come from the presenter.
        QCOMPARE(d.DNIPR, Dni(11111111));
        QCOMPARE(d.NOMBREPR, QStringLiteral("GESTORIA UNO"));
        // Returns whose subject is this return's transmitter: none yet.
        QCOMPARE(d.DECLASP, 0.0);
    }

    void arregloDeCargaCompleto()
    {
        rellenarTodo(0, 0, 0);
        const int32_t codigo = guardar();
        Arreglo a;
        servidor().CargarDeclaracion(codigo, a);
        QCOMPARE(a.size(), 58);
        QCOMPARE(a[L::CSDE].toInt(), codigo);
        QCOMPARE(a[L::DNIPR].toString(), QString());
        QCOMPARE(a[L::NOMBREPR].toString(), QString());
        QCOMPARE(a[L::DNISP].toString(), QStringLiteral("SP1"));
        QCOMPARE(a[L::NOMPROVSP].toString(), QString());
        QCOMPARE(a[L::NOMMUNTR].toString(), QStringLiteral("PARIS"));
        QCOMPARE(a[L::DECLASP].toDouble(), 0.0);
        // An unknown code gives an empty return.
        Arreglo nada;
        servidor().CargarDeclaracion(codigo + 100, nada);
        QCOMPARE(nada.size(), 58);
        QCOMPARE(nada[L::CSDE].toInt(), 0);
        QCOMPARE(nada[L::MARCA].toString(), QString());
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
        const Arreglo antes = DecDatos().DatosGuardar();
        DecDatos().CSDE = 0;  // what the form does to a copy
        DecDatos().REFERENCIA = QStringLiteral("COPIA");
        const int32_t copia = guardar();
        QVERIFY(copia > original);
        QCOMPARE(FilasDeclaraciones(), 2);
        DecDatos().CSDE = original;
        DecDatos().CargarDeclaracion();
        QCOMPARE(DecDatos().DatosGuardar(), antes);
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
        const int32_t respuesta = guardar();
        QCOMPARE(respuesta, cDeclaSvr::kBorrada);
        QCOMPARE(VigenciaGuardado(respuesta), Vigencia::Borrada);
        QCOMPARE(FilasDeclaraciones(), 0);

        const int32_t nuevo = servidor().GuardarDeclaracion(DecDatos().DatosGuardar());
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

    void arregloMalFormadoNoEscribeNada()
    {
        DeclaracionValida();
        guardar();
        Arreglo corto = DecDatos().DatosGuardar();
        corto.removeLast();
        int32_t codigo = 0;
        QVERIFY_THROWS_EXCEPTION(cFallo, DecDatos().GuardarDeclaracion(corto, codigo));
        Arreglo malo = DecDatos().DatosGuardar();
        malo[G::CILINDRADA] = QStringLiteral("MUCHA");  // the capacity is a number
        QVERIFY_THROWS_EXCEPTION(cFallo, DecDatos().GuardarDeclaracion(malo, codigo));
        Arreglo importe = DecDatos().DatosGuardar();
        importe[G::CSDE] = 1;
        importe[G::BASEI] = QStringLiteral("1.234,50");
        QVERIFY_THROWS_EXCEPTION(cFallo, DecDatos().GuardarDeclaracion(importe, codigo));
        QCOMPARE(FilasDeclaraciones(), 1);
        DecDatos().CSDE = 1;
        DecDatos().CargarDeclaracion();
        QCOMPARE(DecDatos().BASEI, 1500000.0);
        // A number given as text is taken.
        Arreglo texto = DecDatos().DatosGuardar();
        texto[G::CSDE] = 0;
        texto[G::CILINDRADA] = QStringLiteral(" 1598 ");
        DecDatos().GuardarDeclaracion(texto, codigo);
        QVERIFY(codigo > 1);
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
        Arreglo2D lista;
        DecDatos().ObtenerUltimasDeclaraciones(lista);
        QVERIFY(lista.isEmpty());
        QList<int32_t> codigos;
        for (int i = 1; i <= 6; ++i) {
            DeclaracionValida();
            DecDatos().REFERENCIA = QStringLiteral("R%1").arg(i);
            if (i == 5)
                DecDatos().REFERENCIA.clear();
            codigos << guardar();
        }
        DecDatos().ObtenerUltimasDeclaraciones(lista);
        QCOMPARE(lista.size(), 4);
        QCOMPARE(lista[0][0].toInt(), codigos[5]);
        QCOMPARE(lista[0][1].toString(), QStringLiteral("R6"));
        QCOMPARE(lista[1][0].toInt(), codigos[4]);
        QCOMPARE(lista[1][1].toString(), QStringLiteral("GARCIA LOPEZ JUAN"));
        QCOMPARE(lista[3][0].toInt(), codigos[2]);
        // Saving an older return again makes it the most recent.
        DecDatos().CSDE = codigos[0];
        DecDatos().CargarDeclaracion();
        guardar();
        DecDatos().ObtenerUltimasDeclaraciones(lista);
        QCOMPARE(lista[0][0].toInt(), codigos[0]);
        QCOMPARE(lista[0][1].toString(), QStringLiteral("R1"));
        QCOMPARE(lista[1][0].toInt(), codigos[5]);
    }

    void existeContribuyente()
    {
        const int32_t a = NuevoContribuyente(Dni(20000001), QStringLiteral("ANA"));
        DeclaracionValida();
        DecDatos().CSSU = a;
        guardar();
        Arreglo datos;
        bool hay = false;
        DecDatos().ExisteContribuyente(Dni(20000001), datos, hay);
        QVERIFY(hay);
        QCOMPARE(datos.size(), 19);
        QCOMPARE(datos[C::CSCO].toInt(), a);
        QCOMPARE(datos[C::TIPODNI].toString(), QStringLiteral("O"));
        QCOMPARE(datos[C::DNIC].toString(), Dni(20000001));
        QCOMPARE(datos[C::NOMBREC].toString(), QStringLiteral("ANA"));
        QCOMPARE(datos[C::VIAC].toString(), QStringLiteral("CL"));
        QCOMPARE(datos[C::DOMICILIOC].toString(), QStringLiteral("MAYOR"));
        QCOMPARE(datos[C::NUMEROC].toInt(), 7);
        QCOMPARE(datos[C::TIPODOMI].toString(), QStringLiteral("N"));
        QCOMPARE(datos[C::CODPROVC].toString(), QStringLiteral("77"));
        QCOMPARE(datos[C::CODPOSC].toString(), QStringLiteral("77001"));
        QCOMPARE(datos[C::CODMUNC].toString(), QStringLiteral("001"));
        QCOMPARE(datos[C::NUMSP].toDouble(), 1.0);

        // An unknown number: an array that clears the party.
        DecDatos().ExisteContribuyente(Dni(20000002), datos, hay);
        QVERIFY(!hay);
        QCOMPARE(datos.size(), 19);
        QCOMPARE(datos[C::CSCO].toInt(), 0);
        for (int i = C::TIPODNI; i <= C::NOMMUNC; ++i)
            QVERIFY(datos[i].toString().isEmpty() || datos[i].toString() == QLatin1String("0"));
        DecDatos().CargarSujetoPasivo(datos);
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
        bool bueno = false;
        DecDatos().ValidarDniOficial(Dni(12345678), bueno);
        QVERIFY(bueno);
        DecDatos().ValidarDniOficial(QStringLiteral("12345678A"), bueno);
        QVERIFY(!bueno);
    }
};

QTEST_MAIN(TestAlmacen)
#include "test_decl_almacen.moc"
#include "valores/EstadoNavegacion.h"
