#include "paneles/declaracion/PanelDeclaraciones.h"

#include "catalogo/IdsCatalogo.h"
#include "paneles/dialogos/Ventanas.h"

#include "catalogo/Catalogo.h"
#include "paneles/controles/AnchoColumna.h"
#include "paneles/controles/FilaDeGrid.h"
#include "paneles/controles/FiltroCampo.h"
#include "paneles/controles/MostrarAyuda.h"
#include "paneles/controles/SeleccionarTexto.h"
#include "paneles/controles/cFlexGrid.h"
#include "paneles/dialogos/Mensaje.h"
#include "paneles/partes/CamposDatos.h"
#include "plataforma/Proceso.h"
#include "registros/declaracion/cDecDatos.h"
#include "valores/CriteriosDeclaracion.h"
#include "valores/Formato.h"
#include "valores/Twips.h"
#include "valores/Val.h"
#include "plataforma/Idioma.h"
#include "valores/cFecha.h"
#include "valores/cListaDeclaraciones.h"

#include <QEvent>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMdiSubWindow>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// The columns of the array the store gives, and of the grid.
enum ColumnaGrid : int {
    kCodigo = 0, kReferencia, kFecha, kImporte, kOperacion, kDescripcion, kParte
};

constexpr int kFlechaDerecha = 250;   // the arrow stands this far left of the column's right edge
const QString kFormatoImporte = QStringLiteral("###,###,###,##0.00");

QPixmap Flecha(bool ascendente)
{
    QPixmap flecha(9, 6);
    flecha.fill(Qt::transparent);
    QPainter p(&flecha);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x40, 0x40, 0x40));
    if (ascendente)
        p.drawPolygon(QPolygon({QPoint(0, 6), QPoint(9, 6), QPoint(4, 0)}));
    else
        p.drawPolygon(QPolygon({QPoint(0, 0), QPoint(9, 0), QPoint(4, 6)}));
    return flecha;
}

template <class W>
W* Control(QWidget* padre, const char* nombre)
{
    auto* w = new W(padre);
    w->setObjectName(QString::fromLatin1(nombre));
    return w;
}

}  // namespace

PanelDeclaraciones::PanelDeclaraciones(const QString& nombre, QList<ColumnaDeclaraciones> columnas,
                                       QWidget* parent)
    : PanelNavegado(parent)
{
    setObjectName(nombre);
    setAttribute(Qt::WA_DeleteOnClose);
    Construir(columnas);
    Conectar();
    Utilidades.Flex(flxDeclaraciones);
    Utilidades.txtBusqueda(txtBusqueda);
}

void PanelDeclaraciones::Construir(const QList<ColumnaDeclaraciones>& columnas)
{
    flxDeclaraciones = Control<cFlexGrid>(this, "flxDeclaraciones");
    flxDeclaraciones->setRows(2);
    flxDeclaraciones->setCols(int(columnas.size()));
    int ancho = 0;
    for (int c = 0; c < columnas.size(); ++c) {
        const ColumnaDeclaraciones& col = columnas[c];
        const QString titulo = TextoSegunIdioma(QString::fromUtf8(col.es), QString::fromUtf8(col.eu));
        flxDeclaraciones->setTextMatrix(0, c, titulo);
        // A heading that orders stands on the left, clear of the arrow at its right edge; the
        // column is as wide as its heading, its arrow and its widest date or amount need.
        const bool ordena = c < kDescripcion;
        const QString muestra = c == kFecha ? QStringLiteral("88/88/8888")
            : c == kImporte                 ? QStringLiteral("99.999.999,99")
                                            : QString();
        const int anchoColumna = AnchoColumnaQueCabe(flxDeclaraciones, TwipsAPixeles(col.anchoTwips),
                                                     titulo, ordena, kFlechaDerecha, muestra);
        flxDeclaraciones->setColWidth(c, anchoColumna);
        flxDeclaraciones->setColAlignment(c, col.alineacion | Qt::AlignVCenter);
        if (ordena)
            flxDeclaraciones->setFixedAlignment(c, Qt::AlignLeft | Qt::AlignVCenter);
        ancho += anchoColumna;
    }
    flxDeclaraciones->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    flxDeclaraciones->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    flxDeclaraciones->setFixedWidth(ancho + 24);
    flxDeclaraciones->setFixedHeight(flxDeclaraciones->horizontalHeader()->sizeHint().height()
                                     + kFilasPorPagina * flxDeclaraciones->verticalHeader()->defaultSectionSize()
                                     + 4);
    txtBusqueda = Control<QLineEdit>(this, "txtBusqueda");
    txtBusqueda->hide();
    txtBusqueda->setEnabled(false);
    txtBusqueda->installEventFilter(this);
    picasc = Control<QLabel>(this, "picasc");
    picasc->setPixmap(Flecha(true));
    picdesc = Control<QLabel>(this, "picdesc");
    picdesc->setPixmap(Flecha(false));
    for (QLabel* f : {picasc, picdesc}) {
        f->setFixedSize(9, 6);
        f->setAttribute(Qt::WA_TransparentForMouseEvents);  // the heading under it takes the click
        f->hide();
    }
    lblayuda = Control<QLabel>(this, "lblayuda");
    lblResultado = Control<QLabel>(this, "lblResultado");
    cmdBuscar = Control<QPushButton>(this, "cmdBuscar");
    cmdTodos = Control<QPushButton>(this, "cmdTodos");
    cmdAceptar = Control<QPushButton>(this, "cmdAceptar");
    cmdCancelar = Control<QPushButton>(this, "cmdCancelar");
    cmdNuevo = Control<QPushButton>(this, "cmdNuevo");
    cmdCopiar = Control<QPushButton>(this, "cmdCopiar");
    cmdImprimir = Control<QPushButton>(this, "cmdImprimir");
    cmdEliminar = Control<QPushButton>(this, "cmdEliminar");
    PicDatos = IconoDeBoton(this, "PicDatos", QStyle::SP_FileDialogDetailedView, cmdAceptar);
    PicEliminar = IconoDeBoton(this, "PicEliminar", QStyle::SP_TrashIcon, cmdAceptar);
    PicAtras = IconoDeBoton(this, "PicAtras", QStyle::SP_ArrowBack, cmdCancelar);
    PicCancelar = IconoDeBoton(this, "PicCancelar", QStyle::SP_DialogCancelButton, cmdCancelar);
    PicNuevo = IconoDeBoton(this, "PicNuevo", QStyle::SP_FileIcon, cmdNuevo);
    PicCopiar = IconoDeBoton(this, "PicCopiar", QStyle::SP_FileDialogNewFolder, cmdCopiar);
    PicImprimir = IconoDeBoton(this, "PicImprimir", QStyle::SP_DriveFDIcon, cmdImprimir);
    PicBorrar = IconoDeBoton(this, "PicBorrar", QStyle::SP_TrashIcon, cmdEliminar);
    cmdEliminar->hide();
    PicBorrar->hide();

    auto* todo = new QVBoxLayout(this);
    m_cabecera = new QVBoxLayout;
    todo->addLayout(m_cabecera);
    todo->addWidget(flxDeclaraciones);
    auto* busqueda = new QHBoxLayout;
    m_busqueda = busqueda;
    busqueda->addWidget(lblayuda, 1);
    busqueda->addWidget(cmdBuscar);
    busqueda->addWidget(cmdTodos);
    todo->addLayout(busqueda);
    todo->addWidget(lblResultado);
    auto* botones = new QHBoxLayout;
    botones->addWidget(PicDatos);
    botones->addWidget(PicEliminar);
    botones->addWidget(cmdAceptar);
    botones->addWidget(PicAtras);
    botones->addWidget(PicCancelar);
    botones->addWidget(cmdCancelar);
    botones->addWidget(PicNuevo);
    botones->addWidget(cmdNuevo);
    botones->addWidget(PicCopiar);
    botones->addWidget(cmdCopiar);
    botones->addWidget(PicImprimir);
    botones->addWidget(cmdImprimir);
    botones->addWidget(PicBorrar);
    botones->addWidget(cmdEliminar);
    botones->addStretch();
    todo->addLayout(botones);
    lblayuda->setWordWrap(true);

    setTabOrder(flxDeclaraciones, txtBusqueda);
    setTabOrder(txtBusqueda, cmdBuscar);
    setTabOrder(cmdBuscar, cmdTodos);
    setTabOrder(cmdTodos, cmdAceptar);
    setTabOrder(cmdAceptar, cmdCancelar);
    setTabOrder(cmdCancelar, cmdNuevo);
    setTabOrder(cmdNuevo, cmdCopiar);
    setTabOrder(cmdCopiar, cmdImprimir);
    setTabOrder(cmdImprimir, cmdEliminar);
}

void PanelDeclaraciones::Conectar()
{
    auto protegido = [](auto accion) { return [accion] { Proceso::Protegido(accion); }; };
    connect(flxDeclaraciones, &cFlexGrid::pulsado, this, [this](int f, int) { Pulsado(f); });
    connect(flxDeclaraciones, &cFlexGrid::clic, this,
            [this](int, int c) { Proceso::Protegido([&] { Clic(c); }); });
    connect(flxDeclaraciones, &cFlexGrid::dobleClic, this,
            [this](int f, int) { Proceso::Protegido([&] { DobleClic(f); }); });
    connect(flxDeclaraciones, &cFlexGrid::tecla, this, [this](int t, int, int) {
        if ((t == Qt::Key_Return || t == Qt::Key_Enter) && estado().BUSQUEDA == QLatin1String("N")
            && cmdAceptar->isEnabled())
            Proceso::Protegido([this] { Aceptar(); });
    });
    connect(flxDeclaraciones, &cFlexGrid::filaColCambiada, this, [this] { FilaCambiada(); });
    // While typing a condition, Enter moves on as Tab does.
    connect(txtBusqueda, &QLineEdit::returnPressed, this, [this] { focusNextPrevChild(true); });
    connect(cmdAceptar, &QPushButton::clicked, this, protegido([this] { Aceptar(); }));
    connect(cmdCancelar, &QPushButton::clicked, this, [this] { Cerrar(); });
    connect(cmdNuevo, &QPushButton::clicked, this, [this] { emit pideDeclaracion(Navegacion::Modo::Nuevo); });
    connect(cmdCopiar, &QPushButton::clicked, this, [this] { emit pideDeclaracion(Navegacion::Modo::Copia); });
    connect(cmdImprimir, &QPushButton::clicked, this, [this] { emit pideImpresion(estado().CSDE); });
    connect(cmdEliminar, &QPushButton::clicked, this, protegido([this] { Eliminar(); }));
    connect(cmdBuscar, &QPushButton::clicked, this, protegido([this] { Buscar(); }));
    connect(cmdTodos, &QPushButton::clicked, this, protegido([this] { Todos(); }));
}

// ----- Opening -----

void PanelDeclaraciones::Iniciar()
{
    if (auto* marco = qobject_cast<QMdiSubWindow*>(parentWidget()))
        marco->move(0, 0);
    Anadir_captions();
    IniciarEstado();
    LimpiarGrid();
    PresentaDatos();
    PresentaBotones();
    CambioFilaActivo = true;
    flxDeclaraciones->setFocus();
}

void PanelDeclaraciones::LimpiarGrid()
{
    flxDeclaraciones->setRows(1);
    flxDeclaraciones->setRows(2);
}

// ----- Loading -----

void PanelDeclaraciones::CargarFlxDeclaraciones()
{
    const QList<FilaDeclaracion> filas = CargarDatos();
    if (!filas.isEmpty()) {
        RellenarGrid(filas);
        return;
    }
    LimpiarGrid();
    lblResultado->setText(Texto(kIdSinDatosCondicion));
    cmdAceptar->setFocus(Qt::OtherFocusReason);
}

void PanelDeclaraciones::RellenarGrid(const QList<FilaDeclaracion>& filas)
{
    const int n = int(filas.size());
    cFlexGrid* g = flxDeclaraciones;
    g->setRedraw(false);
    // The rows of the count and the heading, no more: a blank row would be one more to click,
    // and a click on it would unmark the return.
    g->setRows(1);
    g->setRows(n + 1);
    // A contributor's list has the column of the party; the others end at the description.
    const bool conParte = g->Cols() > kParte;
    for (int i = 0; i < n; ++i) {
        const FilaDeclaracion& f = filas.at(i);
        g->setTextMatrix(i + 1, kCodigo, QString::number(f.CSDE));
        g->setTextMatrix(i + 1, kReferencia, f.REFERENCIA);
        g->setTextMatrix(i + 1, kFecha, cFecha::LongToString(f.FECHAD, IdiomaPrograma()));
        g->setTextMatrix(i + 1, kImporte, Formato(f.TOTAL.euros(), kFormatoImporte));
        g->setTextMatrix(i + 1, kOperacion, f.OPERACION);
        g->setTextMatrix(i + 1, kDescripcion, f.DESCRIPCION);
        if (conParte)
            g->setTextMatrix(i + 1, kParte, f.PARTE);
    }
    g->setRedraw(true);
    lblResultado->clear();
}

// ----- Drawing -----

void PanelDeclaraciones::PresentaDatos()
{
    CambioFilaActivo = false;
    if (estado().BUSQUEDA == QLatin1String("B"))
        PresentaBusqueda();
    else
        PresentaResultado();
    PresentaCabecera();
    CambioFilaActivo = true;
}

void PanelDeclaraciones::PresentaResultado()
{
    cListaDeclaraciones& e = estado();
    CargarFlxDeclaraciones();
    if (e.NUMDECLASEL > 0) {
        const int fila = FilaDeGrid(flxDeclaraciones, kCodigo, e.CSDE);
        flxDeclaraciones->setTopRow(fila);
        Utilidades.SeleccionarGrid(QColor::fromRgb(kColorResaltado), flxDeclaraciones->ForeColor(), fila);
        LeerFila();
    } else {
        e.CSDE = 0;
    }
    MostrarAyudaAlPie(Texto(idAyudaResultado()));
    const QString cuantos = QString::number(e.NUMDECLASEL);
    if (e.NUMDECLASEL == 0) {
        lblResultado->setText(ResultadoVacio());
    } else if (!e.HayCriterios()) {
        lblResultado->setText(cuantos + TextoSegunIdioma(QStringLiteral(" declaración(es) seleccionada(s) "),
                                                         QStringLiteral(" hautatutako aitorpena(k) ")));
    } else {
        lblResultado->setText(TextoCriterios() + cuantos
                              + TextoSegunIdioma(QStringLiteral(" declaración(es) seleccionada(s). "),
                                                 QStringLiteral(" hautatutako aitorpena(k). ")));
    }
    txtBusqueda->setEnabled(false);
    txtBusqueda->hide();
    SituarFlecha();
}

void PanelDeclaraciones::PresentaBusqueda()
{
    const cListaDeclaraciones& e = estado();
    picasc->hide();
    picdesc->hide();
    LimpiarGrid();
    if (e.TABLASELECCION)
        for (const cCriterio& c : *e.TABLASELECCION)
            flxDeclaraciones->setTextMatrix(1, c.CAMPOSELECCION.toInt() - 1, c.VALORSELECCION);
    MostrarAyudaAlPie(Texto(idAyudaBusqueda()));
    lblResultado->clear();
    const int campo = e.SELECCIONACTUAL.toInt();
    if (campo == 0) {
        Utilidades.OcultarTxtBusqueda();
        return;
    }
    // The code takes digits, the date a date, the others text.
    AplicarFiltro(txtBusqueda, campo == CriteriosDeclaracion::kCodigo  ? TipoFiltro::Digitos
                               : campo == CriteriosDeclaracion::kFecha ? TipoFiltro::Fecha
                                                                       : TipoFiltro::Texto);
    flxDeclaraciones->setRow(1);
    flxDeclaraciones->setCol(campo - 1);
    txtBusqueda->setEnabled(true);
    Utilidades.PosicionarTxtBusqueda();
    txtBusqueda->setText(flxDeclaraciones->TextMatrix(1, campo - 1));
    SeleccionarTexto(txtBusqueda);
    txtBusqueda->setFocus(Qt::OtherFocusReason);
}

// The help line takes the width of the grid beside the search buttons, in as many lines as
// its text needs, so that no word of it is cut.
void PanelDeclaraciones::MostrarAyudaAlPie(const QString& texto)
{
    const int separacion = std::max(0, m_busqueda->spacing());
    const int ancho = flxDeclaraciones->width() - cmdBuscar->sizeHint().width()
        - cmdTodos->sizeHint().width() - 2 * separacion;
    MostrarAyuda(lblayuda, texto, ancho);
}

QString PanelDeclaraciones::ResultadoVacio() const
{
    return TextoCriterios() + Texto(kIdSinDatosCondicion);
}

QString PanelDeclaraciones::TextoCriterios() const
{
    const cListaDeclaraciones& e = estado();
    QStringList textos;
    if (e.TABLASELECCION)
        for (const cCriterio& c : *e.TABLASELECCION)
            if (!c.VALORSELECCION.isEmpty())
                textos << TextoCriterio(c.CAMPOSELECCION.toInt(), c.VALORSELECCION);
    return textos.join(QStringLiteral(", "));
}

void PanelDeclaraciones::SituarFlecha()
{
    const cListaDeclaraciones& e = estado();
    const bool asc = e.TIPOORDEN == QLatin1String("ASC");
    QLabel* flecha = asc ? picasc : picdesc;
    (asc ? picdesc : picasc)->hide();
    const QRect celda = flxDeclaraciones->Celda(0, e.ORDEN - 1);
    flecha->move(flxDeclaraciones->x() + celda.left() + celda.width() - TwipsAPixeles(kFlechaDerecha),
                 flxDeclaraciones->y() + (celda.height() - flecha->height()) / 2 + 2);
    flecha->show();
    flecha->raise();
}

void PanelDeclaraciones::PresentaBotones()
{
    const cListaDeclaraciones& e = estado();
    const bool resultado = e.BUSQUEDA == QLatin1String("N");
    const bool eliminar = ModoEliminar();
    const bool conFila = resultado && e.NUMDECLASEL >= 1 && e.CSDE != 0;
    cmdAceptar->setEnabled(conFila);
    cmdCopiar->setEnabled(conFila);
    cmdImprimir->setEnabled(conFila);
    if (cmdEliminar)
        cmdEliminar->setEnabled(conFila);
    // A new return needs no row: it stays at hand in the search state too.
    cmdNuevo->setEnabled(true);
    for (QWidget* w : QList<QWidget*>{cmdNuevo, cmdCopiar, cmdImprimir, PicNuevo, PicCopiar,
                                      PicImprimir, PicDatos, PicAtras})
        w->setVisible(!eliminar);
    PicEliminar->setVisible(eliminar);
    PicCancelar->setVisible(eliminar);
    cmdBuscar->setText(Texto(resultado ? kIdBusqueda : kIdResultado));
    cmdTodos->setEnabled(!resultado || e.HayCriterios());
}

void PanelDeclaraciones::LeerFila()
{
    estado().CSDE = int32_t(Val(flxDeclaraciones->TextMatrix(flxDeclaraciones->Row(), kCodigo)));
}

// ----- The user's gestures -----

void PanelDeclaraciones::Pulsado(int fila)
{
    ClicEnCabecera = fila == 0;
    if (txtBusqueda->hasFocus())
        flxDeclaraciones->setFocus(Qt::MouseFocusReason);
}

void PanelDeclaraciones::Clic(int columna)
{
    cListaDeclaraciones& e = estado();
    if (e.BUSQUEDA == QLatin1String("N")) {
        if (ClicEnCabecera) {
            if (!e.OrdenarPor(columna))
                return;  // the description does not order
            PresentaDatos();
            PresentaBotones();
        } else if (e.NUMDECLASEL >= 1 && flxDeclaraciones->Row() >= 1) {
            CambioFilaActivo = false;
            Utilidades.SeleccionarGrid(QColor::fromRgb(kColorResaltado), flxDeclaraciones->ForeColor(), 0);
            LeerFila();
            CambioFilaActivo = true;
            PresentaBotones();
        }
        return;
    }
    if (e.ElegirColumnaBusqueda(columna)) {
        PresentaDatos();
        PresentaBotones();
    }
}

void PanelDeclaraciones::DobleClic(int fila)
{
    ClicEnCabecera = fila == 0;
    if (estado().BUSQUEDA == QLatin1String("N") && !ClicEnCabecera && cmdAceptar->isEnabled())
        Aceptar();
}

void PanelDeclaraciones::FilaCambiada()
{
    const cListaDeclaraciones& e = estado();
    if (!CambioFilaActivo || e.BUSQUEDA != QLatin1String("N") || e.NUMDECLASEL < 1)
        return;
    CambioFilaActivo = false;
    Utilidades.SeleccionarGrid(QColor::fromRgb(kColorResaltado), flxDeclaraciones->ForeColor(), 0);
    LeerFila();
    CambioFilaActivo = true;
    PresentaBotones();
}

bool PanelDeclaraciones::eventFilter(QObject* objeto, QEvent* evento)
{
    if (objeto == txtBusqueda && evento->type() == QEvent::FocusOut) {
        const auto motivo = static_cast<QFocusEvent*>(evento)->reason();
        if (motivo != Qt::ActiveWindowFocusReason && motivo != Qt::PopupFocusReason)
            Proceso::Protegido([this] { BusquedaAbandonada(); });
    }
    return QWidget::eventFilter(objeto, evento);
}

void PanelDeclaraciones::BusquedaAbandonada()
{
    cListaDeclaraciones& e = estado();
    if (m_cerrando || e.BUSQUEDA != QLatin1String("B") || e.SELECCIONACTUAL == QLatin1String("0"))
        return;
    const QString texto = txtBusqueda->text();
    if (e.SELECCIONACTUAL.toInt() == CriteriosDeclaracion::kFecha && !texto.isEmpty()
        && !cFecha::EsFecha(texto, IdiomaPrograma())) {
        Mensaje(Texto(kIdFechaNoValida), vb::Exclamation, Texto(kIdErrorIntroduccionFecha));
        return;
    }
    e.AnotarBusqueda(texto);
    txtBusqueda->setEnabled(false);
    cmdBuscar->setFocus(Qt::OtherFocusReason);
    PresentaDatos();
    PresentaBotones();
}

void PanelDeclaraciones::Buscar()
{
    estado().CambiarBusqueda();
    PresentaDatos();
    PresentaBotones();
}

void PanelDeclaraciones::Todos()
{
    estado().Todos();
    PresentaDatos();
    PresentaBotones();
}

void PanelDeclaraciones::Aceptar()
{
    emit pideDeclaracion(Navegacion::Modo::Abrir);
}

void PanelDeclaraciones::EliminarSeleccionada(int idEntre)
{
    cListaDeclaraciones& e = estado();
    const int fila = flxDeclaraciones->RowSel();
    const QString pregunta = Texto(kIdPreguntaEliminarDeclaracion)
        + flxDeclaraciones->TextMatrix(fila, kCodigo) + Texto(idEntre)
        + flxDeclaraciones->TextMatrix(fila, kReferencia)
        + Texto(kIdInterrogacionEliminarDeclaracion);
    if (Mensaje(pregunta, vb::YesNo + vb::Question + vb::DefaultButton2,
                Texto(kIdBorradoDeclaracion)) != vb::Yes) {
        flxDeclaraciones->setFocus();
        return;
    }
    DecDatos().CSDE = e.CSDE;
    DecDatos().BorrarDeclaracion();
    e.CSDE = 0;
    PresentaDatos();
    PresentaBotones();
    if (e.NUMDECLASEL == 0)
        lblResultado->setText(Texto(kIdSinDatosCondicion));
    flxDeclaraciones->setFocus();
}

// ----- Closing -----

void PanelDeclaraciones::Cerrar()
{
    m_cerrando = true;
    CerrarPanel(this);
}
