#pragma once
// The date of presentation printed on the form: its check, for the print panel and for the
// command line alike.
#include "plataforma/Idioma.h"
#include "valores/Veredicto.h"

#include <QString>
#include <cstdint>

// The earliest date of presentation the form accepts, yyyymmdd.
inline constexpr int32_t kFechaPresentacionMinima = 20031201;

// A date text laid out as `formato` writes dates that is not before 01/12/2003: an empty
// verdict. No date answers message 327; an earlier date the message that names the limit,
// written in the same layout. Both with the exclamation icon, the title of id 131 and the focus
// on txtFechaPresentacion; the messages are in the program's language. (The command line
// writes its dates dd/mm/yyyy whatever the language.)
Veredicto VeredictoFechaPresentacion(const QString& texto, Idioma formato);

// VeredictoFechaPresentacion of a text in the program's layout; when the date is good,
// ImOf().FECHAPRE takes it. A verdict with a message leaves ImOf() as it was.
Veredicto FijarFechaPresentacion(const QString& texto);
