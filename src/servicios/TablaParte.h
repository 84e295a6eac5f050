#pragma once
// The stored table of one kind of party (contributors, presenters): the statements that find a
// party by its number and write a save array's row, made once per table and kept compiled.
// Every write gives the row a fresh version (VersionFila.h); an update of a party that a copy
// loaded writes only over the version it loaded.
#include "valores/Vigencia.h"

#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <cstdint>

// The party that holds a number, as a look-up finds it: its code (0 none) and its version.
struct TitularParte {
    int32_t codigo = 0;
    int64_t version = 0;
};

class TablaParte {
public:
    // `columnas` are the columns a save writes, in the order of the rows handed over (the
    // version is written beside them, last).
    TablaParte(const QString& tabla, const QString& columnaCodigo, const QString& columnaDni,
               const QStringList& columnas);

    const QString& tabla() const { return m_tabla; }
    const QString& columnaCodigo() const { return m_columnaCodigo; }
    const QStringList& columnas() const { return m_columnas; }
    // The statements, for a caller that compiles them its own way. Each write takes the row's
    // values, then its new version; an update then the code (and the version loaded).
    const QString& sqlCodigoPorDni() const { return m_sqlCodigoPorDni; }
    const QString& sqlInsertar() const { return m_sqlInsertar; }
    const QString& sqlInsertarConCodigo() const { return m_sqlInsertarConCodigo; }
    const QString& sqlActualizar() const { return m_sqlActualizar; }
    const QString& sqlActualizarVigente() const { return m_sqlActualizarVigente; }
    const QString& sqlExiste() const { return m_sqlExiste; }
    // A new row under a new code, or nothing at all when the number is held already.
    const QString& sqlInsertarSiNuevo() const { return m_sqlInsertarSiNuevo; }

    // The code of the party with this number; 0 for an empty number or an unknown one.
    int32_t CodigoPorDni(const QSqlDatabase& db, const QString& dni, const QString& origen) const;
    // The same, with the version of its row.
    TitularParte TitularPorDni(const QSqlDatabase& db, const QString& dni,
                               const QString& origen) const;
    // A new row, with version `version`: under a new code when `codigo` is 0, else under
    // `codigo`. Answers the row's code; a new one is the engine's last inserted row, as the
    // driver reads it from the insert itself (no second statement).
    int32_t Insertar(const QSqlDatabase& db, int32_t codigo, const QVariantList& fila,
                  int64_t version, const QString& origen) const;
    // Rewrites the row of `codigo`, whatever its version, giving it `version`; false when
    // there is none.
    bool Actualizar(const QSqlDatabase& db, int32_t codigo, const QVariantList& fila,
                    int64_t version, const QString& origen) const;
    // Rewrites the row of `codigo` only when its version is still `cargada`, giving it `nueva`;
    // otherwise writes nothing and tells why.
    Vigencia ActualizarVigente(const QSqlDatabase& db, int32_t codigo, const QVariantList& fila,
                               int64_t cargada, int64_t nueva, const QString& origen) const;

private:
    QString m_tabla;
    QString m_columnaCodigo;
    QStringList m_columnas;
    QString m_sqlCodigoPorDni;
    QString m_sqlInsertar;
    QString m_sqlInsertarConCodigo;
    QString m_sqlActualizar;
    QString m_sqlActualizarVigente;
    QString m_sqlExiste;
    QString m_sqlInsertarSiNuevo;
};
