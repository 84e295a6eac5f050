#include "registros/partes/cConDatos.h"

#include "plataforma/Estado.h"

#include "plataforma/General.h"
#include "valores/Formato.h"
#include "servicios/Almacen.h"
#include "servicios/cContribSvr.h"

#include <array>

namespace {

// Catalogue ids of the verdicts 1 to 14 of the validation, and of the import's codes 1 to 30.
constexpr std::array<int, 15> kIdsValidacion = {0, 330, 29, 30, 31, 32, 33, 34, 35,
                                                36, 37, 38, 39, 40, 329};
constexpr std::array<int, 31> kIdsImportar = {0,   330, 293, 294, 295, 296, 33,  34,
                                              35,  36,  297, 298, 299, 300, 285, 286,
                                              287, 288, 289, 290, 301, 302, 308, 306,
                                              307, 304, 310, 311, 309, 305, 303};

}  // namespace

void cConDatos::setMODO(const QString& modo)
{
    m_modo = modo;
    if (modo != QLatin1String("A"))
        return;
    TIPODNI = QStringLiteral("O");
    DNIC.clear();
    NOMBREC.clear();
    TIPODOMI = QStringLiteral("N");
    VIAC = QStringLiteral("CL");
    DOMICILIOC.clear();
    NUMEROC = 0;
    LETRAC.clear();
    ESCALERAC.clear();
    PISOC.clear();
    MANOC.clear();
    PAIS.clear();
    CODPROVC = QStringLiteral("77");
    NOMPROVC.clear();
    CODPOSC.clear();
    CODMUNC.clear();
    NOMMUNC.clear();
    NUMSP = 0;
    NUMTR = 0;
}

void cConDatos::BorrarContribuyente() const
{
    Almacen<cContribSvr>().BorrarContribuyente(CSCO);
}

void cConDatos::CargarContribuyente(int32_t codigo)
{
    Arreglo d;
    Almacen<cContribSvr>().CargarContribuyente(codigo, d);
    if (d.size() < 20)
        return;
    TIPODNI = d[1].toString();
    DNIC = d[2].toString();
    NOMBREC = d[3].toString();
    VIAC = d[4].toString();
    DOMICILIOC = d[5].toString();
    NUMEROC = d[6].toInt();
    LETRAC = d[7].toString();
    ESCALERAC = d[8].toString();
    PISOC = d[9].toString();
    MANOC = d[10].toString();
    TIPODOMI = d[11].toString();
    PAIS = d[12].toString();
    CODPROVC = Formato(d[13].toString(), QStringLiteral("00"));
    NOMPROVC = d[14].toString();
    CODPOSC = d[15].toString();
    CODMUNC = d[16].toString();
    NOMMUNC = d[17].toString();
    NUMSP = d[18].toDouble();
    NUMTR = d[19].toDouble();
}

void cConDatos::ValidarDatosImportar(const Arreglo& datos, Arreglo2D& errores) const
{
    Almacen<cContribSvr>().ValidarDatosImportar(datos, errores);
}

int16_t cConDatos::ValidarDatosContribuyente(const Arreglo& datos) const
{
    // The validation needs no database.
    return cContribSvr().ValidarDatosContribuyentes(datos);
}

int32_t cConDatos::ObtenerCodigoContribuyente(const QString& dni) const
{
    return Almacen<cContribSvr>().ObtenerCodigoContribuyente(dni);
}

int16_t cConDatos::GuardarContribuyente(const Arreglo& datos) const
{
    return Almacen<cContribSvr>().GuardarContribuyente(datos);
}

Arreglo cConDatos::ArregloValidacion() const
{
    return {TIPODNI, DNIC,    NOMBREC,  DOMICILIOC, TIPODOMI, PAIS,
            CODPROVC, CODPOSC, NOMPROVC, NOMMUNC,   CODMUNC};
}

Arreglo cConDatos::ArregloGuardar() const
{
    return {CSCO,     TIPODNI,  DNIC,   NOMBREC, VIAC,     DOMICILIOC, NUMEROC,
            LETRAC,   ESCALERAC, PISOC, MANOC,   TIPODOMI, PAIS,       CODPROVC,
            NOMPROVC, CODPOSC,  CODMUNC, NOMMUNC, NUMSP,   NUMTR};
}

int cConDatos::IdMensajeValidacion(int16_t veredicto)
{
    return veredicto > 0 && veredicto < static_cast<int>(kIdsValidacion.size())
        ? kIdsValidacion[static_cast<size_t>(veredicto)]
        : 0;
}

int cConDatos::IdMensajeGuardar(int16_t veredicto)
{
    return veredicto == 1 ? 41 : veredicto == 2 ? 42 : 0;
}

int cConDatos::IdMensajeImportar(int codigo)
{
    return codigo > 0 && codigo < static_cast<int>(kIdsImportar.size())
        ? kIdsImportar[static_cast<size_t>(codigo)]
        : 0;
}

cConDatos& ConDatos()
{
    return Estado().de<cConDatos>();
}
