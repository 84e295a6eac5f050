#pragma once
// The dates of a selection of returns on the command line (--desde, --hasta), written
// DD/MM/AAAA, whatever the program's language, and compared with the returns' yyyymmdd.
#include <QString>
#include <cstdint>
#include <optional>

// The number yyyymmdd of `texto`; nothing when it is not a date DD/MM/AAAA.
std::optional<int32_t> FechaSeleccion(const QString& texto);
// What the command line says of a text that is not such a date.
QString FechaSeleccionNoValida(const QString& texto);
