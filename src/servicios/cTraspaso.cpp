#include "servicios/cTraspaso.h"

#include "plataforma/Fallo.h"
#include "servicios/Conexion.h"
#include "servicios/Esquema.h"
#include "servicios/MotorAlmacenes.h"
#include "servicios/RevisionAlmacen.h"

#include <QDir>
#include <QFileInfo>

namespace {
const QString kOrigen = QStringLiteral("svrVeldoV1.cTraspaso.Traspaso");

// The engine may ignore the foreign-key switch inside a transaction: it is turned off before
// the migration's transaction begins and on again whatever happens.
class SinClavesAjenas {
public:
    explicit SinClavesAjenas(QSqlDatabase db) : m_db(std::move(db))
    {
        MotorDe(m_db).ExigirReferencias(m_db, false, kOrigen);
    }
    ~SinClavesAjenas()
    {
        try {
            MotorDe(m_db).ExigirReferencias(m_db, true, kOrigen);
        } catch (const cFallo&) {
            // A connection that fails here fails at its next use, with its own message.
        }
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

QString cTraspaso::Ruta() const
{
    return mdbmod.isEmpty() ? mdbPath + QStringLiteral("VELDOMOD.mdb") : mdbmod;
}

cTraspaso::Impedimento cTraspaso::Comprobar() const
{
    const QString ruta = Ruta();
    const QFileInfo info(ruta);
    if (info.isDir())
        return Impedimento::Carpeta;
    // SQLite would create the file the link points to, wherever that is, or fail half-way.
    if (info.isSymLink() && !info.exists())
        return Impedimento::EnlaceRoto;
    // The folder holds the file's journal too: a file that can be written in a folder that
    // cannot is not enough.
    // A folder that cannot be made is left to the migration, which fails with its cause.
    const QString carpeta = mdbPath.isEmpty() ? info.absolutePath() : mdbPath;
    const QFileInfo enCarpeta(carpeta);
    if (!enCarpeta.exists())
        QDir().mkpath(carpeta);
    else if (enCarpeta.isDir() && !enCarpeta.isWritable())
        return Impedimento::CarpetaSoloLectura;
    const Esquema::Reconocimiento r = Esquema::Reconocer(ruta, kOrigen);
    switch (r.clase) {
    case Esquema::Clase::NoEsBaseDeDatos:
        return Impedimento::Danada;
    case Esquema::Clase::Ajena:
        return Impedimento::Ajena;
    case Esquema::Clase::Propia:
        if (r.version > Esquema::VersionActual())
            return Impedimento::Posterior;
        break;
    case Esquema::Clase::Inexistente:
    case Esquema::Clase::Vacia:
        break;
    }
    if (info.exists() && !info.isWritable())
        return Impedimento::SoloLectura;
    // A damaged page is found now, before anything is saved into the file around it.
    if (r.clase == Esquema::Clase::Propia
        && !RevisionAlmacen::Sana(ruta, RevisionAlmacen::FinSucio(ruta)))
        return Impedimento::Danada;
    return Impedimento::Ninguno;
}

bool cTraspaso::Traspaso() const
{
    if (Comprobar() != Impedimento::Ninguno)
        return true;
    const QString ruta = Ruta();
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
    case Esquema::Clase::Inexistente:
    case Esquema::Clase::Vacia:
        return migrar(ruta);
    }
    return true;
}
