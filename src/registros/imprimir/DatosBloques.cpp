// The data of the return placed in the blocks, in the font RellenarImpreso set.
#include "registros/declaracion/cDecDatos.h"
#include "registros/imprimir/DatosImpreso.h"
#include "registros/imprimir/ImpresoOficial.h"
#include "registros/imprimir/Primitivas.h"
#include "registros/partes/cPreDatos.h"
#include "valores/Formato.h"
#include "plataforma/Idioma.h"
#include "valores/cFecha.h"

namespace {
const QString kImporte = QStringLiteral("###,###,###,##0.00");
constexpr int kProvinciaPropia = 77;

// The fields the obligor's and the presenter's blocks share.
struct Interviniente {
    QString dni, nombre, domicilio;
    int32_t numero;
    QString letra, escalera, piso, mano, telefono;
    QString codprov, codmun, nommun, codpos;
};

int valor(const QString& texto) { return texto.trimmed().toInt(); }

QString importe(Importe cantidad) { return Formato(cantidad.euros(), kImporte); }

void municipioYProvincia(cSuperficiePagina& p, float y, const Interviniente& i)
{
    const int provincia = valor(i.codprov);
    if (provincia == 0)
        return;
    if (provincia == kProvinciaPropia) {
        if (valor(i.codmun) != 0) {
            TextoCentrado(p, 14, y + 20.5f, 65, NombreMunicipioMayus(i.codmun));
            TextoCentrado(p, 101, y + 20.5f, 10, i.codmun);
        }
    } else {
        TextoCentrado(p, 14, y + 20.5f, 65, i.nommun);
    }
    TextoCentrado(p, 114, y + 20.5f, 60, NombreProvinciaMayus(i.codprov));
    TextoCentrado(p, 181, y + 20.5f, 10, Formato(i.codprov, QStringLiteral("00")));
}

void datosInterviniente(cSuperficiePagina& p, float y, const Interviniente& i)
{
    TextoCentrado(p, 14, y + 4, 22, i.dni);
    TextoCentrado(p, 45, y + 4, 130, i.nombre);
    TextoCentrado(p, 14, y + 12, 80, i.domicilio);
    if (i.numero != 0)
        TextoCentrado(p, 101, y + 12, 10, QString::number(i.numero));
    TextoCentrado(p, 118, y + 12, 5, i.letra);
    TextoCentrado(p, 131, y + 12, 5, i.escalera);
    TextoCentrado(p, 143, y + 12, 7, i.piso);
    TextoCentrado(p, 156, y + 12, 7, i.mano);
    if (!i.telefono.isEmpty())
        TextoCentrado(p, 167, y + 12, 22, i.telefono);
    municipioYProvincia(p, y, i);
    if (valor(i.codpos) != 0)
        TextoCentrado(p, 77, y + 20.5f, 18, i.codpos);
}

QString municipioTransmitente(const Declaracion& d)
{
    if (valor(d.CODPROVTR) == kProvinciaPropia)
        return valor(d.CODMUNTR) != 0 ? NombreMunicipioMayus(d.CODMUNTR) : QString();
    return d.NOMMUNTR.trimmed();
}

QString domicilioTransmitente(const Declaracion& d)
{
    QString linea = d.DOMICILIOTR.trimmed() + QLatin1Char(' ');
    if (d.NUMEROTR != 0)
        linea += QString::number(d.NUMEROTR) + QLatin1Char(' ');
    return linea + d.LETRATR + QLatin1Char(' ') + d.ESCALERATR + QLatin1Char(' ') + d.PISOTR +
           QLatin1Char(' ') + d.MANOTR;
}
}

void DatosPeriodo(cSuperficiePagina& p, float y)
{
    const float tamano = p.FontSize;
    p.FontSize = 11;
    const int32_t fechad = DecDatos().FECHAD;
    // A date that gives no text (0 or a bad number) leaves both cells empty.
    if (cFecha::LongToString(fechad, IdiomaPrograma()) != cFecha::FecVacia(IdiomaPrograma())) {
        TextoCentrado(p, 65, y + 20.5f, 30, QString::number(fechad / 10000));
        TextoCentrado(p, 125, y + 20.5f, 30, NombreMes(fechad / 100 % 100));
    }
    p.FontSize = static_cast<float>(static_cast<int>(tamano));
}

void DatosSujetoPasivo(cSuperficiePagina& p, float y)
{
    const Declaracion& d = DecDatos();
    // The obligor's telephone cell stays blank: the return keeps no telephone of the subject.
    datosInterviniente(p, y, {d.DNISP, d.NOMBRESP, d.DOMICILIOSP, d.NUMEROSP, d.LETRASP,
                              d.ESCALERASP, d.PISOSP, d.MANOSP, QString(), d.CODPROVSP,
                              d.CODMUNSP, d.NOMMUNSP, d.CODPOSSP});
}

void DatosPresentador(cSuperficiePagina& p, float y)
{
    const cPreDatos& r = PreDatos();
    datosInterviniente(p, y, {r.DNIP, r.NOMBREP, r.DOMICILIOP, r.NUMEROP, r.LETRAP, r.ESCALERAP,
                              r.PISOP, r.MANOP, r.TELEFONOP, r.CODPROVP, r.CODMUNP, r.NOMMUNP,
                              r.CODPOSP});
}

void DatosTransmitente(cSuperficiePagina& p, float y)
{
    const Declaracion& d = DecDatos();
    TextoCentrado(p, 14, y + 4, 22, d.DNITR);
    TextoCentrado(p, 45, y + 4, 130, d.NOMBRETR);
    TextoIzquierda(p, 12, y + 12.4f, domicilioTransmitente(d));
    QString segunda = municipioTransmitente(d);
    if (valor(d.CODPOSTR) != 0)
        segunda += QStringLiteral("   ") + d.CODPOSTR;
    TextoIzquierda(p, 12, y + 15.4f, segunda);
    const QString provincia =
        valor(d.CODPROVTR) != 0 ? NombreProvinciaMayus(d.CODPROVTR) : d.NOMPROVTR;
    TextoCentrado(p, 95, y + 13, 51, provincia);
    TextoCentrado(p, 146, y + 13, 44, d.PAISTR);
}

void DatosCaracteristicas(cSuperficiePagina& p, float y)
{
    const Declaracion& d = DecDatos();
    if (d.ADQUIRIDO == QLatin1String("X"))
        TextoIzquierda(p, 161.5f, y + 3, QStringLiteral("X"));
    TextoCentrado(p, 32, y + 12, 42, d.MARCA);
    TextoCentrado(p, 78, y + 12, 42, d.TIPO);
    TextoCentrado(p, 124, y + 12, 49, d.MODELO);
    TextoCentrado(p, 32, y + 20, 75, d.BASTIDOR);
    if (d.CLASIFICACION != 0)
        TextoCentrado(p, 112, y + 20, 75, QString::number(d.CLASIFICACION));
    // A crossed box always comes out: petrol for "G", diesel for anything else.
    p.FontSize = 5;
    const float dy = d.MOTOR == QLatin1String("G") ? 25.0f : 29.0f;
    LineaNegra(p, 64, y + dy, 66, y + dy + 2);
    LineaNegra(p, 66, y + dy, 64, y + dy + 2);
    p.FontSize = 9;
    if (d.CILINDRADA != 0)
        TextoCentrado(p, 144, y + 28, 43, QString::number(d.CILINDRADA));
}

void DatosAutoliquidacion(cSuperficiePagina& p, float y)
{
    const Declaracion& d = DecDatos();
    const QString x = QStringLiteral("X");
    if (d.NOSUJETO == x)
        TextoIzquierda(p, 44.9f, y + 5.5f, x);
    if (d.EXENTO == x)
        TextoIzquierda(p, 66.9f, y + 5.5f, x);
    if (!d.REDUCCION.trimmed().isEmpty())
        TextoIzquierda(p, 90.9f, y + 5.5f, x);
    TextoDerecha(p, 187, y + 2.5f, importe(d.BASEI));
    TextoDerecha(p, 187, y + 9, importe(d.BASEIREDUCIDA));
    TextoDerecha(p, 187, y + 15, Formato(d.TIPOIMP, QStringLiteral("0.00")));
    TextoDerecha(p, 187, y + 21.5f, importe(d.CUOTA));
    TextoDerecha(p, 187, y + 28, importe(d.DEDUCCION));
    TextoDerecha(p, 187, y + 34.5f, importe(d.TOTAL));
    TextoIzquierda(p, 78, y + 24.5f, ClaveFundamento());
}
