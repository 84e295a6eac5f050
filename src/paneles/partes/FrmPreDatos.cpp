#include "paneles/partes/FrmPreDatos.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "paneles/controles/CajaNum.h"
#include "valores/Val.h"
#include "paneles/partes/BloqueDomicilio.h"
#include "paneles/partes/CamposDatos.h"
#include "paneles/partes/FrmPreLista.h"
#include "registros/partes/cPreDatos.h"
#include "registros/partes/cPreLista.h"

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

FrmPreDatos* FrmPreDatos::Abrir(const Navegacion::RutaParte& ruta)
{
    return Mostrar(ruta, &FrmPreDatos::txtdnip);
}

FrmPreDatos::FrmPreDatos(const Navegacion::RutaParte& ruta, QWidget* parent)
    : PanelDatos(QStringLiteral("FrmPreDatos"), ruta, parent)
{
    Construir();
    OrdenDeTabulacion();
    Conectar();
}

void FrmPreDatos::Construir()
{
    QWidget* d = fraDatos;
    txtdnip = CampoTexto(d, "txtdnip", 9, TipoFiltro::Texto);
    txtnombrep = CampoTexto(d, "txtnombrep", 40, TipoFiltro::Texto);
    // A presenter is national: no typed province (its name is only ever looked up), and a
    // postal code of five digits always.
    cPreDatos& p = PreDatos();
    m_domicilio = new BloqueDomicilio(
        this, d, QStringLiteral("p"),
        {p.VIAP, p.DOMICILIOP, p.NUMEROP, p.LETRAP, p.ESCALERAP, p.PISOP, p.MANOP, p.CODPROVP,
         nullptr, p.CODPOSP, p.CODMUNP, p.NOMMUNP},
        MarcaCambios::AlSalir);
    m_domicilio->txtcodpos->setFormato(QStringLiteral("00000"));
    txttelefonop = CampoTexto(d, "txttelefonop", 9, TipoFiltro::Digitos);

    lbldnip = Etiqueta(d, "lbldnip");
    lblnombrep = Etiqueta(d, "lblnombrep");
    lbltelefonop = Etiqueta(d, "lbltelefonop");

    for (auto [campo, caracteres] :
         {std::pair<QWidget*, int>{txtdnip, 9}, {txtnombrep, 30}, {txttelefonop, 9}})
        AnchoDeCaracteres(campo, caracteres);
    m_domicilio->Anchos();
    auto* lineas = new QVBoxLayout(fraDatos);
    LineaDePanel(lineas, {lbldnip, txtdnip, lblnombrep, txtnombrep});
    m_domicilio->Lineas(lineas);
    LineaDePanel(lineas, {lbltelefonop, txttelefonop});

    Pie();
}

void FrmPreDatos::OrdenDeTabulacion()
{
    QList<QWidget*> orden = {txtdnip, txtnombrep};
    orden << m_domicilio->OrdenDeTabulacion();
    // The street type's name stands last, after the buttons.
    orden.removeOne(m_domicilio->txtviaaux);
    orden << QList<QWidget*>{txttelefonop, cmdAceptar, cmdCancelar, m_domicilio->txtviaaux};
    for (qsizetype i = 1; i < orden.size(); ++i)
        setTabOrder(orden[i - 1], orden[i]);
}

void FrmPreDatos::Conectar()
{
    ConectarPanel();
    // No handler of typed text: a presenter changes only when a field is left with a text
    // other than the record's, so that a value typed and changed back is no change.
    m_domicilio->Conectar({m_salidas, [this] { Redibujar(); }, [this] { MarcarModificado(); },
                           [this] { return Saltando(); }, txttelefonop});
    auto& p = PreDatos();
    // The party's own plain fields are left as the address's are.
    m_domicilio->VigilarTexto(txtdnip, p.DNIP);
    m_domicilio->VigilarTexto(txtnombrep, p.NOMBREP);
    m_domicilio->VigilarTexto(txttelefonop, p.TELEFONOP);
}

// ----- Opening -----

void FrmPreDatos::Anadir_captions()
{
    setWindowTitle(Texto(kIdDatosPresentador));
    cmdCancelar->setText(Texto(kIdBotonCancelar));
    cmdCancelar->setToolTip(Texto(kIdCancelar));
    cmdAceptar->setText(Texto(kIdBotonAceptar));
    cmdAceptar->setToolTip(Texto(kIdGuardarDatosPresentador));
    m_domicilio->Anadir_captions();
    lbldnip->setText(Texto(kIdDniCif));
    lblnombrep->setText(Texto(kIdEtiquetaApellidosNombre));
    lbltelefonop->setText(Texto(kIdEtiquetaTelefono));
}

void FrmPreDatos::CargarDatosPresentador()
{
    cPreDatos& p = PreDatos();
    const bool consulta = Consulta();
    if (consulta)
        p.CargarPresentador(p.CSPR);
    m_domicilio->CargarNombres(consulta);
}

// ----- Drawing from the record -----

void FrmPreDatos::PresentarPresentador()
{
    const cPreDatos& p = PreDatos();
    PonerTexto(txtdnip, p.DNIP);
    PonerTexto(txtnombrep, p.NOMBREP);
    // Only the municipality pair opens and closes, with the province of the treasury.
    m_domicilio->Presentar(p.CODPROVP == kProvinciaTesoreria);
    // A telephone of value 0 is no telephone.
    PonerTexto(txttelefonop, Val(p.TELEFONOP) == 0 ? QString() : p.TELEFONOP);
}

void FrmPreDatos::ActivarSelectores()
{
    m_domicilio->ActivarSelectores(true);
}

void FrmPreDatos::Redibujar()
{
    PresentarPresentador();
    ActivarSelectores();
}

// ----- Aceptar and Cancelar -----

bool FrmPreDatos::ValidarCampos()
{
    const Resultado<void> r = PreDatos().ValidarDatosPresentador();
    if (!r)
        AvisarRechazo(this, r.veredicto());
    return r.aceptado();
}

bool FrmPreDatos::GuardarPresentador()
{
    const Resultado<Presentador> r = PreDatos().GuardarPresentador();
    if (r)
        return true;
    AvisarRechazo(this, r.veredicto());
    TratarVigencia(r.veredicto().vigencia);
    return false;
}

void FrmPreDatos::AnotarEnLista()
{
    // The list comes back with the new presenter selected.
    cPreDatos& p = PreDatos();
    if (NuevoDesdeLista())
        PreLista().CSPR = p.ObtenerCodigoPresentador(p.DNIP);
}

