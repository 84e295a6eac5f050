#pragma once
// The lists from which a party is chosen while a return is being edited: a contributor as
// subject or transmitter (FrmConSeleccion), a presenter (FrmPreSeleccion). They are the
// parties' lists with a smaller task: no new party, no delete, no declarations. The choice
// goes straight into DecDatos(); on closing, either way, the navigator hands back to the
// declaration form, entered by whether a contributor was chosen (SeleccionHecha).
#include "paneles/partes/PanelLista.h"

class FrmConSeleccion final : public PanelLista {
    Q_OBJECT
public:
    explicit FrmConSeleccion(QWidget* parent = nullptr);
    // Whether the user chose a contributor before the panel closed.
    bool SeleccionHecha() const { return m_seleccionHecha; }

protected:
    void CargarFilas() override;
    void Borrar(int32_t) override {}
    void Elegido() override;

private:
    bool m_seleccionHecha = false;
};

class FrmPreSeleccion final : public PanelLista {
    Q_OBJECT
public:
    explicit FrmPreSeleccion(QWidget* parent = nullptr);

protected:
    void CargarFilas() override;
    void Borrar(int32_t) override {}
    void Elegido() override;
};
