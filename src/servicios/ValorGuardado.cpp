#include "servicios/ValorGuardado.h"

#include "plataforma/Fallo.h"
#include "servicios/CodigoPostal.h"
#include "servicios/TextoGuardable.h"

#include <optional>

namespace {

[[noreturn]] void noCoincide(const char* campo, const QVariant& valor, const QString& origen)
{
    // Failure 13, "type mismatch": a value cannot become its field's type.
    throw cFallo(13, origen,
                 QStringLiteral("No coinciden los tipos: %1 = '%2'")
                     .arg(QLatin1String(campo), valor.toString()));
}

bool esNumero(const QVariant& v)
{
    switch (v.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Double:
    case QMetaType::Float:
        return true;
    default:
        return false;
    }
}

// The digits of a code as text, "" when blank; nullopt when it is not made of digits.
std::optional<QString> cifras(const QVariant& v)
{
    if (esNumero(v)) {
        const double d = v.toDouble();
        if (d < 0 || d != static_cast<double>(static_cast<long long>(d)))
            return std::nullopt;
        return QString::number(static_cast<long long>(d));
    }
    const QString t = v.toString().trimmed();
    if (t.isEmpty())
        return QString();
    if (!SoloCifras(t))
        return std::nullopt;
    return t;
}

// A text value that is never null: SQLite takes a null QString for NULL.
QString noNulo(const QString& t)
{
    return t.isNull() ? QStringLiteral("") : t;
}

bool cero(const QString& digitos)
{
    for (QChar c : digitos) {
        if (c != QLatin1Char('0'))
            return false;
    }
    return true;
}

}  // namespace

namespace ValorGuardado {


QString TextoGuardado(const QVariant& v, int ancho, const char* campo, const QString& origen)
{
    const QString dado = v.toString();
    // A text without blanks around it (the usual case: panels and the import trim them) is
    // kept as it is shared, without a copy.
    const QStringView recortado = QStringView(dado).trimmed();
    QString t = recortado.size() == dado.size() ? dado : recortado.toString();
    // Whole characters, as the column counts them (a character beyond the BMP is one).
    if (Caracteres(t) > ancho)
        noCoincide(campo, v, origen);
    if (t.isNull())
        t = QStringLiteral("");  // SQLite takes a null text for NULL
    return t;
}


int32_t EnteroGuardado(const QVariant& v, int32_t maximo, const char* campo,
                       const QString& origen)
{
    const std::optional<QString> d = cifras(v);
    if (!d)
        noCoincide(campo, v, origen);
    if (d->isEmpty())
        return 0;
    bool ok = false;
    const long long n = d->toLongLong(&ok);
    if (!ok || n > maximo)
        noCoincide(campo, v, origen);
    return static_cast<int32_t>(n);
}


QString CodigoGuardado(const QVariant& v, int ancho, const char* campo, const QString& origen)
{
    const std::optional<QString> d = cifras(v);
    if (!d)
        noCoincide(campo, v, origen);
    if (d->isEmpty() || cero(*d))
        return noNulo(QString());
    qsizetype ceros = 0;
    while (d->at(ceros) == QLatin1Char('0'))
        ++ceros;
    if (d->size() - ceros > ancho)
        noCoincide(campo, v, origen);
    // The digits already at the width, as a file's fixed-width codes come, are kept as given
    // (no copy); the others are cut to it or filled with leading zeros.
    if (d->size() >= ancho)
        return d->size() == ancho ? *d : d->right(ancho);
    return d->rightJustified(ancho, QLatin1Char('0'));
}


QString CifrasGuardadas(const QVariant& v, int ancho, const char* campo, const QString& origen)
{
    const std::optional<QString> d = cifras(v);
    if (!d || d->size() > ancho)
        noCoincide(campo, v, origen);
    return noNulo(cero(*d) ? QString() : *d);
}

}  // namespace ValorGuardado
