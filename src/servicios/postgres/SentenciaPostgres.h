#pragma once
// A statement prepared once on the server for the loops that run it many times in a row
// (SentenciaMotor), through Qt's driver: the server plans it once and each run sends the values
// alone.
#include "servicios/motor/Motor.h"

#include <QSqlQuery>

class SentenciaPostgres final : public SentenciaMotor {
public:
    // cFallo(origen) when the statement does not prepare.
    SentenciaPostgres(const QSqlDatabase& db, const QString& sql, const QString& origen);

    int Ejecutar(const QVariantList& valores) override;
    int64_t Escalar(const QVariantList& valores, int64_t siVacio) override;
    bool Enteros(const QVariantList& valores, int64_t* columnas, int n) override;

private:
    void correr(const QVariantList& valores);

    QSqlDatabase m_db;
    QSqlQuery m_consulta;
    QString m_sql;
    QString m_origen;
};
