#pragma once
// One stored return as a list shows it: the lists of returns of the program (all of them, a
// contributor's, a presenter's) and the table of the command line. Each fills the columns it
// shows; the others stay empty.
#include "valores/Importe.h"

#include <QString>
#include <cstdint>

struct FilaDeclaracion {
    int32_t CSDE = 0;
    QString REFERENCIA;
    int32_t FECHAD = 0;          // date of accrual yyyymmdd
    QString DNISP;
    QString NOMBRESP;
    QString DNITR;
    QString NOMBRETR;
    QString OPERACION;
    QString DESCRIPCION;         // the operation's description on the date of accrual
    Importe BASEI;
    double TIPOIMP = 0;          // rate in percent
    Importe CUOTA;
    Importe DEDUCCION;
    Importe TOTAL;
    QString PARTE;               // in a contributor's list: "S" subject, "T" transmitter, "S-T" both
};
