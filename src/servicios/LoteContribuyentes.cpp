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

QList<HallazgoImportacion> cLoteContribuyentes::ValidarDatosImportar(
    const LineaContribuyente& linea) const
{
    return ErroresImportacion(linea, m_referencia);
}

cLoteContribuyentes::~cLoteContribuyentes() = default;

TitularParte cLoteContribuyentes::ExisteContribuyente(const QString& dni)
{
    m_consultaVigente = false;
    m_consultado = m_acceso->TitularPorDni(dni);
    m_dniConsultado = dni.trimmed();
    m_consultaVigente = true;
    return m_consultado;
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

Resultado<void> cLoteContribuyentes::GuardarContribuyente(const Contribuyente& c, bool sustituir,
                                                          Sobrescritura sobre)
{
    Empezar();
    // A save refused by its verdict has written nothing, so the batch goes on.
    std::optional<TitularParte> titular;
    if (m_consultaVigente && GuardadoContribuyente::DniGuardado(c) == m_dniConsultado)
        titular = m_consultado;
    m_consultaVigente = false;  // whatever happens now, the store may have changed
    const Resultado<TitularParte> r = GuardadoContribuyente::Guardar(
        *m_acceso, c,
        sustituir ? GuardadoContribuyente::Modo::Sustituir : GuardadoContribuyente::Modo::Anadir,
        sobre, m_origen, titular);
    if (r)
        Contar();
    else if (m_reloj.elapsed() >= kMilisegundosPorLote)
        Confirmar();
    if (!r)
        return r.veredicto();
    return {};
}

Resultado<TitularParte> cLoteContribuyentes::AnadirSiNuevo(const Contribuyente& c)
{
    Empezar();
    m_consultaVigente = false;
    Resultado<TitularParte> r = GuardadoContribuyente::AnadirSiNuevo(*m_acceso, c, m_origen);
    if (r && r->codigo == 0) {
        Contar();
    } else if (r) {
        // Nothing was written: the holder stays known for the save that follows.
        m_consultado = *r;
        m_dniConsultado = GuardadoContribuyente::DniGuardado(c);
        m_consultaVigente = true;
    }
    return r;
}

void cLoteContribuyentes::Confirmar()
{
    if (!m_transaccion)
        return;
    m_transaccion->confirmar();
    m_transaccion.reset();
    m_pendientes = 0;
}
