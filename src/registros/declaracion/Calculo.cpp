#include "registros/declaracion/Calculo.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cOperacion.h"
#include "valores/Formato.h"
#include "valores/Redondeo.h"

#include <QLocale>

namespace {
const QString kMarca = QStringLiteral("X");

bool marcado(const QString& valor)
{
    return valor == kMarca;
}
}  // namespace

void AplicarOperacion()
{
    cDecDatos& d = DecDatos();
    cOperacion& op = Operacion();
    // The order is kept: an operation with both marks ends exempt, and a reduction of the
    // operation clears both marks again.
    if (marcado(op.T_NSUJ)) {
        d.NOSUJETO = op.T_NSUJ;
        d.EXENTO.clear();
        d.REDUCCION.clear();
        op.T_RED.clear();
        d.BASEIREDUCIDA = Importe();
    } else {
        d.NOSUJETO.clear();
    }
    if (marcado(op.T_EXE)) {
        d.EXENTO = op.T_EXE;
        d.NOSUJETO.clear();
        d.REDUCCION.clear();
        op.T_RED.clear();
        d.BASEIREDUCIDA = Importe();
    } else {
        d.EXENTO.clear();
    }
    if (!op.T_RED.trimmed().isEmpty()) {
        d.REDUCCION = op.T_RED;
        d.NOSUJETO.clear();
        d.EXENTO.clear();
    } else {
        d.REDUCCION.clear();
    }
    if (marcado(op.T_EXE) || marcado(op.T_NSUJ))
        d.TIPOIMP = 0;
    else if (op.T_TIP() >= 0 && op.T_TIP() <= 99)
        d.TIPOIMP = op.T_TIP();  // the rate without fixed value (99.99) leaves the one typed
    d.DEDUCCION = Importe(op.T_DEDU());
    CalcularValores();
}

void CalcularValores()
{
    cDecDatos& d = DecDatos();
    const QString reduccion = d.REDUCCION.trimmed();
    if (!reduccion.isEmpty()) {
        // "Z" (both boxes) is a case of its own, not the product of the other two.
        if (reduccion == QLatin1String("X"))
            d.BASEIREDUCIDA = d.BASEI * 0.5;
        else if (reduccion == QLatin1String("Y"))
            d.BASEIREDUCIDA = d.BASEI * 0.7;
        else if (reduccion == QLatin1String("Z"))
            d.BASEIREDUCIDA = d.BASEI * 0.2;
        d.CUOTA = Importe(Redondear(d.TIPOIMP * d.BASEIREDUCIDA.centimos() / 100, 2));
    } else {
        d.BASEIREDUCIDA = Importe();
        d.CUOTA = Importe(Redondear(d.TIPOIMP * d.BASEI.centimos() / 100, 2));
    }
    d.TOTAL = d.CUOTA - d.DEDUCCION;
    if (d.TOTAL < Importe())
        d.TOTAL = Importe();
}

void ActualizarReduccion(const CasillasReduccion& c)
{
    if (!c.habilitada1 && !c.habilitada2)
        return;
    cDecDatos& d = DecDatos();
    QString codigo;
    if (c.marcada1 && !c.marcada2)
        codigo = QStringLiteral("X");
    else if (!c.marcada1 && c.marcada2)
        codigo = QStringLiteral("Y");
    else if (c.marcada1 && c.marcada2)
        codigo = QStringLiteral("Z");
    d.REDUCCION = codigo;
    // The operation keeps the choice, so that a new date or a reload of it does not lose it.
    Operacion().T_RED = codigo;
    if (codigo.isEmpty())
        d.BASEIREDUCIDA = Importe();
}

ResultadoTipo AceptarTipoImpositivo(double valor, bool bloqueada, bool saltarValidacion)
{
    ResultadoTipo r;
    if (saltarValidacion || bloqueada)
        return r;
    cDecDatos& d = DecDatos();
    const cOperacion& op = Operacion();
    if (valor == d.TIPOIMP && valor != 0)
        return r;
    if (EsTasaLibre(op.T_TIP())) {
        if (valor >= op.T_MIN() && valor <= op.T_MAX()) {
            d.TIPOIMP = valor;
        } else {
            r.veredicto.id = kIdTipoImpositivoMenorQue;
            r.veredicto.mensaje = Texto(kIdTipoImpositivoMenorQue) + TextoTasa(op.T_MIN())
                + Texto(kIdTipoImpositivoNiMayorQue) + TextoTasa(op.T_MAX());
            r.veredicto.botones = vb::Exclamation;
            r.veredicto.titulo = Texto(kIdErrorIntroduccionDatos);
            r.veredicto.control = QStringLiteral("txttipoimp");
            r.volverAlTipo = true;
        }
    } else {
        d.TIPOIMP = valor;
    }
    CalcularValores();
    r.presentar = true;
    return r;
}

void AjustarTipoImpositivo(bool bloqueada)
{
    const cOperacion& op = Operacion();
    if (bloqueada || !EsTasaLibre(op.T_TIP()))
        return;
    cDecDatos& d = DecDatos();
    if (d.TIPOIMP < op.T_MIN() || d.TIPOIMP > op.T_MAX())
        d.TIPOIMP = 0;
}

void LimpiarOperacion()
{
    cDecDatos& d = DecDatos();
    cOperacion& op = Operacion();
    d.OPERACION.clear();
    d.BASEIREDUCIDA = Importe();
    op.setT_DEDU(0);
    op.T_NSUJ.clear();
    op.T_EXE.clear();
    op.T_RED.clear();
    op.setT_TIP(0);
}

Importe BaseDeTexto(const QString& texto)
{
    // The form shows the base the Spanish way with two decimals; read so, whatever the
    // machine's settings, its digits are the cents.
    bool ok = false;
    const double euros = NumeroDeTexto(texto, &ok);
    if (!ok)
        return Importe();
    return Importe(Redondear(euros * 100, 0));
}

QString TextoTasa(double tasa)
{
    QLocale espanol(QLocale::Spanish, QLocale::Spain);
    espanol.setNumberOptions(QLocale::OmitGroupSeparator);
    return espanol.toString(tasa, 'f', QLocale::FloatingPointShortest);
}

std::optional<double> TipoTurismo(int clasificacion, const QString& motor, int cilindrada)
{
    const QString cuatro = Formato(static_cast<double>(clasificacion), QStringLiteral("0000"));
    if (cuatro.size() != 4 || !cuatro.startsWith(QLatin1String("10")))
        return std::nullopt;
    const bool pequeno = (motor == QLatin1String("D") && cilindrada < 2000)
        || (motor == QLatin1String("G") && cilindrada < 1600);
    return pequeno ? 7.0 : 12.0;
}

void TipoInicialTurismo(const QString& textoClasificacion)
{
    cDecDatos& d = DecDatos();
    if (d.CLASIFICACION <= 0 || !d.EXENTO.isEmpty() || !d.NOSUJETO.isEmpty()
        || textoClasificacion.size() != 4 || !textoClasificacion.startsWith(QLatin1String("10")))
        return;
    if (const auto tipo = TipoTurismo(d.CLASIFICACION, d.MOTOR, d.CILINDRADA)) {
        d.TIPOIMP = *tipo;
        CalcularValores();
    }
}

void TipoInicialTurismoSinCalcular()
{
    cDecDatos& d = DecDatos();
    if (const auto tipo = TipoTurismo(d.CLASIFICACION, d.MOTOR, d.CILINDRADA))
        d.TIPOIMP = *tipo;
}
