#include "paneles/declaracion/BloqueSujeto.h"

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
#include "valores/Val.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

// A subject must have an official number and a national address.
bool SirveDeSujeto(const Contribuyente& parte)
{
    return parte.TIPODNI == QLatin1String("O") && parte.TIPODOMI == QLatin1String("N");
}

}  // namespace

BloqueSujeto::BloqueSujeto(QWidget* panel, QWidget* s, cDecDatos& r)
    : BloqueDeclaracion(panel, r)
{
    cmdSujetoPasivo = PiezasDeclaracion::Boton(s, "cmdSujetoPasivo");
    txtdnisp = CampoTexto(s, "txtdnisp", 9, TipoFiltro::Texto);
    txtnombresp = CampoTexto(s, "txtnombresp", 40, TipoFiltro::Texto);
    // The subject's province name is never typed: it is always looked up from its code.
    m_dom = new BloqueDomicilio(panel, s, QStringLiteral("sp"),
                                {r.VIASP, r.DOMICILIOSP, r.NUMEROSP, r.LETRASP, r.ESCALERASP,
                                 r.PISOSP, r.MANOSP, r.CODPROVSP, nullptr, r.CODPOSSP, r.CODMUNSP,
                                 r.NOMMUNSP},
                                MarcaCambios::AlSalir, true);
    // The codes show their significant digits only.
    m_dom->txtcodprov->setFormato(QStringLiteral("##"));
    m_dom->txtcodpos->setFormato(QStringLiteral("#####"));
    m_dom->txtcodmun->setFormato(QStringLiteral("###"));
}

void BloqueSujeto::Disponer(QBoxLayout* lineas)
{
    QWidget* s = txtdnisp->parentWidget();
    LineaDePanel(lineas, {cmdSujetoPasivo});
    LineaDePanel(lineas,
                 {Etiqueta(s, "lbldnisp", kIdDniCif), txtdnisp,
                  Etiqueta(s, "lblnombresp", kIdEtiquetaApellidosNombre), txtnombresp});
    m_dom->Lineas(lineas);
    m_dom->Anchos();
    AnchoDeCaracteres(txtdnisp, 9);
    AnchoDeCaracteres(txtnombresp, 28);
}

void BloqueSujeto::Anadir_captions()
{
    BloqueDeclaracion::Anadir_captions();
    cmdSujetoPasivo->setText(Texto(kIdBotonSeleccionSujetoPasivo));
    m_dom->Anadir_captions();
}

QList<QWidget*> BloqueSujeto::OrdenDeTabulacion() const
{
    return QList<QWidget*>{cmdSujetoPasivo, txtdnisp, txtnombresp} << m_dom->OrdenDeTabulacion();
}

void BloqueSujeto::ActivarSelectores()
{
    m_dom->ActivarSelectores(true);
    cmdSujetoPasivo->setEnabled(Entrada().NUMCONTRI > 0);
}

void BloqueSujeto::PresentarCampos()
{
    const cDecDatos& d = m_registro;
    PonerTexto(txtdnisp, d.DNISP);
    PonerTexto(txtnombresp, d.NOMBRESP);
    m_dom->Presentar(Val(d.CODPROVSP) == 77);
    if (Val(d.CODPROVSP) == 0)
        m_dom->txtnomprov->clear();
}

void BloqueSujeto::ConectarCampos()
{
    // After any choice in a picker the focus goes to Aceptar; on the way out no field of the
    // address writes the record.
    m_dom->Conectar({m_enlace.salidas,
                     [this] {
                         m_enlace.domicilioCambiado(true);
                         m_enlace.redibujar();
                     },
                     m_enlace.modificado, m_enlace.saltando, m_enlace.aceptar, m_enlace.aceptar,
                     m_enlace.aceptar, true});
    m_enlace.salidas->Vigilar(txtdnisp, [this] { SalirDni(); });
    VigilarTexto(txtnombresp, m_registro.NOMBRESP);
    connect(cmdSujetoPasivo, &QPushButton::clicked, this,
            [this] { m_enlace.elegir(EleccionParte::Sujeto); });
}

void BloqueSujeto::RechazarDni(int idMensaje, bool mostrarPestana)
{
    Mensaje(Texto(idMensaje), vb::Information, m_panel->windowTitle());
    m_enlace.presentar();
    if (mostrarPestana)
        m_enlace.mostrarPestana(0);
    txtdnisp->setFocus(Qt::OtherFocusReason);
}

void BloqueSujeto::SalirDni()
{
    cDecDatos& d = m_registro;
    const QString texto = txtdnisp->text();
    if (Saltando() || texto.trimmed().isEmpty() || texto == d.DNISP)
        return;
    if (!d.ValidarDniOficial(texto)) {
        RechazarDni(kIdDniCifErroneoODigitoControl, true);
        return;
    }
    const std::optional<Contribuyente> parte = d.ExisteContribuyente(texto);
    if (parte) {
        if (!SirveDeSujeto(*parte)) {
            RechazarDni(kIdDniOficialDomicilioNacional, false);
            return;
        }
        Modificado();
        d.CargarSujetoPasivo(*parte);
        if (d.CSSU == d.CSTRA)
            d.VolcarSpTR();
    } else if (d.CSSU != 0) {
        // The return shows another stored contributor: the user says whether to drop it.
        if (Mensaje(Texto(kIdPreguntaCargarNuevoContribuyente),
                    vb::YesNo + vb::Question + vb::DefaultButton2, m_panel->windowTitle())
            != vb::Yes) {
            m_enlace.presentar();
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
    m_enlace.cargarNombres();
    m_enlace.redibujar();
}
