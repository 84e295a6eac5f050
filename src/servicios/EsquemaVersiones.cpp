// Layout 2 of the read/write database: the version of each row of the parties and of the
// returns (VersionFila.h). The column is added to the tables of layout 1, and every row that
// is there already gets a random version of its own, so that a copy of the program that
// loaded a record before the migration never matches a row saved after it.
#include "servicios/Esquema.h"
#include "servicios/VersionFila.h"

QStringList EsquemaVersionesV2(const Dialecto& d)
{
    QStringList sentencias;
    for (const char* tabla : {"CONTRIBUYENTES", "PRESENTADORES", "DECLARACIONES"}) {
        const QString t = QLatin1String(tabla);
        // A NOT NULL column is added only with a default; every save writes its own.
        sentencias << QStringLiteral("ALTER TABLE %1 ADD COLUMN %2 %3 NOT NULL DEFAULT 0")
                          .arg(t, VersionFila::kColumna, d.entero64)
                   << QStringLiteral("UPDATE %1 SET %2 = %3")
                          .arg(t, VersionFila::kColumna, d.aleatorio);
    }
    return sentencias;
}
