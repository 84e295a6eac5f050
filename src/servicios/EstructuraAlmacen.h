#pragma once
// The shape of a read/write database in the embedded engine's file (a backup, a file offered
// for a restore), as that engine describes it (EstructuraSqlite), to tell whether a file is
// made of this program's objects and of nothing else.
//
// The shape of a schema is a sorted list of lines: each table with each column (name, declared
// type, NOT NULL, place in the key, hidden or generated), its indexes (name when explicit,
// unique, partial, key columns with their order and collation) and its foreign keys; and one
// line for every object that is neither a table nor an index (a trigger, a view). SQLite's own
// objects are left out. Names are compared in capitals, as SQL compares them.
//
// The reference shape of a layout is that of an empty database laid out by the program's own
// steps (Esquema::Pasos) up to that layout, so a later layout needs nothing here.
#include <QSqlDatabase>
#include <QString>
#include <QStringList>

namespace EstructuraAlmacen {

// Lays out layout `version` on an empty database: the first release's single table for 0,
// the program's steps up to `version` otherwise. Rows the steps add (the settings' single row)
// stay.
void Disponer(const QSqlDatabase& db, int version, const QString& origen);

// The shape of the schema `esquema` ("main", or the name of an attached database) of `db`.
QStringList De(const QSqlDatabase& db, const QString& esquema, const QString& origen);

// The shape of layout `version`, built on a database in memory.
QStringList DeReferencia(int version, const QString& origen);

// The names of the tables of `esquema`, in the order they were made (SQLite's own left out).
QStringList Tablas(const QSqlDatabase& db, const QString& esquema, const QString& origen);
// The columns of a table, in their order.
QStringList Columnas(const QSqlDatabase& db, const QString& esquema, const QString& tabla,
                     const QString& origen);

// An identifier between double quotes, ready for a statement.
QString Citado(const QString& nombre);

}  // namespace EstructuraAlmacen
