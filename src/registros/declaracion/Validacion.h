#pragma once
// The whole-return check of the declaration form: what the store judges, the store's verdict
// with its message completed (the operation's limits, the operation's text), and the check of
// the parties' tax numbers. Nothing here shows a box: the form's ValidarCampos and
// ValidarNifIntervinientes (paneles/declaracion) show the verdicts.
#include "servicios/cDeclaSvr.h"
#include "valores/Veredicto.h"

#include <QString>
#include <cstdint>

// The tabs of tabTerceros.
inline constexpr int kPestanaNinguna = kSinPestana;
inline constexpr int kPestanaSujeto = 0;
inline constexpr int kPestanaTransmitente = 1;

// What the store judges of DecDatos(), with the codes of province and postal code as the
// rules read them. `tipoBloqueado`: txttipoimp is locked, so the operation's rate is not the
// declarant's to type (TASA is then 0).
DatosValidacion DatosDeValidacion(bool tipoBloqueado);

// The verdict of a rule of the store (1 to 40; empty for any other number) as the form shows
// it: information icon, the control and its tab. `textoOperacion` is the text of cmbOperacion,
// which the message of rule 39 names; the message of rule 9 names the operation's limits.
Veredicto VeredictoDeclaracion(int regla, const QString& textoOperacion);

// Asks the store about DecDatos(); the verdict of the first rule broken, under `titulo` (the
// form's caption), or an empty verdict when the return passes.
Veredicto VeredictoCampos(bool tipoBloqueado, const QString& titulo,
                          const QString& textoOperacion);

// The tax numbers of the presenter, the subject and the transmitter under `titulo`: an empty
// verdict when all are good; id 331 (information) for a wrong presenter's number, else the
// list of the wrong numbers (exclamation).
Veredicto VeredictoNifIntervinientes(const QString& titulo);
