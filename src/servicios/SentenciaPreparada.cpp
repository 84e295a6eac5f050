#include "servicios/SentenciaPreparada.h"

#include "plataforma/Fallo.h"
#include "servicios/MotorAlmacenes.h"

#include <QHash>
#include <QSqlDriver>
#include <QSqlError>
#include <memory>

struct SentenciaGuardada {
    QSqlQuery consulta;
    bool enUso = false;
};

namespace {

// Connection name -> SQL text -> the statement compiled on it.
using Cache = QHash<QString, QHash<QString, std::shared_ptr<SentenciaGuardada>>>;

Cache& cache()
{
    thread_local Cache c;
    return c;
}

// The engine's fault: a server's names the server and leaves the driver's text to the log.
[[noreturn]] void fallar(const QSqlDatabase& db, const QString& origen, const QSqlError& error,
                         const QString& sql)
{
    throw MotorDe(db).FalloDe(db, error, sql, origen);
}

}  // namespace

SentenciaPreparada::SentenciaPreparada(const QSqlDatabase& db, const QString& sql,
                                       const QString& origen)
    : m_db(db), m_origen(origen)
{
    std::shared_ptr<SentenciaGuardada>& g = cache()[db.connectionName()][sql];
    // A statement compiled on a connection that has since been closed has lost its driver
    // (the query follows its driver's deletion).
    const bool vigente =
        g && g->consulta.driver() != nullptr && g->consulta.driver() == db.driver();
    if (g && vigente && g->enUso) {
        // The same statement is being read further up: this use gets one of its own.
        m_propia = QSqlQuery(db);
        m_propia.setForwardOnly(true);
        if (!m_propia.prepare(sql))
            fallar(db, origen, m_propia.lastError(), sql);
        m_q = &m_propia;
        return;
    }
    if (!g || !vigente) {
        g = std::make_shared<SentenciaGuardada>();
        g->consulta = QSqlQuery(db);
        g->consulta.setForwardOnly(true);
        if (!g->consulta.prepare(sql)) {
            const QSqlError error = g->consulta.lastError();
            g.reset();
            fallar(db, origen, error, sql);
        }
    }
    g->enUso = true;
    m_guardada = g;
    m_q = &m_guardada->consulta;
}

SentenciaPreparada::~SentenciaPreparada()
{
    if (m_q)
        m_q->finish();
    if (m_guardada)
        m_guardada->enUso = false;
}

QSqlQuery& SentenciaPreparada::ejecutar(const QVariantList& valores)
{
    for (qsizetype i = 0; i < valores.size(); ++i)
        m_q->bindValue(int(i), valores[i]);
    if (!m_q->exec())
        fallar(m_db, m_origen, m_q->lastError(), m_q->lastQuery());
    return *m_q;
}

QVariant EscalarPreparada(const QSqlDatabase& db, const QString& sql, const QVariantList& valores,
                          const QString& origen, const QVariant& siVacio)
{
    SentenciaPreparada s(db, sql, origen);
    QSqlQuery& q = s.ejecutar(valores);
    return q.next() ? q.value(0) : siVacio;
}
