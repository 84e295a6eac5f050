#include "servicios/cGeneralSvr.h"

#include "plataforma/Fallo.h"
#include "servicios/Conexion.h"

// The settings are the single row (ID 1) of CONFIGURACION, created with the database.
namespace {
QString origen(const char* operacion)
{
    return QStringLiteral("svrveldoV1.cGeneralSvr.") + QLatin1String(operacion);
}
}  // namespace

QString cGeneralSvr::ObtenerIdioma() const
{
    const QString o = origen("ObtenerIdioma");
    const QSqlDatabase db = Conexion::Modificable(mdbmod, o);
    return Escalar(db, QStringLiteral("SELECT IDIOMA FROM CONFIGURACION WHERE ID = 1"), {}, o,
                   QStringLiteral("C"))
        .toString();
}

void cGeneralSvr::CambiarIdioma(const QString& idi) const
{
    const QString o = origen("CambiarIdioma");
    const QSqlDatabase db = Conexion::Modificable(mdbmod, o);
    Transaccion t(db, o);
    Ejecutar(db,
             QStringLiteral("INSERT INTO CONFIGURACION (ID, IDIOMA) VALUES (1, ?) "
                            "ON CONFLICT (ID) DO UPDATE SET IDIOMA = excluded.IDIOMA"),
             {idi.isNull() ? QString(QLatin1String("")) : idi}, o);
    t.confirmar();
}

int16_t cGeneralSvr::ObtenerActOnline() const
{
    const QString o = origen("ObtenerActOnline");
    const QSqlDatabase db = Conexion::Modificable(mdbmod, o);
    return static_cast<int16_t>(
        Escalar(db, QStringLiteral("SELECT ACTONLINE FROM CONFIGURACION WHERE ID = 1"), {}, o, -1)
            .toInt());
}

void cGeneralSvr::GuardarActOnline(int16_t valor) const
{
    const QString o = origen("GuardarActOnline");
    if (valor < -1 || valor > 1)
        throw cFallo(5, o,
                     QStringLiteral("El valor de actualización %1 no es -1, 0 ni 1.").arg(valor));
    const QSqlDatabase db = Conexion::Modificable(mdbmod, o);
    Transaccion t(db, o);
    Ejecutar(db,
             QStringLiteral("INSERT INTO CONFIGURACION (ID, ACTONLINE) VALUES (1, ?) "
                            "ON CONFLICT (ID) DO UPDATE SET ACTONLINE = excluded.ACTONLINE"),
             {static_cast<int>(valor)}, o);
    t.confirmar();
}
