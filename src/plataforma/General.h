#pragma once
// Application-wide state that every module reads: the language offset of the catalogue, the
// paths of the two databases and the running program's version.
#include <QString>
#include <cstdint>

extern int16_t OffsetIdioma;   // 0 Spanish, 10000 Basque
extern QString mdbmod;         // full path of the read/write database
extern QString mdblec;         // full path of the read-only reference database
extern QString mdbPath;        // the folder of both databases, with its closing "/"
extern QString VersionPrograma;  // major.minor.revision
extern QString VersionProducto;  // four parts; written at start-up, read by nobody

// The program's folder, without closing "/": the folder of the executable, unless a test
// has set another one before start-up.
QString CarpetaPrograma();
void EstablecerCarpetaPrograma(const QString& carpeta);
