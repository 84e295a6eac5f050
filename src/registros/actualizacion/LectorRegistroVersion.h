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
