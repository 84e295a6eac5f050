#pragma once
// The computation of a return on the shared records DecDatos() and Operacion(): what the
// chosen operation does to the return, the amounts, the reductions of the base and the typed
// rate. The declaration form calls these routines and then repaints itself from the record.
#include "valores/Importe.h"
#include "valores/Veredicto.h"

#include <QString>
#include <optional>

// What the chosen operation brings: its marks, its rate (a fixed one only; the rate without
// fixed value leaves the one that stands), its deduction; then the amounts.
void AplicarOperacion();

// Reduced base, tax due and amount to pay from the base, the rate, the reduction and the
// deduction. Amounts are in whole cents; the tax due keeps two decimals of a cent.
void CalcularValores();

// The state of the two reduction boxes of the form.
struct CasillasReduccion {
    bool habilitada1 = false;
    bool marcada1 = false;
    bool habilitada2 = false;
    bool marcada2 = false;
};
// REDUCCION (and the operation's T_RED, so that a reload keeps the choice) from the boxes.
void ActualizarReduccion(const CasillasReduccion& casillas);

// What the form must do after the rate typed in txttipoimp was judged.
struct ResultadoTipo {
    bool presentar = false;  // the amounts were computed: repaint the form from the record
    bool volverAlTipo = false;  // the rate was refused: the focus goes back to txttipoimp
    Veredicto veredicto;        // the refusal, for the form to show; empty otherwise
};
// The rate typed in txttipoimp, when the box is left. Nothing happens while the form skips
// validation or the box is locked, nor when the value equals the stored non-zero rate. A rate
// outside the operation's limits (only for an operation without fixed rate) is refused with
// the verdict of ids 140 and 141 (exclamation, title id 131, focus on txttipoimp), and the
// stored rate stays. The form's ValidarTipoImpositivo (paneles/declaracion) shows the verdict.
ResultadoTipo AceptarTipoImpositivo(double valor, bool bloqueada, bool saltarValidacion);

// After a change of date: a typed rate outside the limits of the new date becomes 0, with no
// message (only when the box is open and the operation has no fixed rate).
void AjustarTipoImpositivo(bool bloqueada);

// The return loses its operation: code, reduced base, and the operation's marks, rate and
// deduction.
void LimpiarOperacion();

// The base as the form shows it ("1.234,50", two decimals) in whole cents (123450), whatever
// the machine's regional settings. A text that is not an amount gives 0.
Importe BaseDeTexto(const QString& texto);
// The Spanish way of showing a rate in a message: "14,75", "7", "0".
QString TextoTasa(double tasa);

// The rate of a passenger car (a four-digit classification beginning with 10) before the
// rates by emissions: 7 for petrol under 1600 cc or diesel under 2000 cc, 12 otherwise.
// Nothing for another classification. The table of operations follows this rule.
std::optional<double> TipoTurismo(int clasificacion, const QString& motor, int cilindrada);
// The form's two routines of that rule, which no event reaches. The first takes the
// classification as typed and acts on a taxed return only (CLASIFICACION above 0, neither
// exempt nor not subject, four characters), then computes; the second reads CLASIFICACION
// as four digits and only sets the rate.
void TipoInicialTurismo(const QString& textoClasificacion);
void TipoInicialTurismoSinCalcular();
