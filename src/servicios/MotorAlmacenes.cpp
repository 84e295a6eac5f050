#include "servicios/MotorAlmacenes.h"

#include "servicios/postgres/MotorPostgres.h"
#include "servicios/sqlite/MotorSqlite.h"

#include "plataforma/Estado.h"

#include <atomic>

namespace {
// The choice of this run, kept with the program's state so that Reiniciar() brings back the
// embedded store. The engine is read from every thread that works on the stores: it is atomic.
struct EleccionAlmacenes {
    std::atomic<MotorElegido> motor{MotorElegido::Embebido};
    QString oficina;  // the office's service or connection string; empty: none chosen by name

    EleccionAlmacenes() = default;
    EleccionAlmacenes& operator=(const EleccionAlmacenes& otra)
    {
        motor.store(otra.motor.load());
        oficina = otra.oficina;
        return *this;
    }
};

EleccionAlmacenes& eleccion()
{
    // Made once, in place for the whole run: Reiniciar() resets it without moving it.
    static EleccionAlmacenes& e = Estado().de<EleccionAlmacenes>();
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
    eleccion().motor.store(motor);
    if (motor == MotorElegido::Embebido)
        eleccion().oficina.clear();
}

void ElegirOficina(const QString& oficina)
{
    eleccion().oficina = oficina.trimmed();
    eleccion().motor.store(MotorElegido::Servidor);
}

QString OficinaElegida()
{
    return eleccion().motor.load() == MotorElegido::Servidor ? eleccion().oficina : QString();
}

MotorElegido MotorDeLosAlmacenesElegido()
{
    return eleccion().motor.load();
}

const Motor& MotorDeLosAlmacenes()
{
    return eleccion().motor.load() == MotorElegido::Servidor ? MotorServidor() : MotorEmbebido();
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
