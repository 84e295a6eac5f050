#include "servicios/TablaParte.h"

#include "servicios/SentenciaPreparada.h"

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
    : m_columnas(columnas)
{
    const QString lista = columnas.join(QStringLiteral(", "));
    m_sqlCodigoPorDni = QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ?")
                            .arg(columnaCodigo, tabla, columnaDni);
    m_sqlInsertar = QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                        .arg(tabla, lista, marcas(columnas.size()));
    m_sqlInsertarConCodigo = QStringLiteral("INSERT INTO %1 (%2, %3) VALUES (%4)")
                                 .arg(tabla, columnaCodigo, lista, marcas(columnas.size() + 1));
    // The number's unique index decides: the conflict clause names its column, so that any
    // other broken rule fails the statement as a plain insert does.
    m_sqlInsertarSiNuevo = m_sqlInsertar + QStringLiteral(" ON CONFLICT (%1) DO NOTHING").arg(columnaDni);
    QStringList asignaciones;
    for (const QString& c : columnas)
        asignaciones << c + QStringLiteral(" = ?");
    m_sqlActualizar = QStringLiteral("UPDATE %1 SET %2 WHERE %3 = ?")
                          .arg(tabla, asignaciones.join(QStringLiteral(", ")), columnaCodigo);
}

int32_t TablaParte::CodigoPorDni(const QSqlDatabase& db, const QString& dni,
                                 const QString& origen) const
{
    const QString t = dni.trimmed();
    if (t.isEmpty())
        return 0;
    return EscalarPreparada(db, m_sqlCodigoPorDni, {t}, origen, 0).toInt();
}

void TablaParte::Insertar(const QSqlDatabase& db, int32_t codigo, const QVariantList& fila,
                          const QString& origen) const
{
    if (codigo == 0) {
        SentenciaPreparada(db, m_sqlInsertar, origen).ejecutar(fila);
        return;
    }
    QVariantList valores = fila;
    valores.prepend(codigo);
    SentenciaPreparada(db, m_sqlInsertarConCodigo, origen).ejecutar(valores);
}

bool TablaParte::Actualizar(const QSqlDatabase& db, int32_t codigo, const QVariantList& fila,
                            const QString& origen) const
{
    QVariantList valores = fila;
    valores << codigo;
    SentenciaPreparada s(db, m_sqlActualizar, origen);
    return s.ejecutar(valores).numRowsAffected() > 0;
}
