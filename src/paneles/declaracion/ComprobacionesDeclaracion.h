#pragma once
// The checks of the declaration form as the form runs them: each asks the logic of
// registros/declaracion for its verdict and shows it through MostrarVeredicto. The form calls
// these routines; the logic stays silent.
#include "registros/declaracion/Calculo.h"
#include "registros/declaracion/Validacion.h"

#include <QString>
#include <functional>

class QWidget;

// The rate typed in txttipoimp, when the box is left (AceptarTipoImpositivo); a refused rate
// is told with the message of ids 140 and 141 under the title of id 131.
ResultadoTipo ValidarTipoImpositivo(double valor, bool bloqueada, bool saltarValidacion);

// The date of accrual typed in txtfechad (VeredictoFecha); a bad date or one out of the limits
// is told (title id 131, exclamation). True when the date is good.
bool ValidarFecha(const QString& texto);

// ValidarFecha; when good, FECHAD takes the date and `trasCambio` runs (the operations of the
// new date loaded by BloqueVehiculo, the form drawn again). False leaves the record as it was.
bool ComprobarFecha(const QString& texto, const std::function<void()>& trasCambio);

// The whole-return check (VeredictoCampos): for a rule from 1 to 40 its message with the
// information icon under `titulo` (the form's caption); with a `panel`, the rule's tab of
// tabTerceros is selected and its control takes the focus. Answers the verdict shown, which
// tells the caller the control; empty when the return passes.
Veredicto ValidarCampos(bool tipoBloqueado, const QString& titulo, const QString& textoOperacion,
                        QWidget* panel = nullptr);

// The tax numbers of the presenter, the subject and the transmitter
// (VeredictoNifIntervinientes). -1 when one is wrong (and told), 0 when all are good.
int16_t ValidarNifIntervinientes(const QString& titulo);
