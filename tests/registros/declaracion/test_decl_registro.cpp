// The declaration record on its own: the clean new return of MODO "A", the date and amount
// initialisations, the parties taken from stored contributors, and the copying of parties.
#include "comun/DeclaracionPrueba.h"

#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cOperacion.h"

#include <QTest>

namespace {

// A return with a value in every field that differs from the new return's.
void rellenarTodo(cDecDatos& d)
{
    d.CSDE = 41;
    d.REFERENCIA = QStringLiteral("R");
    d.CSPR = 2;
    d.CSSU = 3;
    d.CSTRA = 4;
    d.FECHAD = 20100101;
    d.ADQUIRIDO = QStringLiteral("X");
    d.MARCA = QStringLiteral("M");
    d.TIPO = QStringLiteral("T");
    d.MODELO = QStringLiteral("MO");
    d.BASTIDOR = QStringLiteral("B");
    d.CLASIFICACION = 1000;
    d.MOTOR = QStringLiteral("D");
    d.CILINDRADA = 1900;
    d.OPERACION = QStringLiteral("T2");
    d.NOSUJETO = QStringLiteral("X");
    d.EXENTO = QStringLiteral("X");
    d.REDUCCION = QStringLiteral("Z");
    d.BASEI = Importe(1);
    d.BASEIREDUCIDA = Importe(2);
    d.TIPOIMP = 3;
    d.CUOTA = Importe(4);
    d.DEDUCCION = Importe(5);
    d.TOTAL = Importe(6);
    d.DNIPR = QStringLiteral("P");
    d.NOMBREPR = QStringLiteral("NP");
    d.DNISP = QStringLiteral("S");
    d.NOMBRESP = QStringLiteral("NS");
    d.VIASP = QStringLiteral("AV");
    d.DOMICILIOSP = QStringLiteral("D");
    d.NUMEROSP = 9;
    d.LETRASP = QStringLiteral("L");
    d.ESCALERASP = QStringLiteral("E");
    d.PISOSP = QStringLiteral("P");
    d.MANOSP = QStringLiteral("M");
    d.CODPROVSP = QStringLiteral("48");
    d.CODPOSSP = QStringLiteral("48001");
    d.CODMUNSP = QStringLiteral("001");
    d.NOMMUNSP = QStringLiteral("N");
    d.TIPODNITR = QStringLiteral("N");
    d.DNITR = QStringLiteral("T");
    d.NOMBRETR = QStringLiteral("NT");
    d.TIPODOMITR = QStringLiteral("E");
    d.VIATR = QStringLiteral("PZ");
    d.DOMICILIOTR = QStringLiteral("DT");
    d.NUMEROTR = 8;
    d.LETRATR = QStringLiteral("LT");
    d.ESCALERATR = QStringLiteral("ET");
    d.PISOTR = QStringLiteral("PT");
    d.MANOTR = QStringLiteral("MT");
    d.PAISTR = QStringLiteral("FR");
    d.CODPROVTR = QStringLiteral("01");
    d.NOMPROVTR = QStringLiteral("NPT");
    d.CODPOSTR = QStringLiteral("75");
    d.CODMUNTR = QStringLiteral("9");
    d.NOMMUNTR = QStringLiteral("NMT");
    d.DECLASP = 3;
}

void comprobarNueva(const cDecDatos& d)
{
    QCOMPARE(d.CSDE, 0);
    QVERIFY(d.REFERENCIA.isEmpty());
    QCOMPARE(d.CSPR, 0);
    QCOMPARE(d.CSSU, 0);
    QCOMPARE(d.CSTRA, 0);
    QCOMPARE(d.FECHAD, 0);
    QVERIFY(d.ADQUIRIDO.isEmpty() && d.MARCA.isEmpty() && d.TIPO.isEmpty()
            && d.MODELO.isEmpty() && d.BASTIDOR.isEmpty());
    QCOMPARE(d.CLASIFICACION, int16_t(0));
    QCOMPARE(d.MOTOR, QStringLiteral("G"));
    QCOMPARE(d.CILINDRADA, 0);
    QVERIFY(d.OPERACION.isEmpty() && d.NOSUJETO.isEmpty() && d.EXENTO.isEmpty()
            && d.REDUCCION.isEmpty());
    QCOMPARE(d.BASEI.centimos(), 0.0);
    QCOMPARE(d.BASEIREDUCIDA.centimos(), 0.0);
    QCOMPARE(d.TIPOIMP, 0.0);
    QCOMPARE(d.CUOTA.centimos(), 0.0);
    QCOMPARE(d.DEDUCCION.centimos(), 0.0);
    QCOMPARE(d.TOTAL.centimos(), 0.0);
    QVERIFY(d.DNIPR.isEmpty() && d.NOMBREPR.isEmpty() && d.DNISP.isEmpty()
            && d.NOMBRESP.isEmpty());
    QCOMPARE(d.VIASP, QStringLiteral("CL"));
    QVERIFY(d.DOMICILIOSP.isEmpty());
    QCOMPARE(d.NUMEROSP, 0);
    QVERIFY(d.LETRASP.isEmpty() && d.ESCALERASP.isEmpty() && d.PISOSP.isEmpty()
            && d.MANOSP.isEmpty());
    QCOMPARE(d.CODPROVSP, QStringLiteral("77"));
    QVERIFY(d.CODPOSSP.isEmpty() && d.CODMUNSP.isEmpty() && d.NOMMUNSP.isEmpty());
    QCOMPARE(d.TIPODNITR, QStringLiteral("O"));
    QVERIFY(d.DNITR.isEmpty() && d.NOMBRETR.isEmpty());
    QCOMPARE(d.TIPODOMITR, QStringLiteral("N"));
    QCOMPARE(d.VIATR, QStringLiteral("CL"));
    QVERIFY(d.DOMICILIOTR.isEmpty());
    QCOMPARE(d.NUMEROTR, 0);
    QVERIFY(d.LETRATR.isEmpty() && d.ESCALERATR.isEmpty() && d.PISOTR.isEmpty()
            && d.MANOTR.isEmpty() && d.PAISTR.isEmpty());
    QCOMPARE(d.CODPROVTR, QStringLiteral("77"));
    QVERIFY(d.NOMPROVTR.isEmpty() && d.CODPOSTR.isEmpty() && d.CODMUNTR.isEmpty()
            && d.NOMMUNTR.isEmpty());
    QCOMPARE(d.DECLASP, 0.0);
    QVERIFY(d.NOMPROVSP.isEmpty());
    QCOMPARE(d.VERSION, int64_t(0));
}

// A stored contributor as a return takes it, with the returns that have it as subject.
Contribuyente parte(const QString& tipoDomi, const QString& prov, const QString& cp)
{
    Contribuyente c;
    c.CSCO = 15;
    c.TIPODNI = QStringLiteral("N");
    c.DNIC = QStringLiteral("X1234567L");
    c.NOMBREC = QStringLiteral("NOMBRE");
    c.VIAC = QStringLiteral("AV");
    c.DOMICILIOC = QStringLiteral("CALLE");
    c.NUMEROC = 12;
    c.LETRAC = QStringLiteral("A");
    c.ESCALERAC = QStringLiteral("B");
    c.PISOC = QStringLiteral("3");
    c.MANOC = QStringLiteral("DCH");
    c.TIPODOMI = tipoDomi;
    c.PAIS = QStringLiteral("PAIS");
    c.CODPROVC = prov;
    c.NOMPROVC = QStringLiteral("PROVINCIA");
    c.CODPOSC = cp;
    c.CODMUNC = QStringLiteral("005");
    c.NOMMUNC = QStringLiteral("MUNICIPIO");
    c.NUMSP = 4.0;
    return c;
}

}  // namespace

class TestRegistro : public QObject {
    Q_OBJECT

private slots:
    void modoAltaDejaLaDeclaracionNueva()
    {
        cDecDatos& d = DecDatos();
        rellenarTodo(d);
        Navegacion::RutaDec().entrada = Navegacion::Entrada::Inicio;
        Navegacion::RutaDec().lista = Navegacion::ListaOrigen(Navegacion::Origen::ListaDeclaraciones);
        Operacion().ActualizaOperacion({QStringLiteral("D"), QStringLiteral("K"), QString(),
                                        QString(), 12, 0, 0, 5},
                                       false);
        Navegacion::RutaDec().modo = Navegacion::Modo::Nuevo;
        d.IniciarNuevo();
        QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().modo), QStringLiteral("A"));
        comprobarNueva(d);
        QVERIFY(Operacion().DESCRIP.isEmpty());
        QCOMPARE(Operacion().T_TIP(), 0.0);
        // The routing of the form is not part of the return.
        QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().entrada), QStringLiteral("A"));
        QCOMPARE(Navegacion::RutaDec().lista.letras(), QStringLiteral("D"));
    }

    void modoAltaDosVecesDaLoMismo()
    {
        cDecDatos& d = DecDatos();
        rellenarTodo(d);
        Navegacion::RutaDec().modo = Navegacion::Modo::Nuevo;
        d.IniciarNuevo();
        const Declaracion primera = d.valor();
        Navegacion::RutaDec().modo = Navegacion::Modo::Nuevo;
        d.IniciarNuevo();
        QVERIFY(d.valor() == primera);
        comprobarNueva(d);
    }

    void modosConsultaYCopiaSoloGuardanLaLetra()
    {
        cDecDatos& d = DecDatos();
        rellenarTodo(d);
        const Declaracion antes = d.valor();
        Navegacion::RutaDec().modo = Navegacion::Modo::Abrir;
        QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().modo), QStringLiteral("C"));
        QVERIFY(d.valor() == antes);
        Navegacion::RutaDec().modo = Navegacion::Modo::Copia;
        QCOMPARE(Navegacion::Letras(Navegacion::RutaDec().modo), QStringLiteral("D"));
        QVERIFY(d.valor() == antes);
    }

    void inicializaFechaConservaLaBaseDeUnaAbierta()
    {
        cDecDatos& d = DecDatos();
        rellenarTodo(d);
        Navegacion::RutaDec().modo = Navegacion::Modo::Abrir;
        d.InicializaFecha();
        QVERIFY(d.NOSUJETO.isEmpty() && d.EXENTO.isEmpty() && d.REDUCCION.isEmpty());
        QCOMPARE(d.BASEI.centimos(), 1.0);
        QCOMPARE(d.BASEIREDUCIDA.centimos(), 0.0);
        QCOMPARE(d.TIPOIMP, 0.0);
        QCOMPARE(d.CUOTA.centimos(), 0.0);
        QCOMPARE(d.DEDUCCION.centimos(), 0.0);
        QCOMPARE(d.TOTAL.centimos(), 0.0);
        QCOMPARE(d.OPERACION, QStringLiteral("T2"));
    }

    void inicializaFechaBorraLaBaseDeUnaNueva()
    {
        cDecDatos& d = DecDatos();
        Navegacion::RutaDec().modo = Navegacion::Modo::Nuevo;
        d.IniciarNuevo();
        d.BASEI = Importe(500);
        d.TOTAL = Importe(6);
        d.InicializaFecha();
        QCOMPARE(d.BASEI.centimos(), 0.0);
        QCOMPARE(d.TOTAL.centimos(), 0.0);
    }

    void cargarSujetoNacional()
    {
        cDecDatos& d = DecDatos();
        Navegacion::RutaDec().modo = Navegacion::Modo::Nuevo;
        d.IniciarNuevo();
        d.CargarSujetoPasivo(parte(QStringLiteral("N"), QStringLiteral("1"), QStringLiteral("1001")));
        QCOMPARE(d.CSSU, 15);
        QCOMPARE(d.DNISP, QStringLiteral("X1234567L"));
        QCOMPARE(d.NOMBRESP, QStringLiteral("NOMBRE"));
        QCOMPARE(d.VIASP, QStringLiteral("AV"));
        QCOMPARE(d.DOMICILIOSP, QStringLiteral("CALLE"));
        QCOMPARE(d.NUMEROSP, 12);
        QCOMPARE(d.LETRASP, QStringLiteral("A"));
        QCOMPARE(d.ESCALERASP, QStringLiteral("B"));
        QCOMPARE(d.PISOSP, QStringLiteral("3"));
        QCOMPARE(d.MANOSP, QStringLiteral("DCH"));
        QCOMPARE(d.CODPROVSP, QStringLiteral("01"));
        QCOMPARE(d.CODPOSSP, QStringLiteral("1001"));  // as it stands
        QCOMPARE(d.CODMUNSP, QStringLiteral("005"));
        QCOMPARE(d.NOMMUNSP, QStringLiteral("MUNICIPIO"));
        // Rows 1, 11, 12, 14 and 18 are not the subject's.
        QCOMPARE(d.DECLASP, 0.0);
        QCOMPARE(d.TIPODNITR, QStringLiteral("O"));
    }

    void cargarSujetoExtranjero()
    {
        cDecDatos& d = DecDatos();
        Navegacion::RutaDec().modo = Navegacion::Modo::Nuevo;
        d.IniciarNuevo();
        d.CargarSujetoPasivo(parte(QStringLiteral("E"), QStringLiteral("00"), QStringLiteral("7500")));
        // Province and municipality stay those of the return; the postal code is five digits.
        QCOMPARE(d.CODPROVSP, QStringLiteral("77"));
        QVERIFY(d.CODMUNSP.isEmpty() && d.NOMMUNSP.isEmpty());
        QCOMPARE(d.CODPOSSP, QStringLiteral("07500"));
        d.CargarSujetoPasivo(parte(QStringLiteral("E"), QStringLiteral("8"), QStringLiteral("ABC")));
        QCOMPARE(d.CODPROVSP, QStringLiteral("08"));
        QCOMPARE(d.CODMUNSP, QStringLiteral("005"));
        QCOMPARE(d.NOMMUNSP, QStringLiteral("MUNICIPIO"));
        QCOMPARE(d.CODPOSSP, QStringLiteral("ABC"));
    }

    void contribuyenteVacioLimpiaLaParte()
    {
        cDecDatos& d = DecDatos();
        Navegacion::RutaDec().modo = Navegacion::Modo::Nuevo;
        d.IniciarNuevo();
        d.CargarSujetoPasivo(parte(QStringLiteral("N"), QStringLiteral("48"), QStringLiteral("48001")));
        d.CargarSujetoPasivo(Contribuyente());
        QCOMPARE(d.CSSU, 0);
        QVERIFY(d.DNISP.isEmpty() && d.NOMBRESP.isEmpty() && d.DOMICILIOSP.isEmpty()
                && d.CODPROVSP.isEmpty() && d.CODPOSSP.isEmpty() && d.CODMUNSP.isEmpty());
        QCOMPARE(d.NUMEROSP, 0);
    }

    void cargarTransmitente()
    {
        cDecDatos& d = DecDatos();
        Navegacion::RutaDec().modo = Navegacion::Modo::Nuevo;
        d.IniciarNuevo();
        d.CargarTransmitente(parte(QStringLiteral("E"), QStringLiteral("9"), QStringLiteral("75002")));
        QCOMPARE(d.CSTRA, 15);
        QCOMPARE(d.TIPODNITR, QStringLiteral("N"));
        QCOMPARE(d.DNITR, QStringLiteral("X1234567L"));
        QCOMPARE(d.NOMBRETR, QStringLiteral("NOMBRE"));
        QCOMPARE(d.VIATR, QStringLiteral("AV"));
        QCOMPARE(d.DOMICILIOTR, QStringLiteral("CALLE"));
        QCOMPARE(d.NUMEROTR, 12);
        QCOMPARE(d.LETRATR, QStringLiteral("A"));
        QCOMPARE(d.ESCALERATR, QStringLiteral("B"));
        QCOMPARE(d.PISOTR, QStringLiteral("3"));
        QCOMPARE(d.MANOTR, QStringLiteral("DCH"));
        QCOMPARE(d.TIPODOMITR, QStringLiteral("E"));
        QCOMPARE(d.PAISTR, QStringLiteral("PAIS"));
        QCOMPARE(d.CODPROVTR, QStringLiteral("09"));
        QCOMPARE(d.NOMPROVTR, QStringLiteral("PROVINCIA"));
        QCOMPARE(d.CODPOSTR, QStringLiteral("75002"));
        QCOMPARE(d.CODMUNTR, QStringLiteral("005"));
        QCOMPARE(d.NOMMUNTR, QStringLiteral("MUNICIPIO"));
        QCOMPARE(d.DECLASP, 4.0);
    }

    void volcarTransmitenteNacionalEnSujeto()
    {
        cDecDatos& d = DecDatos();
        rellenarTodo(d);
        d.TIPODOMITR = QStringLiteral("N");
        d.CODPROVTR = QStringLiteral("77");
        d.CODPOSTR = QStringLiteral("77005");
        d.CODMUNTR = QStringLiteral("005");
        d.NOMMUNTR = QString();
        d.VolcarTrSp();
        QCOMPARE(d.DNISP, QStringLiteral("T"));
        QCOMPARE(d.NOMBRESP, QStringLiteral("NT"));
        QCOMPARE(d.VIASP, QStringLiteral("PZ"));
        QCOMPARE(d.DOMICILIOSP, QStringLiteral("DT"));
        QCOMPARE(d.NUMEROSP, 8);
        QCOMPARE(d.LETRASP, QStringLiteral("LT"));
        QCOMPARE(d.ESCALERASP, QStringLiteral("ET"));
        QCOMPARE(d.PISOSP, QStringLiteral("PT"));
        QCOMPARE(d.MANOSP, QStringLiteral("MT"));
        QCOMPARE(d.CODPROVSP, QStringLiteral("77"));
        QCOMPARE(d.CODPOSSP, QStringLiteral("77005"));
        QCOMPARE(d.CODMUNSP, QStringLiteral("005"));
        QVERIFY(d.NOMMUNSP.isEmpty());
        QCOMPARE(d.TIPODNITR, QStringLiteral("N"));  // a national address changes nothing else
    }

    void volcarTransmitenteExtranjeroLoHaceNacional()
    {
        cDecDatos& d = DecDatos();
        rellenarTodo(d);  // foreign address, foreign number
        d.VolcarTrSp();
        QCOMPARE(d.DNISP, QStringLiteral("T"));
        QCOMPARE(d.CODPROVSP, QStringLiteral("48"));  // the subject keeps its province
        QCOMPARE(d.CODPOSSP, QStringLiteral("00000"));
        QCOMPARE(d.CODPROVTR, QStringLiteral("77"));
        QVERIFY(d.NOMPROVTR.isEmpty() && d.CODMUNTR.isEmpty() && d.NOMMUNTR.isEmpty()
                && d.PAISTR.isEmpty());
        QCOMPARE(d.TIPODNITR, QStringLiteral("O"));
        QCOMPARE(d.TIPODOMITR, QStringLiteral("N"));
        QCOMPARE(d.CODPOSTR, QStringLiteral("00000"));
    }

    void volcarSujetoEnTransmitente()
    {
        cDecDatos& d = DecDatos();
        rellenarTodo(d);
        d.VolcarSpTR();
        QCOMPARE(d.DNITR, QStringLiteral("S"));
        QCOMPARE(d.NOMBRETR, QStringLiteral("NS"));
        QCOMPARE(d.VIATR, QStringLiteral("AV"));
        QCOMPARE(d.DOMICILIOTR, QStringLiteral("D"));
        QCOMPARE(d.NUMEROTR, 9);
        QCOMPARE(d.LETRATR, QStringLiteral("L"));
        QCOMPARE(d.ESCALERATR, QStringLiteral("E"));
        QCOMPARE(d.PISOTR, QStringLiteral("P"));
        QCOMPARE(d.MANOTR, QStringLiteral("M"));
        QCOMPARE(d.CODPROVTR, QStringLiteral("48"));
        QCOMPARE(d.CODPOSTR, QStringLiteral("48001"));
        QCOMPARE(d.CODMUNTR, QStringLiteral("001"));
        QCOMPARE(d.NOMMUNTR, QStringLiteral("N"));
        QVERIFY(d.NOMPROVTR.isEmpty() && d.PAISTR.isEmpty());
        QCOMPARE(d.TIPODNITR, QStringLiteral("O"));
        QCOMPARE(d.TIPODOMITR, QStringLiteral("N"));
    }
};

QTEST_MAIN(TestRegistro)
#include "test_decl_registro.moc"
#include "valores/EstadoNavegacion.h"
