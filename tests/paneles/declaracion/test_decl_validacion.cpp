// The whole-return check as the declaration form runs it: what the store judges, the message
// and the control that takes the focus for each rule, the check of the parties' tax numbers, and the
// date of accrual with what a new date does to the operation, in both languages.
#include "catalogo/IdsCatalogo.h"
#include "comun/DeclaracionPrueba.h"

#include "registros/nucleo/CEntrada.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "paneles/declaracion/ComprobacionesDeclaracion.h"
#include "paneles/dialogos/Mensaje.h"
#include "catalogo/Catalogo.h"
#include "registros/declaracion/Calculo.h"
#include "registros/declaracion/FechaDevengo.h"
#include "registros/declaracion/Validacion.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cOperacion.h"
#include "valores/EstadoNavegacion.h"
#include "valores/cFecha.h"

#include <QTest>

namespace {
const QString kTitulo = QStringLiteral("Declaración");

void euskera(bool si)
{
    EstablecerIdiomaPrograma(si ? Idioma::Euskera : Idioma::Castellano);
}
}  // namespace

class TestValidacion : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<AlmacenDePrueba> m_almacen;

private slots:
    void init()
    {
        m_almacen = std::make_unique<AlmacenDePrueba>();
        Entrada().FECMIN = 19930101;
        Entrada().FECMAX = 20271231;
        DeclaracionValida();
        MensajeSeam::limpiar();
    }

    void cleanup()
    {
        euskera(false);
        m_almacen.reset();
    }

    // --- The array ---------------------------------------------------------------------------

    void datosQueJuzgaElAlmacen()
    {
        cDecDatos& d = DecDatos();
        d.CODPROVSP = QStringLiteral("1");
        d.CODPOSSP = QStringLiteral("1001");
        d.CODPROVTR = QStringLiteral("8");
        d.CODPOSTR = QStringLiteral("8001");
        const DatosValidacion a = DatosDeValidacion(true);
        QCOMPARE(a.MARCA, d.MARCA);
        QCOMPARE(a.MODELO, d.MODELO);
        QCOMPARE(a.TIPO, d.TIPO);
        QCOMPARE(a.BASTIDOR, d.BASTIDOR);
        QCOMPARE(a.CLASIFICACION, 1000.0);
        QCOMPARE(a.CILINDRADA, 1598.0);
        QCOMPARE(a.OPERACION, QStringLiteral("T2"));
        QCOMPARE(a.BASEI, 1500000.0);
        QCOMPARE(a.TIPOIMP, 4.75);
        QCOMPARE(a.TASA, 0.0);
        QCOMPARE(a.DNISP, d.DNISP);
        QCOMPARE(a.CODPROVSP, QStringLiteral("01"));
        QCOMPARE(a.CODPOSSP, QStringLiteral("01001"));
        QCOMPARE(a.TIPODNITR, QStringLiteral("O"));
        QCOMPARE(a.TIPODOMITR, QStringLiteral("N"));
        QCOMPARE(a.CODPROVTR, QStringLiteral("08"));
        QCOMPARE(a.CODPOSTR, QStringLiteral("08001"));
        QCOMPARE(a.MOTOR, QStringLiteral("G"));
        // A foreign address passes its postal code as typed.
        d.TIPODOMITR = QStringLiteral("E");
        d.CODPOSTR = QStringLiteral("8001");
        QCOMPARE(DatosDeValidacion(true).CODPOSTR, QStringLiteral("8001"));
        d.CODPOSTR = QStringLiteral("SW1A 1AA");
        QCOMPARE(DatosDeValidacion(true).CODPOSTR, QStringLiteral("SW1A 1AA"));
    }

    void tipoAbiertoLlevaLaTasaLibre()
    {
        DecDatos().OPERACION = QStringLiteral("TL");
        DecDatos().ObtenerDatosOperacion(false);
        const DatosValidacion a = DatosDeValidacion(false);
        QVERIFY(EsTasaLibre(a.TASA));
        QCOMPARE(a.TASAMINIMA, 0.0);
        QCOMPARE(a.TASAMAXIMA, 14.75);
        QCOMPARE(DatosDeValidacion(true).TASA, 0.0);
    }

    // --- Messages and focus ------------------------------------------------------------------

    void mapaDeReglas_data()
    {
        QTest::addColumn<int>("numero");
        QTest::addColumn<int>("id");
        QTest::addColumn<QString>("control");
        QTest::addColumn<int>("pestana");
        const int n = kPestanaNinguna, s = kPestanaSujeto, t = kPestanaTransmitente;
        const struct {
            int numero, id;
            const char* control;
            int pestana;
        } tabla[] = {
            {1, kIdMarcaVacia, "txtmarca", n}, {2, kIdModeloVacio, "txtmodelo", n},
            {3, kIdTipoVacio, "txttipo", n},
            {4, kIdBastidorVacio, "txtbastidor", n},
            {5, kIdClasificacionVacia, "txtclasificacion", n},
            {6, kIdCilindradaVacia, "txtcilindrada", n}, {7, kIdOperacionVacia, "txtoperacion", n},
            {8, kIdBaseImponibleVacia, "txtbasei", n},
            {10, kIdDniCifErroneoODigitoControl, "txtdnisp", s},
            {11, kIdNombreSujetoPasivoVacio, "txtnombresp", s},
            {12, kIdSiglasSujetoPasivoVacias, "txtviasp", s},
            {13, kIdDomicilioSujetoPasivoVacio, "txtdomiciliosp", s},
            {14, kIdCodigoMunicipioSujetoPasivoVacio, "txtcodmunsp", s},
            {15, kIdMunicipioSujetoPasivoVacio, "txtnommunsp", s},
            {16, kIdCodigoPostalSujetoPasivoCero, "txtcodpossp", s},
            {17, kIdProvinciaYCodigoPostalSujetoPasivoNoCoinciden, "txtcodpossp", s},
            {18, kIdCodigoPostalSujetoPasivoTresUltimosCero, "txtcodpossp", s},
            {19, kIdDniCifTransmitenteErroneo, "txtdnitr", t},
            {20, kIdDniTransmitenteVacio, "txtdnitr", t},
            {21, kIdNombreTransmitenteVacio, "txtnombretr", t},
            {22, kIdSiglasTransmitenteVacias, "txtviatr", t},
            {23, kIdDomicilioTransmitenteVacio, "txtdomiciliotr", t},
            {24, kIdPaisTransmitenteVacio, "txtpaistr", t},
            {25, kIdProvinciaYCodigoPostalTransmitenteNoCoinciden, "txtcodpostr", t},
            {26, kIdCodigoPostalTransmitenteCincoCifras, "txtcodpostr", t},
            {27, kIdCodigoPostalTransmitenteTresUltimosCero, "txtcodpostr", t},
            {28, kIdCodigoPostalTransmitenteCero, "txtcodpostr", t},
            {29, kIdProvinciaTransmitenteVacia, "txtnomprovtr", t},
            {30, kIdMunicipioTransmitenteVacio, "txtnommuntr", t},
            {31, kIdCodigoProvinciaTransmitenteVacio, "txtcodprovtr", t},
            {32, kIdCodigoMunicipioTransmitenteVacio, "txtcodmuntr", t},
            {33, kIdOperacionNoP6P7, "txtcilindrada", n},
            {34, kIdOperacionNoP6P7Duplicada, "txtcilindrada", n},
            {35, kIdOperacionNoP6BP7B, "txtcilindrada", n},
            {36, kIdOperacionNoP6BP7BDuplicada, "txtcilindrada", n},
            {37, kIdDniSujetoPasivoVacio, "txtdnisp", s},
            {38, kIdOperacionN43TnTe, "txtoperacion", n},
            {40, kIdOperacionN43T1aT5Te, "txtoperacion", n},
        };
        for (const auto& f : tabla)
            QTest::newRow(qPrintable(QString::number(f.numero)))
                << f.numero << f.id << QString::fromLatin1(f.control) << f.pestana;
    }

    void mapaDeReglas()
    {
        QFETCH(int, numero);
        QFETCH(int, id);
        QFETCH(QString, control);
        QFETCH(int, pestana);
        const Veredicto v = VeredictoDeclaracion(numero, QString());
        QCOMPARE(v.mensaje, Texto(id));
        QCOMPARE(v.control, control);
        QCOMPARE(v.pestana, pestana);
    }

    void mensajesCompuestos()
    {
        Operacion().setT_MIN(7);
        Operacion().setT_MAX(12.5);
        Veredicto v = VeredictoDeclaracion(9, QString());
        QCOMPARE(v.mensaje,
                 QStringLiteral("El Tipo Impositivo no puede ser menor que 7 ni mayor que 12,5\n"));
        QCOMPARE(v.control, QStringLiteral("txttipoimp"));
        v = VeredictoDeclaracion(39, QStringLiteral("Tipo 12 % con baja"));
        QCOMPARE(v.mensaje,
                 QStringLiteral("La operación no puede ser \"Tipo 12 % con baja\" si el año de "
                                "devengo es superior al 2006 y la cilindrada es superior a "
                                "2499CC"));
        QCOMPARE(v.control, QStringLiteral("txtoperacion"));
        euskera(true);
        v = VeredictoDeclaracion(39, QStringLiteral("X"));
        QCOMPARE(v.mensaje, Texto(kIdOperacionNoPuedeSer) + QStringLiteral("X")
                 + Texto(kIdOperacionAnio2006Cilindrada2499));
        QVERIFY(v.mensaje.startsWith(QStringLiteral("Eragiketa ez daiteke")));
    }

    void numerosSinMensaje()
    {
        for (int n : {0, 41, 57, -1}) {
            const Veredicto v = VeredictoDeclaracion(n, QString());
            QVERIFY(v.mensaje.isEmpty());
            QVERIFY(v.control.isEmpty());
        }
    }

    void declaracionValidaPasaSinMensaje()
    {
        const Veredicto v = ValidarCampos(true, kTitulo, Operacion().DESCRIP);
        QVERIFY(v.vacio());
        QVERIFY(MensajeSeam::registro().isEmpty());
    }

    void soloSeDiceLaPrimeraRegla()
    {
        DecDatos().MARCA.clear();
        DecDatos().DNISP = QStringLiteral("12345678A");
        const Declaracion antes = DecDatos().valor();
        const Veredicto v = ValidarCampos(true, kTitulo, Operacion().DESCRIP);
        QVERIFY(!v.vacio());
        QCOMPARE(ReglaDe(v), 1);
        QCOMPARE(v.control, QStringLiteral("txtmarca"));
        QCOMPARE(MensajeSeam::registro().size(), 1);
        const auto& m = MensajeSeam::registro().first();
        QCOMPARE(m.texto, QStringLiteral("El campo Marca debe tener algún valor"));
        QCOMPARE(m.titulo, kTitulo);
        QCOMPARE(m.icono(), int(vb::Information));
        // Nothing in the record changes during validation.
        QVERIFY(DecDatos().valor() == antes);
    }

    void reglaDelTransmitenteLlevaSuPestana()
    {
        DecDatos().NOMBRETR.clear();
        const Veredicto v = ValidarCampos(true, kTitulo, Operacion().DESCRIP);
        QVERIFY(!v.vacio());
        QCOMPARE(ReglaDe(v), 21);
        QCOMPARE(v.control, QStringLiteral("txtnombretr"));
        QCOMPARE(v.pestana, kPestanaTransmitente);
    }

    void tasaLibreFueraDeLimitesEsLaNueve()
    {
        DecDatos().OPERACION = QStringLiteral("TL");
        DecDatos().ObtenerDatosOperacion(false);
        DecDatos().TIPOIMP = 15;
        const Veredicto v = ValidarCampos(false, kTitulo, Operacion().DESCRIP);
        QVERIFY(!v.vacio());
        QCOMPARE(ReglaDe(v), 9);
        QCOMPARE(MensajeSeam::registro().first().texto,
                 QStringLiteral("El Tipo Impositivo no puede ser menor que 0 ni mayor que 14,75\n"));
        // The same return with the box locked does not check the limits.
        MensajeSeam::limpiar();
        QVERIFY(ValidarCampos(true, kTitulo, Operacion().DESCRIP).vacio());
    }

    void exentoPasaConTipoCero()
    {
        DecDatos().OPERACION = QStringLiteral("E4");
        DecDatos().ObtenerDatosOperacion(false);
        AplicarOperacion();
        QCOMPARE(DecDatos().TIPOIMP, 0.0);
        QCOMPARE(DatosDeValidacion(true).TASA, 0.0);
        QVERIFY(ValidarCampos(true, kTitulo, Operacion().DESCRIP).vacio());
    }

    void operacionQueYaNoRigeSeDetiene()
    {
        DecDatos().OPERACION = QStringLiteral("TN");  // ended in 2007; the return is of 2010
        const Veredicto v = ValidarCampos(true, kTitulo, QString());
        QVERIFY(!v.vacio());
        QCOMPARE(ReglaDe(v), 7);
    }

    void planDeBajasConMensajeDeLaOperacion()
    {
        cDecDatos& d = DecDatos();
        d.FECHAD = 20070601;
        d.OPERACION = QStringLiteral("P6");
        d.CILINDRADA = 2998;
        d.ObtenerDatosOperacion(false);
        AplicarOperacion();
        const Veredicto v = ValidarCampos(true, kTitulo, Operacion().DESCRIP);
        QVERIFY(!v.vacio());
        QCOMPARE(ReglaDe(v), 39);
        QCOMPARE(MensajeSeam::registro().first().texto, Texto(kIdOperacionNoPuedeSer)
                 + Operacion().DESCRIP + Texto(kIdOperacionAnio2006Cilindrada2499));
    }

    // --- ValidarNifIntervinientes --------------------------------------------------------------

    void numerosBuenos()
    {
        DecDatos().DNIPR = Dni(99999999);
        QCOMPARE(ValidarNifIntervinientes(kTitulo), int16_t(0));
        QVERIFY(MensajeSeam::registro().isEmpty());
    }

    void presentadorErroneoParaTodo()
    {
        DecDatos().DNIPR = QStringLiteral("11111111A");
        DecDatos().DNISP = QStringLiteral("22222222A");
        QCOMPARE(ValidarNifIntervinientes(kTitulo), int16_t(-1));
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro().first().texto, Texto(kIdDniPresentadorErroneo));
        QCOMPARE(MensajeSeam::registro().first().icono(), int(vb::Information));
    }

    void sujetoYTransmitenteALaVez()
    {
        DecDatos().DNISP = QStringLiteral("22222222A");
        DecDatos().DNITR = QStringLiteral("33333333A");
        QCOMPARE(ValidarNifIntervinientes(kTitulo), int16_t(-1));
        QCOMPARE(MensajeSeam::registro().size(), 1);
        const auto& m = MensajeSeam::registro().first();
        QCOMPARE(m.texto, QStringLiteral("El/Los Interviniente/s con NIF:  22222222A, 33333333A "
                                         "tiene/n un NIF erróneo o necesita/n llevar el dígito de "
                                         "control"));
        QCOMPARE(m.icono(), int(vb::Exclamation));
        QCOMPARE(m.titulo, kTitulo);
    }

    void enEuskera()
    {
        euskera(true);
        DecDatos().DNITR = QStringLiteral("33333333A");
        QCOMPARE(ValidarNifIntervinientes(kTitulo), int16_t(-1));
        QCOMPARE(MensajeSeam::registro().first().texto,
                 QStringLiteral(" 33333333A IFZ duten esku hartzailea(e)k IFZ okerra du(te) edo "
                                "kontrol digitua eraman behar du(te)."));
    }

    void transmitenteExtranjero()
    {
        DecDatos().TIPODNITR = QStringLiteral("N");
        DecDatos().DNITR = QStringLiteral("X99");
        QCOMPARE(ValidarNifIntervinientes(kTitulo), int16_t(0));
        DecDatos().DNITR = QStringLiteral("AB1234567");
        QCOMPARE(ValidarNifIntervinientes(kTitulo), int16_t(0));
        DecDatos().DNITR = QStringLiteral("000");
        QCOMPARE(ValidarNifIntervinientes(kTitulo), int16_t(-1));
        QVERIFY(MensajeSeam::registro().first().texto.contains(QStringLiteral("NIF:  000 ")));
    }

    // --- The date of accrual -----------------------------------------------------------------

    void fechaErronea()
    {
        QVERIFY(!ValidarFecha(QStringLiteral("31/04/2010")));
        QCOMPARE(MensajeSeam::registro().size(), 1);
        QCOMPARE(MensajeSeam::registro().first().texto,
                 QStringLiteral("La Fecha de Devengo introducida no es correcta"));
        QCOMPARE(MensajeSeam::registro().first().titulo, Texto(kIdErrorIntroduccionDatos));
        QCOMPARE(MensajeSeam::registro().first().icono(), int(vb::Exclamation));
    }

    void fechaFueraDeLimites()
    {
        QVERIFY(!ValidarFecha(QStringLiteral("31/12/1992")));
        QCOMPARE(MensajeSeam::registro().first().texto,
                 QStringLiteral("La Fecha de Devengo no puede ser anterior al 01/01/1993 ni "
                                "posterior al 31/12/2027\n"));
        QVERIFY(!ValidarFecha(QStringLiteral("01/01/2028")));
        QVERIFY(ValidarFecha(QStringLiteral("01/01/1993")));
        QVERIFY(ValidarFecha(QStringLiteral("31/12/2027")));
        QCOMPARE(MensajeSeam::registro().size(), 2);
    }

    void fechaEnEuskera()
    {
        euskera(true);
        QVERIFY(!ValidarFecha(QStringLiteral("2010/02/30")));
        QCOMPARE(MensajeSeam::registro().last().texto, Texto(kIdFechaDevengoIncorrecta));
        QVERIFY(!ValidarFecha(QStringLiteral("2028/01/01")));
        QCOMPARE(MensajeSeam::registro().last().texto,
                 QStringLiteral("Sortzapen data ezin da lehenagokoa izan egun hau baino "
                                "1993/01/01ezta geroakoa ere egun hau baino 2027/12/31\n"));
        QCOMPARE(MensajeSeam::registro().last().titulo, Texto(kIdErrorIntroduccionDatos));
        QVERIFY(ValidarFecha(QStringLiteral("2010/02/28")));
    }

    void comprobarFechaGuardaYAvisa()
    {
        bool avisado = false;
        QVERIFY(ComprobarFecha(QStringLiteral("15/06/2012"), [&] { avisado = true; }));
        QVERIFY(avisado);
        QCOMPARE(DecDatos().FECHAD, 20120615);
        avisado = false;
        QVERIFY(!ComprobarFecha(QStringLiteral("15/13/2012"), [&] { avisado = true; }));
        QVERIFY(!avisado);
        QCOMPARE(DecDatos().FECHAD, 20120615);
        euskera(true);
        QVERIFY(ComprobarFecha(QStringLiteral("2013/01/02"), {}));
        QCOMPARE(DecDatos().FECHAD, 20130102);
    }

    // --- A new date and the operation ----------------------------------------------------------

    void operacionQueSigueRigiendo()
    {
        DecDatos().FECHAD = 20200101;
        const QStringList lista = ActualizarOperacionPorFecha(true);
        QCOMPARE(lista.size(), 14);
        QCOMPARE(DecDatos().OPERACION, QStringLiteral("T2"));
        QCOMPARE(DecDatos().TIPOIMP, 4.75);
        QCOMPARE(DecDatos().CUOTA.centimos(), 71250.0);
        QVERIFY(EntradaDeLista(lista, Operacion().DESCRIP) >= 0);
    }

    void operacionQueDejaDeRegirEnUnaNueva()
    {
        DecDatos().FECHAD = 20050101;
        const QStringList lista = ActualizarOperacionPorFecha(true);
        QCOMPARE(lista.size(), 15);
        QVERIFY(DecDatos().OPERACION.isEmpty());
        QCOMPARE(DecDatos().BASEI.centimos(), 0.0);  // a new return loses its base too
        QCOMPARE(DecDatos().TIPOIMP, 0.0);
        QCOMPARE(DecDatos().CUOTA.centimos(), 0.0);
        QCOMPARE(DecDatos().TOTAL.centimos(), 0.0);
        QVERIFY(Operacion().DESCRIP.isEmpty());
    }

    void operacionQueDejaDeRegirEnUnaAbierta()
    {
        Navegacion::RutaDec().modo = Navegacion::Modo::Abrir;
        DecDatos().FECHAD = 20050101;
        ActualizarOperacionPorFecha(true);
        QVERIFY(DecDatos().OPERACION.isEmpty());
        QCOMPARE(DecDatos().BASEI.centimos(), 1500000.0);
        QCOMPARE(DecDatos().TOTAL.centimos(), 0.0);
    }

    void tasaLibreConLosLimitesDeLaNuevaFecha()
    {
        cDecDatos& d = DecDatos();
        d.OPERACION = QStringLiteral("TL");
        d.ObtenerDatosOperacion(false);
        d.TIPOIMP = 13;
        AplicarOperacion();
        QCOMPARE(d.TIPOIMP, 13.0);  // typed within 0 to 14,75
        d.FECHAD = 20050101;
        ActualizarOperacionPorFecha(false);
        QCOMPARE(d.OPERACION, QStringLiteral("TL"));
        QCOMPARE(Operacion().T_MAX(), 12.0);
        QCOMPARE(d.TIPOIMP, 0.0);  // out of 7 to 12: set to 0 without a word
        QVERIFY(MensajeSeam::registro().isEmpty());
        d.TIPOIMP = 10;
        d.FECHAD = 20090101;
        ActualizarOperacionPorFecha(false);
        QCOMPARE(d.TIPOIMP, 10.0);
    }

    void laReduccionElegidaSeConservaConLaFecha()
    {
        cDecDatos& d = DecDatos();
        ActualizarReduccion({true, true, true, false});
        CalcularValores();
        QCOMPARE(d.REDUCCION, QStringLiteral("X"));
        d.FECHAD = 20110101;
        ActualizarOperacionPorFecha(true);
        QCOMPARE(d.REDUCCION, QStringLiteral("X"));
        QCOMPARE(d.BASEIREDUCIDA.centimos(), 750000.0);
    }

    void entradaDeLista()
    {
        const QStringList lista{QStringLiteral("Tipo general: 12 %"), QStringLiteral("TIPO X")};
        QCOMPARE(EntradaDeLista(lista, QStringLiteral("Tipo general: 12 %")), 0);
        QCOMPARE(EntradaDeLista(lista, QStringLiteral("tipo x")), 1);
        QCOMPARE(EntradaDeLista(lista, QString()), -1);
        QCOMPARE(EntradaDeLista(lista, QStringLiteral("Otra")), -1);
    }
};

QTEST_MAIN(TestValidacion)
#include "test_decl_validacion.moc"
