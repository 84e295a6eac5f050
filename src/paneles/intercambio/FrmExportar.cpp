#include "paneles/intercambio/FrmExportar.h"

#include "catalogo/IdsCatalogo.h"
#include "paneles/dialogos/DialogoFichero.h"
#include "paneles/dialogos/Mensaje.h"
#include "plataforma/Proceso.h"
#include "paneles/dialogos/Ventanas.h"
#include "catalogo/Catalogo.h"
#include "paneles/controles/FilaDeGrid.h"
#include "paneles/controles/FiltroCampo.h"
#include "valores/Filtros.h"
#include "paneles/controles/MostrarAyuda.h"
#include "valores/Rutas.h"
#include "valores/Twips.h"
#include "valores/Val.h"
#include "paneles/controles/cFlexGrid.h"
#include "paneles/intercambio/ControlNombrado.h"
#include "registros/partes/CriteriosLista.h"
#include "paneles/partes/ColumnasContribuyentes.h"
#include "paneles/partes/PanelLista.h"
#include "registros/intercambio/cExportar.h"

#include <QEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>

namespace {

using C = CampoIntercambio;

constexpr int kColumnaCodigo = 0;
constexpr int kColumnaNombre = 1;
constexpr int kColumnaDni = 2;
constexpr int kAnchos[] = {800, 2700, 1100};  // twips
// The exchange file, or a CSV file of a spreadsheet.
const QString kFiltro = QStringLiteral("*.txt (*.txt);;*.csv (*.csv);;*.* (*)");

QString TituloColumna(int columna)
{
    switch (columna) {
    case kColumnaCodigo: return QStringLiteral("NºCon.");
    case kColumnaNombre: return ColumnasContribuyentes::Titulo(ColumnasContribuyentes::kNombre);
    default: return ColumnasContribuyentes::Titulo(ColumnasContribuyentes::kDni);
    }
}

QColor Resaltado()
{
    return QColor::fromRgb(PanelLista::kColorResaltado);
}

// A grid of `n` contributors in whole pages of 13 rows: (last index / 13 + 1) * 13 + 1 rows,
// the spare rows at the end empty; with none, the heading and one empty row.
template <class Registro>
void Rellenar(cFlexGrid* grid, int n, Registro registro)
{
    grid->setRedraw(false);
    grid->setRows(1);
    if (n <= 0) {
        grid->setRows(2);
    } else {
        grid->setRows(((n - 1) / FrmExportar::kFilasPorPagina + 1) * FrmExportar::kFilasPorPagina
                      + 1);
        for (int i = 1; i <= n; ++i) {
            const RegistroContri& r = registro(i);
            grid->setTextMatrix(i, kColumnaCodigo, QString::number(r.CSCO));
            grid->setTextMatrix(i, kColumnaNombre, r.texto(C::NOMBRE).trimmed());
            grid->setTextMatrix(i, kColumnaDni, r.texto(C::DNI).trimmed());
        }
    }
    grid->setRedraw(true);
    grid->setRow(1);
}

// The code of a row as a number, 0 for an empty row.
int32_t CodigoDeFila(const cFlexGrid* grid, int fila)
{
    return int32_t(Val(grid->TextMatrix(fila, kColumnaCodigo)));
}

bool Numerica(const cFlexGrid* grid, int fila)
{
    bool ok = false;
    grid->TextMatrix(fila, kColumnaCodigo).toLongLong(&ok);
    return ok;
}

}  // namespace

FrmExportar* FrmExportar::Abrir()
{
    auto* panel = new FrmExportar;
    AbrirPanel(panel);
    panel->flxDeclaraciones->setFocus();
    return panel;
}

FrmExportar::FrmExportar(QWidget* parent) : PanelNavegado(parent)
{
    setObjectName(QStringLiteral("FrmExportar"));
    setAttribute(Qt::WA_DeleteOnClose);
    Construir();
    Situar();
    Conectar();
    Anadir_captions();
    Exportar().Iniciar();
    LblFichero->setText(Exportar().FICHEROAEXPORTAR);
    PresentaDatos();
    PresentaBotones();
    CambioFilaActivo = true;
}

void FrmExportar::Construir()
{
    lblTitulo = ControlNombrado<QLabel>(this, "lblTitulo");
    lblayuda = ControlNombrado<QLabel>(this, "lblayuda");
    flxDeclaraciones = ControlNombrado<cFlexGrid>(this, "flxDeclaraciones");
    lblResultado1 = ControlNombrado<QLabel>(this, "lblResultado1");
    cmdBuscar = ControlNombrado<QPushButton>(this, "cmdBuscar");
    cmdTodos = ControlNombrado<QPushButton>(this, "cmdTodos");
    txtBusqueda = ControlNombrado<QLineEdit>(this, "txtBusqueda");
    txtBusqueda->hide();
    txtBusqueda->setEnabled(false);
    AplicarFiltro(txtBusqueda, TipoFiltro::Texto);
    txtBusqueda->installEventFilter(this);
    CmdSelUno = ControlNombrado<QPushButton>(this, "CmdSelUno");
    CmdSelTodos = ControlNombrado<QPushButton>(this, "CmdSelTodos");
    CmdDeselUno = ControlNombrado<QPushButton>(this, "CmdDeselUno");
    CmdDeselTodos = ControlNombrado<QPushButton>(this, "CmdDeselTodos");
    FlxSeleccionados = ControlNombrado<cFlexGrid>(this, "FlxSeleccionados");
    LblResultado2 = ControlNombrado<QLabel>(this, "LblResultado2");
    LblFichero = ControlNombrado<QLabel>(this, "LblFichero");
    CmdModificar = ControlNombrado<QPushButton>(this, "CmdModificar");
    cmdAceptar = ControlNombrado<QPushButton>(this, "cmdAceptar");
    cmdCancelar = ControlNombrado<QPushButton>(this, "cmdCancelar");
    picasc = ControlNombrado<QLabel>(this, "picasc");
    picasc->setPixmap(PanelLista::FlechaAscendente());
    picasc->setFixedSize(picasc->pixmap().size());
    picasc->setAttribute(Qt::WA_TransparentForMouseEvents);  // the heading under it takes the click
    for (cFlexGrid* grid : {flxDeclaraciones, FlxSeleccionados}) {
        PanelLista::PrepararGrid(grid);
        DefinirColumnas(grid);
    }
    cmdAceptar->setIcon(style()->standardIcon(QStyle::SP_DialogSaveButton));
    cmdCancelar->setIcon(style()->standardIcon(QStyle::SP_DialogCancelButton));
    CmdModificar->setIcon(style()->standardIcon(QStyle::SP_DirOpenIcon));
    CmdSelUno->setText(QStringLiteral(">"));
    CmdSelTodos->setText(QStringLiteral(">>"));
    CmdDeselUno->setText(QStringLiteral("<"));
    CmdDeselTodos->setText(QStringLiteral("<<"));
    Utilidades.Flex(flxDeclaraciones);
    Utilidades.txtBusqueda(txtBusqueda);
    UtilidadesSeleccionados.Flex(FlxSeleccionados);
}

// The found grid above, the chosen one below, each one page of 13 rows high; the search and
// moving buttons between them, the file and the panel's buttons at the foot.
void FrmExportar::Situar()
{
    for (cFlexGrid* grid : {flxDeclaraciones, FlxSeleccionados}) {
        int ancho = 2 * grid->frameWidth() + grid->verticalScrollBar()->sizeHint().width();
        for (int twips : kAnchos)
            ancho += TwipsAPixeles(twips);
        grid->setFixedSize(ancho, grid->horizontalHeader()->sizeHint().height()
                                      + kFilasPorPagina * grid->verticalHeader()->defaultSectionSize()
                                      + 2 * grid->frameWidth());
    }
    auto* busqueda = new QHBoxLayout;
    busqueda->addWidget(lblResultado1, 1);
    busqueda->addWidget(cmdBuscar);
    busqueda->addWidget(cmdTodos);
    auto* mover = new QHBoxLayout;
    mover->addStretch(1);
    for (QPushButton* b : {CmdSelUno, CmdSelTodos, CmdDeselUno, CmdDeselTodos})
        mover->addWidget(b);
    mover->addStretch(1);
    auto* fichero = new QHBoxLayout;
    fichero->addWidget(LblFichero, 1);
    fichero->addWidget(CmdModificar);
    auto* botones = new QHBoxLayout;
    botones->addWidget(cmdAceptar);
    botones->addStretch(1);
    botones->addWidget(cmdCancelar);
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(lblTitulo);
    todo->addWidget(lblayuda);
    todo->addWidget(flxDeclaraciones);
    todo->addLayout(busqueda);
    todo->addLayout(mover);
    todo->addWidget(FlxSeleccionados);
    todo->addWidget(LblResultado2);
    todo->addLayout(fichero);
    todo->addLayout(botones);
    todo->setSizeConstraint(QLayout::SetFixedSize);
    LblFichero->setMaximumWidth(flxDeclaraciones->width());
    lblTitulo->setWordWrap(true);
    lblayuda->setWordWrap(true);
    lblResultado1->setWordWrap(true);
    setTabOrder(flxDeclaraciones, txtBusqueda);
    setTabOrder(txtBusqueda, cmdBuscar);
    setTabOrder(cmdBuscar, cmdTodos);
    setTabOrder(cmdTodos, CmdSelUno);
    setTabOrder(CmdSelUno, CmdSelTodos);
    setTabOrder(CmdSelTodos, CmdDeselUno);
    setTabOrder(CmdDeselUno, CmdDeselTodos);
    setTabOrder(CmdDeselTodos, FlxSeleccionados);
    setTabOrder(FlxSeleccionados, CmdModificar);
    setTabOrder(CmdModificar, cmdAceptar);
    setTabOrder(cmdAceptar, cmdCancelar);
}

// Every handler that may reach the store runs protected: a failure ends the program with its
// notice.
void FrmExportar::Conectar()
{
    const auto protegido = [this](void (FrmExportar::*accion)()) {
        return [this, accion] { Proceso::Protegido([this, accion] { (this->*accion)(); }); };
    };
    connect(flxDeclaraciones, &cFlexGrid::pulsado, this, [this](int f, int) { Pulsado(f); });
    connect(flxDeclaraciones, &cFlexGrid::clic, this,
            [this](int f, int c) { Proceso::Protegido([&] { Clic(f, c); }); });
    connect(flxDeclaraciones, &cFlexGrid::filaColCambiada, this, [this] { FilaCambiada(); });
    connect(FlxSeleccionados, &cFlexGrid::clic, this,
            [this](int f, int) { Proceso::Protegido([&] { ClicSeleccionados(f); }); });
    connect(FlxSeleccionados, &cFlexGrid::filaColCambiada, this,
            [this] { FilaSeleccionadosCambiada(); });
    connect(txtBusqueda, &QLineEdit::returnPressed, this, [this] { focusNextPrevChild(true); });
    connect(cmdBuscar, &QPushButton::clicked, this, protegido(&FrmExportar::Buscar));
    connect(cmdTodos, &QPushButton::clicked, this, protegido(&FrmExportar::Todos));
    connect(CmdSelUno, &QPushButton::clicked, this, protegido(&FrmExportar::SelUno));
    connect(CmdSelTodos, &QPushButton::clicked, this, protegido(&FrmExportar::SelTodos));
    connect(CmdDeselUno, &QPushButton::clicked, this, protegido(&FrmExportar::DeselUno));
    connect(CmdDeselTodos, &QPushButton::clicked, this, protegido(&FrmExportar::DeselTodos));
    connect(CmdModificar, &QPushButton::clicked, this, protegido(&FrmExportar::Modificar));
    connect(cmdAceptar, &QPushButton::clicked, this, protegido(&FrmExportar::Aceptar));
    connect(cmdCancelar, &QPushButton::clicked, this, [this] { Cerrar(); });
}

void FrmExportar::DefinirColumnas(cFlexGrid* grid)
{
    grid->setRows(2);
    grid->setCols(3);
    for (int c = 0; c < 3; ++c) {
        grid->setTextMatrix(0, c, TituloColumna(c));
        grid->setColWidth(c, TwipsAPixeles(kAnchos[c]));
        grid->setColAlignment(c, (c == kColumnaCodigo ? Qt::AlignRight : Qt::AlignLeft)
                                     | Qt::AlignVCenter);
    }
}

void FrmExportar::Anadir_captions()
{
    setWindowTitle(Texto(kIdExportacionContribuyentes));
    lblTitulo->setText(Texto(kIdAyudaSeleccionExportar));
    cmdBuscar->setText(Texto(kIdBusqueda));
    cmdTodos->setText(Texto(kIdTodos));
    CmdModificar->setText(Texto(kIdModificarFichero));
    cmdAceptar->setText(Texto(kIdBotonAceptar));
    cmdAceptar->setToolTip(Texto(kIdExportarSeleccionados));
    cmdCancelar->setText(Texto(kIdBotonCancelar));
    cmdCancelar->setToolTip(Texto(kIdVolverMenuPrincipal));
    for (cFlexGrid* grid : {flxDeclaraciones, FlxSeleccionados})
        for (int c = 0; c < 3; ++c)
            grid->setTextMatrix(0, c, TituloColumna(c));
}

void FrmExportar::PresentaDatos()
{
    Presentar(true);
}

void FrmExportar::Presentar(bool recargar)
{
    CambioFilaActivo = false;
    if (Exportar().BUSQUEDA == QLatin1String("B"))
        PresentaBusqueda();
    else
        PresentaResultado(recargar);
    PresentaSeleccionados();
    CambioFilaActivo = true;
}

void FrmExportar::PresentaResultado(bool recargar)
{
    cExportar& e = Exportar();
    if (recargar) {
        e.CargarFlxDeclaraciones();
        Rellenar(flxDeclaraciones, e.TablaContriCOUNT(),
                 [&e](int i) -> const RegistroContri& { return e.TablaContriELEMENTO(i); });
    }
    const int fila = FilaDeGrid(flxDeclaraciones, kColumnaCodigo, e.CSCO);
    if (fila < flxDeclaraciones->TopRow() || fila >= flxDeclaraciones->TopRow() + kFilasPorPagina)
        flxDeclaraciones->setTopRow(fila);
    Utilidades.SeleccionarGrid(Resaltado(), flxDeclaraciones->ForeColor(), fila);
    e.CSCO = CodigoDeFila(flxDeclaraciones, fila);

    e.lblayuda = Texto(kIdAyudaOrdenarLista);
    const QString cuantos = QString::number(e.NUMCONTRISEL);
    const QString criterios = CriteriosLista::Texto(
        e.TABLASELECCION,
        TextoSegunIdioma(QStringLiteral("Nombre empieza por,"),
                         QStringLiteral("Izenaren hasierako letra")),
        TextoSegunIdioma(QStringLiteral("DNI empieza por"), QStringLiteral("NAren hasierako zifra")));
    if (e.NUMCONTRISEL == 0)
        e.lblResultado1 = criterios + Texto(kIdSinDatosCondicion);
    else if (e.HayCriterios())
        e.lblResultado1 = criterios + cuantos + Texto(kIdContribuyentesSeleccionados);
    else
        e.lblResultado1 = cuantos + Texto(kIdContribuyentesEnLista);
    MostrarAyuda(lblayuda, e.lblayuda, flxDeclaraciones->width());
    lblResultado1->setText(e.lblResultado1);
    txtBusqueda->setEnabled(false);
    txtBusqueda->hide();
    picasc->show();
    SituarFlecha();
}

void FrmExportar::PresentaBusqueda()
{
    cExportar& e = Exportar();
    picasc->hide();
    e.lblayuda = Texto(kIdAyudaCriterioSeleccion);
    e.lblResultado1.clear();
    MostrarAyuda(lblayuda, e.lblayuda, flxDeclaraciones->width());
    lblResultado1->clear();
    PanelLista::MostrarBusqueda(flxDeclaraciones, txtBusqueda, Utilidades, e.TABLASELECCION,
                                e.SELECCIONACTUAL);
}

// The chosen contributors, in the order they were chosen, and the one selected among them.
void FrmExportar::PresentaSeleccionados()
{
    cExportar& e = Exportar();
    Rellenar(FlxSeleccionados, e.TablaContriExpCOUNT(),
             [&e](int i) -> const RegistroContri& { return e.TablaContriExpELEMENTO(i); });
    const int fila = FilaDeGrid(FlxSeleccionados, kColumnaCodigo, e.CSCOEXP);
    if (fila < FlxSeleccionados->TopRow() || fila >= FlxSeleccionados->TopRow() + kFilasPorPagina)
        FlxSeleccionados->setTopRow(fila);
    UtilidadesSeleccionados.SeleccionarGrid(Resaltado(), FlxSeleccionados->ForeColor(), fila);
    e.CSCOEXP = CodigoDeFila(FlxSeleccionados, fila);
    e.LblResultado2 = QString::number(e.NUMCONTRIEXP) + Texto(kIdContribuyentesParaExportar);
    LblResultado2->setText(e.LblResultado2);
}

void FrmExportar::SituarFlecha()
{
    PanelLista::ColocarFlecha(picasc, flxDeclaraciones, Exportar().ORDEN);
}

void FrmExportar::PresentaBotones()
{
    const cExportar& e = Exportar();
    const bool normal = e.BUSQUEDA == QLatin1String("N");
    CmdSelTodos->setEnabled(normal && e.NUMCONTRISEL > 0);
    CmdSelUno->setEnabled(normal && e.NUMCONTRISEL > 0 && e.CSCO != 0);
    const bool hayElegidos = e.NUMCONTRIEXP > 0;
    CmdDeselTodos->setEnabled(hayElegidos);
    cmdAceptar->setEnabled(hayElegidos);
    CmdDeselUno->setEnabled(hayElegidos && e.CSCOEXP != 0);
    CmdModificar->setEnabled(true);
    cmdCancelar->setEnabled(true);
    if (normal) {
        cmdBuscar->setEnabled(true);
        cmdBuscar->setText(Texto(kIdBusqueda));
    } else {
        cmdBuscar->setText(Texto(kIdResultado));
        cmdBuscar->setEnabled(e.HayCriterios() || Val(e.SELECCIONACTUAL) != 0);
    }
}

void FrmExportar::MarcarEncontrado()
{
    CambioFilaActivo = false;
    Utilidades.SeleccionarGrid(Resaltado(), flxDeclaraciones->ForeColor(), 0);
    Exportar().CSCO = CodigoDeFila(flxDeclaraciones, flxDeclaraciones->Row());
    CambioFilaActivo = true;
}

void FrmExportar::MarcarSeleccionado()
{
    UtilidadesSeleccionados.SeleccionarGrid(Resaltado(), FlxSeleccionados->ForeColor(), 0);
    Exportar().CSCOEXP = CodigoDeFila(FlxSeleccionados, FlxSeleccionados->Row());
}

void FrmExportar::Pulsado(int fila)
{
    ClicEnCabecera = fila == 0;
    // A press on the heading leaves a prefix being typed, as a press on a row does.
    if (txtBusqueda->hasFocus())
        flxDeclaraciones->setFocus(Qt::MouseFocusReason);
}

void FrmExportar::Clic(int, int columna)
{
    cExportar& e = Exportar();
    if (e.BUSQUEDA == QLatin1String("N")) {
        if (ClicEnCabecera) {
            // Ordering: always ascending, by name or by number only.
            if (!e.OrdenarPor(columna))
                return;
            Presentar(true);
        } else if (e.NUMCONTRISEL > 0 && flxDeclaraciones->Row() > 0) {
            MarcarEncontrado();
        }
        PresentaBotones();
        return;
    }
    if (e.ElegirColumnaBusqueda(columna)) {
        Presentar(true);
        PresentaBotones();
    }
}

// The current row moved by the keyboard (the program's own moves are not counted).
void FrmExportar::FilaCambiada()
{
    const cExportar& e = Exportar();
    if (!CambioFilaActivo || e.BUSQUEDA != QLatin1String("N") || e.NUMCONTRISEL < 1
        || flxDeclaraciones->Row() < 1)
        return;
    MarcarEncontrado();
    PresentaBotones();
}

void FrmExportar::ClicSeleccionados(int fila)
{
    if (fila < 1 || Exportar().NUMCONTRIEXP < 1)
        return;
    MarcarSeleccionado();
    PresentaBotones();
}

void FrmExportar::FilaSeleccionadosCambiada()
{
    if (!CambioFilaActivo || Exportar().NUMCONTRIEXP < 1 || FlxSeleccionados->Row() < 1)
        return;
    CambioFilaActivo = false;
    MarcarSeleccionado();
    CambioFilaActivo = true;
    PresentaBotones();
}

bool FrmExportar::eventFilter(QObject* objeto, QEvent* evento)
{
    if (objeto == txtBusqueda && PanelLista::AbandonaBusqueda(evento))
        Proceso::Protegido([this] { BusquedaAbandonada(); });
    return QWidget::eventFilter(objeto, evento);
}

// The prefix typed becomes the criterion of its column, and the list is ordered by it.
void FrmExportar::BusquedaAbandonada()
{
    cExportar& e = Exportar();
    if (m_cerrando || e.BUSQUEDA != QLatin1String("B") || Val(e.SELECCIONACTUAL) == 0)
        return;
    e.AnotarBusqueda(txtBusqueda->text());
    txtBusqueda->setEnabled(false);
    Presentar(true);
    PresentaBotones();
}

void FrmExportar::Buscar()
{
    Exportar().CambiarBusqueda();
    Presentar(true);
    PresentaBotones();
}

void FrmExportar::Todos()
{
    Exportar().Todos();
    Presentar(true);
    PresentaBotones();
}

// The selected contributor joins the file, and the selection moves on to the next row.
void FrmExportar::SelUno()
{
    cExportar& e = Exportar();
    if (e.SeleccionarUno()) {
        const int siguiente = flxDeclaraciones->Row() + 1;
        if (siguiente < flxDeclaraciones->Rows() && Numerica(flxDeclaraciones, siguiente))
            e.CSCO = CodigoDeFila(flxDeclaraciones, siguiente);
    }
    Presentar(false);
    PresentaBotones();
}

void FrmExportar::SelTodos()
{
    Exportar().SeleccionarTodos();
    Presentar(false);
    PresentaBotones();
}

void FrmExportar::DeselUno()
{
    cExportar& e = Exportar();
    e.TablaContriExpBORRAR(FilaDeGrid(FlxSeleccionados, kColumnaCodigo, e.CSCOEXP));
    // The grid still shows its old rows: the selection goes to the first of them.
    if (!Numerica(FlxSeleccionados, 1))
        return;
    e.CSCOEXP = CodigoDeFila(FlxSeleccionados, 1);
    Presentar(false);
    PresentaBotones();
}

void FrmExportar::DeselTodos()
{
    Exportar().DeseleccionarTodos();
    Presentar(false);
    PresentaBotones();
}

void FrmExportar::Modificar()
{
    cExportar& e = Exportar();
    QString elegido = DialogoGuardarFichero( this, Texto(kIdExportarA),
                                            RutaFichero(e.FICHEROAEXPORTAR)
                                            + NombreFichero(e.FICHEROAEXPORTAR), kFiltro);
    if (elegido.isEmpty() || !elegido.contains(QLatin1Char('/')))
        return;
    if (QFileInfo(elegido).suffix().isEmpty())
        elegido += QStringLiteral(".txt");
    e.FICHEROAEXPORTAR = elegido;
    LblFichero->setText(elegido);
}

void FrmExportar::Aceptar()
{
    cExportar& e = Exportar();
    const QString titulo = windowTitle();
    if (const Resultado<void> r = e.ComprobarIdentidades(); !r) {
        Mensaje(r.veredicto().mensaje, vb::Exclamation, titulo);
        return;
    }
    if (const Resultado<void> r = e.ComprobarDestino(); !r) {
        Mensaje(r.veredicto().mensaje, vb::OKOnly, titulo);
        return;
    }
    // The answer is not looked at: the file is replaced after either.
    if (e.DestinoExiste())
        Mensaje(Texto(kIdPreguntaReemplazarArchivo), vb::YesNo + vb::Question,
                Texto(kIdConfirmacion));
    // A failure to write leaves the former file whole; the panel closes as after a success.
    e.EscribirFichero();
    Cerrar();
}

void FrmExportar::Cerrar()
{
    m_cerrando = true;
    CerrarPanel(this);
}
