#pragma once
// The states of the lists from which, while a return is being edited, a contributor is chosen
// as subject or transmitter (ConSeleccion()) and a presenter is chosen (PreSeleccion()). They
// are party lists (criteria, search, order) that only choose. The navigator sets
// ConSeleccion's ENTRADA (the subject or the transmitter) and CRITERIO before the list opens;
// the contributor's criteria of one visit survive to the next while CRITERIO is Conservado ("S"), the
// presenter's never do.
#include "registros/partes/cListaParte.h"
#include "valores/EstadoNavegacion.h"
#include "valores/FilaContribuyente.h"
#include "valores/FilaPresentador.h"

class cConSeleccion final : public cListaParte {
public:
    // Whether the contributor CSCO may stand as subject: official number, national address.
    bool ValidarTipoDniDomicilio() const;

    int32_t CSCO = 0;            // the selected contributor
    int32_t NUMCONTRISEL = 0;    // contributors found
    // Conservado (the letter "S"): the criteria survive the trip back to the form.
    Navegacion::Criterio CRITERIO = Navegacion::Criterio::Olvidado;
    // Sujeto choosing the subject, Transmitente the transmitter: the way the form is entered
    // again after a choice. Kept apart from the list's own way in (cListaParte::ENTRADA),
    // which the list's moves empty.
    Navegacion::Entrada ENTRADA = Navegacion::Entrada::Transmitente;

    // The start: the result state with nothing selected; the criteria and order of the last
    // visit only while CRITERIO is Conservado.
    void IniciarSeleccion();

    // The search box was left, or the search ran: the criteria now survive the trip back.
    void AnotarBusqueda(const QString& texto) override;
    void CambiarBusqueda() override;
    // The whole list again: nothing to carry back.
    void Todos() override;

    int32_t Codigo() const override { return CSCO; }
    int32_t Seleccionados() const override { return NUMCONTRISEL; }
    QList<int32_t> Contadores() const override { return {}; }
    // Asks the store for the contributors of the criteria, in ORDEN; NUMCONTRISEL takes their
    // count.
    QList<FilaContribuyente> CargarContribuyentes();
    void SeleccionarFila(int32_t codigo, const QList<int32_t>&) override { CSCO = codigo; }

protected:
    void OlvidarSeleccion(bool cuenta) override;
};

class cPreSeleccion final : public cListaParte {
public:
    int32_t CSPR = 0;
    int32_t NUMPRESENSEL = 0;

    // The start: criteria and order always reset.
    void IniciarSeleccion();

    int32_t Codigo() const override { return CSPR; }
    int32_t Seleccionados() const override { return NUMPRESENSEL; }
    QList<int32_t> Contadores() const override { return {}; }
    // Asks the store for the presenters of the criteria, in ORDEN; NUMPRESENSEL takes their
    // count.
    QList<FilaPresentador> CargarPresentadores();
    void SeleccionarFila(int32_t codigo, const QList<int32_t>&) override { CSPR = codigo; }

protected:
    void OlvidarSeleccion(bool cuenta) override;
};

cConSeleccion& ConSeleccion();
cPreSeleccion& PreSeleccion();
