#pragma once
// How the program ends. Production code calls these; tests replace the ending with a handler
// that records it and unwinds instead of killing the test process.
#include <QList>
#include <QString>
#include <functional>
#include <exception>

class cFallo;

namespace Proceso {
// Ends the process at once: no question, no closing step of any panel.
[[noreturn]] void Terminar(int codigo = 0);

// The runtime failure notice: shows the failure's source and description, then ends.
[[noreturn]] void AvisoFalloEjecucion(const cFallo& fallo);
[[noreturn]] void AvisoFalloEjecucion(const std::exception& fallo);

// Runs `accion`, turning any failure that escapes it into the runtime failure notice.
void Protegido(const std::function<void()>& accion);
}

namespace ProcesoSeam {
// Raised instead of ending the process while a test handler is set.
struct FinDelProceso {
    int codigo;
};
struct Aviso {
    QString origen;
    QString descripcion;
};
// While recording, Terminar throws FinDelProceso and the notice is kept instead of shown.
void grabar(bool activo);
bool grabando();
const QList<Aviso>& avisos();
int finales();  // how many times the process would have ended
}
