#include "servicios/CodigoPostal.h"

// The checks read their texts as views: blanks are set aside without a copy, since the import
// runs them for every line of a file.
namespace {

bool cifras(QStringView t)
{
    if (t.isEmpty())
        return false;
    for (QChar c : t) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return false;
    }
    return true;
}

bool ceros(QStringView t)
{
    for (QChar c : t) {
        if (c != QLatin1Char('0'))
            return false;
    }
    return true;
}

bool cincoCifras(QStringView t)
{
    return t.size() == 5 && cifras(t);
}

// The significant digits of a code (leading zeros dropped); empty for no code.
QStringView significativo(QStringView codigo)
{
    QStringView t = codigo.trimmed();
    if (!cifras(t) || ceros(t))
        return {};
    while (t.front() == QLatin1Char('0'))
        t = t.sliced(1);
    return t;
}

QString normalizado(const QString& codigo, int ancho)
{
    // A code already in its fixed-width form, as a file's codes come, is kept as given.
    if (codigo.size() == ancho && cifras(codigo) && !ceros(codigo))
        return codigo;
    const QStringView t = significativo(codigo);
    if (t.isEmpty())
        return {};
    if (t.size() >= ancho)
        return t.toString();
    QString fijo(ancho - t.size(), QLatin1Char('0'));
    fijo.append(t);
    return fijo;
}

// The postal code begins with the province's code (given with or without its leading 0).
bool deProvincia(QStringView cp, QStringView provincia)
{
    const QStringView p = significativo(provincia);
    if (p.isEmpty() || p.size() > 2)
        return false;
    return p.size() == 2 ? cp.first(2) == p : cp[0] == QLatin1Char('0') && cp[1] == p[0];
}

}  // namespace

bool SoloCifras(const QString& texto)
{
    return cifras(QStringView(texto).trimmed());
}

namespace CodigoPostal {

bool EsCero(const QString& codigo)
{
    const QStringView t = QStringView(codigo).trimmed();
    return t.isEmpty() || (cifras(t) && ceros(t));
}

bool TieneCincoCifras(const QString& codigo)
{
    return cincoCifras(QStringView(codigo).trimmed());
}

bool TerminaEnCeros(const QString& codigo)
{
    const QStringView t = QStringView(codigo).trimmed();
    return cincoCifras(t) && !ceros(t) && t.endsWith(QLatin1String("000"));
}

bool EsDeProvincia(const QString& codigo, const QString& provincia)
{
    const QStringView t = QStringView(codigo).trimmed();
    return cincoCifras(t) && deProvincia(t, provincia);
}

bool EsValidoEnProvincia(const QString& codigo, const QString& provincia)
{
    return !EsCero(codigo) && EsDeProvincia(codigo, provincia) && !TerminaEnCeros(codigo);
}

}  // namespace CodigoPostal

namespace CodigoProvincia {
QString Normalizado(const QString& codigo)
{
    return normalizado(codigo, 2);
}
}  // namespace CodigoProvincia

namespace CodigoMunicipio {
QString Normalizado(const QString& codigo)
{
    return normalizado(codigo, 3);
}
}  // namespace CodigoMunicipio
