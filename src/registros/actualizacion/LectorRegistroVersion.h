#pragma once
// Finds and reads the version record in a file (see FormatoRegistroVersion.h).
#include "registros/actualizacion/FormatoRegistroVersion.h"

#include <QByteArrayView>
#include <QString>
#include <optional>

// The first valid record in the file, or nothing when the file cannot be read or holds none.
std::optional<RegistroVersion::Version> LeerRegistroVersion(const QString& fichero);
// The same search in bytes already in memory.
std::optional<RegistroVersion::Version> BuscarRegistroVersion(QByteArrayView datos);

// The program's version as major.minor.revision. The third number of the file version is not
// part of it, so a file version 1.28.0.1 is the program 1.28.1.
QString VersionDelPrograma(const RegistroVersion::Numeros& fichero);
