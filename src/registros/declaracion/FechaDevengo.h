#pragma once
// The date of accrual of the return: its check when txtfechad is left, and what a new date
// does to the operation.
#include <QString>
#include <QStringList>
#include <functional>

// A date text of the current language within the program's limits (Entrada().FECMIN and
// FECMAX). A bad date or one out of the limits is told (title id 131, exclamation); false.
bool ValidarFecha(const QString& texto);

// ValidarFecha; when good, FECHAD takes the date and `trasCambio` runs (the form's
// ActualizarOperacionPorFecha and PresentarDeclaracion). False leaves the record as it was.
bool ComprobarFecha(const QString& texto, const std::function<void()>& trasCambio);

// The operation on the new FECHAD: the list of operations is made again, the operation is
// reloaded, and one that does not apply on the date is dropped with the marks and amounts
// (InicializaFecha); a typed rate is held to the new limits, and the operation is applied.
// `tipoBloqueado`: txttipoimp is locked. Answers the descriptions for cmbOperacion.
QStringList ActualizarOperacionPorFecha(bool tipoBloqueado);

// The entry of a list that the form's combo selects for `texto` (the first that begins with
// it, as given or in capitals); -1 for none, or for an empty text.
int EntradaDeLista(const QStringList& lista, const QString& texto);
