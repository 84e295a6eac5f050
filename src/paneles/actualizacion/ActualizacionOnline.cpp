#include "paneles/actualizacion/ActualizacionOnline.h"

#include "paneles/actualizacion/FrmSinConexion.h"
#include "paneles/actualizacion/FrmVersionCheck.h"
#include "paneles/dialogos/MostrarVeredicto.h"
#include "registros/actualizacion/ActualizacionOnline.h"
#include "registros/actualizacion/cActOnline.h"

#include "plataforma/Estado.h"
#include "plataforma/General.h"
#include "plataforma/Reloj.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QWidget>

namespace {

// A check started while another one waits (a second click during the wait) does nothing.
struct ComprobacionEnCurso {
    bool activa = false;
};

// Gives a freshly shown window a second to paint before the download blocks.
void esperarUnSegundo()
{
    constexpr int unSegundo = 1000;
    Reloj::EsperarHasta(QDeadlineTimer(unSegundo));
}

// The user asked for the check from the preferences when that panel is on screen.
bool preferenciasVisibles()
{
    const QList<QWidget*> ventanas = QApplication::allWidgets();
    for (const QWidget* w : ventanas)
        if (w->objectName() == QLatin1String("frmPreferencias") && w->isVisible())
            return true;
    return false;
}

template <typename Panel>
void abrirModal()
{
    Panel panel(QApplication::activeWindow());
    panel.exec();
}

}  // namespace

void ObtenerVersionPrograma()
{
    MostrarVeredicto(LeerVersionPrograma());
}

void ComprobarActualizacion()
{
    bool& comprobando = Estado().de<ComprobacionEnCurso>().activa;
    if (comprobando)
        return;
    comprobando = true;
    struct Fin {
        bool& marca;
        ~Fin() { marca = false; }
    } fin{comprobando};

    cActOnline& act = ActOnline();
    esperarUnSegundo();
    const int descarga = DescargarVersionIni();
    if (descarga == SitActualizacion::FicheroErroneo)
        return;
    if (descarga == SitActualizacion::SinConexion) {
        act.SitAct = SitActualizacion::SinConexion;
        abrirModal<FrmSinConexion>();
        return;
    }
    if (LeerVersionIni() == SitActualizacion::FicheroErroneo) {
        act.SitAct = SitActualizacion::FicheroErroneo;
        abrirModal<FrmSinConexion>();
        return;
    }
    if (act.ComVer == 1 || preferenciasVisibles())
        abrirModal<FrmVersionCheck>();
    act.SitAct = SitActualizacion::FicheroLeido;
}
