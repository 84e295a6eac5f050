#include "valores/EstadoNavegacion.h"

#include "plataforma/Estado.h"

namespace Navegacion {

void ListaOrigen::volverDeViaje()
{
    if (m_viajes.isEmpty())
        m_origen = Origen::Menu;
    m_viajes.clear();
}

std::optional<Origen> ListaOrigen::listaDeVuelta() const
{
    if (enViaje() || m_origen == Origen::Menu)
        return std::nullopt;
    return m_origen;
}

QString ListaOrigen::letras() const
{
    QString texto = Letras(m_origen);
    for (const Viaje viaje : m_viajes)
        texto += Letras(viaje);
    return texto;
}

QString EntradaDeclaraciones::letras() const
{
    return m_viaje ? Letras(m_entrada) + Letras(*m_viaje) : Letras(m_entrada);
}

RutaDeclaracion& RutaDec()
{
    return Estado().de<RutaDeclaracion>();
}

RutaContribuyente& RutaCon()
{
    return Estado().de<RutaContribuyente>();
}

RutaPresentador& RutaPre()
{
    return Estado().de<RutaPresentador>();
}

}  // namespace Navegacion
