#pragma once
// The version of a stored row of CONTRIBUYENTES, PRESENTADORES and DECLARACIONES: a random
// 63-bit number, never 0, that every save gives the row afresh. A copy of a record keeps the
// version it was loaded with, and its save is an update of the row of that code *and* that
// version: when the row was saved meanwhile (by another running copy, by another seat of an
// office database) or a restore put back another row under the same code, no row matches and
// nothing is written. Being random rather than a counter, a version never comes back: a row
// restored from a backup or made again under the same code never matches what a copy loaded.
//
// The SQL is plain (an UPDATE with two conditions, a count by code), so the rule is the same on
// any engine that keeps the stores.
#include "valores/Vigencia.h"

#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <cstdint>

namespace VersionFila {

// The column of every versioned table.
inline const QString kColumna = QStringLiteral("VERSION");

// A fresh version for a save: random, 63 bits, never 0 (0 stands for "none loaded").
int64_t Nueva();

// "UPDATE tabla SET a = ?, b = ?, ..., VERSION = ? WHERE codigo = ? AND VERSION = ?": the
// values of `columnas`, the new version, the code and the version loaded, in that order.
QString SqlActualizarVigente(const QString& tabla, const QStringList& columnas,
                             const QString& columnaCodigo);
// "SELECT COUNT(*) FROM tabla WHERE codigo = ?": whether a row that an update missed is there.
QString SqlExiste(const QString& tabla, const QString& columnaCodigo);

// Why an update of the code with the version loaded matched no row: Cambiada when the row is
// there (with another version), Borrada when it is not.
Vigencia Diagnostico(const QSqlDatabase& db, const QString& tabla, const QString& columnaCodigo,
                     int64_t codigo, const QString& origen);

}  // namespace VersionFila
