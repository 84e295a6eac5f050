#pragma once
// One contributor as the lists of contributors show him: the list, the selection of a subject
// or transmitter. The fields are the grid's columns, in its order.
#include <QString>
#include <cstdint>

struct FilaContribuyente {
    int32_t CSCO = 0;
    QString NOMBREC;
    QString DNIC;
    QString DOMICILIOC;     // the street, as the column "Calle" shows it
    QString MUNICIPIO;      // the municipality's name: the treasury's for its own, else as typed
    int32_t NUMSP = 0;      // returns that name the contributor as subject
    int32_t NUMTR = 0;      // and as transmitter

    bool operator==(const FilaContribuyente&) const = default;
};
