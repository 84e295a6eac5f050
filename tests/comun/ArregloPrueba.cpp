#include "comun/ArregloPrueba.h"

#include <QList>
#include <QtGlobal>

Arreglo ArregloPorPosiciones(int tamano, ValoresEnPosicion valores)
{
    Arreglo a(tamano);
    QList<bool> dado(tamano, false);
    for (const auto& [posicion, valor] : valores) {
        if (posicion < 0 || posicion >= tamano || dado[posicion])
            qFatal("Posición %d fuera del arreglo de %d o dada dos veces", posicion, tamano);
        dado[posicion] = true;
        a[posicion] = valor;
    }
    if (const qsizetype falta = dado.indexOf(false); falta >= 0)
        qFatal("Falta la posición %d del arreglo de %d", int(falta), tamano);
    return a;
}

Arreglo ArregloCambiado(Arreglo a, ValoresEnPosicion cambios)
{
    for (const auto& [posicion, valor] : cambios)
        a[posicion] = valor;
    return a;
}
