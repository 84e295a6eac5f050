#pragma once
// One presenter as the store keeps it: the value that the presenter panel edits and a return
// names by its code.
#include <QString>
#include <cstdint>

struct Presentador {
    int32_t CSPR = 0;       // code in the store, 0 not yet saved
    QString DNIP;
    QString NOMBREP;
    QString VIAP;
    QString DOMICILIOP;
    int32_t NUMEROP = 0;
    QString LETRAP;
    QString ESCALERAP;
    QString PISOP;
    QString MANOP;
    QString CODPROVP;
    QString CODPOSP;
    QString CODMUNP;
    QString NOMMUNP;
    QString TELEFONOP;
    int64_t VERSION = 0;    // as Contribuyente::VERSION

    bool operator==(const Presentador&) const = default;
};
