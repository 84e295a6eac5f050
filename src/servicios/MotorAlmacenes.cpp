#include "servicios/MotorAlmacenes.h"

#include "servicios/sqlite/MotorSqlite.h"

const Motor& MotorDeLosAlmacenes()
{
    // The embedded engine: one file per store beside the program's data.
    static const MotorSqlite sqlite;
    return sqlite;
}

QString AvisoMotorAlmacenes()
{
    return MotorDeLosAlmacenes().AvisoArranque();
}
