#include "servicios/MotorAlmacenes.h"

#include "servicios/postgres/MotorPostgres.h"
#include "servicios/sqlite/MotorSqlite.h"

#include <atomic>

namespace {
std::atomic<MotorElegido>& eleccion()
{
    static std::atomic<MotorElegido> e{MotorElegido::Embebido};
    return e;
}
}

const Motor& MotorEmbebido()
{
    // One file per store beside the program's data.
    static const MotorSqlite sqlite;
    return sqlite;
}

const Motor& MotorServidor()
{
    static const MotorPostgres postgres;
    return postgres;
}

void ElegirMotorDeLosAlmacenes(MotorElegido motor)
{
    eleccion().store(motor);
}

MotorElegido MotorDeLosAlmacenesElegido()
{
    return eleccion().load();
}

const Motor& MotorDeLosAlmacenes()
{
    return eleccion().load() == MotorElegido::Servidor ? MotorServidor() : MotorEmbebido();
}

const Motor& MotorDe(const QSqlDatabase& db)
{
    if (db.driverName() == MotorServidor().Controlador())
        return MotorServidor();
    return MotorEmbebido();
}

QString AvisoMotorAlmacenes()
{
    return MotorDeLosAlmacenes().AvisoArranque();
}
