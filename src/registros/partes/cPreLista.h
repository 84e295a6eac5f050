#pragma once
// The state of the presenters' list (one instance, PreLista()): the shared list state with the
// selected presenter, the count found and the selected presenter's declarations.
#include "registros/partes/cListaParte.h"
#include "valores/FilaPresentador.h"

class cPreLista final : public cListaParte {
public:
    int32_t CSPR = 0;              // the selected presenter, 0 none
    int32_t NUMPRESENSEL = 0;      // presenters found
    int32_t NUMDECLARACIONES = 0;  // the selected presenter's declarations

    // Asks the store for the presenters of the criteria, in ORDEN; NUMPRESENSEL takes their
    // count.
    QList<FilaPresentador> CargarPresentadores();
    void Seleccionar(int32_t codigo, int32_t numDeclaraciones);

    int32_t Codigo() const override { return CSPR; }
    int32_t Seleccionados() const override { return NUMPRESENSEL; }
    QList<int32_t> Contadores() const override { return {NUMDECLARACIONES}; }
    void SeleccionarFila(int32_t codigo, const QList<int32_t>& contadores) override
    {
        Seleccionar(codigo, contadores.value(0));
    }

protected:
    void OlvidarSeleccion(bool cuenta) override;
};

cPreLista& PreLista();
