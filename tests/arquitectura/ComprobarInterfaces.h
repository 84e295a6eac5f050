#pragma once
// The interfaces between the stores, the records and the panels carry typed values. A header of
// the values, the records, the panels or the application, or of a store class (servicios/c*.h),
// names no positional array: Arreglo, Arreglo2D, QVariantList or QList<QVariant>; a store
// class's header names no QVariant either (an answer whose type is told by each call). Outside
// the stores, no file includes the stores' array headers (servicios/Arreglos.h,
// servicios/Posiciones*.h). The engines' folders bind values to SQL and are left out.
#include "ComprobarCapas.h"

#include <QList>
#include <QString>

// Checks every .h and .cpp under `src` (the include root).
QList<Falta> ComprobarInterfaces(const QString& src, Recuento* recuento = nullptr);
