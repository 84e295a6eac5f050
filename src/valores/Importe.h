#pragma once
// An amount of the return in whole cents (123450 is 1.234,50 euros; the quota keeps two
// decimals of a cent), kept as a 64-bit float as the store keeps it: the form's arithmetic
// (base, reduced base, quota, deduction, total) is done on these values exactly as on plain
// doubles, so every result is the same to the last bit; what the type adds is that an amount
// is not mixed up with a rate, a count or a code, and that rounding goes through Redondear.
#include "valores/Redondeo.h"

#include <compare>
#include <cstdint>

class Importe {
public:
    constexpr Importe() = default;
    constexpr explicit Importe(double centimos) : m_centimos(centimos) {}

    // The stored value, in cents.
    constexpr double centimos() const { return m_centimos; }
    // In euros, as the form and the printed sheet show it.
    constexpr double euros() const { return m_centimos / 100; }

    // Rounded half away from zero to `decimales` decimals (Redondear).
    Importe redondeado(int16_t decimales) const { return Importe(Redondear(m_centimos, decimales)); }

    friend constexpr Importe operator+(Importe a, Importe b) { return Importe(a.m_centimos + b.m_centimos); }
    friend constexpr Importe operator-(Importe a, Importe b) { return Importe(a.m_centimos - b.m_centimos); }
    // A share of an amount (the reduced base is a fixed part of the base).
    friend constexpr Importe operator*(Importe a, double factor) { return Importe(a.m_centimos * factor); }
    friend constexpr bool operator==(Importe a, Importe b) = default;
    friend constexpr auto operator<=>(Importe a, Importe b) = default;

private:
    double m_centimos = 0;
};
