#pragma once
// The engine that keeps the stores' data. The stores reach it only through these functions and
// the interface they answer; this is the one place that chooses it.
#include "servicios/motor/Motor.h"

#include <QString>

// The embedded engine (one file per store, the default) or an office's server.
enum class MotorElegido { Embebido, Servidor };

// The engine of the read/write store from now on (the start-up sets it from the settings or the
// command line; the embedded one until then). The place of the store (mdbmod) is then a file or
// the server's service name or connection string.
// The choice belongs to the program's state: Estado().Reiniciar() brings back the embedded one.
void ElegirMotorDeLosAlmacenes(MotorElegido motor);
// The office's server at `oficina` (a service name of pg_service.conf or a connection string)
// for the rest of the run: the start-up takes it as the place of the read/write store.
void ElegirOficina(const QString& oficina);
// The office chosen by name (ElegirOficina); empty on the embedded store.
QString OficinaElegida();
MotorElegido MotorDeLosAlmacenesElegido();

const Motor& MotorDeLosAlmacenes();

// The embedded engine, whatever the stores' engine is: the reference data, the backups and the
// files offered for a restore are always its files.
const Motor& MotorEmbebido();
// An office's server.
const Motor& MotorServidor();

// The engine of an open connection (by its driver): the one whose words its statements use.
const Motor& MotorDe(const QSqlDatabase& db);

// The message that stops the program at start-up when the stores' engine cannot be used; empty
// when it can.
QString AvisoMotorAlmacenes();
