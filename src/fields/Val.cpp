#include "fields/Val.h"

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
    // exponent. Reading stops at the first other character.
    QString limpio;
    limpio.reserve(texto.size());
    bool digitos = false, punto = false, exponente = false, signoPermitido = true;
    for (QChar c : texto) {
        if (EsBlanco(c))
            continue;
        if (c.isDigit() && c.unicode() < 128) {
            limpio.append(c);
            digitos = true;
            signoPermitido = false;
        } else if ((c == QLatin1Char('+') || c == QLatin1Char('-')) && signoPermitido) {
            limpio.append(c);
            signoPermitido = false;
        } else if (c == QLatin1Char('.') && !punto && !exponente) {
            limpio.append(c);
            punto = true;
            signoPermitido = false;
        } else if ((c == QLatin1Char('e') || c == QLatin1Char('E')) && digitos && !exponente) {
            limpio.append(c);
            exponente = true;
            signoPermitido = true;
        } else {
            break;
        }
    }
    // A dangling exponent or sign reads as if it were not there.
    while (!limpio.isEmpty()) {
        const QChar u = limpio.back();
        if (u == QLatin1Char('e') || u == QLatin1Char('E') || u == QLatin1Char('+')
            || u == QLatin1Char('-') || u == QLatin1Char('.'))
            limpio.chop(1);
        else
            break;
    }
    bool ok = false;
    const double v = limpio.toDouble(&ok);
    return ok && std::isfinite(v) ? v : 0.0;
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
