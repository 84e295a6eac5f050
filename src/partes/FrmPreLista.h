#pragma once
// The list of presenters, the same panel as the list of contributors with its own state
// object PreLista(), its own columns (one counter of declarations) and texts, the store of
// presenters and the presenter's data panel.
#include "partes/PanelLista.h"

class FrmPreLista final : public PanelLista {
    Q_OBJECT
public:
    // Builds the panel for PreLista() as its ENTRADA stands, and shows it.
    static FrmPreLista* Abrir();

    explicit FrmPreLista(QWidget* parent = nullptr);

    // The rows of the criteria in force, from the store of presenters.
    void CargarFlxPresentadores() { CargarFlx(); }

protected:
    int32_t dameResultadoBusqueda(const Arreglo& criterios, Arreglo2D& datos,
                                  uint8_t orden) const override;
    void Borrar(int32_t codigo) override;
    void AbrirDatos(const QString& modo) override;
    void AbrirDeclaraciones(const QString& nombre, const QString& dni) override;
};
