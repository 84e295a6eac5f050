#pragma once
// The stored returns of a selection, one row each with what a table of returns shows: the
// work of the command line that prints or lists many returns at once. Set the path of the
// read/write database as for any store; failures are raised as cFallo.
#include "valores/FilaDeclaracion.h"

#include <QString>
#include <cstdint>
#include <vector>

// Which returns: a date of accrual between two dates (yyyymmdd, both included, 0 for no
// bound) and, when a number is given, the subject's tax number (blanks around and case do not
// count).
struct FiltroDeclaraciones {
    int32_t desde = 0;
    int32_t hasta = 0;
    QString dni;
};

// The returns of the filter in `mdbmod`, in the order of their codes.
std::vector<FilaDeclaracion> ListarDeclaraciones(const QString& mdbmod,
                                                 const FiltroDeclaraciones& filtro);
