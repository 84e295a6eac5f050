// The blocks of the obligor, the representative and the transmitter: frames, rules, labels.
#include "registros/imprimir/EtiquetasImpreso.h"
#include "registros/imprimir/ImpresoOficial.h"
#include "registros/imprimir/Primitivas.h"

#include <array>

namespace {
const std::array<ParEtiquetas, 13> kPersona{{
    {40.36f, 1.3f, "Deiturak eta Izena edo Sozietaren izena/", 70, 1.3f,
     "Apellidos y nombre o razón social"},
    {12, 9, "Zerga helbidea/", 23.5f, 9, "Domicilio fiscal"},
    {100, 9, "Zenbakia", 100, 11, "Número"},
    {114, 9, "Letra", 114, 11, "Letra"},
    {126, 9, "Eskailera", 126, 11, "Escalera"},
    {138, 9, "Oina", 138, 11, "Piso"},
    {151, 9, "Aldea", 151, 11, "Mano"},
    {165, 9, "Telefonoa/", 173, 9, "Teléfono"},
    {12, 17, "Udalerria/", 20, 17, "Municipio"},
    {76, 17, "Post.Kodea/", 85, 17, "Cod. Postal"},
    {97, 17, "Gakoa", 97, 19, "Clave"},
    {113, 17, "Probintzia/", 121, 17, "Provincia"},
    {176, 17, "Gakoa", 176, 19, "Clave"},
}};

const std::array<ParEtiquetas, 4> kTransmitente{{
    {40.36f, 1.3f, "Deiturak eta Izena edo Sozietaren izena/", 70, 1.3f,
     "Apellidos y Nombre o Razón Social"},
    {12, 9.7f, "Zerga helbidea/", 24, 9.7f, "Domicilio fiscal"},
    {96, 9.7f, "Probintzia/", 104, 9.7f, "Provincia"},
    {147, 9.7f, "Herrialdea/", 155.5f, 9.7f, "Pais"},
}};

// The NIF pair opens each block: its Basque half "I.F.Z./" in italic size 6, its Spanish half
// upright in size 5, as the rest of the labels.
void etiquetaNif(cSuperficiePagina& p, float y, float xEs)
{
    FuenteTimes(p, 6, false, true);
    TextoIzquierda(p, 12, y + 1.3f, QStringLiteral("I.F.Z./"));
    FuenteTimes(p, 5);
    TextoIzquierda(p, xEs, y + 1.3f, QStringLiteral("N.I.F."));
}

void reglasPersona(cSuperficiePagina& p, float y)
{
    LineaNegra(p, 11, y, 11, y + 24.96f);
    p.DrawWidth = 10;
    LineaNegra(p, 11, y + 7.9f, 39, y + 7.9f);
    LineaNegra(p, 39, y, 39, y + 8.03f);
    p.DrawWidth = 6;
    LineaNegra(p, 39, y + 8.03f, 190, y + 8.03f);
    LineaNegra(p, 11, y + 16.1f, 190, y + 16.1f);
    for (const float x : {99.0f, 113.0f, 125.0f, 137.0f, 150.0f, 164.0f})
        LineaNegra(p, x, y + 8.03f, x, y + 16.1f);
    for (const float x : {75.0f, 96.0f, 112.0f, 175.5f})
        LineaNegra(p, x, y + 16.1f, x, y + 24.96f);
    CajaGris(p, 96.1f, y + 16.3f, 111.95f, y + 24.58f);
    CajaGris(p, 175.8f, y + 16.3f, 189.6f, y + 24.58f);
}
}

void DibujarBloquePersona(cSuperficiePagina& p, float y, Dibujo rotulo)
{
    p.FontUnderline = false;
    p.ForeColor = 0;
    Marco(p, 5, y, 190, y + 24.96f);
    p.PaintPicture(rotulo, 5.4f, y + 3);
    reglasPersona(p, y);
    etiquetaNif(p, y, 17.8f);
    for (const ParEtiquetas& par : kPersona)
        Etiquetas(p, y, par);
}

void DibujarBloqueTransmitente(cSuperficiePagina& p, float y, Dibujo rotulo)
{
    Marco(p, 5, y, 190, y + 18.04f);
    p.PaintPicture(rotulo, 5.4f, y + 0.15f);
    LineaNegra(p, 11, y, 11, y + 18.04f);
    p.DrawWidth = 10;
    LineaNegra(p, 11, y + 8.6f, 39, y + 8.6f);
    LineaNegra(p, 39, y, 39, y + 8.73f);
    p.DrawWidth = 6;
    LineaNegra(p, 39, y + 8.73f, 190, y + 8.73f);
    LineaNegra(p, 95, y + 8.73f, 95, y + 18.04f);
    LineaNegra(p, 146, y + 8.73f, 146, y + 18.04f);
    etiquetaNif(p, y, 17);
    for (const ParEtiquetas& par : kTransmitente)
        Etiquetas(p, y, par);
}
