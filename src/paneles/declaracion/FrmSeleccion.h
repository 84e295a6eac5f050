#pragma once
// The lists from which a party is chosen while a return is being edited: a contributor as
// subject or transmitter (FrmConSeleccion), a presenter (FrmPreSeleccion). They are the
// parties' lists with a smaller task: no new party, no delete, no declarations. The choice
// goes straight into the return the navigator hands them (the one the form edits); on
// closing, either way, the navigator hands back to the declaration form, entered by whether a
// contributor was chosen (SeleccionHecha).
#include "paneles/partes/PanelLista.h"

class cDecDatos;

class FrmConSeleccion final : public PanelLista {
    Q_OBJECT
public:
    // `declaracion` is the return the contributor is chosen for.
    explicit FrmConSeleccion(cDecDatos& declaracion, QWidget* parent = nullptr);
    // Whether the user chose a contributor before the panel closed.
    bool SeleccionHecha() const { return m_seleccionHecha; }

protected:
    void CargarFilas() override;
    void Borrar(int32_t) override {}
    void Elegido() override;

private:
    cDecDatos& m_declaracion;
    bool m_seleccionHecha = false;
};

class FrmPreSeleccion final : public PanelLista {
    Q_OBJECT
public:
    // `declaracion` is the return the presenter is chosen for.
    explicit FrmPreSeleccion(cDecDatos& declaracion, QWidget* parent = nullptr);

protected:
    void CargarFilas() override;
    void Borrar(int32_t) override {}
    void Elegido() override;

private:
    cDecDatos& m_declaracion;
};
