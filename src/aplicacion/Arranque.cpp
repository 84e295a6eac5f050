#include "aplicacion/Arranque.h"

#include "paneles/actualizacion/ActualizacionOnline.h"
#include "registros/actualizacion/cActOnline.h"
#include "aplicacion/MDIVeldo.h"
#include "aplicacion/frmVeldoInicio.h"
#include "registros/nucleo/CEntrada.h"
#include "plataforma/Fallo.h"
#include "plataforma/General.h"
#include "plataforma/Proceso.h"
#include "valores/cFecha.h"
#include "servicios/Almacen.h"
#include "servicios/cTraspaso.h"

#include <QApplication>
#include <QSystemSemaphore>
#include <memory>

namespace {
// Marks a running instance. Nothing examines it and a second instance is not refused.
void CrearMutex()
{
    static const auto marca = std::make_unique<QSystemSemaphore>(QStringLiteral("Veldoria"), 1,
                                                                 QSystemSemaphore::Open);
    Q_UNUSED(marca);
}
}

void ConfigurarRutas(const QString& carpetaPrograma)
{
    QString base = carpetaPrograma;
    while (base.endsWith(QLatin1Char('/')) && base.size() > 1)
        base.chop(1);
    const int posicion = base.indexOf(QStringLiteral("cliente"), 0, Qt::CaseInsensitive);
    // Found: keep what stands before the "/" that precedes the word.
    if (posicion >= 0)
        base = base.left(qMax(0, posicion - 1));
    mdbPath = base + QStringLiteral("/Tablas/");
    mdbmod = mdbPath + QStringLiteral("VELDOMOD.mdb");
    mdblec = mdbPath + QStringLiteral("VELDOLEC.mdb");
}

bool Traspaso()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    bool parar = false;
    try {
        auto traspaso = Almacen<cTraspaso>();
        parar = traspaso.Traspaso();
    } catch (const cFallo& f) {
        // The hourglass stays: the failure ends the program.
        throw f.relanzadoDesde(QStringLiteral("MDIVeldo.Traspaso"));
    } catch (const std::exception& e) {
        throw cFallo(0, QStringLiteral("MDIVeldo.Traspaso"), QString::fromLocal8Bit(e.what()));
    }
    if (parar) {
        Proceso::Terminar(0);
        return false;
    }
    QApplication::restoreOverrideCursor();
    return true;
}

void InicializarAplicacion()
{
    Entrada().InicializarContadores();
    Entrada().LeerFechaMinimaMaxima();
    ActOnline().ObtenerURLAct();
    Entrada().LeerIdioma();
    ActOnline().LeerActOnline();
    OffsetIdioma = Entrada().IDI() == QLatin1String("E") ? 10000 : 0;
    Fecha().fecidioma = Entrada().IDI();
}

bool Main()
{
    CrearMutex();
    ObtenerVersionPrograma();
    ConfigurarRutas(CarpetaPrograma());
    if (!Traspaso())
        return false;
    InicializarAplicacion();
    {
        frmVeldoInicio inicio;
        inicio.Mostrar();
        inicio.close();
    }
    auto* principal = new MDIVeldo;
    principal->setAttribute(Qt::WA_DeleteOnClose);
    principal->show();
    // Ask for activation too: the first activation opens the chooser on the first run, also
    // where no window manager hands the focus over on its own.
    principal->activateWindow();
    return true;
}
