#include "actualizacion/ActualizacionOnline.h"

#include "actualizacion/FrmSinConexion.h"
#include "actualizacion/FrmVersionCheck.h"
#include "actualizacion/cActOnline.h"

#include "app/plataforma/General.h"
#include "app/plataforma/Reloj.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QWidget>

namespace {

// A check started while another one waits (a second click during the wait) does nothing.
bool g_comprobando = false;

// Gives a freshly shown window a second to paint before the download blocks.
void esperarUnSegundo()
{
    constexpr int unSegundo = 1000;
    Reloj::EsperarHasta(QDeadlineTimer(unSegundo), unSegundo);
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

QString RutaVersionIni()
{
    return CarpetaPrograma() + QStringLiteral("/version.ini");
}

QString TituloPrograma()
{
    return QStringLiteral("Veldoria");
}

int DescargarVersionIni()
{
    try {
        const QString ruta = RutaVersionIni();
        const QFileInfo existente(ruta);
        if ((existente.exists() || existente.isSymLink()) && !QFile::remove(ruta))
            return SitActualizacion::FicheroErroneo;
        const QString url = ActOnline().URLAct + QStringLiteral("?Programa=") + TituloPrograma()
                            + QStringLiteral("&idioma=")
                            + (OffsetIdioma == 10000 ? QStringLiteral("e") : QStringLiteral("c"));
        return DescargarFichero(url, ruta);
    } catch (...) {
        return SitActualizacion::FicheroErroneo;
    }
}

int LeerVersionIni()
{
    try {
        cActOnline& act = ActOnline();
        const QString ruta = RutaVersionIni();
        const QStringList partes = LeerClaveIni(QStringLiteral("informacion"),
                                                QStringLiteral("currentversion"), ruta)
                                       .trimmed()
                                       .split(QLatin1Char('.'));
        if (partes.size() < 3)
            return SitActualizacion::FicheroErroneo;
        act.ActVer1 = partes.at(0);
        act.ActVer2 = partes.at(1);
        act.ActVer3 = partes.at(2);
        act.ActDownloadURL =
            LeerClaveIni(QStringLiteral("informacion"), QStringLiteral("downloadurl"), ruta).trimmed();
        act.ActDescripcion =
            LeerClaveIni(QStringLiteral("informacion"), QStringLiteral("descripcion"), ruta).trimmed();
        // A difference, not a higher number: an older version offered is offered all the same.
        if (act.ActVer1.trimmed() != act.ProgVer1.trimmed()
            || act.ActVer2.trimmed() != act.ProgVer2.trimmed()
            || act.ActVer3.trimmed() != act.ProgVer3.trimmed())
            act.ComVer = 1;
        return SitActualizacion::FicheroLeido;
    } catch (...) {
        return SitActualizacion::FicheroErroneo;
    }
}

void ComprobarActualizacion()
{
    if (g_comprobando)
        return;
    g_comprobando = true;
    struct Fin {
        ~Fin() { g_comprobando = false; }
    } fin;

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
