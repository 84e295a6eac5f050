#pragma once
// The state of the list of returns (one instance, DecLista()). It outlives the panel, so the
// list that comes back from the declaration form finds its order, its search and its
// selection again; the new return's code, when one was made, is the one selected.
#include "valores/FilaDeclaracion.h"
#include "valores/cListaDeclaraciones.h"

#include <QList>

class cDecLista : public cListaDeclaraciones {
public:
    Navegacion::ModoLista MODO = Navegacion::ModoLista::Abrir;  // choose and open, or delete

    // The start by ENTRADA: Abrir and Eliminar a fresh list (open or delete mode); any other
    // way in keeps order, conditions and selection, in open mode and in the result state.
    void IniciarLista();
    // The returns of the conditions in ORDEN and TIPOORDEN; NUMDECLASEL takes their count.
    QList<FilaDeclaracion> CargarDeclaraciones();
};

cDecLista& DecLista();
