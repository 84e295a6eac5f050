#pragma once
// The state of the lists of one party's returns: a contributor's (ConDeclaraciones()) and a
// presenter's (PreDeclaraciones()). Each outlives its panel, so that order, direction,
// conditions and the selected return are found again after a trip to the declaration form or
// to the print; ENTRADA carries the trip (ViajeLista) and the panel that brings the list back
// sets it to Vuelta.
#include "valores/FilaDeclaracion.h"
#include "valores/cListaDeclaraciones.h"

#include <QList>

#include <QString>
#include <cstdint>
#include <optional>

// ENTRADA: Abrir first entry, Vuelta coming back; with its trip while the panel is away.
class cConDeclaraciones : public cListaDeclaraciones {
public:
    QString LBLCONTRI;           // the contributor's name, shown above the grid
    QString lbldni;              // and number
    QString MODELO;              // kept for the interface; nothing reads or writes it
    int32_t CSCO = 0;            // the contributor

    // The start by ENTRADA: Abrir a fresh list of the contributor `csco`; any other way in
    // keeps the contributor, order, conditions and selection, in the result state.
    void IniciarLista(int32_t csco);

    // The contributor's returns as subject and as transmitter, asked of the store each time.
    struct Contadores {
        QString comoSujeto;
        QString comoTransmitente;
    };
    Contadores ObtenerContadores() const;
    // The contributor's returns of the conditions, each with its PARTE ("S", "T" or "S-T").
    QList<FilaDeclaracion> CargarDeclaraciones();
};

class cPreDeclaraciones : public cListaDeclaraciones {
public:
    QString LBLPRESEN;
    QString lbldni;
    QString MODELO;
    int32_t CSPR = 0;            // the presenter

    // The same with the presenter `cspr`.
    void IniciarLista(int32_t cspr);

    // The presenter's returns, asked of the store each time.
    int32_t ObtenerContador() const;
    // The presenter's returns of the conditions, six columns.
    QList<FilaDeclaracion> CargarDeclaraciones();
};

cConDeclaraciones& ConDeclaraciones();
cPreDeclaraciones& PreDeclaraciones();
