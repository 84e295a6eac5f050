#pragma once
// How a save of a party reads and writes its table: through the statements that the driver
// keeps (a single save), or through native statements held by a batch for its whole life.
// Both run the same SQL of the same TablaParte, and answer alike.
#include "servicios/SentenciaNativa.h"
#include "servicios/TablaParte.h"

#include <QSqlDatabase>
#include <QString>
#include <QVariantList>
#include <cstdint>

class AccesoTabla {
public:
    virtual ~AccesoTabla() = default;
    // The code of the party with this number (blanks around it ignored); 0 for none.
    virtual int32_t CodigoPorDni(const QString& dni) = 0;
    // A new row: under a new code when `codigo` is 0, else under `codigo`.
    virtual void Insertar(int32_t codigo, const QVariantList& fila) = 0;
    // Rewrites the row of `codigo`; false when there is none.
    virtual bool Actualizar(int32_t codigo, const QVariantList& fila) = 0;
};

class AccesoPreparado final : public AccesoTabla {
public:
    AccesoPreparado(const TablaParte& tabla, QSqlDatabase db, QString origen);
    int32_t CodigoPorDni(const QString& dni) override;
    void Insertar(int32_t codigo, const QVariantList& fila) override;
    bool Actualizar(int32_t codigo, const QVariantList& fila) override;

private:
    const TablaParte& m_tabla;
    QSqlDatabase m_db;
    QString m_origen;
};

class AccesoNativo final : public AccesoTabla {
public:
    AccesoNativo(const TablaParte& tabla, const QSqlDatabase& db, const QString& origen);
    int32_t CodigoPorDni(const QString& dni) override;
    void Insertar(int32_t codigo, const QVariantList& fila) override;
    bool Actualizar(int32_t codigo, const QVariantList& fila) override;

private:
    SentenciaNativa m_codigoPorDni;
    SentenciaNativa m_insertar;
    SentenciaNativa m_insertarConCodigo;
    SentenciaNativa m_actualizar;
};
