#pragma once
// One statement on a connection of the embedded engine, for the engine's own code (the stores'
// Ejecutar lives above this folder). Faults are cFallo(origen) carrying SQLite's number of the
// error, as the stores' other faults carry it.
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariant>
#include <QVariantList>

QSqlQuery ConsultaSqlite(const QSqlDatabase& db, const QString& sql, const QVariantList& valores,
                         const QString& origen);
// The first column of the first row, or `siVacio` when there is no row.
QVariant EscalarSqlite(const QSqlDatabase& db, const QString& sql, const QVariantList& valores,
                       const QString& origen, const QVariant& siVacio = QVariant());
// An identifier between double quotes, ready for a statement.
QString CitadoSqlite(const QString& nombre);
