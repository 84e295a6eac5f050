#pragma once
// What the lists of contributors and of presenters share in their stores: the prefix search
// of the criteria and the order of the rows.
#include "valores/CriteriosParte.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QVariantList>
#include <algorithm>
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
// through an index in another order), and in their place: a list of 100 000 is never held
// twice.
template <class Fila, class Texto, class Codigo>
void Ordenar(QList<Fila>& filas, Texto texto, Codigo codigo)
{
    const qsizetype n = filas.size();
    Fila* const f = filas.data();
    std::vector<qsizetype> orden(static_cast<size_t>(n));
    {
        std::vector<QByteArray> claves;
        claves.reserve(size_t(n));
        for (qsizetype i = 0; i < n; ++i) {
            claves.push_back(ClaveDeOrden(texto(f[i])));
            orden[size_t(i)] = i;
        }
        std::sort(orden.begin(), orden.end(), [&](qsizetype a, qsizetype b) {
            if (const int c = claves[size_t(a)].compare(claves[size_t(b)]); c != 0)
                return c < 0;
            if (const int c = texto(f[a]).compare(texto(f[b])); c != 0)
                return c < 0;
            return codigo(f[a]) < codigo(f[b]);
        });
    }
    // Each row goes to its place, one cycle of the permutation after another: orden[k] is the
    // row that position k takes.
    std::vector<bool> puesta(size_t(n), false);
    for (qsizetype k = 0; k < n; ++k) {
        if (puesta[size_t(k)])
            continue;
        Fila apartada = std::move(f[k]);
        qsizetype j = k;
        for (;;) {
            puesta[size_t(j)] = true;
            const qsizetype i = orden[size_t(j)];
            if (i == k) {
                f[j] = std::move(apartada);
                break;
            }
            f[j] = std::move(f[i]);
            j = i;
        }
    }
}

}  // namespace ListasPartes
