#pragma once
// The program's few waits are clock loops that keep window events flowing. Tests record the
// waits instead of spending the time.
#include <QList>

class QDeadlineTimer;

namespace Reloj {
// Pumps window events until `fin` has passed.
void EsperarHasta(const QDeadlineTimer& fin);
}

namespace RelojSeam {
void grabar(bool activo);
// What each wait asked for would have lasted: the milliseconds left until its deadline when
// it began (0 for a deadline already past).
const QList<int>& esperas();
}
