// The fields of the return on the declaration form: what leaving each one, or clicking a mark,
// writes into DecDatos() before the panel is drawn again.
#include "catalogo/IdsCatalogo.h"
#include "paneles/declaracion/FrmDeclaracion.h"

#include "catalogo/Catalogo.h"
#include "paneles/controles/CajaNum.h"
#include "paneles/controles/Listas.h"
#include "paneles/declaracion/ComprobacionesDeclaracion.h"
#include "paneles/dialogos/Mensaje.h"
#include "paneles/partes/SalidaCampos.h"
#include "registros/declaracion/Calculo.h"
#include "registros/declaracion/FechaDevengo.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cOperacion.h"
#include "plataforma/Idioma.h"
#include "valores/cFecha.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTimer>

namespace {
const QString kMarca = QStringLiteral("X");
}

void FrmDeclaracion::ConectarCampos()
{
    cDecDatos& d = DecDatos();
    const QList<QPair<QLineEdit*, QString*>> textos = {
        {txtreferencia, &d.REFERENCIA}, {txtmarca, &d.MARCA}, {txttipo, &d.TIPO},
        {txtmodelo, &d.MODELO}, {txtbastidor, &d.BASTIDOR}};
    for (const auto& [campo, valor] : textos)
        m_salidas->Vigilar(campo, [this, campo, valor] { SalirTexto(campo, *valor); });
    m_salidas->Vigilar(txtfechad, [this] { SalirFecha(); });
    m_salidas->Vigilar(txtoperacion, [this] { SalirOperacion(); });
    m_salidas->Vigilar(cmbOperacion, [this] { ElegirOperacion(true); });
    connect(cmbOperacion, &QComboBox::activated, this, [this] { ElegirOperacion(false); });
    m_salidas->Vigilar(txtclasificacion, [this] { SalirClasificacion(); });
    m_salidas->Vigilar(txtcilindrada, [this] { SalirCilindrada(); });
    m_salidas->Vigilar(txtbasei, [this] { SalirBase(); });
    m_salidas->Vigilar(txttipoimp, [this] { SalirTipo(); });

    connect(chkAdquirido, &QCheckBox::clicked, this, &FrmDeclaracion::ClicAdquirido);
    connect(optDiesel, &QRadioButton::clicked, this, [this] { ClicMotor(true); });
    connect(optGasolina, &QRadioButton::clicked, this, [this] { ClicMotor(false); });
    connect(chkexento, &QCheckBox::clicked, this, &FrmDeclaracion::ClicExento);
    connect(chknosujeto, &QCheckBox::clicked, this, &FrmDeclaracion::ClicNoSujeto);
    connect(chkReduccion1, &QCheckBox::clicked, this, [this] { ClicReduccion(); });
    connect(chkReduccion2, &QCheckBox::clicked, this, [this] { ClicReduccion(); });
    connect(chkConPresentador, &QCheckBox::clicked, this, &FrmDeclaracion::ClicConPresentador);
}

void FrmDeclaracion::Modificado()
{
    DecDatos().MODIFICADO = true;
}

void FrmDeclaracion::CalcularValores()
{
    ::CalcularValores();
    PresentarDeclaracion();
}

// ----- Plain fields -----

void FrmDeclaracion::SalirTexto(QLineEdit* campo, QString& valor)
{
    if (m_saltarValidacion || campo->text() == valor)
        return;
    Modificado();
    valor = campo->text();
    Redibujar();
}

void FrmDeclaracion::SalirClasificacion()
{
    cDecDatos& d = DecDatos();
    const auto valor = static_cast<int16_t>(txtclasificacion->value());
    if (m_saltarValidacion || valor == d.CLASIFICACION)
        return;
    Modificado();
    d.CLASIFICACION = valor;
    Redibujar();
}

void FrmDeclaracion::SalirCilindrada()
{
    cDecDatos& d = DecDatos();
    const auto valor = static_cast<int32_t>(txtcilindrada->value());
    if (m_saltarValidacion || valor == d.CILINDRADA)
        return;
    Modificado();
    d.CILINDRADA = valor;
    Redibujar();
}

// ----- Date of accrual -----

bool FrmDeclaracion::ComprobarFecha()
{
    return ::ComprobarFecha(txtfechad->displayText(), [this] {
        ActualizarOperacionPorFecha();
        PresentarDeclaracion();
    });
}

void FrmDeclaracion::SalirFecha()
{
    if (m_saltarValidacion)
        return;
    const QString texto = txtfechad->displayText();
    // An empty date keeps the stored one and asks nothing.
    if (texto == cFecha::FecVacia(IdiomaPrograma()) || cFecha::StringToLong(texto, IdiomaPrograma()) == DecDatos().FECHAD)
        return;
    if (ComprobarFecha()) {
        Modificado();
        ActivarSelectores();
        return;
    }
    // The old date comes back; leaving the field meanwhile is no leaving.
    m_saltarValidacion = true;
    txtfechad->setText(cFecha::LongToString(DecDatos().FECHAD, IdiomaPrograma()));
    QApplication::processEvents();
    txtfechad->setFocus(Qt::OtherFocusReason);
    m_saltarValidacion = false;
    // Under a window manager the focus comes back to the panel only after the message box has
    // gone: ask for it once more when the events have settled.
    QTimer::singleShot(0, this, [this] {
        if (isActiveWindow() || window()->isActiveWindow())
            txtfechad->setFocus(Qt::OtherFocusReason);
    });
}

void FrmDeclaracion::ActualizarOperacionPorFecha()
{
    m_cargandoOperaciones = true;
    const QStringList lista = ::ActualizarOperacionPorFecha(txttipoimp->locked());
    cmbOperacion->clear();
    cmbOperacion->addItems(lista);
    BuscarEnCombo(Operacion().DESCRIP, cmbOperacion);
    m_cargandoOperaciones = false;
}

// ----- Operation -----

void FrmDeclaracion::SalirOperacion()
{
    cDecDatos& d = DecDatos();
    const QString texto = txtoperacion->text();
    // Without a date there is no list of operations to choose from.
    if (m_saltarValidacion || d.FECHAD == 0)
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
    Redibujar();
}

void FrmDeclaracion::ElegirOperacion(bool alSalir)
{
    cDecDatos& d = DecDatos();
    if (m_cargandoOperaciones || m_saltarValidacion || d.FECHAD == 0)
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
    Redibujar();
}

// ----- Amounts -----

void FrmDeclaracion::SalirBase()
{
    cDecDatos& d = DecDatos();
    const Importe base = BaseDeTexto(txtbasei->text());
    if (m_saltarValidacion || base == d.BASEI)
        return;
    Modificado();
    d.BASEI = base;
    CalcularValores();
}

void FrmDeclaracion::SalirTipo()
{
    const ResultadoTipo r = ValidarTipoImpositivo(txttipoimp->value(), txttipoimp->locked(),
                                                  m_saltarValidacion);
    if (r.presentar) {
        Modificado();
        PresentarDeclaracion();
    }
    if (r.volverAlTipo)
        txttipoimp->setFocus(Qt::OtherFocusReason);
}

// ----- Marks -----

void FrmDeclaracion::ClicAdquirido(bool marcado)
{
    if (m_presentandoDatos)
        return;
    DecDatos().ADQUIRIDO = marcado ? kMarca : QString();
    Modificado();
    PresentarDeclaracion();
}

void FrmDeclaracion::ClicMotor(bool diesel)
{
    if (m_presentandoDatos)
        return;
    // The rate is not touched: it is the operation's or the one typed.
    DecDatos().MOTOR = diesel ? QStringLiteral("D") : QStringLiteral("G");
    Modificado();
    PresentarDeclaracion();
}

void FrmDeclaracion::ClicExento(bool marcado)
{
    if (m_presentandoDatos)
        return;
    cDecDatos& d = DecDatos();
    Modificado();
    if (!marcado) {
        // Unticking computes nothing: the rate stays 0 until an operation is chosen again.
        d.EXENTO.clear();
        PresentarDeclaracion();
        return;
    }
    d.EXENTO = kMarca;
    d.NOSUJETO.clear();
    d.TIPOIMP = 0;
    CalcularValores();
}

void FrmDeclaracion::ClicNoSujeto(bool marcado)
{
    if (m_presentandoDatos)
        return;
    cDecDatos& d = DecDatos();
    Modificado();
    if (!marcado) {
        d.NOSUJETO.clear();
        PresentarDeclaracion();
        return;
    }
    d.NOSUJETO = kMarca;
    d.EXENTO.clear();
    d.TIPOIMP = 0;
    CalcularValores();
}

void FrmDeclaracion::ClicReduccion()
{
    if (m_presentandoDatos)
        return;
    Modificado();
    ActualizarReduccion({chkReduccion1->isEnabled(), chkReduccion1->isChecked(),
                         chkReduccion2->isEnabled(), chkReduccion2->isChecked()});
    CalcularValores();
}

void FrmDeclaracion::ClicConPresentador(bool marcado)
{
    if (m_presentandoDatos || marcado)
        return;
    // A presenter is only added through CmdPresentador; the box only takes it away.
    cDecDatos& d = DecDatos();
    d.CSPR = 0;
    d.NOMBREPR.clear();
    d.DNIPR.clear();
    Modificado();
    Redibujar();
}
