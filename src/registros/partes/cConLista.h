#pragma once
// The state of the contributors' list (one instance, ConLista()): the shared list state with
// the selected contributor, the count found, and the selected contributor's declarations as
// subject and as transmitter.
#include "registros/partes/cListaParte.h"
#include "valores/FilaContribuyente.h"

#include <QVariant>

class cConLista final : public cListaParte {
public:
    int32_t CSCO = 0;            // the selected contributor, 0 none
    int32_t NUMCONTRISEL = 0;    // contributors found
    QVariant VALORSEL;           // kept for the interface; nothing reads or writes it
    int32_t NUMSP = 0;           // the selected contributor's declarations as subject
    int32_t NUMTR = 0;           // and as transmitter

    // Asks the store for the contributors of the criteria, in ORDEN; NUMCONTRISEL takes their
    // count.
    QList<FilaContribuyente> CargarContribuyentes();
    void Seleccionar(int32_t codigo, int32_t numsp, int32_t numtr);

    int32_t Codigo() const override { return CSCO; }
    int32_t Seleccionados() const override { return NUMCONTRISEL; }
    QList<int32_t> Contadores() const override { return {NUMSP, NUMTR}; }
    void SeleccionarFila(int32_t codigo, const QList<int32_t>& contadores) override
    {
        Seleccionar(codigo, contadores.value(0), contadores.value(1));
    }

protected:
    void OlvidarSeleccion(bool cuenta) override;
};

cConLista& ConLista();
