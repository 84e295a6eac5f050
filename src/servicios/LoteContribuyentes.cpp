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

int32_t cLoteContribuyentes::ExisteContribuyente(const QString& dni)
{
    m_consultaVigente = false;
    m_codigoConsultado = m_acceso->CodigoPorDni(dni);
    m_dniConsultado = dni.trimmed();
    m_consultaVigente = true;
    return m_codigoConsultado;
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
                                                  Veredicto* rechazo)
{
    Empezar();
    // A save refused by its verdict has written nothing, so the batch goes on.
    std::optional<int32_t> titular;
    if (m_consultaVigente && GuardadoContribuyente::DniGuardado(datos) == m_dniConsultado)
        titular = m_codigoConsultado;
    m_consultaVigente = false;  // whatever happens now, the store may have changed
    const int16_t veredicto = GuardadoContribuyente::Guardar(
        *m_acceso, datos,
        sustituir ? GuardadoContribuyente::Modo::Sustituir : GuardadoContribuyente::Modo::Anadir,
        m_origen, titular, rechazo);
    if (veredicto == 0)
        Contar();
    else if (m_reloj.elapsed() >= kMilisegundosPorLote)
        Confirmar();
    return veredicto;
}

int16_t cLoteContribuyentes::AnadirSiNuevo(const Arreglo& datos, int32_t& titular,
                                           Veredicto* rechazo)
{
    Empezar();
    m_consultaVigente = false;
    const int16_t veredicto =
        GuardadoContribuyente::AnadirSiNuevo(*m_acceso, datos, m_origen, titular, rechazo);
    if (veredicto == VeredictoGuardarContribuyente::Guardado) {
        Contar();
    } else if (titular != 0) {
        // Nothing was written: the holder stays known for the save that follows.
        m_codigoConsultado = titular;
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
