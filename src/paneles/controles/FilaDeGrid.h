#pragma once
// The row of a record in a grid, found by the code kept in one of its columns.
#include <cstdint>

class cFlexGrid;

// The first data row whose cell in `columna` holds the number `codigo`; 1 when none does,
// and always for a code of 0.
int FilaDeGrid(const cFlexGrid* grid, int columna, int32_t codigo);
