#include "paneles/declaracion/BloqueVehiculo.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "paneles/controles/CajaNum.h"
#include "paneles/controles/Listas.h"
#include "paneles/declaracion/ComprobacionesDeclaracion.h"
#include "paneles/declaracion/PiezasDeclaracion.h"
#include "paneles/dialogos/Mensaje.h"
#include "paneles/partes/CamposDatos.h"
#include "paneles/partes/SalidaCampos.h"
#include "plataforma/Idioma.h"
#include "registros/declaracion/FechaDevengo.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cOperacion.h"
#include "valores/cFecha.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTimer>

namespace {
const QString kMarca = QStringLiteral("X");

// A whole number shown empty when it is 0.
void NumeroOVacio(CajaNum* caja, double valor)
{
    if (valor == 0)
        caja->setText(QString());
    else
        caja->setValue(valor);
}
}  // namespace

BloqueVehiculo::BloqueVehiculo(QWidget* panel, QWidget* d, cDecDatos& registro)
    : BloqueDeclaracion(panel, registro)
{
    txtfechad = new QLineEdit(d);
    txtfechad->setObjectName(QStringLiteral("txtfechad"));
    SeleccionarAlEntrar(txtfechad);
    txtoperacion = CampoTexto(d, "txtoperacion", 3, TipoFiltro::Texto);
    cmbOperacion = new QComboBox(d);
    cmbOperacion->setObjectName(QStringLiteral("cmbOperacion"));
    cmbOperacion->setMinimumContentsLength(40);
    txtreferencia = CampoTexto(d, "txtreferencia", 10, TipoFiltro::Texto);
    chkAdquirido = PiezasDeclaracion::Casilla(d, "chkAdquirido");
    txtmarca = CampoTexto(d, "txtmarca", 15, TipoFiltro::Texto);
    txttipo = CampoTexto(d, "txttipo", 15, TipoFiltro::Texto);
    txtmodelo = CampoTexto(d, "txtmodelo", 20, TipoFiltro::Texto);
    txtbastidor = CampoTexto(d, "txtbastidor", 17, TipoFiltro::Texto);
    txtclasificacion = CajaNumerica(d, "txtclasificacion", 0, 4, QStringLiteral("####"), false);
    txtcilindrada = CajaNumerica(d, "txtcilindrada", 0, 5, QStringLiteral("##,###"), false);
    optmotor = new QFrame(d);
    optmotor->setObjectName(QStringLiteral("optmotor"));
    optDiesel = new QRadioButton(optmotor);
    optDiesel->setObjectName(QStringLiteral("optDiesel"));
    optGasolina = new QRadioButton(optmotor);
    optGasolina->setObjectName(QStringLiteral("optGasolina"));
    auto* motor = new QHBoxLayout(optmotor);
    motor->setContentsMargins(0, 0, 0, 0);
    motor->addWidget(optDiesel);
    motor->addWidget(optGasolina);
}

void BloqueVehiculo::Disponer(QBoxLayout* lineas)
{
    QWidget* d = txtfechad->parentWidget();
    LineaDePanel(lineas, {Etiqueta(d, "lblfechad", kIdEtiquetaFechaDevengo), txtfechad,
                          Etiqueta(d, "lbloperacion", kIdEtiquetaCodigoOperacion), txtoperacion,
                          cmbOperacion});
    LineaDePanel(lineas, {Etiqueta(d, "lblreferencia", kIdEtiquetaReferencia), txtreferencia,
                          chkAdquirido});
    LineaDePanel(lineas,
                 {Etiqueta(d, "lblmarca", kIdEtiquetaMarca), txtmarca,
                  Etiqueta(d, "lbltipo", kIdEtiquetaTipo), txttipo,
                  Etiqueta(d, "lblmodelo", kIdEtiquetaModelo), txtmodelo});
    LineaDePanel(lineas, {Etiqueta(d, "lblbastidor", kIdEtiquetaBastidor), txtbastidor,
                          Etiqueta(d, "lblclasificacion", kIdEtiquetaClasificacion),
                          txtclasificacion, Etiqueta(d, "lblcilindrada", kIdEtiquetaCilindrada),
                          txtcilindrada, optmotor});
    for (auto [campo, caracteres] :
         {std::pair<QWidget*, int>{txtfechad, 10}, {txtoperacion, 3}, {txtreferencia, 10},
          {txtmarca, 12}, {txttipo, 12}, {txtmodelo, 14}, {txtbastidor, 15}, {txtclasificacion, 4},
          {txtcilindrada, 6}})
        AnchoDeCaracteres(campo, caracteres);
}

void BloqueVehiculo::Anadir_captions()
{
    BloqueDeclaracion::Anadir_captions();
    chkAdquirido->setText(Texto(kIdAdquiridoFueraEspana));
    optDiesel->setText(Texto(kIdDiesel));
    optDiesel->setToolTip(Texto(kIdMotorDiesel));
    optGasolina->setText(Texto(kIdGasolina));
    optGasolina->setToolTip(Texto(kIdMotorGasolina));
}

QList<QWidget*> BloqueVehiculo::OrdenDeTabulacion() const
{
    return {txtfechad, txtoperacion, cmbOperacion,     txtreferencia, chkAdquirido, txtmarca,
            txttipo,   txtmodelo,    txtbastidor,      txtclasificacion, txtcilindrada, optDiesel,
            optGasolina};
}

QString BloqueVehiculo::TextoOperacion() const
{
    return cmbOperacion->currentText();
}

QWidget* BloqueVehiculo::CampoInicial() const
{
    return txtfechad;
}

void BloqueVehiculo::FormatosFecha()
{
    // The empty mask is the empty date of cFecha ("__/__/____" or "____/__/__").
    const bool euskera = IdiomaPrograma().esEuskera();
    txtfechad->setInputMask(euskera ? QStringLiteral("9999/99/99;_") : QStringLiteral("99/99/9999;_"));
}

void BloqueVehiculo::LlenarOperaciones(const QStringList& lista)
{
    m_cargandoOperaciones = true;
    cmbOperacion->clear();
    cmbOperacion->addItems(lista);
    BuscarEnCombo(Operacion().DESCRIP, cmbOperacion);
    m_cargandoOperaciones = false;
}

void BloqueVehiculo::SeleccionarOperacion()
{
    cDecDatos& d = m_registro;
    m_cargandoOperaciones = true;
    cmbOperacion->clear();
    cmbOperacion->addItems(d.CargarListaOperaciones());
    // The reduction of the operation is the return's own: a new date or operation keeps it,
    // and no other return's choice stays behind in the shared operation.
    Operacion().T_RED = d.REDUCCION;
    d.ObtenerDatosOperacion(false);
    BuscarEnCombo(Operacion().DESCRIP, cmbOperacion);
    m_cargandoOperaciones = false;
}

// ----- Drawing -----

void BloqueVehiculo::PresentarCampos()
{
    const cDecDatos& d = m_registro;
    // The date is written only when it differs, so that a field being entered keeps its mask.
    const QString fecha = cFecha::LongToString(d.FECHAD, IdiomaPrograma());
    if (txtfechad->displayText() != fecha)
        txtfechad->setText(fecha);
    PonerTexto(txtreferencia, d.REFERENCIA);
    chkAdquirido->setChecked(d.ADQUIRIDO == kMarca);
    PonerTexto(txtmarca, d.MARCA);
    PonerTexto(txttipo, d.TIPO);
    PonerTexto(txtmodelo, d.MODELO);
    PonerTexto(txtbastidor, d.BASTIDOR);
    NumeroOVacio(txtclasificacion, d.CLASIFICACION);
    NumeroOVacio(txtcilindrada, d.CILINDRADA);
    const bool diesel = d.MOTOR == QLatin1String("D");
    optDiesel->setChecked(diesel);
    optGasolina->setChecked(!diesel);
    PonerTexto(txtoperacion, d.OPERACION);
}

// ----- Leaving the fields and clicking -----

void BloqueVehiculo::ConectarCampos()
{
    cDecDatos& d = m_registro;
    VigilarTexto(txtreferencia, d.REFERENCIA);
    VigilarTexto(txtmarca, d.MARCA);
    VigilarTexto(txttipo, d.TIPO);
    VigilarTexto(txtmodelo, d.MODELO);
    VigilarTexto(txtbastidor, d.BASTIDOR);
    SalidaCampos* salidas = m_enlace.salidas;
    salidas->Vigilar(txtfechad, [this] { SalirFecha(); });
    salidas->Vigilar(txtoperacion, [this] { SalirOperacion(); });
    salidas->Vigilar(cmbOperacion, [this] { ElegirOperacion(true); });
    connect(cmbOperacion, &QComboBox::activated, this, [this] { ElegirOperacion(false); });
    salidas->Vigilar(txtclasificacion, [this] { SalirClasificacion(); });
    salidas->Vigilar(txtcilindrada, [this] { SalirCilindrada(); });
    connect(chkAdquirido, &QCheckBox::clicked, this, &BloqueVehiculo::ClicAdquirido);
    connect(optDiesel, &QRadioButton::clicked, this, [this] { ClicMotor(true); });
    connect(optGasolina, &QRadioButton::clicked, this, [this] { ClicMotor(false); });
}

void BloqueVehiculo::SalirClasificacion()
{
    const auto valor = static_cast<int16_t>(txtclasificacion->value());
    if (Saltando() || valor == m_registro.CLASIFICACION)
        return;
    Modificado();
    m_registro.CLASIFICACION = valor;
    m_enlace.redibujar();
}

void BloqueVehiculo::SalirCilindrada()
{
    const auto valor = static_cast<int32_t>(txtcilindrada->value());
    if (Saltando() || valor == m_registro.CILINDRADA)
        return;
    Modificado();
    m_registro.CILINDRADA = valor;
    m_enlace.redibujar();
}

// ----- Date of accrual -----

bool BloqueVehiculo::ComprobarFecha()
{
    return ::ComprobarFecha(txtfechad->displayText(), [this] {
        ActualizarOperacionPorFecha();
        m_enlace.presentar();
    });
}

void BloqueVehiculo::SalirFecha()
{
    if (Saltando())
        return;
    const QString texto = txtfechad->displayText();
    // An empty date keeps the stored one and asks nothing.
    if (texto == cFecha::FecVacia(IdiomaPrograma())
        || cFecha::StringToLong(texto, IdiomaPrograma()) == m_registro.FECHAD)
        return;
    if (ComprobarFecha()) {
        Modificado();
        m_enlace.activarSelectores();
        return;
    }
    // The old date comes back; leaving the field meanwhile is no leaving.
    m_enlace.saltar(true);
    txtfechad->setText(cFecha::LongToString(m_registro.FECHAD, IdiomaPrograma()));
    QApplication::processEvents();
    txtfechad->setFocus(Qt::OtherFocusReason);
    m_enlace.saltar(false);
    // Under a window manager the focus comes back to the panel only after the message box has
    // gone: ask for it once more when the events have settled.
    QTimer::singleShot(0, m_panel, [this] {
        if (m_panel->isActiveWindow() || m_panel->window()->isActiveWindow())
            txtfechad->setFocus(Qt::OtherFocusReason);
    });
}

void BloqueVehiculo::ActualizarOperacionPorFecha()
{
    LlenarOperaciones(::ActualizarOperacionPorFecha(m_enlace.tipoBloqueado()));
}

// ----- Operation -----

void BloqueVehiculo::SalirOperacion()
{
    cDecDatos& d = m_registro;
    const QString texto = txtoperacion->text();
    // Without a date there is no list of operations to choose from.
    if (Saltando() || d.FECHAD == 0)
        return;
    if (texto == d.OPERACION && !texto.trimmed().isEmpty())
        return;
    Modificado();
    d.OPERACION = texto;
    d.ObtenerDatosOperacion(false);
    m_cargandoOperaciones = true;
    BuscarEnCombo(Operacion().DESCRIP, cmbOperacion);  // no entry: the list's text is cleared
    m_cargandoOperaciones = false;
    AplicarOperacion();
    m_enlace.redibujar();
}

void BloqueVehiculo::ElegirOperacion(bool alSalir)
{
    cDecDatos& d = m_registro;
    if (m_cargandoOperaciones || Saltando() || d.FECHAD == 0)
        return;
    if (cmbOperacion->currentIndex() < 0) {
        Mensaje(Texto(kIdSeleccionarCodigoLista), vb::Exclamation,
                Texto(kIdErrorIntroduccionDatos));
        txtoperacion->clear();
        d.OPERACION.clear();
        if (alSalir)
            txtoperacion->setFocus(Qt::OtherFocusReason);
        return;
    }
    const QString texto = cmbOperacion->currentText();
    if (texto == Operacion().DESCRIP)
        return;
    Modificado();
    d.OPERACION = d.DameOperacionporDescripcion(texto);
    txtoperacion->setText(d.OPERACION);
    d.ObtenerDatosOperacion(false);
    AplicarOperacion();
    m_enlace.redibujar();
}

// ----- Marks -----

void BloqueVehiculo::ClicAdquirido(bool marcado)
{
    if (Presentando())
        return;
    m_registro.ADQUIRIDO = marcado ? kMarca : QString();
    Modificado();
    m_enlace.presentar();
}

void BloqueVehiculo::ClicMotor(bool diesel)
{
    if (Presentando())
        return;
    // The rate is not touched: it is the operation's or the one typed.
    m_registro.MOTOR = diesel ? QStringLiteral("D") : QStringLiteral("G");
    Modificado();
    m_enlace.presentar();
}
