#pragma once
// The layout of the version record that the program carries inside its own executable file,
// shared by the file that embeds it (app/RegistroVersion.cpp) and the routine that reads it
// back from the file on disk (ObtenerVersionPrograma).
//
// The record is a fixed run of bytes, independent of the compiler's padding and of the
// machine's byte order:
//
//   offset  0  16 bytes  the mark "VeldoriaVersion" followed by the byte 0x01 (layout 1)
//   offset 16   8 bytes  file version, four 16-bit numbers, little-endian
//   offset 24   8 bytes  product version, four 16-bit numbers, little-endian
//   offset 32   4 bytes  check sum of bytes 0..31 (FNV-1a, 32 bits, little-endian)
//
// The check sum lets the reader tell the record from any other place of the file where the
// sixteen bytes of the mark happen to appear (the reader's own copy of the mark, for one).
#include <array>
#include <cstddef>
#include <cstdint>

namespace RegistroVersion {

inline constexpr std::size_t TamanoMarca = 16;
inline constexpr std::size_t Tamano = 36;
using Bytes = std::array<std::uint8_t, Tamano>;
using Numeros = std::array<std::uint16_t, 4>;

inline constexpr std::array<char, TamanoMarca> Marca = {
    'V', 'e', 'l', 'd', 'o', 'r', 'i', 'a', 'V', 'e', 'r', 's', 'i', 'o', 'n', '\x01'};

constexpr std::uint32_t SumaDeControl(const std::uint8_t* datos, std::size_t n)
{
    std::uint32_t h = 2166136261u;
    for (std::size_t i = 0; i < n; ++i) {
        h ^= datos[i];
        h *= 16777619u;
    }
    return h;
}

// Builds the bytes of a record at compile time.
constexpr Bytes Construir(const Numeros& fichero, const Numeros& producto)
{
    Bytes b{};
    for (std::size_t i = 0; i < TamanoMarca; ++i)
        b[i] = static_cast<std::uint8_t>(Marca[i]);
    for (std::size_t i = 0; i < 4; ++i) {
        b[16 + 2 * i] = static_cast<std::uint8_t>(fichero[i] & 0xFF);
        b[17 + 2 * i] = static_cast<std::uint8_t>(fichero[i] >> 8);
        b[24 + 2 * i] = static_cast<std::uint8_t>(producto[i] & 0xFF);
        b[25 + 2 * i] = static_cast<std::uint8_t>(producto[i] >> 8);
    }
    const std::uint32_t suma = SumaDeControl(b.data(), 32);
    for (std::size_t i = 0; i < 4; ++i)
        b[32 + i] = static_cast<std::uint8_t>((suma >> (8 * i)) & 0xFF);
    return b;
}

// What the reader takes from a record.
struct Version {
    Numeros fichero{};
    Numeros producto{};
};

}  // namespace RegistroVersion
