// The operations of form 747 as cDeclaSvr gives them: rows of T11_OPERACIONES in the
// reference database, each applying from T11_FECINI to T11_FECFIN (both included).
#include "servicios/cDeclaSvr.h"
#include "servicios/cDeclaSvrTablaOperaciones.h"

#include "servicios/Conexion.h"

namespace {
QString origen(const char* operacion)
{
    return QStringLiteral("svrveldoV1.cDeclaSvr.") + QLatin1String(operacion);
}

const char* columnaDescripcion(Idioma idioma)
{
    return idioma.esEuskera() ? "T11_DESC_EUS" : "T11_DESC_CAS";
}
}  // namespace

TablaOperaciones::TablaOperaciones(const QString& mdblec, const QString& origenLlamada)
{
    const QSqlDatabase db = Conexion::Lectura(mdblec, origenLlamada);
    QSqlQuery q = Ejecutar(db,
                           QStringLiteral("SELECT T11_CODIGO, T11_FECINI, T11_FECFIN, T11_DESC_CAS, "
                                          "T11_DESC_EUS FROM T11_OPERACIONES ORDER BY T11_ID"),
                           {}, origenLlamada);
    while (q.next()) {
        const QString codigo = q.value(0).toString();
        m_filas[codigo].append({codigo, q.value(1).toInt(), q.value(2).toInt(),
                                q.value(3).toString(), q.value(4).toString()});
    }
}

QString TablaOperaciones::Descripcion(const QString& codigo, int32_t fechad,
                                      Idioma idioma) const
{
    const auto it = m_filas.constFind(codigo);
    if (it == m_filas.cend())
        return QString();
    for (const FilaOperacion& f : *it) {
        if (f.desde <= fechad && fechad <= f.hasta)
            return idioma.esEuskera() ? f.descripcionEus : f.descripcionCas;
    }
    return QString();
}

QStringList cDeclaSvr::ObtenerOperaciones(int32_t fechad, Idioma idioma) const
{
    const QString o = origen("ObtenerOperaciones");
    const QSqlDatabase db = Conexion::Lectura(mdblec, o);
    QSqlQuery q = Ejecutar(db,
                           QStringLiteral("SELECT %1 FROM T11_OPERACIONES "
                                          "WHERE T11_FECINI <= ? AND T11_FECFIN >= ? "
                                          "ORDER BY T11_ID")
                               .arg(QLatin1String(columnaDescripcion(idioma))),
                           {fechad, fechad}, o);
    QStringList descripciones;
    while (q.next())
        descripciones.append(q.value(0).toString());
    return descripciones;
}

std::optional<DatosOperacion> cDeclaSvr::ObtenerDatosOperacion(const QString& operacion,
                                                               int32_t fechad,
                                                               Idioma idioma) const
{
    const QString o = origen("ObtenerDatosOperacion");
    const QSqlDatabase db = Conexion::Lectura(mdblec, o);
    QSqlQuery q = Ejecutar(
        db,
        QStringLiteral("SELECT %1, T11_IMPRESION, T11_NOSUJETO, T11_EXENTO, T11_TIPO, "
                       "T11_TIPOMIN, T11_TIPOMAX, T11_DEDUCCION FROM T11_OPERACIONES "
                       "WHERE T11_CODIGO = ? AND T11_FECINI <= ? AND T11_FECFIN >= ? "
                       "ORDER BY T11_ID LIMIT 1")
            .arg(QLatin1String(columnaDescripcion(idioma))),
        {operacion.trimmed(), fechad, fechad}, o);
    if (!q.next())
        return std::nullopt;
    DatosOperacion d;
    d.descripcion = q.value(0).toString();
    d.impresion = q.value(1).toString();
    d.nosujeto = q.value(2).toString();
    d.exento = q.value(3).toString();
    d.tipo = q.value(4).toDouble();
    d.tipoMinimo = q.value(5).toDouble();
    d.tipoMaximo = q.value(6).toDouble();
    d.deduccion = q.value(7).toDouble();
    return d;
}

QString cDeclaSvr::DameOperacionporDescripcion(const QString& descripcion, int32_t fechad,
                                               Idioma idioma) const
{
    const QString o = origen("DameOperacionporDescripcion");
    const QSqlDatabase db = Conexion::Lectura(mdblec, o);
    return Escalar(db,
                   QStringLiteral("SELECT T11_CODIGO FROM T11_OPERACIONES "
                                  "WHERE %1 = ? AND T11_FECINI <= ? AND T11_FECFIN >= ? "
                                  "ORDER BY T11_ID LIMIT 1")
                       .arg(QLatin1String(columnaDescripcion(idioma))),
                   {descripcion, fechad, fechad}, o, QString())
        .toString();
}

QString cDeclaSvr::ObtenImpresion(int32_t fechad, const QString& codigo) const
{
    const QString o = origen("ObtenImpresion");
    const QSqlDatabase db = Conexion::Lectura(mdblec, o);
    return Escalar(db,
                   QStringLiteral("SELECT T11_IMPRESION FROM T11_OPERACIONES "
                                  "WHERE T11_CODIGO = ? AND T11_FECINI <= ? AND T11_FECFIN >= ? "
                                  "ORDER BY T11_ID LIMIT 1"),
                   {codigo.trimmed(), fechad, fechad}, o, QString())
        .toString();
}
