#pragma once
// What the three lists of returns keep alike (all returns, a contributor's, a presenter's):
// the search conditions, the column and direction of the order, the selected return, the two
// states (result "N", search "B") and the moves between them. Each list's record adds its own
// fields and its call to the store.
#include "valores/CriteriosDeclaracion.h"
#include "valores/EstadoNavegacion.h"
#include "valores/cCriterio.h"

#include <QString>
#include <cstdint>
#include <optional>

class cListaDeclaraciones {
public:
    std::optional<TablaCriterios> TABLASELECCION;  // the search conditions; absent: none
    QString SELECCIONACTUAL = QStringLiteral("0");  // column under the search box, "0" none
    QString TIPOORDEN = QStringLiteral("DESC");     // "ASC" or "DESC"
    int32_t CSDE = 0;            // the selected return, 0 none
    int32_t NUMDECLASEL = 0;     // rows found by the last search
    Navegacion::EntradaDeclaraciones ENTRADA;  // how the list is entered, and a party's trip
    QString BUSQUEDA = QStringLiteral("N");  // "N" result state, "B" search state
    uint8_t ORDEN = 1;           // the column of the order, from 1

    bool HayCriterios() const;
    // The conditions as the store reads them.
    CondicionesDeclaracion Criterios() const;
    // A fresh list: by code, newest first, no conditions, nothing selected.
    void Reiniciar();
    // The search box over column SELECCIONACTUAL was left with `texto`.
    void AnotarBusqueda(const QString& texto);
    // cmdBuscar: result state to search state and back.
    void CambiarBusqueda();
    // cmdTodos: every return by code, newest first.
    void Todos();
    // A click on the heading of grid column `columna` in the result state; false for the
    // columns that do not order (the description and after).
    bool OrdenarPor(int columna);
    // A click on grid column `columna` in the search state; false for the same columns.
    bool ElegirColumnaBusqueda(int columna);
};

// The order that a first click on a heading gives: number, date and amount newest or highest
// first, reference and operation alphabetically.
QString TipoOrdenInicial(uint8_t orden);
