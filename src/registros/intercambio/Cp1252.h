#pragma once
// Windows-1252, the code page of the exchange file: one byte per character, so that the
// positions of the fields are byte positions on every installation that reads the file.
//
// Reading never fails: the five bytes that the code page leaves undefined (0x81, 0x8D, 0x8F,
// 0x90, 0x9D) are read as the control characters of the same number, which are written back
// as those bytes, so a file read and written again keeps every byte. Writing a character that
// the code page cannot hold fails instead of putting a "?" in its place.
#include <QByteArray>
#include <QString>
#include <optional>

namespace Cp1252 {
QString Decodificar(const QByteArray& bytes);
// The characters of `largo` bytes from `desde`.
QString Decodificar(const char* desde, qsizetype largo);
// The bytes of `texto`, or nothing when one of its characters has no byte.
std::optional<QByteArray> Codificar(const QString& texto);
bool Representable(const QString& texto);
}  // namespace Cp1252
