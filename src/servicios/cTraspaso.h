#pragma once
// Brings the read/write database to the current layout at start-up and after a restore.
// Creates it on the first run (Spanish, update setting undecided), migrates a file of an older
// layout in place, in one transaction, and answers true when the file cannot be brought to the
// current layout: a newer layout, or a file that is not a database of this program. Failures
// (a lock that does not go away, a step that fails) are raised as cFallo, and the file is left
// as it was.
#include <QString>

class cTraspaso {
public:
    QString mdbmod;   // full path of the read/write database
    QString mdbPath;  // the folder of the databases, created when missing

    bool Traspaso() const;
};
