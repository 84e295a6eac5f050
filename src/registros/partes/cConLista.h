#pragma once
// The state of the contributors' list (one instance, ConLista()). It outlives the panel, so a
// panel that comes back after a side trip finds its order, criteria and selection again. The
// panel reads and writes the public fields; the operations below are the state's own moves and
// its call to the store.
#include "valores/cCriterio.h"
#include "servicios/Arreglos.h"

#include <QString>
#include <QVariant>
#include <cstdint>
#include <optional>

class cConLista {
public:
    std::optional<TablaCriterios> TABLASELECCION;  // the criteria in force; absent: none
    QString SELECCIONACTUAL = QStringLiteral("0");  // search state: column under edit, "0" none
    int32_t CSCO = 0;            // the selected contributor, 0 none
    int32_t NUMCONTRISEL = 0;    // contributors found
    QString ENTRADA;             // next opening: "A" open list, "E" delete list, "P" come back
    QVariant VALORSEL;           // kept for the interface; nothing reads or writes it
    QString BUSQUEDA = QStringLiteral("N");  // "N" result state, "B" search state
    QString MODO = QStringLiteral("C");      // "C" open mode, "E" delete mode
    uint8_t ORDEN = 1;           // column of the order: 1 name, 2 DNI
    int32_t NUMSP = 0;           // the selected contributor's declarations as subject
    int32_t NUMTR = 0;           // and as transmitter

    // The start of the list by ENTRADA: "A" and "E" a fresh list (open or delete mode) ordered
    // by name, with no criteria and nothing selected; anything else ("P") keeps order,
    // criteria and selection, and comes back in open mode and in the result state.
    void IniciarLista();
    bool HayCriterios() const;
    // Three elements: 1 the name prefix, 2 the DNI prefix, as text; the whole number 0 where
    // no criterion is given.
    Arreglo CriteriosBusqueda() const;
    // Asks the store for the contributors of the criteria, in ORDEN (datos[columna][fila], the
    // seven columns of the grid); NUMCONTRISEL takes the count, which is answered.
    int32_t CargarContribuyentes(Arreglo2D& datos);
    // The search box over column SELECCIONACTUAL was left with `texto`: that column's
    // criterion takes it (a new criterion when there is none), the list is ordered by that
    // column, and no column is under edit any more.
    void AnotarBusqueda(const QString& texto);
    // cmdBuscar: from the result state to the search state with nothing kept; from the search
    // state back to the result state with the criteria typed.
    void CambiarBusqueda();
    // cmdTodos: the whole list by name, nothing selected.
    void Todos();
    // A click on a heading of the result state: name (1) and DNI (2) order the list and lose
    // the selection; answers false for any other column, which does nothing.
    bool OrdenarPor(int columna);
    // A click on a column in the search state: name (1) and DNI (2) become the column under
    // edit; answers false for any other column, which does nothing.
    bool ElegirColumnaBusqueda(int columna);
    // A row became current: its code and counters are the selection.
    void Seleccionar(int32_t codigo, int32_t numsp, int32_t numtr);
};

cConLista& ConLista();
