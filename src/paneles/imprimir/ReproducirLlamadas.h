#pragma once
// Draws a recorded sheet again on another surface, call by call, with the state each call was
// recorded in. A batch records its returns where the store is (the main thread) and paints
// the PDF files from the recordings on other threads.
#include "paneles/imprimir/cSuperficieGrabadora.h"

void ReproducirLlamadas(const QList<LlamadaPagina>& llamadas, cSuperficiePagina& destino);
