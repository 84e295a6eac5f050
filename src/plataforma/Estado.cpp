#include "plataforma/Estado.h"

#include "plataforma/General.h"

void cEstado::Reiniciar()
{
    for (const auto& reiniciar : m_reinicios)
        reiniciar();
    OffsetIdioma = 0;
    VersionPrograma.clear();
}

cEstado& Estado()
{
    // Never destroyed: panels may still read a record while the process ends.
    static auto* const estado = new cEstado;
    return *estado;
}
