#pragma once
// The lists from which a party is chosen while a return is being edited: a contributor as
// subject or transmitter (FrmConSeleccion), a presenter (FrmPreSeleccion). They are the
// parties' lists with a smaller task: no new party, no delete, no declarations. The choice
// goes straight into DecDatos(); on closing, either way, they hand back to the declaration
// form through DecDatos().ENTRADA ("S"/"T" load the party, "P" draw what is there) and LISTA
// (the trip's letter taken off).
#include "paneles/partes/PanelLista.h"

class FrmConSeleccion final : public PanelLista {
    Q_OBJECT
public:
    explicit FrmConSeleccion(QWidget* parent = nullptr);

protected:
    void Borrar(int32_t) override {}
    void Elegido() override;
    void closeEvent(QCloseEvent* evento) override;

private:
    bool m_seleccionHecha = false;
    bool m_devuelto = false;
};

class FrmPreSeleccion final : public PanelLista {
    Q_OBJECT
public:
    explicit FrmPreSeleccion(QWidget* parent = nullptr);

protected:
    void Borrar(int32_t) override {}
    void Elegido() override;
    void closeEvent(QCloseEvent* evento) override;

private:
    bool m_devuelto = false;
};
