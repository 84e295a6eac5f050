#include "servicios/CodigoPostal.h"

namespace {

bool cifras(const QString& t)
{
    if (t.isEmpty())
        return false;
    for (QChar c : t) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return false;
    }
    return true;
}

bool ceros(const QString& t)
{
    for (QChar c : t) {
        if (c != QLatin1Char('0'))
            return false;
    }
    return true;
}

QString normalizado(const QString& codigo, int ancho)
{
    const QString t = codigo.trimmed();
    if (!cifras(t) || ceros(t))
        return {};
    qsizetype inicio = 0;
    while (t[inicio] == QLatin1Char('0'))
        ++inicio;
    const QString significativo = t.mid(inicio);
    return significativo.size() > ancho ? significativo
                                        : significativo.rightJustified(ancho, QLatin1Char('0'));
}

}  // namespace

bool SoloCifras(const QString& texto)
{
    return cifras(texto.trimmed());
}

namespace CodigoPostal {

bool EsCero(const QString& codigo)
{
    const QString t = codigo.trimmed();
    return t.isEmpty() || (cifras(t) && ceros(t));
}

bool TieneCincoCifras(const QString& codigo)
{
    const QString t = codigo.trimmed();
    return t.size() == 5 && cifras(t);
}

bool TerminaEnCeros(const QString& codigo)
{
    const QString t = codigo.trimmed();
    return TieneCincoCifras(t) && !ceros(t) && t.endsWith(QLatin1String("000"));
}

bool EsDeProvincia(const QString& codigo, const QString& provincia)
{
    const QString t = codigo.trimmed();
    const QString p = CodigoProvincia::Normalizado(provincia);
    return TieneCincoCifras(t) && !p.isEmpty() && t.left(2) == p;
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
