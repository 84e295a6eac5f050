#pragma once
// What the stores of contributors and presenters share: reading the values of an array that
// crosses the boundary, turning them into the stored form, and the prefix search of the lists.
#include "servicios/Arreglos.h"

#include <QString>
#include <QVariantList>
#include <cstdint>
#include <optional>
#include <vector>

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

// A criterion of the criteria array of the lists: element `i` holds the prefix as text, or the
// whole number 0 when there is no criterion on that column. An empty prefix matches all.
std::optional<QString> Criterio(const Arreglo& criterios, int i);

// The WHERE clause of a list (" WHERE ..." or ""): criterios[1] a prefix of `nombre`,
// criterios[2] a prefix of `dni`, both when both are given, each without regard to case
// (CondicionPrefijo, BusquedaTexto.h).
QString CondicionesBusqueda(const Arreglo& criterios, const QString& nombre, const QString& dni,
                            QVariantList& valores);
// The order of a list, as a user of names in Spanish and Basque expects it: without regard to
// case or to the accent of a vowel, Ñ after N and Ç after C; ties by the exact text, then by
// the code, so that the order is always the same. The rows are sorted once read (reading them
// in the table's own order and sorting them costs far less than reading them through an index
// in another order). Sorts the columns of `datos` by column `clave`, ties by column `codigo`.
void OrdenarFilas(Arreglo2D& datos, int clave, int codigo);
// The key whose byte order is that order.
QByteArray ClaveDeOrden(const QString& texto);

// One row of the list of a party: code, name, number, street, municipality and one or two
// counts of declarations.
struct FilaLista {
    int32_t codigo = 0;
    QString nombre;
    QString dni;
    QString calle;
    QString municipio;
    int32_t contadores[2] = {0, 0};
};
// The rows in the order of the list (`orden` 2 by number, else by name), as the grid array:
// columns code, name, number, street, municipality, then `numContadores` counts.
Arreglo2D ListaOrdenada(std::vector<FilaLista>&& filas, uint8_t orden, int numContadores);

}  // namespace ArreglosPartes
