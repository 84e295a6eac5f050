#include "servicios/AccesoTabla.h"

AccesoPreparado::AccesoPreparado(const TablaParte& tabla, QSqlDatabase db, QString origen)
    : m_tabla(tabla), m_db(std::move(db)), m_origen(std::move(origen))
{
}

TitularParte AccesoPreparado::TitularPorDni(const QString& dni)
{
    return m_tabla.TitularPorDni(m_db, dni, m_origen);
}

int32_t AccesoPreparado::Insertar(int32_t codigo, const QVariantList& fila, int64_t version)
{
    return m_tabla.Insertar(m_db, codigo, fila, version, m_origen);
}

bool AccesoPreparado::Actualizar(int32_t codigo, const QVariantList& fila, int64_t version)
{
    return m_tabla.Actualizar(m_db, codigo, fila, version, m_origen);
}

Vigencia AccesoPreparado::ActualizarVigente(int32_t codigo, const QVariantList& fila,
                                            int64_t cargada, int64_t nueva)
{
    return m_tabla.ActualizarVigente(m_db, codigo, fila, cargada, nueva, m_origen);
}

AccesoNativo::AccesoNativo(const TablaParte& tabla, const QSqlDatabase& db, const QString& origen)
    : m_codigoPorDni(db, tabla.sqlCodigoPorDni(), origen),
      m_insertar(db, tabla.sqlInsertar(), origen),
      m_insertarConCodigo(db, tabla.sqlInsertarConCodigo(), origen),
      m_actualizar(db, tabla.sqlActualizar(), origen),
      m_actualizarVigente(db, tabla.sqlActualizarVigente(), origen),
      m_existe(db, tabla.sqlExiste(), origen),
      m_insertarSiNuevo(db, tabla.sqlInsertarSiNuevo(), origen)
{
}

TitularParte AccesoNativo::TitularPorDni(const QString& dni)
{
    const QString t = dni.trimmed();
    if (t.isEmpty())
        return {};
    int64_t fila[2] = {0, 0};
    if (!m_codigoPorDni.Enteros({t}, fila, 2))
        return {};
    return {int32_t(fila[0]), fila[1]};
}

int32_t AccesoNativo::Insertar(int32_t codigo, const QVariantList& fila, int64_t version)
{
    QVariantList valores = fila;
    valores << qlonglong(version);
    if (codigo == 0) {
        m_insertar.Ejecutar(valores);
        return 0;
    }
    valores << codigo;
    m_insertarConCodigo.Ejecutar(valores);
    return codigo;
}

bool AccesoNativo::Actualizar(int32_t codigo, const QVariantList& fila, int64_t version)
{
    QVariantList valores = fila;
    valores << qlonglong(version) << codigo;
    return m_actualizar.Ejecutar(valores) > 0;
}

Vigencia AccesoNativo::ActualizarVigente(int32_t codigo, const QVariantList& fila,
                                         int64_t cargada, int64_t nueva)
{
    QVariantList valores = fila;
    valores << qlonglong(nueva) << codigo << qlonglong(cargada);
    if (m_actualizarVigente.Ejecutar(valores) > 0)
        return Vigencia::Vigente;
    return m_existe.Escalar({codigo}, 0) > 0 ? Vigencia::Cambiada : Vigencia::Borrada;
}

bool AccesoNativo::InsertarSiNuevo(const QVariantList& fila, int64_t version)
{
    QVariantList valores = fila;
    valores << qlonglong(version);
    return m_insertarSiNuevo.Ejecutar(valores) > 0;
}
