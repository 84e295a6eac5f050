#include "servicios/sqlite/BusquedaSqlite.h"

#include "plataforma/Fallo.h"
#include "servicios/motor/Plegado.h"

#include <QList>
#include <QSqlDriver>
#include <QStringList>
#include <optional>
#include <sqlite3.h>

namespace {

// PLEGAR(texto): NULL stays NULL; anything else is read as text and folded.
void plegar(sqlite3_context* contexto, int, sqlite3_value** argumentos)
{
    if (sqlite3_value_type(argumentos[0]) == SQLITE_NULL) {
        sqlite3_result_null(contexto);
        return;
    }
    const auto* unidades = static_cast<const char16_t*>(sqlite3_value_text16(argumentos[0]));
    const int bytes = sqlite3_value_bytes16(argumentos[0]);
    const QString plegado = PlegarTexto(QString::fromUtf16(unidades, bytes / 2));
    sqlite3_result_text16(contexto, plegado.utf16(), int(plegado.size() * 2), SQLITE_TRANSIENT);
}

sqlite3* manejador(const QSqlDatabase& db)
{
    const QVariant v = db.driver() ? db.driver()->handle() : QVariant();
    if (!v.isValid() || qstrcmp(v.typeName(), "sqlite3*") != 0)
        return nullptr;
    return *static_cast<sqlite3* const*>(v.constData());
}

// The first text past every text that begins with `inicio`, as NOCASE compares: the last
// character raised by one. NOCASE compares ASCII letters as small ones, so an ASCII character is
// raised from its small form ("Z" gives "{", not "["). A last character with nothing above it is
// dropped and the one before it raised; nothing when there is none (every text is below).
std::optional<QString> siguienteTras(const QString& inicio)
{
    QList<uint> letras = inicio.toUcs4();
    while (!letras.isEmpty() && letras.last() >= 0x10FFFF)
        letras.removeLast();
    if (letras.isEmpty())
        return std::nullopt;
    uint& ultima = letras.last();
    if (ultima < 0x80)
        ultima = uint(QChar::toLower(char32_t(ultima)));
    ++ultima;
    if (ultima >= 0xD800 && ultima < 0xE000)  // no character is written with a lone surrogate
        ultima = 0xE000;
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(letras.constData()),
                             letras.size());
}

// The texts from `inicio` up to the first text past every one that begins with it: every text
// that begins with `inicio`, as the column's collation compares them, and a few more that the
// folded comparison after it leaves out.
QString rango(const QString& columna, const QString& inicio, QVariantList& valores)
{
    valores << inicio;
    const std::optional<QString> tope = siguienteTras(inicio);
    if (!tope)
        return QStringLiteral("(%1 >= ?)").arg(columna);
    valores << *tope;
    return QStringLiteral("(%1 >= ? AND %1 < ?)").arg(columna);
}

// The cases of a letter: itself, its capital, its small form and its caseless form.
QList<char32_t> casos(char32_t letra)
{
    QList<char32_t> c;
    for (char32_t v : {letra, QChar::toUpper(letra), QChar::toLower(letra),
                       QChar::toTitleCase(letra), QChar::toCaseFolded(letra)})
        if (!c.contains(v))
            c << v;
    return c;
}

}  // namespace

void RegistrarPlegadoSqlite(const QSqlDatabase& db, const QString& origen)
{
    sqlite3* h = manejador(db);
    if (!h)
        throw cFallo(3001, origen, QStringLiteral("La conexión no es de SQLite."));
    const int r = sqlite3_create_function_v2(h, "PLEGAR", 1,
                                             SQLITE_UTF16 | SQLITE_DETERMINISTIC, nullptr,
                                             &plegar, nullptr, nullptr, nullptr);
    if (r != SQLITE_OK)
        throw cFallo(r, origen, QStringLiteral("PLEGAR: ") + QString::fromUtf8(sqlite3_errstr(r)));
}

QString CondicionPrefijoSqlite(const QString& columna, const QString& prefijo, QVariantList& valores)
{
    const QList<uint> letras = prefijo.toUcs4();
    qsizetype ascii = 0;
    while (ascii < letras.size() && letras[ascii] < 0x80)
        ++ascii;
    const QString cabeza = prefijo.left(ascii);  // ASCII: one unit a character
    QStringList rangos;
    if (ascii == letras.size()) {
        rangos << rango(columna, cabeza, valores);
    } else {
        for (char32_t caso : casos(char32_t(letras[ascii])))
            rangos << rango(columna, cabeza + QString::fromUcs4(&caso, 1), valores);
    }
    // SQLite counts characters, not UTF-16 units, in substr.
    valores << static_cast<qlonglong>(letras.size()) << PlegarTexto(prefijo);
    return QStringLiteral("((%1) AND PLEGAR(substr(%2, 1, ?)) = ?)")
        .arg(rangos.join(QStringLiteral(" OR ")), columna);
}
