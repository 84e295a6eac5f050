// The flex grid, the row marking and the search box placing of cUtilidadesGrid, the row of a
// code, and the walk over the search criteria.
#include "paneles/controles/FilaDeGrid.h"
#include "valores/cCriterio.h"
#include "paneles/controles/cFlexGrid.h"
#include "paneles/controles/cUtilidadesGrid.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

namespace {

const QColor kMarca = QColor::fromRgb(0x80C0FF);
const QColor kTintaMarca = QColor::fromRgb(0x000080);

// The colour a data cell is drawn with, as the view reads it from the grid's model.
QColor ColorCelda(const cFlexGrid& grid, int fila, int columna, int rol)
{
    return grid.model()->index(fila - 1, columna).data(rol).value<QBrush>().color();
}
QColor Fondo(const cFlexGrid& grid, int fila, int columna)
{
    return ColorCelda(grid, fila, columna, Qt::BackgroundRole);
}
QColor Tinta(const cFlexGrid& grid, int fila, int columna)
{
    return ColorCelda(grid, fila, columna, Qt::ForegroundRole);
}

// A list panel: a grid and its search box side by side in one window.
struct Panel {
    QWidget ventana;
    cFlexGrid* grid;
    QLineEdit* txtBusqueda;
    cUtilidadesGrid utilidades;

    explicit Panel(int filas = 6, int columnas = 4)
    {
        ventana.resize(640, 420);
        grid = new cFlexGrid(&ventana);
        grid->setObjectName(QStringLiteral("flxContribuyentes"));
        grid->setGeometry(20, 30, 560, 300);
        txtBusqueda = new QLineEdit(&ventana);
        txtBusqueda->setObjectName(QStringLiteral("txtBusqueda"));
        txtBusqueda->hide();
        grid->setCols(columnas);
        grid->setRows(filas);
        for (int c = 0; c < columnas; ++c)
            grid->setTextMatrix(0, c, QStringLiteral("Col%1").arg(c));
        for (int f = 1; f < filas; ++f)
            for (int c = 0; c < columnas; ++c)
                grid->setTextMatrix(f, c, c == 0 ? QString::number(f * 10) : QStringLiteral("R%1C%2").arg(f).arg(c));
        utilidades.Flex(grid);
        utilidades.txtBusqueda(txtBusqueda);
        ventana.show();
    }

    bool FilaPintada(int fila, const QColor& fondo, const QColor& tinta) const
    {
        for (int c = 0; c < grid->Cols(); ++c)
            if (Fondo(*grid, fila, c) != fondo || Tinta(*grid, fila, c) != tinta)
                return false;
        return true;
    }
    bool FilaNormal(int fila) const { return FilaPintada(fila, grid->BackColor(), grid->ForeColor()); }
};

}  // namespace

class TestGrid : public QObject {
    Q_OBJECT

private slots:
    void textMatrixYTamano()
    {
        cFlexGrid grid;
        QCOMPARE(grid.Rows(), 2);
        grid.setCols(7);
        grid.setRows(4);
        QCOMPARE(grid.Cols(), 7);
        QCOMPARE(grid.Rows(), 4);
        QCOMPARE(grid.model()->rowCount(), 3);  // the heading row is the header
        grid.setTextMatrix(0, 1, QStringLiteral("Apellidos y Nombre"));
        grid.setTextMatrix(3, 6, QStringLiteral("12"));
        QCOMPARE(grid.TextMatrix(0, 1), QStringLiteral("Apellidos y Nombre"));
        QCOMPARE(grid.model()->headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(),
                 QStringLiteral("Apellidos y Nombre"));
        QCOMPARE(grid.TextMatrix(3, 6), QStringLiteral("12"));
        QCOMPARE(grid.model()->index(2, 6).data().toString(), QStringLiteral("12"));
        // Out of range: nothing read, nothing written, no failure.
        QCOMPARE(grid.TextMatrix(4, 0), QString());
        QCOMPARE(grid.TextMatrix(0, 7), QString());
        grid.setTextMatrix(9, 9, QStringLiteral("x"));
        grid.setTextMatrix(-1, 0, QStringLiteral("x"));
        // Cutting rows loses their cells; growing brings empty ones.
        grid.setRows(2);
        QCOMPARE(grid.Rows(), 2);
        grid.setRows(4);
        QCOMPARE(grid.TextMatrix(3, 6), QString());
        QCOMPARE(grid.TextMatrix(0, 1), QStringLiteral("Apellidos y Nombre"));
        // The heading row always stays.
        grid.setRows(0);
        QCOMPARE(grid.Rows(), 1);
    }

    void columnasConservanSusCeldas()
    {
        cFlexGrid grid;
        grid.setCols(3);
        grid.setRows(3);
        grid.setTextMatrix(2, 1, QStringLiteral("B"));
        grid.setCols(5);
        QCOMPARE(grid.TextMatrix(2, 1), QStringLiteral("B"));
        grid.setCols(1);
        QCOMPARE(grid.TextMatrix(2, 1), QString());
        QCOMPARE(grid.Cols(), 1);
    }

    void filaYColumnaActuales()
    {
        Panel p;
        QSignalSpy cambios(p.grid, &cFlexGrid::filaColCambiada);
        QCOMPARE(p.grid->Row(), 1);
        QCOMPARE(p.grid->Col(), 0);
        p.grid->setRow(3);
        p.grid->setCol(2);
        QCOMPARE(p.grid->Row(), 3);
        QCOMPARE(p.grid->Col(), 2);
        QCOMPARE(p.grid->RowSel(), 3);
        QCOMPARE(p.grid->currentIndex().row(), 2);
        QCOMPARE(p.grid->currentIndex().column(), 2);
        QCOMPARE(cambios.count(), 2);
        p.grid->setRow(3);
        QCOMPARE(cambios.count(), 2);  // no change, no signal
        p.grid->setRow(0);  // the heading row can be current by code
        QCOMPARE(p.grid->Row(), 0);
        p.grid->setRow(99);  // beyond the rows: ignored
        QCOMPARE(p.grid->Row(), 0);
        // Fewer rows than the current one: the current row follows.
        p.grid->setRow(5);
        p.grid->setRows(3);
        QCOMPARE(p.grid->Row(), 2);
        // A reload cuts to the heading and grows again: the first data row is current.
        p.grid->setRows(1);
        QCOMPARE(p.grid->Row(), 0);
        p.grid->setRows(16);
        QCOMPARE(p.grid->Row(), 1);
        QCOMPARE(p.grid->currentIndex().row(), 0);
        // A heading row made current by code stays so when rows are added.
        p.grid->setRow(0);
        p.grid->setRows(20);
        QCOMPARE(p.grid->Row(), 0);
    }

    void tecladoMueveLaFila()
    {
        Panel p;
        QVERIFY(QTest::qWaitForWindowExposed(&p.ventana));
        p.grid->setFocus();
        p.grid->setRow(1);
        p.grid->setCol(1);
        QSignalSpy cambios(p.grid, &cFlexGrid::filaColCambiada);
        QSignalSpy teclas(p.grid, &cFlexGrid::tecla);
        QTest::keyClick(p.grid, Qt::Key_Down);
        QCOMPARE(p.grid->Row(), 2);
        QCOMPARE(p.grid->Col(), 1);
        QCOMPARE(cambios.count(), 1);
        QCOMPARE(cambios.at(0).at(0).toInt(), 2);
        QTest::keyClick(p.grid, Qt::Key_Return);
        QVERIFY(p.grid->hasFocus());
        QCOMPARE(teclas.count(), 2);
        QCOMPARE(teclas.at(1).at(0).toInt(), int(Qt::Key_Return));
        QCOMPARE(teclas.at(1).at(1).toInt(), 2);
    }

    void clicsConFilaYColumna()
    {
        Panel p;
        QVERIFY(QTest::qWaitForWindowExposed(&p.ventana));
        QSignalSpy clics(p.grid, &cFlexGrid::clic);
        QSignalSpy dobles(p.grid, &cFlexGrid::dobleClic);
        QSignalSpy pulsados(p.grid, &cFlexGrid::pulsado);
        const QRect celda = p.grid->visualRect(p.grid->model()->index(2, 1));  // row 3
        QTest::mouseClick(p.grid->viewport(), Qt::LeftButton, Qt::NoModifier, celda.center());
        QCOMPARE(clics.count(), 1);
        QCOMPARE(clics.at(0).at(0).toInt(), 3);
        QCOMPARE(clics.at(0).at(1).toInt(), 1);
        QCOMPARE(p.grid->Row(), 3);
        QCOMPARE(p.grid->Col(), 1);
        QCOMPARE(pulsados.count(), 1);
        QCOMPARE(pulsados.at(0).at(0).toInt(), 3);
        QCOMPARE(pulsados.at(0).at(1).toInt(), 1);
        QTest::mouseDClick(p.grid->viewport(), Qt::LeftButton, Qt::NoModifier, celda.center());
        QCOMPARE(dobles.count(), 1);
        QCOMPARE(dobles.at(0).at(0).toInt(), 3);
    }

    void clicEnLaCabecera()
    {
        Panel p;
        QVERIFY(QTest::qWaitForWindowExposed(&p.ventana));
        p.grid->setRow(4);
        QSignalSpy clics(p.grid, &cFlexGrid::clic);
        QSignalSpy pulsados(p.grid, &cFlexGrid::pulsado);
        QHeaderView* cabecera = p.grid->horizontalHeader();
        const int x = cabecera->sectionViewportPosition(2) + cabecera->sectionSize(2) / 2;
        QTest::mouseClick(cabecera->viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(x, cabecera->height() / 2));
        QCOMPARE(clics.count(), 1);
        QCOMPARE(clics.at(0).at(0).toInt(), 0);
        QCOMPARE(clics.at(0).at(1).toInt(), 2);
        QCOMPARE(pulsados.count(), 1);
        QCOMPARE(pulsados.at(0).at(0).toInt(), 0);
        QCOMPARE(pulsados.at(0).at(1).toInt(), 2);
        QCOMPARE(p.grid->Col(), 2);  // the column is taken
        QCOMPARE(p.grid->Row(), 4);  // the row is not
    }

    void coloresPorCelda()
    {
        cFlexGrid grid;
        grid.setCols(3);
        grid.setRows(3);
        QCOMPARE(Fondo(grid, 1, 1), grid.BackColor());
        QCOMPARE(Tinta(grid, 1, 1), grid.ForeColor());
        grid.setCellBackColor(1, 1, kMarca);
        grid.setCellForeColor(1, 1, kTintaMarca);
        QCOMPARE(Fondo(grid, 1, 1), kMarca);
        QCOMPARE(Tinta(grid, 1, 1), kTintaMarca);
        // The other cells keep the normal colours.
        QCOMPARE(Fondo(grid, 1, 2), grid.BackColor());
        QCOMPARE(Tinta(grid, 2, 1), grid.ForeColor());
        // Out of range: nothing written, no failure.
        grid.setCellBackColor(9, 9, kMarca);
        grid.setCellForeColor(-1, 0, kMarca);
    }

    void dibujoCongelado()
    {
        Panel p;
        QSignalSpy cambios(p.grid->model(), &QAbstractItemModel::dataChanged);
        p.grid->setRedraw(false);
        QVERIFY(!p.grid->viewport()->updatesEnabled());
        p.grid->setTextMatrix(1, 1, QStringLiteral("nuevo"));
        p.grid->setCellBackColor(1, 1, kMarca);
        QCOMPARE(cambios.count(), 0);  // nothing told to the view while frozen
        QCOMPARE(p.grid->TextMatrix(1, 1), QStringLiteral("nuevo"));
        p.grid->setRedraw(true);
        QCOMPARE(cambios.count(), 1);  // all at once on thawing
        p.grid->setTextMatrix(1, 1, QStringLiteral("otro"));
        QCOMPARE(cambios.count(), 2);
    }

    void anchosYAlineacion()
    {
        Panel p(3, 7);
        QVERIFY(QTest::qWaitForWindowExposed(&p.ventana));
        p.grid->setColWidth(0, 0);
        p.grid->setColWidth(1, 180);
        p.grid->setColWidth(5, 40);
        QCOMPARE(p.grid->ColWidth(0), 0);
        QVERIFY(p.grid->isColumnHidden(0));
        QCOMPARE(p.grid->ColWidth(1), 180);
        QCOMPARE(p.grid->ColWidth(5), 40);
        p.grid->setColAlignment(5, Qt::AlignRight | Qt::AlignVCenter);
        QCOMPARE(p.grid->model()->index(0, 5).data(Qt::TextAlignmentRole).value<Qt::Alignment>(),
                 Qt::AlignRight | Qt::AlignVCenter);
        p.grid->setColWidth(0, -1);
        QVERIFY(!p.grid->isColumnHidden(0));
        QCOMPARE(p.grid->ColWidth(0), p.grid->horizontalHeader()->defaultSectionSize());
    }

    void geometriaDeCeldas()
    {
        Panel p;
        QVERIFY(QTest::qWaitForWindowExposed(&p.ventana));
        p.grid->setColWidth(0, 0);
        p.grid->setColWidth(1, 150);
        p.grid->setColWidth(2, 90);
        // Heading cells lie on the header, data cells on the viewport.
        const QRect cabecera = p.grid->Celda(0, 2);
        QCOMPARE(cabecera.top(), p.grid->horizontalHeader()->y());
        QCOMPARE(cabecera.height(), p.grid->horizontalHeader()->height());
        QCOMPARE(cabecera.left(), p.grid->viewport()->x() + 150);
        QCOMPARE(cabecera.width(), 90);
        p.grid->setRow(2);
        p.grid->setCol(2);
        QCOMPARE(p.grid->CellLeft(), p.grid->viewport()->x() + 150);
        QCOMPARE(p.grid->CellTop(), p.grid->viewport()->y() + p.grid->rowHeight(0));
        QCOMPARE(p.grid->CellWidth(), 90);
        QCOMPARE(p.grid->CellHeight(), p.grid->rowHeight(1));
        // The cell's rectangle is where the view draws it, with its grid line.
        const QRect vista = p.grid->visualRect(p.grid->model()->index(1, 2));
        QCOMPARE(p.grid->Celda(2, 2).topLeft(), vista.translated(p.grid->viewport()->pos()).topLeft());
        QCOMPARE(p.grid->Celda(2, 2).size(), vista.size() + QSize(1, 1));
        QCOMPARE(p.grid->Celda(99, 0), QRect());
    }

    void filaSuperior()
    {
        Panel p(200, 3);
        QVERIFY(QTest::qWaitForWindowExposed(&p.ventana));
        QCOMPARE(p.grid->TopRow(), 1);
        p.grid->setTopRow(50);
        QCOMPARE(p.grid->TopRow(), 50);
        QCOMPARE(p.grid->Row(), 1);  // the current row does not move with the view
        // Near the end the view goes as far as it can.
        p.grid->setTopRow(199);
        QVERIFY(p.grid->TopRow() > 150);
        QVERIFY(p.grid->TopRow() <= 199);
        // Setting the current row from code does not scroll.
        p.grid->setTopRow(1);
        p.grid->setRow(180);
        QCOMPARE(p.grid->TopRow(), 1);
    }

    void seleccionarGridPintaLaFila()
    {
        Panel p;
        p.grid->setCol(2);
        p.utilidades.SeleccionarGrid(kMarca, kTintaMarca, 3);
        QVERIFY(p.FilaPintada(3, kMarca, kTintaMarca));
        QCOMPARE(p.grid->Row(), 3);
        QCOMPARE(p.grid->Col(), 2);  // the column stays
        QCOMPARE(p.utilidades.FilaSeleccionada(), 3);
        QVERIFY(p.grid->viewport()->updatesEnabled());  // drawing is thawed again
        // The next one takes the mark away from the former.
        p.utilidades.SeleccionarGrid(kMarca, kTintaMarca, 5);
        QVERIFY(p.FilaNormal(3));
        QVERIFY(p.FilaPintada(5, kMarca, kTintaMarca));
        QCOMPARE(p.utilidades.FilaSeleccionada(), 5);
        for (int f : {1, 2, 4})
            QVERIFY(p.FilaNormal(f));
    }

    void seleccionarGridFilaCeroMarcaLaActual()
    {
        Panel p;
        p.grid->setRow(4);
        p.utilidades.SeleccionarGrid(kMarca, kTintaMarca, 0);
        QVERIFY(p.FilaPintada(4, kMarca, kTintaMarca));
        QCOMPARE(p.utilidades.FilaSeleccionada(), 4);
        p.grid->setRow(2);
        p.utilidades.SeleccionarGrid(kMarca, kTintaMarca, -3);
        QVERIFY(p.FilaPintada(2, kMarca, kTintaMarca));
        QVERIFY(p.FilaNormal(4));
    }

    void seleccionarGridTrasRecargaMasCorta()
    {
        Panel p(10, 3);
        p.utilidades.SeleccionarGrid(kMarca, kTintaMarca, 8);
        QCOMPARE(p.utilidades.FilaSeleccionada(), 8);
        // A reload leaves fewer rows than the one marked: it is not repainted, no failure.
        p.grid->setRows(4);
        p.utilidades.SeleccionarGrid(kMarca, kTintaMarca, 2);
        QVERIFY(p.FilaPintada(2, kMarca, kTintaMarca));
        QCOMPARE(p.utilidades.FilaSeleccionada(), 2);
        QCOMPARE(p.grid->Rows(), 4);
        // Exactly as many rows as the number marked: not repainted either.
        p.grid->setRows(10);
        p.utilidades.SeleccionarGrid(kMarca, kTintaMarca, 9);
        p.grid->setRows(9);
        p.utilidades.SeleccionarGrid(kMarca, kTintaMarca, 1);
        QVERIFY(p.FilaPintada(1, kMarca, kTintaMarca));
    }

    void seleccionarGridTrasVaciarYRellenar()
    {
        // What a list does on reload: cut to the heading, grow, fill, mark the current row.
        Panel p(10, 3);
        p.utilidades.SeleccionarGrid(kMarca, kTintaMarca, 6);
        p.grid->setRedraw(false);
        p.grid->setRows(1);
        p.grid->setRows(16);
        p.grid->setTextMatrix(1, 1, QStringLiteral("PRIMERO"));
        p.grid->setRedraw(true);
        p.utilidades.SeleccionarGrid(kMarca, kTintaMarca, 0);
        QVERIFY(p.FilaPintada(1, kMarca, kTintaMarca));
        QCOMPARE(p.utilidades.FilaSeleccionada(), 1);
    }

    void seleccionarGridSinGrid()
    {
        cUtilidadesGrid utilidades;
        utilidades.SeleccionarGrid(kMarca, kTintaMarca, 1);  // no grid given: nothing happens
        utilidades.PosicionarTxtBusqueda();
        utilidades.OcultarTxtBusqueda();
        QCOMPARE(utilidades.FilaSeleccionada(), 0);
    }

    void posicionarTxtBusqueda()
    {
        Panel p(2, 4);
        QVERIFY(QTest::qWaitForWindowExposed(&p.ventana));
        p.grid->setColWidth(0, 0);
        p.grid->setColWidth(1, 170);
        p.grid->setColWidth(2, 80);
        p.grid->setTextMatrix(1, 2, QStringLiteral("1234"));
        p.grid->setRow(1);
        p.grid->setCol(2);
        p.utilidades.PosicionarTxtBusqueda();
        const int d = cUtilidadesGrid::kDesplazamiento;
        QCOMPARE(d, 1);  // 5 twips: a third of a pixel, kept as one
        QVERIFY(p.txtBusqueda->isVisible());
        QCOMPARE(p.txtBusqueda->x(), p.grid->x() + p.grid->CellLeft());
        QCOMPARE(p.txtBusqueda->y(), p.grid->y() + p.grid->CellTop() + d);
        QCOMPARE(p.txtBusqueda->height(), p.grid->CellHeight() - d);
        // The width is that of column 1 whatever the column.
        QCOMPARE(p.txtBusqueda->width(), 170);
        QCOMPARE(p.txtBusqueda->text(), QStringLiteral("1234"));
        // In front of the grid.
        QCOMPARE(p.ventana.childAt(p.txtBusqueda->geometry().center()), p.txtBusqueda);
        p.utilidades.OcultarTxtBusqueda();
        QVERIFY(!p.txtBusqueda->isVisible());
    }

    void posicionarTxtBusquedaEnCabecera()
    {
        Panel p(2, 3);
        QVERIFY(QTest::qWaitForWindowExposed(&p.ventana));
        p.grid->setColWidth(1, 120);
        p.grid->setRow(0);
        p.grid->setCol(1);
        p.utilidades.PosicionarTxtBusqueda();
        QCOMPARE(p.txtBusqueda->y(), p.grid->y() + p.grid->horizontalHeader()->y() + 1);
        QCOMPARE(p.txtBusqueda->text(), QStringLiteral("Col1"));
        QCOMPARE(p.txtBusqueda->width(), 120);
    }

    void hayAlgunaCondicion()
    {
        cUtilidadesGrid u;
        QVERIFY(!u.hayAlgunaCondicion({}));
        QVERIFY(!u.hayAlgunaCondicion({QString(), QString(), QStringLiteral("B")}));  // the last is left out
        QVERIFY(u.hayAlgunaCondicion({QString(), QStringLiteral("A"), QString()}));
        QVERIFY(u.hayAlgunaCondicion({QStringLiteral("0"), QString()}));
        QVERIFY(!u.hayAlgunaCondicion({QStringLiteral("solo")}));
    }

    void filaDeGrid()
    {
        Panel p(6, 3);  // codes 10, 20, 30, 40, 50 in column 0
        QCOMPARE(FilaDeGrid(p.grid, 0, 30), 3);
        QCOMPARE(FilaDeGrid(p.grid, 0, 50), 5);
        QCOMPARE(FilaDeGrid(p.grid, 0, 99), 1);  // no match
        QCOMPARE(FilaDeGrid(p.grid, 0, 0), 1);   // a code of 0 always gives 1
        // The numeric value of the cell counts: " 030" is 30; the first match wins.
        p.grid->setTextMatrix(2, 0, QStringLiteral(" 030"));
        QCOMPARE(FilaDeGrid(p.grid, 0, 30), 2);
        // Empty rows read as 0 and never match a code.
        p.grid->setRows(10);
        QCOMPARE(FilaDeGrid(p.grid, 0, 40), 4);
        QCOMPARE(FilaDeGrid(nullptr, 0, 40), 1);
    }

    void filaDeGridSoloCabecera()
    {
        cFlexGrid grid;
        grid.setRows(1);
        grid.setTextMatrix(0, 0, QStringLiteral("7"));  // the heading is never searched
        QCOMPARE(FilaDeGrid(&grid, 0, 7), 1);
    }

    void criterios()
    {
        TablaCriterios tabla;
        AnotarCriterio(tabla, QStringLiteral("1"), QStringLiteral("GAR"));
        AnotarCriterio(tabla, QStringLiteral("2"), QStringLiteral("123"));
        QCOMPARE(tabla.size(), 2);
        // The same field again: its value changes in place, the order stays.
        AnotarCriterio(tabla, QStringLiteral("1"), QStringLiteral("MAR"));
        QCOMPARE(tabla.size(), 2);
        QCOMPARE(tabla[0].CAMPOSELECCION, QStringLiteral("1"));
        QCOMPARE(tabla[0].VALORSELECCION, QStringLiteral("MAR"));
        QCOMPARE(tabla[1].CAMPOSELECCION, QStringLiteral("2"));
        QCOMPARE(tabla[1].VALORSELECCION, QStringLiteral("123"));
        // An emptied criterion stays, with an empty value.
        AnotarCriterio(tabla, QStringLiteral("2"), QString());
        QCOMPARE(tabla.size(), 2);
        QCOMPARE(tabla[1].VALORSELECCION, QString());
    }

    void criteriosAusentes()
    {
        std::optional<TablaCriterios> tabla;
        AnotarCriterio(tabla, QStringLiteral("3"), QStringLiteral("X"));
        QVERIFY(tabla.has_value());
        QCOMPARE(tabla->size(), 1);
        QCOMPARE(tabla->at(0).CAMPOSELECCION, QStringLiteral("3"));
    }
};

QTEST_MAIN(TestGrid)
#include "test_grid.moc"
