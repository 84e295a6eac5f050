#pragma once
// What the stores of the parties read from the reference database: the names of the
// municipalities of the treasury's province, and the look-ups of the import.
#include "servicios/ValidacionPartes.h"

#include <QHash>
#include <QString>

namespace ReferenciaPartes {

// Municipality code (three digits) -> name, for the province of the treasury.
QHash<QString, QString> MunicipiosTesoreria(const QString& mdblec, const QString& origen);

// The name a list shows for the municipality of an address: in the treasury's province the
// name of its code, elsewhere (or for a code that is not in the table) the typed name.
QString NombreMunicipio(const QHash<QString, QString>& municipios, const QString& provincia,
                        const QString& codigo, const QString& nombre);

// The look-ups of street types, provinces and municipalities in the reference database.
ConsultasReferencia Consultas(const QString& mdblec, const QString& origen);
// The same look-ups answered from memory: the three tables are read once, here. For a caller
// that validates many records in a row (an import); the reference database never changes
// while the program runs, so the answers are the same.
ConsultasReferencia ConsultasEnMemoria(const QString& mdblec, const QString& origen);

}  // namespace ReferenciaPartes
