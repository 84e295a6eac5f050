#pragma once
// The date of accrual of the return: its check when txtfechad is left, and what a new date
// does to the operation.
#include "valores/Veredicto.h"

#include <QString>
#include <QStringList>

// A date text of the current language within the program's limits (Entrada().FECMIN and
// FECMAX): an empty verdict. A bad date (id 169) or one out of the limits (ids 170 to 172)
// answers its message, with the exclamation icon and the title of id 131. The form's
// ValidarFecha (paneles/declaracion) shows it.
Veredicto VeredictoFecha(const QString& texto);

// VeredictoFecha; when the date is good, FECHAD takes it. A verdict with a message leaves the
// record as it was. The form's ComprobarFecha (paneles/declaracion) shows the verdict or, on a
// good date, runs what a new date does.
Veredicto CambiarFecha(const QString& texto);

// The operation on the new FECHAD: the list of operations is made again, the operation is
// reloaded, and one that does not apply on the date is dropped with the marks and amounts
// (InicializaFecha); a typed rate is held to the new limits, and the operation is applied.
// `tipoBloqueado`: txttipoimp is locked. Answers the descriptions for cmbOperacion.
QStringList ActualizarOperacionPorFecha(bool tipoBloqueado);

// The entry of a list that the form's combo selects for `texto` (the first that begins with
// it, as given or in capitals); -1 for none, or for an empty text.
int EntradaDeLista(const QStringList& lista, const QString& texto);
