#pragma once
// The check of an SQLite file's pages: quick_check (every page of every table and index read,
// their structure checked), or integrity_check (every index compared with its table as well).
#include <QString>

// Whether the file's pages are whole. Rows that merely break a CHECK or a NOT NULL do not
// count: they are not damage of the file. Read-only; a file SQLite cannot read as a database
// answers false.
bool PaginasSqliteSanas(const QString& ruta, bool completa);
