#pragma once
// Brings the read/write database to the current layout at start-up and after a restore.
// Creates it on the first run (Spanish, update setting undecided), migrates a file of an older
// layout in place, in one transaction, and answers true when the file cannot be used: see
// Comprobar. Failures (a lock that does not go away, a step that fails) are raised as cFallo,
// and the file is left as it was.
#include <QString>

class cTraspaso {
public:
    QString mdbmod;   // full path of the read/write database
    QString mdbPath;  // the folder of the databases, created when missing

    // Why the program cannot work on the file, judged without writing to it (its folder is
    // made when missing). A file of this program has its pages checked (RevisionAlmacen): the
    // quick check, or the full one after a copy of the program ended without closing it.
    enum class Impedimento {
        Ninguno,
        Danada,              // not an SQLite database, or one with a damaged header, schema or page
        EnlaceRoto,          // a symbolic link to a file that does not exist stands in its place
        Ajena,               // an SQLite database of another program
        Posterior,           // a database of this program of a newer layout
        Carpeta,             // a folder stands where the file should be
        SoloLectura,         // the file cannot be written by this user
        CarpetaSoloLectura,  // its folder cannot be written (the file, its journal) or made
    };
    Impedimento Comprobar() const;
    // The file Comprobar and Traspaso look at (mdbmod, or mdbPath + "VELDOMOD.mdb").
    QString Ruta() const;

    bool Traspaso() const;
};
