#include "paneles/partes/PanelLista.h"

#include "catalogo/IdsCatalogo.h"
#include "paneles/dialogos/Mensaje.h"
#include "plataforma/Proceso.h"
#include "paneles/dialogos/Ventanas.h"
#include "catalogo/Catalogo.h"
#include "paneles/controles/FilaDeGrid.h"
#include "paneles/controles/FiltroCampo.h"
#include "valores/Filtros.h"
#include "paneles/controles/SeleccionarTexto.h"
#include "paneles/controles/AnchoColumna.h"
#include "paneles/controles/MostrarAyuda.h"
#include "valores/Twips.h"
#include "valores/Val.h"
#include "paneles/controles/cFlexGrid.h"
#include "registros/partes/CriteriosLista.h"

#include <QEvent>
#include <QFocusEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>

#include <algorithm>

namespace {

// Geometry of the panel, in twips as the panel was drawn.
constexpr int kMargen = 90;
constexpr int kAltoBoton = 570;
constexpr int kAnchoBoton = 2250;
constexpr int kLadoIcono = 360;
constexpr int kIzquierdaBotones[] = {90, 2490, 4950, 7320};   // Aceptar, Cancelar, Nuevo, Declaraciones
constexpr int kIzquierdaIconos[] = {300, 2700, 5160, 7500};
constexpr int kAnchoBuscar = 1200;
constexpr int kAltoBuscar = 390;
constexpr int kFlechaDerecha = 250;   // the arrow stands this far left of the column's right edge
constexpr int kFlechaArriba = 65;     // and this far below the grid's top

constexpr qreal kPuntosLetraGrid = 7.5;

constexpr int kColumnaNombre = 1;
constexpr int kColumnaDni = 2;
constexpr int kLargoNombre = 40;
constexpr int kLargoDni = 9;

// An icon beside a button: a click on it is a click on the button, and it shows the colour
// or the grey picture by the state of its button.
class IconoBoton : public QLabel {
public:
    IconoBoton(QPushButton* boton, QStyle::StandardPixmap imagen, QWidget* parent)
        : QLabel(parent), m_boton(boton), m_icono(parent->style()->standardIcon(imagen))
    {
        // The icon takes the focus on a click, so that a field being typed in is left (and its
        // leaving checks run) before the icon acts.
        setFocusPolicy(Qt::ClickFocus);
        setAlignment(Qt::AlignCenter);
        Pintar();
    }

    void Pintar()
    {
        const int lado = TwipsAPixeles(kLadoIcono);
        setPixmap(m_icono.pixmap(QSize(lado, lado),
                                 m_boton->isEnabled() ? QIcon::Normal : QIcon::Disabled));
        setEnabled(m_boton->isEnabled());
    }

protected:
    void mouseReleaseEvent(QMouseEvent* evento) override
    {
        QLabel::mouseReleaseEvent(evento);
        if (evento->button() == Qt::LeftButton && rect().contains(evento->position().toPoint()))
            m_boton->click();  // does nothing while the button is disabled
    }

private:
    QPushButton* m_boton;
    QIcon m_icono;
};

void Pintar(QLabel* icono)
{
    if (auto* i = dynamic_cast<IconoBoton*>(icono))
        i->Pintar();
}

}  // namespace

// The small arrow of the ordering column: ascending.
QPixmap PanelLista::FlechaAscendente()
{
    QPixmap flecha(9, 6);
    flecha.fill(Qt::transparent);
    QPainter p(&flecha);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x40, 0x40, 0x40));
    p.drawPolygon(QPolygon({QPoint(0, 6), QPoint(9, 6), QPoint(4, 0)}));
    return flecha;
}

void PanelLista::PrepararGrid(cFlexGrid* grid)
{
    // The columns have the widths of the panel's design: a number of nine characters fills its
    // column in the small type of a list.
    QFont letra = grid->font();
    letra.setPointSizeF(std::min(letra.pointSizeF(), kPuntosLetraGrid));
    grid->setFont(letra);
    grid->horizontalHeader()->setFont(letra);
    grid->verticalHeader()->setDefaultSectionSize(QFontMetrics(letra).height() + 6);
    grid->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    grid->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

namespace {

template <class W>
W* Control(QWidget* padre, const char* nombre)
{
    auto* w = new W(padre);
    w->setObjectName(QString::fromLatin1(nombre));
    return w;
}

}  // namespace

QString RotuloLista::texto() const
{
    if (id != 0)
        return Texto(id);
    return TextoSegunIdioma(QString::fromUtf8(es), QString::fromUtf8(eu));
}

PanelLista::PanelLista(DisenoLista diseno, cListaParte& estado, QWidget* parent)
    : PanelNavegado(parent), m_diseno(std::move(diseno)), m_estado(estado)
{
    setObjectName(m_diseno.nombrePanel);
    setAttribute(Qt::WA_DeleteOnClose);
    ConstruirControles();
    // The columns first: their widths, fitted to their headings, give the grid's.
    DefinirColumnas();
    Situar();
    Anadir_captions();
    Utilidades.Flex(m_grid);
    Utilidades.txtBusqueda(txtBusqueda);
}

PanelLista::~PanelLista() = default;

void PanelLista::ConstruirControles()
{
    m_grid = new cFlexGrid(this);
    m_grid->setObjectName(m_diseno.nombreGrid);
    PrepararGrid(m_grid);
    txtBusqueda = Control<QLineEdit>(this, "txtBusqueda");
    txtBusqueda->hide();
    txtBusqueda->setEnabled(false);
    AplicarFiltro(txtBusqueda, TipoFiltro::Texto);
    txtBusqueda->installEventFilter(this);
    picasc = Control<QLabel>(this, "picasc");
    picasc->setPixmap(FlechaAscendente());
    picasc->setFixedSize(picasc->pixmap().size());
    picasc->setAttribute(Qt::WA_TransparentForMouseEvents);  // the heading under it takes the click
    lblayuda = Control<QLabel>(this, "lblayuda");
    lblResultado = Control<QLabel>(this, "lblResultado");
    cmdBuscar = Control<QPushButton>(this, "cmdBuscar");
    cmdTodos = Control<QPushButton>(this, "cmdTodos");
    cmdAceptar = Control<QPushButton>(this, "cmdAceptar");
    cmdCancelar = Control<QPushButton>(this, "cmdCancelar");
    cmdNuevo = Control<QPushButton>(this, "cmdNuevo");
    CmdDeclaraciones = Control<QPushButton>(this, "CmdDeclaraciones");
    // Enter on a button that has the focus presses it, as Space does (a list panel has no
    // Enter-as-Tab rule; Enter in the grid opens the chosen row).
    for (QPushButton* b : {cmdBuscar, cmdTodos, cmdAceptar, cmdCancelar, cmdNuevo, CmdDeclaraciones})
        b->setAutoDefault(true);
    ConstruirIconos();
    setTabOrder(m_grid, txtBusqueda);
    setTabOrder(txtBusqueda, cmdBuscar);
    setTabOrder(cmdBuscar, cmdTodos);
    setTabOrder(cmdTodos, cmdAceptar);
    setTabOrder(cmdAceptar, cmdCancelar);
    setTabOrder(cmdCancelar, cmdNuevo);
    setTabOrder(cmdNuevo, CmdDeclaraciones);
    Conectar();
}

void PanelLista::ConstruirIconos()
{
    auto icono = [this](QPushButton* boton, QStyle::StandardPixmap imagen, const char* nombre) {
        auto* i = new IconoBoton(boton, imagen, this);
        i->setObjectName(QString::fromLatin1(nombre));
        return static_cast<QLabel*>(i);
    };
    PicDatos = icono(cmdAceptar, QStyle::SP_FileDialogDetailedView, "PicDatos");
    PicEliminar = icono(cmdAceptar, QStyle::SP_TrashIcon, "PicEliminar");
    PicAtras = icono(cmdCancelar, QStyle::SP_ArrowBack, "PicAtras");
    PicCancelar = icono(cmdCancelar, QStyle::SP_DialogCancelButton, "PicCancelar");
    PicNuevo = icono(cmdNuevo, QStyle::SP_FileIcon, "PicNuevo");
    PicDeclaraciones = icono(CmdDeclaraciones, QStyle::SP_FileDialogContentsView, "PicDeclaraciones");
    PicAce = icono(cmdAceptar, QStyle::SP_DialogApplyButton, "PicAce");
    PicCan = icono(cmdCancelar, QStyle::SP_DialogCancelButton, "PicCan");
    PicEliminar->hide();
    PicCancelar->hide();
    PicAce->hide();
    PicCan->hide();
}

// Every handler that may reach the store runs protected: a failure ends the program with its
// notice.
void PanelLista::Conectar()
{
    auto protegido = [](auto accion) { return [accion] { Proceso::Protegido(accion); }; };
    connect(m_grid, &cFlexGrid::pulsado, this, [this](int f, int c) { Pulsado(f, c); });
    connect(m_grid, &cFlexGrid::clic, this,
            [this](int f, int c) { Proceso::Protegido([&] { Clic(f, c); }); });
    connect(m_grid, &cFlexGrid::dobleClic, this,
            [this](int f, int c) { Proceso::Protegido([&] { DobleClic(f, c); }); });
    connect(m_grid, &cFlexGrid::tecla, this,
            [this](int t, int, int) { Proceso::Protegido([&] { Tecla(t); }); });
    connect(m_grid, &cFlexGrid::filaColCambiada, this, [this] { FilaCambiada(); });
    connect(txtBusqueda, &QLineEdit::returnPressed, this, [this] { focusNextPrevChild(true); });
    connect(cmdAceptar, &QPushButton::clicked, this, protegido([this] { Aceptar(); }));
    connect(cmdCancelar, &QPushButton::clicked, this, [this] { Cerrar(); });
    connect(cmdNuevo, &QPushButton::clicked, this, protegido([this] { Nuevo(); }));
    connect(CmdDeclaraciones, &QPushButton::clicked, this, protegido([this] { Declaraciones(); }));
    connect(cmdBuscar, &QPushButton::clicked, this, protegido([this] { Buscar(); }));
    connect(cmdTodos, &QPushButton::clicked, this, protegido([this] { Todos(); }));
}

// Lays the controls out: the grid shows one page of rows; the help and result lines and the
// search buttons under it; the four buttons with their icons at the foot.
void PanelLista::Situar()
{
    const int margen = TwipsAPixeles(kMargen);
    int anchoColumnas = 0;
    for (int c = 0; c < m_grid->Cols(); ++c)
        anchoColumnas += m_grid->ColWidth(c);
    const int marco = 2 * m_grid->frameWidth();
    const int anchoGrid = anchoColumnas + m_grid->verticalScrollBar()->sizeHint().width() + marco;
    const int altoGrid = m_grid->horizontalHeader()->sizeHint().height()
        + kFilasPorPagina * m_grid->verticalHeader()->defaultSectionSize() + marco;
    m_grid->setGeometry(margen, margen, anchoGrid, altoGrid);

    const int bajoGrid = m_grid->geometry().bottom() + 1 + margen;
    const int anchoBuscar = TwipsAPixeles(kAnchoBuscar);
    const int altoBuscar = TwipsAPixeles(kAltoBuscar);
    cmdTodos->setGeometry(m_grid->geometry().right() + 1 - anchoBuscar, bajoGrid, anchoBuscar,
                          altoBuscar);
    cmdBuscar->setGeometry(cmdTodos->x() - margen - anchoBuscar, bajoGrid, anchoBuscar, altoBuscar);
    lblayuda->move(margen, bajoGrid);
    lblResultado->setGeometry(margen, bajoGrid + TwipsAPixeles(480),
                              cmdBuscar->x() - 2 * margen, TwipsAPixeles(240));

    const int arribaBotones = lblResultado->geometry().bottom() + 1 + margen;
    const QList<QPushButton*> botones = {cmdAceptar, cmdCancelar, cmdNuevo, CmdDeclaraciones};
    const int lado = TwipsAPixeles(kLadoIcono);
    const int altoBoton = TwipsAPixeles(kAltoBoton);
    for (int i = 0; i < botones.size(); ++i)
        botones[i]->setGeometry(TwipsAPixeles(kIzquierdaBotones[i]), arribaBotones,
                                TwipsAPixeles(kAnchoBoton), altoBoton);
    const QList<QList<QLabel*>> iconos = {{PicDatos, PicEliminar, PicAce},
                                          {PicAtras, PicCancelar, PicCan},
                                          {PicNuevo},
                                          {PicDeclaraciones}};
    for (int i = 0; i < iconos.size(); ++i)
        for (QLabel* icono : iconos[i]) {
            icono->setGeometry(TwipsAPixeles(kIzquierdaIconos[i]),
                               arribaBotones + (altoBoton - lado) / 2, lado, lado);
            icono->raise();
        }

    const int ancho = std::max(m_grid->geometry().right(), CmdDeclaraciones->geometry().right())
        + 1 + margen;
    setFixedSize(ancho, arribaBotones + altoBoton + margen);
}

void PanelLista::Anadir_captions()
{
    PonerTitulo(Texto(m_diseno.idTituloAbrir));
    CmdDeclaraciones->setText(Texto(m_diseno.idDeclaraciones));
    CmdDeclaraciones->setToolTip(Texto(kIdVerDeclaraciones));
    cmdAceptar->setText(Texto(m_diseno.idAceptar));
    cmdAceptar->setToolTip(m_diseno.tipDatos.texto());
    cmdCancelar->setText(Texto(m_diseno.idCancelar));
    cmdCancelar->setToolTip(Texto(m_diseno.idTipCancelar));
    cmdNuevo->setText(Texto(kIdBotonNuevo));
    cmdNuevo->setToolTip(Texto(m_diseno.idTipNuevo));
    cmdBuscar->setText(Texto(kIdBusqueda));
    cmdTodos->setText(Texto(kIdTodos));
    MostrarAyuda(lblayuda, Texto(kIdAyudaOrdenarDeclaraciones), lblResultado->width());
    lblResultado->setText(Texto(kIdSinDatosCondicion));
}

void PanelLista::DefinirColumnas()
{
    m_grid->setRows(2);
    m_grid->setCols(int(m_diseno.columnas.size()));
    for (int c = 0; c < m_diseno.columnas.size(); ++c) {
        const ColumnaLista& columna = m_diseno.columnas[c];
        const QString cabecera = columna.cabecera.texto();
        m_grid->setTextMatrix(0, c, cabecera);
        // A column shown is as wide as its heading needs, with the order's arrow on the name
        // and the number.
        const bool ordena = c == kColumnaNombre || c == kColumnaDni;
        m_grid->setColWidth(c, columna.anchoTwips == 0
                                   ? 0
                                   : AnchoColumnaQueCabe(m_grid, TwipsAPixeles(columna.anchoTwips),
                                                         cabecera, ordena, kFlechaDerecha));
        m_grid->setColAlignment(c, columna.alineacion | Qt::AlignVCenter);
    }
    // The current cell starts in the first column shown: the hidden code column cannot be
    // walked from with the arrow keys.
    m_grid->setCol(1);
}

void PanelLista::Iniciar()
{
    if (auto* marco = qobject_cast<QMdiSubWindow*>(parentWidget()))
        marco->move(0, 0);
    else if (isWindow() && VentanaPrincipal())
        move(VentanaPrincipal()->geometry().topLeft());
    IniciarLista();
    PresentaDatos();
    PresentaBotones();
    CambioFilaActivo = true;
    m_grid->setFocus();
}

void PanelLista::IniciarLista()
{
    m_estado.IniciarLista();
    LimpiarGrid();
}

// The heading row and one empty row.
void PanelLista::LimpiarGrid()
{
    m_grid->setRows(1);
    m_grid->setRows(2);
}

void PanelLista::CargarFlx()
{
    CargarFilas();
}

// The rows found, in whole pages of 15: spare rows at the end stay empty.
void PanelLista::RellenarGrid(qsizetype n, const std::function<QString(qsizetype, int)>& celda)
{
    const int columnas = m_grid->Cols();
    m_grid->setRedraw(false);
    m_grid->setRows(1);
    m_grid->setRows(int(((n - 1) / kFilasPorPagina + 1) * kFilasPorPagina + 1));
    for (qsizetype i = 0; i < n; ++i) {
        for (int j = 0; j < columnas; ++j)
            m_grid->setTextMatrix(int(i) + 1, j, celda(i, j));
    }
    m_grid->setRedraw(true);
    lblResultado->clear();
    // Cutting the grid took the current row to the heading; the first row is marked instead.
    m_grid->setRow(1);
    Utilidades.SeleccionarGrid(QColor::fromRgb(kColorResaltado), m_grid->ForeColor(), 0);
}

// The criteria in words, joined by ", " where both sides say something.
QString PanelLista::TextoCriterios() const
{
    return CriteriosLista::Texto(m_estado.TABLASELECCION, m_diseno.criterioNombre.texto(),
                                 m_diseno.criterioDni.texto());
}

bool PanelLista::HayCriterios() const
{
    return m_estado.TABLASELECCION && !m_estado.TABLASELECCION->isEmpty();
}

void PanelLista::PresentaDatos()
{
    CambioFilaActivo = false;
    if (m_estado.BUSQUEDA == QLatin1String("B"))
        PresentaBusqueda();
    else
        PresentaResultado();
    CambioFilaActivo = true;
}

void PanelLista::PresentaResultado()
{
    const bool criterios = HayCriterios();
    CargarFlx();
    const int fila = FilaDeGrid(m_grid, 0, m_estado.Codigo());
    if (!criterios || m_estado.Seleccionados() > 0) {
        // A single page grows so that the selected row can stand at the top.
        if (m_grid->Rows() == kFilasPorPagina + 1)
            m_grid->setRows(m_grid->Rows() + fila - 1);
        m_grid->setTopRow(fila);
        Utilidades.SeleccionarGrid(QColor::fromRgb(kColorResaltado), m_grid->ForeColor(), fila);
    }
    LeerFila();
    MostrarAyuda(lblayuda, Texto(kIdAyudaOrdenarNombreDni), lblResultado->width());
    const QString cuantos = QString::number(m_estado.Seleccionados());
    if (!criterios) {
        lblResultado->setText(cuantos + m_diseno.resultado.texto());
    } else {
        const QString texto = TextoCriterios();
        if (m_estado.Seleccionados() != 0) {
            lblResultado->setText(texto + cuantos + m_diseno.resultadoCriterios.texto());
        } else {
            LimpiarGrid();
            lblResultado->setText(texto + Texto(kIdSinDatosCondicion));
        }
    }
    txtBusqueda->setEnabled(false);
    txtBusqueda->hide();
    picasc->show();
    SituarFlecha();
}

void PanelLista::PresentaBusqueda()
{
    picasc->hide();
    MostrarAyuda(lblayuda, Texto(kIdAyudaCriterioNombreDni), lblResultado->width());
    lblResultado->clear();
    MostrarBusqueda(m_grid, txtBusqueda, Utilidades, m_estado.TABLASELECCION,
                    m_estado.SELECCIONACTUAL);
}

void PanelLista::MostrarBusqueda(cFlexGrid* grid, QLineEdit* caja, cUtilidadesGrid& utilidades,
                                 const std::optional<TablaCriterios>& criterios,
                                 const QString& seleccionActual)
{
    grid->setRows(1);
    grid->setRows(2);
    if (criterios)
        for (const cCriterio& c : *criterios)
            grid->setTextMatrix(1, int(Val(c.CAMPOSELECCION)), c.VALORSELECCION);
    const int columna = int(Val(seleccionActual));
    if (columna == 0) {
        utilidades.OcultarTxtBusqueda();
        return;
    }
    // The box lies over the heading of the column being searched, and starts from the
    // prefix already typed under it.
    grid->setRow(0);
    grid->setCol(columna);
    caja->setEnabled(true);
    caja->setMaxLength(columna == kColumnaDni ? kLargoDni : kLargoNombre);
    utilidades.PosicionarTxtBusqueda();
    caja->setText(grid->TextMatrix(1, columna));
    SeleccionarTexto(caja);
    caja->setFocus(Qt::OtherFocusReason);
}

void PanelLista::SituarFlecha()
{
    ColocarFlecha(picasc, m_grid, m_estado.ORDEN);
}

// The arrow stands in the heading of the ordering column, near its right edge.
void PanelLista::ColocarFlecha(QLabel* flecha, const cFlexGrid* grid, int orden)
{
    if (orden == kColumnaNombre || orden == kColumnaDni) {
        const QRect celda = grid->Celda(0, orden);
        flecha->move(grid->x() + celda.left() + celda.width() - TwipsAPixeles(kFlechaDerecha),
                     grid->y() + TwipsAPixeles(kFlechaArriba));
    }
    flecha->raise();
}

bool PanelLista::AbandonaBusqueda(const QEvent* evento)
{
    if (evento->type() != QEvent::FocusOut)
        return false;
    // Only leaving the box for another control of the program counts, as a lost focus;
    // switching to another application or opening a menu does not.
    const auto motivo = static_cast<const QFocusEvent*>(evento)->reason();
    return motivo != Qt::ActiveWindowFocusReason && motivo != Qt::PopupFocusReason;
}

void PanelLista::PresentaBotones()
{
    const bool resultado = m_estado.BUSQUEDA == QLatin1String("N");
    const bool abrir = m_estado.MODO == Navegacion::ModoLista::Abrir;
    const bool hayFilas = m_estado.Seleccionados() > 0;
    bool conDeclaraciones = false;
    for (const int32_t contador : m_estado.Contadores())
        conDeclaraciones = conDeclaraciones || contador > 0;

    cmdAceptar->setEnabled(resultado && hayFilas && m_estado.Codigo() > 0);
    cmdNuevo->setEnabled(resultado);
    CmdDeclaraciones->setEnabled(resultado && hayFilas && conDeclaraciones);
    if (resultado) {
        cmdBuscar->setEnabled(true);
        cmdBuscar->setText(Texto(kIdBusqueda));
    } else if (!HayCriterios() && Val(m_estado.SELECCIONACTUAL) == 0) {
        cmdBuscar->setEnabled(false);
    } else {
        cmdBuscar->setEnabled(true);
        cmdBuscar->setText(Texto(kIdResultado));
    }
    cmdTodos->setEnabled(!resultado || HayCriterios());

    if (abrir) {
        PonerTitulo(Texto(m_diseno.idTituloAbrir));
        cmdAceptar->setText(Texto(m_diseno.idAceptar));
        cmdAceptar->setToolTip(m_diseno.tipDatos.texto());
    } else {
        PonerTitulo(Texto(m_diseno.idTituloEliminar));
        cmdAceptar->setText(Texto(kIdBotonEliminar));
        cmdAceptar->setToolTip(m_diseno.tipEliminar.texto());
    }
    const bool puertas = abrir && !m_diseno.seleccion;
    cmdNuevo->setVisible(puertas);
    CmdDeclaraciones->setVisible(puertas);
    PicNuevo->setVisible(puertas);
    PicDeclaraciones->setVisible(puertas);
    // A selection panel has pictures of its own: accepting a choice, going back without one.
    const bool seleccion = m_diseno.seleccion;
    PicDatos->setVisible(abrir && !seleccion);
    PicAtras->setVisible(abrir && !seleccion);
    PicEliminar->setVisible(!abrir);
    PicCancelar->setVisible(!abrir);
    PicAce->setVisible(abrir && seleccion);
    PicCan->setVisible(abrir && seleccion);
    for (QLabel* icono : {PicDatos, PicEliminar, PicAtras, PicCancelar, PicAce, PicCan, PicNuevo,
                          PicDeclaraciones})
        Pintar(icono);
}

// The selected party and its counters, from the current row.
void PanelLista::LeerFila()
{
    const int fila = m_grid->Row();
    QList<int32_t> contadores;
    for (int columna : m_diseno.columnasContadores)
        contadores << int32_t(Val(m_grid->TextMatrix(fila, columna)));
    m_estado.SeleccionarFila(int32_t(Val(m_grid->TextMatrix(fila, 0))), contadores);
}

// Paints the current row; the moves of the row this makes are not the user's.
void PanelLista::MarcarFila()
{
    CambioFilaActivo = false;
    Utilidades.SeleccionarGrid(QColor::fromRgb(kColorResaltado), m_grid->ForeColor(), 0);
    LeerFila();
    CambioFilaActivo = true;
}

void PanelLista::PonerTitulo(const QString& titulo)
{
    setWindowTitle(titulo);
    if (auto* marco = qobject_cast<QMdiSubWindow*>(parentWidget()))
        marco->setWindowTitle(titulo);
}

void PanelLista::Pulsado(int fila, int)
{
    ClicEnCabecera = fila == 0;
    // A press on the heading leaves a prefix being typed, as a press on a row does.
    if (txtBusqueda->hasFocus())
        m_grid->setFocus(Qt::MouseFocusReason);
}

void PanelLista::Clic(int, int columna)
{
    if (m_estado.BUSQUEDA == QLatin1String("N")) {
        if (m_grid->Row() <= 0)
            return;
        if (ClicEnCabecera) {
            // Ordering: always ascending, by name or by number only.
            if (!m_estado.OrdenarPor(columna))
                return;
            PresentaDatos();
            PresentaBotones();
        } else if (m_estado.Seleccionados() > 0) {
            MarcarFila();
            PresentaBotones();
        }
        return;
    }
    if (m_estado.ElegirColumnaBusqueda(columna)) {
        PresentaDatos();
        PresentaBotones();
    }
}

void PanelLista::DobleClic(int fila, int)
{
    // The second press of a double click comes as the double click itself.
    ClicEnCabecera = fila == 0;
    if (m_estado.BUSQUEDA == QLatin1String("N") && !ClicEnCabecera && cmdAceptar->isEnabled())
        Aceptar();
}

void PanelLista::Tecla(int tecla)
{
    if ((tecla == Qt::Key_Return || tecla == Qt::Key_Enter) && cmdAceptar->isEnabled())
        Aceptar();
}

// The current row moved by the keyboard (the program's own moves are not counted).
void PanelLista::FilaCambiada()
{
    if (!CambioFilaActivo || m_estado.BUSQUEDA != QLatin1String("N") || m_estado.Seleccionados() < 1)
        return;
    Proceso::Protegido([this] {
        MarcarFila();
        PresentaBotones();
    });
}

bool PanelLista::eventFilter(QObject* objeto, QEvent* evento)
{
    if (objeto == txtBusqueda && AbandonaBusqueda(evento))
        Proceso::Protegido([this] { BusquedaAbandonada(); });
    return QWidget::eventFilter(objeto, evento);
}

// The prefix typed becomes the criterion of its column, and the list is ordered by it.
void PanelLista::BusquedaAbandonada()
{
    if (m_cerrando || m_estado.BUSQUEDA != QLatin1String("B") || Val(m_estado.SELECCIONACTUAL) == 0)
        return;
    m_estado.AnotarBusqueda(txtBusqueda->text());
    txtBusqueda->setEnabled(false);
    PresentaDatos();
    PresentaBotones();
}

void PanelLista::Aceptar()
{
    const int fila = m_grid->RowSel();
    const QString nombre = m_grid->TextMatrix(fila, kColumnaNombre).trimmed();
    const QString dni = m_grid->TextMatrix(fila, kColumnaDni).trimmed();
    if (m_estado.MODO == Navegacion::ModoLista::Abrir) {
        Elegido();
        return;
    }
    const QString titulo = Texto(m_diseno.idTituloBorrado);
    for (const int32_t contador : m_estado.Contadores()) {
        if (contador != 0) {
            Mensaje(Texto(m_diseno.idNoBorrar), vb::Information, titulo);
            m_grid->setFocus();
            return;
        }
    }
    const QString pregunta = Texto(m_diseno.idPregunta) + dni + Texto(m_diseno.idPreguntaEntre)
        + nombre + Texto(m_diseno.idPreguntaFin);
    if (Mensaje(pregunta, vb::Question + vb::YesNo + vb::DefaultButton2, titulo) != vb::Yes) {
        m_grid->setFocus();
        return;
    }
    Borrar(m_estado.Codigo());
    PresentaDatos();
    PresentaBotones();
    m_grid->setFocus();
    if (m_estado.Seleccionados() == 0)
        Cerrar();
}

void PanelLista::Elegido()
{
    emit pideDatos(Navegacion::Modo::Abrir);
}

void PanelLista::Buscar()
{
    m_estado.CambiarBusqueda();
    PresentaDatos();
    PresentaBotones();
}

// Back to the whole list by name. The buttons are left as they were until the next click.
void PanelLista::Todos()
{
    m_estado.Todos();
    PresentaDatos();
}

void PanelLista::Nuevo()
{
    emit pideDatos(Navegacion::Modo::Nuevo);
}

void PanelLista::Declaraciones()
{
    const int fila = m_grid->RowSel();
    emit pideDeclaraciones(m_grid->TextMatrix(fila, kColumnaNombre),
                           m_grid->TextMatrix(fila, kColumnaDni));
}

void PanelLista::Cerrar()
{
    m_cerrando = true;
    CerrarPanel(this);
}
