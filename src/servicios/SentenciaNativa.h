#pragma once
// A statement compiled through SQLite's own interface on a connection of the stores. For the
// few statements that a batch runs tens of thousands of times in a row (the look-up and the
// save of each line of an import): binding a value through the SQL driver costs more than the
// statement itself. The connection stays the driver's: its transactions, its locks and its
// other statements are shared with this one.
#include <QSqlDatabase>
#include <QString>
#include <QStringEncoder>
#include <QVariantList>
#include <cstdint>
#include <utility>
#include <vector>

struct sqlite3_stmt;

class SentenciaNativa {
public:
    // cFallo(origen) when the connection is not SQLite's or the statement does not compile.
    SentenciaNativa(const QSqlDatabase& db, const QString& sql, const QString& origen);
    ~SentenciaNativa();
    SentenciaNativa(const SentenciaNativa&) = delete;
    SentenciaNativa& operator=(const SentenciaNativa&) = delete;

    // Binds the values in the order of the "?" (texts, whole numbers, reals, null) and runs
    // the statement; it holds nothing afterwards. cFallo(origen) when it fails.
    // A statement that writes: the rows it changed.
    int Ejecutar(const QVariantList& valores);
    // A statement that reads one whole number: its first column of its first row, or `siVacio`.
    int64_t Escalar(const QVariantList& valores, int64_t siVacio);

private:
    // Binds and runs to the first row; true when there is one.
    bool Paso(const QVariantList& valores);
    void Terminar();

    sqlite3_stmt* m_sentencia = nullptr;
    QStringEncoder m_utf8{QStringEncoder::Utf8};
    QByteArray m_textos;  // the texts bound to the run under way
    std::vector<std::pair<qsizetype, qsizetype>> m_posiciones;  // where each one lies
    QString m_sql;
    QString m_origen;
};
