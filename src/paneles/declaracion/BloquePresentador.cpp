#include "paneles/declaracion/BloquePresentador.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "paneles/declaracion/PiezasDeclaracion.h"
#include "paneles/partes/CamposDatos.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/nucleo/CEntrada.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

BloquePresentador::BloquePresentador(QWidget* panel, QWidget* p, cDecDatos& registro)
    : BloqueDeclaracion(panel, registro)
{
    CmdPresentador = PiezasDeclaracion::Boton(p, "CmdPresentador");
    chkConPresentador = PiezasDeclaracion::Casilla(p, "chkConPresentador");
    txtdnipr = PiezasDeclaracion::Muestra(p, "txtdnipr", 9);
    txtnombrepr = PiezasDeclaracion::Muestra(p, "txtnombrepr", 40);
}

void BloquePresentador::Disponer(QBoxLayout* lineas)
{
    QWidget* p = CmdPresentador->parentWidget();
    LineaDePanel(lineas, {CmdPresentador, chkConPresentador, Etiqueta(p, "lbldnipr", kIdDniCif),
                          txtdnipr, Etiqueta(p, "lblnombrepr", kIdEtiquetaApellidosNombre),
                          txtnombrepr});
    AnchoDeCaracteres(txtdnipr, 9);
    AnchoDeCaracteres(txtnombrepr, 28);
}

void BloquePresentador::Anadir_captions()
{
    BloqueDeclaracion::Anadir_captions();
    CmdPresentador->setText(Texto(kIdBotonPresentador));
    chkConPresentador->setText(Texto(kIdConPresentador));
}

QList<QWidget*> BloquePresentador::OrdenDeTabulacion() const
{
    return {CmdPresentador, chkConPresentador};
}

void BloquePresentador::ActivarSelectores()
{
    CmdPresentador->setEnabled(Entrada().NUMPRESEN > 0);
}

void BloquePresentador::PresentarCampos()
{
    const cDecDatos& d = m_registro;
    const bool conPresentador = d.CSPR != 0;
    chkConPresentador->setChecked(conPresentador);
    chkConPresentador->setEnabled(conPresentador);
    PonerTexto(txtnombrepr, d.NOMBREPR);
    PonerTexto(txtdnipr, d.DNIPR);
}

void BloquePresentador::ConectarCampos()
{
    connect(chkConPresentador, &QCheckBox::clicked, this, &BloquePresentador::ClicConPresentador);
    connect(CmdPresentador, &QPushButton::clicked, this,
            [this] { m_enlace.elegir(EleccionParte::Presentador); });
}

void BloquePresentador::ClicConPresentador(bool marcado)
{
    if (Presentando() || marcado)
        return;
    // A presenter is only added through CmdPresentador; the box only takes it away.
    cDecDatos& d = m_registro;
    d.CSPR = 0;
    d.NOMBREPR.clear();
    d.DNIPR.clear();
    Modificado();
    m_enlace.redibujar();
}
