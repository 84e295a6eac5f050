#include "paneles/controles/cFlexGrid.h"

#include "paneles/controles/ModeloFlexGrid.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>

cFlexGrid::cFlexGrid(QWidget* parent) : QTableView(parent), m_modelo(new ModeloFlexGrid(this))
{
    setModel(m_modelo);
    // The panels paint the selected row themselves.
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    verticalHeader()->hide();
    // Fixed row heights keep a grid of many thousand rows as fast as a small one.
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setStretchLastSection(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // A press on the heading is a click on row 0: it takes the column, not the rows.
    disconnect(horizontalHeader(), SIGNAL(sectionPressed(int)), this, SLOT(selectColumn(int)));
    disconnect(horizontalHeader(), SIGNAL(sectionEntered(int)), this, SLOT(_q_selectColumn(int)));
    connect(horizontalHeader(), &QHeaderView::sectionPressed, this,
            [this](int columna) { emit pulsado(0, columna); });
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int columna) {
        setCol(columna);
        emit clic(0, columna);
    });
    connect(horizontalHeader(), &QHeaderView::sectionDoubleClicked, this,
            [this](int columna) { emit dobleClic(0, columna); });
    connect(this, &QAbstractItemView::clicked, this,
            [this](const QModelIndex& i) { emit clic(i.row() + 1, i.column()); });
    connect(this, &QAbstractItemView::doubleClicked, this,
            [this](const QModelIndex& i) { emit dobleClic(i.row() + 1, i.column()); });
    connect(m_modelo, &QAbstractItemModel::modelReset, this, [this] { SituarVista(); });
    SituarVista();
}

QString cFlexGrid::TextMatrix(int fila, int columna) const
{
    return m_modelo->Texto(fila, columna);
}

void cFlexGrid::setTextMatrix(int fila, int columna, const QString& texto)
{
    m_modelo->setTexto(fila, columna, texto);
}

int cFlexGrid::Rows() const
{
    return m_modelo->Filas();
}

void cFlexGrid::setRows(int filas)
{
    m_modelo->setFilas(filas);
    const int ultima = m_modelo->Filas() - 1;
    if (m_fila > ultima || m_filaSel > ultima) {
        // Cut down to the heading alone, the current row waits on it for data rows to come.
        m_filaPorCorte = ultima == 0;
        m_filaSel = std::min(m_filaSel, ultima);
        Mover(std::min(m_fila, ultima), m_columna);
    } else if (m_filaPorCorte && ultima >= 1) {
        // Rows are back after such a cut: the current row is the first data row again.
        m_filaPorCorte = false;
        m_filaSel = 1;
        Mover(1, m_columna);
    }
    SituarVista();
}

int cFlexGrid::Cols() const
{
    return m_modelo->Columnas();
}

void cFlexGrid::setCols(int columnas)
{
    m_modelo->setColumnas(columnas);
    if (m_columna >= m_modelo->Columnas())
        Mover(m_fila, m_modelo->Columnas() - 1);
    SituarVista();
}

void cFlexGrid::setRow(int fila)
{
    if (fila < 0 || fila >= Rows())
        return;
    m_filaPorCorte = false;
    m_filaSel = fila;
    Mover(fila, m_columna);
}

void cFlexGrid::setCol(int columna)
{
    if (columna < 0 || columna >= Cols())
        return;
    Mover(m_fila, columna);
}

int cFlexGrid::TopRow() const
{
    const int fila = rowAt(0);
    return fila < 0 ? 1 : fila + 1;
}

void cFlexGrid::setTopRow(int fila)
{
    if (fila < 1 || fila >= Rows())
        return;
    // With one step per row the scroll bar's value is the row at the top.
    updateGeometries();
    verticalScrollBar()->setValue(fila - 1);
}

void cFlexGrid::setCellBackColor(int fila, int columna, const QColor& color)
{
    m_modelo->setFondo(fila, columna, color);
}

void cFlexGrid::setCellForeColor(int fila, int columna, const QColor& color)
{
    m_modelo->setTinta(fila, columna, color);
}

QColor cFlexGrid::BackColor() const
{
    return m_modelo->FondoNormal();
}

QColor cFlexGrid::ForeColor() const
{
    return m_modelo->TintaNormal();
}

void cFlexGrid::setRedraw(bool dibujar)
{
    if (dibujar == m_dibujar)
        return;
    m_dibujar = dibujar;
    viewport()->setUpdatesEnabled(dibujar);
    horizontalHeader()->viewport()->setUpdatesEnabled(dibujar);
    m_modelo->setCongelado(!dibujar);
    if (dibujar) {
        viewport()->update();
        horizontalHeader()->viewport()->update();
    }
}

QRect cFlexGrid::Celda(int fila, int columna) const
{
    if (fila < 0 || fila >= Rows() || columna < 0 || columna >= Cols())
        return QRect();
    const int izquierda = viewport()->x() + columnViewportPosition(columna);
    const int ancho = ColWidth(columna);
    if (fila == 0) {
        const QHeaderView* cabecera = horizontalHeader();
        return QRect(izquierda, cabecera->y(), ancho, cabecera->height());
    }
    return QRect(izquierda, viewport()->y() + rowViewportPosition(fila - 1), ancho,
                 rowHeight(fila - 1));
}

int cFlexGrid::ColWidth(int columna) const
{
    if (columna < 0 || columna >= Cols() || isColumnHidden(columna))
        return 0;
    return columnWidth(columna);
}

void cFlexGrid::setColWidth(int columna, int ancho)
{
    if (columna < 0 || columna >= Cols())
        return;
    if (ancho == 0) {
        setColumnHidden(columna, true);
        return;
    }
    setColumnHidden(columna, false);
    setColumnWidth(columna, ancho < 0 ? horizontalHeader()->defaultSectionSize() : ancho);
}

void cFlexGrid::setColAlignment(int columna, Qt::Alignment alineacion)
{
    m_modelo->setAlineacion(columna, alineacion);
}

void cFlexGrid::setFixedAlignment(int columna, Qt::Alignment alineacion)
{
    m_modelo->setAlineacionFija(columna, alineacion);
}

void cFlexGrid::currentChanged(const QModelIndex& actual, const QModelIndex& anterior)
{
    QTableView::currentChanged(actual, anterior);
    if (m_situando || !actual.isValid())
        return;
    const int fila = actual.row() + 1;
    const int columna = actual.column();
    if (fila == m_fila && columna == m_columna)
        return;
    m_fila = fila;
    m_filaSel = fila;
    m_columna = columna;
    emit filaColCambiada(m_fila, m_columna);
}

void cFlexGrid::mousePressEvent(QMouseEvent* evento)
{
    QTableView::mousePressEvent(evento);
    const QPoint punto = evento->position().toPoint();
    const int fila = rowAt(punto.y());
    emit pulsado(fila < 0 ? -1 : fila + 1, columnAt(punto.x()));
}

void cFlexGrid::keyPressEvent(QKeyEvent* evento)
{
    emit tecla(evento->key(), m_fila, m_columna);
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) {
        evento->accept();
        return;
    }
    QTableView::keyPressEvent(evento);
}

// The current cell changed by code: the view follows without scrolling.
void cFlexGrid::Mover(int fila, int columna)
{
    const bool cambia = fila != m_fila || columna != m_columna;
    m_fila = fila;
    m_columna = columna;
    SituarVista();
    if (cambia)
        emit filaColCambiada(m_fila, m_columna);
}

void cFlexGrid::SituarVista()
{
    if (!selectionModel())
        return;
    m_situando = true;
    const bool desplazar = hasAutoScroll();
    setAutoScroll(false);
    const QModelIndex indice = m_fila >= 1 ? m_modelo->index(m_fila - 1, m_columna) : QModelIndex();
    if (indice != currentIndex())
        selectionModel()->setCurrentIndex(indice, QItemSelectionModel::NoUpdate);
    setAutoScroll(desplazar);
    m_situando = false;
}
