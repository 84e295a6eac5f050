#include "servicios/sqlite/SentenciaSqlite.h"

#include "plataforma/Fallo.h"

#include <QSqlDriver>
#include <sqlite3.h>

#include <cstring>

namespace {

sqlite3* Manejador(const QSqlDatabase& db, const QString& origen)
{
    const QVariant h = db.driver() ? db.driver()->handle() : QVariant();
    if (!h.isValid() || qstrcmp(h.typeName(), "sqlite3*") != 0)
        throw cFallo(3001, origen, QStringLiteral("No es una conexión de SQLite"));
    sqlite3* manejador = *static_cast<sqlite3* const*>(h.data());
    if (!manejador)
        throw cFallo(3001, origen, QStringLiteral("La conexión está cerrada"));
    return manejador;
}

// Whole numbers, reals and null go over as such; anything else as text.
SentenciaSqlite::Clase ClaseDe(const QVariant& v)
{
    using Clase = SentenciaSqlite::Clase;
    switch (v.typeId()) {
    case QMetaType::QString:
        return Clase::Texto;  // a QVariant that holds a text is never null, even an empty one
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Bool:
        return Clase::Entero;
    case QMetaType::Double:
        return Clase::Real;
    default:
        return v.isNull() ? Clase::Nulo : Clase::Texto;
    }
}

[[noreturn]] void Fallar(sqlite3* db, const QString& origen, const QString& sql)
{
    throw cFallo(sqlite3_extended_errcode(db), origen,
                 sql + QStringLiteral(": ") + QString::fromUtf8(sqlite3_errmsg(db)));
}

}  // namespace

SentenciaSqlite::SentenciaSqlite(const QSqlDatabase& db, const QString& sql, const QString& origen)
    : m_sql(sql), m_origen(origen)
{
    sqlite3* manejador = Manejador(db, origen);
    const QByteArray texto = sql.toUtf8();
    if (sqlite3_prepare_v3(manejador, texto.constData(), int(texto.size()),
                           SQLITE_PREPARE_PERSISTENT, &m_sentencia, nullptr) != SQLITE_OK)
        Fallar(manejador, origen, sql);
}

void SentenciaSqlite::Anadir(const QString& t)
{
    // Room for the worst case (three bytes for each UTF-16 unit) and the NUL, cut to what was
    // written afterwards; the buffer keeps its room from one run to the next.
    const qsizetype inicio = m_textos.size();
    const qsizetype n = t.size();
    m_textos.resize(inicio + 3 * n + 1);
    char* destino = m_textos.data() + inicio;
    // The names and addresses of a file are mostly ASCII, whose UTF-8 is the same bytes.
    const QChar* origen = t.constData();
    qsizetype i = 0;
    for (; i < n && origen[i].unicode() < 0x80; ++i)
        destino[i] = char(origen[i].unicode());
    char* fin = destino + i;
    if (i < n)
        fin = m_utf8.appendToBuffer(fin, QStringView(t).sliced(i));
    *fin++ = '\0';
    m_textos.resize(fin - m_textos.constData());
}

SentenciaSqlite::~SentenciaSqlite()
{
    sqlite3_finalize(m_sentencia);
}

void SentenciaSqlite::Terminar()
{
    // Every value is bound again at each use, so the old ones need no clearing.
    sqlite3_reset(m_sentencia);
    m_textos.resize(0);  // keeps its room for the next use
}

bool SentenciaSqlite::Paso(const QVariantList& valores)
{
    Terminar();
    // The texts go over in the database's own encoding, all in one buffer that stays as it is
    // until the statement is reset: first written whole, each one followed by a NUL, then
    // bound where each one lies.
    m_valores.clear();
    for (const QVariant& v : valores) {
        const Clase clase = ClaseDe(v);
        Valor valor{clase, 0, 0};
        if (clase == Clase::Texto) {
            valor.inicio = m_textos.size();
            Anadir(v.typeId() == QMetaType::QString ? *static_cast<const QString*>(v.constData())
                                                    : v.toString());
            valor.largo = m_textos.size() - 1 - valor.inicio;
        }
        m_valores.push_back(valor);
    }
    for (int i = 0; i < int(valores.size()); ++i) {
        const Valor& valor = m_valores[size_t(i)];
        const int n = i + 1;
        switch (valor.clase) {
        case Clase::Texto: {
            const char* bytes = m_textos.constData() + valor.inicio;
            // A text that ends at its NUL is bound as such (length -1): SQLite then knows it
            // is terminated and does not copy it each time a check or a collation reads it. A
            // text that holds a NUL of its own goes over whole, by its length.
            const bool nulPropio = std::memchr(bytes, 0, size_t(valor.largo)) != nullptr;
            sqlite3_bind_text(m_sentencia, n, bytes, nulPropio ? int(valor.largo) : -1,
                              SQLITE_STATIC);
            break;
        }
        case Clase::Nulo:
            sqlite3_bind_null(m_sentencia, n);
            break;
        case Clase::Real:
            sqlite3_bind_double(m_sentencia, n, valores[i].toDouble());
            break;
        case Clase::Entero:
            sqlite3_bind_int64(m_sentencia, n, valores[i].toLongLong());
            break;
        }
    }
    const int r = sqlite3_step(m_sentencia);
    if (r == SQLITE_ROW)
        return true;
    if (r != SQLITE_DONE) {
        sqlite3* db = sqlite3_db_handle(m_sentencia);
        Terminar();  // the statement holds nothing after a failure
        Fallar(db, m_origen, m_sql);
    }
    return false;
}

int SentenciaSqlite::Ejecutar(const QVariantList& valores)
{
    Paso(valores);
    const int cambios = sqlite3_changes(sqlite3_db_handle(m_sentencia));
    Terminar();
    return cambios;
}

int64_t SentenciaSqlite::Escalar(const QVariantList& valores, int64_t siVacio)
{
    const int64_t valor = Paso(valores) ? sqlite3_column_int64(m_sentencia, 0) : siVacio;
    Terminar();
    return valor;
}

bool SentenciaSqlite::Enteros(const QVariantList& valores, int64_t* columnas, int n)
{
    const bool hay = Paso(valores);
    if (hay)
        for (int i = 0; i < n; ++i)
            columnas[i] = sqlite3_column_int64(m_sentencia, i);
    Terminar();
    return hay;
}
