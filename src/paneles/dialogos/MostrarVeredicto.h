#pragma once
// The one way a panel shows what the logic answered: the verdict's message through Mensaje(),
// then the focus on the control it names.
#include "valores/Veredicto.h"

class QWidget;

// Shows `veredicto` (nothing when it has no message) and answers as Mensaje() does; 0 when
// nothing was shown. With a `panel`, the control the verdict names is looked up among its
// children by objectName: its tab (`pestana`) is selected on the nearest tab widget that holds
// it, and it takes the focus.
int MostrarVeredicto(const Veredicto& veredicto, QWidget* panel = nullptr);
