#pragma once
// What the stores of contributors and presenters share: turning the values of a party into
// the stored form of their columns.
#include <QString>
#include <QVariant>
#include <cstdint>

namespace ValorGuardado {

// The stored form of a party's value. Each raises cFallo(13, origen) when the value cannot be
// what the field holds, which only a caller that skipped validation can cause.
//  - text: blanks around it removed; longer than `ancho` is a failure;
//  - whole number: a number, or a text of digits ("00005"), blanks alone being 0;
//  - code: digits, stored with leading zeros to `ancho` ("1" -> "01"), "" when blank or 0;
//  - digits kept as typed (a foreign postal code, a telephone), "" when blank or 0.
QString TextoGuardado(const QVariant& v, int ancho, const char* campo, const QString& origen);
int32_t EnteroGuardado(const QVariant& v, int32_t maximo, const char* campo,
                       const QString& origen);
QString CodigoGuardado(const QVariant& v, int ancho, const char* campo, const QString& origen);
QString CifrasGuardadas(const QVariant& v, int ancho, const char* campo, const QString& origen);

}  // namespace ValorGuardado
