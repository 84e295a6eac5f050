#include "partes/FrmConDatos.h"

#include "app/plataforma/Mensaje.h"
#include "app/plataforma/Proceso.h"
#include "app/plataforma/Ventanas.h"
#include "catalogue/Catalogo.h"
#include "fields/CajaNum.h"
#include "fields/EnterComoTab.h"
#include "fields/Formato.h"
#include "fields/Val.h"
#include "partes/CamposDatos.h"
#include "partes/FrmConLista.h"
#include "partes/SalidaCampos.h"
#include "partes/Selectores.h"
#include "partes/cConDatos.h"
#include "partes/cConLista.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>
#include <memory>
#include <utility>

namespace {

const QString kProvinciaTesoreria = QStringLiteral("77");

}  // namespace

FrmConDatos* FrmConDatos::Abrir()
{
    auto panel = std::make_unique<FrmConDatos>();
    panel->Iniciar();
    FrmConDatos* abierto = panel.release();
    AbrirPanel(abierto);
    abierto->txtdnic->setFocus(Qt::OtherFocusReason);
    return abierto;
}

FrmConDatos::FrmConDatos(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("FrmConDatos"));
    setAttribute(Qt::WA_DeleteOnClose);
    Construir();
    OrdenDeTabulacion();
    Conectar();
}

void FrmConDatos::Construir()
{
    fraDatos = new QFrame(this);
    fraDatos->setObjectName(QStringLiteral("fraDatos"));
    fraDatos->setFrameShape(QFrame::StyledPanel);
    fraBotones = new QFrame(this);
    fraBotones->setObjectName(QStringLiteral("fraBotones"));

    QWidget* d = fraDatos;
    chktipodni = new QCheckBox(d);
    chktipodni->setObjectName(QStringLiteral("chktipodni"));
    chktipodomi = new QCheckBox(d);
    chktipodomi->setObjectName(QStringLiteral("chktipodomi"));

    txtdnic = CampoTexto(d, "txtdnic", 9, TipoFiltro::Texto);
    txtnombrec = CampoTexto(d, "txtnombrec", 40, TipoFiltro::Texto);
    txtviac = CampoTexto(d, "txtviac", 2, TipoFiltro::Texto);
    cmdVia = new QPushButton(d);
    cmdVia->setObjectName(QStringLiteral("cmdVia"));
    txtviaaux = CampoTexto(d, "txtviaaux", 32767, TipoFiltro::Texto, true);
    AbrirCampo(txtviaaux, false);
    txtdomicilioc = CampoTexto(d, "txtdomicilioc", 20, TipoFiltro::Texto);
    txtnumeroc = CajaNumerica(d, "txtnumeroc", 5, 5, QStringLiteral("#####"), false);
    txtletrac = CampoTexto(d, "txtletrac", 2, TipoFiltro::Texto);
    txtescalerac = CampoTexto(d, "txtescalerac", 2, TipoFiltro::Texto);
    txtpisoc = CampoTexto(d, "txtpisoc", 2, TipoFiltro::Texto);
    txtmanoc = CampoTexto(d, "txtmanoc", 3, TipoFiltro::Texto);
    txtcodprovc = CajaNumerica(d, "txtcodprovc", 2, 2, QStringLiteral("00"), false);
    cmdProvincia = new QPushButton(d);
    cmdProvincia->setObjectName(QStringLiteral("cmdProvincia"));
    txtnomprovc = CampoTexto(d, "txtnomprovc", 20, TipoFiltro::Texto, true);
    AbrirCampo(txtnomprovc, false);
    txtcodposc = CajaNumerica(d, "txtcodposc", 5, 5, QString(), false);
    txtcodmunc = CajaNumerica(d, "txtcodmunc", 3, 3, QStringLiteral("###"), true);
    cmdMunicipio = new QPushButton(d);
    cmdMunicipio->setObjectName(QStringLiteral("cmdMunicipio"));
    txtnommunc = CampoTexto(d, "txtnommunc", 25, TipoFiltro::Texto, true);
    AbrirCampo(txtnommunc, false);
    txtpais = CampoTexto(d, "txtpais", 20, TipoFiltro::Texto, true);
    txtnumsp = CajaNumerica(d, "txtnumsp", 0, 7, QStringLiteral("#,###,###"), true);
    txtnumsp->setBackcolor(QColor::fromRgb(0xE0E0E0));
    txtnumtr = CajaNumerica(d, "txtnumtr", 0, 7, QStringLiteral("#,###,###"), true);
    txtnumtr->setBackcolor(QColor::fromRgb(0xE0E0E0));

    lbldnic = Etiqueta(d, "lbldnic");
    lblnombrec = Etiqueta(d, "lblnombrec");
    lblviac = Etiqueta(d, "lblviac");
    lbldomicilioc = Etiqueta(d, "lbldomicilioc");
    lblnumeroc = Etiqueta(d, "lblnumeroc");
    lblletrac = Etiqueta(d, "lblletrac");
    lblescalerac = Etiqueta(d, "lblescalerac");
    lblpisoc = Etiqueta(d, "lblpisoc");
    lblmanoc = Etiqueta(d, "lblmanoc");
    lblnomprovc = Etiqueta(d, "lblnomprovc");
    lblcodposc = Etiqueta(d, "lblcodposc");
    lblnommunc = Etiqueta(d, "lblnommunc");
    lblpais = Etiqueta(d, "lblpais");
    lblnumsp = Etiqueta(d, "lblnumsp");
    lblnumtr = Etiqueta(d, "lblnumtr");

    for (auto [campo, caracteres] : {std::pair<QWidget*, int>{txtdnic, 9}, {txtnombrec, 30},
                                      {txtviac, 2}, {txtviaaux, 12}, {txtdomicilioc, 20},
                                      {txtnumeroc, 5}, {txtletrac, 2}, {txtescalerac, 2},
                                      {txtpisoc, 2}, {txtmanoc, 3}, {txtcodprovc, 2},
                                      {txtnomprovc, 16}, {txtcodposc, 5}, {txtcodmunc, 3},
                                      {txtnommunc, 20}, {txtpais, 16}, {txtnumsp, 7},
                                      {txtnumtr, 7}})
        AnchoDeCaracteres(campo, caracteres);
    auto* lineas = new QVBoxLayout(fraDatos);
    LineaDePanel(lineas, {chktipodni});
    LineaDePanel(lineas, {lbldnic, txtdnic, lblnombrec, txtnombrec});
    LineaDePanel(lineas, {chktipodomi});
    LineaDePanel(lineas, {lblviac, txtviac, cmdVia, txtviaaux, lbldomicilioc, txtdomicilioc});
    LineaDePanel(lineas, {lblnumeroc, txtnumeroc, lblletrac, txtletrac, lblescalerac, txtescalerac,
                          lblpisoc, txtpisoc, lblmanoc, txtmanoc});
    LineaDePanel(lineas, {cmdProvincia, txtcodprovc, lblnomprovc, txtnomprovc, lblcodposc, txtcodposc});
    LineaDePanel(lineas, {cmdMunicipio, txtcodmunc, lblnommunc, txtnommunc});
    LineaDePanel(lineas, {lblpais, txtpais});
    LineaDePanel(lineas, {lblnumsp, txtnumsp, lblnumtr, txtnumtr});

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

    // The pickers lie over the panel, outside the two frames they switch off.
    lstviac = new cSelector(TipoSelector::Via, QStringLiteral("lstviac"), this);
    lstcodprovc = new cSelector(TipoSelector::Provincia, QStringLiteral("lstcodprovc"), this);
    lstcodmunc = new cSelector(TipoSelector::Municipio, QStringLiteral("lstcodmunc"), this);
    for (cSelector* s : {lstviac, lstcodprovc, lstcodmunc})
        s->setMarcos({fraDatos, fraBotones});
    RetenerFocoAlPulsar(this);
}

void FrmConDatos::OrdenDeTabulacion()
{
    const QList<QWidget*> orden = {
        txtdnic,   txtnombrec, chktipodomi,  txtviac,      cmdVia,     txtviaaux,
        txtdomicilioc, txtnumeroc, txtletrac, txtescalerac, txtpisoc, txtmanoc,
        txtcodprovc, cmdProvincia, txtnomprovc, txtcodposc, txtcodmunc, cmdMunicipio,
        txtnommunc, txtpais,    txtnumsp,     txtnumtr,     cmdAceptar, cmdCancelar,
        chktipodni};
    for (qsizetype i = 1; i < orden.size(); ++i)
        setTabOrder(orden[i - 1], orden[i]);
}

void FrmConDatos::Conectar()
{
    // Any change typed in an entry field is a change of the contributor.
    for (QLineEdit* campo : {txtdnic, txtnombrec, txtviac, txtdomicilioc, txtletrac, txtescalerac,
                             txtpisoc, txtmanoc, txtnomprovc, txtnommunc, txtpais})
        connect(campo, &QLineEdit::textEdited, this, [this] { m_modificado = true; });
    for (CajaNum* caja : {txtnumeroc, txtcodprovc, txtcodposc, txtcodmunc})
        connect(caja, &CajaNum::cambiado, this, [this] { m_modificado = true; });

    m_salidas = new SalidaCampos(this);
    m_salidas->setActivo([this] { return !m_cerrando && !SelectorAbierto(); });
    m_salidas->setBotonCancelar(cmdCancelar, [this] { m_saltarValidacion = true; });
    auto& c = ConDatos();
    const auto texto = [this](QLineEdit* campo, QString& valor) {
        m_salidas->Vigilar(campo, [this, campo, &valor] { SalirCampoTexto(campo, valor); });
    };
    const auto textoAbierto = [this](QLineEdit* campo, QString& valor) {
        m_salidas->Vigilar(campo, [this, campo, &valor] {
            if (CampoAbierto(campo))
                SalirCampoTexto(campo, valor);
        });
    };
    texto(txtdnic, c.DNIC);
    texto(txtnombrec, c.NOMBREC);
    texto(txtdomicilioc, c.DOMICILIOC);
    texto(txtletrac, c.LETRAC);
    texto(txtescalerac, c.ESCALERAC);
    texto(txtpisoc, c.PISOC);
    texto(txtmanoc, c.MANOC);
    texto(txtcodposc, c.CODPOSC);
    textoAbierto(txtnomprovc, c.NOMPROVC);
    textoAbierto(txtnommunc, c.NOMMUNC);
    textoAbierto(txtpais, c.PAIS);
    m_salidas->Vigilar(txtnumeroc, [this] { SalirNumero(); });
    m_salidas->Vigilar(txtviac, [this] { SalirVia(); });
    m_salidas->Vigilar(txtcodprovc, [this] { SalirProvincia(); });
    m_salidas->Vigilar(txtcodmunc, [this] { SalirMunicipio(); });

    connect(chktipodni, &QCheckBox::clicked, this, &FrmConDatos::ClicTipoDni);
    connect(chktipodomi, &QCheckBox::clicked, this, &FrmConDatos::ClicTipoDomicilio);

    connect(cmdVia, &QPushButton::clicked, this, [this] { lstviac->Abrir(txtviaaux->text(), cmdVia); });
    connect(cmdProvincia, &QPushButton::clicked, this,
            [this] { lstcodprovc->Abrir(txtnomprovc->text(), cmdProvincia); });
    connect(cmdMunicipio, &QPushButton::clicked, this,
            [this] { lstcodmunc->Abrir(txtnommunc->text(), cmdMunicipio); });
    connect(lstviac, &cSelector::elegido, this, &FrmConDatos::ElegidaVia);
    connect(lstcodprovc, &cSelector::elegido, this, &FrmConDatos::ElegidaProvincia);
    connect(lstcodmunc, &cSelector::elegido, this, &FrmConDatos::ElegidoMunicipio);
    connect(lstviac, &cSelector::cancelado, this, [this] { lstviac->Cerrar(txtviac); });
    connect(lstcodprovc, &cSelector::cancelado, this, [this] { lstcodprovc->Cerrar(txtcodprovc); });
    connect(lstcodmunc, &cSelector::cancelado, this, [this] { lstcodmunc->Cerrar(txtcodmunc); });

    // The press, not the click, on Cancelar: it comes before the field is left.
    connect(cmdCancelar, &QPushButton::pressed, this, [this] { m_saltarValidacion = true; });
    connect(cmdAceptar, &QPushButton::clicked, this, [this] { Proceso::Protegido([this] { Aceptar(); }); });
    connect(cmdCancelar, &QPushButton::clicked, this, [this] { Cancelar(); });

    auto* enter = new EnterComoTab(this);
    enter->setActivo([this] { return !SelectorAbierto(); });
}

bool FrmConDatos::eventFilter(QObject* objeto, QEvent* evento)
{
    if (objeto == PicCan && evento->type() == QEvent::MouseButtonPress)
        m_saltarValidacion = true;
    return QWidget::eventFilter(objeto, evento);
}

// ----- Opening -----

void FrmConDatos::Iniciar()
{
    Anadir_captions();
    DeshabilitarMenus();
    CargarListas();
    CargarDatosContribuyente();
    PresentarContribuyente();
    ActivarSelectores();
    m_saltarValidacion = false;
    m_modificado = false;
}

void FrmConDatos::Anadir_captions()
{
    setWindowTitle(Texto(3));
    cmdCancelar->setText(Texto(4));
    cmdCancelar->setToolTip(Texto(5));
    cmdAceptar->setText(Texto(6));
    cmdAceptar->setToolTip(Texto(7));
    chktipodomi->setText(Texto(8));
    chktipodni->setText(Texto(9));
    cmdProvincia->setText(Texto(10));
    cmdVia->setText(Texto(11));
    cmdMunicipio->setText(Texto(12));
    lblviac->setText(Texto(13));
    lblnommunc->setText(Texto(14));
    lblnomprovc->setText(Texto(15));
    lblnumtr->setText(Texto(16));
    lblnumsp->setText(Texto(17));
    lblpais->setText(Texto(18));
    lbldomicilioc->setText(Texto(19));
    lblescalerac->setText(Texto(20));
    lblletrac->setText(Texto(21));
    lblnumeroc->setText(Texto(22));
    lblpisoc->setText(Texto(23));
    lblmanoc->setText(Texto(24));
    lblcodposc->setText(Texto(25));
    lbldnic->setText(Texto(26));
    lblnombrec->setText(Texto(27));
}

void FrmConDatos::CargarListas()
{
    lstviac->Cargar();
    lstcodprovc->Cargar();
    lstcodmunc->Cargar();
}

void FrmConDatos::CargarDatosContribuyente()
{
    cConDatos& c = ConDatos();
    if (c.MODO() == QLatin1String("C")) {
        c.CargarContribuyente(c.CSCO);
        if (Val(c.CODMUNC) != 0)
            txtnommunc->setText(lstcodmunc->Nombre(c.CODMUNC));
    }
    txtviaaux->setText(lstviac->Nombre(c.VIAC));
    if (Val(c.CODPROVC) != 0)
        txtnomprovc->setText(lstcodprovc->Nombre(c.CODPROVC));
}

// ----- Drawing from the record -----

void FrmConDatos::PresentarContribuyente()
{
    const cConDatos& c = ConDatos();
    m_panelListo = false;
    chktipodni->setChecked(c.TIPODNI == QLatin1String("N"));
    PonerTexto(txtdnic, c.DNIC);
    PonerTexto(txtnombrec, c.NOMBREC);
    PonerTexto(txtviac, c.VIAC);
    PonerTexto(txtdomicilioc, c.DOMICILIOC);
    PonerTexto(txtletrac, c.LETRAC);
    PonerTexto(txtescalerac, c.ESCALERAC);
    PonerTexto(txtpisoc, c.PISOC);
    PonerTexto(txtmanoc, c.MANOC);
    PonerTexto(txtpais, c.PAIS);
    txtnumeroc->setValue(c.NUMEROC);

    const bool nacional = c.TIPODOMI == QLatin1String("N");
    chktipodomi->setChecked(c.TIPODOMI == QLatin1String("E"));
    txtcodposc->setFormato(c.TIPODOMI == QLatin1String("E") ? QString() : QStringLiteral("00000"));

    if (Val(c.CODPROVC) == 0) {
        txtcodprovc->setText(QString());
        PonerTexto(txtnomprovc, c.NOMPROVC);
    } else {
        txtcodprovc->setText(c.CODPROVC);
    }
    txtcodposc->setText(Val(c.CODPOSC) == 0 ? QString() : c.CODPOSC);
    if (Val(c.CODMUNC) == 0) {
        txtcodmunc->setText(QString());
        PonerTexto(txtnommunc, c.NOMMUNC);
    } else {
        txtcodmunc->setText(c.CODMUNC);
    }
    txtnumsp->setValue(c.NUMSP);
    txtnumtr->setValue(c.NUMTR);

    // Only a contributor already used as subject has the kinds of document and domicile
    // frozen: a subject has to be official and national.
    const bool libre = c.NUMSP <= 0;
    chktipodni->setEnabled(libre);
    chktipodomi->setEnabled(libre);

    const bool enTesoreria = nacional && c.CODPROVC == kProvinciaTesoreria;
    AbrirCampo(txtpais, !nacional);
    AbrirCampo(txtcodprovc, nacional);
    AbrirCampo(txtnomprovc, !nacional);
    AbrirCampo(txtcodmunc, enTesoreria);
    AbrirCampo(txtnommunc, !enTesoreria);
    m_panelListo = true;
}

void FrmConDatos::ActivarSelectores()
{
    const cConDatos& c = ConDatos();
    cmdProvincia->setEnabled(c.TIPODOMI == QLatin1String("N"));
    cmdMunicipio->setEnabled(c.CODPROVC == kProvinciaTesoreria);
    cmdVia->setEnabled(true);
}

void FrmConDatos::Redibujar()
{
    PresentarContribuyente();
    ActivarSelectores();
}

// ----- Leaving the fields -----

void FrmConDatos::SalirCampoTexto(QLineEdit* campo, QString& valor)
{
    if (campo->text() == valor)
        return;
    valor = campo->text();
    Redibujar();
}

void FrmConDatos::SalirNumero()
{
    const auto numero = static_cast<int32_t>(txtnumeroc->value());
    if (numero == ConDatos().NUMEROC)
        return;
    ConDatos().NUMEROC = numero;
    Redibujar();
}

void FrmConDatos::SalirVia()
{
    cConDatos& c = ConDatos();
    const QString texto = txtviac->text();
    if (m_saltarValidacion || texto == c.VIAC)
        return;
    txtviaaux->setText(lstviac->Nombre(texto));
    if (!txtviaaux->text().trimmed().isEmpty()) {
        c.VIAC = texto;
        Redibujar();
        return;
    }
    // No such street type: the user chooses one; the record keeps its code meanwhile.
    lstviac->Abrir(txtviaaux->text(), cmdVia);
}

void FrmConDatos::SalirProvincia()
{
    cConDatos& c = ConDatos();
    const QString texto = txtcodprovc->text();
    if (m_saltarValidacion || txtcodprovc->locked() || !CodigoDistinto(texto, c.CODPROVC))
        return;
    const QString nombre = lstcodprovc->Nombre(texto);
    txtnomprovc->setText(nombre);
    c.NOMPROVC.clear();
    if (!nombre.isEmpty()) {
        c.CODPROVC = texto;
        if (Val(c.CODPROVC) != 77)
            c.CODMUNC.clear();
        c.NOMMUNC.clear();
        Redibujar();
        return;
    }
    lstcodprovc->Abrir(txtnomprovc->text(), cmdProvincia);
    if (txtcodprovc->text() == QLatin1String("00"))
        txtcodprovc->setText(QString());
}

void FrmConDatos::SalirMunicipio()
{
    cConDatos& c = ConDatos();
    const QString texto = txtcodmunc->text();
    if (m_saltarValidacion || txtcodmunc->locked())
        return;
    if (!CodigoDistinto(texto, c.CODMUNC) && !c.CODMUNC.isEmpty())
        return;
    const QString nombre = lstcodmunc->Nombre(texto);
    txtnommunc->setText(nombre);
    c.NOMMUNC.clear();
    if (!nombre.isEmpty()) {
        c.CODMUNC = texto;
        Redibujar();
        return;
    }
    // An unknown or missing code: in province 77 the picker opens each time the box is left
    // empty.
    lstcodmunc->Abrir(txtnommunc->text(), cmdMunicipio);
}

// ----- Check boxes -----

void FrmConDatos::ClicTipoDni(bool marcado)
{
    m_modificado = true;
    ConDatos().TIPODNI = marcado ? QStringLiteral("N") : QStringLiteral("O");
    Redibujar();
    if (txtdnic->isEnabled())
        txtdnic->setFocus(Qt::OtherFocusReason);
}

void FrmConDatos::ClicTipoDomicilio(bool marcado)
{
    // Drawing the record sets the check box too; only the user's click counts.
    if (!m_panelListo)
        return;
    m_modificado = true;
    cConDatos& c = ConDatos();
    if (marcado) {
        c.TIPODOMI = QStringLiteral("E");
        c.CODPROVC.clear();
        c.CODMUNC.clear();
        c.NOMMUNC.clear();
        c.NOMPROVC.clear();
    } else {
        // The province is not given back its default: the user is asked for one.
        c.TIPODOMI = QStringLiteral("N");
        c.PAIS.clear();
        c.NOMPROVC.clear();
        c.NOMMUNC.clear();
    }
    Redibujar();
    if (txtviac->isEnabled())
        txtviac->setFocus(Qt::OtherFocusReason);
}

// ----- Pickers -----

bool FrmConDatos::SelectorAbierto() const
{
    return lstviac->Abierto() || lstcodprovc->Abierto() || lstcodmunc->Abierto();
}

void FrmConDatos::ElegidaVia(const QString& clave, const QString& texto)
{
    txtviaaux->setText(texto);
    ConDatos().VIAC = Selectores::CodigoDeClave(TipoSelector::Via, clave);
    m_modificado = true;
    Redibujar();
    lstviac->Cerrar(txtdomicilioc);
}

void FrmConDatos::ElegidaProvincia(const QString& clave, const QString& texto)
{
    cConDatos& c = ConDatos();
    txtnomprovc->setText(texto);
    c.NOMPROVC.clear();
    c.CODPROVC = Formato(Selectores::CodigoDeClave(TipoSelector::Provincia, clave),
                         txtcodprovc->formato());
    if (Val(c.CODPROVC) != 77)
        c.CODMUNC.clear();
    c.NOMMUNC.clear();
    m_modificado = true;
    Redibujar();
    lstcodprovc->Cerrar(txtcodposc);
}

void FrmConDatos::ElegidoMunicipio(const QString& clave, const QString& texto)
{
    cConDatos& c = ConDatos();
    txtnommunc->setText(texto);
    c.NOMMUNC.clear();
    c.CODMUNC = Formato(Selectores::CodigoDeClave(TipoSelector::Municipio, clave),
                        txtcodmunc->formato());
    m_modificado = true;
    Redibujar();
    lstcodmunc->Cerrar(cmdAceptar);
}

// ----- Aceptar and Cancelar -----

bool FrmConDatos::ValidarCampos()
{
    const int16_t veredicto = ConDatos().ValidarDatosContribuyente(ConDatos().ArregloValidacion());
    if (veredicto == 0)
        return true;
    const int id = cConDatos::IdMensajeValidacion(veredicto);
    if (id == 0)
        return false;  // a verdict outside the table: no message, no acceptance
    Mensaje(Texto(id), vb::OKOnly + vb::Information, windowTitle());
    QWidget* foco = nullptr;
    switch (veredicto) {
    case 1:
    case 2:
    case 14:
        foco = txtdnic;
        break;
    case 3:
        foco = txtnombrec;
        break;
    case 4:
        foco = txtdomicilioc;
        break;
    case 5:
        foco = txtpais;
        break;
    case 6:
    case 7:
    case 8:
    case 9:
        foco = txtcodposc;
        break;
    case 10:
        foco = txtnomprovc;
        break;
    case 11:
        foco = txtnommunc;
        break;
    case 12:
        foco = txtcodprovc;
        break;
    case 13:
        foco = txtcodmunc;
        break;
    default:
        break;
    }
    if (foco)
        foco->setFocus(Qt::OtherFocusReason);
    return false;
}

int16_t FrmConDatos::GuardarContribuyente()
{
    const int16_t veredicto = ConDatos().GuardarContribuyente(ConDatos().ArregloGuardar());
    if (const int id = cConDatos::IdMensajeGuardar(veredicto))
        Mensaje(Texto(id), vb::OKOnly + vb::Information, windowTitle());
    return veredicto;
}

void FrmConDatos::Aceptar()
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
        if (GuardarContribuyente() != 0)
            return;
        cConDatos& c = ConDatos();
        if (c.MODO() == QLatin1String("A") && c.LISTA == QLatin1String("S"))
            ConLista().CSCO = c.ObtenerCodigoContribuyente(c.DNIC);
    }
    Cerrar();
}

void FrmConDatos::Cancelar()
{
    // No question about unsaved changes: the record keeps what was written to it.
    Cerrar();
}

void FrmConDatos::Cerrar()
{
    m_cerrando = true;
    if (auto* marco = qobject_cast<QMdiSubWindow*>(parentWidget()))
        marco->close();
    else
        close();
}

void FrmConDatos::closeEvent(QCloseEvent* evento)
{
    QWidget::closeEvent(evento);
    if (m_cerrado)
        return;
    m_cerrado = true;
    m_cerrando = true;
    Proceso::Protegido([] {
        ActualizarMenus();
        if (ConDatos().LISTA == QLatin1String("S")) {
            ConLista().ENTRADA = QStringLiteral("P");
            FrmConLista::Abrir();
        }
    });
}
