#include "valores/Formato.h"

#include <QStringList>
#include <cmath>

namespace {

const QChar kComa(QLatin1Char(','));
const QChar kPunto(QLatin1Char('.'));

// One section of a picture, taken apart.
struct Seccion {
    QString prefijo;          // literal text before the number
    QString sufijo;           // literal text after it
    int minimoEnteros = 0;    // digits always shown in the integer part
    bool agrupar = false;     // thousands marks
    bool conComa = false;     // the picture has a decimal point
    int decimales = 0;        // decimal places shown at most
    int minimoDecimales = 0;  // decimal places always shown
    bool porcentaje = false;
    bool tieneNumero = false; // any digit placeholder at all
};

bool EsMarcador(QChar c)
{
    return c == QLatin1Char('#') || c == QLatin1Char('0');
}

Seccion Analizar(const QString& picture)
{
    Seccion s;
    enum { Antes, Entero, Decimal, Despues } zona = Antes;
    bool ceroVisto = false;
    for (int i = 0; i < picture.size(); ++i) {
        const QChar c = picture[i];
        // Literals: quoted text and escaped characters go where they stand.
        if (c == QLatin1Char('"') || c == QLatin1Char('\\')) {
            QString literal;
            if (c == QLatin1Char('\\')) {
                if (i + 1 < picture.size())
                    literal = picture[++i];
            } else {
                const int fin = picture.indexOf(QLatin1Char('"'), i + 1);
                const int hasta = fin < 0 ? picture.size() : fin;
                literal = picture.mid(i + 1, hasta - i - 1);
                i = hasta;
            }
            (zona == Antes ? s.prefijo : s.sufijo) += literal;
            if (zona != Antes)
                zona = Despues;
            continue;
        }
        if (c == QLatin1Char('%'))
            s.porcentaje = true;
        if (zona == Despues || (zona == Antes && !EsMarcador(c) && c != kPunto)) {
            (zona == Antes ? s.prefijo : s.sufijo) += c;
            continue;
        }
        if (zona == Antes)
            zona = Entero;
        if (zona == Entero) {
            if (EsMarcador(c)) {
                s.tieneNumero = true;
                if (c == QLatin1Char('0'))
                    ceroVisto = true;
                if (ceroVisto)
                    ++s.minimoEnteros;
            } else if (c == kComa) {
                s.agrupar = true;
            } else if (c == kPunto) {
                s.conComa = true;
                zona = Decimal;
            } else {
                s.sufijo += c;
                zona = Despues;
            }
        } else {  // Decimal
            if (EsMarcador(c)) {
                s.tieneNumero = true;
                ++s.decimales;
                if (c == QLatin1Char('0'))
                    s.minimoDecimales = s.decimales;
            } else {
                s.sufijo += c;
                zona = Despues;
            }
        }
    }
    return s;
}

// Adds one unit to the last digit of a string of digits.
void SumarUno(QString& cifras)
{
    for (int i = cifras.size() - 1; i >= 0; --i) {
        if (cifras[i] == QLatin1Char('9')) {
            cifras[i] = QLatin1Char('0');
        } else {
            cifras[i] = QChar(cifras[i].unicode() + 1);
            return;
        }
    }
    cifras.prepend(QLatin1Char('1'));
}

// The digits of a non-negative value, read with 15 significant digits as the value is
// meant, and rounded half up to `decimales` places: integer part (no leading zeros, empty
// for zero) and fraction (exactly `decimales` digits).
void Descomponer(double absoluto, int decimales, QString& entero, QString& fraccion)
{
    entero.clear();
    fraccion.clear();
    if (absoluto > 0) {
        const QString e = QString::number(absoluto, 'e', 14);  // d.dddddddddddddde+XX
        const int marca = e.indexOf(QLatin1Char('e'));
        const QString cifras = e.left(1) + e.mid(2, marca - 2);
        const int posicion = e.mid(marca + 1).toInt() + 1;  // digits before the point
        if (posicion <= 0) {
            fraccion = QString(-posicion, QLatin1Char('0')) + cifras;
        } else if (posicion >= cifras.size()) {
            entero = cifras + QString(posicion - cifras.size(), QLatin1Char('0'));
        } else {
            entero = cifras.left(posicion);
            fraccion = cifras.mid(posicion);
        }
    }
    if (fraccion.size() > decimales) {
        const bool subir = fraccion[decimales].unicode() >= '5';
        fraccion.truncate(decimales);
        if (subir) {
            QString todo = entero + fraccion;
            const int antes = todo.size();
            SumarUno(todo);
            const int largoEntero = entero.size() + (todo.size() - antes);
            entero = todo.left(largoEntero);
            fraccion = todo.mid(largoEntero);
        }
    }
    fraccion = fraccion.leftJustified(decimales, QLatin1Char('0'));
    while (entero.startsWith(QLatin1Char('0')))
        entero.remove(0, 1);
}

QString Agrupar(const QString& cifras)
{
    QString r;
    const int n = cifras.size();
    for (int i = 0; i < n; ++i) {
        if (i > 0 && (n - i) % 3 == 0)
            r += kPunto;
        r += cifras[i];
    }
    return r;
}

QString AplicarSeccion(double absoluto, const Seccion& s)
{
    if (!s.tieneNumero && !s.conComa)
        return s.prefijo + s.sufijo;
    QString entero, fraccion;
    Descomponer(s.porcentaje ? absoluto * 100.0 : absoluto, s.decimales, entero, fraccion);
    if (entero.size() < s.minimoEnteros)
        entero = entero.rightJustified(s.minimoEnteros, QLatin1Char('0'));
    if (s.agrupar)
        entero = Agrupar(entero);
    while (fraccion.size() > s.minimoDecimales && fraccion.endsWith(QLatin1Char('0')))
        fraccion.chop(1);
    QString r = s.prefijo + entero;
    if (s.conComa)
        r += kComa + fraccion;
    return r + s.sufijo;
}

// The general form, with no picture: plain digits and the decimal comma.
QString General(double valor)
{
    QString t = QString::number(valor, 'g', 15);
    if (t.contains(QLatin1Char('e'))) {
        // Large or tiny values: written out in full with up to 15 significant digits.
        QString entero, fraccion;
        Descomponer(std::fabs(valor), 15, entero, fraccion);
        while (fraccion.endsWith(QLatin1Char('0')))
            fraccion.chop(1);
        t = (valor < 0 ? QStringLiteral("-") : QString())
            + (entero.isEmpty() ? QStringLiteral("0") : entero)
            + (fraccion.isEmpty() ? QString() : kPunto + fraccion);
    }
    t.replace(kPunto, kComa);
    return t;
}

bool SoloCeros(const QString& texto)
{
    for (QChar c : texto)
        if (c.isDigit() && c != QLatin1Char('0'))
            return false;
    return true;
}

}  // namespace

QString Formato(double valor, const QString& formato)
{
    if (!std::isfinite(valor))
        return QString();
    if (formato.isEmpty())
        return General(valor);

    const QStringList secciones = formato.split(QLatin1Char(';'));
    if (valor == 0 && secciones.size() >= 3 && !secciones[2].isEmpty())
        return AplicarSeccion(0, Analizar(secciones[2]));
    if (valor < 0 && secciones.size() >= 2 && !secciones[1].isEmpty())
        return AplicarSeccion(-valor, Analizar(secciones[1]));

    const QString r = AplicarSeccion(std::fabs(valor), Analizar(secciones[0]));
    // A negative value that rounds to nothing but zeros shows no sign.
    if (valor < 0 && !SoloCeros(r))
        return QLatin1Char('-') + r;
    return r;
}

QString Formato(const QString& valor, const QString& formato)
{
    if (valor.isEmpty())
        return QString();
    bool ok = false;
    const double numero = NumeroDeTexto(valor, &ok);
    return ok ? Formato(numero, formato) : valor;
}

double NumeroDeTexto(const QString& texto, bool* ok)
{
    if (ok)
        *ok = false;
    const QString t = texto.trimmed();
    QString limpio;
    bool digitos = false, coma = false;
    for (int i = 0; i < t.size(); ++i) {
        const QChar c = t[i];
        if (i == 0 && (c == QLatin1Char('-') || c == QLatin1Char('+'))) {
            limpio += c;
        } else if (c.unicode() >= '0' && c.unicode() <= '9') {
            limpio += c;
            digitos = true;
        } else if (c == kPunto && !coma) {
            continue;  // a group mark
        } else if (c == kComa && !coma) {
            limpio += kPunto;
            coma = true;
        } else {
            return 0;
        }
    }
    if (!digitos)
        return 0;
    bool convertido = false;
    const double v = limpio.toDouble(&convertido);
    if (!convertido || !std::isfinite(v))
        return 0;
    if (ok)
        *ok = true;
    return v;
}

QString ComaAPunto(const QString& valor)
{
    QString r = valor;
    const qsizetype coma = r.indexOf(kComa);
    if (coma >= 0)
        r[coma] = kPunto;
    return r;
}
