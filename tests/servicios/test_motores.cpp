// The stores of contributors, presenters and returns on either engine, from one test body: the
// embedded store file and an office's database on a real PostgreSQL server. Each test runs
// once per engine (the global data); the server's row is skipped, with the reason, where the
// server cannot run. Saves, loads, lists, the search by a prefix that folds case beyond
// ASCII, deletes, the refusal of a save over a row another connection changed or deleted, and
// the values that keep their types (amounts to the last bit, dates as yyyymmdd numbers).
#include "comun/Entorno.h"
#include "comun/OtraConexion.h"
#include "comun/PartesPrueba.h"
#include "comun/ServidorPostgres.h"

#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "servicios/Almacen.h"
#include "servicios/Conexion.h"
#include "servicios/MotorAlmacenes.h"
#include "servicios/Oficina.h"
#include "servicios/cContribSvr.h"
#include "servicios/cDeclaSvr.h"
#include "servicios/cPresenSvr.h"
#include "servicios/cTraspaso.h"
#include "servicios/postgres/ConexionPostgres.h"

#include <QTest>
#include <cstring>
#include <memory>

namespace {

cContribSvr contribuyentes() { return Almacen<cContribSvr>(); }
cPresenSvr presentadores() { return Almacen<cPresenSvr>(); }
cDeclaSvr declaraciones() { return Almacen<cDeclaSvr>(); }

// The names of the list of contributors, in its order.
QStringList nombresDeLaLista(const QString& prefijoNombre, const QString& prefijoDni = QString())
{
    CriteriosParte criterios;
    if (!prefijoNombre.isEmpty())
        criterios.NOMBRE = prefijoNombre;
    if (!prefijoDni.isEmpty())
        criterios.DNI = prefijoDni;
    QStringList nombres;
    for (const FilaContribuyente& f :
         contribuyentes().dameResultadoBusqueda(criterios, OrdenParte::Nombre))
        nombres << f.NOMBREC;
    return nombres;
}

bool mismosBits(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

}  // namespace

class TestMotores : public QObject {
    Q_OBJECT

    std::unique_ptr<CarpetaDePrueba> m_carpeta;

private slots:
    void initTestCase_data()
    {
        QTest::addColumn<QString>("motor");
        QTest::newRow("embebido") << QStringLiteral("embebido");
        QTest::newRow("servidor") << QStringLiteral("servidor");
    }

    // A new store on the engine of the row: a new file, or a new database on the server laid
    // out by its owner and used by the seats' role.
    void init()
    {
        QFETCH_GLOBAL(QString, motor);
        m_carpeta = std::make_unique<CarpetaDePrueba>();
        GrabarSeams();
        EstablecerIdiomaPrograma(Idioma::Castellano);
        if (motor == QLatin1String("servidor")) {
            ServidorPostgres* servidor = ServidorPostgres::Compartido();
            if (!servidor)
                QSKIP(qPrintable(ServidorPostgres::Motivo()));
            const ServidorPostgres::Base base = servidor->NuevaBase();
            ElegirMotorDeLosAlmacenes(MotorElegido::Servidor);
            ConexionPostgres::RecordarClave(base.CadenaDuenno(), base.claveDuenno);
            QCOMPARE(Oficina::CrearEsquema(base.CadenaDuenno()), Oficina::Creacion::Creada);
            Conexion::Cerrar(base.CadenaDuenno());
            ConexionPostgres::RecordarClave(base.CadenaPuesto(), base.clavePuesto);
            mdbmod = base.CadenaPuesto();
        } else {
            cTraspaso traspaso;
            traspaso.mdbmod = mdbmod;
            traspaso.mdbPath = mdbPath;
            QVERIFY(!traspaso.Traspaso());
        }
    }

    void cleanup()
    {
        Conexion::Cerrar(mdbmod);
        Conexion::Cerrar(mdblec);
        ElegirMotorDeLosAlmacenes(MotorElegido::Embebido);
        m_carpeta.reset();
    }

    void contribuyenteGuardadoCargadoYBorrado()
    {
        Contribuyente c = ContribuyenteNacional(Dni(101), QStringLiteral("MUÑOZ ARANA JON"));
        c.DOMICILIOC = QStringLiteral("NAGUSIA");
        c.NUMEROC = 12;
        const Resultado<Contribuyente> nuevo = contribuyentes().GuardarContribuyente(c);
        QVERIFY(nuevo);
        QVERIFY(nuevo->CSCO > 0);
        QVERIFY(nuevo->VERSION != 0);

        const std::optional<Contribuyente> cargado = contribuyentes().CargarContribuyente(nuevo->CSCO);
        QVERIFY(cargado);
        QCOMPARE(cargado->DNIC, c.DNIC);
        QCOMPARE(cargado->NOMBREC, c.NOMBREC);
        QCOMPARE(cargado->DOMICILIOC, QStringLiteral("NAGUSIA"));
        QCOMPARE(cargado->NUMEROC, 12);
        QCOMPARE(cargado->VERSION, nuevo->VERSION);
        QCOMPARE(contribuyentes().ObtenerCodigoContribuyente(Dni(101)), nuevo->CSCO);

        // An update keeps the code and renews the version.
        Contribuyente cambiado = *cargado;
        cambiado.NOMBREC = QStringLiteral("MUÑOZ ARANA JON ANDER");
        const Resultado<Contribuyente> actualizado = contribuyentes().GuardarContribuyente(cambiado);
        QVERIFY(actualizado);
        QCOMPARE(actualizado->CSCO, nuevo->CSCO);
        QVERIFY(actualizado->VERSION != nuevo->VERSION);
        QCOMPARE(contribuyentes().CargarContribuyente(nuevo->CSCO)->NOMBREC,
                 QStringLiteral("MUÑOZ ARANA JON ANDER"));

        QVERIFY(contribuyentes().BorrarContribuyente(nuevo->CSCO));
        QVERIFY(!contribuyentes().CargarContribuyente(nuevo->CSCO));
        QCOMPARE(contribuyentes().ObtenerCodigoContribuyente(Dni(101)), 0);
    }

    void numeroRepetidoRechazado()
    {
        QVERIFY(contribuyentes().GuardarContribuyente(
            ContribuyenteNacional(Dni(102), QStringLiteral("ARRIETA LUIS"))));
        // The same number again, in small letters where it has one: the store refuses it and
        // keeps the one it has.
        const Resultado<Contribuyente> otra = contribuyentes().GuardarContribuyente(
            ContribuyenteNacional(Dni(102).toLower(), QStringLiteral("OTRO NOMBRE")));
        QVERIFY(!otra);
        QCOMPARE(nombresDeLaLista(QString()), QStringList{QStringLiteral("ARRIETA LUIS")});
    }

    void listaYBusquedaSinMayusculas()
    {
        NuevoContribuyente(Dni(111), QStringLiteral("MUÑOZ PEREZ ANA"));
        NuevoContribuyente(Dni(112), QStringLiteral("MUGICA LUIS"));
        NuevoContribuyente(Dni(113), QStringLiteral("ÑANDU SL"));
        NuevoContribuyente(Dni(114), QStringLiteral("MUÑOZ_X"));
        NuevoContribuyenteExtranjero(QStringLiteral("X1234567L"), QStringLiteral("ALONSO JUAN"));

        QCOMPARE(nombresDeLaLista(QString()),
                 (QStringList{"ALONSO JUAN", "MUGICA LUIS", "MUÑOZ PEREZ ANA", "MUÑOZ_X", "ÑANDU SL"}));
        // A prefix in small letters, beyond ASCII too.
        QCOMPARE(nombresDeLaLista(QStringLiteral("muñoz")),
                 (QStringList{"MUÑOZ PEREZ ANA", "MUÑOZ_X"}));
        QCOMPARE(nombresDeLaLista(QStringLiteral("ñ")), QStringList{"ÑANDU SL"});
        QCOMPARE(nombresDeLaLista(QStringLiteral("mu")).size(), 3);
        // "_" and "%" are characters like any other.
        QCOMPARE(nombresDeLaLista(QStringLiteral("muñoz_")), QStringList{"MUÑOZ_X"});
        QCOMPARE(nombresDeLaLista(QStringLiteral("m%")), QStringList());
        // By the start of the number, whatever its case.
        QCOMPARE(nombresDeLaLista(QString(), QStringLiteral("x12")), QStringList{"ALONSO JUAN"});
    }

    void presentadorGuardadoCargadoYBorrado()
    {
        const Resultado<Presentador> nuevo = presentadores().GuardarPresentador(
            PresentadorValido(Dni(201), QStringLiteral("GESTORIA ÑOÑO SL")));
        QVERIFY(nuevo);
        QVERIFY(nuevo->CSPR > 0);
        const std::optional<Presentador> cargado = presentadores().CargarPresentador(nuevo->CSPR);
        QVERIFY(cargado);
        QCOMPARE(cargado->NOMBREP, QStringLiteral("GESTORIA ÑOÑO SL"));
        QCOMPARE(presentadores().ObtenerCodigoPresentador(Dni(201)), nuevo->CSPR);

        CriteriosParte criterios;
        criterios.NOMBRE = QStringLiteral("gestoria ño");
        const QList<FilaPresentador> filas =
            presentadores().dameResultadoBusqueda(criterios, OrdenParte::Nombre);
        QCOMPARE(filas.size(), 1);
        QCOMPARE(filas[0].NOMBREP, QStringLiteral("GESTORIA ÑOÑO SL"));

        QVERIFY(presentadores().BorrarPresentador(nuevo->CSPR));
        QVERIFY(!presentadores().CargarPresentador(nuevo->CSPR));
    }

    void declaracionConSusTipos()
    {
        const int32_t sujeto = NuevoContribuyente(Dni(301), QStringLiteral("ZUBIRI ANE"));
        Declaracion d;
        d.REFERENCIA = QStringLiteral("Ref-ñ1");
        d.CSSU = sujeto;
        d.FECHAD = 20240229;
        d.MARCA = QStringLiteral("SEAT");
        d.OPERACION = QStringLiteral("A01");
        // Amounts whose last bits a float of 32 bits or a decimal type would lose.
        d.BASEI = Importe(1234567.0 / 3.0);
        d.TIPOIMP = 4;
        d.CUOTA = Importe(0.1 + 0.2);
        d.TOTAL = Importe(1e15 + 0.5);
        d.DNISP = Dni(301);
        d.NOMBRESP = QStringLiteral("ZUBIRI ANE");
        const Resultado<Declaracion> guardada = declaraciones().GuardarDeclaracion(d, ComprobarVersion::No);
        QVERIFY2(guardada, qPrintable(guardada ? QString() : guardada.veredicto().mensaje));
        QVERIFY(guardada->CSDE > 0);

        const std::optional<Declaracion> leida = declaraciones().CargarDeclaracion(guardada->CSDE);
        QVERIFY(leida);
        QCOMPARE(leida->REFERENCIA, d.REFERENCIA);
        QCOMPARE(leida->CSSU, sujeto);
        QCOMPARE(leida->FECHAD, 20240229);
        QVERIFY(mismosBits(leida->BASEI.centimos(), d.BASEI.centimos()));
        QVERIFY(mismosBits(leida->TIPOIMP, d.TIPOIMP));
        QVERIFY(mismosBits(leida->CUOTA.centimos(), d.CUOTA.centimos()));
        QVERIFY(mismosBits(leida->TOTAL.centimos(), d.TOTAL.centimos()));

        // The list by the start of the reference, whatever its case.
        CondicionesDeclaracion condiciones;
        condiciones.REFERENCIA = QStringLiteral("REF-Ñ");
        const QList<FilaDeclaracion> filas = declaraciones().dameResultadoBusqueda(
            condiciones, 1, QStringLiteral("ASC"), Idioma::Castellano);
        QCOMPARE(filas.size(), 1);
        QCOMPARE(filas[0].CSDE, guardada->CSDE);

        QVERIFY(declaraciones().BorrarDeclaracion(guardada->CSDE));
        QVERIFY(!declaraciones().CargarDeclaracion(guardada->CSDE));
    }

    // Another connection (another seat, another copy of the program) saves or deletes the row
    // this one loaded: this one's save is refused with the reason, and the row stays theirs.
    void vigenciaFrenteAOtraConexion()
    {
        const int32_t csco = NuevoContribuyente(Dni(401), QStringLiteral("LARRAÑAGA IKER"));
        Contribuyente mio = *contribuyentes().CargarContribuyente(csco);

        QVERIFY(EnOtraConexion([csco] {
            Contribuyente suyo = *contribuyentes().CargarContribuyente(csco);
            suyo.NOMBREC = QStringLiteral("LARRAÑAGA IKER SUYO");
            if (!contribuyentes().GuardarContribuyente(suyo))
                throw cFallo(1, QStringLiteral("prueba"), QStringLiteral("no guardado"));
        }));
        mio.NOMBREC = QStringLiteral("LARRAÑAGA IKER MIO");
        const Resultado<Contribuyente> cambiada = contribuyentes().GuardarContribuyente(mio);
        QVERIFY(!cambiada);
        QCOMPARE(cambiada.veredicto().vigencia, Vigencia::Cambiada);
        QCOMPARE(contribuyentes().CargarContribuyente(csco)->NOMBREC,
                 QStringLiteral("LARRAÑAGA IKER SUYO"));

        mio = *contribuyentes().CargarContribuyente(csco);
        QVERIFY(EnOtraConexion([csco] {
            if (!contribuyentes().BorrarContribuyente(csco))
                throw cFallo(1, QStringLiteral("prueba"), QStringLiteral("no borrado"));
        }));
        const Resultado<Contribuyente> borrada = contribuyentes().GuardarContribuyente(mio);
        QVERIFY(!borrada);
        QCOMPARE(borrada.veredicto().vigencia, Vigencia::Borrada);
        QVERIFY(!contribuyentes().CargarContribuyente(csco));
    }

    // The same for a return: saved again or deleted by another connection after this one
    // loaded it.
    void vigenciaDeUnaDeclaracion()
    {
        Declaracion d;
        d.REFERENCIA = QStringLiteral("VIG-1");
        d.FECHAD = 20240105;
        d.BASEI = Importe(100000);
        const Resultado<Declaracion> guardada = declaraciones().GuardarDeclaracion(d, ComprobarVersion::No);
        QVERIFY(guardada);
        const int32_t csde = guardada->CSDE;
        Declaracion mia = *declaraciones().CargarDeclaracion(csde);

        QVERIFY(EnOtraConexion([csde] {
            Declaracion suya = *declaraciones().CargarDeclaracion(csde);
            suya.REFERENCIA = QStringLiteral("SUYA");
            if (!declaraciones().GuardarDeclaracion(suya))
                throw cFallo(1, QStringLiteral("prueba"), QStringLiteral("no guardada"));
        }));
        mia.REFERENCIA = QStringLiteral("MIA");
        const Resultado<Declaracion> cambiada = declaraciones().GuardarDeclaracion(mia);
        QVERIFY(!cambiada);
        QCOMPARE(cambiada.veredicto().vigencia, Vigencia::Cambiada);
        QCOMPARE(declaraciones().CargarDeclaracion(csde)->REFERENCIA, QStringLiteral("SUYA"));

        mia = *declaraciones().CargarDeclaracion(csde);
        QVERIFY(EnOtraConexion([csde] {
            if (!declaraciones().BorrarDeclaracion(csde))
                throw cFallo(1, QStringLiteral("prueba"), QStringLiteral("no borrada"));
        }));
        const Resultado<Declaracion> borrada = declaraciones().GuardarDeclaracion(mia);
        QVERIFY(!borrada);
        QCOMPARE(borrada.veredicto().vigencia, Vigencia::Borrada);
        QVERIFY(!declaraciones().CargarDeclaracion(csde));
    }
};

QTEST_GUILESS_MAIN(TestMotores)
#include "test_motores.moc"
