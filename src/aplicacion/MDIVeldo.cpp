#include "aplicacion/MDIVeldo.h"

#include "aplicacion/Arranque.h"
#include "aplicacion/FrmIdioma.h"
#include "aplicacion/frmAbout.h"
#include "aplicacion/frmPreferencias.h"
#include "aplicacion/Ayuda.h"
#include "aplicacion/CopiaSeguridad.h"
#include "aplicacion/Navegacion.h"
#include "aplicacion/TraduccionesQt.h"
#include "catalogo/IdsCatalogo.h"
#include "registros/actualizacion/cActOnline.h"
#include "registros/nucleo/CEntrada.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "plataforma/Proceso.h"
#include "paneles/dialogos/MostrarVeredicto.h"
#include "paneles/dialogos/Navegador.h"
#include "paneles/dialogos/Ventanas.h"
#include "paneles/controles/SalidaAntesDeOrden.h"
#include "catalogo/Catalogo.h"
#include "registros/declaracion/cDecDatos.h"
#include "servicios/cMiscelaneos.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMap>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QStyle>
#include <QToolBar>
#include <functional>

namespace {
MDIVeldo* g_ventana = nullptr;

// Menu entries and their caption ids.
struct Rotulo {
    const char* nombre;
    int id;
};
constexpr Rotulo kRotulos[] = {
    {"mnuDeclaracion", kIdMenuDeclaracion}, {"mnuNuevaDeclaracion", kIdMenuNuevaDeclaracion},
    {"mnuAbrirDeclaracion", kIdMenuAbrirDeclaracion},
    {"mnuEliminarDeclaracion", kIdMenuEliminarDeclaracion}, {"separa2", kIdMenuSeparador},
    {"d1", kIdMarcadorD1}, {"d2", kIdMarcadorD2}, {"d3", kIdMarcadorD3},
    {"d4", kIdMarcadorD4}, {"sepa2", kIdMenuSeparador}, {"mnuSalir", kIdMenuSalir},
    {"mnuContribuyente", kIdMenuContribuyente},
    {"mnuNuevoContribuyente", kIdMenuNuevoContribuyente},
    {"mnuAbrirContribuyente", kIdMenuAbrirContribuyente},
    {"mnuEliminarContribuyente", kIdMenuEliminarContribuyente},
    {"mnuPresentador", kIdMenuPresentador}, {"mnuNuevoPresentador", kIdMenuNuevoPresentador},
    {"mnuAbrirPresentador", kIdMenuAbrirPresentador},
    {"mnuEliminarPresentador", kIdMenuEliminarPresentador}, {"mnuUtilidades", kIdMenuUtilidades},
    {"mnuExport", kIdMenuExportarContribuyentes}, {"mnuImport", kIdMenuImportarContribuyentes},
    {"mnuBackup", kIdCrearCopiaSeguridad}, {"mnuRestore", kIdRestaurarCopiaSeguridad},
    {"mnuPreferencias", kIdMenuPreferencias}, {"mnuAsistenciaOnline", kIdAsistenciaOnline},
    {"mnuDescripAsisOnline", kIdDescripcionServicio},
    {"mnuAsisOnline", kIdAsistenciaOnline}, {"mnuAyuda", kIdMenuAyuda},
    {"mnucontind", kIdMenuContenidoIndice}, {"mnuacerca", kIdMenuAcercaDe},
};

// Toolbar buttons: tag, tool tip id, icon.
struct Boton {
    const char* etiqueta;
    int idTip;
    QStyle::StandardPixmap icono;
};
constexpr Boton kBotones[] = {
    {"nuedec", kIdNuevaDeclaracion, QStyle::SP_FileIcon},
    {"abrdec", kIdAbrirDeclaracion, QStyle::SP_DialogOpenButton},
    {"elidec", kIdEliminarDeclaracion, QStyle::SP_TrashIcon},
    {"ayu", kIdAyuda, QStyle::SP_DialogHelpButton},
    {"salir", kIdSalirAplicacion, QStyle::SP_DialogCloseButton},
};
}

MDIVeldo* VentanaMDI() { return g_ventana; }
void EstablecerVentanaMDI(MDIVeldo* ventana) { g_ventana = ventana; }

MDIVeldo::MDIVeldo(QWidget* parent) : QMainWindow(parent)
{
    setObjectName(QStringLiteral("MDIVeldo"));
    m_area = new QMdiArea(this);
    m_area->setObjectName(QStringLiteral("areaMDI"));
    m_area->setBackground(QColor(0x80, 0x80, 0x80));
    setCentralWidget(m_area);
    construirMenus();
    construirBarra();
    conectarComandos();
    resize(1024, 720);
    EstablecerVentanaMDI(this);
    Ventanas::instalar({[this](QWidget* panel) { AbrirPanel(panel); }, [this] { return this; }});
    // The access keys of the panels' buttons leave the field being typed in before they act.
    SalidaAntesDeOrden::Instalar();
    // When loaded: captions, and the first activation still to come.
    Anadir_captions();
    primeraVez = true;
}

MDIVeldo::~MDIVeldo()
{
    if (g_ventana == this) {
        g_ventana = nullptr;
        Ventanas::instalar({});
    }
}

QAction* MDIVeldo::accion(QMenu* menu, const char* nombre)
{
    auto* a = menu->addAction(QString::fromLatin1(nombre));
    a->setObjectName(QString::fromLatin1(nombre));
    return a;
}

QAction* MDIVeldo::separador(QMenu* menu, const char* nombre)
{
    QAction* a = menu->addSeparator();
    a->setObjectName(QString::fromLatin1(nombre));
    return a;
}

void MDIVeldo::construirMenus()
{
    auto menu = [this](const char* nombre) {
        QMenu* m = menuBar()->addMenu(QString::fromLatin1(nombre));
        m->setObjectName(QString::fromLatin1(nombre));
        m->menuAction()->setObjectName(QString::fromLatin1(nombre));
        connect(m, &QMenu::aboutToShow, this, [this, m] { alDesplegar(m); });
        return m;
    };
    QMenu* dec = menu("mnuDeclaracion");
    accion(dec, "mnuNuevaDeclaracion");
    accion(dec, "mnuAbrirDeclaracion");
    accion(dec, "mnuEliminarDeclaracion");
    separador(dec, "separa2");
    for (const char* d : {"d1", "d2", "d3", "d4"}) {
        QAction* a = accion(dec, d);
        a->setVisible(false);
        m_recientes.append(a);
    }
    separador(dec, "sepa2");
    accion(dec, "mnuSalir");

    QMenu* con = menu("mnuContribuyente");
    accion(con, "mnuNuevoContribuyente");
    accion(con, "mnuAbrirContribuyente");
    accion(con, "mnuEliminarContribuyente");

    QMenu* pre = menu("mnuPresentador");
    accion(pre, "mnuNuevoPresentador");
    accion(pre, "mnuAbrirPresentador");
    accion(pre, "mnuEliminarPresentador");

    QMenu* uti = menu("mnuUtilidades");
    accion(uti, "mnuExport");
    accion(uti, "mnuImport");
    separador(uti, "separador");
    accion(uti, "mnuBackup");
    accion(uti, "mnuRestore");
    separador(uti, "separa0");
    accion(uti, "mnuPreferencias");

    QMenu* asis = menu("mnuAsistenciaOnline");
    accion(asis, "mnuDescripAsisOnline");
    accion(asis, "mnuAsisOnline");

    QMenu* ayu = menu("mnuAyuda");
    accion(ayu, "mnucontind");
    accion(ayu, "mnuacerca");
}

void MDIVeldo::construirBarra()
{
    m_barra = addToolBar(QStringLiteral("Toolbar1"));
    m_barra->setObjectName(QStringLiteral("Toolbar1"));
    m_barra->setMovable(false);
    for (const Boton& b : kBotones) {
        QAction* a = m_barra->addAction(style()->standardIcon(b.icono), QString());
        a->setObjectName(QStringLiteral("Toolbar1_") + QString::fromLatin1(b.etiqueta));
        a->setData(QString::fromLatin1(b.etiqueta));
        connect(a, &QAction::triggered, this, [this, a] { botonBarra(a->data().toString()); });
        m_botones.append(a);
    }
}

void MDIVeldo::conectarComandos()
{
    // The lists open afresh, to open or to delete.
    using Navegacion::EntradaLista;
    auto al = [this](const char* nombre, std::function<void()> hacer) {
        QAction* a = findChild<QAction*>(QString::fromLatin1(nombre));
        m_comandos.insert(QString::fromLatin1(nombre), hacer);
        connect(a, &QAction::triggered, this, [hacer = std::move(hacer)] {
            Proceso::Protegido(hacer);
        });
    };
    al("mnuNuevaDeclaracion", [] { Navegacion::NuevaDeclaracion(); });
    al("mnuAbrirDeclaracion", [] { Navegacion::AbrirDecLista(EntradaLista::Abrir); });
    al("mnuEliminarDeclaracion", [] { Navegacion::AbrirDecLista(EntradaLista::Eliminar); });
    for (QAction* d : m_recientes)
        al(qPrintable(d->objectName()), [this, d] { abrirDeclaracionReciente(d); });
    al("mnuSalir", [] { Proceso::Terminar(0); });
    al("mnuNuevoContribuyente", [] { Navegacion::NuevoContribuyente(); });
    al("mnuAbrirContribuyente", [] { Navegacion::AbrirConLista(EntradaLista::Abrir); });
    al("mnuEliminarContribuyente", [] { Navegacion::AbrirConLista(EntradaLista::Eliminar); });
    al("mnuNuevoPresentador", [] { Navegacion::NuevoPresentador(); });
    al("mnuAbrirPresentador", [] { Navegacion::AbrirPreLista(EntradaLista::Abrir); });
    al("mnuEliminarPresentador", [] { Navegacion::AbrirPreLista(EntradaLista::Eliminar); });
    al("mnuExport", [] { Navegacion::AbrirExportar(); });
    al("mnuImport", [] { Navegacion::AbrirImportar(); });
    al("mnuBackup", [this] { copiaDeSeguridad(); });
    al("mnuRestore", [this] { restaurarCopia(); });
    al("mnuPreferencias", [this] { preferencias(); });
    al("mnucontind", [this] { MostrarAyudaHtml(TextoSegunIdioma("cap.html", "kap.html"), this); });
    al("mnuacerca", [this] { acercaDe(); });
    al("mnuAsisOnline", [this] { asistenciaOnline(); });
    al("mnuDescripAsisOnline", [this] { descripcionAsistencia(); });
}

void MDIVeldo::abrirDeclaracionReciente(QAction* entrada)
{
    Navegacion::AbrirDeclaracionReciente(entrada->data().toInt());
}

void MDIVeldo::botonBarra(const QString& etiqueta)
{
    static const QMap<QString, const char*> mismaAccion = {
        {QStringLiteral("nuedec"), "mnuNuevaDeclaracion"},
        {QStringLiteral("abrdec"), "mnuAbrirDeclaracion"},
        {QStringLiteral("elidec"), "mnuEliminarDeclaracion"},
        {QStringLiteral("ayu"), "mnucontind"},
        {QStringLiteral("salir"), "mnuSalir"},
    };
    // The button runs its menu entry's command itself: the entry is switched on or off only as
    // its menu drops down, so it may still be off from an earlier count (the menu looked at
    // before the first return was saved), and an entry that is off ignores trigger().
    if (const char* nombre = mismaAccion.value(etiqueta))
        Proceso::Protegido(m_comandos.value(QString::fromLatin1(nombre)));
}

void MDIVeldo::Anadir_captions()
{
    CargarTraduccionesQt();
    setWindowTitle(Texto(kIdVeldoria));
    for (const Rotulo& r : kRotulos) {
        const QString nombre = QString::fromLatin1(r.nombre);
        if (auto* m = findChild<QMenu*>(nombre)) {
            m->setTitle(Texto(r.id));
            continue;
        }
        if (auto* a = findChild<QAction*>(nombre); a && !a->isSeparator())
            a->setText(Texto(r.id));
    }
    for (int i = 0; i < m_botones.size(); ++i)
        m_botones[i]->setToolTip(Texto(kBotones[i].idTip));
}

void MDIVeldo::ActualizarMenus()
{
    Entrada().InicializarContadores();
    for (const char* m : {"mnuDeclaracion", "mnuContribuyente", "mnuPresentador", "mnuUtilidades"})
        findChild<QMenu*>(QString::fromLatin1(m))->menuAction()->setEnabled(true);
    findChild<QAction*>(QStringLiteral("mnuacerca"))->setEnabled(true);
    m_botones[4]->setEnabled(true);
    m_botones[3]->setEnabled(true);
    // Entries of returns the store no longer holds (after a restore of an older copy) go.
    for (QAction* d : m_recientes)
        d->setVisible(false);
    if (Entrada().NUMDECLA < 1) {
        m_botones[1]->setEnabled(false);
        m_botones[2]->setEnabled(false);
    } else {
        const QList<UltimaDeclaracion> ultimas = DecDatos().ObtenerUltimasDeclaraciones();
        m_botones[1]->setEnabled(true);
        m_botones[2]->setEnabled(true);
        const int mostradas = qMin<int>(Entrada().NUMDECLA, 4);
        for (int i = 0; i < mostradas && i < ultimas.size(); ++i) {
            QAction* d = m_recientes[i];
            d->setVisible(true);
            d->setText(QString::number(ultimas[i].CSDE) + QStringLiteral(" - ")
                       + ultimas[i].descripcion);
            d->setData(ultimas[i].CSDE);
        }
    }
    m_botones[0]->setEnabled(true);
}

void MDIVeldo::DeshabilitarMenus()
{
    for (const char* m : {"mnuDeclaracion", "mnuPresentador", "mnuContribuyente", "mnuUtilidades"})
        findChild<QMenu*>(QString::fromLatin1(m))->menuAction()->setEnabled(false);
    findChild<QAction*>(QStringLiteral("mnuacerca"))->setEnabled(false);
    for (int i : {0, 1, 2, 4})
        m_botones[i]->setEnabled(false);
    for (QAction* d : m_recientes)
        d->setVisible(false);
}

void MDIVeldo::alDesplegar(QMenu* menu)
{
    auto poner = [this](const char* nombre, bool activo) {
        findChild<QAction*>(QString::fromLatin1(nombre))->setEnabled(activo);
    };
    const QString nombre = menu->objectName();
    if (nombre == QLatin1String("mnuDeclaracion")) {
        poner("mnuAbrirDeclaracion", Entrada().NUMDECLA >= 1);
        poner("mnuEliminarDeclaracion", Entrada().NUMDECLA >= 1);
    } else if (nombre == QLatin1String("mnuContribuyente")) {
        poner("mnuAbrirContribuyente", Entrada().NUMCONTRI >= 1);
        poner("mnuEliminarContribuyente", Entrada().NUMCONTRI >= 1);
    } else if (nombre == QLatin1String("mnuPresentador")) {
        poner("mnuAbrirPresentador", Entrada().NUMPRESEN >= 1);
        poner("mnuEliminarPresentador", Entrada().NUMPRESEN >= 1);
    } else if (nombre == QLatin1String("mnuUtilidades")) {
        poner("mnuExport", Entrada().NUMCONTRI >= 1);
    }
}

void MDIVeldo::AbrirPanel(QWidget* panel)
{
    QMdiSubWindow* sub = m_area->addSubWindow(panel);
    sub->setAttribute(Qt::WA_DeleteOnClose);
    sub->setWindowTitle(panel->windowTitle());
    sub->setObjectName(QStringLiteral("sub_") + panel->objectName());
    sub->show();
    panel->setFocus();
}

bool MDIVeldo::event(QEvent* e)
{
    if (e->type() == QEvent::WindowActivate && primeraVez) {
        primeraVez = false;
        // Queued, so that the window finishes showing before the modal chooser opens.
        QMetaObject::invokeMethod(this, [this] { Proceso::Protegido([this] { primeraActivacion(); }); },
                                  Qt::QueuedConnection);
    }
    return QMainWindow::event(e);
}

void MDIVeldo::primeraActivacion()
{
    if (ActOnline().ActOnline < 0) {
        FrmIdioma idioma(this);
        idioma.exec();
    }
    ActualizarMenus();
}

void MDIVeldo::closeEvent(QCloseEvent* e)
{
    // Every other window of the program is closed in turn, then the program ends.
    const QString propio = objectName();
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w != this && w->isVisible() && w->objectName() != propio)
            w->close();
    m_area->closeAllSubWindows();
    e->accept();
    Proceso::Terminar(0);
}

void MDIVeldo::copiaDeSeguridad()
{
    CopiaSeguridad copia = CopiaSeguridad::ParaBackup();
    copia.Parent = this;
    copia.CrearBackup();
}

void MDIVeldo::restaurarCopia()
{
    CopiaSeguridad copia = CopiaSeguridad::ParaRestore();
    copia.Parent = this;
    if (copia.CrearRestore()) {
        // The file may be of an older layout, and its language may differ.
        if (!Traspaso())
            return;
        InicializarAplicacion();
        Anadir_captions();
        ActualizarMenus();
    }
}

void MDIVeldo::asistenciaOnline()
{
    cMiscelaneos misc;
    misc.Idioma = OffsetIdioma();
    MostrarVeredicto(misc.AccesoAyuOnline(AbrirEnNavegador), this);
}

void MDIVeldo::descripcionAsistencia()
{
    cMiscelaneos misc;
    misc.Idioma = OffsetIdioma();
    MostrarVeredicto(misc.MostrarOnlineInfo(), this);
}

void MDIVeldo::acercaDe()
{
    frmAbout acerca(this);
    acerca.setWindowTitle(windowTitle());
    acerca.exec();
}

void MDIVeldo::preferencias()
{
    frmPreferencias prefs(this);
    prefs.exec();
}
