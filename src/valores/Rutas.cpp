#include "valores/Rutas.h"

QString NombreFichero(const QString& ruta)
{
    const qsizetype barra = ruta.lastIndexOf(QLatin1Char('/'));
    return barra < 0 ? ruta : ruta.mid(barra + 1);
}

QString RutaFichero(const QString& ruta)
{
    const qsizetype barra = ruta.lastIndexOf(QLatin1Char('/'));
    return barra < 0 ? QString() : ruta.left(barra + 1);
}
