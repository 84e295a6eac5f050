#pragma once
// The texts the form derives from the record: month names, the date of presentation with its
// Basque suffix, the key of the amounts block, names from the reference data in capitals.
#include <QString>

// 1 to 12, Spanish first: "Enero / Urtarrila". Any other number gives an empty text.
QString NombreMes(int mes);
// ImOf().FECHAPRE in Basque form (yyyy/mm/dd) followed by the suffix its day takes.
QString FechaConSufijo();
// The suffix of a day "01" to "31" in a Basque date.
QString SufijoDia(const QString& dia);
// "P8", "P9", "P10" for a reduction "X", "Y", "Z"; else the operation's print key.
QString ClaveFundamento();
QString NombreMunicipioMayus(const QString& codigo);
QString NombreProvinciaMayus(const QString& codigo);
