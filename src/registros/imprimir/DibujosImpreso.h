#pragma once
// The small rasters the form needs (copy strips, block labels, the plate label, the arms) and
// their natural sizes in pixels at 96 per inch. The layout only places them; a surface paints
// them at that size.
#include <QString>

enum class Dibujo {
    Entidad,
    Informatica,
    Interesado,
    Administracion,
    Banco,
    Placa,
    Logo,
    Obligado,
    Representante,
    Transmitente,
    Vehiculos,
    Barcos,
    Aeronaves,
    FechaFirma,
    Justificante
};

struct TamanoDibujo {
    int ancho;  // pixels across the page
    int alto;   // pixels down the page
};

TamanoDibujo TamanoDe(Dibujo dibujo);
// The name the panel gives the picture ("PicPlaca", "picEntidad", ...).
QString NombreDibujo(Dibujo dibujo);
// The words of a strip or label, Basque first, a slash, then Spanish; empty for the arms.
QString TextoDibujo(Dibujo dibujo);
// Millimetres of a number of pixels at 96 per inch.
inline double MmDePixeles(int pixeles) { return pixeles * 25.4 / 96.0; }
