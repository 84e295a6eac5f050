#pragma once
// The engine that keeps the stores' data. The stores reach it only through this function and
// the interface it answers; this is the one place that chooses it.
#include "servicios/motor/Motor.h"

const Motor& MotorDeLosAlmacenes();

// The message that stops the program at start-up when the stores' engine cannot be used; empty
// when it can.
QString AvisoMotorAlmacenes();
