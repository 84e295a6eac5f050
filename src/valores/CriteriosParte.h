#pragma once
// What a search of parties (contributors, presenters) asks the store: a start of the name and
// a start of the number, and the order of the answer.
#include <QString>
#include <cstdint>
#include <optional>

// The starts typed in the search boxes of a party list, each without regard to case. An
// absent one is no condition; so is one the user emptied (kept as an empty text).
struct CriteriosParte {
    std::optional<QString> NOMBRE;   // a start of the name
    std::optional<QString> DNI;      // a start of the number

    bool operator==(const CriteriosParte&) const = default;
};

// The column a party list is sorted by; the values are the lists' column numbers.
enum class OrdenParte : uint8_t { Nombre = 1, Dni = 2 };

// The order of a list's ORDEN: 2 by number, anything else by name.
constexpr OrdenParte OrdenDeColumna(uint8_t orden)
{
    return orden == static_cast<uint8_t>(OrdenParte::Dni) ? OrdenParte::Dni : OrdenParte::Nombre;
}
