#include "servicios/VeredictosPartes.h"

#include "catalogo/Catalogo.h"
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
    {330, "txtdnic"},        // number badly formed
    {29, "txtdnic"},         // number empty
    {30, "txtnombrec"},
    {31, "txtdomicilioc"},
    {32, "txtpais"},
    {33, "txtcodposc"},      // postal code of another province
    {34, "txtcodposc"},      // not of five digits
    {35, "txtcodposc"},      // ends in 000
    {36, "txtcodposc"},      // zero
    {37, "txtnomprovc"},
    {38, "txtnommunc"},
    {39, "txtcodprovc"},
    {40, "txtcodmunc"},
    {329, "txtdnic"},        // wrong check character
}};

constexpr std::array<Regla, 12> kPresentador = {{
    {0, ""},
    {330, "txtdnip"},
    {30, "txtnombrep"},
    {31, "txtdomiciliop"},
    {40, "txtcodmunp"},
    {38, "txtnommunp"},
    {36, "txtcodposp"},
    {33, "txtcodposp"},
    {35, "txtcodposp"},
    {198, "txttelefonop"},   // not of nine digits
    {199, "txttelefonop"},   // empty
    {329, "txtdnip"},
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
