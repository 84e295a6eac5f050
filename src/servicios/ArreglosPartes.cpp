#include "servicios/ArreglosPartes.h"

#include "app/plataforma/Fallo.h"
#include "servicios/CodigoPostal.h"

#include <QStringList>

namespace {

[[noreturn]] void noCoincide(const char* campo, const QVariant& valor, const QString& origen)
{
    // 13 is the classic "type mismatch" of a value that cannot become its field's type.
    throw cFallo(13, origen,
                 QStringLiteral("No coinciden los tipos: %1 = '%2'")
                     .arg(QLatin1String(campo), valor.toString()));
}

QVariant valor(const Arreglo& a, int i)
{
    return i < a.size() ? a[i] : QVariant();
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

namespace ArreglosPartes {

QString Texto(const Arreglo& a, int i)
{
    return valor(a, i).toString();
}

QString TextoGuardado(const Arreglo& a, int i, int ancho, const char* campo,
                      const QString& origen)
{
    const QVariant v = valor(a, i);
    const QString t = v.toString().trimmed();
    if (t.size() > ancho)
        noCoincide(campo, v, origen);
    return noNulo(t);
}

int32_t EnteroGuardado(const Arreglo& a, int i, int32_t maximo, const char* campo,
                       const QString& origen)
{
    const QVariant v = valor(a, i);
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

QString CodigoGuardado(const Arreglo& a, int i, int ancho, const char* campo,
                       const QString& origen)
{
    const QVariant v = valor(a, i);
    const std::optional<QString> d = cifras(v);
    if (!d)
        noCoincide(campo, v, origen);
    if (d->isEmpty() || cero(*d))
        return noNulo(QString());
    QString significativo = *d;
    while (significativo.startsWith(QLatin1Char('0')))
        significativo.remove(0, 1);
    if (significativo.size() > ancho)
        noCoincide(campo, v, origen);
    return significativo.rightJustified(ancho, QLatin1Char('0'));
}

QString CifrasGuardadas(const Arreglo& a, int i, int ancho, const char* campo,
                        const QString& origen)
{
    const QVariant v = valor(a, i);
    const std::optional<QString> d = cifras(v);
    if (!d || d->size() > ancho)
        noCoincide(campo, v, origen);
    return noNulo(cero(*d) ? QString() : *d);
}

std::optional<QString> Criterio(const Arreglo& criterios, int i)
{
    const QVariant v = valor(criterios, i);
    if (!v.isValid() || v.isNull())
        return std::nullopt;
    if (esNumero(v))
        return v.toDouble() == 0 ? std::nullopt : std::optional<QString>(v.toString());
    return v.toString();
}

QString CondicionPrefijo(const QString& columna, const QString& prefijo, QVariantList& valores)
{
    // Every text that begins with the prefix sorts at or after it and before the prefix
    // followed by the highest character there is.
    const QString techo = prefijo + QString::fromUcs4(U"\U0010FFFF", 1);
    valores << prefijo << techo << static_cast<qlonglong>(prefijo.toUcs4().size()) << prefijo;
    // The comparisons with the column take its collation; a substring is no longer the
    // column, so it is given the same one by hand.
    return QStringLiteral("(%1 >= ? AND %1 < ? AND substr(%1, 1, ?) = ? COLLATE NOCASE)")
        .arg(columna);
}

QString CondicionesBusqueda(const Arreglo& criterios, const QString& nombre, const QString& dni,
                            QVariantList& valores)
{
    QStringList partes;
    if (const auto prefijo = Criterio(criterios, 1); prefijo && !prefijo->isEmpty())
        partes << CondicionPrefijo(nombre, *prefijo, valores);
    if (const auto prefijo = Criterio(criterios, 2); prefijo && !prefijo->isEmpty())
        partes << CondicionPrefijo(dni, *prefijo, valores);
    return partes.isEmpty() ? QString()
                            : QStringLiteral(" WHERE ") + partes.join(QStringLiteral(" AND "));
}

QString OrdenBusqueda(uint8_t orden, const QString& nombre, const QString& dni,
                      const QString& codigo)
{
    return QStringLiteral(" ORDER BY %1, %2").arg(orden == 2 ? dni : nombre, codigo);
}

}  // namespace ArreglosPartes
