#include "servicios/cTraspaso.h"

#include "servicios/Conexion.h"
#include "servicios/Esquema.h"

#include <QDir>
#include <QFileInfo>

namespace {
const QString kOrigen = QStringLiteral("svrVeldoV1.cTraspaso.Traspaso");

// SQLite ignores the foreign-key switch inside a transaction: it is turned off before the
// migration's transaction begins and on again whatever happens.
class SinClavesAjenas {
public:
    explicit SinClavesAjenas(QSqlDatabase db) : m_db(std::move(db))
    {
        Ejecutar(m_db, QStringLiteral("PRAGMA foreign_keys = OFF"), {}, kOrigen);
    }
    ~SinClavesAjenas()
    {
        QSqlQuery q(m_db);
        q.exec(QStringLiteral("PRAGMA foreign_keys = ON"));
    }
    SinClavesAjenas(const SinClavesAjenas&) = delete;
    SinClavesAjenas& operator=(const SinClavesAjenas&) = delete;

private:
    QSqlDatabase m_db;
};

// True when the file, looked at under the write lock, cannot be brought to the current layout.
bool migrar(const QString& ruta)
{
    const QSqlDatabase db = Conexion::Modificable(ruta, kOrigen, true);
    SinClavesAjenas sinClaves(db);
    Transaccion transaccion(db, kOrigen);
    // Another instance may have created or migrated the file since it was looked at: the
    // decision is taken again now that nobody else can write.
    const qint32 marca = Esquema::MarcaDe(db, kOrigen);
    const int version = Esquema::VersionDe(db, kOrigen);
    const bool vacia = marca == 0 && version == 0 && Esquema::ObjetosDe(db, kOrigen) == 0;
    if (!vacia && marca != Esquema::MarcaAplicacion)
        return true;
    if (version > Esquema::VersionActual())
        return true;
    if (vacia || version < Esquema::VersionActual())
        Esquema::Migrar(db, vacia ? 0 : version, kOrigen);
    transaccion.confirmar();
    return false;
}
}  // namespace

bool cTraspaso::Traspaso() const
{
    const QString ruta = mdbmod.isEmpty() ? mdbPath + QStringLiteral("VELDOMOD.mdb") : mdbmod;
    const Esquema::Reconocimiento r = Esquema::Reconocer(ruta, kOrigen);
    switch (r.clase) {
    case Esquema::Clase::NoEsBaseDeDatos:
    case Esquema::Clase::Ajena:
        return true;
    case Esquema::Clase::Propia:
        if (r.version > Esquema::VersionActual())
            return true;
        if (r.version == Esquema::VersionActual())
            return false;
        return migrar(ruta);
    case Esquema::Clase::Inexistente: {
        const QString carpeta = mdbPath.isEmpty() ? QFileInfo(ruta).absolutePath() : mdbPath;
        QDir().mkpath(carpeta);
        return migrar(ruta);
    }
    case Esquema::Clase::Vacia:
        return migrar(ruta);
    }
    return true;
}
