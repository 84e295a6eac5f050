#include "servicios/VeredictosPartes.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "valores/BotonesMensaje.h"

#include <array>

namespace {

struct Regla {
    int id;               // catalogue text
    const char* control;  // objectName of the field to focus
};

// Indexed by the rule's number; rule 0 is "valid".
constexpr std::array<Regla, 15> kContribuyente = {{
    {0, ""},
    {kIdDniCifErroneoODigitoControl, "txtdnic"},  // number badly formed
    {kIdDniVacio, "txtdnic"},                     // number empty
    {kIdNombreVacio, "txtnombrec"},
    {kIdDomicilioVacio, "txtdomicilioc"},
    {kIdPaisVacio, "txtpais"},
    {kIdProvinciaYCodigoPostalNoCoinciden, "txtcodposc"},  // postal code of another province
    {kIdCodigoPostalCincoCifras, "txtcodposc"},            // not of five digits
    {kIdCodigoPostalTresUltimosCero, "txtcodposc"},        // ends in 000
    {kIdCodigoPostalCero, "txtcodposc"},                   // zero
    {kIdProvinciaVacia, "txtnomprovc"},
    {kIdMunicipioVacio, "txtnommunc"},
    {kIdCodigoProvinciaVacio, "txtcodprovc"},
    {kIdCodigoMunicipioVacio, "txtcodmunc"},
    {kIdNifSinDigitoControl, "txtdnic"},        // wrong check character
}};

constexpr std::array<Regla, 12> kPresentador = {{
    {0, ""},
    {kIdDniCifErroneoODigitoControl, "txtdnip"},
    {kIdNombreVacio, "txtnombrep"},
    {kIdDomicilioVacio, "txtdomiciliop"},
    {kIdCodigoMunicipioVacio, "txtcodmunp"},
    {kIdMunicipioVacio, "txtnommunp"},
    {kIdCodigoPostalCero, "txtcodposp"},
    {kIdProvinciaYCodigoPostalNoCoinciden, "txtcodposp"},
    {kIdCodigoPostalTresUltimosCero, "txtcodposp"},
    {kIdTelefonoNueveCifras, "txttelefonop"},  // not of nine digits
    {kIdTelefonoVacio, "txttelefonop"},        // empty
    {kIdNifSinDigitoControl, "txtdnip"},
}};

template <size_t N>
Veredicto deTabla(const std::array<Regla, N>& tabla, int16_t regla)
{
    if (regla <= 0 || static_cast<size_t>(regla) >= N)
        return {};
    const Regla& r = tabla[static_cast<size_t>(regla)];
    Veredicto v = VeredictosPartes::Informacion(r.id);
    v.control = QLatin1String(r.control);
    return v;
}

}  // namespace

namespace VeredictosPartes {

Veredicto ValidacionContribuyente(int16_t regla)
{
    return deTabla(kContribuyente, regla);
}

Veredicto ValidacionPresentador(int16_t regla)
{
    return deTabla(kPresentador, regla);
}

Veredicto Informacion(int id)
{
    Veredicto v;
    v.id = id;
    v.mensaje = Texto(id);
    v.botones = vb::OKOnly + vb::Information;
    return v;
}

Veredicto NoVigente(Vigencia vigencia)
{
    Veredicto v;
    v.vigencia = vigencia;
    return v;
}

}  // namespace VeredictosPartes
