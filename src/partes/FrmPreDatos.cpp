#include "partes/FrmPreDatos.h"

#include "app/plataforma/Mensaje.h"
#include "app/plataforma/Proceso.h"
#include "app/plataforma/Ventanas.h"
#include "catalogue/Catalogo.h"
#include "fields/CajaNum.h"
#include "fields/EnterComoTab.h"
#include "fields/Formato.h"
#include "fields/Val.h"
#include "partes/BloqueDomicilio.h"
#include "partes/CamposDatos.h"
#include "partes/FrmPreLista.h"
#include "partes/SalidaCampos.h"
#include "partes/Selectores.h"
#include "partes/cPreDatos.h"
#include "partes/cPreLista.h"

#include <QCloseEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QVBoxLayout>
#include <memory>
#include <utility>

namespace {

const QString kProvinciaTesoreria = QStringLiteral("77");

}  // namespace

FrmPreDatos* FrmPreDatos::Abrir()
{
    auto panel = std::make_unique<FrmPreDatos>();
    panel->Iniciar();
    FrmPreDatos* abierto = panel.release();
    AbrirPanel(abierto);
    abierto->txtdnip->setFocus(Qt::OtherFocusReason);
    return abierto;
}

FrmPreDatos::FrmPreDatos(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("FrmPreDatos"));
    setAttribute(Qt::WA_DeleteOnClose);
    Construir();
    OrdenDeTabulacion();
    Conectar();
}

void FrmPreDatos::Construir()
{
    fraDatos = new QFrame(this);
    fraDatos->setObjectName(QStringLiteral("fraDatos"));
    fraDatos->setFrameShape(QFrame::StyledPanel);
    fraBotones = new QFrame(this);
    fraBotones->setObjectName(QStringLiteral("fraBotones"));

    QWidget* d = fraDatos;
    txtdnip = CampoTexto(d, "txtdnip", 9, TipoFiltro::Texto);
    txtnombrep = CampoTexto(d, "txtnombrep", 40, TipoFiltro::Texto);
    // A presenter is national: no typed province (its name is only ever looked up), and a
    // postal code of five digits always.
    cPreDatos& p = PreDatos();
    m_domicilio = new BloqueDomicilio(
        this, d, QStringLiteral("p"),
        {p.VIAP, p.DOMICILIOP, p.NUMEROP, p.LETRAP, p.ESCALERAP, p.PISOP, p.MANOP, p.CODPROVP,
         nullptr, p.CODPOSP, p.CODMUNP, p.NOMMUNP},
        MarcaCambios::AlSalir);
    m_domicilio->txtcodpos->setFormato(QStringLiteral("00000"));
    txttelefonop = CampoTexto(d, "txttelefonop", 9, TipoFiltro::Digitos);

    lbldnip = Etiqueta(d, "lbldnip");
    lblnombrep = Etiqueta(d, "lblnombrep");
    lbltelefonop = Etiqueta(d, "lbltelefonop");

    for (auto [campo, caracteres] :
         {std::pair<QWidget*, int>{txtdnip, 9}, {txtnombrep, 30}, {txttelefonop, 9}})
        AnchoDeCaracteres(campo, caracteres);
    m_domicilio->Anchos();
    auto* lineas = new QVBoxLayout(fraDatos);
    LineaDePanel(lineas, {lbldnip, txtdnip, lblnombrep, txtnombrep});
    m_domicilio->Lineas(lineas);
    LineaDePanel(lineas, {lbltelefonop, txttelefonop});

    BotonesDeDatos(this, fraDatos, fraBotones, cmdAceptar, cmdCancelar, PicAce, PicCan);
    m_domicilio->CrearSelectores({fraDatos, fraBotones});
    RetenerFocoAlPulsar(this);
}

void FrmPreDatos::OrdenDeTabulacion()
{
    QList<QWidget*> orden = {txtdnip, txtnombrep};
    orden << m_domicilio->OrdenDeTabulacion();
    // The street type's name stands last, after the buttons.
    orden.removeOne(m_domicilio->txtviaaux);
    orden << QList<QWidget*>{txttelefonop, cmdAceptar, cmdCancelar, m_domicilio->txtviaaux};
    for (qsizetype i = 1; i < orden.size(); ++i)
        setTabOrder(orden[i - 1], orden[i]);
}

void FrmPreDatos::Conectar()
{
    m_salidas = new SalidaCampos(this);
    m_salidas->setActivo([this] { return !m_cerrando && !SelectorAbierto(); });
    m_salidas->setBotonCancelar(cmdCancelar, [this] { m_saltarValidacion = true; });
    // No handler of typed text: a presenter changes only when a field is left with a text
    // other than the record's, so that a value typed and changed back is no change.
    m_domicilio->Conectar({m_salidas, [this] { Redibujar(); }, [this] { m_modificado = true; },
                           [this] { return m_saltarValidacion; }, txttelefonop});
    auto& p = PreDatos();
    m_domicilio->VigilarTexto(txtdnip, p.DNIP);
    m_domicilio->VigilarTexto(txtnombrep, p.NOMBREP);
    m_domicilio->VigilarTexto(txttelefonop, p.TELEFONOP);

    // The press, not the click, on Cancelar: it comes before the field is left.
    connect(cmdCancelar, &QPushButton::pressed, this, [this] { m_saltarValidacion = true; });
    connect(cmdAceptar, &QPushButton::clicked, this, [this] { Proceso::Protegido([this] { Aceptar(); }); });
    connect(cmdCancelar, &QPushButton::clicked, this, [this] { Cancelar(); });

    auto* enter = new EnterComoTab(this);
    enter->setActivo([this] { return !SelectorAbierto(); });
}

bool FrmPreDatos::eventFilter(QObject* objeto, QEvent* evento)
{
    if (objeto == PicCan && evento->type() == QEvent::MouseButtonPress)
        m_saltarValidacion = true;
    return QWidget::eventFilter(objeto, evento);
}

// ----- Opening -----

void FrmPreDatos::Iniciar()
{
    Anadir_captions();
    DeshabilitarMenus();
    CargarListas();
    CargarDatosPresentador();
    PresentarPresentador();
    ActivarSelectores();
    m_saltarValidacion = false;
    m_modificado = false;
}

void FrmPreDatos::Anadir_captions()
{
    setWindowTitle(Texto(192));
    cmdCancelar->setText(Texto(4));
    cmdCancelar->setToolTip(Texto(5));
    cmdAceptar->setText(Texto(6));
    cmdAceptar->setToolTip(Texto(193));
    m_domicilio->Anadir_captions();
    lbldnip->setText(Texto(26));
    lblnombrep->setText(Texto(27));
    lbltelefonop->setText(Texto(194));
}

void FrmPreDatos::CargarListas()
{
    m_domicilio->CargarListas();
}

void FrmPreDatos::CargarDatosPresentador()
{
    cPreDatos& p = PreDatos();
    const bool consulta = p.MODO() == QLatin1String("C");
    if (consulta)
        p.CargarPresentador(p.CSPR);
    m_domicilio->CargarNombres(consulta);
}

// ----- Drawing from the record -----

void FrmPreDatos::PresentarPresentador()
{
    const cPreDatos& p = PreDatos();
    PonerTexto(txtdnip, p.DNIP);
    PonerTexto(txtnombrep, p.NOMBREP);
    // Only the municipality pair opens and closes, with the province of the treasury.
    m_domicilio->Presentar(p.CODPROVP == kProvinciaTesoreria);
    // A telephone of value 0 is no telephone.
    PonerTexto(txttelefonop, Val(p.TELEFONOP) == 0 ? QString() : p.TELEFONOP);
}

void FrmPreDatos::ActivarSelectores()
{
    m_domicilio->ActivarSelectores(true);
}

void FrmPreDatos::Redibujar()
{
    PresentarPresentador();
    ActivarSelectores();
}

bool FrmPreDatos::SelectorAbierto() const
{
    return m_domicilio->SelectorAbierto();
}

// ----- Aceptar and Cancelar -----

bool FrmPreDatos::ValidarCampos()
{
    const int16_t veredicto = PreDatos().ValidarDatosPresentador(PreDatos().ArregloValidacion());
    if (veredicto == 0)
        return true;
    // The presenter's verdicts are numbered on their own, not as the contributor's.
    const BloqueDomicilio& d = *m_domicilio;
    AvisarVeredicto(this, cPreDatos::IdMensajeValidacion(veredicto), veredicto,
                    {{{1, 11}, txtdnip},
                     {{2}, txtnombrep},
                     {{3}, d.txtdomicilio},
                     {{4}, d.txtcodmun},
                     {{5}, d.txtnommun},
                     {{6, 7, 8}, d.txtcodpos},
                     {{9, 10}, txttelefonop}});
    return false;
}

int16_t FrmPreDatos::GuardarPresentador()
{
    const int16_t veredicto = PreDatos().GuardarPresentador(PreDatos().ArregloGuardar());
    AvisarVeredicto(this, cPreDatos::IdMensajeGuardar(veredicto), veredicto, {});
    return veredicto;
}

void FrmPreDatos::Aceptar()
{
    // Reached by its access key or its icon, the field being typed in is left first, as a
    // click on the button leaves it.
    if (QWidget* foco = focusWidget(); foco && fraDatos->isAncestorOf(foco))
        cmdAceptar->setFocus(Qt::OtherFocusReason);
    if (SelectorAbierto())
        return;
    if (!ValidarCampos())
        return;
    if (m_modificado) {
        if (GuardarPresentador() != 0)
            return;
        cPreDatos& p = PreDatos();
        if (p.MODO() == QLatin1String("A") && p.LISTA == QLatin1String("S"))
            PreLista().CSPR = p.ObtenerCodigoPresentador(p.DNIP);
    }
    Cerrar();
}

void FrmPreDatos::Cancelar()
{
    // No question about unsaved changes: the record keeps what was written to it.
    Cerrar();
}

void FrmPreDatos::Cerrar()
{
    m_cerrando = true;
    if (auto* marco = qobject_cast<QMdiSubWindow*>(parentWidget()))
        marco->close();
    else
        close();
}

void FrmPreDatos::closeEvent(QCloseEvent* evento)
{
    QWidget::closeEvent(evento);
    if (m_cerrado)
        return;
    m_cerrado = true;
    m_cerrando = true;
    Proceso::Protegido([] {
        ActualizarMenus();
        if (PreDatos().LISTA == QLatin1String("S")) {
            PreLista().ENTRADA = QStringLiteral("P");
            FrmPreLista::Abrir();
        }
    });
}
