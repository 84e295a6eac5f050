#include "registros/declaracion/cDecDatos.h"

#include "plataforma/Estado.h"

#include "plataforma/General.h"
#include "registros/declaracion/cOperacion.h"
#include "valores/Formato.h"
#include "valores/Val.h"
#include "servicios/Almacen.h"
#include "servicios/cContribSvr.h"
#include "servicios/cDeclaSvr.h"

namespace {

QString texto(const Arreglo& a, int i) { return a.value(i).toString(); }
int32_t entero(const Arreglo& a, int i) { return a.value(i).toInt(); }
double real(const Arreglo& a, int i) { return a.value(i).toDouble(); }

}  // namespace

void cDecDatos::setMODO(const QString& modo)
{
    m_modo = modo;
    if (modo != QLatin1String("A"))
        return;
    // Every field of the return to its value for a new one; the routing fields stay.
    const QString entrada = ENTRADA, lista = LISTA, criterio = CRITERIO;
    const bool modificado = MODIFICADO;
    *this = cDecDatos();
    m_modo = modo;
    ENTRADA = entrada;
    LISTA = lista;
    CRITERIO = criterio;
    MODIFICADO = modificado;
    Operacion().Inicializa();
    InicializaImportes();
}

void cDecDatos::InicializaFecha()
{
    NOSUJETO.clear();
    EXENTO.clear();
    REDUCCION.clear();
    InicializaImportes();
}

void cDecDatos::InicializaImportes()
{
    BASEIREDUCIDA = 0;
    TIPOIMP = 0;
    CUOTA = 0;
    DEDUCCION = 0;
    TOTAL = 0;
    // On an open return a change of date keeps the base that was typed.
    if (m_modo == QLatin1String("A"))
        BASEI = 0;
}

void cDecDatos::CargarSujetoPasivo(const Arreglo& datos)
{
    CSSU = entero(datos, 0);
    DNISP = texto(datos, 2);
    NOMBRESP = texto(datos, 3);
    VIASP = texto(datos, 4);
    DOMICILIOSP = texto(datos, 5);
    NUMEROSP = entero(datos, 6);
    LETRASP = texto(datos, 7);
    ESCALERASP = texto(datos, 8);
    PISOSP = texto(datos, 9);
    MANOSP = texto(datos, 10);
    if (texto(datos, 11) == QLatin1String("E")) {
        // A foreign address cannot stand for the subject: only a real province is taken.
        if (Val(texto(datos, 13)) != 0) {
            CODPROVSP = texto(datos, 13);
            CODMUNSP = texto(datos, 16);
            NOMMUNSP = texto(datos, 17);
        }
        CODPOSSP = Formato(texto(datos, 15), QStringLiteral("00000"));
    } else {
        CODPROVSP = texto(datos, 13);
        CODPOSSP = texto(datos, 15);
        CODMUNSP = texto(datos, 16);
        NOMMUNSP = texto(datos, 17);
    }
    CODPROVSP = Formato(CODPROVSP, QStringLiteral("00"));
}

void cDecDatos::CargarTransmitente(const Arreglo& datos)
{
    CSTRA = entero(datos, 0);
    TIPODNITR = texto(datos, 1);
    DNITR = texto(datos, 2);
    NOMBRETR = texto(datos, 3);
    VIATR = texto(datos, 4);
    DOMICILIOTR = texto(datos, 5);
    NUMEROTR = entero(datos, 6);
    LETRATR = texto(datos, 7);
    ESCALERATR = texto(datos, 8);
    PISOTR = texto(datos, 9);
    MANOTR = texto(datos, 10);
    TIPODOMITR = texto(datos, 11);
    PAISTR = texto(datos, 12);
    CODPROVTR = Formato(texto(datos, 13), QStringLiteral("00"));
    NOMPROVTR = texto(datos, 14);
    CODPOSTR = texto(datos, 15);
    CODMUNTR = texto(datos, 16);
    NOMMUNTR = texto(datos, 17);
    DECLASP = real(datos, 18);
}

void cDecDatos::VolcarTrSp()
{
    DNISP = DNITR;
    NOMBRESP = NOMBRETR;
    VIASP = VIATR;
    DOMICILIOSP = DOMICILIOTR;
    NUMEROSP = NUMEROTR;
    LETRASP = LETRATR;
    ESCALERASP = ESCALERATR;
    PISOSP = PISOTR;
    MANOSP = MANOTR;
    if (TIPODOMITR == QLatin1String("N")) {
        CODPROVSP = CODPROVTR;
        CODPOSSP = CODPOSTR;
        CODMUNSP = CODMUNTR;
        NOMMUNSP = NOMMUNTR;
        return;
    }
    // The subject is always national: a foreign transmitter standing for it takes the shape
    // of a national party of the home province.
    CODPROVTR = QStringLiteral("77");
    NOMPROVTR.clear();
    CODMUNTR.clear();
    NOMMUNTR.clear();
    PAISTR.clear();
    TIPODNITR = QStringLiteral("O");
    TIPODOMITR = QStringLiteral("N");
    CODPOSTR = QStringLiteral("00000");
    CODPOSSP = QStringLiteral("00000");
}

void cDecDatos::VolcarSpTR()
{
    DNITR = DNISP;
    NOMBRETR = NOMBRESP;
    VIATR = VIASP;
    DOMICILIOTR = DOMICILIOSP;
    NUMEROTR = NUMEROSP;
    LETRATR = LETRASP;
    ESCALERATR = ESCALERASP;
    PISOTR = PISOSP;
    MANOTR = MANOSP;
    CODPROVTR = CODPROVSP;
    CODPOSTR = CODPOSSP;
    CODMUNTR = CODMUNSP;
    NOMMUNTR = NOMMUNSP;
    NOMPROVTR.clear();
    PAISTR.clear();
    TIPODNITR = QStringLiteral("O");
    TIPODOMITR = QStringLiteral("N");
}

Arreglo cDecDatos::DatosGuardar() const
{
    return {
        CSDE, REFERENCIA, CSPR, CSSU, CSTRA, FECHAD, ADQUIRIDO, MARCA, TIPO, MODELO, BASTIDOR,
        CLASIFICACION, MOTOR, CILINDRADA, OPERACION, NOSUJETO, EXENTO, REDUCCION, BASEI,
        BASEIREDUCIDA, TIPOIMP, CUOTA, DEDUCCION, TOTAL,
        DNISP, NOMBRESP, VIASP, DOMICILIOSP, NUMEROSP, LETRASP, ESCALERASP, PISOSP, MANOSP,
        CODPROVSP, QString(), CODPOSSP, CODMUNSP, NOMMUNSP,
        TIPODNITR, DNITR, NOMBRETR, VIATR, DOMICILIOTR, NUMEROTR, LETRATR, ESCALERATR, PISOTR,
        MANOTR, TIPODOMITR, PAISTR, CODPROVTR, NOMPROVTR, CODPOSTR, CODMUNTR, NOMMUNTR,
    };
}

void cDecDatos::DatosCargados(const Arreglo& d)
{
    REFERENCIA = texto(d, 1);
    CSPR = entero(d, 2);
    CSSU = entero(d, 3);
    CSTRA = entero(d, 4);
    FECHAD = entero(d, 5);
    ADQUIRIDO = texto(d, 6);
    MARCA = texto(d, 7);
    TIPO = texto(d, 8);
    MODELO = texto(d, 9);
    BASTIDOR = texto(d, 10);
    CLASIFICACION = static_cast<int16_t>(entero(d, 11));
    MOTOR = texto(d, 12);
    CILINDRADA = entero(d, 13);
    OPERACION = texto(d, 14);
    NOSUJETO = texto(d, 15);
    EXENTO = texto(d, 16);
    REDUCCION = texto(d, 17);
    BASEI = real(d, 18);
    BASEIREDUCIDA = real(d, 19);
    TIPOIMP = real(d, 20);
    CUOTA = real(d, 21);
    DEDUCCION = real(d, 22);
    TOTAL = real(d, 23);
    DNIPR = texto(d, 24);
    NOMBREPR = texto(d, 25);
    DNISP = texto(d, 26);
    NOMBRESP = texto(d, 27);
    VIASP = texto(d, 28);
    DOMICILIOSP = texto(d, 29);
    NUMEROSP = entero(d, 30);
    LETRASP = texto(d, 31);
    ESCALERASP = texto(d, 32);
    PISOSP = texto(d, 33);
    MANOSP = texto(d, 34);
    CODPROVSP = texto(d, 35);
    m_nomProvSp = texto(d, 36);
    CODPOSSP = texto(d, 37);
    CODMUNSP = texto(d, 38);
    NOMMUNSP = texto(d, 39);
    TIPODNITR = texto(d, 40);
    DNITR = texto(d, 41);
    NOMBRETR = texto(d, 42);
    VIATR = texto(d, 43);
    DOMICILIOTR = texto(d, 44);
    NUMEROTR = entero(d, 45);
    LETRATR = texto(d, 46);
    ESCALERATR = texto(d, 47);
    PISOTR = texto(d, 48);
    MANOTR = texto(d, 49);
    TIPODOMITR = texto(d, 50);
    PAISTR = texto(d, 51);
    CODPROVTR = texto(d, 52);
    NOMPROVTR = texto(d, 53);
    CODPOSTR = texto(d, 54);
    CODMUNTR = texto(d, 55);
    NOMMUNTR = texto(d, 56);
    DECLASP = real(d, 57);
}

void cDecDatos::ValidarDatosDeclaracion(const Arreglo& datos, int32_t fecha,
                                        int16_t& resultado) const
{
    const cDeclaSvr svr = Almacen<cDeclaSvr>();
    const QString impresion = svr.ObtenImpresion(fecha, datos.value(6).toString());
    resultado = svr.ValidarDatosDeclaraciones(datos, impresion, fecha);
}

void cDecDatos::GuardarDeclaracion(const Arreglo& datos, int32_t& resultado) const
{
    resultado = Almacen<cDeclaSvr>().GuardarDeclaracion(datos);
}

void cDecDatos::CargarDeclaracion()
{
    Arreglo datos;
    Almacen<cDeclaSvr>().CargarDeclaracion(CSDE, datos);
    DatosCargados(datos);
}

void cDecDatos::BorrarDeclaracion() const
{
    Almacen<cDeclaSvr>().BorrarDeclaracion(CSDE);
}

void cDecDatos::ObtenerUltimasDeclaraciones(Arreglo2D& lista) const
{
    Almacen<cDeclaSvr>().ObtenerUltimasDeclaraciones(lista);
}

void cDecDatos::ExisteContribuyente(const QString& dni, Arreglo& datos, bool& resultado) const
{
    resultado = Almacen<cDeclaSvr>().ExisteContribuyente(dni, datos);
}

void cDecDatos::CargarContribuyente()
{
    const cDeclaSvr svr = Almacen<cDeclaSvr>();
    Arreglo datos;
    if (ENTRADA == QLatin1String("S")) {
        svr.CargarContribuyente(CSSU, datos);
        CargarSujetoPasivo(datos);
    } else {
        svr.CargarContribuyente(CSTRA, datos);
        CargarTransmitente(datos);
    }
}

void cDecDatos::ValidarDniOficial(const QString& dni, bool& resultado) const
{
    auto svr = Almacen<cContribSvr>();
    resultado = svr.ValidarDniOficial(dni);
}

QStringList cDecDatos::CargarListaOperaciones() const
{
    Arreglo lista;
    Almacen<cDeclaSvr>().ObtenerOperaciones(FECHAD, lista, OffsetIdioma);
    QStringList descripciones;
    for (const QVariant& v : lista)
        descripciones << v.toString();
    return descripciones;
}

void cDecDatos::ObtenerDatosOperacion(bool sinReduccion) const
{
    Arreglo datos;
    if (Almacen<cDeclaSvr>().ObtenerDatosOperacion(OPERACION, FECHAD, datos, OffsetIdioma))
        Operacion().ActualizaOperacion(datos, sinReduccion);
    else
        Operacion().Inicializa();
}

cDecDatos& DecDatos()
{
    return Estado().de<cDecDatos>();
}

int32_t GuardarDatosDeclaracion()
{
    int32_t codigo = 0;
    DecDatos().GuardarDeclaracion(DecDatos().DatosGuardar(), codigo);
    return codigo;
}
