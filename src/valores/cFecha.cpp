#include "valores/cFecha.h"

#include "valores/Val.h"

#include <cmath>

namespace {

const QString kVaciaCastellano = QStringLiteral("__/__/____");
const QString kVaciaEuskera = QStringLiteral("____/__/__");

// A two-character part of a date, read with a "0" in front as a 16-bit whole number; a part
// that is not a number is a failure.
std::optional<int> ParteFija(const QString& parte)
{
    const auto v = EnteroEstricto(QLatin1Char('0') + parte, -32768, 32767);
    if (!v)
        return std::nullopt;
    return static_cast<int>(*v);
}

// The part that runs to the end of the text, read by its leading number (0 if none), into a
// 16-bit whole number: a year that does not fit is a failure.
std::optional<int> ParteLibre(const QString& parte)
{
    const double v = std::nearbyint(Val(parte));  // halves to even, as the old conversion did
    if (v < -32768.0 || v > 32767.0)
        return std::nullopt;
    return static_cast<int>(v);
}

bool EsBisiesto(int anio)
{
    return anio % 4 == 0 && (anio % 100 != 0 || anio % 400 == 0);
}

}  // namespace

QString cFecha::FecVacia(Idioma idioma)
{
    return idioma.segun(kVaciaCastellano, kVaciaEuskera);
}

bool cFecha::EsFecha(const QString& fecha, Idioma idioma, std::optional<int16_t> minimo)
{
    if (fecha == FecVacia(idioma))
        return true;

    std::optional<int> dia, mes, anio;
    if (idioma.esCastellano()) {
        dia = ParteFija(fecha.mid(0, 2));
        mes = ParteFija(fecha.mid(3, 2));
        anio = ParteLibre(fecha.mid(6));
    } else {
        anio = ParteFija(fecha.mid(0, 4));
        mes = ParteFija(fecha.mid(5, 2));
        dia = ParteLibre(fecha.mid(8));
    }
    if (!dia || !mes || !anio)
        return false;

    // At least four digits: years below 1000 are out, whatever was typed.
    if (QString::number(*anio).size() < 4)
        return false;
    if (*anio < minimo.value_or(0))
        return false;
    if (*dia < 1 || *dia > 31 || *mes < 1 || *mes > 12)
        return false;
    if (*mes == 2) {
        if (*dia >= 30)
            return false;
        if (*dia == 29)
            return EsBisiesto(*anio);
    }
    if ((*mes == 4 || *mes == 6 || *mes == 9 || *mes == 11) && *dia == 31)
        return false;
    return true;
}

int32_t cFecha::StringToLong(const QString& fecha, Idioma idioma, std::optional<int16_t> minimo)
{
    if (fecha == FecVacia(idioma))
        return 0;
    if (!EsFecha(fecha, idioma, minimo))
        return -1;
    // The pieces are taken as they stand from the ends of the text: four characters of year,
    // two of month, two of day.
    const QString numero = idioma.esCastellano()
        ? fecha.right(4) + fecha.mid(3, 2) + fecha.left(2)
        : fecha.left(4) + fecha.mid(5, 2) + fecha.right(2);
    const auto v = EnteroEstricto(numero, INT32_MIN, INT32_MAX);
    return v ? static_cast<int32_t>(*v) : 0;
}

QString cFecha::LongToString(int32_t numero, Idioma idioma, std::optional<QString> marcador)
{
    if (numero < 1)
        return FecVacia(idioma);

    const QString cifras = QString::number(numero);
    QString dia, mes, anio;
    if (marcador) {
        dia = cifras.left(2);
        mes = cifras.mid(2, 2);
        anio = cifras.right(4);
    } else {
        anio = cifras.left(4);
        mes = cifras.mid(4, 2);
        dia = cifras.right(2);
    }
    const QChar barra(QLatin1Char('/'));
    const QString texto = idioma.esCastellano() ? dia + barra + mes + barra + anio
                                                : anio + barra + mes + barra + dia;
    return EsFecha(texto, idioma, 0) ? texto : FecVacia(idioma);
}
