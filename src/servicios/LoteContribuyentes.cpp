#include "servicios/LoteContribuyentes.h"

#include "servicios/GuardadoContribuyente.h"
#include "servicios/ReferenciaPartes.h"

cLoteContribuyentes::cLoteContribuyentes(const QString& mdbmod, const QString& mdblec)
    : m_origen(QStringLiteral("svrveldoV1.cContribSvr.GuardarContribuyente")),
      m_db(Conexion::Modificable(mdbmod, m_origen)),
      m_referencia(ReferenciaPartes::ConsultasEnMemoria(
          mdblec, QStringLiteral("svrveldoV1.cContribSvr.ValidarDatosImportar"))),
      m_acceso(std::make_unique<AccesoNativo>(GuardadoContribuyente::Tabla(), m_db, m_origen))
{
}

void cLoteContribuyentes::ValidarDatosImportar(const Arreglo& datos, Arreglo2D& errores) const
{
    errores = ArregloErrores(ErroresImportacion(datos, m_referencia));
}

cLoteContribuyentes::~cLoteContribuyentes() = default;

int32_t cLoteContribuyentes::ExisteContribuyente(const QString& dni, int64_t* version)
{
    m_consultaVigente = false;
    m_consultado = m_acceso->TitularPorDni(dni);
    m_dniConsultado = dni.trimmed();
    m_consultaVigente = true;
    if (version)
        *version = m_consultado.version;
    return m_consultado.codigo;
}

void cLoteContribuyentes::Empezar()
{
    if (!m_transaccion) {
        m_transaccion = std::make_unique<Transaccion>(m_db, m_origen);
        m_reloj.start();
    }
}

void cLoteContribuyentes::Contar()
{
    ++m_pendientes;
    if (m_pendientes >= kFilasPorLote || m_reloj.elapsed() >= kMilisegundosPorLote)
        Confirmar();
}

int16_t cLoteContribuyentes::GuardarContribuyente(const Arreglo& datos, bool sustituir,
                                                  Veredicto* rechazo, int64_t* version)
{
    Empezar();
    // A save refused by its verdict has written nothing, so the batch goes on.
    std::optional<TitularParte> titular;
    if (m_consultaVigente && GuardadoContribuyente::DniGuardado(datos) == m_dniConsultado)
        titular = m_consultado;
    m_consultaVigente = false;  // whatever happens now, the store may have changed
    const int16_t veredicto = GuardadoContribuyente::Guardar(
        *m_acceso, datos,
        sustituir ? GuardadoContribuyente::Modo::Sustituir : GuardadoContribuyente::Modo::Anadir,
        m_origen, titular, rechazo, version);
    if (veredicto == 0)
        Contar();
    else if (m_reloj.elapsed() >= kMilisegundosPorLote)
        Confirmar();
    return veredicto;
}

int16_t cLoteContribuyentes::AnadirSiNuevo(const Arreglo& datos, int32_t& titular,
                                           Veredicto* rechazo, int64_t* version)
{
    Empezar();
    m_consultaVigente = false;
    TitularParte poseedor;
    const int16_t veredicto =
        GuardadoContribuyente::AnadirSiNuevo(*m_acceso, datos, m_origen, poseedor, rechazo);
    titular = poseedor.codigo;
    if (version)
        *version = poseedor.version;
    if (veredicto == VeredictoGuardarContribuyente::Guardado) {
        Contar();
    } else if (poseedor.codigo != 0) {
        // Nothing was written: the holder stays known for the save that follows.
        m_consultado = poseedor;
        m_dniConsultado = GuardadoContribuyente::DniGuardado(datos);
        m_consultaVigente = true;
    }
    return veredicto;
}

void cLoteContribuyentes::Confirmar()
{
    if (!m_transaccion)
        return;
    m_transaccion->confirmar();
    m_transaccion.reset();
    m_pendientes = 0;
}
