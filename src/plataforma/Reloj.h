#pragma once
// The program's few waits are clock loops that keep window events flowing. Tests record the
// waits instead of spending the time.
#include <QList>

class QDeadlineTimer;

namespace Reloj {
// Pumps window events until `fin` has passed; `nominalMs` is the length the caller meant,
// kept for tests.
void EsperarHasta(const QDeadlineTimer& fin, int nominalMs);
}

namespace RelojSeam {
void grabar(bool activo);
const QList<int>& esperas();  // the nominal length of each wait asked for
}
