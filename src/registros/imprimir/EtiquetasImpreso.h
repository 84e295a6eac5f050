#pragma once
// Pre-printed label pairs of the form: the Basque text in italic first, the Spanish text
// upright second, both left-placed in "Times New Roman" at the size in force.
#include "registros/imprimir/cSuperficiePagina.h"

struct ParEtiquetas {
    float xEu;
    float dyEu;
    const char* eu;
    float xEs;
    float dyEs;
    const char* es;
};

inline const QString kTimes = QStringLiteral("Times New Roman");
inline const QString kArial = QStringLiteral("Arial");

void FuenteTimes(cSuperficiePagina& p, float tamano, bool negrita = false, bool cursiva = false);
void FuenteArial(cSuperficiePagina& p, float tamano, bool negrita = false, bool cursiva = false);
// One pair at top edge y.
void Etiquetas(cSuperficiePagina& p, float y, const ParEtiquetas& par);
// A frame at DrawWidth 10, then DrawWidth 6 for the rules that follow.
void Marco(cSuperficiePagina& p, float x1, float y1, float x2, float y2);
