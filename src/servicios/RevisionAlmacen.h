#pragma once
// The start-up's look at the stores before the program works on them.
//
// The read/write store's pages are checked at every start with SQLite's quick_check (every
// page of every table and index read, their structure checked), and with the full
// integrity_check (every index compared with its table as well) when a copy of the program
// that had the store open ended without closing it: a killed process, a lost power, a crash.
//
// A running copy of the program marks that it has the store open with a file of its own beside
// it, ".<store's name>.<12 hex>.abierta", held as a lock file for as long as it runs (Sesion)
// and removed when it ends cleanly. A mark whose lock nobody holds any more was left by a copy
// that ended without closing. Marks of copies still running are left alone.
#include <QString>
#include <memory>

class QLockFile;

namespace RevisionAlmacen {

// Whether the store's pages are whole: quick_check, or integrity_check when `completa`.
// Rows that merely break a CHECK or a NOT NULL do not count: they are not damage of the file.
// Read-only; a file SQLite cannot read as a database answers false.
bool Sana(const QString& ruta, bool completa);

// Whether the reference store can be read: a file, readable, an SQLite database holding the
// table the start-up reads first.
bool ReferenciaLegible(const QString& ruta);

// Whether a copy of the program ended without closing the store at `ruta`.
bool FinSucio(const QString& ruta);

// The mark of this running copy on the store at `ruta`. Making it first removes the marks of
// copies that ended without closing (the caller has checked the store since). Its end removes
// it: a clean end.
class Sesion {
public:
    explicit Sesion(const QString& ruta);
    ~Sesion();
    Sesion(const Sesion&) = delete;
    Sesion& operator=(const Sesion&) = delete;

private:
    std::unique_ptr<QLockFile> m_marca;
};

}  // namespace RevisionAlmacen
