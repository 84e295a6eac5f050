#include "servicios/motor/Motor.h"

// Out of line, so that each class has its table of virtual functions in one object file.
SentenciaMotor::~SentenciaMotor() = default;
Motor::~Motor() = default;
