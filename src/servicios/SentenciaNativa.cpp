#include "servicios/SentenciaNativa.h"

#include "servicios/MotorAlmacenes.h"

SentenciaNativa::SentenciaNativa(const QSqlDatabase& db, const QString& sql, const QString& origen)
    : m_sentencia(MotorDeLosAlmacenes().Compilar(db, sql, origen))
{
}

SentenciaNativa::~SentenciaNativa() = default;
SentenciaNativa::SentenciaNativa(SentenciaNativa&&) noexcept = default;
SentenciaNativa& SentenciaNativa::operator=(SentenciaNativa&&) noexcept = default;

int SentenciaNativa::Ejecutar(const QVariantList& valores)
{
    return m_sentencia->Ejecutar(valores);
}

int64_t SentenciaNativa::Escalar(const QVariantList& valores, int64_t siVacio)
{
    return m_sentencia->Escalar(valores, siVacio);
}

bool SentenciaNativa::Enteros(const QVariantList& valores, int64_t* columnas, int n)
{
    return m_sentencia->Enteros(valores, columnas, n);
}
