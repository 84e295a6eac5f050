// What joins the two parties on the declaration form: the tab strip that shows one of them,
// the mirroring of the address when one party stands on both sides, the way out through
// Cancelar, and the choosing of a party from a list.
#include "paneles/declaracion/FrmDeclaracion.h"

#include "paneles/declaracion/BloqueSujeto.h"
#include "paneles/declaracion/BloqueTransmitente.h"
#include "paneles/partes/BloqueDomicilio.h"
#include "registros/declaracion/cDecDatos.h"

#include <QEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedLayout>
#include <QTabBar>

bool FrmDeclaracion::eventFilter(QObject* objeto, QEvent* evento)
{
    // A press that takes no focus from a field (none had it) raises the flag all the same.
    if (evento->type() == QEvent::MouseButtonPress && objeto == cmdCancelar)
        m_saltarValidacion = true;
    return QWidget::eventFilter(objeto, evento);
}

// ----- One party on both sides -----

bool FrmDeclaracion::MismaParte() const
{
    // Two empty numbers are no party yet, let alone the same one.
    const cDecDatos& d = DecDatos();
    return (!d.DNISP.trimmed().isEmpty() && d.DNISP == d.DNITR)
        || (d.CSSU == d.CSTRA && d.CSSU != 0);
}

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
    QLineEdit* campo = pestana == 0 ? m_sujeto->CampoDni() : m_transmitente->CampoDni();
    campo->setFocus(Qt::MouseFocusReason);
}

// ----- Choosing a party from a list -----

void FrmDeclaracion::Elegir(EleccionParte parte)
{
    emit pideEleccion(parte);
}
