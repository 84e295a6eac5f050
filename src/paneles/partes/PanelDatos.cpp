#include "paneles/partes/PanelDatos.h"

#include "plataforma/Proceso.h"
#include "paneles/dialogos/AvisoVigencia.h"
#include "paneles/dialogos/Ventanas.h"
#include "paneles/controles/EnterComoTab.h"
#include "paneles/partes/BloqueDomicilio.h"
#include "paneles/partes/CamposDatos.h"
#include "paneles/partes/SalidaCampos.h"

#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QPushButton>

PanelDatos::PanelDatos(const QString& nombre, const Navegacion::RutaParte& ruta, QWidget* parent)
    : PanelNavegado(parent), m_ruta(ruta)
{
    setObjectName(nombre);
    setAttribute(Qt::WA_DeleteOnClose);
    fraDatos = new QFrame(this);
    fraDatos->setObjectName(QStringLiteral("fraDatos"));
    fraDatos->setFrameShape(QFrame::StyledPanel);
    fraBotones = new QFrame(this);
    fraBotones->setObjectName(QStringLiteral("fraBotones"));
}

void PanelDatos::Pie()
{
    BotonesDeDatos(this, fraDatos, fraBotones, cmdAceptar, cmdCancelar, PicAce, PicCan);
    m_domicilio->CrearSelectores({fraDatos, fraBotones});
    RetenerFocoAlPulsar(this);
}

void PanelDatos::ConectarPanel()
{
    m_salidas = new SalidaCampos(this);
    m_salidas->setActivo([this] { return !m_cerrando && !SelectorAbierto(); });
    m_salidas->setBotonCancelar(cmdCancelar, [this] { m_saltarValidacion = true; });

    // The press, not the click, on Cancelar: it comes before the field is left.
    connect(cmdCancelar, &QPushButton::pressed, this, [this] { m_saltarValidacion = true; });
    connect(cmdAceptar, &QPushButton::clicked, this, [this] { Proceso::Protegido([this] { Aceptar(); }); });
    // No question about unsaved changes: the record keeps what was written to it.
    connect(cmdCancelar, &QPushButton::clicked, this, [this] { Cerrar(); });

    auto* enter = new EnterComoTab(this);
    enter->setActivo([this] { return !SelectorAbierto(); });
}

bool PanelDatos::eventFilter(QObject* objeto, QEvent* evento)
{
    if (objeto == PicCan && evento->type() == QEvent::MouseButtonPress)
        m_saltarValidacion = true;
    return QWidget::eventFilter(objeto, evento);
}

bool PanelDatos::SelectorAbierto() const
{
    return m_domicilio && m_domicilio->SelectorAbierto();
}

void PanelDatos::CargarListas()
{
    m_domicilio->CargarListas();
}

void PanelDatos::Iniciar()
{
    Anadir_captions();
    CargarListas();
    CargarDatos();
    Redibujar();
    m_saltarValidacion = false;
    m_modificado = false;
}

void PanelDatos::Aceptar()
{
    if (SelectorAbierto())
        return;
    if (!ValidarCampos())
        return;
    if (m_modificado) {
        if (!Guardar())
            return;
        AnotarEnLista();
    }
    Cerrar();
}

void PanelDatos::TratarVigencia(Vigencia vigencia)
{
    if (!AvisarVigencia(vigencia, windowTitle()))
        return;
    CargarDatos();
    Redibujar();
    m_modificado = false;
}

void PanelDatos::Cerrar()
{
    m_cerrando = true;
    CerrarPanel(this);
}
