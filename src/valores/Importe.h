#pragma once
// An amount of the return, in euros with cents, kept as a 64-bit float: the form's arithmetic
// (base, reduced base, quota, deduction, total) is done on these values exactly as on plain
// doubles, so every result is the same to the last bit; what the type adds is that an amount
// is not mixed up with a rate, a count or a code, and that rounding goes through Redondear.
#include "valores/Redondeo.h"

#include <compare>
#include <cstdint>

class Importe {
public:
    constexpr Importe() = default;
    constexpr explicit Importe(double euros) : m_euros(euros) {}

    constexpr double euros() const { return m_euros; }

    // Rounded half away from zero to `decimales` decimals (Redondear).
    Importe redondeado(int16_t decimales) const { return Importe(Redondear(m_euros, decimales)); }

    friend constexpr Importe operator+(Importe a, Importe b) { return Importe(a.m_euros + b.m_euros); }
    friend constexpr Importe operator-(Importe a, Importe b) { return Importe(a.m_euros - b.m_euros); }
    // A share of an amount (the reduced base is a fixed part of the base).
    friend constexpr Importe operator*(Importe a, double factor) { return Importe(a.m_euros * factor); }
    friend constexpr bool operator==(Importe a, Importe b) = default;
    friend constexpr auto operator<=>(Importe a, Importe b) = default;

private:
    double m_euros = 0;
};
