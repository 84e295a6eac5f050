#include "servicios/ListadoDeclaraciones.h"

#include "servicios/Conexion.h"

#include <QStringList>

std::vector<FilaDeclaracion> ListarDeclaraciones(const QString& mdbmod,
                                                 const FiltroDeclaraciones& filtro)
{
    const QString o = QStringLiteral("svrveldoV1.cDeclaSvr.ListarDeclaraciones");
    const QSqlDatabase db = Conexion::Modificable(mdbmod, o);
    QStringList condiciones;
    QVariantList valores;
    if (filtro.desde != 0) {
        condiciones << QStringLiteral("FECHAD >= ?");
        valores << filtro.desde;
    }
    if (filtro.hasta != 0) {
        condiciones << QStringLiteral("FECHAD <= ?");
        valores << filtro.hasta;
    }
    if (!filtro.dni.trimmed().isEmpty()) {
        condiciones << QStringLiteral("UPPER(TRIM(DNISP)) = ?");
        valores << filtro.dni.trimmed().toUpper();
    }
    const QString donde = condiciones.isEmpty()
        ? QString()
        : QStringLiteral(" WHERE ") + condiciones.join(QStringLiteral(" AND "));
    QSqlQuery q = Ejecutar(db,
                           QStringLiteral("SELECT CSDE, REFERENCIA, FECHAD, DNISP, NOMBRESP, DNITR, "
                                          "NOMBRETR, OPERACION, BASEI, TIPOIMP, CUOTA, DEDUCCION, "
                                          "TOTAL FROM DECLARACIONES%1 ORDER BY CSDE")
                               .arg(donde),
                           valores, o);
    std::vector<FilaDeclaracion> filas;
    while (q.next()) {
        FilaDeclaracion f;
        f.CSDE = q.value(0).toInt();
        f.REFERENCIA = q.value(1).toString();
        f.FECHAD = q.value(2).toInt();
        f.DNISP = q.value(3).toString();
        f.NOMBRESP = q.value(4).toString();
        f.DNITR = q.value(5).toString();
        f.NOMBRETR = q.value(6).toString();
        f.OPERACION = q.value(7).toString();
        f.BASEI = Importe(q.value(8).toDouble());
        f.TIPOIMP = q.value(9).toDouble();
        f.CUOTA = Importe(q.value(10).toDouble());
        f.DEDUCCION = Importe(q.value(11).toDouble());
        f.TOTAL = Importe(q.value(12).toDouble());
        filas.push_back(std::move(f));
    }
    return filas;
}
