#pragma once
// What the stores of contributors and presenters share: reading the values of an array that
// crosses the boundary, turning them into the stored form, and the prefix search of the lists.
#include "servicios/Arreglos.h"

#include <QString>
#include <QVariantList>
#include <cstdint>
#include <optional>

namespace ArreglosPartes {

// Element `i` as text ("" when the array is shorter).
QString Texto(const Arreglo& a, int i);

// The stored form of the values of a save array. Each raises cFallo(13, origen) when the value
// cannot be what the field holds, which only a caller that skipped validation can cause.
//  - text: blanks around it removed; longer than `ancho` is a failure;
//  - whole number: a number, or a text of digits ("00005"), blanks alone being 0;
//  - code: digits, stored with leading zeros to `ancho` ("1" -> "01"), "" when blank or 0.
QString TextoGuardado(const Arreglo& a, int i, int ancho, const char* campo,
                      const QString& origen);
int32_t EnteroGuardado(const Arreglo& a, int i, int32_t maximo, const char* campo,
                       const QString& origen);
QString CodigoGuardado(const Arreglo& a, int i, int ancho, const char* campo,
                       const QString& origen);
// A code of digits kept as typed (a foreign postal code), "" when blank or 0.
QString CifrasGuardadas(const Arreglo& a, int i, int ancho, const char* campo,
                        const QString& origen);

// A criterion of the criteria array of the lists: element `i` holds the prefix as text, or the
// whole number 0 when there is no criterion on that column. An empty prefix matches all.
std::optional<QString> Criterio(const Arreglo& criterios, int i);

// A condition for a WHERE clause: `columna`, a column of NOCASE collation, begins with
// `prefijo`, without regard to the case of ASCII letters. The prefix is plain text: quotes, "%" and "_" are characters like any other.
// The range on the column lets SQLite use the column's index; the exact test comes after it.
// The bound values are appended to `valores`.
QString CondicionPrefijo(const QString& columna, const QString& prefijo, QVariantList& valores);

// The WHERE clause of a list (" WHERE ..." or ""): criterios[1] a prefix of `nombre`,
// criterios[2] a prefix of `dni`, both when both are given.
QString CondicionesBusqueda(const Arreglo& criterios, const QString& nombre, const QString& dni,
                            QVariantList& valores);
// The ORDER BY clause of a list: `orden` 2 by number, anything else by name; the code breaks
// ties, so that the order is always the same.
QString OrdenBusqueda(uint8_t orden, const QString& nombre, const QString& dni,
                      const QString& codigo);

}  // namespace ArreglosPartes
