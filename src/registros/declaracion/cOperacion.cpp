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

void cOperacion::ActualizaOperacion(const DatosOperacion& datos, bool sinReduccion)
{
    DESCRIP = datos.descripcion;
    T_IMPR = datos.impresion;
    T_NSUJ = datos.nosujeto;
    T_EXE = datos.exento;
    setT_TIP(datos.tipo);
    setT_MIN(datos.tipoMinimo);
    setT_MAX(datos.tipoMaximo);
    setT_DEDU(datos.deduccion);
    // A reduction of the base makes no sense on an exempt or not-subject case.
    if (sinReduccion || T_EXE == QLatin1String("X") || T_NSUJ == QLatin1String("X"))
        T_RED.clear();
}

cOperacion& Operacion()
{
    return Estado().de<cOperacion>();
}
