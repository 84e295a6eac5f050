#include "servicios/CopiaSaneada.h"

#include "plataforma/Fallo.h"
#include "servicios/Conexion.h"
#include "servicios/sqlite/ConexionPropia.h"
#include "servicios/Esquema.h"
#include "servicios/EstructuraAlmacen.h"

#include <QFileInfo>
#include <QSqlError>
#include <QUrl>

namespace {

using EstructuraAlmacen::Citado;

// SQLite's answers that tell a file that breaks the program's rules or is not whole: a
// constraint (19), a damaged page (11), not a database (26), a value of the wrong kind for a
// key (20), an error in the file's own statements such as an unknown collation (1).
bool esRechazo(const cFallo& f)
{
    switch (f.numero() & 0xff) {
    case 1:
    case 11:
    case 19:
    case 20:
    case 26:
        return true;
    default:
        return false;
    }
}

// The file attached read-only for as long as this object lives.
class Adjunto {
public:
    Adjunto(QSqlDatabase db, const QString& archivo, const QString& origen)
        : m_db(std::move(db))
    {
        const QString uri = QUrl::fromLocalFile(QFileInfo(archivo).absoluteFilePath())
                                .toString(QUrl::FullyEncoded)
            + QStringLiteral("?mode=ro");
        Ejecutar(m_db, QStringLiteral("ATTACH DATABASE ? AS origen"), {uri}, origen);
    }
    ~Adjunto()
    {
        QSqlQuery q(m_db);
        q.exec(QStringLiteral("DETACH DATABASE origen"));
    }
    Adjunto(const Adjunto&) = delete;
    Adjunto& operator=(const Adjunto&) = delete;

private:
    QSqlDatabase m_db;
};

bool unoYBien(QSqlQuery q)
{
    return q.next() && q.value(0).toString() == QLatin1String("ok") && !q.next();
}

bool existe(const QSqlDatabase& db, const QString& esquema, const QString& nombre,
            const QString& origen)
{
    return Escalar(db,
                   QStringLiteral("SELECT COUNT(*) FROM %1.sqlite_master WHERE name = ?")
                       .arg(Citado(esquema)),
                   {nombre}, origen, 0)
               .toInt()
        > 0;
}

// The program's own empty tables of the layout.
void disponerVacia(const QSqlDatabase& db, int version, const QString& origen)
{
    EstructuraAlmacen::Disponer(db, version, origen);
    for (const QString& t : EstructuraAlmacen::Tablas(db, QStringLiteral("main"), origen))
        Ejecutar(db, QStringLiteral("DELETE FROM main.") + Citado(t), {}, origen);
    if (existe(db, QStringLiteral("main"), QStringLiteral("sqlite_sequence"), origen))
        Ejecutar(db, QStringLiteral("DELETE FROM main.sqlite_sequence"), {}, origen);
}

void copiarFilas(const QSqlDatabase& db, const QString& origen)
{
    for (const QString& t : EstructuraAlmacen::Tablas(db, QStringLiteral("main"), origen)) {
        // An INSERT ... SELECT of no rows would still leave a counter of 0 for an AUTOINCREMENT
        // key, which the file does not hold.
        if (!Escalar(db, QStringLiteral("SELECT EXISTS (SELECT 1 FROM origen.%1)").arg(Citado(t)),
                     {}, origen, 0).toBool())
            continue;
        QStringList columnas;
        for (const QString& c : EstructuraAlmacen::Columnas(db, QStringLiteral("main"), t, origen))
            columnas << Citado(c);
        const QString lista = columnas.join(QStringLiteral(", "));
        Ejecutar(db,
                 QStringLiteral("INSERT INTO main.%1 (%2) SELECT %2 FROM origen.%1")
                     .arg(Citado(t), lista),
                 {}, origen);
    }
}

// The file's counters of AUTOINCREMENT keys are kept where they are numbers above the greatest
// key copied, so that no code of a deleted row comes back.
void copiarContadores(const QSqlDatabase& db, const QString& origen)
{
    if (!existe(db, QStringLiteral("main"), QStringLiteral("sqlite_sequence"), origen)
        || !existe(db, QStringLiteral("origen"), QStringLiteral("sqlite_sequence"), origen))
        return;
    for (const QString& t : EstructuraAlmacen::Tablas(db, QStringLiteral("main"), origen)) {
        const QVariant suyo = Escalar(db,
                                      QStringLiteral("SELECT MAX(seq) FROM origen.sqlite_sequence "
                                                     "WHERE name = ? COLLATE NOCASE "
                                                     "AND typeof(seq) = 'integer' AND seq >= 0"),
                                      {t}, origen);
        if (suyo.isNull())
            continue;
        const qint64 propio = Escalar(db,
                                      QStringLiteral("SELECT COALESCE(MAX(seq), 0) FROM "
                                                     "main.sqlite_sequence WHERE name = ?"),
                                      {t}, origen, 0)
                                  .toLongLong();
        Ejecutar(db, QStringLiteral("DELETE FROM main.sqlite_sequence WHERE name = ?"), {t}, origen);
        Ejecutar(db, QStringLiteral("INSERT INTO main.sqlite_sequence (name, seq) VALUES (?, ?)"),
                 {t, qMax(propio, suyo.toLongLong())}, origen);
    }
}

bool construir(const QSqlDatabase& db, const QString& archivo, int version, const QString& origen)
{
    // The copy is a file of its own until it is checked: a failure discards it whole.
    Ejecutar(db, QStringLiteral("PRAGMA foreign_keys = OFF"), {}, origen);
    Ejecutar(db, QStringLiteral("PRAGMA synchronous = OFF"), {}, origen);
    {
        Transaccion disposicion(db, origen);
        disponerVacia(db, version, origen);
        disposicion.confirmar();
    }
    Adjunto adjunto(db, archivo, origen);
    // One transaction: the file is read under one lock from its shape to its last row.
    Transaccion transaccion(db, origen);
    if (EstructuraAlmacen::De(db, QStringLiteral("origen"), origen)
        != EstructuraAlmacen::DeReferencia(version, origen))
        return false;
    if (!unoYBien(Ejecutar(db, QStringLiteral("PRAGMA origen.integrity_check"), {}, origen)))
        return false;
    copiarFilas(db, origen);
    copiarContadores(db, origen);
    if (Ejecutar(db, QStringLiteral("PRAGMA main.foreign_key_check"), {}, origen).next())
        return false;
    // PRAGMA takes no bound parameters; both values are this program's own integers.
    Ejecutar(db, QStringLiteral("PRAGMA main.user_version = %1").arg(version), {}, origen);
    Ejecutar(db, QStringLiteral("PRAGMA main.application_id = %1").arg(Esquema::MarcaAplicacion),
             {}, origen);
    transaccion.confirmar();
    return true;
}

}  // namespace

namespace CopiaSaneada {

bool Construir(const QString& archivo, const QString& destino, int version, const QString& origen)
{
    if (QFileInfo::exists(destino))
        throw cFallo(58, origen, QStringLiteral("Ya existe ") + destino);
    // URIs allowed, so that the backup is attached read-only.
    ConexionPropia conexion(destino, ConexionPropia::Modo::EscrituraConAdjuntos);
    conexion.ExigirAbierta(origen);
    try {
        return construir(conexion.db(), archivo, version, origen);
    } catch (const cFallo& f) {
        if (esRechazo(f))
            return false;
        throw;
    }
}

}  // namespace CopiaSaneada
