#pragma once
// The stored table of one kind of party (contributors, presenters): the statements that find a
// party by its number and write a save array's row, made once per table and kept compiled.
#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <cstdint>

class TablaParte {
public:
    // `columnas` are the columns a save writes, in the order of the rows handed over.
    TablaParte(const QString& tabla, const QString& columnaCodigo, const QString& columnaDni,
               const QStringList& columnas);

    const QStringList& columnas() const { return m_columnas; }
    // The statements, for a caller that compiles them its own way.
    const QString& sqlCodigoPorDni() const { return m_sqlCodigoPorDni; }
    const QString& sqlInsertar() const { return m_sqlInsertar; }
    const QString& sqlInsertarConCodigo() const { return m_sqlInsertarConCodigo; }
    const QString& sqlActualizar() const { return m_sqlActualizar; }

    // The code of the party with this number; 0 for an empty number or an unknown one.
    int32_t CodigoPorDni(const QSqlDatabase& db, const QString& dni, const QString& origen) const;
    // A new row: under a new code when `codigo` is 0, else under `codigo`.
    void Insertar(const QSqlDatabase& db, int32_t codigo, const QVariantList& fila,
                  const QString& origen) const;
    // Rewrites the row of `codigo`; false when there is none.
    bool Actualizar(const QSqlDatabase& db, int32_t codigo, const QVariantList& fila,
                    const QString& origen) const;

private:
    QStringList m_columnas;
    QString m_sqlCodigoPorDni;
    QString m_sqlInsertar;
    QString m_sqlInsertarConCodigo;
    QString m_sqlActualizar;
};
