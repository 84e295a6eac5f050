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
    // A statement that reads whole numbers: the first `n` columns of its first row into
    // `columnas`; false, with nothing written there, when there is no row.
    bool Enteros(const QVariantList& valores, int64_t* columnas, int n);

    // How a value goes over.
    enum class Clase { Texto, Entero, Real, Nulo };

private:
    // Binds and runs to the first row; true when there is one.
    bool Paso(const QVariantList& valores);
    void Terminar();
    // Appends the text to m_textos in UTF-8, and a NUL after it.
    void Anadir(const QString& texto);

    sqlite3_stmt* m_sentencia = nullptr;
    // Stateless: each text is whole in itself, and a half character at its end becomes the
    // replacement character instead of waiting to be joined to the next text.
    QStringEncoder m_utf8{QStringEncoder::Utf8, QStringConverter::Flag::Stateless};
    QByteArray m_textos;  // the texts bound to the run under way
    struct Valor {
        Clase clase;
        qsizetype inicio;  // a text: where it lies in m_textos, and its bytes (NUL not counted)
        qsizetype largo;
    };
    std::vector<Valor> m_valores;  // the values of the run under way
    QString m_sql;
    QString m_origen;
};
