#include "registros/partes/cConDatos.h"

#include "plataforma/Estado.h"

#include "plataforma/General.h"
#include "valores/Formato.h"
#include "servicios/Almacen.h"
#include "servicios/PosicionesContribuyente.h"
#include "servicios/cContribSvr.h"

#include <array>

namespace P = PosContribuyente;
namespace V = PosValidacionContribuyente;

namespace {

// Catalogue ids of the verdicts 1 to 14 of the validation, and of the import's codes 1 to 30.
constexpr std::array<int, 15> kIdsValidacion = {0, 330, 29, 30, 31, 32, 33, 34, 35,
                                                36, 37, 38, 39, 40, 329};
constexpr std::array<int, 31> kIdsImportar = {0,   330, 293, 294, 295, 296, 33,  34,
                                              35,  36,  297, 298, 299, 300, 285, 286,
                                              287, 288, 289, 290, 301, 302, 308, 306,
                                              307, 304, 310, 311, 309, 305, 303};

}  // namespace

void cConDatos::IniciarNuevo()
{
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
    VERSION = 0;
}

void cConDatos::BorrarContribuyente() const
{
    Almacen<cContribSvr>().BorrarContribuyente(CSCO);
}

void cConDatos::CargarContribuyente(int32_t codigo)
{
    Arreglo d;
    int64_t version = 0;
    Almacen<cContribSvr>().CargarContribuyente(codigo, d, &version);
    if (d.size() < P::Tamano)
        return;
    VERSION = version;
    TIPODNI = d[P::TIPODNI].toString();
    DNIC = d[P::DNIC].toString();
    NOMBREC = d[P::NOMBREC].toString();
    VIAC = d[P::VIAC].toString();
    DOMICILIOC = d[P::DOMICILIOC].toString();
    NUMEROC = d[P::NUMEROC].toInt();
    LETRAC = d[P::LETRAC].toString();
    ESCALERAC = d[P::ESCALERAC].toString();
    PISOC = d[P::PISOC].toString();
    MANOC = d[P::MANOC].toString();
    TIPODOMI = d[P::TIPODOMI].toString();
    PAIS = d[P::PAIS].toString();
    CODPROVC = Formato(d[P::CODPROVC].toString(), QStringLiteral("00"));
    NOMPROVC = d[P::NOMPROVC].toString();
    CODPOSC = d[P::CODPOSC].toString();
    CODMUNC = d[P::CODMUNC].toString();
    NOMMUNC = d[P::NOMMUNC].toString();
    NUMSP = d[P::NUMSP].toDouble();
    NUMTR = d[P::NUMTR].toDouble();
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

int16_t cConDatos::GuardarContribuyente(const Arreglo& datos, Veredicto* rechazo)
{
    return Almacen<cContribSvr>().GuardarContribuyente(datos, rechazo, &VERSION);
}

Arreglo cConDatos::ArregloValidacion() const
{
    Arreglo a(V::Tamano);
    a[V::TIPODNI] = TIPODNI;
    a[V::DNIC] = DNIC;
    a[V::NOMBREC] = NOMBREC;
    a[V::DOMICILIOC] = DOMICILIOC;
    a[V::TIPODOMI] = TIPODOMI;
    a[V::PAIS] = PAIS;
    a[V::CODPROVC] = CODPROVC;
    a[V::CODPOSC] = CODPOSC;
    a[V::NOMPROVC] = NOMPROVC;
    a[V::NOMMUNC] = NOMMUNC;
    a[V::CODMUNC] = CODMUNC;
    return a;
}

Arreglo cConDatos::ArregloGuardar() const
{
    Arreglo a(P::Tamano);
    a[P::CSCO] = CSCO;
    a[P::TIPODNI] = TIPODNI;
    a[P::DNIC] = DNIC;
    a[P::NOMBREC] = NOMBREC;
    a[P::VIAC] = VIAC;
    a[P::DOMICILIOC] = DOMICILIOC;
    a[P::NUMEROC] = NUMEROC;
    a[P::LETRAC] = LETRAC;
    a[P::ESCALERAC] = ESCALERAC;
    a[P::PISOC] = PISOC;
    a[P::MANOC] = MANOC;
    a[P::TIPODOMI] = TIPODOMI;
    a[P::PAIS] = PAIS;
    a[P::CODPROVC] = CODPROVC;
    a[P::NOMPROVC] = NOMPROVC;
    a[P::CODPOSC] = CODPOSC;
    a[P::CODMUNC] = CODMUNC;
    a[P::NOMMUNC] = NOMMUNC;
    a[P::NUMSP] = NUMSP;
    a[P::NUMTR] = NUMTR;
    return a;
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

Vigencia cConDatos::VigenciaGuardar(int16_t veredicto)
{
    switch (veredicto) {
    case VeredictoGuardarContribuyente::Cambiado:
        return Vigencia::Cambiada;
    case VeredictoGuardarContribuyente::Borrado:
        return Vigencia::Borrada;
    default:
        return Vigencia::Vigente;
    }
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
