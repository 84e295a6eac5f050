#pragma once
// The whole-return check of the declaration form: the 33 values the store judges, the
// store's rule number turned into a message and the control that takes the focus, and the
// check of the parties' tax numbers.
#include "servicios/Arreglos.h"

#include <QString>
#include <cstdint>

// The tabs of tabTerceros.
inline constexpr int kPestanaNinguna = -1;
inline constexpr int kPestanaSujeto = 0;
inline constexpr int kPestanaTransmitente = 1;

// What a rule number means on the form.
struct Veredicto {
    int16_t numero = 0;
    QString mensaje;        // empty for 0 and for numbers with no message (above 40)
    QString control;        // objectName of the control that takes the focus
    int pestana = kPestanaNinguna;  // the tab to select first, for the parties' fields
};

// The 33 values of DecDatos() the store judges. `tipoBloqueado`: txttipoimp is locked, so
// the operation's rate is not the declarant's to type (value 9 is then 0).
Arreglo DatosValidacion(bool tipoBloqueado);

// The message and focus of a rule number. `textoOperacion` is the text of cmbOperacion, which
// the message of rule 39 names.
Veredicto VeredictoDeclaracion(int16_t numero, const QString& textoOperacion);

// Builds the array, asks the store and, for a rule from 1 to 40, shows its message with the
// information icon under `titulo` (the form's caption). True when the store answers 0. The
// verdict, when asked for, tells the form where the focus goes.
bool ValidarCampos(bool tipoBloqueado, const QString& titulo, const QString& textoOperacion,
                   Veredicto* veredicto = nullptr);

// The tax numbers of the presenter, the subject and the transmitter. -1 when one is wrong
// (and told), 0 when all are good.
int16_t ValidarNifIntervinientes(const QString& titulo);
