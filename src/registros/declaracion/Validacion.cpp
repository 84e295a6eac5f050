#include "registros/declaracion/Validacion.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "registros/declaracion/Calculo.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cOperacion.h"
#include "valores/Formato.h"
#include "valores/Val.h"
#include "servicios/cDeclaSvr.h"

#include <QRegularExpression>

namespace {

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
    return DecDatos().ValidarDniOficial(dni);
}

}  // namespace

DatosValidacion DatosDeValidacion(bool tipoBloqueado)
{
    const cDecDatos& d = DecDatos();
    const cOperacion& op = Operacion();
    const bool nacionalTr = d.TIPODOMITR == QLatin1String("N");
    DatosValidacion v;
    v.MARCA = d.MARCA;
    v.MODELO = d.MODELO;
    v.TIPO = d.TIPO;
    v.BASTIDOR = d.BASTIDOR;
    v.CLASIFICACION = d.CLASIFICACION;
    v.CILINDRADA = d.CILINDRADA;
    v.OPERACION = d.OPERACION;
    v.BASEI = d.BASEI.centimos();
    v.TIPOIMP = d.TIPOIMP;
    v.TASA = tipoBloqueado ? 0.0 : op.T_TIP();
    v.TASAMINIMA = op.T_MIN();
    v.TASAMAXIMA = op.T_MAX();
    v.DNISP = d.DNISP;
    v.NOMBRESP = d.NOMBRESP;
    v.VIASP = d.VIASP;
    v.DOMICILIOSP = d.DOMICILIOSP;
    v.CODPROVSP = Formato(d.CODPROVSP, QStringLiteral("00"));
    v.CODPOSSP = Formato(d.CODPOSSP, QStringLiteral("00000"));
    v.CODMUNSP = d.CODMUNSP;
    v.NOMMUNSP = d.NOMMUNSP;
    v.TIPODNITR = d.TIPODNITR;
    v.DNITR = d.DNITR;
    v.NOMBRETR = d.NOMBRETR;
    v.VIATR = d.VIATR;
    v.DOMICILIOTR = d.DOMICILIOTR;
    v.TIPODOMITR = d.TIPODOMITR;
    v.PAISTR = d.PAISTR;
    v.CODPROVTR = Formato(d.CODPROVTR, QStringLiteral("00"));
    v.NOMPROVTR = d.NOMPROVTR;
    v.CODPOSTR = nacionalTr ? Formato(d.CODPOSTR, QStringLiteral("00000")) : d.CODPOSTR;
    v.CODMUNTR = d.CODMUNTR;
    v.NOMMUNTR = d.NOMMUNTR;
    v.MOTOR = d.MOTOR;
    return v;
}

namespace {

// The store's verdict with the message that names the operation's limits (rule 9) or the
// operation (rule 39).
Veredicto completar(Veredicto v, const QString& textoOperacion)
{
    if (v.id == kIdTipoImpositivoMenorQue) {
        const cOperacion& op = Operacion();
        v.mensaje = Texto(kIdTipoImpositivoMenorQue) + TextoTasa(op.T_MIN())
            + Texto(kIdTipoImpositivoNiMayorQue) + TextoTasa(op.T_MAX()) + kSaltoLinea;
    } else if (v.id == kIdOperacionNoPuedeSer) {
        v.mensaje = Texto(kIdOperacionNoPuedeSer) + textoOperacion
            + Texto(kIdOperacionAnio2006Cilindrada2499);
    }
    return v;
}

}  // namespace

Veredicto VeredictoDeclaracion(int regla, const QString& textoOperacion)
{
    return completar(cDeclaSvr::VeredictoRegla(regla), textoOperacion);
}

Veredicto VeredictoCampos(bool tipoBloqueado, const QString& titulo,
                          const QString& textoOperacion)
{
    const Resultado<void> r = DecDatos().ValidarDatosDeclaracion(DatosDeValidacion(tipoBloqueado));
    if (r)
        return {};
    Veredicto v = completar(r.veredicto(), textoOperacion);
    v.titulo = titulo;
    return v;
}

Veredicto VeredictoNifIntervinientes(const QString& titulo)
{
    const cDecDatos& d = DecDatos();
    Veredicto v;
    v.titulo = titulo;
    if (!d.DNIPR.trimmed().isEmpty() && !dniBueno(d.DNIPR)) {
        v.id = kIdDniPresentadorErroneo;
        v.mensaje = Texto(kIdDniPresentadorErroneo);
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
