#include "paneles/declaracion/BloqueTransmitente.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "paneles/controles/CajaNum.h"
#include "paneles/declaracion/PiezasDeclaracion.h"
#include "paneles/dialogos/Mensaje.h"
#include "paneles/partes/BloqueDomicilio.h"
#include "paneles/partes/CamposDatos.h"
#include "paneles/partes/SalidaCampos.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/nucleo/CEntrada.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

// A box takes a format only when it changes: formatting its text again costs a redraw.
void PonerFormato(CajaNum* caja, const QString& formato)
{
    if (caja->formato() != formato)
        caja->setFormato(formato);
}

}  // namespace

BloqueTransmitente::BloqueTransmitente(QWidget* panel, QWidget* t, cDecDatos& r)
    : BloqueDeclaracion(panel, r)
{
    cmdTransmitente = PiezasDeclaracion::Boton(t, "cmdTransmitente");
    chktipodnitr = PiezasDeclaracion::Casilla(t, "chktipodnitr");
    chktipodomitr = PiezasDeclaracion::Casilla(t, "chktipodomitr");
    txtdnitr = CampoTexto(t, "txtdnitr", 9, TipoFiltro::Texto);
    txtnombretr = CampoTexto(t, "txtnombretr", 40, TipoFiltro::Texto);
    m_dom = new BloqueDomicilio(panel, t, QStringLiteral("tr"),
                                {r.VIATR, r.DOMICILIOTR, r.NUMEROTR, r.LETRATR, r.ESCALERATR,
                                 r.PISOTR, r.MANOTR, r.CODPROVTR, &r.NOMPROVTR, r.CODPOSTR,
                                 r.CODMUNTR, r.NOMMUNTR},
                                MarcaCambios::AlSalir, true);
    txtpaistr = CampoTexto(t, "txtpaistr", 20, TipoFiltro::Texto, true);
    // The codes show their significant digits only; the postal code follows the kind of
    // domicile (PresentarCampos).
    m_dom->txtcodprov->setFormato(QStringLiteral("##"));
    m_dom->txtcodpos->setFormato(QStringLiteral("#####"));
    m_dom->txtcodmun->setFormato(QStringLiteral("###"));
}

void BloqueTransmitente::Disponer(QBoxLayout* lineas)
{
    QWidget* t = txtdnitr->parentWidget();
    LineaDePanel(lineas, {cmdTransmitente, chktipodnitr, chktipodomitr});
    LineaDePanel(lineas,
                 {Etiqueta(t, "lbldnitr", kIdDniCif), txtdnitr,
                  Etiqueta(t, "lblnombretr", kIdEtiquetaApellidosNombre), txtnombretr});
    m_dom->Lineas(lineas);
    LineaDePanel(lineas, {Etiqueta(t, "lblpaistr", kIdEtiquetaPais), txtpaistr});
    m_dom->Anchos();
    AnchoDeCaracteres(txtdnitr, 9);
    AnchoDeCaracteres(txtnombretr, 28);
    AnchoDeCaracteres(txtpaistr, 16);
}

void BloqueTransmitente::Anadir_captions()
{
    BloqueDeclaracion::Anadir_captions();
    cmdTransmitente->setText(Texto(kIdBotonSeleccionTransmitente));
    chktipodnitr->setText(Texto(kIdDniExtranjero));
    chktipodomitr->setText(Texto(kIdDomicilioExtranjero));
    m_dom->Anadir_captions();
}

QList<QWidget*> BloqueTransmitente::OrdenDeTabulacion() const
{
    return QList<QWidget*>{cmdTransmitente, chktipodnitr, chktipodomitr, txtdnitr, txtnombretr}
        << m_dom->OrdenDeTabulacion() << txtpaistr;
}

void BloqueTransmitente::ActivarSelectores()
{
    m_dom->ActivarSelectores(m_registro.TIPODOMITR == QLatin1String("N"));
    cmdTransmitente->setEnabled(Entrada().NUMCONTRI > 0);
}

void BloqueTransmitente::PresentarCampos()
{
    const cDecDatos& d = m_registro;
    PonerTexto(txtdnitr, d.DNITR);
    PonerTexto(txtnombretr, d.NOMBRETR);
    PonerTexto(txtpaistr, d.PAISTR);
    const bool nacional = d.TIPODOMITR == QLatin1String("N");
    // A foreign postal code is shown as it was typed.
    PonerFormato(m_dom->txtcodpos, nacional ? QStringLiteral("00000") : QString());
    m_dom->Presentar(nacional && d.CODPROVTR == QLatin1String("77"));
    AbrirCampo(m_dom->txtcodprov, nacional);
    AbrirCampo(txtpaistr, !nacional);
    AbrirCampo(m_dom->txtnomprov, !nacional);
    if (!nacional)
        AbrirCampo(m_dom->txtcodmun, false);

    chktipodnitr->setChecked(d.TIPODNITR == QLatin1String("N"));
    chktipodomitr->setChecked(d.TIPODOMITR == QLatin1String("E"));
    // A subject is official and national: a transmitter who is, or may be, a subject keeps
    // both boxes as they are. Only a stored contributor can be that: the same number typed on
    // both tabs without one leaves them free.
    const bool sujetoDeEsta = d.CSSU == d.CSTRA && d.CSSU != 0;
    const bool libre = d.DECLASP <= 0 && !sujetoDeEsta;
    chktipodnitr->setEnabled(libre);
    chktipodomitr->setEnabled(libre);
}

void BloqueTransmitente::ConectarCampos()
{
    cDecDatos& d = m_registro;
    // After any choice in a picker the focus goes to Aceptar; on the way out no field of the
    // address writes the record.
    m_dom->Conectar({m_enlace.salidas,
                     [this] {
                         m_enlace.domicilioCambiado(false);
                         m_enlace.redibujar();
                     },
                     m_enlace.modificado, m_enlace.saltando, m_enlace.aceptar, m_enlace.aceptar,
                     m_enlace.aceptar, true});
    SalidaCampos* salidas = m_enlace.salidas;
    salidas->Vigilar(txtdnitr, [this] { SalirDni(); });
    VigilarTexto(txtnombretr, d.NOMBRETR);
    salidas->Vigilar(txtpaistr, [this, &d] {
        if (!txtpaistr->isReadOnly())
            SalirTexto(txtpaistr, d.PAISTR);
    });
    for (QWidget* salida : {static_cast<QWidget*>(cmdTransmitente),
                            static_cast<QWidget*>(chktipodnitr)}) {
        salidas->setBotonCancelar(salida, [this] { m_enlace.saltar(true); });
        salida->installEventFilter(this);
    }
    connect(chktipodnitr, &QCheckBox::clicked, this, &BloqueTransmitente::ClicTipoDni);
    connect(chktipodomitr, &QCheckBox::clicked, this, &BloqueTransmitente::ClicTipoDomi);
    connect(cmdTransmitente, &QPushButton::clicked, this,
            [this] { m_enlace.elegir(EleccionParte::Transmitente); });
}

bool BloqueTransmitente::eventFilter(QObject* objeto, QEvent* evento)
{
    // A press that takes no focus from a field (none had it) raises the flag all the same.
    if (evento->type() == QEvent::MouseButtonPress
        && (objeto == cmdTransmitente || objeto == chktipodnitr))
        m_enlace.saltar(true);
    return QObject::eventFilter(objeto, evento);
}

void BloqueTransmitente::SalirDni()
{
    cDecDatos& d = m_registro;
    const QString texto = txtdnitr->text();
    if (Saltando() || texto.trimmed().isEmpty() || texto == d.DNITR)
        return;
    // A stored contributor is taken as it is: a transmitter may be foreign.
    const std::optional<Contribuyente> parte = d.ExisteContribuyente(texto);
    if (parte) {
        Modificado();
        d.CargarTransmitente(*parte);
        if (d.CSSU == d.CSTRA)
            d.VolcarTrSp();
    } else {
        if (d.TIPODNITR == QLatin1String("O") && !d.ValidarDniOficial(texto)) {
            Mensaje(Texto(kIdDniCifErroneoODigitoControl), vb::Information,
                    m_panel->windowTitle());
            m_enlace.presentar();
            m_enlace.mostrarPestana(1);
            txtdnitr->setFocus(Qt::OtherFocusReason);
            return;
        }
        if (d.CSTRA != 0) {
            if (Mensaje(Texto(kIdPreguntaCargarNuevoContribuyente),
                        vb::YesNo + vb::Question + vb::DefaultButton2, m_panel->windowTitle())
                != vb::Yes) {
                m_enlace.presentar();
                return;
            }
            Modificado();
            d.CargarTransmitente(Contribuyente());  // the party is cleared
            d.DNITR = texto;
            d.TIPODNITR = QStringLiteral("O");
            d.TIPODOMITR = QStringLiteral("N");
            d.CODPROVTR = QStringLiteral("77");
            d.VIATR = QStringLiteral("CL");
        } else {
            Modificado();
            d.DNITR = texto;
        }
        if (d.DNISP == d.DNITR)
            d.VolcarTrSp();
    }
    m_enlace.cargarNombres();
    m_enlace.redibujar();
}

void BloqueTransmitente::ClicTipoDni(bool marcado)
{
    m_enlace.saltar(false);
    if (Presentando())
        return;
    Modificado();
    m_registro.TIPODNITR = marcado ? QStringLiteral("N") : QStringLiteral("O");
    m_enlace.redibujar();
    if (txtdnitr->isEnabled() && txtdnitr->isVisible())
        txtdnitr->setFocus(Qt::OtherFocusReason);
}

void BloqueTransmitente::ClicTipoDomi(bool marcado)
{
    if (Presentando())
        return;
    cDecDatos& d = m_registro;
    Modificado();
    if (marcado) {
        d.TIPODOMITR = QStringLiteral("E");
        d.CODPROVTR.clear();
        d.CODMUNTR.clear();
        d.NOMMUNTR.clear();
        d.NOMPROVTR.clear();
    } else {
        d.TIPODOMITR = QStringLiteral("N");
        d.PAISTR.clear();
        d.NOMPROVTR.clear();
        d.NOMMUNTR.clear();
    }
    m_enlace.cargarNombres();
    m_enlace.redibujar();
    if (m_dom->txtvia->isEnabled() && m_dom->txtvia->isVisible())
        m_dom->txtvia->setFocus(Qt::OtherFocusReason);
}
