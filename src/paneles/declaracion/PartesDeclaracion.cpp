// The parties on the declaration form: the subject and the transmitter typed by their number
// (looked up among the contributors), their addresses with the pickers, the mirroring of the
// address when one party stands on both sides, the transmitter's national or foreign boxes,
// the tab strip, and the way to choose a party from a list.
#include "catalogo/IdsCatalogo.h"
#include "paneles/declaracion/FrmDeclaracion.h"

#include "catalogo/Catalogo.h"
#include "paneles/controles/CajaNum.h"
#include "paneles/dialogos/Mensaje.h"
#include "paneles/partes/BloqueDomicilio.h"
#include "paneles/partes/SalidaCampos.h"
#include "registros/declaracion/cDecDatos.h"

#include <QCheckBox>
#include <QFrame>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QStackedLayout>
#include <QTabBar>

namespace {

// A subject must have an official number and a national address.
bool SirveDeSujeto(const Contribuyente& parte)
{
    return parte.TIPODNI == QLatin1String("O") && parte.TIPODOMI == QLatin1String("N");
}

}  // namespace

void FrmDeclaracion::ConectarPartes()
{
    cDecDatos& d = DecDatos();
    auto saltar = [this] { return m_saltarValidacion; };
    auto modificado = [this] { Modificado(); };
    // After any choice in a picker the focus goes to Aceptar; on the way out no field of an
    // address writes the record.
    m_domSp->Conectar({m_salidas, [this] { EspejoDomicilio(true); Redibujar(); }, modificado, saltar,
                       cmdAceptar, cmdAceptar, cmdAceptar, true});
    m_domTr->Conectar({m_salidas, [this] { EspejoDomicilio(false); Redibujar(); }, modificado, saltar,
                       cmdAceptar, cmdAceptar, cmdAceptar, true});
    m_salidas->Vigilar(txtdnisp, [this] { SalirDniSujeto(); });
    m_salidas->Vigilar(txtdnitr, [this] { SalirDniTransmitente(); });
    m_salidas->Vigilar(txtnombresp, [this, &d] { SalirTexto(txtnombresp, d.NOMBRESP); });
    m_salidas->Vigilar(txtnombretr, [this, &d] { SalirTexto(txtnombretr, d.NOMBRETR); });
    m_salidas->Vigilar(txtpaistr, [this, &d] {
        if (!txtpaistr->isReadOnly())
            SalirTexto(txtpaistr, d.PAISTR);
    });

    // The ways out of a bad field: the press comes before the field is left. The subject's
    // button is not one of them, as it never was.
    auto escapar = [this] { m_saltarValidacion = true; };
    for (QWidget* salida : {static_cast<QWidget*>(cmdCancelar), static_cast<QWidget*>(cmdTransmitente),
                            static_cast<QWidget*>(chktipodnitr)}) {
        m_salidas->setBotonCancelar(salida, escapar);
        salida->installEventFilter(this);
    }

    connect(chktipodnitr, &QCheckBox::clicked, this, &FrmDeclaracion::ClicTipoDniTr);
    connect(chktipodomitr, &QCheckBox::clicked, this, &FrmDeclaracion::ClicTipoDomiTr);
    // A tab chosen by the mouse or by its access key; a click on the tab already shown.
    connect(tabTerceros, &QTabBar::currentChanged, this, &FrmDeclaracion::CambioDePestana);
    connect(tabTerceros, &QTabBar::tabBarClicked, this, [this](int pestana) {
        if (pestana >= 0 && pestana == tabTerceros->currentIndex())
            ClicPestana(pestana);
    });
    connect(cmdSujetoPasivo, &QPushButton::clicked, this, [this] { Elegir(EleccionParte::Sujeto); });
    connect(cmdTransmitente, &QPushButton::clicked, this,
            [this] { Elegir(EleccionParte::Transmitente); });
    connect(CmdPresentador, &QPushButton::clicked, this,
            [this] { Elegir(EleccionParte::Presentador); });
}

bool FrmDeclaracion::eventFilter(QObject* objeto, QEvent* evento)
{
    // A press that takes no focus from a field (none had it) raises the flag all the same.
    if (evento->type() == QEvent::MouseButtonPress
        && (objeto == cmdCancelar || objeto == cmdTransmitente || objeto == chktipodnitr))
        m_saltarValidacion = true;
    return QWidget::eventFilter(objeto, evento);
}

// ----- The subject's number -----

void FrmDeclaracion::SalirDniSujeto()
{
    cDecDatos& d = DecDatos();
    const QString texto = txtdnisp->text();
    if (m_saltarValidacion || texto.trimmed().isEmpty() || texto == d.DNISP)
        return;
    if (!d.ValidarDniOficial(texto)) {
        Mensaje(Texto(kIdDniCifErroneoODigitoControl), vb::Information, windowTitle());
        PresentarDeclaracion();
        MostrarPestana(0);
        txtdnisp->setFocus(Qt::OtherFocusReason);
        return;
    }
    const std::optional<Contribuyente> parte = d.ExisteContribuyente(texto);
    if (parte) {
        if (!SirveDeSujeto(*parte)) {
            Mensaje(Texto(kIdDniOficialDomicilioNacional), vb::Information, windowTitle());
            PresentarDeclaracion();
            txtdnisp->setFocus(Qt::OtherFocusReason);
            return;
        }
        Modificado();
        d.CargarSujetoPasivo(*parte);
        if (d.CSSU == d.CSTRA)
            d.VolcarSpTR();
    } else if (d.CSSU != 0) {
        // The return shows another stored contributor: the user says whether to drop it.
        if (Mensaje(Texto(kIdPreguntaCargarNuevoContribuyente), vb::YesNo + vb::Question
                    + vb::DefaultButton2, windowTitle()) != vb::Yes) {
            PresentarDeclaracion();
            return;
        }
        Modificado();
        d.CargarSujetoPasivo(Contribuyente());  // the party is cleared
        d.DNISP = texto;
        d.CODPROVSP = QStringLiteral("77");
        d.VIASP = QStringLiteral("CL");
        d.CODMUNSP.clear();
        d.NOMMUNSP.clear();
        if (d.DNISP == d.DNITR)
            d.VolcarSpTR();
    } else {
        Modificado();
        d.DNISP = texto;
        if (d.DNISP == d.DNITR)
            d.VolcarSpTR();
    }
    CargarNombres();
    Redibujar();
}

// ----- The transmitter's number -----

void FrmDeclaracion::SalirDniTransmitente()
{
    cDecDatos& d = DecDatos();
    const QString texto = txtdnitr->text();
    if (m_saltarValidacion || texto.trimmed().isEmpty() || texto == d.DNITR)
        return;
    // A stored contributor is taken as it is: a transmitter may be foreign.
    const std::optional<Contribuyente> parte = d.ExisteContribuyente(texto);
    if (parte) {
        Modificado();
        d.CargarTransmitente(*parte);
        if (d.CSSU == d.CSTRA)
            d.VolcarTrSp();
    } else {
        if (d.TIPODNITR == QLatin1String("O")) {
            if (!d.ValidarDniOficial(texto)) {
                Mensaje(Texto(kIdDniCifErroneoODigitoControl), vb::Information, windowTitle());
                PresentarDeclaracion();
                MostrarPestana(1);
                txtdnitr->setFocus(Qt::OtherFocusReason);
                return;
            }
        }
        if (d.CSTRA != 0) {
            if (Mensaje(Texto(kIdPreguntaCargarNuevoContribuyente), vb::YesNo + vb::Question
                        + vb::DefaultButton2, windowTitle()) != vb::Yes) {
                PresentarDeclaracion();
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
    CargarNombres();
    Redibujar();
}

// ----- National or foreign transmitter -----

void FrmDeclaracion::ClicTipoDniTr(bool marcado)
{
    m_saltarValidacion = false;
    if (m_presentandoDatos)
        return;
    Modificado();
    DecDatos().TIPODNITR = marcado ? QStringLiteral("N") : QStringLiteral("O");
    Redibujar();
    if (txtdnitr->isEnabled() && txtdnitr->isVisible())
        txtdnitr->setFocus(Qt::OtherFocusReason);
}

void FrmDeclaracion::ClicTipoDomiTr(bool marcado)
{
    if (m_presentandoDatos)
        return;
    cDecDatos& d = DecDatos();
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
    CargarNombres();
    Redibujar();
    if (m_domTr->txtvia->isEnabled() && m_domTr->txtvia->isVisible())
        m_domTr->txtvia->setFocus(Qt::OtherFocusReason);
}

// ----- One party on both sides -----

void FrmDeclaracion::EspejoDomicilio(bool desdeSujeto)
{
    if (!MismaParte())
        return;
    // The address just changed on one side is the other side's too. Names and numbers of the
    // party are not copied here.
    cDecDatos& d = DecDatos();
    auto copiar = [](auto& a, auto& b) { b = a; };
    if (desdeSujeto) {
        copiar(d.VIASP, d.VIATR);
        copiar(d.DOMICILIOSP, d.DOMICILIOTR);
        copiar(d.NUMEROSP, d.NUMEROTR);
        copiar(d.LETRASP, d.LETRATR);
        copiar(d.ESCALERASP, d.ESCALERATR);
        copiar(d.PISOSP, d.PISOTR);
        copiar(d.MANOSP, d.MANOTR);
        copiar(d.CODPROVSP, d.CODPROVTR);
        copiar(d.CODPOSSP, d.CODPOSTR);
        copiar(d.CODMUNSP, d.CODMUNTR);
        copiar(d.NOMMUNSP, d.NOMMUNTR);
    } else {
        copiar(d.VIATR, d.VIASP);
        copiar(d.DOMICILIOTR, d.DOMICILIOSP);
        copiar(d.NUMEROTR, d.NUMEROSP);
        copiar(d.LETRATR, d.LETRASP);
        copiar(d.ESCALERATR, d.ESCALERASP);
        copiar(d.PISOTR, d.PISOSP);
        copiar(d.MANOTR, d.MANOSP);
        copiar(d.CODPROVTR, d.CODPROVSP);
        copiar(d.CODPOSTR, d.CODPOSSP);
        copiar(d.CODMUNTR, d.CODMUNSP);
        copiar(d.NOMMUNTR, d.NOMMUNSP);
    }
    CargarNombres();
}

// ----- The tab strip -----

void FrmDeclaracion::MostrarPestana(int pestana)
{
    m_mostrandoPestana = true;
    tabTerceros->setCurrentIndex(pestana);
    m_mostrandoPestana = false;
    m_pilaTerceros->setCurrentIndex(pestana);
}

void FrmDeclaracion::CambioDePestana(int pestana)
{
    if (m_mostrandoPestana || pestana < 0)
        return;
    // The field being typed in is left while its frame still shows: its leaving may keep the
    // user there (a message, a picker), and then the strip goes back to that frame's tab.
    const int anterior = m_pilaTerceros->currentIndex();
    QWidget* marco = m_pilaTerceros->currentWidget();
    if (QWidget* foco = focusWidget(); anterior != pestana && foco && marco->isAncestorOf(foco)) {
        tabTerceros->setFocus(Qt::MouseFocusReason);
        if (focusWidget() != tabTerceros) {
            MostrarPestana(m_pilaTerceros->currentIndex());
            return;
        }
    }
    ClicPestana(pestana);
}

void FrmDeclaracion::ClicPestana(int pestana)
{
    MostrarPestana(pestana);
    QLineEdit* campo = pestana == 0 ? txtdnisp : txtdnitr;
    campo->setFocus(Qt::MouseFocusReason);
}

// ----- Choosing a party from a list -----

void FrmDeclaracion::Elegir(EleccionParte parte)
{
    emit pideEleccion(parte);
}
