#include "servicios/postgres/SentenciaPostgres.h"

#include "servicios/postgres/FalloPostgres.h"

SentenciaPostgres::SentenciaPostgres(const QSqlDatabase& db, const QString& sql,
                                     const QString& origen)
    : m_db(db), m_consulta(db), m_sql(sql), m_origen(origen)
{
    m_consulta.setForwardOnly(true);
    if (!m_consulta.prepare(sql))
        throw FalloPostgres(m_db, m_consulta.lastError(), sql, origen);
}

void SentenciaPostgres::correr(const QVariantList& valores)
{
    for (qsizetype i = 0; i < valores.size(); ++i)
        m_consulta.bindValue(int(i), valores[i]);
    if (!m_consulta.exec())
        throw FalloPostgres(m_db, m_consulta.lastError(), m_sql, m_origen);
}

int SentenciaPostgres::Ejecutar(const QVariantList& valores)
{
    correr(valores);
    const int filas = m_consulta.numRowsAffected();
    m_consulta.finish();
    return filas;
}

int64_t SentenciaPostgres::Escalar(const QVariantList& valores, int64_t siVacio)
{
    correr(valores);
    const int64_t valor = m_consulta.next() ? m_consulta.value(0).toLongLong() : siVacio;
    m_consulta.finish();
    return valor;
}

bool SentenciaPostgres::Enteros(const QVariantList& valores, int64_t* columnas, int n)
{
    correr(valores);
    const bool hay = m_consulta.next();
    if (hay)
        for (int i = 0; i < n; ++i)
            columnas[i] = m_consulta.value(i).toLongLong();
    m_consulta.finish();
    return hay;
}
