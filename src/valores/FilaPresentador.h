#pragma once
// One presenter as the lists of presenters show him: the list, the selection of the
// presenter of a return. The fields are the grid's columns, in its order.
#include <QString>
#include <cstdint>

struct FilaPresentador {
    int32_t CSPR = 0;
    QString NOMBREP;
    QString DNIP;
    QString DOMICILIOP;         // the street, as the column "Calle" shows it
    QString MUNICIPIO;          // the municipality's name: the treasury's for its own, else as typed
    int32_t NUMDECLARACIONES = 0;  // returns that name the presenter

    bool operator==(const FilaPresentador&) const = default;
};
