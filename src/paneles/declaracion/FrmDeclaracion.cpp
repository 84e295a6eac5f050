// The declaration form as a frame of blocks: the frames, the blocks made in them, the buttons,
// the captions, the tab order, the connections and the opening. What joins the blocks lives
// in CamposDeclaracion.cpp, the parties' tabs and mirror in PartesDeclaracion.cpp, the drawing
// in PresentarDeclaracion.cpp and the buttons in BotonesDeclaracion.cpp.
#include "paneles/declaracion/FrmDeclaracion.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "paneles/controles/EnterComoTab.h"
#include "paneles/declaracion/BloqueImportes.h"
#include "paneles/declaracion/BloquePresentador.h"
#include "paneles/declaracion/BloqueSujeto.h"
#include "paneles/declaracion/BloqueTransmitente.h"
#include "paneles/declaracion/BloqueVehiculo.h"
#include "paneles/declaracion/PiezasDeclaracion.h"
#include "paneles/dialogos/Ventanas.h"
#include "paneles/partes/BloqueDomicilio.h"
#include "paneles/partes/CamposDatos.h"
#include "paneles/partes/SalidaCampos.h"
#include "plataforma/General.h"
#include "plataforma/Proceso.h"
#include "registros/declaracion/cDecDatos.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStackedLayout>
#include <QTabBar>
#include <QVBoxLayout>

using PiezasDeclaracion::Boton;
using PiezasDeclaracion::Marco;

FrmDeclaracion* FrmDeclaracion::Abrir(Navegacion::RutaDeclaracion& ruta)
{
    auto* panel = new FrmDeclaracion(ruta);
    panel->Iniciar();
    AbrirPanel(panel);
    panel->m_vehiculo->CampoInicial()->setFocus(Qt::OtherFocusReason);
    return panel;
}

FrmDeclaracion::FrmDeclaracion(Navegacion::RutaDeclaracion& ruta, QWidget* parent)
    : PanelNavegado(parent), m_ruta(ruta)
{
    setObjectName(QStringLiteral("FrmDeclaracion"));
    setAttribute(Qt::WA_DeleteOnClose);
    Construir();
    OrdenDeTabulacion();
    Conectar();
}

// ----- Construction -----

void FrmDeclaracion::Construir()
{
    FraDeclaracion = Marco(this, "FraDeclaracion");
    FraPresentador = Marco(this, "FraPresentador");
    tabTerceros = new QTabBar(this);
    tabTerceros->setObjectName(QStringLiteral("tabTerceros"));
    tabTerceros->addTab(QString());
    tabTerceros->addTab(QString());
    tabTerceros->setFocusPolicy(Qt::NoFocus);
    FraSujetoPasivo = Marco(this, "FraSujetoPasivo");
    FraTransmitente = Marco(this, "FraTransmitente");
    fraBotones = new QFrame(this);
    fraBotones->setObjectName(QStringLiteral("fraBotones"));
    cDecDatos& registro = DecDatos();
    m_vehiculo = new BloqueVehiculo(this, FraDeclaracion, registro);
    m_importes = new BloqueImportes(this, FraDeclaracion, registro);
    m_presentador = new BloquePresentador(this, FraPresentador, registro);
    m_sujeto = new BloqueSujeto(this, FraSujetoPasivo, registro);
    m_transmitente = new BloqueTransmitente(this, FraTransmitente, registro);
    ConstruirBotones();
    Disponer();
    // The pickers lie over the panel, made after every other widget, and switch off the
    // frames and the tab strip while open.
    const QList<QWidget*> marcos = {tabTerceros, FraPresentador, FraDeclaracion,
                                    FraSujetoPasivo, FraTransmitente, fraBotones};
    m_sujeto->Domicilio()->CrearSelectores(marcos);
    m_transmitente->Domicilio()->CrearSelectores(marcos);
    RetenerFocoAlPulsar(this);
}

QList<BloqueDeclaracion*> FrmDeclaracion::Bloques() const
{
    return {m_vehiculo, m_importes, m_presentador, m_sujeto, m_transmitente};
}

bool FrmDeclaracion::SelectorAbierto() const
{
    return m_sujeto->Domicilio()->SelectorAbierto()
        || m_transmitente->Domicilio()->SelectorAbierto();
}

void FrmDeclaracion::ConstruirBotones()
{
    cmdAceptar = Boton(fraBotones, "cmdAceptar");
    cmdCancelar = Boton(fraBotones, "cmdCancelar");
    cmdImprimir = Boton(fraBotones, "cmdImprimir");
    auto* linea = new QHBoxLayout(fraBotones);
    linea->addStretch();
    for (QPushButton* b : {cmdAceptar, cmdCancelar, cmdImprimir})
        linea->addWidget(b);
    linea->addStretch();
}

void FrmDeclaracion::Disponer()
{
    auto* lineas = new QVBoxLayout(FraDeclaracion);
    m_vehiculo->Disponer(lineas);
    m_importes->Disponer(lineas);
    m_presentador->Disponer(new QVBoxLayout(FraPresentador));
    auto* sp = new QVBoxLayout(FraSujetoPasivo);
    m_sujeto->Disponer(sp);
    auto* tr = new QVBoxLayout(FraTransmitente);
    m_transmitente->Disponer(tr);

    // The two parties' frames share one place, as tall as the taller of them, so that the
    // panel keeps one layout whichever tab is shown.
    for (QVBoxLayout* parte : {sp, tr})
        parte->addStretch();
    auto* terceros = new QWidget(this);
    m_pilaTerceros = new QStackedLayout(terceros);
    m_pilaTerceros->setContentsMargins(0, 0, 0, 0);
    m_pilaTerceros->addWidget(FraSujetoPasivo);
    m_pilaTerceros->addWidget(FraTransmitente);

    auto* todo = new QVBoxLayout(this);
    todo->addWidget(FraDeclaracion);
    todo->addWidget(FraPresentador);
    todo->addWidget(tabTerceros);
    todo->addWidget(terceros);
    todo->addWidget(fraBotones);
}

void FrmDeclaracion::OrdenDeTabulacion()
{
    // Date, operation, reference, vehicle, amounts, the presenter, the parties, the buttons.
    QList<QWidget*> orden;
    for (const BloqueDeclaracion* bloque : Bloques())
        orden << bloque->OrdenDeTabulacion();
    orden << QList<QWidget*>{cmdAceptar, cmdCancelar, cmdImprimir};
    for (qsizetype i = 1; i < orden.size(); ++i)
        setTabOrder(orden[i - 1], orden[i]);
}

void FrmDeclaracion::Conectar()
{
    m_salidas = new SalidaCampos(this);
    m_salidas->setActivo([this] { return !m_cerrando && !SelectorAbierto(); });
    // The press, not the click, on Cancelar: it comes before the field is left. A press that
    // takes no focus from a field (none had it) raises the flag all the same (eventFilter).
    m_salidas->setBotonCancelar(cmdCancelar, [this] { m_saltarValidacion = true; });
    cmdCancelar->installEventFilter(this);
    auto* enter = new EnterComoTab(this);
    enter->setActivo([this] { return !SelectorAbierto(); });
    const EnlaceDeclaracion enlace = Enlace();
    for (BloqueDeclaracion* bloque : Bloques())
        bloque->Conectar(enlace);
    connect(cmdCancelar, &QPushButton::pressed, this, [this] { m_saltarValidacion = true; });
    // No question about unsaved changes: the record keeps what was written to it.
    connect(cmdCancelar, &QPushButton::clicked, this, [this] { Cerrar(); });
    connect(cmdAceptar, &QPushButton::clicked, this, [this] { Proceso::Protegido([this] { Aceptar(); }); });
    connect(cmdImprimir, &QPushButton::clicked, this,
            [this] { Proceso::Protegido([this] { Imprimir(); }); });
    // A tab chosen by the mouse or by its access key; a click on the tab already shown.
    connect(tabTerceros, &QTabBar::currentChanged, this, &FrmDeclaracion::CambioDePestana);
    connect(tabTerceros, &QTabBar::tabBarClicked, this, [this](int pestana) {
        if (pestana >= 0 && pestana == tabTerceros->currentIndex())
            ClicPestana(pestana);
    });
}

// ----- Captions -----

void FrmDeclaracion::Anadir_captions()
{
    setWindowTitle(Texto(kIdDatosDeclaracion));
    for (BloqueDeclaracion* bloque : Bloques())
        bloque->Anadir_captions();
    tabTerceros->setTabText(0, Texto(kIdBotonSujetoPasivo));
    tabTerceros->setTabText(1, Texto(kIdBotonTransmitente));
    cmdAceptar->setText(Texto(kIdBotonAceptar));
    cmdAceptar->setToolTip(Texto(kIdGrabarDeclaracion));
    cmdCancelar->setText(Texto(kIdBotonCancelar));
    cmdCancelar->setToolTip(Texto(kIdCancelar));
    cmdImprimir->setText(Texto(kIdBotonImprimir));
    cmdImprimir->setToolTip(Texto(kIdImprimirDeclaracionConsejo));
}

void FrmDeclaracion::FormatosFecha()
{
    m_vehiculo->FormatosFecha();
}

void FrmDeclaracion::FormatearImportes()
{
    m_importes->FormatearImportes();
}

// ----- Opening -----

void FrmDeclaracion::Iniciar()
{
    Anadir_captions();
    CargarListas();
    CargarDatosFormulario();
    PresentarDeclaracion();
    ActivarSelectores();
    m_saltarValidacion = false;
}

void FrmDeclaracion::CargarListas()
{
    m_sujeto->Domicilio()->CargarListas();
    m_transmitente->Domicilio()->CargarListas();
}

void FrmDeclaracion::CargarDatosFormulario()
{
    cDecDatos& d = DecDatos();
    FormatearImportes();
    FormatosFecha();
    using Navegacion::Entrada;
    using Navegacion::Modo;
    if (m_ruta.entrada == Entrada::Inicio) {
        d.MODIFICADO = false;
        m_ruta.criterio = Navegacion::Criterio::Olvidado;
        if (m_ruta.modo == Modo::Nuevo) {
            // A clean new return: the operations wait for a date.
            CargarNombres();
            return;
        }
        if (m_ruta.modo == Modo::Copia)
            d.MODIFICADO = true;
        d.CargarDeclaracion();
        SeleccionarOperacion();
        if (m_ruta.modo == Modo::Copia)
            d.CSDE = 0;  // a copy is saved as a new row
        CargarNombres();
        return;
    }
    if (m_ruta.entrada == Entrada::Sujeto) {
        d.CargarContribuyente(m_ruta.entrada);
        if (MismaParte())
            d.VolcarSpTR();
    } else if (m_ruta.entrada == Entrada::Transmitente) {
        d.CargarContribuyente(m_ruta.entrada);
        if (MismaParte())
            d.VolcarTrSp();
    }
    SeleccionarOperacion();
    CargarNombres();
}

void FrmDeclaracion::SeleccionarOperacion()
{
    m_vehiculo->SeleccionarOperacion();
}

void FrmDeclaracion::CargarNombres()
{
    m_sujeto->Domicilio()->CargarNombres(true);
    m_transmitente->Domicilio()->CargarNombres(true);
}

void FrmDeclaracion::showEvent(QShowEvent* evento)
{
    QWidget::showEvent(evento);
    if (m_activado)
        return;
    m_activado = true;
    // Back from choosing a transmitter: its tab comes up, the focus on the date.
    if (m_ruta.entrada == Navegacion::Entrada::Transmitente) {
        MostrarPestana(1);
        m_vehiculo->CampoInicial()->setFocus(Qt::OtherFocusReason);
    }
}
