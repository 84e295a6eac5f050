#pragma once
// A statement compiled through SQLite's own C interface on a connection of Qt's driver
// (SentenciaMotor). The texts are written once into one buffer and bound where they lie.
#include "servicios/motor/Motor.h"

#include <QByteArray>
#include <QSqlDatabase>
#include <QString>
#include <QStringEncoder>
#include <QVariantList>
#include <cstdint>
#include <vector>

struct sqlite3_stmt;

class SentenciaSqlite final : public SentenciaMotor {
public:
    // cFallo(origen) when the connection is not SQLite's or the statement does not compile.
    SentenciaSqlite(const QSqlDatabase& db, const QString& sql, const QString& origen);
    ~SentenciaSqlite() override;
    SentenciaSqlite(const SentenciaSqlite&) = delete;
    SentenciaSqlite& operator=(const SentenciaSqlite&) = delete;

    int Ejecutar(const QVariantList& valores) override;
    int64_t Escalar(const QVariantList& valores, int64_t siVacio) override;
    bool Enteros(const QVariantList& valores, int64_t* columnas, int n) override;

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
