#include "paneles/dialogos/Navegador.h"

#include <QDesktopServices>

namespace {
bool g_grabando = false;
QList<bool> g_respuestas;
QList<QUrl> g_registro;
}  // namespace

bool AbrirEnNavegador(const QUrl& direccion)
{
    if (!g_grabando)
        return QDesktopServices::openUrl(direccion);
    g_registro.append(direccion);
    return g_respuestas.isEmpty() ? true : g_respuestas.takeFirst();
}

namespace NavegadorSeam {
void grabar(bool activo)
{
    g_grabando = activo;
    g_respuestas.clear();
    g_registro.clear();
}
void setNextResult(bool abierto) { g_respuestas.append(abierto); }
const QList<QUrl>& registro() { return g_registro; }
}  // namespace NavegadorSeam
