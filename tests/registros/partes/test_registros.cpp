// The program's records of a contributor and a presenter (their defaults, the reset of a new
// one, loading, and the values they give the store) and the state of the two party lists.
#include "catalogo/IdsCatalogo.h"
#include "comun/AlmacenPrueba.h"
#include "comun/PartesPrueba.h"

#include "plataforma/General.h"
#include "catalogo/Catalogo.h"
#include "registros/partes/cConDatos.h"
#include "registros/partes/cConDeclaraciones.h"
#include "registros/partes/cConLista.h"
#include "registros/partes/cPreDatos.h"
#include "registros/partes/cPreLista.h"
#include "servicios/cContribSvr.h"

#include <QtTest>

namespace {

void LlenarContribuyente(cConDatos& c)
{
    c.TIPODNI = "N";
    c.DNIC = "AB123";
    c.NOMBREC = "VIEJO";
    c.TIPODOMI = "E";
    c.VIAC = "AV";
    c.DOMICILIOC = "CALLE";
    c.NUMEROC = 5;
    c.LETRAC = "A";
    c.ESCALERAC = "B";
    c.PISOC = "C";
    c.MANOC = "D";
    c.PAIS = "FRANCIA";
    c.CODPROVC = "";
    c.NOMPROVC = "PARIS";
    c.CODPOSC = "75001";
    c.CODMUNC = "";
    c.NOMMUNC = "PARIS";
    c.NUMSP = 3;
    c.NUMTR = 4;
}

void ComprobarDefectos(const cConDatos& c)
{
    QCOMPARE(c.TIPODNI, QStringLiteral("O"));
    QCOMPARE(c.DNIC, QString());
    QCOMPARE(c.NOMBREC, QString());
    QCOMPARE(c.TIPODOMI, QStringLiteral("N"));
    QCOMPARE(c.VIAC, QStringLiteral("CL"));
    QCOMPARE(c.DOMICILIOC, QString());
    QCOMPARE(c.NUMEROC, 0);
    QCOMPARE(c.LETRAC, QString());
    QCOMPARE(c.ESCALERAC, QString());
    QCOMPARE(c.PISOC, QString());
    QCOMPARE(c.MANOC, QString());
    QCOMPARE(c.PAIS, QString());
    QCOMPARE(c.CODPROVC, QStringLiteral("77"));
    QCOMPARE(c.NOMPROVC, QString());
    QCOMPARE(c.CODPOSC, QString());
    QCOMPARE(c.CODMUNC, QString());
    QCOMPARE(c.NOMMUNC, QString());
    QCOMPARE(c.NUMSP, 0.0);
    QCOMPARE(c.NUMTR, 0.0);
}

}  // namespace

class TestRegistros : public QObject {
    Q_OBJECT

private slots:
    // --- cConDatos ---------------------------------------------------------------------
    void nuevoReiniciaSalvoCodigo()
    {
        cConDatos c;
        LlenarContribuyente(c);
        c.CSCO = 42;
        c.IniciarNuevo();
        ComprobarDefectos(c);
        QCOMPARE(c.CSCO, 42);
    }

    void modoADosVecesYLuegoC()
    {
        cConDatos c;
        c.IniciarNuevo();
        c.NOMBREC = "ESCRITO";
        c.IniciarNuevo();
        ComprobarDefectos(c);
    }

    void instanciaCompartida()
    {
        QCOMPARE(&ConDatos(), &ConDatos());
        QCOMPARE(&PreDatos(), &PreDatos());
        QCOMPARE(&ConLista(), &ConLista());
        QCOMPARE(&PreLista(), &PreLista());
        ConDatos().NOMBREC = "COMPARTIDO";
        QCOMPARE(ConDatos().NOMBREC, QStringLiteral("COMPARTIDO"));
    }

    void guardarYCargarDesdeElRegistro()
    {
        AlmacenDePrueba almacen;
        cConDatos c;
        c.IniciarNuevo();
        c.CSCO = 0;
        c.DNIC = Dni(123);
        c.NOMBREC = "REGISTRO";
        c.DOMICILIOC = "MAYOR";
        c.NUMEROC = 4;
        c.CODPOSC = "77003";
        c.CODMUNC = "3";
        QVERIFY(c.ValidarDatosContribuyente());
        const Resultado<Contribuyente> guardado = c.GuardarContribuyente();
        QVERIFY(guardado);
        const int32_t csco = c.ObtenerCodigoContribuyente(c.DNIC);
        QVERIFY(csco > 0);
        QCOMPARE(guardado->CSCO, csco);
        // The record takes the row's new version, and nothing else of the saved value.
        QVERIFY(c.VERSION != 0);
        QCOMPARE(c.VERSION, guardado->VERSION);
        QCOMPARE(c.CSCO, 0);

        cConDatos l;
        l.CSCO = csco;
        l.CargarContribuyente(csco);
        QCOMPARE(l.DNIC, Dni(123));
        QCOMPARE(l.NOMBREC, QStringLiteral("REGISTRO"));
        QCOMPARE(l.NUMEROC, 4);
        QCOMPARE(l.CODPROVC, QStringLiteral("77"));
        QCOMPARE(l.CODPOSC, QStringLiteral("77003"));
        QCOMPARE(l.CODMUNC, QStringLiteral("003"));
        QCOMPARE(l.TIPODNI, QStringLiteral("O"));
        QCOMPARE(l.TIPODOMI, QStringLiteral("N"));
        QCOMPARE(l.VERSION, c.VERSION);

        // The counters come from the declarations.
        almacen.NuevaDeclaracion(csco, 0);
        l.CargarContribuyente(csco);
        QCOMPARE(l.NUMSP, 1.0);
        QCOMPARE(l.NUMTR, 0.0);

        // The verdict of a duplicate number.
        c.NOMBREC = "OTRO";
        const Resultado<Contribuyente> doble = c.GuardarContribuyente();
        QVERIFY(!doble);
        QCOMPARE(doble.veredicto().id, kIdAltaContribuyenteDniExistente);
        QCOMPARE(doble.veredicto().mensaje, Texto(kIdAltaContribuyenteDniExistente));
        QCOMPARE(doble.veredicto().vigencia, Vigencia::Vigente);
    }

    void provinciaUnoLeeCeroUno()
    {
        // A store that holds the province as 1: it reads "01"; municipality and postal code
        // pass through untouched.
        AlmacenDePrueba almacen;
        almacen.Ejecutar(QStringLiteral(
            "INSERT INTO CONTRIBUYENTES (CSCO, TIPODNI, DNIC, NOMBREC, TIPODOMI, CODPROVC, "
            "CODPOSC, CODMUNC, NOMMUNC) VALUES (7, 'O', '12345678Z', 'ALAVES', 'N', '1', '1001', "
            "'5', 'VITORIA')"));
        cConDatos c;
        c.CSCO = 7;
        c.CargarContribuyente(7);
        QCOMPARE(c.CODPROVC, QStringLiteral("01"));
        QCOMPARE(c.CODPOSC, QStringLiteral("1001"));
        QCOMPARE(c.CODMUNC, QStringLiteral("5"));
        QCOMPARE(c.NOMMUNC, QStringLiteral("VITORIA"));
    }

    void cargarCodigoInexistenteNoToca()
    {
        AlmacenDePrueba almacen;
        cConDatos c;
        LlenarContribuyente(c);
        c.CargarContribuyente(999);
        QCOMPARE(c.NOMBREC, QStringLiteral("VIEJO"));
        QCOMPARE(c.NUMSP, 3.0);
    }

    void borrarCodigoInexistenteNoSeInforma()
    {
        AlmacenDePrueba almacen;
        GrabarSeams();
        cConDatos c;
        c.CSCO = 4242;
        // Nothing is deleted, and nothing is reported: a record cannot show a box (this test
        // links no widget).
        c.BorrarContribuyente();
        QCOMPARE(almacen.Filas(QStringLiteral("CONTRIBUYENTES")), 0);
    }

    void borrarDesdeElRegistro()
    {
        AlmacenDePrueba almacen;
        cConDatos c;
        c.IniciarNuevo();
        c.DNIC = Dni(124);
        c.NOMBREC = "BORRAR";
        c.DOMICILIOC = "X";
        c.CODPOSC = "77001";
        c.CODMUNC = "1";
        QVERIFY(c.GuardarContribuyente());
        c.CSCO = c.ObtenerCodigoContribuyente(c.DNIC);
        c.BorrarContribuyente();
        QCOMPARE(almacen.Filas(QStringLiteral("CONTRIBUYENTES")), 0);
    }

    void veredictoDeValidacion()
    {
        // The first rule broken, with its message and the field to focus.
        cConDatos c;
        c.IniciarNuevo();
        c.DNIC = Dni(125);
        c.NOMBREC = "VALIDAR";
        c.DOMICILIOC = "MAYOR";
        c.CODPOSC = "48001";
        c.CODMUNC = "1";
        const Resultado<void> r = c.ValidarDatosContribuyente();
        QVERIFY(!r);
        QCOMPARE(r.veredicto().id, kIdProvinciaYCodigoPostalNoCoinciden);
        QCOMPARE(r.veredicto().mensaje,
                 QStringLiteral("El Código de Provincia y el Código Postal no coinciden"));
        QCOMPARE(r.veredicto().control, QStringLiteral("txtcodposc"));
        c.CODPOSC = "77001";
        QVERIFY(c.ValidarDatosContribuyente());
    }

    void importarSinErroresDesdeElRegistro()
    {
        AlmacenDePrueba almacen;
        QVERIFY(ConDatos().ValidarDatosImportar(ImportacionNacional()).isEmpty());
        LineaContribuyente malo = ImportacionNacional();
        malo.NOMBREC = QString(40, QLatin1Char(' '));
        QCOMPARE(ConDatos().ValidarDatosImportar(malo),
                 (QList<HallazgoImportacion>{{CampoContribuyente::NOMBREC, kIdImportarNombreVacio}}));
    }

    void hallazgoDeImportacion()
    {
        // A finding names its field and the message of the catalogue, in the language in use.
        AlmacenDePrueba almacen;
        LineaContribuyente l = ImportacionNacional();
        l.NOMMUNC = QStringLiteral("ARBELGAIN").leftJustified(25);
        const QList<HallazgoImportacion> h = ConDatos().ValidarDatosImportar(l);
        QCOMPARE(h.size(), 1);
        QCOMPARE(h[0].campo, CampoContribuyente::NOMMUNC);
        QCOMPARE(Texto(h[0].id),
                 QStringLiteral("Al ser la provincia Arbelia, no se admite el nombre de municipio"));
    }

    void valorDelRegistro()
    {
        // The record's value is every field of the contributor, and only those.
        cConDatos c;
        LlenarContribuyente(c);
        c.CSCO = 9;
        Contribuyente v;
        v.CSCO = 9;
        v.TIPODNI = "N";
        v.DNIC = "AB123";
        v.NOMBREC = "VIEJO";
        v.TIPODOMI = "E";
        v.VIAC = "AV";
        v.DOMICILIOC = "CALLE";
        v.NUMEROC = 5;
        v.LETRAC = "A";
        v.ESCALERAC = "B";
        v.PISOC = "C";
        v.MANOC = "D";
        v.PAIS = "FRANCIA";
        v.CODPROVC = "";
        v.NOMPROVC = "PARIS";
        v.CODPOSC = "75001";
        v.CODMUNC = "";
        v.NOMMUNC = "PARIS";
        v.NUMSP = 3;
        v.NUMTR = 4;
        QCOMPARE(c.valor(), v);
    }

    // --- cPreDatos ---------------------------------------------------------------------
    void presentadorModoA()
    {
        cPreDatos p;
        p.CSPR = 5;
        p.DNIP = "X";
        p.TELEFONOP = "945000000";
        p.CODPROVP = "48";
        p.VIAP = "AV";
        p.NUMEROP = 3;
        p.IniciarNuevo();
        QCOMPARE(p.DNIP, QString());
        QCOMPARE(p.TELEFONOP, QString());
        QCOMPARE(p.CODPROVP, QStringLiteral("77"));
        QCOMPARE(p.VIAP, QStringLiteral("CL"));
        QCOMPARE(p.NUMEROP, 0);
        QCOMPARE(p.CSPR, 5);
    }

    void presentadorCargarFormatos()
    {
        AlmacenDePrueba almacen;
        almacen.Ejecutar(QStringLiteral(
            "INSERT INTO PRESENTADORES (CSPR, DNIP, NOMBREP, CODPROVP, CODPOSP, CODMUNP, NOMMUNP, "
            "TELEFONOP) VALUES (3, '12345678Z', 'P', '1', '1001', '', 'VITORIA', '0')"));
        cPreDatos p;
        p.TELEFONOP = "ANTES";
        p.CargarPresentador(3);
        QCOMPARE(p.CODPROVP, QStringLiteral("01"));
        QCOMPARE(p.CODPOSP, QStringLiteral("01001"));
        QCOMPARE(p.TELEFONOP, QString());
        QCOMPARE(p.NOMMUNP, QStringLiteral("VITORIA"));
    }

    void presentadorDesdeElRegistro()
    {
        AlmacenDePrueba almacen;
        cPreDatos p;
        p.IniciarNuevo();
        p.CSPR = 0;
        p.DNIP = Dni(150);
        p.NOMBREP = "GESTOR";
        p.DOMICILIOP = "MAYOR";
        p.CODMUNP = "2";
        p.CODPOSP = "77002";
        p.TELEFONOP = "94512345";
        QCOMPARE(p.ValidarDatosPresentador().veredicto().id, kIdTelefonoNueveCifras);
        QCOMPARE(p.ValidarDatosPresentador().veredicto().control, QStringLiteral("txttelefonop"));
        p.TELEFONOP = "";
        QCOMPARE(p.ValidarDatosPresentador().veredicto().id, kIdTelefonoVacio);
        p.TELEFONOP = "945123456";
        QVERIFY(p.ValidarDatosPresentador());
        QVERIFY(p.GuardarPresentador());
        p.CSPR = p.ObtenerCodigoPresentador(p.DNIP);
        QVERIFY(p.CSPR > 0);
        almacen.NuevaDeclaracion(0, 0, p.CSPR);
        QCOMPARE(p.NDeclaPresentador(), int16_t(1));
        p.DNIP = Dni(151);
        const Resultado<Presentador> nombrado = p.GuardarPresentador();
        QVERIFY(!nombrado);
        QCOMPARE(nombrado.veredicto().id, kIdDniPresentadorEnDeclaraciones);
        QCOMPARE(p.DNIP, Dni(151));  // the record keeps what was typed
        p.BorrarPresentador();
        QCOMPARE(almacen.Filas(QStringLiteral("PRESENTADORES")), 1);
        cPreDatos l;
        l.CargarPresentador(p.CSPR);
        QCOMPARE(l.DNIP, Dni(150));
        QCOMPARE(l.CODMUNP, QStringLiteral("002"));
        // A wrong check character is told last, with the number's field.
        l.DNIP = "12345678A";
        QCOMPARE(l.ValidarDatosPresentador().veredicto().id, kIdNifSinDigitoControl);
        QCOMPARE(l.ValidarDatosPresentador().veredicto().control, QStringLiteral("txtdnip"));
    }

    // --- cConLista, cPreLista ------------------------------------------------------------
    // --- cConDeclaraciones, cPreDeclaraciones --------------------------------------------
    void declaracionesDeLaParteDada()
    {
        // A fresh list shows the party it is given; one coming back keeps its own party,
        // order and selection.
        cConDeclaraciones c;
        c.CSCO = 3;
        c.ORDEN = 2;
        c.ENTRADA = Navegacion::EntradaLista::Abrir;
        c.IniciarLista(9);
        QCOMPARE(c.CSCO, 9);
        QCOMPARE(c.ORDEN, uint8_t(1));
        c.ORDEN = 2;
        c.ENTRADA = Navegacion::EntradaLista::Vuelta;
        c.IniciarLista(4);
        QCOMPARE(c.CSCO, 9);
        QCOMPARE(c.ORDEN, uint8_t(2));
        cPreDeclaraciones p;
        p.ENTRADA = Navegacion::EntradaLista::Abrir;
        p.IniciarLista(7);
        QCOMPARE(p.CSPR, 7);
        p.ENTRADA = Navegacion::EntradaLista::Vuelta;
        p.IniciarLista(5);
        QCOMPARE(p.CSPR, 7);
    }

    void iniciarListaPorEntrada()
    {
        cConLista l;
        l.ORDEN = 2;
        l.CSCO = 7;
        l.NUMSP = 1;
        l.NUMCONTRISEL = 3;
        l.TABLASELECCION = TablaCriterios{cCriterio{"1", "GAR"}};
        l.BUSQUEDA = "B";
        l.ENTRADA = Navegacion::EntradaLista::Vuelta;
        l.MODO = Navegacion::ModoLista::Eliminar;
        l.IniciarLista();
        // Coming back keeps order, criteria and selection, in open mode.
        QCOMPARE(l.ORDEN, uint8_t(2));
        QCOMPARE(l.CSCO, 7);
        QVERIFY(l.HayCriterios());
        QCOMPARE(Navegacion::Letras(l.MODO), QStringLiteral("C"));
        QCOMPARE(l.BUSQUEDA, QStringLiteral("N"));
        l.ENTRADA = Navegacion::EntradaLista::Eliminar;
        l.IniciarLista();
        QCOMPARE(Navegacion::Letras(l.MODO), QStringLiteral("E"));
        QCOMPARE(l.ORDEN, uint8_t(1));
        QCOMPARE(l.CSCO, 0);
        QCOMPARE(l.NUMSP, 0);
        QCOMPARE(l.NUMCONTRISEL, 0);
        QVERIFY(!l.TABLASELECCION.has_value());
        QCOMPARE(l.SELECCIONACTUAL, QStringLiteral("0"));
        l.ENTRADA = Navegacion::EntradaLista::Abrir;
        l.IniciarLista();
        QCOMPARE(Navegacion::Letras(l.MODO), QStringLiteral("C"));
    }

    void criteriosDniYLuegoNombre()
    {
        // Typing a prefix under DNI and then under the name: two criteria, the order of the
        // second.
        cConLista l;
        l.ENTRADA = Navegacion::EntradaLista::Abrir;
        l.IniciarLista();
        QCOMPARE(l.CriteriosBusqueda(), CriteriosParte{});
        l.CambiarBusqueda();
        QCOMPARE(l.BUSQUEDA, QStringLiteral("B"));
        // In the search state a click on column 3 does nothing; on DNI it opens its box.
        QVERIFY(!l.ElegirColumnaBusqueda(3));
        QCOMPARE(l.SELECCIONACTUAL, QStringLiteral("0"));
        QVERIFY(l.ElegirColumnaBusqueda(2));
        QCOMPARE(l.SELECCIONACTUAL, QStringLiteral("2"));
        l.AnotarBusqueda("123");
        QCOMPARE(l.ORDEN, uint8_t(2));
        QCOMPARE(l.SELECCIONACTUAL, QStringLiteral("0"));
        l.SELECCIONACTUAL = "1";
        l.AnotarBusqueda("GAR");
        QCOMPARE(l.TABLASELECCION->size(), 2);
        QCOMPARE(l.ORDEN, uint8_t(1));
        QCOMPARE(l.CriteriosBusqueda(), (CriteriosParte{QStringLiteral("GAR"), QStringLiteral("123")}));
        // Typing again under DNI replaces its criterion; an emptied one stays, as "".
        l.SELECCIONACTUAL = "2";
        l.AnotarBusqueda("");
        QCOMPARE(l.TABLASELECCION->size(), 2);
        QCOMPARE(l.CriteriosBusqueda(), (CriteriosParte{QStringLiteral("GAR"), QString()}));
        QCOMPARE(l.ORDEN, uint8_t(2));
        // A column other than name and DNI takes no criterion.
        l.SELECCIONACTUAL = "3";
        l.AnotarBusqueda("CALLE");
        QCOMPARE(l.TABLASELECCION->size(), 2);
        QCOMPARE(l.ORDEN, uint8_t(2));
        // Back to the result state with the criteria typed.
        l.CambiarBusqueda();
        QCOMPARE(l.BUSQUEDA, QStringLiteral("N"));
        QVERIFY(l.HayCriterios());
    }

    void buscarYTodos()
    {
        cConLista l;
        l.ENTRADA = Navegacion::EntradaLista::Vuelta;
        l.CSCO = 5;
        l.NUMSP = 1;
        l.NUMTR = 2;
        l.NUMCONTRISEL = 9;
        l.CambiarBusqueda();
        QCOMPARE(l.BUSQUEDA, QStringLiteral("B"));
        QCOMPARE(l.CSCO, 0);
        QCOMPARE(l.NUMCONTRISEL, 0);
        QCOMPARE(l.NUMSP, 0);
        QCOMPARE(l.NUMTR, 0);
        QCOMPARE(Navegacion::Letras(l.ENTRADA), QString());
        QVERIFY(!l.HayCriterios());
        l.SELECCIONACTUAL = "2";
        l.AnotarBusqueda("1");
        l.Todos();
        QCOMPARE(l.BUSQUEDA, QStringLiteral("N"));
        QVERIFY(!l.HayCriterios());
        QCOMPARE(l.ORDEN, uint8_t(1));
        QCOMPARE(l.SELECCIONACTUAL, QStringLiteral("0"));
    }

    void ordenarPorCabecera()
    {
        cConLista l;
        l.Seleccionar(4, 1, 2);
        QVERIFY(!l.OrdenarPor(3));  // "Calle" does nothing
        QCOMPARE(l.CSCO, 4);
        QCOMPARE(l.ORDEN, uint8_t(1));
        QVERIFY(l.OrdenarPor(2));   // "DNI" reorders and loses the selection
        QCOMPARE(l.ORDEN, uint8_t(2));
        QCOMPARE(l.CSCO, 0);
        QCOMPARE(l.NUMSP, 0);
        QCOMPARE(l.NUMTR, 0);
    }

    void listaLlamaAlAlmacen()
    {
        AlmacenDePrueba almacen;
        cContribSvr s;
        s.mdbmod = mdbmod;
        s.GuardarContribuyente(ContribuyenteNacional(Dni(200), QStringLiteral("ZURITA")));
        s.GuardarContribuyente(ContribuyenteNacional(Dni(201), QStringLiteral("ABAD")));
        s.GuardarContribuyente(ContribuyenteNacional(Dni(202), QStringLiteral("ABELLA")));
        cConLista l;
        l.ENTRADA = Navegacion::EntradaLista::Abrir;
        l.IniciarLista();
        QList<FilaContribuyente> d = l.CargarContribuyentes();
        QCOMPARE(d.size(), 3);
        QCOMPARE(l.NUMCONTRISEL, 3);
        QCOMPARE(d[0].NOMBREC, QStringLiteral("ABAD"));
        l.SELECCIONACTUAL = "1";
        l.AnotarBusqueda("AB");
        QCOMPARE(l.CargarContribuyentes().size(), 2);
        QCOMPARE(l.NUMCONTRISEL, 2);
        l.OrdenarPor(2);
        d = l.CargarContribuyentes();
        QCOMPARE(d[0].DNIC, Dni(201));
        l.SELECCIONACTUAL = "1";
        l.AnotarBusqueda("NADIE");
        QCOMPARE(l.CargarContribuyentes().size(), 0);
        QCOMPARE(l.NUMCONTRISEL, 0);

        // Deleting the contributors of the list one by one leaves it empty (the panel then
        // closes).
        l.Todos();
        d = l.CargarContribuyentes();
        QCOMPARE(d.size(), 3);
        for (const FilaContribuyente& f : d) {
            ConDatos().CSCO = f.CSCO;
            ConDatos().BorrarContribuyente();
        }
        QCOMPARE(l.CargarContribuyentes().size(), 0);
        QCOMPARE(l.NUMCONTRISEL, 0);
    }

    void listaDePresentadores()
    {
        AlmacenDePrueba almacen;
        cPreDatos p;
        p.IniciarNuevo();
        p.DNIP = Dni(300);
        p.NOMBREP = "GESTORA";
        p.DOMICILIOP = "X";
        p.CODMUNP = "1";
        p.CODPOSP = "77001";
        p.TELEFONOP = "945000001";
        QVERIFY(p.GuardarPresentador());
        cPreLista l;
        l.ENTRADA = Navegacion::EntradaLista::Abrir;
        l.IniciarLista();
        const QList<FilaPresentador> d = l.CargarPresentadores();
        QCOMPARE(d.size(), 1);
        QCOMPARE(l.NUMPRESENSEL, 1);
        l.Seleccionar(d[0].CSPR, d[0].NUMDECLARACIONES);
        QCOMPARE(l.CSPR, PreDatos().ObtenerCodigoPresentador(Dni(300)));
        QCOMPARE(l.NUMDECLARACIONES, 0);
        l.CambiarBusqueda();
        QCOMPARE(l.CSPR, 0);
        QCOMPARE(l.NUMPRESENSEL, 0);
        QVERIFY(!l.ElegirColumnaBusqueda(5));
        QVERIFY(l.ElegirColumnaBusqueda(2));
        l.AnotarBusqueda("0000030");
        l.CambiarBusqueda();
        QCOMPARE(l.CriteriosBusqueda(), (CriteriosParte{std::nullopt, QStringLiteral("0000030")}));
        QCOMPARE(l.CargarPresentadores().size(), 1);
        QVERIFY(!l.OrdenarPor(5));
        QVERIFY(l.OrdenarPor(1));
        l.Todos();
        QVERIFY(!l.HayCriterios());
        l.ENTRADA = Navegacion::EntradaLista::Eliminar;
        l.IniciarLista();
        QCOMPARE(Navegacion::Letras(l.MODO), QStringLiteral("E"));
    }
};

QTEST_GUILESS_MAIN(TestRegistros)
#include "test_registros.moc"
