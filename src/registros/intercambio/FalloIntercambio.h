#pragma once
// The failures of an export or an import run that the program reports with their number, as
// message 277 shows them ("ERROR Nº: 61 : Disco lleno"): a fault of the disk while a file is
// read or written. The panels show the verdict; the command line prints it.
#include "valores/Veredicto.h"

#include <QString>

namespace FalloIntercambio {
inline constexpr int kDesbordamiento = 6;    // the 16-bit line counter went past 32767
inline constexpr int kDiscoLleno = 61;
inline constexpr int kAccesoDenegado = 75;
inline constexpr int kRutaNoEncontrada = 76;
// The description of one of these numbers, in the language in use.
QString Descripcion(int numero);
// Message 277 for a failure, in the language in use.
Veredicto VeredictoFallo(int numero, const QString& descripcion);
Veredicto VeredictoFallo(int numero);
}  // namespace FalloIntercambio

// A message of the catalogue as a verdict, in the language in use.
Veredicto VeredictoIntercambio(int id);
