#pragma once
// What the stores of contributors and presenters share: reading the values of an array that
// crosses the boundary and turning them into the stored form.
#include "servicios/Arreglos.h"

#include <QString>
#include <QVariantList>
#include <cstdint>

namespace ArreglosPartes {

// Element `i` as text ("" when the array is shorter).
QString Texto(const Arreglo& a, int i);

// The stored form of the values of a save array. Each raises cFallo(13, origen) when the value
// cannot be what the field holds, which only a caller that skipped validation can cause.
//  - text: blanks around it removed; longer than `ancho` is a failure;
//  - whole number: a number, or a text of digits ("00005"), blanks alone being 0;
//  - code: digits, stored with leading zeros to `ancho` ("1" -> "01"), "" when blank or 0.
// Each takes the value itself, or element `i` of an array.
QString TextoGuardado(const QVariant& v, int ancho, const char* campo, const QString& origen);
int32_t EnteroGuardado(const QVariant& v, int32_t maximo, const char* campo,
                       const QString& origen);
QString CodigoGuardado(const QVariant& v, int ancho, const char* campo, const QString& origen);
QString CifrasGuardadas(const QVariant& v, int ancho, const char* campo, const QString& origen);
QString TextoGuardado(const Arreglo& a, int i, int ancho, const char* campo,
                      const QString& origen);
int32_t EnteroGuardado(const Arreglo& a, int i, int32_t maximo, const char* campo,
                       const QString& origen);
QString CodigoGuardado(const Arreglo& a, int i, int ancho, const char* campo,
                       const QString& origen);
// A code of digits kept as typed (a foreign postal code), "" when blank or 0.
QString CifrasGuardadas(const Arreglo& a, int i, int ancho, const char* campo,
                        const QString& origen);

}  // namespace ArreglosPartes
