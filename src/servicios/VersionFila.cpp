#include "servicios/VersionFila.h"

#include "servicios/SentenciaPreparada.h"

#include <QRandomGenerator>
#include <limits>

namespace VersionFila {

int64_t Nueva()
{
    constexpr uint64_t kMascara = uint64_t(std::numeric_limits<int64_t>::max());
    for (;;) {
        const auto v = static_cast<int64_t>(QRandomGenerator::global()->generate64() & kMascara);
        if (v != 0)
            return v;
    }
}

QString SqlActualizarVigente(const QString& tabla, const QStringList& columnas,
                             const QString& columnaCodigo)
{
    QStringList asignaciones;
    for (const QString& c : columnas)
        asignaciones << c + QStringLiteral(" = ?");
    asignaciones << kColumna + QStringLiteral(" = ?");
    return QStringLiteral("UPDATE %1 SET %2 WHERE %3 = ? AND %4 = ?")
        .arg(tabla, asignaciones.join(QStringLiteral(", ")), columnaCodigo, kColumna);
}

QString SqlExiste(const QString& tabla, const QString& columnaCodigo)
{
    return QStringLiteral("SELECT COUNT(*) FROM %1 WHERE %2 = ?").arg(tabla, columnaCodigo);
}

Vigencia Diagnostico(const QSqlDatabase& db, const QString& tabla, const QString& columnaCodigo,
                     int64_t codigo, const QString& origen)
{
    const bool existe =
        EscalarPreparada(db, SqlExiste(tabla, columnaCodigo), {qlonglong(codigo)}, origen, 0)
            .toInt()
        > 0;
    return existe ? Vigencia::Cambiada : Vigencia::Borrada;
}

}  // namespace VersionFila
