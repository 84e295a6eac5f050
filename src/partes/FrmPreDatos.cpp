#include "partes/FrmPreDatos.h"

#include "app/plataforma/Mensaje.h"
#include "app/plataforma/Proceso.h"
#include "app/plataforma/Ventanas.h"
#include "catalogue/Catalogo.h"
#include "fields/CajaNum.h"
#include "fields/EnterComoTab.h"
#include "fields/Formato.h"
#include "fields/Val.h"
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
    txtviap = CampoTexto(d, "txtviap", 2, TipoFiltro::Texto);
    cmdVia = new QPushButton(d);
    cmdVia->setObjectName(QStringLiteral("cmdVia"));
    txtviaaux = CampoTexto(d, "txtviaaux", 32767, TipoFiltro::Texto, true);
    AbrirCampo(txtviaaux, false);
    txtdomiciliop = CampoTexto(d, "txtdomiciliop", 20, TipoFiltro::Texto);
    txtnumerop = CajaNumerica(d, "txtnumerop", 5, 5, QStringLiteral("#####"), false);
    txtletrap = CampoTexto(d, "txtletrap", 2, TipoFiltro::Texto);
    txtescalerap = CampoTexto(d, "txtescalerap", 2, TipoFiltro::Texto);
    txtpisop = CampoTexto(d, "txtpisop", 2, TipoFiltro::Texto);
    txtmanop = CampoTexto(d, "txtmanop", 3, TipoFiltro::Texto);
    txtcodprovp = CajaNumerica(d, "txtcodprovp", 2, 2, QStringLiteral("00"), false);
    cmdProvincia = new QPushButton(d);
    cmdProvincia->setObjectName(QStringLiteral("cmdProvincia"));
    // The province's name is only ever looked up.
    txtnomprovp = CampoTexto(d, "txtnomprovp", 20, TipoFiltro::Texto, true);
    AbrirCampo(txtnomprovp, false);
    txtcodposp = CajaNumerica(d, "txtcodposp", 5, 5, QStringLiteral("00000"), false);
    txtcodmunp = CajaNumerica(d, "txtcodmunp", 3, 3, QStringLiteral("###"), true);
    cmdMunicipio = new QPushButton(d);
    cmdMunicipio->setObjectName(QStringLiteral("cmdMunicipio"));
    txtnommunp = CampoTexto(d, "txtnommunp", 25, TipoFiltro::Texto, true);
    txttelefonop = CampoTexto(d, "txttelefonop", 9, TipoFiltro::Digitos);

    lbldnip = Etiqueta(d, "lbldnip");
    lblnombrep = Etiqueta(d, "lblnombrep");
    lblviap = Etiqueta(d, "lblviap");
    lbldomiciliop = Etiqueta(d, "lbldomiciliop");
    lblnumerop = Etiqueta(d, "lblnumerop");
    lblletrap = Etiqueta(d, "lblletrap");
    lblescalerap = Etiqueta(d, "lblescalerap");
    lblpisop = Etiqueta(d, "lblpisop");
    lblmanop = Etiqueta(d, "lblmanop");
    lblnomprovp = Etiqueta(d, "lblnomprovp");
    lblcodposp = Etiqueta(d, "lblcodposp");
    lblnommunp = Etiqueta(d, "lblnommunp");
    lbltelefonop = Etiqueta(d, "lbltelefonop");

    for (auto [campo, caracteres] : {std::pair<QWidget*, int>{txtdnip, 9}, {txtnombrep, 30},
                                      {txtviap, 2}, {txtviaaux, 12}, {txtdomiciliop, 20},
                                      {txtnumerop, 5}, {txtletrap, 2}, {txtescalerap, 2},
                                      {txtpisop, 2}, {txtmanop, 3}, {txtcodprovp, 2},
                                      {txtnomprovp, 16}, {txtcodposp, 5}, {txtcodmunp, 3},
                                      {txtnommunp, 20}, {txttelefonop, 9}})
        AnchoDeCaracteres(campo, caracteres);
    auto* lineas = new QVBoxLayout(fraDatos);
    LineaDePanel(lineas, {lbldnip, txtdnip, lblnombrep, txtnombrep});
    LineaDePanel(lineas, {lblviap, txtviap, cmdVia, txtviaaux, lbldomiciliop, txtdomiciliop});
    LineaDePanel(lineas, {lblnumerop, txtnumerop, lblletrap, txtletrap, lblescalerap, txtescalerap,
                          lblpisop, txtpisop, lblmanop, txtmanop});
    LineaDePanel(lineas, {cmdProvincia, txtcodprovp, lblnomprovp, txtnomprovp, lblcodposp, txtcodposp});
    LineaDePanel(lineas, {cmdMunicipio, txtcodmunp, lblnommunp, txtnommunp});
    LineaDePanel(lineas, {lbltelefonop, txttelefonop});

    cmdAceptar = new QPushButton(fraBotones);
    cmdAceptar->setObjectName(QStringLiteral("cmdAceptar"));
    cmdCancelar = new QPushButton(fraBotones);
    cmdCancelar->setObjectName(QStringLiteral("cmdCancelar"));
    for (QPushButton* b : {cmdAceptar, cmdCancelar, cmdVia, cmdProvincia, cmdMunicipio})
        b->setAutoDefault(true);  // Enter on a button presses it
    PicAce = IconoDeBoton(fraBotones, "PicAce", QStyle::SP_DialogApplyButton, cmdAceptar);
    PicCan = IconoDeBoton(fraBotones, "PicCan", QStyle::SP_DialogCancelButton, cmdCancelar);
    PicCan->installEventFilter(this);
    auto* botones = new QHBoxLayout(fraBotones);
    botones->addStretch();
    botones->addWidget(PicAce);
    botones->addWidget(cmdAceptar);
    botones->addSpacing(24);
    botones->addWidget(PicCan);
    botones->addWidget(cmdCancelar);
    botones->addStretch();

    auto* todo = new QVBoxLayout(this);
    todo->addWidget(fraDatos);
    todo->addWidget(fraBotones);

    lstviap = new cSelector(TipoSelector::Via, QStringLiteral("lstviap"), this);
    lstcodprovp = new cSelector(TipoSelector::Provincia, QStringLiteral("lstcodprovp"), this);
    lstcodmunp = new cSelector(TipoSelector::Municipio, QStringLiteral("lstcodmunp"), this);
    for (cSelector* s : {lstviap, lstcodprovp, lstcodmunp})
        s->setMarcos({fraDatos, fraBotones});
    RetenerFocoAlPulsar(this);
}

void FrmPreDatos::OrdenDeTabulacion()
{
    const QList<QWidget*> orden = {
        txtdnip,      txtnombrep, txtviap,     cmdVia,       txtdomiciliop, txtnumerop,
        txtletrap,    txtescalerap, txtpisop,  txtmanop,     txtcodprovp,   cmdProvincia,
        txtnomprovp,  txtcodposp, txtcodmunp,  cmdMunicipio, txtnommunp,    txttelefonop,
        cmdAceptar,   cmdCancelar, txtviaaux};
    for (qsizetype i = 1; i < orden.size(); ++i)
        setTabOrder(orden[i - 1], orden[i]);
}

void FrmPreDatos::Conectar()
{
    m_salidas = new SalidaCampos(this);
    m_salidas->setActivo([this] { return !m_cerrando && !SelectorAbierto(); });
    m_salidas->setBotonCancelar(cmdCancelar, [this] { m_saltarValidacion = true; });
    auto& p = PreDatos();
    const auto texto = [this](QLineEdit* campo, QString& valor) {
        m_salidas->Vigilar(campo, [this, campo, &valor] { SalirCampoTexto(campo, valor); });
    };
    texto(txtdnip, p.DNIP);
    texto(txtnombrep, p.NOMBREP);
    texto(txtdomiciliop, p.DOMICILIOP);
    texto(txtletrap, p.LETRAP);
    texto(txtescalerap, p.ESCALERAP);
    texto(txtpisop, p.PISOP);
    texto(txtmanop, p.MANOP);
    texto(txtcodposp, p.CODPOSP);
    texto(txttelefonop, p.TELEFONOP);
    m_salidas->Vigilar(txtnommunp, [this] {
        if (CampoAbierto(txtnommunp))
            SalirCampoTexto(txtnommunp, PreDatos().NOMMUNP);
    });
    m_salidas->Vigilar(txtnumerop, [this] { SalirNumero(); });
    m_salidas->Vigilar(txtviap, [this] { SalirVia(); });
    m_salidas->Vigilar(txtcodprovp, [this] { SalirProvincia(); });
    m_salidas->Vigilar(txtcodmunp, [this] { SalirMunicipio(); });

    connect(cmdVia, &QPushButton::clicked, this, [this] { lstviap->Abrir(txtviaaux->text(), cmdVia); });
    connect(cmdProvincia, &QPushButton::clicked, this,
            [this] { lstcodprovp->Abrir(txtnomprovp->text(), cmdProvincia); });
    connect(cmdMunicipio, &QPushButton::clicked, this,
            [this] { lstcodmunp->Abrir(txtnommunp->text(), cmdMunicipio); });
    connect(lstviap, &cSelector::elegido, this, &FrmPreDatos::ElegidaVia);
    connect(lstcodprovp, &cSelector::elegido, this, &FrmPreDatos::ElegidaProvincia);
    connect(lstcodmunp, &cSelector::elegido, this, &FrmPreDatos::ElegidoMunicipio);
    connect(lstviap, &cSelector::cancelado, this, [this] { lstviap->Cerrar(txtviap); });
    connect(lstcodprovp, &cSelector::cancelado, this, [this] { lstcodprovp->Cerrar(txtcodprovp); });
    connect(lstcodmunp, &cSelector::cancelado, this, [this] { lstcodmunp->Cerrar(txtcodmunp); });

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
    cmdProvincia->setText(Texto(10));
    cmdVia->setText(Texto(11));
    cmdMunicipio->setText(Texto(12));
    lblviap->setText(Texto(13));
    lblnommunp->setText(Texto(14));
    lblnomprovp->setText(Texto(15));
    lbldomiciliop->setText(Texto(19));
    lblescalerap->setText(Texto(20));
    lblletrap->setText(Texto(21));
    lblnumerop->setText(Texto(22));
    lblpisop->setText(Texto(23));
    lblmanop->setText(Texto(24));
    lblcodposp->setText(Texto(25));
    lbldnip->setText(Texto(26));
    lblnombrep->setText(Texto(27));
    lbltelefonop->setText(Texto(194));
}

void FrmPreDatos::CargarListas()
{
    lstviap->Cargar();
    lstcodprovp->Cargar();
    lstcodmunp->Cargar();
}

void FrmPreDatos::CargarDatosPresentador()
{
    cPreDatos& p = PreDatos();
    if (p.MODO() == QLatin1String("C")) {
        p.CargarPresentador(p.CSPR);
        if (Val(p.CODMUNP) != 0)
            txtnommunp->setText(lstcodmunp->Nombre(p.CODMUNP));
    }
    txtviaaux->setText(lstviap->Nombre(p.VIAP));
    if (Val(p.CODPROVP) != 0)
        txtnomprovp->setText(lstcodprovp->Nombre(p.CODPROVP));
}

// ----- Drawing from the record -----

void FrmPreDatos::PresentarPresentador()
{
    const cPreDatos& p = PreDatos();
    PonerTexto(txtdnip, p.DNIP);
    PonerTexto(txtnombrep, p.NOMBREP);
    PonerTexto(txtviap, p.VIAP);
    PonerTexto(txtdomiciliop, p.DOMICILIOP);
    PonerTexto(txtletrap, p.LETRAP);
    PonerTexto(txtescalerap, p.ESCALERAP);
    PonerTexto(txtpisop, p.PISOP);
    PonerTexto(txtmanop, p.MANOP);
    txtnumerop->setValue(p.NUMEROP);
    txtcodprovp->setText(Val(p.CODPROVP) == 0 ? QString() : p.CODPROVP);
    txtcodposp->setText(Val(p.CODPOSP) == 0 ? QString() : p.CODPOSP);
    if (Val(p.CODMUNP) == 0) {
        txtcodmunp->setText(QString());
        PonerTexto(txtnommunp, p.NOMMUNP);
    } else {
        txtcodmunp->setText(p.CODMUNP);
    }
    // A telephone of value 0 is no telephone.
    PonerTexto(txttelefonop, Val(p.TELEFONOP) == 0 ? QString() : p.TELEFONOP);

    const bool enTesoreria = p.CODPROVP == kProvinciaTesoreria;
    AbrirCampo(txtcodmunp, enTesoreria);
    AbrirCampo(txtnommunp, !enTesoreria);
}

void FrmPreDatos::ActivarSelectores()
{
    cmdMunicipio->setEnabled(PreDatos().CODPROVP == kProvinciaTesoreria);
    cmdProvincia->setEnabled(true);
    cmdVia->setEnabled(true);
}

void FrmPreDatos::Redibujar()
{
    PresentarPresentador();
    ActivarSelectores();
}

// ----- Leaving the fields -----

void FrmPreDatos::SalirCampoTexto(QLineEdit* campo, QString& valor)
{
    if (campo->text() == valor)
        return;
    m_modificado = true;
    valor = campo->text();
    Redibujar();
}

void FrmPreDatos::SalirNumero()
{
    const auto numero = static_cast<int32_t>(txtnumerop->value());
    if (numero == PreDatos().NUMEROP)
        return;
    m_modificado = true;
    PreDatos().NUMEROP = numero;
    Redibujar();
}

void FrmPreDatos::SalirVia()
{
    cPreDatos& p = PreDatos();
    const QString texto = txtviap->text();
    if (m_saltarValidacion || texto == p.VIAP)
        return;
    txtviaaux->setText(lstviap->Nombre(texto));
    if (!txtviaaux->text().trimmed().isEmpty()) {
        m_modificado = true;
        p.VIAP = texto;
        Redibujar();
        return;
    }
    lstviap->Abrir(txtviaaux->text(), cmdVia);
}

void FrmPreDatos::SalirProvincia()
{
    cPreDatos& p = PreDatos();
    const QString texto = txtcodprovp->text();
    if (m_saltarValidacion || txtcodprovp->locked() || !CodigoDistinto(texto, p.CODPROVP))
        return;
    const QString nombre = lstcodprovp->Nombre(texto);
    txtnomprovp->setText(nombre);
    if (!nombre.isEmpty()) {
        m_modificado = true;
        p.CODPROVP = texto;
        if (Val(p.CODPROVP) != 77)
            p.CODMUNP.clear();
        p.NOMMUNP.clear();
        Redibujar();
        return;
    }
    lstcodprovp->Abrir(txtnomprovp->text(), cmdProvincia);
    if (txtcodprovp->text() == QLatin1String("00"))
        txtcodprovp->setText(QString());
}

void FrmPreDatos::SalirMunicipio()
{
    cPreDatos& p = PreDatos();
    const QString texto = txtcodmunp->text();
    if (m_saltarValidacion || txtcodmunp->locked())
        return;
    if (!CodigoDistinto(texto, p.CODMUNP) && !p.CODMUNP.isEmpty())
        return;
    const QString nombre = lstcodmunp->Nombre(texto);
    txtnommunp->setText(nombre);
    p.NOMMUNP.clear();
    if (!nombre.isEmpty()) {
        m_modificado = true;
        p.CODMUNP = texto;
        Redibujar();
        return;
    }
    lstcodmunp->Abrir(txtnommunp->text(), cmdMunicipio);
}

// ----- Pickers -----

bool FrmPreDatos::SelectorAbierto() const
{
    return lstviap->Abierto() || lstcodprovp->Abierto() || lstcodmunp->Abierto();
}

void FrmPreDatos::ElegidaVia(const QString& clave, const QString& texto)
{
    txtviaaux->setText(texto);
    PreDatos().VIAP = Selectores::CodigoDeClave(TipoSelector::Via, clave);
    m_modificado = true;
    Redibujar();
    lstviap->Cerrar(txtdomiciliop);
}

void FrmPreDatos::ElegidaProvincia(const QString& clave, const QString& texto)
{
    cPreDatos& p = PreDatos();
    txtnomprovp->setText(texto);
    p.CODPROVP = Formato(Selectores::CodigoDeClave(TipoSelector::Provincia, clave),
                         txtcodprovp->formato());
    if (Val(p.CODPROVP) != 77)
        p.CODMUNP.clear();
    p.NOMMUNP.clear();
    m_modificado = true;
    Redibujar();
    lstcodprovp->Cerrar(txtcodposp);
}

void FrmPreDatos::ElegidoMunicipio(const QString& clave, const QString& texto)
{
    cPreDatos& p = PreDatos();
    txtnommunp->setText(texto);
    p.NOMMUNP.clear();
    p.CODMUNP = Formato(Selectores::CodigoDeClave(TipoSelector::Municipio, clave),
                        txtcodmunp->formato());
    m_modificado = true;
    Redibujar();
    lstcodmunp->Cerrar(txttelefonop);
}

// ----- Aceptar and Cancelar -----

bool FrmPreDatos::ValidarCampos()
{
    const int16_t veredicto = PreDatos().ValidarDatosPresentador(PreDatos().ArregloValidacion());
    if (veredicto == 0)
        return true;
    const int id = cPreDatos::IdMensajeValidacion(veredicto);
    if (id == 0)
        return false;  // a verdict outside the table: no message, no acceptance
    Mensaje(Texto(id), vb::OKOnly + vb::Information, windowTitle());
    QWidget* foco = nullptr;
    switch (veredicto) {
    case 1:
    case 11:
        foco = txtdnip;
        break;
    case 2:
        foco = txtnombrep;
        break;
    case 3:
        foco = txtdomiciliop;
        break;
    case 4:
        foco = txtcodmunp;
        break;
    case 5:
        foco = txtnommunp;
        break;
    case 6:
    case 7:
    case 8:
        foco = txtcodposp;
        break;
    case 9:
    case 10:
        foco = txttelefonop;
        break;
    default:
        break;
    }
    if (foco)
        foco->setFocus(Qt::OtherFocusReason);
    return false;
}

int16_t FrmPreDatos::GuardarPresentador()
{
    const int16_t veredicto = PreDatos().GuardarPresentador(PreDatos().ArregloGuardar());
    if (const int id = cPreDatos::IdMensajeGuardar(veredicto))
        Mensaje(Texto(id), vb::OKOnly + vb::Information, windowTitle());
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
