// The two top boxes of the sheet and the numbered section titles.
#include "registros/imprimir/EtiquetasImpreso.h"
#include "registros/imprimir/ImpresoOficial.h"
#include "registros/imprimir/Primitivas.h"
#include "servicios/cMiscelaneos.h"

void DibujarCabeceraReservada(cSuperficiePagina& p)
{
    p.DrawWidth = 10;
    CajaBlanca(p, 5, 5, 190, 23);
    FuenteTimes(p, 9, false, true);
    TextoIzquierda(p, 8, 8.5f, QStringLiteral("ORGANO ESKUDUNAK BETE BEHARREKO ESPAZIOA"));
    p.FontItalic = false;
    TextoIzquierda(p, 8, 12.5f, QStringLiteral("ESPACIO RESERVADO PARA CUMPLIMENTAR POR"));
    TextoIzquierda(p, 8, 16.5f, QStringLiteral("EL ÓRGANO COMPETENTE"));
    p.PaintPicture(Dibujo::Placa, 87.5f, 7);
    // The two verticals bound the registration label.
    LineaNegra(p, 86, 5, 86, 23);
    LineaNegra(p, 95, 5, 95, 23);
}

namespace {
void tituloCentral(cSuperficiePagina& p)
{
    FuenteTimes(p, 10, true, true);
    TextoCentrado(p, 60, 28, 105, QStringLiteral("Zenbait Garraiobideren gaineko Zerga Berezia"));
    p.FontItalic = false;
    TextoCentrado(p, 60, 32, 105,
                  QStringLiteral("Impuesto Especial sobre Determinados Medios de Transporte"));
    FuenteTimes(p, 8, false, true);
    TextoCentrado(p, 60, 38, 105, QStringLiteral("Aitorpen-likidazioa"));
    p.FontItalic = false;
    TextoCentrado(p, 60, 41, 105, QStringLiteral("Declaración-Liquidación"));
}

void reglasTitulo(cSuperficiePagina& p)
{
    p.DrawWidth = 6;
    LineaNegra(p, 60, 26, 60, 53);
    LineaNegra(p, 165, 26, 165, 53);
    LineaNegra(p, 60, 45, 165, 45);
    LineaNegra(p, 165, 39, 190, 39);
    LineaNegra(p, 165, 45, 190, 45);
    LineaNegra(p, 107, 45, 107, 53);
}

void diputacion(cSuperficiePagina& p)
{
    FuenteTimes(p, 5, true, true);
    TextoIzquierda(p, 25, 31, QStringLiteral("Arbeliako Foru Aldundia"));
    p.FontItalic = false;
    TextoIzquierda(p, 25, 33, QStringLiteral("Diputación Foral de Arbelia"));
    p.PaintPicture(Dibujo::Logo, 7, 26.5f);
    // The department's name comes from the treasury's common service, Basque then Spanish.
    cMiscelaneos misc;
    FuenteTimes(p, 7);
    misc.Idioma = 1000;
    TextoIzquierda(p, 9, 45, misc.HaciendaFiscalidad());
    misc.Idioma = 0;
    TextoIzquierda(p, 9, 48, misc.HaciendaFiscalidad());
}

void modeloYOficina(cSuperficiePagina& p)
{
    FuenteTimes(p, 31, true);
    TextoIzquierda(p, 169, 31, QStringLiteral("747"));
    FuenteTimes(p, 6, false, true);
    TextoCentrado(p, 165, 39.5f, 25, QStringLiteral("Likidazio Bulegoa"));
    p.FontItalic = false;
    TextoCentrado(p, 165, 42, 25, QStringLiteral("Oficina Liquidadora"));
    Etiquetas(p, 0, {62, 47, "Ekitaldia:", 62, 49.5f, "Ejercicio:"});
    Etiquetas(p, 0, {109, 47, "Epealdia:", 109, 49.5f, "Periodo:"});
}
}

void DibujarCabeceraTitulo(cSuperficiePagina& p)
{
    p.DrawWidth = 10;
    CajaBlanca(p, 5, 26, 190, 53);
    tituloCentral(p);
    reglasTitulo(p);
    diputacion(p);
    modeloYOficina(p);
}

void RotuloSeccion(cSuperficiePagina& p, float x, float x2, float y, const QString& euskera,
                   const QString& castellano, int numero)
{
    FuenteTimes(p, 6);
    CajaBlanca(p, x - 1.4f, y - 1.4f, x + 1.4f, y + 1.4f);
    TextoIzquierda(p, x - 0.6f, y - 0.4f, QString::number(numero));
    p.FontSize = 7;
    p.FontItalic = true;
    TextoIzquierda(p, x + 2.7f, y - 0.4f, euskera + QLatin1Char('/'));
    p.FontItalic = false;
    TextoIzquierda(p, x2, y - 0.4f, castellano);
}
