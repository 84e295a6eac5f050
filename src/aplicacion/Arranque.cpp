#include "aplicacion/Arranque.h"

#include "aplicacion/AvisoAlmacen.h"
#include "aplicacion/PreferenciaOficina.h"
#include "paneles/dialogos/Mensaje.h"

#include "paneles/actualizacion/ActualizacionOnline.h"
#include "registros/actualizacion/cActOnline.h"
#include "aplicacion/MDIVeldo.h"
#include "aplicacion/frmVeldoInicio.h"
#include "registros/nucleo/CEntrada.h"
#include "plataforma/Fallo.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "plataforma/Proceso.h"
#include "valores/cFecha.h"
#include "servicios/Almacen.h"
#include "servicios/MotorAlmacenes.h"
#include "servicios/Oficina.h"
#include "servicios/RevisionAlmacen.h"
#include "servicios/cSaveAsRestore.h"
#include "servicios/cTraspaso.h"

#include <QApplication>
#include <QSystemSemaphore>
#include <cstdio>
#include <new>
#include <system_error>
#include <memory>

namespace {
// The status of a program that ends at start-up because its database cannot be used.
constexpr int kSinAlmacen = 2;

// The source of a failure of the migration that is not of the program's own kind.
const QString kComponenteTraspaso = QStringLiteral("svrVeldoV1.cTraspaso");

// Marks a running instance. Nothing examines it and a second instance is not refused.
void CrearMutex()
{
    static const auto marca = std::make_unique<QSystemSemaphore>(QStringLiteral("Veldoria"), 1,
                                                                 QSystemSemaphore::Open);
    Q_UNUSED(marca);
}

// The program cannot work on its stores: the user is told why and what to do, on the screen
// and on the standard error (read where no window can be seen), and the program ends with a
// status that says it did not run.
void terminarSinAlmacen(const QString& aviso)
{
    std::fprintf(stderr, "%s\n", qPrintable(aviso));
    std::fflush(stderr);
    Mensaje(aviso, vb::Critical, QStringLiteral("Veldoria"));
    Proceso::Terminar(kSinAlmacen);
}

std::unique_ptr<RevisionAlmacen::Sesion>& sesion()
{
    static std::unique_ptr<RevisionAlmacen::Sesion> abierta;
    return abierta;
}

QString& rutaDeSesion()
{
    static QString ruta;
    return ruta;
}
}

QString PrepararAlmacenes()
{
    if (const QString aviso = AvisoMotorAlmacenes(); !aviso.isEmpty())
        return aviso;
    if (!RevisionAlmacen::ReferenciaLegible(mdblec))
        return TextoReferencia(mdblec);
    if (EnOficina())
        return Oficina::Comprobar(mdbmod).mensaje;
    const auto traspaso = Almacen<cTraspaso>();
    if (traspaso.Traspaso())
        return TextoImpedimento(traspaso.Comprobar(), traspaso.Ruta());
    return {};
}

bool EnOficina()
{
    return MotorDeLosAlmacenesElegido() == MotorElegido::Servidor;
}

void AbrirSesionAlmacen()
{
    // The marks of an unclean end are files beside the store's file; a server has no such
    // file, and keeps its own data whole.
    if (EnOficina())
        return;
    if (sesion() && rutaDeSesion() == mdbmod)
        return;
    static const bool registrada = [] {
        Proceso::AlTerminarBien([] { sesion().reset(); });
        return true;
    }();
    Q_UNUSED(registrada);
    sesion().reset();
    sesion() = std::make_unique<RevisionAlmacen::Sesion>(mdbmod);
    rutaDeSesion() = mdbmod;
}

void ConfigurarRutas(const QString& carpetaPrograma)
{
    ConfigurarRutas(carpetaPrograma, carpetaPrograma);
}

void ConfigurarRutas(const QString& carpetaPrograma, const QString& carpetaDatos)
{
    const QString tablasPrograma = TablasDelPrograma(carpetaPrograma);
    // Data kept beside the program follows the "cliente" rule as the reference database does;
    // the user's own folder is taken as it is (a home such as /home/clientes must not be cut).
    mdbPath = carpetaDatos == carpetaPrograma ? tablasPrograma
                                               : carpetaDatos + QStringLiteral("/Tablas/");
    mdbmod = mdbPath + QStringLiteral("VELDOMOD.mdb");
    // An office's store is its server, named on the command line or kept as this user's choice;
    // the backups and exchange files stay in the data folder.
    PreferenciaOficina::Aplicar();
    if (const QString oficina = OficinaElegida(); !oficina.isEmpty())
        mdbmod = oficina;
    mdblec = tablasPrograma + QStringLiteral("VELDOLEC.mdb");
}

bool Traspaso()
{
    // On an office's server the seat checks the layout and changes nothing: the office's
    // administrator makes and updates it (--crear-oficina).
    if (EnOficina()) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        const Veredicto aviso = Oficina::Comprobar(mdbmod);
        QApplication::restoreOverrideCursor();
        if (!aviso.vacio()) {
            terminarSinAlmacen(aviso.mensaje);
            return false;
        }
        return true;
    }
    QApplication::setOverrideCursor(Qt::WaitCursor);
    auto traspaso = Almacen<cTraspaso>();
    bool parar = false;
    try {
        parar = traspaso.Traspaso();
    } catch (const cFallo& f) {
        // The hourglass stays: the failure ends the program.
        throw f.relanzadoDesde(QStringLiteral("MDIVeldo.Traspaso"));
    } catch (const std::bad_alloc&) {
        throw cFallo(7, kComponenteTraspaso, QStringLiteral("Memoria insuficiente"))
            .relanzadoDesde(QStringLiteral("MDIVeldo.Traspaso"));
    } catch (const std::system_error& e) {
        throw cFallo(e.code().value(), kComponenteTraspaso, QString::fromLocal8Bit(e.what()))
            .relanzadoDesde(QStringLiteral("MDIVeldo.Traspaso"));
    } catch (const std::exception& e) {
        throw cFallo(5, kComponenteTraspaso, QString::fromLocal8Bit(e.what()))
            .relanzadoDesde(QStringLiteral("MDIVeldo.Traspaso"));
    } catch (...) {
        // Whatever else the migration raised ends the program the same way, with its source.
        throw cFallo(5, kComponenteTraspaso, QStringLiteral("Error desconocido en la migración"))
            .relanzadoDesde(QStringLiteral("MDIVeldo.Traspaso"));
    }
    QApplication::restoreOverrideCursor();
    if (parar) {
        terminarSinAlmacen(TextoImpedimento(traspaso.Comprobar(), traspaso.Ruta()));
        return false;
    }
    AbrirSesionAlmacen();
    return true;
}

void InicializarAplicacion()
{
    Entrada().InicializarContadores();
    Entrada().LeerFechaMinimaMaxima();
    ActOnline().ObtenerURLAct();
    Entrada().LeerIdioma();
    ActOnline().LeerActOnline();
}

bool Main()
{
    CrearMutex();
    ObtenerVersionPrograma();
    ConfigurarRutas(CarpetaPrograma(), CarpetaDatos());
    // Temporary copies left by a copy of the program that ended half-way through a backup or
    // a restore (those of a copy still running are kept).
    cSaveAsRestore::LimpiarTemporales(mdbPath);
    cSaveAsRestore::LimpiarTemporales(CarpetaDatos() + QStringLiteral("/backups/"));
    // The stores' engine must be usable (for SQLite: the library the stores call directly is
    // the one behind Qt's driver).
    if (const QString aviso = AvisoMotorAlmacenes(); !aviso.isEmpty()) {
        terminarSinAlmacen(aviso);
        return false;
    }
    // The reference database is read all along; without it nothing can be shown.
    if (!RevisionAlmacen::ReferenciaLegible(mdblec)) {
        terminarSinAlmacen(TextoReferencia(mdblec));
        return false;
    }
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
