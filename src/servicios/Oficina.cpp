#include "servicios/Oficina.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "plataforma/Fallo.h"
#include "servicios/Conexion.h"
#include "servicios/Esquema.h"
#include "servicios/postgres/ConexionPostgres.h"

namespace {
const QString kOrigen = QStringLiteral("svrVeldoV1.Oficina.CrearEsquema");
const QString kOrigenComprobar = QStringLiteral("svrVeldoV1.Oficina.Comprobar");
}

namespace Oficina {

Creacion CrearEsquema(const QString& ubicacion)
{
    const QSqlDatabase db = Conexion::Modificable(ubicacion, kOrigen, true);
    // Under the write lock: two administrators running it at once make it once.
    Transaccion transaccion(db, kOrigen);
    const qint32 marca = Esquema::MarcaDe(db, kOrigen);
    const int version = Esquema::VersionDe(db, kOrigen);
    const bool vacia = marca == 0 && version == 0 && Esquema::ObjetosDe(db, kOrigen) == 0;
    if (!vacia && marca != Esquema::MarcaAplicacion)
        return Creacion::Ajena;
    if (version > Esquema::VersionActual())
        return Creacion::Posterior;
    if (!vacia && version == Esquema::VersionActual())
        return Creacion::YaCreada;
    Esquema::Migrar(db, vacia ? 0 : version, kOrigen);
    transaccion.confirmar();
    return vacia ? Creacion::Creada : Creacion::Actualizada;
}

Veredicto Aviso(Creacion creacion, const QString& ubicacion)
{
    int id = kIdOficinaCreada;
    switch (creacion) {
    case Creacion::Creada: id = kIdOficinaCreada; break;
    case Creacion::Actualizada: id = kIdOficinaActualizada; break;
    case Creacion::YaCreada: id = kIdOficinaYaCreada; break;
    case Creacion::Ajena: id = kIdOficinaAjena; break;
    case Creacion::Posterior: id = kIdOficinaPosterior; break;
    }
    Veredicto v;
    v.id = id;
    v.mensaje = Texto(id).arg(ConexionPostgres::NombreServidor(ubicacion));
    v.botones = Lista(creacion) ? vb::Information : vb::Critical;
    return v;
}

Veredicto Comprobar(const QString& ubicacion)
{
    const QString servidor = ConexionPostgres::NombreServidor(ubicacion);
    Veredicto v;
    try {
        const QSqlDatabase db = Conexion::Modificable(ubicacion, kOrigenComprobar);
        const qint32 marca = Esquema::MarcaDe(db, kOrigenComprobar);
        const int version = Esquema::VersionDe(db, kOrigenComprobar);
        if (marca == Esquema::MarcaAplicacion && version == Esquema::VersionActual())
            return v;
        if (marca == 0 && version == 0 && Esquema::ObjetosDe(db, kOrigenComprobar) == 0)
            v.id = kIdOficinaSinCrear;
        else if (marca != Esquema::MarcaAplicacion)
            return Aviso(Creacion::Ajena, ubicacion);
        else if (version > Esquema::VersionActual())
            return Aviso(Creacion::Posterior, ubicacion);
        else
            v.id = kIdOficinaAnterior;
        v.mensaje = Texto(v.id).arg(servidor);
    } catch (const cFallo& f) {
        // The server's faults come already told in the user's words (FalloPostgres).
        v.id = f.numero();
        v.mensaje = f.descripcion();
    }
    v.botones = vb::Critical;
    return v;
}

bool Lista(Creacion creacion)
{
    return creacion == Creacion::Creada || creacion == Creacion::Actualizada
        || creacion == Creacion::YaCreada;
}

}  // namespace Oficina
