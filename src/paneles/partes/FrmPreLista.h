#pragma once
// The list of presenters, the same panel as the list of contributors with its own state
// object PreLista(), its own columns (one counter of declarations) and texts, the store of
// presenters and the presenter's data panel.
#include "paneles/partes/PanelLista.h"

class FrmPreLista final : public PanelLista {
    Q_OBJECT
public:
    // Builds the panel for PreLista() as its ENTRADA stands and shows it; the navigator calls it.
    static FrmPreLista* Abrir();

    explicit FrmPreLista(QWidget* parent = nullptr);

protected:
    void CargarFilas() override;
    void Borrar(int32_t codigo) override;
};
