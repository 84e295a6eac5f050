#pragma once
// The grid of the list panels. Row 0 is the fixed heading row, drawn as the header; data rows
// are 1 to Rows - 1. Cells are read and written by TextMatrix; each cell may have its own
// background and text colours, which is how the panels mark the selected row (the view's own
// selection is not drawn). Row and Col are the current cell; setting them from code does not
// scroll, TopRow does. setRedraw(false) freezes drawing while a panel fills many cells.
// Geometry is in pixels, relative to the grid's own top left corner.
#include <QColor>
#include <QTableView>

class ModeloFlexGrid;

class cFlexGrid : public QTableView {
    Q_OBJECT
public:
    explicit cFlexGrid(QWidget* parent = nullptr);

    QString TextMatrix(int fila, int columna) const;
    void setTextMatrix(int fila, int columna, const QString& texto);

    int Rows() const;
    // At least the heading row. A current row beyond the new end moves to the last row; after
    // a cut to the heading alone, the first data row that comes back is the current one.
    void setRows(int filas);
    int Cols() const;
    void setCols(int columnas);

    int Row() const { return m_fila; }
    void setRow(int fila);
    int Col() const { return m_columna; }
    void setCol(int columna);
    int RowSel() const { return m_filaSel; }
    // The first data row in view; setting it scrolls as far as the rows allow.
    int TopRow() const;
    void setTopRow(int fila);

    // Colours of one cell.
    void setCellBackColor(int fila, int columna, const QColor& color);
    void setCellForeColor(int fila, int columna, const QColor& color);
    // The colours of a cell that has none of its own.
    QColor BackColor() const;
    QColor ForeColor() const;

    void setRedraw(bool dibujar);

    // The current cell's rectangle, or any cell's.
    int CellLeft() const { return Celda(m_fila, m_columna).left(); }
    int CellTop() const { return Celda(m_fila, m_columna).top(); }
    int CellWidth() const { return Celda(m_fila, m_columna).width(); }
    int CellHeight() const { return Celda(m_fila, m_columna).height(); }
    QRect Celda(int fila, int columna) const;

    // A width of 0 hides the column; a negative one gives the default width.
    int ColWidth(int columna) const;
    void setColWidth(int columna, int ancho);
    void setColAlignment(int columna, Qt::Alignment alineacion);
    // The alignment of the heading row's cell, the column's until set.
    void setFixedAlignment(int columna, Qt::Alignment alineacion);

signals:
    // A mouse press: row (0 the heading, -1 below the rows) and column.
    void pulsado(int fila, int columna);
    void clic(int fila, int columna);
    void dobleClic(int fila, int columna);
    // A key on the grid, before the grid moves with it; Enter does not leave the grid.
    void tecla(int key, int fila, int columna);
    // The current cell changed, by the user or by code.
    void filaColCambiada(int fila, int columna);

protected:
    void currentChanged(const QModelIndex& actual, const QModelIndex& anterior) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void SituarVista();
    void Mover(int fila, int columna);

    ModeloFlexGrid* m_modelo;
    int m_fila = 1;
    int m_columna = 0;
    int m_filaSel = 1;
    bool m_dibujar = true;
    bool m_situando = false;
    bool m_filaPorCorte = false;  // the current row is 0 only because the rows were cut
};
