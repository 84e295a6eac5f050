#include "servicios/TablaParte.h"

#include "plataforma/Fallo.h"
#include "servicios/SentenciaPreparada.h"
#include "servicios/VersionFila.h"

#include <QSqlQuery>

namespace {
QString marcas(qsizetype n)
{
    QStringList m;
    for (qsizetype i = 0; i < n; ++i)
        m << QStringLiteral("?");
    return m.join(QStringLiteral(", "));
}
}  // namespace

TablaParte::TablaParte(const QString& tabla, const QString& columnaCodigo,
                       const QString& columnaDni, const QStringList& columnas)
    : m_tabla(tabla), m_columnaCodigo(columnaCodigo), m_columnas(columnas)
{
    const QStringList escritas = columnas + QStringList{VersionFila::kColumna};
    const QString lista = escritas.join(QStringLiteral(", "));
    m_sqlCodigoPorDni = QStringLiteral("SELECT %1, %2 FROM %3 WHERE %4 = ?")
                            .arg(columnaCodigo, VersionFila::kColumna, tabla, columnaDni);
    m_sqlInsertar = QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                        .arg(tabla, lista, marcas(escritas.size()));
    m_sqlInsertarConCodigo = QStringLiteral("INSERT INTO %1 (%2, %3) VALUES (%4)")
                                 .arg(tabla, lista, columnaCodigo, marcas(escritas.size() + 1));
    // The number's unique index decides: the conflict clause names its column, so that any
    // other broken rule fails the statement as a plain insert does.
    m_sqlInsertarSiNuevo = m_sqlInsertar + QStringLiteral(" ON CONFLICT (%1) DO NOTHING").arg(columnaDni);
    QStringList asignaciones;
    for (const QString& c : escritas)
        asignaciones << c + QStringLiteral(" = ?");
    m_sqlActualizar = QStringLiteral("UPDATE %1 SET %2 WHERE %3 = ?")
                          .arg(tabla, asignaciones.join(QStringLiteral(", ")), columnaCodigo);
    m_sqlActualizarVigente = VersionFila::SqlActualizarVigente(tabla, columnas, columnaCodigo);
    m_sqlExiste = VersionFila::SqlExiste(tabla, columnaCodigo);
}

int32_t TablaParte::CodigoPorDni(const QSqlDatabase& db, const QString& dni,
                                 const QString& origen) const
{
    return TitularPorDni(db, dni, origen).codigo;
}

TitularParte TablaParte::TitularPorDni(const QSqlDatabase& db, const QString& dni,
                                       const QString& origen) const
{
    const QString t = dni.trimmed();
    if (t.isEmpty())
        return {};
    SentenciaPreparada s(db, m_sqlCodigoPorDni, origen);
    QSqlQuery& q = s.ejecutar({t});
    if (!q.next())
        return {};
    return {q.value(0).toInt(), q.value(1).toLongLong()};
}

int32_t TablaParte::Insertar(const QSqlDatabase& db, int32_t codigo, const QVariantList& fila,
                             int64_t version, const QString& origen) const
{
    QVariantList valores = fila;
    valores << qlonglong(version);
    if (codigo == 0) {
        SentenciaPreparada s(db, m_sqlInsertar, origen);
        const QVariant nuevo = s.ejecutar(valores).lastInsertId();
        if (!nuevo.isValid())
            throw cFallo(3001, origen,
                         QStringLiteral("%1: sin código para la fila nueva").arg(m_tabla));
        return nuevo.toInt();
    }
    valores << codigo;
    SentenciaPreparada(db, m_sqlInsertarConCodigo, origen).ejecutar(valores);
    return codigo;
}

bool TablaParte::Actualizar(const QSqlDatabase& db, int32_t codigo, const QVariantList& fila,
                            int64_t version, const QString& origen) const
{
    QVariantList valores = fila;
    valores << qlonglong(version) << codigo;
    SentenciaPreparada s(db, m_sqlActualizar, origen);
    return s.ejecutar(valores).numRowsAffected() > 0;
}

Vigencia TablaParte::ActualizarVigente(const QSqlDatabase& db, int32_t codigo,
                                       const QVariantList& fila, int64_t cargada, int64_t nueva,
                                       const QString& origen) const
{
    QVariantList valores = fila;
    valores << qlonglong(nueva) << codigo << qlonglong(cargada);
    {
        SentenciaPreparada s(db, m_sqlActualizarVigente, origen);
        if (s.ejecutar(valores).numRowsAffected() > 0)
            return Vigencia::Vigente;
    }
    return VersionFila::Diagnostico(db, m_tabla, m_columnaCodigo, codigo, origen);
}
