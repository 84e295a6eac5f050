#pragma once
// The line of the exchange file: one contributor in 176 characters of fixed-width fields, in
// Windows-1252, ending in CR LF. A text field is left-aligned and filled with blanks (a longer
// value is cut); a number is right-aligned and filled with "0" to its width. The contributor's
// code is not in the line: the identity number is the key across installations.
#include <QByteArray>
#include <QString>
#include <array>
#include <cstdint>
#include <optional>

// The 19 fields, in the order of the line.
enum class CampoIntercambio : int {
    TIPODNI,
    DNI,
    NOMBRE,
    SIGLAS,
    DOMICILIO,
    NUMERO,
    LETRA,
    ESCALERA,
    PISO,
    MANO,
    TIPODOMICILIO,
    PAIS,
    CODIGOPROVINCIA,
    NOMBREPROVINCIA,
    CODIGOPOSTAL,
    CODIGOMUNICIPIO,
    NOMBREMUNICIPIO,
    NUMEROSUJETOPASIVO,
    NUMEROTRANSMITENTE,
};
inline constexpr int kCamposIntercambio = 19;
inline constexpr int kLargoLineaIntercambio = 176;

struct DefinicionCampo {
    int posicion;         // from 1
    int ancho;
    bool numero;          // filled with "0" on the left
    const char* formato;  // its line in the format told at the end of the error file
};
const DefinicionCampo& Definicion(CampoIntercambio campo);
inline int Indice(CampoIntercambio campo) { return static_cast<int>(campo); }

// The value followed by `relleno` up to `ancho` characters (nothing is cut).
QString FormatoTexto(const QString& valor, int ancho, QChar relleno = QLatin1Char(' '));
// The value through a mask of `ancho` times "0": 0 gives "00000"; a longer number is kept whole.
QString FormatoNumero(int64_t valor, int ancho, QChar relleno = QLatin1Char('0'));

// The fields of one line as they stand in it, blanks included.
using CamposIntercambio = std::array<QString, kCamposIntercambio>;

struct LineaLeida {
    CamposIntercambio campos;
    bool corta = false;   // fewer than 176 characters: refused as a whole
    const QString& operator[](CampoIntercambio c) const { return campos[Indice(c)]; }
};
// Cuts a line (without its line end) into its fields by position; characters past 176 are
// ignored, and the fields of a short line are what it holds of them.
LineaLeida CortarLinea(const QByteArray& linea);

// The values of one contributor to be written: texts, and the six numbers as numbers.
struct ValoresLinea {
    CamposIntercambio textos;  // the text fields (number positions are not read)
    std::array<int64_t, kCamposIntercambio> numeros{};  // the number fields
};
enum class FalloLinea { Ninguno, CaracterNoRepresentable, NumeroDemasiadoLargo };
// The 176 bytes of the line (without its end). Fails, writing nothing, when a character has no
// byte in the code page or a number has more digits than its field.
std::optional<QByteArray> ComponerLinea(const ValoresLinea& valores, FalloLinea* fallo = nullptr);
