#include "plataforma/Proceso.h"

#include "plataforma/Fallo.h"

#include <QCoreApplication>
#include <QList>
#include <cstdio>
#include <cstdlib>

namespace {
bool g_grabando = false;
QList<ProcesoSeam::Aviso> g_avisos;
int g_finales = 0;
int g_ultimoCodigo = 0;
std::optional<int> g_finPedido;
std::function<void(const QString&, const QString&)> g_avisoVisible;
QList<std::function<void()>> g_alTerminarBien;

void mostrarAviso(const QString& origen, const QString& descripcion)
{
    if (g_grabando) {
        g_avisos.append({origen, descripcion});
        return;
    }
    std::fprintf(stderr, "%s\n%s\n", qPrintable(origen), qPrintable(descripcion));
    if (g_avisoVisible)
        g_avisoVisible(origen, descripcion);
}

// Every write of the stores is a committed transaction, so nothing is lost by ending here.
[[noreturn]] void terminarYa(int codigo)
{
    std::fflush(nullptr);
    std::_Exit(codigo);
}
}  // namespace

namespace Proceso {
void Terminar(int codigo)
{
    if (g_grabando) {
        ++g_finales;
        g_ultimoCodigo = codigo;
        return;
    }
    if (!QCoreApplication::instance())
        terminarYa(Salida(codigo));
    // The first end asked for decides the status; the event loops running now return, and a
    // loop not yet started is not started (the entry looks at FinPedido first).
    if (!g_finPedido)
        g_finPedido = codigo;
    QCoreApplication::exit(*g_finPedido);
}

std::optional<int> FinPedido()
{
    return g_finPedido;
}

int Salida(int codigo)
{
    if (codigo == 0)
        for (const auto& accion : std::as_const(g_alTerminarBien))
            accion();
    std::fflush(nullptr);
    return codigo;
}

void AvisoFalloEjecucion(const cFallo& fallo)
{
    mostrarAviso(fallo.origen(), fallo.descripcion());
    if (g_grabando) {
        Terminar(1);
        return;
    }
    terminarYa(1);
}

void AvisoFalloEjecucion(const std::exception& fallo)
{
    if (const auto* f = dynamic_cast<const cFallo*>(&fallo)) {
        AvisoFalloEjecucion(*f);
        return;
    }
    mostrarAviso(QStringLiteral("Veldoria"), QString::fromLocal8Bit(fallo.what()));
    if (g_grabando) {
        Terminar(1);
        return;
    }
    terminarYa(1);
}

void AlTerminarBien(std::function<void()> accion)
{
    g_alTerminarBien.append(std::move(accion));
}

void EstablecerAvisoVisible(std::function<void(const QString&, const QString&)> aviso)
{
    g_avisoVisible = std::move(aviso);
}

void Protegido(const std::function<void()>& accion)
{
    try {
        accion();
    } catch (const std::exception& e) {
        AvisoFalloEjecucion(e);
    }
}
}

namespace ProcesoSeam {
void grabar(bool activo)
{
    g_grabando = activo;
    g_avisos.clear();
    g_finales = 0;
    g_ultimoCodigo = 0;
}
bool grabando() { return g_grabando; }
const QList<Aviso>& avisos() { return g_avisos; }
int finales() { return g_finales; }
int ultimoCodigo() { return g_ultimoCodigo; }
}
