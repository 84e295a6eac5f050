#include "servicios/SentenciaNativa.h"

#include "servicios/MotorAlmacenes.h"

SentenciaNativa::SentenciaNativa(const QSqlDatabase& db, const QString& sql, const QString& origen)
    : m_sentencia(MotorDeLosAlmacenes().Compilar(db, sql, origen))
{
}
