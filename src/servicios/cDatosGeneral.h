#pragma once
// General data of the stores: counts of the user's records, the date limits, the pickers'
// reference lists and the update address. Set mdbmod or mdblec before each call.
#include "plataforma/Idioma.h"

#include <QDate>
#include <QList>
#include <QString>
#include <cstdint>

// One row of a reference list: its code as stored ("01", "CL") and its name.
struct FilaReferencia {
    QString codigo;
    QString nombre;

    bool operator==(const FilaReferencia&) const = default;
};

// The oldest and the newest date the program accepts.
struct LimitesFechas {
    QDate minima;
    QDate maxima;
};

class cDatosGeneral {
public:
    QString mdbmod;
    QString mdblec;

    int32_t NumeroDeclaraciones() const;
    int32_t NumeroContribuyentes() const;
    int16_t NumeroPresentadores() const;
    LimitesFechas DameFechaMinimaMaxima() const;
    // The reference lists of the pickers, in the order of the Spanish alphabet by name
    // (accents and case aside, Ñ after N). The street types and the provinces are named in
    // `idioma`; the municipalities have one name only.
    QList<FilaReferencia> CargarVias(Idioma idioma) const;
    QList<FilaReferencia> CargarProvincias(Idioma idioma) const;
    QList<FilaReferencia> CargarMunicipios() const;
    QString ObtenNomMunicipio(const QString& codigo) const;
    QString ObtenNomProvincia(const QString& codigo) const;
    QString URLAct() const;
};
