#pragma once
// The runtime failure notice as a box: "Error en tiempo de ejecución" with the failure's source
// and description. Installed once at start-up so that the process layer, which knows no
// widgets, can show it.
void InstalarAvisoFalloEnCaja();
