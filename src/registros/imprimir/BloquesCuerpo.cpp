// The means of transport block and the amounts block: frames, rules, boxes, labels.
#include "registros/imprimir/EtiquetasImpreso.h"
#include "registros/imprimir/ImpresoOficial.h"
#include "registros/imprimir/Primitivas.h"

#include <array>
#include <initializer_list>

namespace {
const std::array<ParEtiquetas, 20> kCaracteristicas{{
    {30, 9, "Marka/", 36.5f, 9, "Marca"},
    {76, 9, "Mota/", 81.5f, 9, "Tipo"},
    {122, 9, "Modeloa/", 130.5f, 9, "Modelo"},
    {176, 9, "Gakoa", 176, 11, "Clave"},
    {30, 17, "Identifikazio zk.(txasisa)/", 52, 17, "NºIdentificación(bastidor)"},
    {110, 17, "Sailkapena/", 120, 17, "Clasificación"},
    {30, 25.5f, "Gasolina motorea/", 46, 25.5f, "Motor de gasolina"},
    {30, 29.5f, "Diesel motorea/", 44, 29.5f, "Motor diesel"},
    {141, 25, "Zilindrada/", 151, 25, "Cilindrada"},
    {30, 33, "Fabrikatzailea/", 43, 33, "Fabricante"},
    {101, 33, "Mota-Modeloa/", 115, 33, "Tipo-Modelo"},
    {176, 33, "Gakoa", 176, 35, "Clave"},
    {30, 41, "Identifikazioa(eraikuntaza zk.)/", 57, 41, "Identificación(Nºconstrucción)"},
    {126, 41, "Gehieneko luzera/", 142, 41, "Escala máxima"},
    {30, 49, "Fabrikatzailea/", 43.5f, 49, "Fabricante"},
    {101, 49, "Modeloa/", 109.5f, 49, "Modelo"},
    {176, 49, "Gakoa", 176, 51, "Clave"},
    {30, 57, "Serie zk./", 38, 57, "Nº serie"},
    {86, 57, "Fabrikazio urtea/", 101.5f, 57, "Año fabricación"},
    {128, 57, "Aireratzeko gehieneko pisua(kg)/", 156.5f, 57, "Peso máximo despegue(kg)"},
}};

const std::array<ParEtiquetas, 10> kAutoliquidacion{{
    {24, 4, "Zergari lotu gabea", 24, 7, "No sujeto(1).............."},
    {50, 4, "Salbuteria", 50, 7, "Exento(2)............"},
    {72, 4, "Murrizpena", 72, 7, "Reducción(3)........."},
    {26, 17, "Lotura ezaren edo salbuespenaren oinarria", 26, 19.5f,
     "Fundamento no sujección, exención o reducción (4)"},
    {76, 18, "Gakoa", 76, 20, "Clave"},
    {102, 3, "Oinarri ezargarria", 102, 5,
     "Base imponible(5).................................................."},
    {102, 10, "oinarri ezargarri murriztua", 102, 12,
     "Base imponible reducida(6)..................................."},
    {102, 15.5f, "Zerga tasa", 102, 17.5f,
     "Tipo impositivo(7)................................................."},
    {102, 22, "Kuota", 102, 24,
     "Cuota(8)..............................................................."},
    {102, 28.5f, "Kenkaria", 102, 30.5f,
     "Deducción(9)........................................................"},
}};

const ParEtiquetas kTotal{102, 35, "Guztira ordaintzekoa", 102, 37,
                          "Total a ingresar(10).............................................."};

// Vertical rules of one row of the characteristics block.
void verticales(cSuperficiePagina& p, float y1, float y2, std::initializer_list<float> xs)
{
    for (const float x : xs)
        LineaNegra(p, x, y1, x, y2);
}

void reglasCaracteristicas(cSuperficiePagina& p, float y)
{
    LineaNegra(p, 29, y + 8, 29, y + 64);
    for (const float dy : {8.0f, 32.0f, 48.0f})
        LineaNegra(p, 23, y + dy, 190, y + dy);
    for (const float dy : {16.0f, 24.0f, 40.0f, 56.0f})
        LineaNegra(p, 29, y + dy, 190, y + dy);
    verticales(p, y + 8, y + 16, {75, 121, 175});
    verticales(p, y + 16, y + 24, {109});
    verticales(p, y + 24, y + 32, {140});
    verticales(p, y + 32, y + 40, {100, 175});
    verticales(p, y + 40, y + 48, {125});
    verticales(p, y + 48, y + 56, {100, 175});
    verticales(p, y + 56, y + 64, {85, 127});
}

void cajasCaracteristicas(cSuperficiePagina& p, float y)
{
    CajaGris(p, 175.2f, y + 8.2f, 189.6f, y + 15.7f);
    CajaGris(p, 175.2f, y + 32.2f, 189.6f, y + 39.6f);
    CajaGris(p, 175.2f, y + 48.2f, 189.6f, y + 55.6f);
    CajaBlanca(p, 160, y + 1, 165, y + 6.4f);
    CajaBlanca(p, 64, y + 25, 66, y + 27);
    CajaBlanca(p, 64, y + 29, 66, y + 31);
}
}

void DibujarBloqueCaracteristicas(cSuperficiePagina& p, float y, Dibujo vehiculos, Dibujo barcos,
                                  Dibujo aeronaves)
{
    Marco(p, 23, y, 190, y + 64);
    reglasCaracteristicas(p, y);
    p.PaintPicture(vehiculos, 23.3f, y + 15);
    p.PaintPicture(barcos, 23.5f, y + 33);
    p.PaintPicture(aeronaves, 23.5f, y + 49.3f);
    cajasCaracteristicas(p, y);
    FuenteTimes(p, 8);
    Etiquetas(p, y,
              {38, 2, "Garraiobide berria, Espainia ez den Europako Batasuneko estatu batean erosia",
               38, 5,
               "Medio de transporte nuevo adquirido en un estado de la C.E.E. distinto de "
               "España......................................."});
    p.FontSize = 6;
    for (const ParEtiquetas& par : kCaracteristicas)
        Etiquetas(p, y, par);
}

void DibujarBloqueAutoliquidacion(cSuperficiePagina& p, float y)
{
    Marco(p, 23, y, 190, y + 40);
    LineaNegra(p, 97, y, 97, y + 40);
    LineaNegra(p, 145, y, 145, y + 40);
    LineaNegra(p, 23, y + 11, 97, y + 11);
    for (const float dy : {6.5f, 13.0f, 19.5f, 26.0f, 32.5f})
        LineaNegra(p, 145, y + dy, 190, y + dy);
    CajaBlanca(p, 44, y + 4, 48, y + 8);
    CajaBlanca(p, 66, y + 4, 70, y + 8);
    CajaBlanca(p, 90, y + 4, 94, y + 8);
    CajaBlanca(p, 75, y + 17, 87, y + 29);
    CajaGris(p, 75.2f, y + 17.2f, 86.8f, y + 28.8f);
    CajaGris(p, 145.2f, y + 33.2f, 189.6f, y + 39.1f);
    FuenteTimes(p, 6);
    for (const ParEtiquetas& par : kAutoliquidacion)
        Etiquetas(p, y, par);
    Etiquetas(p, y, kTotal);
}
