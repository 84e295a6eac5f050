#include "servicios/AccesoTabla.h"

AccesoPreparado::AccesoPreparado(const TablaParte& tabla, QSqlDatabase db, QString origen)
    : m_tabla(tabla), m_db(std::move(db)), m_origen(std::move(origen))
{
}

int32_t AccesoPreparado::CodigoPorDni(const QString& dni)
{
    return m_tabla.CodigoPorDni(m_db, dni, m_origen);
}

void AccesoPreparado::Insertar(int32_t codigo, const QVariantList& fila)
{
    m_tabla.Insertar(m_db, codigo, fila, m_origen);
}

bool AccesoPreparado::Actualizar(int32_t codigo, const QVariantList& fila)
{
    return m_tabla.Actualizar(m_db, codigo, fila, m_origen);
}

AccesoNativo::AccesoNativo(const TablaParte& tabla, const QSqlDatabase& db, const QString& origen)
    : m_codigoPorDni(db, tabla.sqlCodigoPorDni(), origen),
      m_insertar(db, tabla.sqlInsertar(), origen),
      m_insertarConCodigo(db, tabla.sqlInsertarConCodigo(), origen),
      m_actualizar(db, tabla.sqlActualizar(), origen)
{
}

int32_t AccesoNativo::CodigoPorDni(const QString& dni)
{
    const QString t = dni.trimmed();
    if (t.isEmpty())
        return 0;
    return int32_t(m_codigoPorDni.Escalar({t}, 0));
}

void AccesoNativo::Insertar(int32_t codigo, const QVariantList& fila)
{
    if (codigo == 0) {
        m_insertar.Ejecutar(fila);
        return;
    }
    QVariantList valores = fila;
    valores.prepend(codigo);
    m_insertarConCodigo.Ejecutar(valores);
}

bool AccesoNativo::Actualizar(int32_t codigo, const QVariantList& fila)
{
    QVariantList valores = fila;
    valores << codigo;
    return m_actualizar.Ejecutar(valores) > 0;
}
