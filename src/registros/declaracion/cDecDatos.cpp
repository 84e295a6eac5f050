#include "registros/declaracion/cDecDatos.h"

#include "plataforma/Estado.h"

#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "registros/declaracion/cOperacion.h"
#include "valores/Formato.h"
#include "valores/Val.h"
#include "servicios/Almacen.h"
#include "servicios/cContribSvr.h"
#include "servicios/cDeclaSvr.h"

namespace {

// What a code that names no stored return loads: every text empty, every number 0, with no
// value of a new return's.
Declaracion sinDatos(int32_t csde)
{
    Declaracion d;
    d.CSDE = csde;
    for (QString* t : {&d.MOTOR, &d.VIASP, &d.CODPROVSP, &d.TIPODNITR, &d.TIPODOMITR, &d.VIATR,
                       &d.CODPROVTR})
        *t = QString();
    return d;
}

}  // namespace

void cDecDatos::IniciarNuevo()
{
    // Every field of the return to its value for a new one; whether it differs from what is
    // stored stays.
    static_cast<Declaracion&>(*this) = Declaracion();
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
    BASEIREDUCIDA = Importe();
    TIPOIMP = 0;
    CUOTA = Importe();
    DEDUCCION = Importe();
    TOTAL = Importe();
    // On an open return a change of date keeps the base that was typed.
    if (Navegacion::RutaDec().modo == Navegacion::Modo::Nuevo)
        BASEI = Importe();
}

void cDecDatos::CargarSujetoPasivo(const Contribuyente& c)
{
    CSSU = c.CSCO;
    DNISP = c.DNIC;
    NOMBRESP = c.NOMBREC;
    VIASP = c.VIAC;
    DOMICILIOSP = c.DOMICILIOC;
    NUMEROSP = c.NUMEROC;
    LETRASP = c.LETRAC;
    ESCALERASP = c.ESCALERAC;
    PISOSP = c.PISOC;
    MANOSP = c.MANOC;
    if (c.TIPODOMI == QLatin1String("E")) {
        // A foreign address cannot stand for the subject: only a real province is taken.
        if (Val(c.CODPROVC) != 0) {
            CODPROVSP = c.CODPROVC;
            CODMUNSP = c.CODMUNC;
            NOMMUNSP = c.NOMMUNC;
        }
        CODPOSSP = Formato(c.CODPOSC, QStringLiteral("00000"));
    } else {
        CODPROVSP = c.CODPROVC;
        CODPOSSP = c.CODPOSC;
        CODMUNSP = c.CODMUNC;
        NOMMUNSP = c.NOMMUNC;
    }
    CODPROVSP = Formato(CODPROVSP, QStringLiteral("00"));
}

void cDecDatos::CargarTransmitente(const Contribuyente& c)
{
    CSTRA = c.CSCO;
    TIPODNITR = c.TIPODNI;
    DNITR = c.DNIC;
    NOMBRETR = c.NOMBREC;
    VIATR = c.VIAC;
    DOMICILIOTR = c.DOMICILIOC;
    NUMEROTR = c.NUMEROC;
    LETRATR = c.LETRAC;
    ESCALERATR = c.ESCALERAC;
    PISOTR = c.PISOC;
    MANOTR = c.MANOC;
    TIPODOMITR = c.TIPODOMI;
    PAISTR = c.PAIS;
    CODPROVTR = Formato(c.CODPROVC, QStringLiteral("00"));
    NOMPROVTR = c.NOMPROVC;
    CODPOSTR = c.CODPOSC;
    CODMUNTR = c.CODMUNC;
    NOMMUNTR = c.NOMMUNC;
    DECLASP = c.NUMSP;
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

Resultado<void> cDecDatos::ValidarDatosDeclaracion(const DatosValidacion& datos) const
{
    const cDeclaSvr svr = Almacen<cDeclaSvr>();
    const QString impresion = svr.ObtenImpresion(FECHAD, datos.OPERACION);
    return svr.ValidarDatosDeclaraciones(datos, impresion, FECHAD);
}

Resultado<void> cDecDatos::GuardarDeclaracion()
{
    Resultado<Declaracion> r = Almacen<cDeclaSvr>().GuardarDeclaracion(valor());
    if (!r)
        return r.veredicto();
    CSDE = r->CSDE;
    VERSION = r->VERSION;
    return {};
}

void cDecDatos::CargarDeclaracion()
{
    std::optional<Declaracion> d = Almacen<cDeclaSvr>().CargarDeclaracion(CSDE);
    static_cast<Declaracion&>(*this) = d ? std::move(*d) : sinDatos(CSDE);
}

void cDecDatos::BorrarDeclaracion() const
{
    Almacen<cDeclaSvr>().BorrarDeclaracion(CSDE);
}

QList<UltimaDeclaracion> cDecDatos::ObtenerUltimasDeclaraciones() const
{
    return Almacen<cDeclaSvr>().ObtenerUltimasDeclaraciones();
}

std::optional<Contribuyente> cDecDatos::ExisteContribuyente(const QString& dni) const
{
    return Almacen<cDeclaSvr>().ExisteContribuyente(dni);
}

void cDecDatos::CargarContribuyente(Navegacion::Entrada entrada)
{
    const cDeclaSvr svr = Almacen<cDeclaSvr>();
    // An unknown code clears the party.
    if (entrada == Navegacion::Entrada::Sujeto)
        CargarSujetoPasivo(svr.CargarContribuyente(CSSU).value_or(Contribuyente()));
    else
        CargarTransmitente(svr.CargarContribuyente(CSTRA).value_or(Contribuyente()));
}

bool cDecDatos::ValidarDniOficial(const QString& dni) const
{
    return Almacen<cContribSvr>().ValidarDniOficial(dni);
}

QStringList cDecDatos::CargarListaOperaciones() const
{
    return Almacen<cDeclaSvr>().ObtenerOperaciones(FECHAD, IdiomaPrograma());
}

QString cDecDatos::DameOperacionporDescripcion(const QString& descripcion) const
{
    return Almacen<cDeclaSvr>().DameOperacionporDescripcion(descripcion, FECHAD, IdiomaPrograma());
}

void cDecDatos::ObtenerDatosOperacion(bool sinReduccion) const
{
    if (const auto datos = Almacen<cDeclaSvr>().ObtenerDatosOperacion(OPERACION, FECHAD,
                                                                        IdiomaPrograma()))
        Operacion().ActualizaOperacion(*datos, sinReduccion);
    else
        Operacion().Inicializa();
}

cDecDatos& DecDatos()
{
    return Estado().de<cDecDatos>();
}
