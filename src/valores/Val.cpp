#include "valores/Val.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace {

bool EsBlanco(QChar c)
{
    return c == QLatin1Char(' ') || c == QLatin1Char('\t') || c == QLatin1Char('\n')
        || c == QLatin1Char('\r');
}

}  // namespace

double Val(const QString& texto)
{
    // Only the characters of a plain decimal number count: sign, digits, one point, an
    // exponent. Reading stops at the first other character. The number is gathered in a
    // small buffer and read without the machine's locale.
    char buffer[64];
    int n = 0;
    bool digitos = false, punto = false, exponente = false, signoPermitido = true;
    for (QChar c : texto) {
        if (n >= int(sizeof buffer) - 1)
            break;
        if (EsBlanco(c))
            continue;
        const char16_t u = c.unicode();
        if (u >= '0' && u <= '9') {
            buffer[n++] = char(u);
            digitos = true;
            signoPermitido = false;
        } else if ((u == '+' || u == '-') && signoPermitido) {
            buffer[n++] = char(u);
            signoPermitido = false;
        } else if (u == '.' && !punto && !exponente) {
            buffer[n++] = '.';
            punto = true;
            signoPermitido = false;
        } else if ((u == 'e' || u == 'E') && digitos && !exponente) {
            buffer[n++] = 'e';
            exponente = true;
            signoPermitido = true;
        } else {
            break;
        }
    }
    // A dangling exponent, sign or point reads as if it were not there.
    while (n > 0 && (buffer[n - 1] == 'e' || buffer[n - 1] == '+' || buffer[n - 1] == '-'
                     || buffer[n - 1] == '.'))
        --n;
    const char* inicio = buffer;
    if (n > 0 && buffer[0] == '+')
        ++inicio;  // from_chars takes no leading plus
    double v = 0.0;
    const auto [fin, error] = std::from_chars(inicio, buffer + n, v);
    (void)fin;
    return error == std::errc() && std::isfinite(v) ? v : 0.0;
}

std::optional<long long> EnteroEstricto(const QString& texto, long long minimo, long long maximo)
{
    const QString t = texto.trimmed();
    if (t.isEmpty())
        return std::nullopt;
    int i = 0;
    bool negativo = false;
    if (t[0] == QLatin1Char('-') || t[0] == QLatin1Char('+')) {
        negativo = t[0] == QLatin1Char('-');
        i = 1;
    }
    if (i >= t.size())
        return std::nullopt;
    long long valor = 0;
    for (; i < t.size(); ++i) {
        const QChar c = t[i];
        if (c.unicode() < '0' || c.unicode() > '9')
            return std::nullopt;
        if (valor > (std::numeric_limits<long long>::max() - 9) / 10)
            return std::nullopt;
        valor = valor * 10 + (c.unicode() - '0');
    }
    if (negativo)
        valor = -valor;
    if (valor < minimo || valor > maximo)
        return std::nullopt;
    return valor;
}
