#include "plataforma/Estado.h"

#include "plataforma/General.h"
#include "plataforma/Idioma.h"

#include <atomic>

namespace {
std::atomic<uint64_t> g_generacion{0};
}

uint64_t cEstado::Generacion()
{
    return g_generacion.load(std::memory_order_acquire);
}

void cEstado::Reiniciar()
{
    g_generacion.fetch_add(1, std::memory_order_acq_rel);
    for (const auto& reiniciar : m_reinicios)
        reiniciar();
    EstablecerIdiomaPrograma(Idioma::Castellano);
    VersionPrograma.clear();
}

cEstado& Estado()
{
    // Never destroyed: panels may still read a record while the process ends.
    static auto* const estado = new cEstado;
    return *estado;
}
