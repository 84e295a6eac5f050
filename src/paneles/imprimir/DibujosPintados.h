#pragma once
// The rasters of the form, made by the program: strips and labels as black text on white
// turned to run from the bottom of the page to the top, and an emblem for the arms of
// Arbelia. Each has exactly its natural size in pixels (96 per inch).
#include "registros/imprimir/DibujosImpreso.h"

#include <QImage>

// Built once and kept for the run.
const QImage& ImagenDibujo(Dibujo dibujo);
