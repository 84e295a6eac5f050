#pragma once
// The list of contributors: the doorway from the main menu to a contributor (open its data,
// make a new one, see its declarations) or, in the delete mode, to its deletion. Its state
// lives in ConLista(), which the main window sets (ENTRADA "A" open, "E" delete) before
// calling Abrir(), and which the contributor panel sets to "P" when it hands back.
#include "paneles/partes/PanelLista.h"

#include <functional>

class FrmConLista final : public PanelLista {
    Q_OBJECT
public:
    // Builds the panel for ConLista() as its ENTRADA stands, and shows it.
    static FrmConLista* Abrir();

    explicit FrmConLista(QWidget* parent = nullptr);

    // The rows of the criteria in force, from the store of contributors.
    void CargarFlxContribuyentes() { CargarFlx(); }

    // The panel of a contributor's declarations hands the contributor's name and number over
    // (ConDeclaraciones.ENTRADA "A", LBLCONTRI, lbldni) and opens; it installs that step here, and
    // CmdDeclaraciones closes the list and runs it.
    using AbridorDeclaraciones = std::function<void(const QString& nombre, const QString& dni)>;
    static void InstalarDeclaraciones(AbridorDeclaraciones abrir);

protected:
    void IniciarEstado() override;
    int32_t CargarDatos(Arreglo2D& datos) override;
    void AnotarBusqueda(const QString& texto) override;
    void CambiarBusqueda() override;
    void TodosEstado() override;
    bool OrdenarPor(int columna) override;
    bool ElegirColumnaBusqueda(int columna) override;
    void Seleccionar(int32_t codigo, const QList<int32_t>& contadores) override;
    void Borrar(int32_t codigo) override;
    void AbrirDatos(const QString& modo) override;
    void AbrirDeclaraciones(const QString& nombre, const QString& dni) override;
};
