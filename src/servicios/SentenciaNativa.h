#pragma once
// A statement compiled by the stores' engine itself on a connection of the stores. For the
// few statements that a batch runs tens of thousands of times in a row (the look-up and the
// save of each line of an import): binding a value through the SQL driver costs more than the
// statement itself. The connection stays the driver's: its transactions, its locks and its
// other statements are shared with this one.
#include <QSqlDatabase>
#include <QString>
#include <QVariantList>
#include <cstdint>
#include <memory>

class SentenciaMotor;

class SentenciaNativa {
public:
    // cFallo(origen) when the engine cannot compile the statement on this connection.
    SentenciaNativa(const QSqlDatabase& db, const QString& sql, const QString& origen);
    ~SentenciaNativa();
    SentenciaNativa(SentenciaNativa&&) noexcept;
    SentenciaNativa& operator=(SentenciaNativa&&) noexcept;

    // Binds the values in the order of the "?" (texts, whole numbers, reals, null) and runs
    // the statement; it holds nothing afterwards. cFallo(origen) when it fails.
    // A statement that writes: the rows it changed.
    int Ejecutar(const QVariantList& valores);
    // A statement that reads one whole number: its first column of its first row, or `siVacio`.
    int64_t Escalar(const QVariantList& valores, int64_t siVacio);
    // A statement that reads whole numbers: the first `n` columns of its first row into
    // `columnas`; false, with nothing written there, when there is no row.
    bool Enteros(const QVariantList& valores, int64_t* columnas, int n);

private:
    // The engine's statement (Motor.h), kept out of this header so that the many files that
    // hold a SentenciaNativa do not depend on the engine's interface.
    std::unique_ptr<SentenciaMotor> m_sentencia;
};
