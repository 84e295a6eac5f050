#include "paneles/declaracion/BloqueImportes.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "paneles/controles/CajaNum.h"
#include "paneles/declaracion/ComprobacionesDeclaracion.h"
#include "paneles/declaracion/PiezasDeclaracion.h"
#include "paneles/partes/CamposDatos.h"
#include "paneles/partes/SalidaCampos.h"
#include "registros/declaracion/Calculo.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cOperacion.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>

namespace {

const QString kMarca = QStringLiteral("X");

// From this date of accrual on, the second reduction of the base exists.
constexpr int32_t kDesdeReduccion2 = 20090101;

bool marca(const QString& valor) { return valor == kMarca; }

// An amount box: its whole digits, two decimals and the format that groups its thousands.
void FormatoDeImporte(CajaNum* caja, int enteros, const QString& formato)
{
    caja->setEnteros(enteros);
    caja->setDecimales(2);
    caja->setFormato(formato);
}

}  // namespace

BloqueImportes::BloqueImportes(QWidget* panel, QWidget* d, cDecDatos& registro)
    : BloqueDeclaracion(panel, registro)
{
    chkexento = PiezasDeclaracion::Casilla(d, "chkexento");
    chknosujeto = PiezasDeclaracion::Casilla(d, "chknosujeto");
    chkReduccion1 = PiezasDeclaracion::Casilla(d, "chkReduccion1");
    chkReduccion2 = PiezasDeclaracion::Casilla(d, "chkReduccion2");
    txtbasei = CajaNumerica(d, "txtbasei", 0, 13, QString(), false);
    txtBaseIReducida = CajaNumerica(d, "txtBaseIReducida", 0, 13, QString(), true);
    txttipoimp = CajaNumerica(d, "txttipoimp", 0, 2, QStringLiteral("##0.00"), true);
    txttipoimp->setDecimales(2);
    txtcuota = CajaNumerica(d, "txtcuota", 0, 11, QString(), true);
    txtdeduccion = CajaNumerica(d, "txtdeduccion", 0, 11, QString(), true);
    txttotal = CajaNumerica(d, "txttotal", 0, 13, QString(), true);
    txttotal->setFontbold(true);
}

void BloqueImportes::Disponer(QBoxLayout* lineas)
{
    QWidget* d = txtbasei->parentWidget();
    LineaDePanel(lineas, {Etiqueta(d, "lblreduccion", kIdReduccion), chkReduccion1, chkReduccion2,
                          chkexento, chknosujeto});
    LineaDePanel(lineas,
                 {Etiqueta(d, "lblbasei", kIdBaseImponible), txtbasei,
                  Etiqueta(d, "lblBaseIReducida", kIdBaseImponibleReducida), txtBaseIReducida,
                  Etiqueta(d, "lbltipoimp", kIdTipoImpositivo), txttipoimp});
    LineaDePanel(lineas,
                 {Etiqueta(d, "lblcuota", kIdCuota), txtcuota,
                  Etiqueta(d, "lbldeduccion", kIdDeduccion), txtdeduccion,
                  Etiqueta(d, "lbltotal", kIdTotalIngresar), txttotal});
    for (auto [campo, caracteres] :
         {std::pair<QWidget*, int>{txtbasei, 14}, {txtBaseIReducida, 14}, {txttipoimp, 5},
          {txtcuota, 12}, {txtdeduccion, 12}, {txttotal, 14}})
        AnchoDeCaracteres(campo, caracteres);
}

void BloqueImportes::Anadir_captions()
{
    BloqueDeclaracion::Anadir_captions();
    chkexento->setText(Texto(kIdExento));
    chknosujeto->setText(Texto(kIdNoSujeto));
    // The two reductions of the base are shown by their percentage, the same in both languages.
    chkReduccion1->setText(QStringLiteral("50 %"));
    chkReduccion2->setText(QStringLiteral("30 %"));
}

QList<QWidget*> BloqueImportes::OrdenDeTabulacion() const
{
    return {chkReduccion1, chkReduccion2, chkexento, chknosujeto, txtbasei, txttipoimp};
}

void BloqueImportes::FormatearImportes()
{
    FormatoDeImporte(txtbasei, 13, QStringLiteral("#,###,###,###,##0.00"));
    FormatoDeImporte(txtBaseIReducida, 13, QStringLiteral("#,###,###,###,##0.00"));
    FormatoDeImporte(txtcuota, 11, QStringLiteral("##,###,###,##0.00"));
    FormatoDeImporte(txtdeduccion, 11, QStringLiteral("##,###,###,##0.00"));
    FormatoDeImporte(txttotal, 13, QStringLiteral("#,###,###,###,##0.00"));
}

bool BloqueImportes::TipoBloqueado() const
{
    return txttipoimp->locked();
}

// ----- Drawing -----

void BloqueImportes::PresentarCampos()
{
    PresentarReducciones();
    PresentarImportes();
}

void BloqueImportes::PresentarReducciones()
{
    cDecDatos& d = m_registro;
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

void BloqueImportes::PresentarImportes()
{
    const cDecDatos& d = m_registro;
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

// ----- Leaving the fields and clicking -----

void BloqueImportes::ConectarCampos()
{
    m_enlace.salidas->Vigilar(txtbasei, [this] { SalirBase(); });
    m_enlace.salidas->Vigilar(txttipoimp, [this] { SalirTipo(); });
    connect(chkexento, &QCheckBox::clicked, this, &BloqueImportes::ClicExento);
    connect(chknosujeto, &QCheckBox::clicked, this, &BloqueImportes::ClicNoSujeto);
    connect(chkReduccion1, &QCheckBox::clicked, this, [this] { ClicReduccion(); });
    connect(chkReduccion2, &QCheckBox::clicked, this, [this] { ClicReduccion(); });
}

void BloqueImportes::SalirBase()
{
    const Importe base = BaseDeTexto(txtbasei->text());
    if (Saltando() || base == m_registro.BASEI)
        return;
    Modificado();
    m_registro.BASEI = base;
    m_enlace.calcular();
}

void BloqueImportes::SalirTipo()
{
    const ResultadoTipo r = ValidarTipoImpositivo(txttipoimp->value(), txttipoimp->locked(),
                                                  Saltando());
    if (r.presentar) {
        Modificado();
        m_enlace.presentar();
    }
    if (r.volverAlTipo)
        txttipoimp->setFocus(Qt::OtherFocusReason);
}

void BloqueImportes::ClicExento(bool marcado)
{
    if (Presentando())
        return;
    cDecDatos& d = m_registro;
    Modificado();
    if (!marcado) {
        // Unticking computes nothing: the rate stays 0 until an operation is chosen again.
        d.EXENTO.clear();
        m_enlace.presentar();
        return;
    }
    d.EXENTO = kMarca;
    d.NOSUJETO.clear();
    d.TIPOIMP = 0;
    m_enlace.calcular();
}

void BloqueImportes::ClicNoSujeto(bool marcado)
{
    if (Presentando())
        return;
    cDecDatos& d = m_registro;
    Modificado();
    if (!marcado) {
        d.NOSUJETO.clear();
        m_enlace.presentar();
        return;
    }
    d.NOSUJETO = kMarca;
    d.EXENTO.clear();
    d.TIPOIMP = 0;
    m_enlace.calcular();
}

void BloqueImportes::ClicReduccion()
{
    if (Presentando())
        return;
    Modificado();
    ActualizarReduccion({chkReduccion1->isEnabled(), chkReduccion1->isChecked(),
                         chkReduccion2->isEnabled(), chkReduccion2->isChecked()});
    m_enlace.calcular();
}
