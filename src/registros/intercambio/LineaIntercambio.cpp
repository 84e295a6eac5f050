#include "registros/intercambio/LineaIntercambio.h"

#include "registros/intercambio/Cp1252.h"

#include <algorithm>

namespace {

constexpr std::array<DefinicionCampo, kCamposIntercambio> kDefiniciones = {{
    {1, 1, false, "TIPODNI(1)"},
    {2, 9, false, "DNI(9)"},
    {11, 40, false, "NOMBRE(40)"},
    {51, 2, false, "SIGLAS(2)"},
    {53, 20, false, "DOMICILIO(20)"},
    {73, 5, true, "NUMERO(5)"},
    {78, 2, false, "LETRA(2)"},
    {80, 2, false, "ESCALERA(2)"},
    {82, 2, false, "PISO(2)"},
    {84, 3, false, "MANO(3)"},
    {87, 1, false, "TIPODOMICILIO(1)"},
    {88, 20, false, "PAIS(20)"},
    {108, 2, true, "CODIGO PROVINCIA(2)"},
    {110, 20, false, "NOMBRE PROVINCIA(20)"},
    {130, 5, true, "CODIGO POSTAL(5)"},
    {135, 3, true, "CODIGO MUNICIPIO(3)"},
    {138, 25, false, "NOMBRE MUNICIOPIO(25)"},
    {163, 7, true, "NUMERO SUJETO PASIVO(7)"},
    {170, 7, true, "NUMERO TRANSMITENTE(7)"},
}};

// The layout is checked once, at compile time: each field starts where the one before ends,
// and the last ends at the end of the line.
constexpr bool LayoutContiguo()
{
    int siguiente = 1;
    for (const DefinicionCampo& d : kDefiniciones) {
        if (d.posicion != siguiente)
            return false;
        siguiente += d.ancho;
    }
    return siguiente == kLargoLineaIntercambio + 1;
}
static_assert(LayoutContiguo());

}  // namespace

const DefinicionCampo& Definicion(CampoIntercambio campo)
{
    return kDefiniciones[Indice(campo)];
}

QString FormatoTexto(const QString& valor, int ancho, QChar relleno)
{
    return valor.size() >= ancho ? valor : valor + QString(ancho - valor.size(), relleno);
}

QString FormatoNumero(int64_t valor, int ancho, QChar relleno)
{
    return QString::number(valor).rightJustified(ancho, relleno);
}

LineaLeida CortarLinea(const QByteArray& linea)
{
    LineaLeida leida;
    leida.corta = linea.size() < kLargoLineaIntercambio;
    // Each field straight from its bytes; those of a short line are what it holds of them.
    for (int i = 0; i < kCamposIntercambio; ++i) {
        const DefinicionCampo& d = kDefiniciones[i];
        const qsizetype desde = std::min<qsizetype>(d.posicion - 1, linea.size());
        const qsizetype largo = std::min<qsizetype>(d.ancho, linea.size() - desde);
        leida.campos[i] = Cp1252::Decodificar(linea.constData() + desde, largo);
    }
    return leida;
}

std::optional<QByteArray> ComponerLinea(const ValoresLinea& valores, FalloLinea* fallo)
{
    const auto falla = [fallo](FalloLinea f) -> std::optional<QByteArray> {
        if (fallo)
            *fallo = f;
        return std::nullopt;
    };
    QString texto;
    texto.reserve(kLargoLineaIntercambio);
    for (int i = 0; i < kCamposIntercambio; ++i) {
        const DefinicionCampo& d = kDefiniciones[i];
        if (d.numero) {
            const int64_t n = valores.numeros[i];
            const QString cifras = FormatoNumero(n, d.ancho);
            if (n < 0 || cifras.size() > d.ancho)
                return falla(FalloLinea::NumeroDemasiadoLargo);
            texto += cifras;
        } else {
            texto += FormatoTexto(valores.textos[i].left(d.ancho), d.ancho);
        }
    }
    // A line feed inside a field would split the line in two when it is read back.
    const std::optional<QByteArray> bytes = Cp1252::Codificar(texto);
    if (!bytes || bytes->contains('\n'))
        return falla(FalloLinea::CaracterNoRepresentable);
    if (fallo)
        *fallo = FalloLinea::Ninguno;
    return bytes;
}
