#pragma once
// What the lists of contributors and of presenters share in their stores: the prefix search
// of the criteria and the order of the rows.
#include "valores/CriteriosParte.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QVariantList>
#include <algorithm>
#include <utility>
#include <vector>

namespace ListasPartes {

// The WHERE clause of a list (" WHERE ..." or ""): the start of the name on the column
// `nombre`, the start of the number on `dni`, both when both are given, each without regard to
// case (CondicionPrefijo, BusquedaTexto.h). An absent or empty start is no condition.
QString CondicionesBusqueda(const CriteriosParte& criterios, const QString& nombre,
                            const QString& dni, QVariantList& valores);

// The key whose byte order is the order of a list, as a user of names in Spanish and Basque
// expects it: without regard to case or to the accent of a vowel, Ñ after N and Ç after C.
QByteArray ClaveDeOrden(const QString& texto);

// Sorts the rows by the text `texto(fila)` in that order; ties by the exact text, then by
// `codigo(fila)`, so that the order is always the same. The rows are sorted once read
// (reading them in the table's own order and sorting them costs far less than reading them
// through an index in another order).
template <class Fila, class Texto, class Codigo>
void Ordenar(QList<Fila>& filas, Texto texto, Codigo codigo)
{
    std::vector<std::pair<QByteArray, qsizetype>> claves;
    claves.reserve(size_t(filas.size()));
    for (qsizetype i = 0; i < filas.size(); ++i)
        claves.emplace_back(ClaveDeOrden(texto(filas.at(i))), i);
    std::sort(claves.begin(), claves.end(), [&](const auto& a, const auto& b) {
        if (const int c = a.first.compare(b.first); c != 0)
            return c < 0;
        const Fila& fa = filas.at(a.second);
        const Fila& fb = filas.at(b.second);
        if (const int c = texto(fa).compare(texto(fb)); c != 0)
            return c < 0;
        return codigo(fa) < codigo(fb);
    });
    QList<Fila> ordenadas;
    ordenadas.reserve(filas.size());
    for (const auto& clave : claves)
        ordenadas.append(std::move(filas[clave.second]));
    filas = std::move(ordenadas);
}

}  // namespace ListasPartes
