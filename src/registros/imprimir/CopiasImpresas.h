#pragma once
// What one printing draws: the return loaded with its operation and presenter, then the
// sheets ImOf() asks for, in their fixed order.
#include "registros/imprimir/cSuperficiePagina.h"

#include <cstdint>

// DecDatos() takes the stored return `csde`, Operacion() its operation and, when it names
// one, PreDatos() its presenter. Answers false, with DecDatos() emptied, for a code the store
// does not hold.
bool CargarParaImprimir(int32_t csde);

// A draft (ImOf().TIPOIMP not "O") is one full sheet without strip; an official printing is,
// in this order and each only when wanted, the traffic authority's, the taxpayer's and the
// administration's full sheets and the bank sheet. Answers the number of sheets drawn.
int ImprimirCopias(cSuperficiePagina& p, bool conPresentador);
