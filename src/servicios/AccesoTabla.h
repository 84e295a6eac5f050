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
    // The code of the party with this number (blanks around it ignored) and the version of its
    // row; code 0 for none.
    virtual TitularParte TitularPorDni(const QString& dni) = 0;
    int32_t CodigoPorDni(const QString& dni) { return TitularPorDni(dni).codigo; }
    // A new row with version `version`: under a new code when `codigo` is 0, else under
    // `codigo`. Answers the row's code: `codigo`, or the new code as the engine tells it of its
    // last insert on the connection; 0 from an access that does not read it back.
    virtual int32_t Insertar(int32_t codigo, const QVariantList& fila, int64_t version) = 0;
    // Rewrites the row of `codigo` whatever its version; false when there is none.
    virtual bool Actualizar(int32_t codigo, const QVariantList& fila, int64_t version) = 0;
    // Rewrites the row of `codigo` only when its version is still `cargada`.
    virtual Vigencia ActualizarVigente(int32_t codigo, const QVariantList& fila, int64_t cargada,
                                       int64_t nueva) = 0;
};

class AccesoPreparado final : public AccesoTabla {
public:
    AccesoPreparado(const TablaParte& tabla, QSqlDatabase db, QString origen);
    TitularParte TitularPorDni(const QString& dni) override;
    int32_t Insertar(int32_t codigo, const QVariantList& fila, int64_t version) override;
    bool Actualizar(int32_t codigo, const QVariantList& fila, int64_t version) override;
    Vigencia ActualizarVigente(int32_t codigo, const QVariantList& fila, int64_t cargada,
                               int64_t nueva) override;

private:
    const TablaParte& m_tabla;
    QSqlDatabase m_db;
    QString m_origen;
};

// A batch's access: its native statements do not read a new row's code back (a batch has no
// use for it), so Insertar answers 0 for a new code.
class AccesoNativo final : public AccesoTabla {
public:
    AccesoNativo(const TablaParte& tabla, const QSqlDatabase& db, const QString& origen);
    TitularParte TitularPorDni(const QString& dni) override;
    int32_t Insertar(int32_t codigo, const QVariantList& fila, int64_t version) override;
    bool Actualizar(int32_t codigo, const QVariantList& fila, int64_t version) override;
    Vigencia ActualizarVigente(int32_t codigo, const QVariantList& fila, int64_t cargada,
                               int64_t nueva) override;
    // A new row under a new code, with version `version`; false, with nothing written, when
    // its number is held.
    bool InsertarSiNuevo(const QVariantList& fila, int64_t version);

private:
    SentenciaNativa m_codigoPorDni;
    SentenciaNativa m_insertar;
    SentenciaNativa m_insertarConCodigo;
    SentenciaNativa m_actualizar;
    SentenciaNativa m_actualizarVigente;
    SentenciaNativa m_existe;
    SentenciaNativa m_insertarSiNuevo;
};
