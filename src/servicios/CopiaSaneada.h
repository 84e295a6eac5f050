#pragma once
// A backup offered for a restore, carried over into this program's own tables. Nothing the
// file defines is ever run or kept: its triggers, views, indexes, defaults and checks stay in
// it. The file is read through a read-only attachment, in one read transaction (the rows that
// are checked are the rows that are copied), and:
//  - its shape must be that of the program's layout `version` and nothing more
//    (EstructuraAlmacen): no trigger, view, extra table or index, no other key or column type;
//  - its pages must be whole (integrity_check of the read-only file, which reads every index
//    against its table);
//  - every row goes, column by column by name, into the program's own empty tables of that
//    layout, laid out by its own steps, where every NOT NULL, CHECK and UNIQUE of the program
//    is enforced as the row is inserted (a read-only check would skip the CHECKs);
//  - the references must lead somewhere (foreign_key_check of the new tables).
// The result is a database of this program, of layout `version`, whose every byte the program
// wrote.
#include <QString>

namespace CopiaSaneada {

// Builds the clean copy of `archivo` (a database of this program of layout `version`) in
// `destino`, a file that does not exist yet. Answers false when the file is refused; raises
// cFallo(origen) when the work itself fails (a disk that is full, a file that cannot be read).
bool Construir(const QString& archivo, const QString& destino, int version, const QString& origen);

}  // namespace CopiaSaneada
