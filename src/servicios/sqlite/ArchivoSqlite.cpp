#include "servicios/sqlite/ArchivoSqlite.h"

#include "servicios/sqlite/ConsultaSqlite.h"
#include "servicios/sqlite/EstructuraSqlite.h"

#include <QFileInfo>
#include <QSqlQuery>
#include <QUrl>

namespace {
bool existe(const QSqlDatabase& db, const QString& esquema, const QString& nombre,
            const QString& origen)
{
    return EscalarSqlite(db,
                         QStringLiteral("SELECT COUNT(*) FROM %1.sqlite_master WHERE name = ?")
                             .arg(CitadoSqlite(esquema)),
                         {nombre}, origen, 0)
               .toInt()
        > 0;
}
const QString kContadores = QStringLiteral("sqlite_sequence");
}

namespace ArchivoSqlite {

Adjunto::Adjunto(QSqlDatabase db, const QString& archivo, const QString& esquema,
                 bool soloLectura, const QString& origen)
    : m_db(std::move(db)), m_esquema(esquema)
{
    const QString nombre = soloLectura
        ? QUrl::fromLocalFile(QFileInfo(archivo).absoluteFilePath()).toString(QUrl::FullyEncoded)
              + QStringLiteral("?mode=ro")
        : archivo;
    ConsultaSqlite(m_db, QStringLiteral("ATTACH DATABASE ? AS ") + CitadoSqlite(esquema),
                   {nombre}, origen);
}

Adjunto::~Adjunto()
{
    QSqlQuery q(m_db);
    q.exec(QStringLiteral("DETACH DATABASE ") + CitadoSqlite(m_esquema));
}

void SinEsperarAlDisco(const QSqlDatabase& db, const QString& origen)
{
    ConsultaSqlite(db, QStringLiteral("PRAGMA synchronous = OFF"), {}, origen);
}

bool Entero(const QSqlDatabase& db, const QString& esquema, const QString& origen)
{
    QSqlQuery q = ConsultaSqlite(
        db, QStringLiteral("PRAGMA %1.integrity_check").arg(CitadoSqlite(esquema)), {}, origen);
    return q.next() && q.value(0).toString() == QLatin1String("ok") && !q.next();
}

bool ReferenciasRotas(const QSqlDatabase& db, const QString& origen)
{
    return ConsultaSqlite(db, QStringLiteral("PRAGMA main.foreign_key_check"), {}, origen).next();
}

void VaciarContadores(const QSqlDatabase& db, const QString& origen)
{
    if (existe(db, QStringLiteral("main"), kContadores, origen))
        ConsultaSqlite(db, QStringLiteral("DELETE FROM main.sqlite_sequence"), {}, origen);
}

void CopiarContadores(const QSqlDatabase& db, const QString& esquema, const QString& origen)
{
    if (!existe(db, QStringLiteral("main"), kContadores, origen)
        || !existe(db, esquema, kContadores, origen))
        return;
    for (const QString& t : EstructuraSqlite::Tablas(db, QStringLiteral("main"), origen)) {
        const QVariant suyo = EscalarSqlite(db,
                                            QStringLiteral("SELECT MAX(seq) FROM %1.sqlite_sequence "
                                                           "WHERE name = ? COLLATE NOCASE "
                                                           "AND typeof(seq) = 'integer' AND seq >= 0")
                                                .arg(CitadoSqlite(esquema)),
                                            {t}, origen);
        if (suyo.isNull())
            continue;
        const qint64 propio = EscalarSqlite(db,
                                            QStringLiteral("SELECT COALESCE(MAX(seq), 0) FROM "
                                                           "main.sqlite_sequence WHERE name = ?"),
                                            {t}, origen, 0)
                                  .toLongLong();
        ConsultaSqlite(db, QStringLiteral("DELETE FROM main.sqlite_sequence WHERE name = ?"), {t},
                       origen);
        ConsultaSqlite(db, QStringLiteral("INSERT INTO main.sqlite_sequence (name, seq) VALUES (?, ?)"),
                       {t, qMax(propio, suyo.toLongLong())}, origen);
    }
}

void Sellar(const QSqlDatabase& db, qint32 marca, int version, const QString& origen)
{
    // PRAGMA takes no bound parameters; both values are this program's own integers.
    ConsultaSqlite(db, QStringLiteral("PRAGMA main.user_version = %1").arg(version), {}, origen);
    ConsultaSqlite(db, QStringLiteral("PRAGMA main.application_id = %1").arg(marca), {}, origen);
}

}  // namespace ArchivoSqlite
