#pragma once
// One contributor as the store keeps it: the value that the contributor panel edits, the list
// shows, the exchange file carries and a return takes its subject or transmitter from.
#include <QString>
#include <cstdint>

struct Contribuyente {
    int32_t CSCO = 0;       // code in the store, 0 not yet saved
    QString TIPODNI;        // "O" official, "N" foreign document
    QString DNIC;
    QString NOMBREC;
    QString VIAC;           // street type code
    QString DOMICILIOC;
    int32_t NUMEROC = 0;
    QString LETRAC;
    QString ESCALERAC;
    QString PISOC;
    QString MANOC;
    QString TIPODOMI;       // "N" national, "E" foreign
    QString PAIS;
    QString CODPROVC;       // two digits
    QString NOMPROVC;       // typed province name (foreign domicile)
    QString CODPOSC;
    QString CODMUNC;
    QString NOMMUNC;        // typed municipality name
    double NUMSP = 0;       // returns that name the contributor as subject (counted, never saved)
    double NUMTR = 0;       // and as transmitter
    // The version of the stored row this value was loaded from or last saved as, 0 for none:
    // a save writes only over that version.
    int64_t VERSION = 0;

    bool operator==(const Contribuyente&) const = default;
};
