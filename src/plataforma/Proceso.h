#pragma once
// How the program ends. Production code calls these; while a test records, the ending is
// counted and the call returns, so every caller returns at once after calling them.
#include <QList>
#include <QString>
#include <functional>
#include <exception>
#include <optional>

class cFallo;

namespace Proceso {
// Ends the program with status `codigo` through its own exit path: every event loop stops,
// the program's entry returns the status (Salida), and the work registered for a clean end is
// done there. No question is asked and no closing step of any panel runs. Before the program
// has an application object the process ends here, as it would on that path.
void Terminar(int codigo = 0);
// The status an end was asked for with, if Terminar was called.
std::optional<int> FinPedido();
// The program's last step on its way out: for status 0, the work registered with AlTerminarBien.
// Answers the status, for the program's entry to return.
int Salida(int codigo);

// The runtime failure notice: shows the failure's source and description, then ends the
// process at once, without its exit path (the program's state is not to be trusted).
void AvisoFalloEjecucion(const cFallo& fallo);
void AvisoFalloEjecucion(const std::exception& fallo);

// How the notice reaches the screen: the dialog layer installs a box at start-up. Without one
// the notice goes to the standard error only (a run without windows).
void EstablecerAvisoVisible(std::function<void(const QString& origen, const QString& descripcion)> aviso);

// Registers work to do when the process ends cleanly (status 0), before it ends: a mark of
// this run taken off, for instance. Not run while a test records.
void AlTerminarBien(std::function<void()> accion);

// Runs `accion`, turning any failure that escapes it into the runtime failure notice.
void Protegido(const std::function<void()>& accion);
}

namespace ProcesoSeam {
struct Aviso {
    QString origen;
    QString descripcion;
};
// While recording, Terminar only counts and the notice is kept instead of shown.
void grabar(bool activo);
bool grabando();
const QList<Aviso>& avisos();
int finales();  // how many times the process would have ended
int ultimoCodigo();  // the status the last of them would have ended with
}
