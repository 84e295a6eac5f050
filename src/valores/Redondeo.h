#pragma once
// Rounding of amounts. Halves go away from zero in both directions, and the work is done on
// the fraction alone so that the integer part of a large amount stays exact.
#include <cstdint>

// `valor` rounded to `decimales` decimals; more than 6 decimals gives the value unchanged.
// A value or result that does not fit a double throws cFallo (numeric overflow).
double Redondear(double valor, int16_t decimales);
// Half up on the non-negative values Redondear gives it: 2.5 -> 3, 2.4999 -> 2.
double RedondearEntero(double valor);
