#pragma once
// The whole-return check of the declaration form: the 33 values the store judges, the
// store's rule number turned into a verdict (message and the control that takes the focus),
// and the check of the parties' tax numbers. Nothing here shows a box: the form's
// ValidarCampos and ValidarNifIntervinientes (paneles/declaracion) show the verdicts.
#include "servicios/Arreglos.h"
#include "valores/Veredicto.h"

#include <QString>
#include <cstdint>

// The tabs of tabTerceros.
inline constexpr int kPestanaNinguna = kSinPestana;
inline constexpr int kPestanaSujeto = 0;
inline constexpr int kPestanaTransmitente = 1;

// What a rule number means on the form: the verdict (information icon; no message for 0 and
// for numbers above 40) with the rule's number.
struct VeredictoValidacion : Veredicto {
    int16_t numero = 0;
};

// The 33 values of DecDatos() the store judges. `tipoBloqueado`: txttipoimp is locked, so
// the operation's rate is not the declarant's to type (value 9 is then 0).
Arreglo DatosValidacion(bool tipoBloqueado);

// The message and focus of a rule number. `textoOperacion` is the text of cmbOperacion, which
// the message of rule 39 names.
VeredictoValidacion VeredictoDeclaracion(int16_t numero, const QString& textoOperacion);

// Builds the array and asks the store; the verdict of its answer, under `titulo` (the form's
// caption). The return passes when `numero` is 0.
VeredictoValidacion VeredictoCampos(bool tipoBloqueado, const QString& titulo,
                                    const QString& textoOperacion);

// The tax numbers of the presenter, the subject and the transmitter under `titulo`: an empty
// verdict when all are good; id 331 (information) for a wrong presenter's number, else the
// list of the wrong numbers (exclamation).
Veredicto VeredictoNifIntervinientes(const QString& titulo);
