// The declaration form: its controls, their captions, the tab order, the connections and the
// opening. What the fields do when left lives in CamposDeclaracion.cpp, the parties in
// PartesDeclaracion.cpp, the drawing in PresentarDeclaracion.cpp and the buttons in
// BotonesDeclaracion.cpp.
#include "paneles/declaracion/FrmDeclaracion.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "paneles/controles/CajaNum.h"
#include "paneles/controles/EnterComoTab.h"
#include "paneles/controles/Listas.h"
#include "paneles/dialogos/Ventanas.h"
#include "paneles/partes/BloqueDomicilio.h"
#include "paneles/partes/CamposDatos.h"
#include "paneles/partes/SalidaCampos.h"
#include "plataforma/General.h"
#include "plataforma/Idioma.h"
#include "plataforma/Proceso.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cOperacion.h"
#include "valores/cFecha.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedLayout>
#include <QTabBar>
#include <QVBoxLayout>

namespace {

QFrame* Marco(QWidget* padre, const char* nombre)
{
    auto* marco = new QFrame(padre);
    marco->setObjectName(QString::fromLatin1(nombre));
    marco->setFrameShape(QFrame::StyledPanel);
    return marco;
}

QCheckBox* Casilla(QWidget* padre, const char* nombre)
{
    auto* casilla = new QCheckBox(padre);
    casilla->setObjectName(QString::fromLatin1(nombre));
    return casilla;
}

QPushButton* Boton(QWidget* padre, const char* nombre)
{
    auto* boton = new QPushButton(padre);
    boton->setObjectName(QString::fromLatin1(nombre));
    boton->setAutoDefault(true);  // Enter on a button presses it
    return boton;
}

// A display-only field: locked, grey, out of the tab order.
QLineEdit* Muestra(QWidget* padre, const char* nombre, int limite)
{
    QLineEdit* campo = CampoTexto(padre, nombre, limite, TipoFiltro::Texto, true);
    AbrirCampo(campo, false);
    return campo;
}

}  // namespace

FrmDeclaracion* FrmDeclaracion::Abrir(Navegacion::RutaDeclaracion& ruta)
{
    auto* panel = new FrmDeclaracion(ruta);
    panel->Iniciar();
    AbrirPanel(panel);
    panel->txtfechad->setFocus(Qt::OtherFocusReason);
    return panel;
}

FrmDeclaracion::FrmDeclaracion(Navegacion::RutaDeclaracion& ruta, QWidget* parent)
    : PanelNavegado(parent), m_ruta(ruta)
{
    setObjectName(QStringLiteral("FrmDeclaracion"));
    setAttribute(Qt::WA_DeleteOnClose);
    Construir();
    OrdenDeTabulacion();
    Conectar();
}

// ----- Construction -----

void FrmDeclaracion::Construir()
{
    FraDeclaracion = Marco(this, "FraDeclaracion");
    FraPresentador = Marco(this, "FraPresentador");
    tabTerceros = new QTabBar(this);
    tabTerceros->setObjectName(QStringLiteral("tabTerceros"));
    tabTerceros->addTab(QString());
    tabTerceros->addTab(QString());
    tabTerceros->setFocusPolicy(Qt::NoFocus);
    FraSujetoPasivo = Marco(this, "FraSujetoPasivo");
    FraTransmitente = Marco(this, "FraTransmitente");
    fraBotones = new QFrame(this);
    fraBotones->setObjectName(QStringLiteral("fraBotones"));
    ConstruirDeclaracion();
    ConstruirPresentador();
    ConstruirPartes();
    ConstruirBotones();
    Disponer();
    // The pickers lie over the panel, made after every other widget, and switch off the
    // frames and the tab strip while open.
    const QList<QWidget*> marcos = {tabTerceros, FraPresentador, FraDeclaracion,
                                    FraSujetoPasivo, FraTransmitente, fraBotones};
    m_domSp->CrearSelectores(marcos);
    m_domTr->CrearSelectores(marcos);
    RetenerFocoAlPulsar(this);
}

void FrmDeclaracion::ConstruirDeclaracion()
{
    QWidget* d = FraDeclaracion;
    txtfechad = new QLineEdit(d);
    txtfechad->setObjectName(QStringLiteral("txtfechad"));
    SeleccionarAlEntrar(txtfechad);
    txtoperacion = CampoTexto(d, "txtoperacion", 3, TipoFiltro::Texto);
    cmbOperacion = new QComboBox(d);
    cmbOperacion->setObjectName(QStringLiteral("cmbOperacion"));
    cmbOperacion->setMinimumContentsLength(40);
    txtreferencia = CampoTexto(d, "txtreferencia", 10, TipoFiltro::Texto);
    chkAdquirido = Casilla(d, "chkAdquirido");
    txtmarca = CampoTexto(d, "txtmarca", 15, TipoFiltro::Texto);
    txttipo = CampoTexto(d, "txttipo", 15, TipoFiltro::Texto);
    txtmodelo = CampoTexto(d, "txtmodelo", 20, TipoFiltro::Texto);
    txtbastidor = CampoTexto(d, "txtbastidor", 17, TipoFiltro::Texto);
    txtclasificacion = CajaNumerica(d, "txtclasificacion", 0, 4, QStringLiteral("####"), false);
    txtcilindrada = CajaNumerica(d, "txtcilindrada", 0, 5, QStringLiteral("##,###"), false);
    optmotor = new QFrame(d);
    optmotor->setObjectName(QStringLiteral("optmotor"));
    optDiesel = new QRadioButton(optmotor);
    optDiesel->setObjectName(QStringLiteral("optDiesel"));
    optGasolina = new QRadioButton(optmotor);
    optGasolina->setObjectName(QStringLiteral("optGasolina"));
    auto* motor = new QHBoxLayout(optmotor);
    motor->setContentsMargins(0, 0, 0, 0);
    motor->addWidget(optDiesel);
    motor->addWidget(optGasolina);
    chkexento = Casilla(d, "chkexento");
    chknosujeto = Casilla(d, "chknosujeto");
    chkReduccion1 = Casilla(d, "chkReduccion1");
    chkReduccion2 = Casilla(d, "chkReduccion2");
    txtbasei = CajaNumerica(d, "txtbasei", 0, 13, QString(), false);
    txtBaseIReducida = CajaNumerica(d, "txtBaseIReducida", 0, 13, QString(), true);
    txttipoimp = CajaNumerica(d, "txttipoimp", 0, 2, QStringLiteral("##0.00"), true);
    txttipoimp->setDecimales(2);
    txtcuota = CajaNumerica(d, "txtcuota", 0, 11, QString(), true);
    txtdeduccion = CajaNumerica(d, "txtdeduccion", 0, 11, QString(), true);
    txttotal = CajaNumerica(d, "txttotal", 0, 13, QString(), true);
    txttotal->setFontbold(true);
}

void FrmDeclaracion::ConstruirPresentador()
{
    QWidget* p = FraPresentador;
    CmdPresentador = Boton(p, "CmdPresentador");
    chkConPresentador = Casilla(p, "chkConPresentador");
    txtdnipr = Muestra(p, "txtdnipr", 9);
    txtnombrepr = Muestra(p, "txtnombrepr", 40);
}

void FrmDeclaracion::ConstruirPartes()
{
    cDecDatos& r = DecDatos();
    QWidget* s = FraSujetoPasivo;
    cmdSujetoPasivo = Boton(s, "cmdSujetoPasivo");
    txtdnisp = CampoTexto(s, "txtdnisp", 9, TipoFiltro::Texto);
    txtnombresp = CampoTexto(s, "txtnombresp", 40, TipoFiltro::Texto);
    // The subject's province name is never typed: it is always looked up from its code.
    m_domSp = new BloqueDomicilio(this, s, QStringLiteral("sp"),
                                  {r.VIASP, r.DOMICILIOSP, r.NUMEROSP, r.LETRASP, r.ESCALERASP,
                                   r.PISOSP, r.MANOSP, r.CODPROVSP, nullptr, r.CODPOSSP,
                                   r.CODMUNSP, r.NOMMUNSP},
                                  MarcaCambios::AlSalir, true);

    QWidget* t = FraTransmitente;
    cmdTransmitente = Boton(t, "cmdTransmitente");
    chktipodnitr = Casilla(t, "chktipodnitr");
    chktipodomitr = Casilla(t, "chktipodomitr");
    txtdnitr = CampoTexto(t, "txtdnitr", 9, TipoFiltro::Texto);
    txtnombretr = CampoTexto(t, "txtnombretr", 40, TipoFiltro::Texto);
    m_domTr = new BloqueDomicilio(this, t, QStringLiteral("tr"),
                                  {r.VIATR, r.DOMICILIOTR, r.NUMEROTR, r.LETRATR, r.ESCALERATR,
                                   r.PISOTR, r.MANOTR, r.CODPROVTR, &r.NOMPROVTR, r.CODPOSTR,
                                   r.CODMUNTR, r.NOMMUNTR},
                                  MarcaCambios::AlSalir, true);
    txtpaistr = CampoTexto(t, "txtpaistr", 20, TipoFiltro::Texto, true);
    // The codes show their significant digits only; the subject's postal code too, while the
    // transmitter's follows the kind of domicile (PresentarDeclaracion).
    for (BloqueDomicilio* dom : {m_domSp, m_domTr}) {
        dom->txtcodprov->setFormato(QStringLiteral("##"));
        dom->txtcodpos->setFormato(QStringLiteral("#####"));
        dom->txtcodmun->setFormato(QStringLiteral("###"));
    }
}

void FrmDeclaracion::ConstruirBotones()
{
    cmdAceptar = Boton(fraBotones, "cmdAceptar");
    cmdCancelar = Boton(fraBotones, "cmdCancelar");
    cmdImprimir = Boton(fraBotones, "cmdImprimir");
    auto* linea = new QHBoxLayout(fraBotones);
    linea->addStretch();
    for (QPushButton* b : {cmdAceptar, cmdCancelar, cmdImprimir})
        linea->addWidget(b);
    linea->addStretch();
}

void FrmDeclaracion::Disponer()
{
    auto etiqueta = [this](QWidget* padre, const char* nombre, int id) {
        QLabel* l = Etiqueta(padre, nombre);
        m_etiquetas.append({l, id});
        return l;
    };
    QWidget* d = FraDeclaracion;
    auto* lineas = new QVBoxLayout(d);
    LineaDePanel(lineas, {etiqueta(d, "lblfechad", kIdEtiquetaFechaDevengo), txtfechad,
                          etiqueta(d, "lbloperacion", kIdEtiquetaCodigoOperacion), txtoperacion,
                          cmbOperacion});
    LineaDePanel(lineas, {etiqueta(d, "lblreferencia", kIdEtiquetaReferencia), txtreferencia,
                          chkAdquirido});
    LineaDePanel(lineas,
                 {etiqueta(d, "lblmarca", kIdEtiquetaMarca), txtmarca,
                  etiqueta(d, "lbltipo", kIdEtiquetaTipo), txttipo,
                  etiqueta(d, "lblmodelo", kIdEtiquetaModelo), txtmodelo});
    LineaDePanel(lineas, {etiqueta(d, "lblbastidor", kIdEtiquetaBastidor), txtbastidor,
                          etiqueta(d, "lblclasificacion", kIdEtiquetaClasificacion),
                          txtclasificacion, etiqueta(d, "lblcilindrada", kIdEtiquetaCilindrada),
                          txtcilindrada, optmotor});
    LineaDePanel(lineas, {etiqueta(d, "lblreduccion", kIdReduccion), chkReduccion1, chkReduccion2,
                          chkexento, chknosujeto});
    LineaDePanel(lineas,
                 {etiqueta(d, "lblbasei", kIdBaseImponible), txtbasei,
                  etiqueta(d, "lblBaseIReducida", kIdBaseImponibleReducida), txtBaseIReducida,
                  etiqueta(d, "lbltipoimp", kIdTipoImpositivo), txttipoimp});
    LineaDePanel(lineas,
                 {etiqueta(d, "lblcuota", kIdCuota), txtcuota,
                  etiqueta(d, "lbldeduccion", kIdDeduccion), txtdeduccion,
                  etiqueta(d, "lbltotal", kIdTotalIngresar), txttotal});

    QWidget* p = FraPresentador;
    auto* pre = new QVBoxLayout(p);
    LineaDePanel(pre, {CmdPresentador, chkConPresentador, etiqueta(p, "lbldnipr", kIdDniCif),
                       txtdnipr, etiqueta(p, "lblnombrepr", kIdEtiquetaApellidosNombre),
                       txtnombrepr});

    QWidget* s = FraSujetoPasivo;
    auto* sp = new QVBoxLayout(s);
    LineaDePanel(sp, {cmdSujetoPasivo});
    LineaDePanel(sp,
                 {etiqueta(s, "lbldnisp", kIdDniCif), txtdnisp,
                  etiqueta(s, "lblnombresp", kIdEtiquetaApellidosNombre), txtnombresp});
    m_domSp->Lineas(sp);
    m_domSp->Anchos();

    QWidget* t = FraTransmitente;
    auto* tr = new QVBoxLayout(t);
    LineaDePanel(tr, {cmdTransmitente, chktipodnitr, chktipodomitr});
    LineaDePanel(tr,
                 {etiqueta(t, "lbldnitr", kIdDniCif), txtdnitr,
                  etiqueta(t, "lblnombretr", kIdEtiquetaApellidosNombre), txtnombretr});
    m_domTr->Lineas(tr);
    LineaDePanel(tr, {etiqueta(t, "lblpaistr", kIdEtiquetaPais), txtpaistr});
    m_domTr->Anchos();

    for (auto [campo, caracteres] :
         {std::pair<QWidget*, int>{txtfechad, 10}, {txtoperacion, 3}, {txtreferencia, 10},
          {txtmarca, 12}, {txttipo, 12}, {txtmodelo, 14}, {txtbastidor, 15}, {txtclasificacion, 4},
          {txtcilindrada, 6}, {txtbasei, 14}, {txtBaseIReducida, 14}, {txttipoimp, 5},
          {txtcuota, 12}, {txtdeduccion, 12}, {txttotal, 14}, {txtdnipr, 9}, {txtnombrepr, 28},
          {txtdnisp, 9}, {txtnombresp, 28}, {txtdnitr, 9}, {txtnombretr, 28}, {txtpaistr, 16}})
        AnchoDeCaracteres(campo, caracteres);

    // The two parties' frames share one place, as tall as the taller of them, so that the
    // panel keeps one layout whichever tab is shown.
    for (QVBoxLayout* parte : {sp, tr})
        parte->addStretch();
    auto* terceros = new QWidget(this);
    m_pilaTerceros = new QStackedLayout(terceros);
    m_pilaTerceros->setContentsMargins(0, 0, 0, 0);
    m_pilaTerceros->addWidget(FraSujetoPasivo);
    m_pilaTerceros->addWidget(FraTransmitente);

    auto* todo = new QVBoxLayout(this);
    todo->addWidget(FraDeclaracion);
    todo->addWidget(FraPresentador);
    todo->addWidget(tabTerceros);
    todo->addWidget(terceros);
    todo->addWidget(fraBotones);
}

void FrmDeclaracion::OrdenDeTabulacion()
{
    // Date, operation, reference, vehicle, amounts, then the parties.
    QList<QWidget*> orden = {txtfechad,      txtoperacion, cmbOperacion, txtreferencia,
                             chkAdquirido,   txtmarca,     txttipo,      txtmodelo,
                             txtbastidor,    txtclasificacion, txtcilindrada, optDiesel,
                             optGasolina,    chkReduccion1, chkReduccion2, chkexento,
                             chknosujeto,    txtbasei,     txttipoimp,   CmdPresentador,
                             chkConPresentador, cmdSujetoPasivo, txtdnisp, txtnombresp};
    orden << m_domSp->OrdenDeTabulacion();
    orden << QList<QWidget*>{cmdTransmitente, chktipodnitr, chktipodomitr, txtdnitr, txtnombretr};
    orden << m_domTr->OrdenDeTabulacion();
    orden << QList<QWidget*>{txtpaistr, cmdAceptar, cmdCancelar, cmdImprimir};
    for (qsizetype i = 1; i < orden.size(); ++i)
        setTabOrder(orden[i - 1], orden[i]);
}

void FrmDeclaracion::Conectar()
{
    m_salidas = new SalidaCampos(this);
    m_salidas->setActivo([this] {
        return !m_cerrando && !m_domSp->SelectorAbierto() && !m_domTr->SelectorAbierto();
    });
    m_salidas->setBotonCancelar(cmdCancelar, [this] { m_saltarValidacion = true; });
    auto* enter = new EnterComoTab(this);
    enter->setActivo([this] { return !m_domSp->SelectorAbierto() && !m_domTr->SelectorAbierto(); });
    ConectarCampos();
    ConectarPartes();
    // The press, not the click, on Cancelar: it comes before the field is left.
    connect(cmdCancelar, &QPushButton::pressed, this, [this] { m_saltarValidacion = true; });
    // No question about unsaved changes: the record keeps what was written to it.
    connect(cmdCancelar, &QPushButton::clicked, this, [this] { Cerrar(); });
    connect(cmdAceptar, &QPushButton::clicked, this, [this] { Proceso::Protegido([this] { Aceptar(); }); });
    connect(cmdImprimir, &QPushButton::clicked, this,
            [this] { Proceso::Protegido([this] { Imprimir(); }); });
}

// ----- Captions -----

void FrmDeclaracion::Anadir_captions()
{
    setWindowTitle(Texto(kIdDatosDeclaracion));
    for (const auto& [etiqueta, id] : m_etiquetas)
        etiqueta->setText(Texto(id));
    tabTerceros->setTabText(0, Texto(kIdBotonSujetoPasivo));
    tabTerceros->setTabText(1, Texto(kIdBotonTransmitente));
    cmdSujetoPasivo->setText(Texto(kIdBotonSeleccionSujetoPasivo));
    cmdTransmitente->setText(Texto(kIdBotonSeleccionTransmitente));
    cmdAceptar->setText(Texto(kIdBotonAceptar));
    cmdAceptar->setToolTip(Texto(kIdGrabarDeclaracion));
    cmdCancelar->setText(Texto(kIdBotonCancelar));
    cmdCancelar->setToolTip(Texto(kIdCancelar));
    cmdImprimir->setText(Texto(kIdBotonImprimir));
    cmdImprimir->setToolTip(Texto(kIdImprimirDeclaracionConsejo));
    chkAdquirido->setText(Texto(kIdAdquiridoFueraEspana));
    chkexento->setText(Texto(kIdExento));
    optDiesel->setText(Texto(kIdDiesel));
    optDiesel->setToolTip(Texto(kIdMotorDiesel));
    optGasolina->setText(Texto(kIdGasolina));
    optGasolina->setToolTip(Texto(kIdMotorGasolina));
    chknosujeto->setText(Texto(kIdNoSujeto));
    // The two reductions of the base are shown by their percentage, the same in both languages.
    chkReduccion1->setText(QStringLiteral("50 %"));
    chkReduccion2->setText(QStringLiteral("30 %"));
    CmdPresentador->setText(Texto(kIdBotonPresentador));
    chkConPresentador->setText(Texto(kIdConPresentador));
    chktipodnitr->setText(Texto(kIdDniExtranjero));
    chktipodomitr->setText(Texto(kIdDomicilioExtranjero));
    m_domSp->Anadir_captions();
    m_domTr->Anadir_captions();
}

void FrmDeclaracion::FormatosFecha()
{
    // The empty mask is the empty date of cFecha ("__/__/____" or "____/__/__").
    const bool euskera = IdiomaPrograma().esEuskera();
    txtfechad->setInputMask(euskera ? QStringLiteral("9999/99/99;_") : QStringLiteral("99/99/9999;_"));
}

void FrmDeclaracion::FormatearImportes()
{
    txtbasei->setEnteros(13);
    txtbasei->setDecimales(2);
    txtbasei->setFormato(QStringLiteral("#,###,###,###,##0.00"));
    txtBaseIReducida->setEnteros(13);
    txtBaseIReducida->setDecimales(2);
    txtBaseIReducida->setFormato(QStringLiteral("#,###,###,###,##0.00"));
    txtcuota->setEnteros(11);
    txtcuota->setDecimales(2);
    txtcuota->setFormato(QStringLiteral("##,###,###,##0.00"));
    txtdeduccion->setEnteros(11);
    txtdeduccion->setDecimales(2);
    txtdeduccion->setFormato(QStringLiteral("##,###,###,##0.00"));
    txttotal->setEnteros(13);
    txttotal->setDecimales(2);
    txttotal->setFormato(QStringLiteral("#,###,###,###,##0.00"));
}

// ----- Opening -----

void FrmDeclaracion::Iniciar()
{
    Anadir_captions();
    CargarListas();
    CargarDatosFormulario();
    PresentarDeclaracion();
    ActivarSelectores();
    m_saltarValidacion = false;
    m_cargandoOperaciones = false;
}

void FrmDeclaracion::CargarListas()
{
    m_domSp->CargarListas();
    m_domTr->CargarListas();
}

void FrmDeclaracion::CargarDatosFormulario()
{
    cDecDatos& d = DecDatos();
    FormatearImportes();
    FormatosFecha();
    using Navegacion::Entrada;
    using Navegacion::Modo;
    if (m_ruta.entrada == Entrada::Inicio) {
        d.MODIFICADO = false;
        m_ruta.criterio.clear();
        if (m_ruta.modo == Modo::Nuevo) {
            // A clean new return: the operations wait for a date.
            CargarNombres();
            return;
        }
        if (m_ruta.modo == Modo::Copia)
            d.MODIFICADO = true;
        d.CargarDeclaracion();
        SeleccionarOperacion();
        if (m_ruta.modo == Modo::Copia)
            d.CSDE = 0;  // a copy is saved as a new row
        CargarNombres();
        return;
    }
    if (m_ruta.entrada == Entrada::Sujeto) {
        d.CargarContribuyente(m_ruta.entrada);
        if (MismaParte())
            d.VolcarSpTR();
    } else if (m_ruta.entrada == Entrada::Transmitente) {
        d.CargarContribuyente(m_ruta.entrada);
        if (MismaParte())
            d.VolcarTrSp();
    }
    SeleccionarOperacion();
    CargarNombres();
}

void FrmDeclaracion::SeleccionarOperacion()
{
    cDecDatos& d = DecDatos();
    m_cargandoOperaciones = true;
    cmbOperacion->clear();
    cmbOperacion->addItems(d.CargarListaOperaciones());
    // The reduction of the operation is the return's own: a new date or operation keeps it,
    // and no other return's choice stays behind in the shared operation.
    Operacion().T_RED = d.REDUCCION;
    d.ObtenerDatosOperacion(false);
    BuscarEnCombo(Operacion().DESCRIP, cmbOperacion);
    m_cargandoOperaciones = false;
}

void FrmDeclaracion::CargarNombres()
{
    m_domSp->CargarNombres(true);
    m_domTr->CargarNombres(true);
}

void FrmDeclaracion::showEvent(QShowEvent* evento)
{
    QWidget::showEvent(evento);
    if (m_activado)
        return;
    m_activado = true;
    // Back from choosing a transmitter: its tab comes up, the focus on the date.
    if (m_ruta.entrada == Navegacion::Entrada::Transmitente) {
        MostrarPestana(1);
        txtfechad->setFocus(Qt::OtherFocusReason);
    }
}
