#include "servicios/SentenciaNativa.h"

#include "plataforma/Fallo.h"

#include <QSqlDriver>
#include <sqlite3.h>

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
bool EsTexto(const QVariant& v)
{
    switch (v.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Bool:
    case QMetaType::Double:
        return false;
    default:
        return !v.isNull();
    }
}

[[noreturn]] void Fallar(sqlite3* db, const QString& origen, const QString& sql)
{
    throw cFallo(sqlite3_extended_errcode(db), origen,
                 sql + QStringLiteral(": ") + QString::fromUtf8(sqlite3_errmsg(db)));
}

}  // namespace

SentenciaNativa::SentenciaNativa(const QSqlDatabase& db, const QString& sql, const QString& origen)
    : m_sql(sql), m_origen(origen)
{
    sqlite3* manejador = Manejador(db, origen);
    const QByteArray texto = sql.toUtf8();
    if (sqlite3_prepare_v3(manejador, texto.constData(), int(texto.size()),
                           SQLITE_PREPARE_PERSISTENT, &m_sentencia, nullptr) != SQLITE_OK)
        Fallar(manejador, origen, sql);
}

SentenciaNativa::~SentenciaNativa()
{
    sqlite3_finalize(m_sentencia);
}

void SentenciaNativa::Terminar()
{
    // Every value is bound again at each use, so the old ones need no clearing.
    sqlite3_reset(m_sentencia);
    m_textos.resize(0);  // keeps its room for the next use
}

bool SentenciaNativa::Paso(const QVariantList& valores)
{
    Terminar();
    // The texts go over in the database's own encoding, all in one buffer that stays as it is
    // until the statement is reset: first written whole, then bound where each one lies.
    m_posiciones.clear();
    for (const QVariant& v : valores) {
        if (EsTexto(v)) {
            const QString t = v.toString();
            const qsizetype inicio = m_textos.size();
            m_textos.resize(inicio + m_utf8.requiredSpace(t.size()));
            char* fin = m_utf8.appendToBuffer(m_textos.data() + inicio, t);
            m_textos.resize(fin - m_textos.constData());
            m_posiciones.push_back({inicio, m_textos.size() - inicio});
        }
    }
    size_t texto = 0;
    for (int i = 0; i < int(valores.size()); ++i) {
        const QVariant& v = valores[i];
        const int n = i + 1;
        if (EsTexto(v)) {
            const auto [inicio, largo] = m_posiciones[texto++];
            sqlite3_bind_text(m_sentencia, n, m_textos.constData() + inicio, int(largo),
                              SQLITE_STATIC);
        } else if (v.isNull()) {
            sqlite3_bind_null(m_sentencia, n);
        } else if (v.typeId() == QMetaType::Double) {
            sqlite3_bind_double(m_sentencia, n, v.toDouble());
        } else {
            sqlite3_bind_int64(m_sentencia, n, v.toLongLong());
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

int SentenciaNativa::Ejecutar(const QVariantList& valores)
{
    Paso(valores);
    const int cambios = sqlite3_changes(sqlite3_db_handle(m_sentencia));
    Terminar();
    return cambios;
}

int64_t SentenciaNativa::Escalar(const QVariantList& valores, int64_t siVacio)
{
    const int64_t valor = Paso(valores) ? sqlite3_column_int64(m_sentencia, 0) : siVacio;
    Terminar();
    return valor;
}
