#include "servicios/BusquedaTexto.h"

#include "servicios/MotorAlmacenes.h"

QString CondicionPrefijo(const QString& columna, const QString& prefijo, QVariantList& valores)
{
    return MotorDeLosAlmacenes().CondicionPrefijo(columna, prefijo, valores);
}
