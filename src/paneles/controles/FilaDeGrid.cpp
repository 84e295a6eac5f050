#include "paneles/controles/FilaDeGrid.h"

#include "valores/Val.h"
#include "paneles/controles/cFlexGrid.h"

int FilaDeGrid(const cFlexGrid* grid, int columna, int32_t codigo)
{
    if (!grid || codigo == 0)
        return 1;
    for (int fila = 1; fila < grid->Rows(); ++fila)
        if (Val(grid->TextMatrix(fila, columna)) == codigo)
            return fila;
    return 1;
}
