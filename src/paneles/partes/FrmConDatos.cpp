#include "paneles/partes/FrmConDatos.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "paneles/controles/CajaNum.h"
#include "valores/Val.h"
#include "paneles/partes/BloqueDomicilio.h"
#include "paneles/partes/CamposDatos.h"
#include "paneles/partes/FrmConLista.h"
#include "registros/partes/cConDatos.h"
#include "registros/partes/cConLista.h"

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

FrmConDatos* FrmConDatos::Abrir(const Navegacion::RutaParte& ruta)
{
    return Mostrar(ruta, &FrmConDatos::txtdnic);
}

FrmConDatos::FrmConDatos(const Navegacion::RutaParte& ruta, QWidget* parent)
    : PanelDatos(QStringLiteral("FrmConDatos"), ruta, parent)
{
    Construir();
    OrdenDeTabulacion();
    Conectar();
}

void FrmConDatos::Construir()
{
    QWidget* d = fraDatos;
    chktipodni = new QCheckBox(d);
    chktipodni->setObjectName(QStringLiteral("chktipodni"));
    chktipodomi = new QCheckBox(d);
    chktipodomi->setObjectName(QStringLiteral("chktipodomi"));

    txtdnic = CampoTexto(d, "txtdnic", 9, TipoFiltro::Texto);
    txtnombrec = CampoTexto(d, "txtnombrec", 40, TipoFiltro::Texto);
    cConDatos& c = ConDatos();
    m_domicilio = new BloqueDomicilio(
        this, d, QStringLiteral("c"),
        {c.VIAC, c.DOMICILIOC, c.NUMEROC, c.LETRAC, c.ESCALERAC, c.PISOC, c.MANOC, c.CODPROVC,
         &c.NOMPROVC, c.CODPOSC, c.CODMUNC, c.NOMMUNC},
        MarcaCambios::AlTeclear);
    txtpais = CampoTexto(d, "txtpais", 20, TipoFiltro::Texto, true);
    txtnumsp = CajaNumerica(d, "txtnumsp", 0, 7, QStringLiteral("#,###,###"), true);
    txtnumsp->setBackcolor(QColor::fromRgb(0xE0E0E0));
    txtnumtr = CajaNumerica(d, "txtnumtr", 0, 7, QStringLiteral("#,###,###"), true);
    txtnumtr->setBackcolor(QColor::fromRgb(0xE0E0E0));

    lbldnic = Etiqueta(d, "lbldnic");
    lblnombrec = Etiqueta(d, "lblnombrec");
    lblpais = Etiqueta(d, "lblpais");
    lblnumsp = Etiqueta(d, "lblnumsp");
    lblnumtr = Etiqueta(d, "lblnumtr");

    for (auto [campo, caracteres] : {std::pair<QWidget*, int>{txtdnic, 9}, {txtnombrec, 30},
                                      {txtpais, 16}, {txtnumsp, 7}, {txtnumtr, 7}})
        AnchoDeCaracteres(campo, caracteres);
    m_domicilio->Anchos();
    auto* lineas = new QVBoxLayout(fraDatos);
    LineaDePanel(lineas, {chktipodni});
    LineaDePanel(lineas, {lbldnic, txtdnic, lblnombrec, txtnombrec});
    LineaDePanel(lineas, {chktipodomi});
    m_domicilio->Lineas(lineas);
    LineaDePanel(lineas, {lblpais, txtpais});
    LineaDePanel(lineas, {lblnumsp, txtnumsp, lblnumtr, txtnumtr});

    Pie();
}

void FrmConDatos::OrdenDeTabulacion()
{
    // chktipodni, at the top of the panel, comes last.
    QList<QWidget*> orden = {txtdnic, txtnombrec, chktipodomi};
    orden << m_domicilio->OrdenDeTabulacion();
    orden << QList<QWidget*>{txtpais, txtnumsp, txtnumtr, cmdAceptar, cmdCancelar, chktipodni};
    for (qsizetype i = 1; i < orden.size(); ++i)
        setTabOrder(orden[i - 1], orden[i]);
}

void FrmConDatos::Conectar()
{
    // Any change typed in an entry field is a change of the contributor.
    for (QLineEdit* campo : {txtdnic, txtnombrec, txtpais})
        connect(campo, &QLineEdit::textEdited, this, [this] { MarcarModificado(); });

    ConectarPanel();
    m_domicilio->Conectar({m_salidas, [this] { Redibujar(); }, [this] { MarcarModificado(); },
                           [this] { return Saltando(); }, cmdAceptar});
    auto& c = ConDatos();
    // The party's own plain fields are left as the address's are.
    m_domicilio->VigilarTexto(txtdnic, c.DNIC);
    m_domicilio->VigilarTexto(txtnombrec, c.NOMBREC);
    m_domicilio->VigilarTexto(txtpais, c.PAIS, true);

    connect(chktipodni, &QCheckBox::clicked, this, &FrmConDatos::ClicTipoDni);
    connect(chktipodomi, &QCheckBox::clicked, this, &FrmConDatos::ClicTipoDomicilio);
}

// ----- Opening -----

void FrmConDatos::Anadir_captions()
{
    setWindowTitle(Texto(kIdDatosContribuyente));
    cmdCancelar->setText(Texto(kIdBotonCancelar));
    cmdCancelar->setToolTip(Texto(kIdCancelar));
    cmdAceptar->setText(Texto(kIdBotonAceptar));
    cmdAceptar->setToolTip(Texto(kIdGuardarDatosContribuyente));
    chktipodomi->setText(Texto(kIdDomicilioExtranjero));
    chktipodni->setText(Texto(kIdDniExtranjero));
    m_domicilio->Anadir_captions();
    lblnumtr->setText(Texto(kIdEtiquetaTrasmitentes));
    lblnumsp->setText(Texto(kIdEtiquetaSujetosPasivos));
    lblpais->setText(Texto(kIdEtiquetaPais));
    lbldnic->setText(Texto(kIdDniCif));
    lblnombrec->setText(Texto(kIdEtiquetaApellidosNombre));
}

void FrmConDatos::CargarDatosContribuyente()
{
    cConDatos& c = ConDatos();
    const bool consulta = Consulta();
    if (consulta)
        c.CargarContribuyente(c.CSCO);
    m_domicilio->CargarNombres(consulta);
}

// ----- Drawing from the record -----

void FrmConDatos::PresentarContribuyente()
{
    const cConDatos& c = ConDatos();
    m_panelListo = false;
    chktipodni->setChecked(c.TIPODNI == QLatin1String("N"));
    PonerTexto(txtdnic, c.DNIC);
    PonerTexto(txtnombrec, c.NOMBREC);
    PonerTexto(txtpais, c.PAIS);

    const bool nacional = c.TIPODOMI == QLatin1String("N");
    chktipodomi->setChecked(c.TIPODOMI == QLatin1String("E"));
    // A foreign postal code is shown as it is; a national one has five digits.
    m_domicilio->txtcodpos->setFormato(c.TIPODOMI == QLatin1String("E") ? QString()
                                                                         : QStringLiteral("00000"));
    // The municipality is a code of the treasury's list in its province only.
    m_domicilio->Presentar(nacional && c.CODPROVC == kProvinciaTesoreria);
    txtnumsp->setValue(c.NUMSP);
    txtnumtr->setValue(c.NUMTR);

    // Only a contributor already used as subject has the kinds of document and domicile
    // frozen: a subject has to be official and national.
    const bool libre = c.NUMSP <= 0;
    chktipodni->setEnabled(libre);
    chktipodomi->setEnabled(libre);

    // A foreign domicile has a country and a typed province instead of a province code.
    AbrirCampo(txtpais, !nacional);
    AbrirCampo(m_domicilio->txtcodprov, nacional);
    AbrirCampo(m_domicilio->txtnomprov, !nacional);
    m_panelListo = true;
}

void FrmConDatos::ActivarSelectores()
{
    m_domicilio->ActivarSelectores(ConDatos().TIPODOMI == QLatin1String("N"));
}

void FrmConDatos::Redibujar()
{
    PresentarContribuyente();
    ActivarSelectores();
}

// ----- Check boxes -----

void FrmConDatos::ClicTipoDni(bool marcado)
{
    MarcarModificado();
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
    MarcarModificado();
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
    if (m_domicilio->txtvia->isEnabled())
        m_domicilio->txtvia->setFocus(Qt::OtherFocusReason);
}

// ----- Aceptar and Cancelar -----

bool FrmConDatos::ValidarCampos()
{
    const Resultado<void> r = ConDatos().ValidarDatosContribuyente();
    if (!r)
        AvisarRechazo(this, r.veredicto());
    return r.aceptado();
}

bool FrmConDatos::GuardarContribuyente()
{
    const Resultado<Contribuyente> r = ConDatos().GuardarContribuyente();
    if (r)
        return true;
    AvisarRechazo(this, r.veredicto());
    TratarVigencia(r.veredicto().vigencia);
    return false;
}

void FrmConDatos::AnotarEnLista()
{
    // The list comes back with the new contributor selected.
    cConDatos& c = ConDatos();
    if (NuevoDesdeLista())
        ConLista().CSCO = c.ObtenerCodigoContribuyente(c.DNIC);
}

