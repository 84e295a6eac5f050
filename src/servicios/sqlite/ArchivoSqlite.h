#pragma once
// The work on whole SQLite files that a backup and a restore need: another file beside a
// connection's own, the counters of the keys that never give a code twice, the checks of one
// file among those of a connection. A backup of any engine is such a file.
#include <QSqlDatabase>
#include <QString>

namespace ArchivoSqlite {

// The file `archivo` beside the connection's own under the name `esquema`, read-only when
// `soloLectura` (the connection must allow files by URI: Acceso::EscrituraConAdjuntos), for
// as long as this object lives. Not inside a transaction.
class Adjunto {
public:
    Adjunto(QSqlDatabase db, const QString& archivo, const QString& esquema, bool soloLectura,
            const QString& origen);
    ~Adjunto();
    Adjunto(const Adjunto&) = delete;
    Adjunto& operator=(const Adjunto&) = delete;

private:
    QSqlDatabase m_db;
    QString m_esquema;
};

// The connection's own file is written without waiting for the disk: a file being built that
// a failure discards whole.
void SinEsperarAlDisco(const QSqlDatabase& db, const QString& origen);

// Whether every page and index of the schema `esquema` is whole (the full check).
bool Entero(const QSqlDatabase& db, const QString& esquema, const QString& origen);
// Whether a reference of the connection's own file leads nowhere.
bool ReferenciasRotas(const QSqlDatabase& db, const QString& origen);

// The counters of the keys that never give a code twice: those of the connection's own file
// emptied.
void VaciarContadores(const QSqlDatabase& db, const QString& origen);
// Those of the schema `esquema` kept in the connection's own file where they are numbers above
// the greatest key copied, so that no code of a deleted row comes back.
void CopiarContadores(const QSqlDatabase& db, const QString& esquema, const QString& origen);

// The program's mark and the number of a layout, in the connection's own file.
void Sellar(const QSqlDatabase& db, qint32 marca, int version, const QString& origen);

}  // namespace ArchivoSqlite
