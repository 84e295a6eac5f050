#pragma once
// The date of presentation printed on the form: its check, for the print panel and for the
// command line alike.
#include "valores/Veredicto.h"

#include <QString>
#include <cstdint>

// The earliest date of presentation the form accepts, yyyymmdd.
inline constexpr int32_t kFechaPresentacionMinima = 20031201;

// A date text in the form the shared Fecha reads now (its fecidioma) that is not before
// 01/12/2003: an empty verdict. No date answers message 327; an earlier date the message that
// names the limit, written as Fecha writes dates now. Both with the exclamation icon, the
// title of id 131 and the focus on txtFechaPresentacion.
Veredicto VeredictoFechaPresentacion(const QString& texto);

// VeredictoFechaPresentacion; when the date is good, ImOf().FECHAPRE takes it. A verdict with
// a message leaves ImOf() as it was.
Veredicto FijarFechaPresentacion(const QString& texto);
