#pragma once
// The state of a party's list, shared by the contributors' list (cConLista) and the
// presenters' (cPreLista): criteria, search state, mode and order, and the moves a list panel
// makes on them. One instance of each list lives for the whole run, so a panel that comes back
// after a side trip finds its order, criteria and selection again.
//
// What differs by party (the name of the selected code, the counters of declarations, the
// store asked for the rows) is each list's own: the panel reads it through the virtual calls
// below, while the party's own names (CSCO, NUMSP, ... / CSPR, ...) stay the record's fields.
#include "valores/CriteriosParte.h"
#include "valores/EstadoNavegacion.h"
#include "valores/cCriterio.h"

#include <QList>
#include <QString>
#include <cstdint>
#include <optional>

class cListaParte {
public:
    std::optional<TablaCriterios> TABLASELECCION;  // the criteria in force; absent: none
    QString SELECCIONACTUAL = QStringLiteral("0");  // search state: column under edit, "0" none
    Navegacion::EntradaLista ENTRADA = Navegacion::EntradaLista::Ninguna;  // the next opening
    QString BUSQUEDA = QStringLiteral("N");  // "N" result state, "B" search state
    Navegacion::ModoLista MODO = Navegacion::ModoLista::Abrir;
    uint8_t ORDEN = 1;           // column of the order: 1 name, 2 number

    virtual ~cListaParte() = default;

    // The start of the list by ENTRADA: Abrir and Eliminar a fresh list (open or delete mode)
    // ordered by name, with no criteria and nothing selected; any other way in (Vuelta) keeps
    // order, criteria and selection, and comes back in open mode and in the result state.
    void IniciarLista();
    bool HayCriterios() const;
    // The criteria handed to the store: the name's and the number's starts typed.
    CriteriosParte CriteriosBusqueda() const;
    // The order handed to the store: ORDEN 2 by number, anything else by name.
    OrdenParte Orden() const { return OrdenDeColumna(ORDEN); }
    // The search box over column SELECCIONACTUAL was left with `texto`: that column's
    // criterion takes it (a new criterion when there is none), the list is ordered by that
    // column, and no column is under edit any more.
    virtual void AnotarBusqueda(const QString& texto);
    // cmdBuscar: from the result state to the search state with nothing kept; from the search
    // state back to the result state with the criteria typed.
    virtual void CambiarBusqueda();
    // cmdTodos: the whole list by name, nothing selected.
    // (These three moves are virtual: a selection list also notes whether its criteria
    // survive the trip back to the declaration form.)
    virtual void Todos();
    // A click on a heading of the result state: name (1) and number (2) order the list and
    // lose the selection; answers false for any other column, which does nothing.
    bool OrdenarPor(int columna);
    // A click on a column in the search state: name (1) and number (2) become the column under
    // edit; answers false for any other column, which does nothing.
    bool ElegirColumnaBusqueda(int columna);

    // The party's own part.
    virtual int32_t Codigo() const = 0;          // the selected party, 0 none
    virtual int32_t Seleccionados() const = 0;   // parties found
    // The counters of declarations of the selected party, in the grid's order.
    virtual QList<int32_t> Contadores() const = 0;
    // A row became current: its code and counters are the selection.
    virtual void SeleccionarFila(int32_t codigo, const QList<int32_t>& contadores) = 0;

protected:
    cListaParte() = default;
    cListaParte(const cListaParte&) = default;
    cListaParte& operator=(const cListaParte&) = default;

    // Nothing selected any more; with `cuenta`, no party found either.
    virtual void OlvidarSeleccion(bool cuenta) = 0;
};
