#pragma once
// What an SQLite file is made of, as SQLite's own catalogue describes it, for one schema of a
// connection ("main", or the name of a file attached to it). SQLite's own objects are left out.
#include <QSqlDatabase>
#include <QString>
#include <QStringList>

namespace EstructuraSqlite {

// The names of the tables, in the order they were made.
QStringList Tablas(const QSqlDatabase& db, const QString& esquema, const QString& origen);
// The columns of a table, in their order.
QStringList Columnas(const QSqlDatabase& db, const QString& esquema, const QString& tabla,
                     const QString& origen);
// How many tables, views, indexes and triggers the schema holds.
int Objetos(const QSqlDatabase& db, const QString& esquema, const QString& origen);

// The shape of the schema: a sorted list of lines, each table with each column (name, declared
// type, NOT NULL, place in the key, hidden or generated), its indexes (name when explicit,
// unique, partial, key columns with their order and collation) and its foreign keys; and one
// line for every object that is neither a table nor an index (a trigger, a view). Names are
// given in capitals, as SQL compares them.
QStringList Forma(const QSqlDatabase& db, const QString& esquema, const QString& origen);

}  // namespace EstructuraSqlite
