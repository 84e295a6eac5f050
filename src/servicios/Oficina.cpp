#include "servicios/Oficina.h"

#include "servicios/Conexion.h"
#include "servicios/Esquema.h"

namespace {
const QString kOrigen = QStringLiteral("svrVeldoV1.Oficina.CrearEsquema");
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

}  // namespace Oficina
