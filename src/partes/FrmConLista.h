#pragma once
// The list of contributors: the doorway from the main menu to a contributor (open its data,
// make a new one, see its declarations) or, in the delete mode, to its deletion. Its state
// lives in ConLista(), which the main window sets (ENTRADA "A" open, "E" delete) before
// calling Abrir(), and which the contributor panel sets to "P" when it hands back.
#include "partes/PanelLista.h"

class FrmConLista final : public PanelLista {
    Q_OBJECT
public:
    // Builds the panel for ConLista() as its ENTRADA stands, and shows it.
    static FrmConLista* Abrir();

    explicit FrmConLista(QWidget* parent = nullptr);

    // The rows of the criteria in force, from the store of contributors.
    void CargarFlxContribuyentes() { CargarFlx(); }

protected:
    int32_t dameResultadoBusqueda(const Arreglo& criterios, Arreglo2D& datos,
                                  uint8_t orden) const override;
    void Borrar(int32_t codigo) override;
    void AbrirDatos(const QString& modo) override;
    void AbrirDeclaraciones(const QString& nombre, const QString& dni) override;
};
