#pragma once
// The list of presenters, the same panel as the list of contributors with its own state
// object PreLista(), its own columns (one counter of declarations) and texts, the store of
// presenters and the presenter's data panel.
#include "paneles/partes/PanelLista.h"

#include <functional>

class FrmPreLista final : public PanelLista {
    Q_OBJECT
public:
    // Builds the panel for PreLista() as its ENTRADA stands, and shows it.
    static FrmPreLista* Abrir();

    explicit FrmPreLista(QWidget* parent = nullptr);

    // The rows of the criteria in force, from the store of presenters.
    void CargarFlxPresentadores() { CargarFlx(); }

    // The panel of a presenter's declarations hands the presenter's name and number over
    // (PreDeclaraciones.ENTRADA "A", LBLPRESEN, lbldni) and opens; it installs that step here, and
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
