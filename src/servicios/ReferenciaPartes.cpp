#include "servicios/ReferenciaPartes.h"

#include "servicios/CodigoPostal.h"
#include "servicios/Conexion.h"
#include "servicios/SentenciaPreparada.h"

#include <QSet>
#include <memory>

namespace ReferenciaPartes {

QHash<QString, QString> MunicipiosTesoreria(const QString& mdblec, const QString& origen)
{
    const QSqlDatabase lec = Conexion::Lectura(mdblec, origen);
    QSqlQuery q = Ejecutar(lec, QStringLiteral("SELECT T08_CODMUN, T08_NOMMUN FROM T08_MUNICIPIOS"),
                           {}, origen);
    QHash<QString, QString> nombres;
    while (q.next())
        nombres.insert(CodigoMunicipio::Normalizado(q.value(0).toString()), q.value(1).toString());
    return nombres;
}

QString NombreMunicipio(const QHash<QString, QString>& municipios, const QString& provincia,
                        const QString& codigo, const QString& nombre)
{
    if (provincia == kProvinciaTesoreria && !codigo.isEmpty()) {
        const auto it = municipios.constFind(codigo);
        if (it != municipios.constEnd())
            return *it;
    }
    return nombre;
}

ConsultasReferencia Consultas(const QString& mdblec, const QString& origen)
{
    const QSqlDatabase lec = Conexion::Lectura(mdblec, origen);
    const auto existe = [lec, origen](const QString& sql) {
        return [lec, origen, sql](const QString& clave) {
            return EscalarPreparada(lec, sql, {clave}, origen, 0).toInt() > 0;
        };
    };
    return {
        existe(QStringLiteral("SELECT COUNT(*) FROM T09_SIGLASVIA WHERE T09_CODIGO = ?")),
        existe(QStringLiteral("SELECT COUNT(*) FROM T07_PROVINCIAS WHERE T07_PRO_ID = ?")),
        existe(QStringLiteral("SELECT COUNT(*) FROM T08_MUNICIPIOS WHERE T08_CODMUN = ?")),
    };
}

ConsultasReferencia ConsultasEnMemoria(const QString& mdblec, const QString& origen)
{
    const QSqlDatabase lec = Conexion::Lectura(mdblec, origen);
    const auto existe = [&lec, &origen](const QString& sql) {
        auto claves = std::make_shared<QSet<QString>>();
        QSqlQuery q = Ejecutar(lec, sql, {}, origen);
        while (q.next())
            claves->insert(q.value(0).toString());
        return [claves](const QString& clave) { return claves->contains(clave); };
    };
    return {
        existe(QStringLiteral("SELECT T09_CODIGO FROM T09_SIGLASVIA")),
        existe(QStringLiteral("SELECT T07_PRO_ID FROM T07_PROVINCIAS")),
        existe(QStringLiteral("SELECT T08_CODMUN FROM T08_MUNICIPIOS")),
    };
}

}  // namespace ReferenciaPartes
