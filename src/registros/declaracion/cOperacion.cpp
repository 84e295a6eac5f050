#include "registros/declaracion/cOperacion.h"

#include "plataforma/Estado.h"

#include "valores/Redondeo.h"

#include <bit>
#include <cstdint>

bool EsTasaLibre(double tasa)
{
    return std::bit_cast<std::uint64_t>(tasa) == std::bit_cast<std::uint64_t>(TasaLibre);
}

static_assert(std::bit_cast<std::uint64_t>(TasaLibre) == 0x4058FF5C28F5C28FULL);

void cOperacion::setT_TIP(double v) { m_tip = Redondear(v, 2); }
void cOperacion::setT_MIN(double v) { m_min = Redondear(v, 2); }
void cOperacion::setT_MAX(double v) { m_max = Redondear(v, 2); }
void cOperacion::setT_DEDU(double v) { m_dedu = Redondear(v, 2); }

void cOperacion::Inicializa()
{
    DESCRIP.clear();
    T_IMPR.clear();
    T_NSUJ.clear();
    T_EXE.clear();
    T_RED.clear();
    m_tip = m_min = m_max = m_dedu = 0;
}

void cOperacion::ActualizaOperacion(const Arreglo& datos, bool sinReduccion)
{
    DESCRIP = datos.value(0).toString();
    T_IMPR = datos.value(1).toString();
    T_NSUJ = datos.value(2).toString();
    T_EXE = datos.value(3).toString();
    setT_TIP(datos.value(4).toDouble());
    setT_MIN(datos.value(5).toDouble());
    setT_MAX(datos.value(6).toDouble());
    setT_DEDU(datos.value(7).toDouble());
    // A reduction of the base makes no sense on an exempt or not-subject case.
    if (sinReduccion || T_EXE == QLatin1String("X") || T_NSUJ == QLatin1String("X"))
        T_RED.clear();
}

cOperacion& Operacion()
{
    return Estado().de<cOperacion>();
}
