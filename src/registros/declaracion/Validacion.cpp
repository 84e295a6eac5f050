#include "registros/declaracion/Validacion.h"

#include "catalogo/Catalogo.h"
#include "registros/declaracion/Calculo.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cOperacion.h"
#include "valores/Formato.h"
#include "valores/Val.h"
#include "servicios/cDeclaSvr.h"

#include <QRegularExpression>
#include <array>

namespace {

struct Regla {
    int id;            // catalogue id of the message
    const char* control;
    int pestana;
};

// Rule number n is entry n - 1. Rules 9 and 39 join a second id to their message (below).
constexpr std::array<Regla, cDeclaSvr::kUltimaRegla> kReglas{{
    {132, "txtmarca", kPestanaNinguna},          // 1
    {133, "txtmodelo", kPestanaNinguna},         // 2
    {134, "txttipo", kPestanaNinguna},           // 3
    {135, "txtbastidor", kPestanaNinguna},       // 4
    {136, "txtclasificacion", kPestanaNinguna},  // 5
    {137, "txtcilindrada", kPestanaNinguna},     // 6
    {138, "txtoperacion", kPestanaNinguna},      // 7
    {139, "txtbasei", kPestanaNinguna},          // 8
    {140, "txttipoimp", kPestanaNinguna},        // 9, with 141
    {330, "txtdnisp", kPestanaSujeto},           // 10
    {143, "txtnombresp", kPestanaSujeto},        // 11
    {144, "txtviasp", kPestanaSujeto},           // 12
    {145, "txtdomiciliosp", kPestanaSujeto},     // 13
    {146, "txtcodmunsp", kPestanaSujeto},        // 14
    {147, "txtnommunsp", kPestanaSujeto},        // 15
    {148, "txtcodpossp", kPestanaSujeto},        // 16
    {149, "txtcodpossp", kPestanaSujeto},        // 17
    {150, "txtcodpossp", kPestanaSujeto},        // 18
    {151, "txtdnitr", kPestanaTransmitente},     // 19
    {152, "txtdnitr", kPestanaTransmitente},     // 20
    {153, "txtnombretr", kPestanaTransmitente},  // 21
    {154, "txtviatr", kPestanaTransmitente},     // 22
    {155, "txtdomiciliotr", kPestanaTransmitente},  // 23
    {156, "txtpaistr", kPestanaTransmitente},    // 24
    {157, "txtcodpostr", kPestanaTransmitente},  // 25
    {158, "txtcodpostr", kPestanaTransmitente},  // 26
    {159, "txtcodpostr", kPestanaTransmitente},  // 27
    {160, "txtcodpostr", kPestanaTransmitente},  // 28
    {161, "txtnomprovtr", kPestanaTransmitente},  // 29
    {162, "txtnommuntr", kPestanaTransmitente},  // 30
    {163, "txtcodprovtr", kPestanaTransmitente},  // 31
    {164, "txtcodmuntr", kPestanaTransmitente},  // 32
    {283, "txtcilindrada", kPestanaNinguna},     // 33
    {284, "txtcilindrada", kPestanaNinguna},     // 34
    {281, "txtcilindrada", kPestanaNinguna},     // 35
    {282, "txtcilindrada", kPestanaNinguna},     // 36
    {323, "txtdnisp", kPestanaSujeto},           // 37
    {324, "txtoperacion", kPestanaNinguna},      // 38
    {356, "txtoperacion", kPestanaNinguna},      // 39, with the operation and 357
    {362, "txtoperacion", kPestanaNinguna},      // 40
}};

const QString kSaltoLinea = QStringLiteral("\n");

// A tax number that reads as a number: digits, with a sign and a decimal point allowed, and
// blanks around.
bool esNumerico(const QString& texto)
{
    static const QRegularExpression numero(QStringLiteral(R"(^\s*[+-]?(\d+\.?\d*|\.\d+)\s*$)"));
    return numero.match(texto).hasMatch();
}

bool dniBueno(const QString& dni)
{
    bool bueno = false;
    DecDatos().ValidarDniOficial(dni, bueno);
    return bueno;
}

}  // namespace

Arreglo DatosValidacion(bool tipoBloqueado)
{
    const cDecDatos& d = DecDatos();
    const cOperacion& op = Operacion();
    const bool nacionalTr = d.TIPODOMITR == QLatin1String("N");
    return {
        d.MARCA,
        d.MODELO,
        d.TIPO,
        d.BASTIDOR,
        d.CLASIFICACION,
        d.CILINDRADA,
        d.OPERACION,
        d.BASEI,
        d.TIPOIMP,
        tipoBloqueado ? 0.0 : op.T_TIP(),
        op.T_MIN(),
        op.T_MAX(),
        d.DNISP,
        d.NOMBRESP,
        d.VIASP,
        d.DOMICILIOSP,
        Formato(d.CODPROVSP, QStringLiteral("00")),
        Formato(d.CODPOSSP, QStringLiteral("00000")),
        d.CODMUNSP,
        d.NOMMUNSP,
        d.TIPODNITR,
        d.DNITR,
        d.NOMBRETR,
        d.VIATR,
        d.DOMICILIOTR,
        d.TIPODOMITR,
        d.PAISTR,
        Formato(d.CODPROVTR, QStringLiteral("00")),
        d.NOMPROVTR,
        nacionalTr ? Formato(d.CODPOSTR, QStringLiteral("00000")) : d.CODPOSTR,
        d.CODMUNTR,
        d.NOMMUNTR,
        d.MOTOR,
    };
}

VeredictoValidacion VeredictoDeclaracion(int16_t numero, const QString& textoOperacion)
{
    VeredictoValidacion v;
    v.numero = numero;
    v.botones = vb::Information;
    if (numero < 1 || numero > cDeclaSvr::kUltimaRegla)
        return v;
    const Regla& r = kReglas[numero - 1];
    v.id = r.id;
    v.control = QLatin1String(r.control);
    v.pestana = r.pestana;
    if (numero == 9) {
        const cOperacion& op = Operacion();
        v.mensaje = Texto(140) + TextoTasa(op.T_MIN()) + Texto(141) + TextoTasa(op.T_MAX())
            + kSaltoLinea;
    } else if (numero == 39) {
        v.mensaje = Texto(356) + textoOperacion + Texto(357);
    } else {
        v.mensaje = Texto(r.id);
    }
    return v;
}

VeredictoValidacion VeredictoCampos(bool tipoBloqueado, const QString& titulo,
                                    const QString& textoOperacion)
{
    const Arreglo datos = DatosValidacion(tipoBloqueado);
    int16_t numero = 0;
    DecDatos().ValidarDatosDeclaracion(datos, DecDatos().FECHAD, numero);
    VeredictoValidacion v = VeredictoDeclaracion(numero, textoOperacion);
    v.titulo = titulo;
    return v;
}

Veredicto VeredictoNifIntervinientes(const QString& titulo)
{
    const cDecDatos& d = DecDatos();
    Veredicto v;
    v.titulo = titulo;
    if (!d.DNIPR.trimmed().isEmpty() && !dniBueno(d.DNIPR)) {
        v.id = 331;
        v.mensaje = Texto(331);
        v.botones = vb::Information;
        return v;
    }
    QString lista;
    if (!dniBueno(d.DNISP))
        lista += QStringLiteral(", ") + d.DNISP;
    if (d.TIPODNITR == QLatin1String("O")) {
        if (!dniBueno(d.DNITR))
            lista += QStringLiteral(", ") + d.DNITR;
    } else if (esNumerico(d.DNITR) && Val(d.DNITR) == 0) {
        lista += QStringLiteral(", ") + d.DNITR;
    }
    if (lista.isEmpty())
        return {};
    // The first character goes, so one blank stays ahead of the first number.
    const QString numeros = lista.mid(1);
    v.mensaje = TextoSegunIdioma(
        QStringLiteral("El/Los Interviniente/s con NIF: ") + numeros
            + QStringLiteral(" tiene/n un NIF erróneo o necesita/n llevar el dígito de "
                             "control"),
        numeros
            + QStringLiteral(" IFZ duten esku hartzailea(e)k IFZ okerra du(te) edo "
                             "kontrol digitua eraman behar du(te)."));
    v.botones = vb::Exclamation;
    return v;
}
