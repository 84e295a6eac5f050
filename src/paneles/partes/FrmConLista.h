#pragma once
// The list of contributors: the doorway from the main menu to a contributor (open its data,
// make a new one, see its declarations) or, in the delete mode, to its deletion. Its state
// lives in ConLista(), whose ENTRADA the navigator sets before opening it (Abrir, Eliminar, or
// Vuelta back from a contributor's data or returns). The panel asks for the next panel through
// its signals.
#include "paneles/partes/PanelLista.h"

class FrmConLista final : public PanelLista {
    Q_OBJECT
public:
    // Builds the panel for ConLista() as its ENTRADA stands and shows it; the navigator calls it.
    static FrmConLista* Abrir();

    explicit FrmConLista(QWidget* parent = nullptr);

    // The rows of the criteria in force, from the store of contributors.
    void CargarFlxContribuyentes() { CargarFlx(); }

protected:
    void CargarFilas() override;
    void Borrar(int32_t codigo) override;
};
