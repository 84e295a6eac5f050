#pragma once
// Statements that the stores run again and again (the save of each line of an import, the
// look-ups of its validation) are compiled once per connection and kept ready: compiling an
// INSERT with its checks and indexes costs as much as running it. A statement kept this way
// holds no cursor and no snapshot between uses (it is reset at the end of each use), so
// nothing but the compiled program survives a call.
//
// A kept statement belongs to the connection it was compiled on; when that connection has been
// closed (Conexion::Cerrar, a restore, the end of a test) it is compiled again on the current
// one. Used from one thread at a time, like the connections.
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariant>
#include <QVariantList>
#include <memory>

struct SentenciaGuardada;

class SentenciaPreparada {
public:
    SentenciaPreparada(const QSqlDatabase& db, const QString& sql, const QString& origen);
    // Resets the statement (rows not read are dropped) and hands it back for the next use.
    ~SentenciaPreparada();
    SentenciaPreparada(const SentenciaPreparada&) = delete;
    SentenciaPreparada& operator=(const SentenciaPreparada&) = delete;

    // Binds the values in the order of the "?" and runs the statement; cFallo(origen) when it
    // fails. Answers the query, positioned before its first row.
    QSqlQuery& ejecutar(const QVariantList& valores);

private:
    std::shared_ptr<SentenciaGuardada> m_guardada;  // the kept statement, when this use has it
    QSqlQuery m_propia;  // when the kept one is already in use further up
    QSqlQuery* m_q = nullptr;
    QSqlDatabase m_db;
    QString m_origen;
};

// The first column of the first row of a kept statement, or `siVacio`.
QVariant EscalarPreparada(const QSqlDatabase& db, const QString& sql, const QVariantList& valores,
                          const QString& origen, const QVariant& siVacio = QVariant());
