// The one drawing of the declaration form from DecDatos(): every field, the open and closed
// fields, the marks and the reduction boxes; and the enabling of the pickers' buttons.
#include "paneles/declaracion/FrmDeclaracion.h"

#include "paneles/controles/CajaNum.h"
#include "paneles/partes/BloqueDomicilio.h"
#include "paneles/partes/CamposDatos.h"
#include "registros/declaracion/Calculo.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cOperacion.h"
#include "registros/nucleo/CEntrada.h"
#include "valores/Val.h"
#include "plataforma/Idioma.h"
#include "valores/cFecha.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace {

// From this date of accrual on, the second reduction of the base exists.
constexpr int32_t kDesdeReduccion2 = 20090101;

bool marca(const QString& valor) { return valor == QLatin1String("X"); }

// A box takes a format only when it changes: formatting its text again costs a redraw.
void PonerFormato(CajaNum* caja, const QString& formato)
{
    if (caja->formato() != formato)
        caja->setFormato(formato);
}

// A whole number shown empty when it is 0.
void NumeroOVacio(CajaNum* caja, double valor)
{
    if (valor == 0)
        caja->setText(QString());
    else
        caja->setValue(valor);
}

}  // namespace

void FrmDeclaracion::PresentarDeclaracion()
{
    // Drawing ticks boxes and options: their click handlers must not take it for the user.
    m_presentandoDatos = true;
    PresentarVehiculo();
    PresentarReducciones();
    PresentarImportes();
    const cDecDatos& d = DecDatos();
    const bool conPresentador = d.CSPR != 0;
    chkConPresentador->setChecked(conPresentador);
    chkConPresentador->setEnabled(conPresentador);
    PonerTexto(txtnombrepr, d.NOMBREPR);
    PonerTexto(txtdnipr, d.DNIPR);
    PresentarPartes();
    m_presentandoDatos = false;
}

void FrmDeclaracion::PresentarVehiculo()
{
    const cDecDatos& d = DecDatos();
    // The date is written only when it differs, so that a field being entered keeps its mask.
    const QString fecha = cFecha::LongToString(d.FECHAD, IdiomaPrograma());
    if (txtfechad->displayText() != fecha)
        txtfechad->setText(fecha);
    PonerTexto(txtreferencia, d.REFERENCIA);
    chkAdquirido->setChecked(d.ADQUIRIDO == QLatin1String("X"));
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

void FrmDeclaracion::PresentarReducciones()
{
    cDecDatos& d = DecDatos();
    chkexento->setChecked(marca(d.EXENTO));
    chknosujeto->setChecked(marca(d.NOSUJETO));
    const bool conCuota = d.EXENTO.isEmpty() && d.NOSUJETO.isEmpty();
    chkReduccion1->setEnabled(conCuota);
    chkReduccion2->setEnabled(conCuota && d.FECHAD >= kDesdeReduccion2);
    if (!conCuota) {
        chkReduccion1->setChecked(false);
        chkReduccion2->setChecked(false);
    } else if (d.FECHAD < kDesdeReduccion2) {
        // Before that date only the first reduction stands: the record drops the second one.
        const QString antes = d.REDUCCION;
        const bool primera = antes == QLatin1String("X") || antes == QLatin1String("Z");
        ActualizarReduccion({true, primera, false, false});
        if (d.REDUCCION != antes)
            ::CalcularValores();
    }
    const QString r = d.REDUCCION;
    chkReduccion1->setChecked(r == QLatin1String("X") || r == QLatin1String("Z"));
    chkReduccion2->setChecked(r == QLatin1String("Y") || r == QLatin1String("Z"));
}

void FrmDeclaracion::PresentarImportes()
{
    const cDecDatos& d = DecDatos();
    // The record keeps whole cents; the boxes show euros.
    txtbasei->setValue(d.BASEI.euros());
    txtBaseIReducida->setValue(d.BASEIREDUCIDA.euros());
    txtcuota->setValue(d.CUOTA.euros());
    txtdeduccion->setValue(d.DEDUCCION.euros());
    txttotal->setValue(d.TOTAL.euros());
    // The rate is the declarant's to type only for an operation without a fixed one.
    AbrirCampo(txttipoimp, EsTasaLibre(Operacion().T_TIP()));
    txttipoimp->setValue(d.TIPOIMP);
}

void FrmDeclaracion::PresentarPartes()
{
    const cDecDatos& d = DecDatos();
    PonerTexto(txtdnisp, d.DNISP);
    PonerTexto(txtnombresp, d.NOMBRESP);
    const bool spEnTesoreria = Val(d.CODPROVSP) == 77;
    m_domSp->Presentar(spEnTesoreria);
    if (Val(d.CODPROVSP) == 0)
        m_domSp->txtnomprov->clear();

    PonerTexto(txtdnitr, d.DNITR);
    PonerTexto(txtnombretr, d.NOMBRETR);
    PonerTexto(txtpaistr, d.PAISTR);
    const bool nacional = d.TIPODOMITR == QLatin1String("N");
    // A foreign postal code is shown as it was typed.
    PonerFormato(m_domTr->txtcodpos, nacional ? QStringLiteral("00000") : QString());
    m_domTr->Presentar(nacional && d.CODPROVTR == QLatin1String("77"));
    AbrirCampo(m_domTr->txtcodprov, nacional);
    AbrirCampo(txtpaistr, !nacional);
    AbrirCampo(m_domTr->txtnomprov, !nacional);
    if (!nacional)
        AbrirCampo(m_domTr->txtcodmun, false);

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

void FrmDeclaracion::ActivarSelectores()
{
    const cDecDatos& d = DecDatos();
    m_domSp->ActivarSelectores(true);
    m_domTr->ActivarSelectores(d.TIPODOMITR == QLatin1String("N"));
    CmdPresentador->setEnabled(Entrada().NUMPRESEN > 0);
    const bool hayContribuyentes = Entrada().NUMCONTRI > 0;
    cmdSujetoPasivo->setEnabled(hayContribuyentes);
    cmdTransmitente->setEnabled(hayContribuyentes);
}

bool FrmDeclaracion::MismaParte() const
{
    // Two empty numbers are no party yet, let alone the same one.
    const cDecDatos& d = DecDatos();
    return (!d.DNISP.trimmed().isEmpty() && d.DNISP == d.DNITR)
        || (d.CSSU == d.CSTRA && d.CSSU != 0);
}

void FrmDeclaracion::Redibujar()
{
    PresentarDeclaracion();
    ActivarSelectores();
}
