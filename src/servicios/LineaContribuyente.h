#pragma once
// What the import's checks take and answer: the raw texts of one exchange line, and each
// error found in them as its field and the catalogue id of its message.
#include <QList>
#include <QString>

// The fields of a contributor, as the import's findings name them.
enum class CampoContribuyente {
    TIPODNI,
    DNIC,
    NOMBREC,
    VIAC,
    DOMICILIOC,
    NUMEROC,
    LETRAC,
    ESCALERAC,
    PISOC,
    MANOC,
    TIPODOMI,
    PAIS,
    CODPROVC,
    NOMPROVC,
    CODPOSC,
    CODMUNC,
    NOMMUNC,
    NUMSP,
    NUMTR,
};

// One contributor as an exchange line brings it: each field the raw text the line holds for
// it, blanks included. The numbers are texts too, since the import judges whether they are
// numbers at all.
struct LineaContribuyente {
    QString TIPODNI;
    QString DNIC;
    QString NOMBREC;
    QString VIAC;
    QString DOMICILIOC;
    QString NUMEROC;
    QString LETRAC;
    QString ESCALERAC;
    QString PISOC;
    QString MANOC;
    QString TIPODOMI;
    QString PAIS;
    QString CODPROVC;
    QString NOMPROVC;
    QString CODPOSC;
    QString CODMUNC;
    QString NOMMUNC;
    QString NUMSP;
    QString NUMTR;
};

// One error of an exchange line: the field it concerns and the catalogue id of its message.
struct HallazgoImportacion {
    CampoContribuyente campo;
    int id;

    bool operator==(const HallazgoImportacion&) const = default;
};
