#pragma once
// Application-wide state that every module reads: the paths of the two databases and the
// running program's version. The language is Idioma.h's.
#include <QString>
#include <cstdint>

extern QString mdbmod;         // full path of the read/write database
extern QString mdblec;         // full path of the read-only reference database
extern QString mdbPath;        // the read/write database's folder, with its closing "/"
extern QString VersionPrograma;  // major.minor.revision

// The program's folder, without closing "/": the folder of the executable, unless a test
// has set another one before start-up. The executable, the reference database and the help
// are read from it.
QString CarpetaPrograma();
void EstablecerCarpetaPrograma(const QString& carpeta);

// The Tablas/ folder of the program's base folder, with its closing "/": the program's folder
// cut before the first "cliente" in its path (and the "/" before that word), or the whole
// folder when the word is not there.
QString TablasDelPrograma(const QString& carpetaPrograma);

// The data folder, without closing "/": where the files the program writes live (the
// read/write database under Tablas/, version.ini, backups/, the exchange and error files, the
// temporary page). It is the program's folder when the program may write there (a build, a
// copy on a USB stick) or when its read/write database is already there; otherwise the user's
// own folder, $XDG_DATA_HOME/veldoria (by default ~/.local/share/veldoria), so that each user
// of an installed program keeps their own data. A program folder under /usr is never the data
// folder. Nothing is created here: the first write creates what is missing.
QString CarpetaDatos();
