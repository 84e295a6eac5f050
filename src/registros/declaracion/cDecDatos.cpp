#include "registros/declaracion/cDecDatos.h"

#include "plataforma/Estado.h"

#include "plataforma/General.h"
#include "registros/declaracion/cOperacion.h"
#include "valores/Formato.h"
#include "valores/Val.h"
#include "servicios/Almacen.h"
#include "servicios/PosicionesContribuyente.h"
#include "servicios/PosicionesDeclaracion.h"
#include "servicios/cContribSvr.h"
#include "servicios/cDeclaSvr.h"

namespace C = PosContribuyente;
namespace G = PosGuardarDeclaracion;
namespace L = PosCargarDeclaracion;

namespace {

QString texto(const Arreglo& a, int i) { return a.value(i).toString(); }
int32_t entero(const Arreglo& a, int i) { return a.value(i).toInt(); }
double real(const Arreglo& a, int i) { return a.value(i).toDouble(); }

}  // namespace

void cDecDatos::IniciarNuevo()
{
    const bool modificado = MODIFICADO;
    *this = cDecDatos();
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
    if (Navegacion::RutaDec().modo == Navegacion::Modo::Nuevo)
        BASEI = 0;
}

void cDecDatos::CargarSujetoPasivo(const Arreglo& datos)
{
    CSSU = entero(datos, C::CSCO);
    DNISP = texto(datos, C::DNIC);
    NOMBRESP = texto(datos, C::NOMBREC);
    VIASP = texto(datos, C::VIAC);
    DOMICILIOSP = texto(datos, C::DOMICILIOC);
    NUMEROSP = entero(datos, C::NUMEROC);
    LETRASP = texto(datos, C::LETRAC);
    ESCALERASP = texto(datos, C::ESCALERAC);
    PISOSP = texto(datos, C::PISOC);
    MANOSP = texto(datos, C::MANOC);
    if (texto(datos, C::TIPODOMI) == QLatin1String("E")) {
        // A foreign address cannot stand for the subject: only a real province is taken.
        if (Val(texto(datos, C::CODPROVC)) != 0) {
            CODPROVSP = texto(datos, C::CODPROVC);
            CODMUNSP = texto(datos, C::CODMUNC);
            NOMMUNSP = texto(datos, C::NOMMUNC);
        }
        CODPOSSP = Formato(texto(datos, C::CODPOSC), QStringLiteral("00000"));
    } else {
        CODPROVSP = texto(datos, C::CODPROVC);
        CODPOSSP = texto(datos, C::CODPOSC);
        CODMUNSP = texto(datos, C::CODMUNC);
        NOMMUNSP = texto(datos, C::NOMMUNC);
    }
    CODPROVSP = Formato(CODPROVSP, QStringLiteral("00"));
}

void cDecDatos::CargarTransmitente(const Arreglo& datos)
{
    CSTRA = entero(datos, C::CSCO);
    TIPODNITR = texto(datos, C::TIPODNI);
    DNITR = texto(datos, C::DNIC);
    NOMBRETR = texto(datos, C::NOMBREC);
    VIATR = texto(datos, C::VIAC);
    DOMICILIOTR = texto(datos, C::DOMICILIOC);
    NUMEROTR = entero(datos, C::NUMEROC);
    LETRATR = texto(datos, C::LETRAC);
    ESCALERATR = texto(datos, C::ESCALERAC);
    PISOTR = texto(datos, C::PISOC);
    MANOTR = texto(datos, C::MANOC);
    TIPODOMITR = texto(datos, C::TIPODOMI);
    PAISTR = texto(datos, C::PAIS);
    CODPROVTR = Formato(texto(datos, C::CODPROVC), QStringLiteral("00"));
    NOMPROVTR = texto(datos, C::NOMPROVC);
    CODPOSTR = texto(datos, C::CODPOSC);
    CODMUNTR = texto(datos, C::CODMUNC);
    NOMMUNTR = texto(datos, C::NOMMUNC);
    DECLASP = real(datos, C::NUMSP);
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
    Arreglo a(G::Tamano);
    a[G::CSDE] = CSDE;
    a[G::REFERENCIA] = REFERENCIA;
    a[G::CSPR] = CSPR;
    a[G::CSSU] = CSSU;
    a[G::CSTRA] = CSTRA;
    a[G::FECHAD] = FECHAD;
    a[G::ADQUIRIDO] = ADQUIRIDO;
    a[G::MARCA] = MARCA;
    a[G::TIPO] = TIPO;
    a[G::MODELO] = MODELO;
    a[G::BASTIDOR] = BASTIDOR;
    a[G::CLASIFICACION] = CLASIFICACION;
    a[G::MOTOR] = MOTOR;
    a[G::CILINDRADA] = CILINDRADA;
    a[G::OPERACION] = OPERACION;
    a[G::NOSUJETO] = NOSUJETO;
    a[G::EXENTO] = EXENTO;
    a[G::REDUCCION] = REDUCCION;
    a[G::BASEI] = BASEI;
    a[G::BASEIREDUCIDA] = BASEIREDUCIDA;
    a[G::TIPOIMP] = TIPOIMP;
    a[G::CUOTA] = CUOTA;
    a[G::DEDUCCION] = DEDUCCION;
    a[G::TOTAL] = TOTAL;
    a[G::DNISP] = DNISP;
    a[G::NOMBRESP] = NOMBRESP;
    a[G::VIASP] = VIASP;
    a[G::DOMICILIOSP] = DOMICILIOSP;
    a[G::NUMEROSP] = NUMEROSP;
    a[G::LETRASP] = LETRASP;
    a[G::ESCALERASP] = ESCALERASP;
    a[G::PISOSP] = PISOSP;
    a[G::MANOSP] = MANOSP;
    a[G::CODPROVSP] = CODPROVSP;
    a[G::NOMPROVSP] = QString();
    a[G::CODPOSSP] = CODPOSSP;
    a[G::CODMUNSP] = CODMUNSP;
    a[G::NOMMUNSP] = NOMMUNSP;
    a[G::TIPODNITR] = TIPODNITR;
    a[G::DNITR] = DNITR;
    a[G::NOMBRETR] = NOMBRETR;
    a[G::VIATR] = VIATR;
    a[G::DOMICILIOTR] = DOMICILIOTR;
    a[G::NUMEROTR] = NUMEROTR;
    a[G::LETRATR] = LETRATR;
    a[G::ESCALERATR] = ESCALERATR;
    a[G::PISOTR] = PISOTR;
    a[G::MANOTR] = MANOTR;
    a[G::TIPODOMITR] = TIPODOMITR;
    a[G::PAISTR] = PAISTR;
    a[G::CODPROVTR] = CODPROVTR;
    a[G::NOMPROVTR] = NOMPROVTR;
    a[G::CODPOSTR] = CODPOSTR;
    a[G::CODMUNTR] = CODMUNTR;
    a[G::NOMMUNTR] = NOMMUNTR;
    return a;
}

void cDecDatos::DatosCargados(const Arreglo& d)
{
    REFERENCIA = texto(d, L::REFERENCIA);
    CSPR = entero(d, L::CSPR);
    CSSU = entero(d, L::CSSU);
    CSTRA = entero(d, L::CSTRA);
    FECHAD = entero(d, L::FECHAD);
    ADQUIRIDO = texto(d, L::ADQUIRIDO);
    MARCA = texto(d, L::MARCA);
    TIPO = texto(d, L::TIPO);
    MODELO = texto(d, L::MODELO);
    BASTIDOR = texto(d, L::BASTIDOR);
    CLASIFICACION = static_cast<int16_t>(entero(d, L::CLASIFICACION));
    MOTOR = texto(d, L::MOTOR);
    CILINDRADA = entero(d, L::CILINDRADA);
    OPERACION = texto(d, L::OPERACION);
    NOSUJETO = texto(d, L::NOSUJETO);
    EXENTO = texto(d, L::EXENTO);
    REDUCCION = texto(d, L::REDUCCION);
    BASEI = real(d, L::BASEI);
    BASEIREDUCIDA = real(d, L::BASEIREDUCIDA);
    TIPOIMP = real(d, L::TIPOIMP);
    CUOTA = real(d, L::CUOTA);
    DEDUCCION = real(d, L::DEDUCCION);
    TOTAL = real(d, L::TOTAL);
    DNIPR = texto(d, L::DNIPR);
    NOMBREPR = texto(d, L::NOMBREPR);
    DNISP = texto(d, L::DNISP);
    NOMBRESP = texto(d, L::NOMBRESP);
    VIASP = texto(d, L::VIASP);
    DOMICILIOSP = texto(d, L::DOMICILIOSP);
    NUMEROSP = entero(d, L::NUMEROSP);
    LETRASP = texto(d, L::LETRASP);
    ESCALERASP = texto(d, L::ESCALERASP);
    PISOSP = texto(d, L::PISOSP);
    MANOSP = texto(d, L::MANOSP);
    CODPROVSP = texto(d, L::CODPROVSP);
    m_nomProvSp = texto(d, L::NOMPROVSP);
    CODPOSSP = texto(d, L::CODPOSSP);
    CODMUNSP = texto(d, L::CODMUNSP);
    NOMMUNSP = texto(d, L::NOMMUNSP);
    TIPODNITR = texto(d, L::TIPODNITR);
    DNITR = texto(d, L::DNITR);
    NOMBRETR = texto(d, L::NOMBRETR);
    VIATR = texto(d, L::VIATR);
    DOMICILIOTR = texto(d, L::DOMICILIOTR);
    NUMEROTR = entero(d, L::NUMEROTR);
    LETRATR = texto(d, L::LETRATR);
    ESCALERATR = texto(d, L::ESCALERATR);
    PISOTR = texto(d, L::PISOTR);
    MANOTR = texto(d, L::MANOTR);
    TIPODOMITR = texto(d, L::TIPODOMITR);
    PAISTR = texto(d, L::PAISTR);
    CODPROVTR = texto(d, L::CODPROVTR);
    NOMPROVTR = texto(d, L::NOMPROVTR);
    CODPOSTR = texto(d, L::CODPOSTR);
    CODMUNTR = texto(d, L::CODMUNTR);
    NOMMUNTR = texto(d, L::NOMMUNTR);
    DECLASP = real(d, L::DECLASP);
}

void cDecDatos::ValidarDatosDeclaracion(const Arreglo& datos, int32_t fecha,
                                        int16_t& resultado) const
{
    const cDeclaSvr svr = Almacen<cDeclaSvr>();
    const QString impresion = svr.ObtenImpresion(fecha, datos.value(6).toString());
    resultado = svr.ValidarDatosDeclaraciones(datos, impresion, fecha);
}

void cDecDatos::GuardarDeclaracion(const Arreglo& datos, int32_t& resultado, Veredicto* rechazo)
{
    resultado = Almacen<cDeclaSvr>().GuardarDeclaracion(datos, rechazo, &VERSION);
}

void cDecDatos::CargarDeclaracion()
{
    Arreglo datos;
    Almacen<cDeclaSvr>().CargarDeclaracion(CSDE, datos, &VERSION);
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

void cDecDatos::CargarContribuyente(Navegacion::Entrada entrada)
{
    const cDeclaSvr svr = Almacen<cDeclaSvr>();
    Arreglo datos;
    if (entrada == Navegacion::Entrada::Sujeto) {
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

QString cDecDatos::DameOperacionporDescripcion(const QString& descripcion) const
{
    return Almacen<cDeclaSvr>().DameOperacionporDescripcion(descripcion, FECHAD, OffsetIdioma);
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

int32_t GuardarDatosDeclaracion(Veredicto* rechazo)
{
    int32_t codigo = 0;
    DecDatos().GuardarDeclaracion(DecDatos().DatosGuardar(), codigo, rechazo);
    return codigo;
}

Vigencia VigenciaGuardado(int32_t resultado)
{
    switch (resultado) {
    case cDeclaSvr::kCambiada:
        return Vigencia::Cambiada;
    case cDeclaSvr::kBorrada:
        return Vigencia::Borrada;
    default:
        return Vigencia::Vigente;
    }
}
