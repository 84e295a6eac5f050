#include "servicios/ArreglosPartes.h"

#include "plataforma/Fallo.h"
#include "servicios/BusquedaTexto.h"
#include "servicios/CodigoPostal.h"
#include "servicios/TextoGuardable.h"

#include <QStringList>
#include <algorithm>
#include <vector>

namespace {

[[noreturn]] void noCoincide(const char* campo, const QVariant& valor, const QString& origen)
{
    // Failure 13, "type mismatch": a value of the array cannot become its field's type.
    throw cFallo(13, origen,
                 QStringLiteral("No coinciden los tipos: %1 = '%2'")
                     .arg(QLatin1String(campo), valor.toString()));
}

const QVariant& valor(const Arreglo& a, int i)
{
    static const QVariant kNada;
    return i < a.size() ? a[i] : kNada;
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
    return TextoGuardado(valor(a, i), ancho, campo, origen);
}

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

int32_t EnteroGuardado(const Arreglo& a, int i, int32_t maximo, const char* campo,
                       const QString& origen)
{
    return EnteroGuardado(valor(a, i), maximo, campo, origen);
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

QString CodigoGuardado(const Arreglo& a, int i, int ancho, const char* campo,
                       const QString& origen)
{
    return CodigoGuardado(valor(a, i), ancho, campo, origen);
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

QString CifrasGuardadas(const Arreglo& a, int i, int ancho, const char* campo,
                        const QString& origen)
{
    return CifrasGuardadas(valor(a, i), ancho, campo, origen);
}

QString CifrasGuardadas(const QVariant& v, int ancho, const char* campo, const QString& origen)
{
    const std::optional<QString> d = cifras(v);
    if (!d || d->size() > ancho)
        noCoincide(campo, v, origen);
    return noNulo(cero(*d) ? QString() : *d);
}

std::optional<QString> Criterio(const Arreglo& criterios, int i)
{
    const QVariant& v = valor(criterios, i);
    if (!v.isValid() || v.isNull())
        return std::nullopt;
    if (esNumero(v))
        return v.toDouble() == 0 ? std::nullopt : std::optional<QString>(v.toString());
    return v.toString();
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

QByteArray ClaveDeOrden(const QString& texto)
{
    QByteArray clave;
    clave.reserve(texto.size() * 2);
    for (QChar c : texto) {
        char16_t u = c.unicode();
        // Lower-case letters fold into upper case; accented vowels into their vowel.
        if (u >= u'a' && u <= u'z')
            u = char16_t(u - u'a' + u'A');
        int peso;
        switch (u) {
        case u'\u00D1': case u'\u00F1': peso = u'N' * 4 + 2; break;   // Ñ ñ
        case u'\u00C7': case u'\u00E7': peso = u'C' * 4 + 2; break;   // Ç ç
        case u'\u00C1': case u'\u00E1': case u'\u00C0': case u'\u00E0':
        case u'\u00C4': case u'\u00E4': peso = u'A' * 4; break;
        case u'\u00C9': case u'\u00E9': case u'\u00C8': case u'\u00E8':
        case u'\u00CB': case u'\u00EB': peso = u'E' * 4; break;
        case u'\u00CD': case u'\u00ED': case u'\u00CC': case u'\u00EC':
        case u'\u00CF': case u'\u00EF': peso = u'I' * 4; break;
        case u'\u00D3': case u'\u00F3': case u'\u00D2': case u'\u00F2':
        case u'\u00D6': case u'\u00F6': peso = u'O' * 4; break;
        case u'\u00DA': case u'\u00FA': case u'\u00D9': case u'\u00F9':
        case u'\u00DC': case u'\u00FC': peso = u'U' * 4; break;
        default: peso = u < 0x3FFF ? u * 4 : 0xFFFF; break;
        }
        clave.append(char((peso >> 8) & 0xFF));
        clave.append(char(peso & 0xFF));
    }
    return clave;
}

Arreglo2D ListaOrdenada(std::vector<FilaLista>&& filas, uint8_t orden, int numContadores)
{
    const bool porDni = orden == 2;
    std::vector<std::pair<QByteArray, FilaLista*>> claves;
    claves.reserve(filas.size());
    for (FilaLista& f : filas)
        claves.emplace_back(ClaveDeOrden(porDni ? f.dni : f.nombre), &f);
    std::sort(claves.begin(), claves.end(), [porDni](const auto& a, const auto& b) {
        if (const int c = a.first.compare(b.first); c != 0)
            return c < 0;
        const QString& ta = porDni ? a.second->dni : a.second->nombre;
        const QString& tb = porDni ? b.second->dni : b.second->nombre;
        if (const int c = ta.compare(tb); c != 0)
            return c < 0;
        return a.second->codigo < b.second->codigo;
    });
    Arreglo2D datos(5 + numContadores);
    for (QVariantList& columna : datos)
        columna.reserve(qsizetype(filas.size()));
    for (const auto& [clave, f] : claves) {
        datos[0].append(f->codigo);
        datos[1].append(std::move(f->nombre));
        datos[2].append(std::move(f->dni));
        datos[3].append(std::move(f->calle));
        datos[4].append(std::move(f->municipio));
        for (int c = 0; c < numContadores; ++c)
            datos[5 + c].append(f->contadores[c]);
    }
    return datos;
}

void OrdenarFilas(Arreglo2D& datos, int clave, int codigo)
{
    const qsizetype filas = datos.isEmpty() ? 0 : datos[0].size();
    struct Fila {
        QByteArray clave;
        QString texto;
        qlonglong codigo;
        qsizetype indice;
    };
    std::vector<Fila> orden;
    orden.reserve(size_t(filas));
    for (qsizetype i = 0; i < filas; ++i) {
        const QString texto = datos[clave][i].toString();
        orden.push_back({ClaveDeOrden(texto), texto, datos[codigo][i].toLongLong(), i});
    }
    std::sort(orden.begin(), orden.end(), [](const Fila& a, const Fila& b) {
        if (const int c = a.clave.compare(b.clave); c != 0)
            return c < 0;
        if (const int c = a.texto.compare(b.texto); c != 0)
            return c < 0;
        return a.codigo < b.codigo;
    });
    for (QVariantList& columna : datos) {
        QVariantList ordenada;
        ordenada.reserve(filas);
        for (const Fila& f : orden)
            ordenada << std::move(columna[f.indice]);
        columna = std::move(ordenada);
    }
}

}  // namespace ArreglosPartes
