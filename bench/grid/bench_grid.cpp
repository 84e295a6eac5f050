// How the list grid copes with a large file: fills 100 000 rows of seven columns as a list
// panel does, then pages through it, marks rows and finds a code. Prints the times.
// Run with QT_QPA_PLATFORM=offscreen when there is no screen.
#include "paneles/controles/FilaDeGrid.h"
#include "paneles/controles/cFlexGrid.h"
#include "paneles/controles/cUtilidadesGrid.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTextStream>
#include <cstdio>

namespace {

constexpr int kFilas = 100000;
constexpr int kColumnas = 7;

void Imprimir(const char* que, qint64 ns, int veces = 1)
{
    std::printf("%-52s %10.2f ms", que, ns / 1e6);
    if (veces > 1)
        std::printf("   (%.3f ms each, %d times)", ns / 1e6 / veces, veces);
    std::printf("\n");
}

void Rellenar(cFlexGrid& grid, bool congelar)
{
    if (congelar)
        grid.setRedraw(false);
    grid.setRows(1);
    grid.setRows(kFilas + 1);
    for (int f = 1; f <= kFilas; ++f) {
        grid.setTextMatrix(f, 0, QString::number(f));
        grid.setTextMatrix(f, 1, QStringLiteral("APELLIDO%1 NOMBRE").arg(f));
        grid.setTextMatrix(f, 2, QStringLiteral("%1X").arg(10000000 + f));
        grid.setTextMatrix(f, 3, QStringLiteral("CALLE MAYOR"));
        grid.setTextMatrix(f, 4, QStringLiteral("MUNICIPIO"));
        grid.setTextMatrix(f, 5, QString::number(f % 7));
        grid.setTextMatrix(f, 6, QString::number(f % 3));
    }
    if (congelar)
        grid.setRedraw(true);
}

}  // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QWidget ventana;
    ventana.resize(900, 600);
    cFlexGrid grid(&ventana);
    grid.setGeometry(10, 10, 880, 560);
    grid.setCols(kColumnas);
    const int anchos[kColumnas] = {0, 180, 67, 133, 133, 40, 40};
    for (int c = 0; c < kColumnas; ++c)
        grid.setColWidth(c, anchos[c]);
    QLineEdit txtBusqueda(&ventana);
    txtBusqueda.hide();
    ventana.show();
    app.processEvents();

    std::printf("Grid of %d rows x %d columns\n", kFilas, kColumnas);
    QElapsedTimer t;

    t.start();
    Rellenar(grid, true);
    app.processEvents();
    Imprimir("fill, drawing frozen (Redraw false)", t.nsecsElapsed());

    t.start();
    Rellenar(grid, false);
    app.processEvents();
    Imprimir("fill, drawing live", t.nsecsElapsed());

    cUtilidadesGrid utilidades;
    utilidades.Flex(&grid);
    utilidades.txtBusqueda(&txtBusqueda);
    const QColor marca = QColor::fromRgb(0x80C0FF);

    // Paging: each step brings a new page to the top and paints it.
    constexpr int kPasos = 200;
    t.start();
    for (int i = 0; i < kPasos; ++i) {
        grid.setTopRow(1 + (i * (kFilas / kPasos)));
        grid.viewport()->repaint();
    }
    Imprimir("scroll: TopRow + repaint", t.nsecsElapsed(), kPasos);

    t.start();
    for (int i = 0; i < kPasos; ++i) {
        const int fila = 1 + (i * 7919) % kFilas;
        grid.setTopRow(fila);
        utilidades.SeleccionarGrid(marca, Qt::black, fila);
        grid.viewport()->repaint();
    }
    Imprimir("select: SeleccionarGrid on a far row + repaint", t.nsecsElapsed(), kPasos);

    t.start();
    for (int i = 0; i < kPasos; ++i) {
        grid.setRow(1 + i % 30);
        utilidades.PosicionarTxtBusqueda();
    }
    Imprimir("PosicionarTxtBusqueda", t.nsecsElapsed(), kPasos);

    t.start();
    const int fila = FilaDeGrid(&grid, 0, kFilas);
    Imprimir("FilaDeGrid, code in the last row", t.nsecsElapsed());
    if (fila != kFilas)
        std::printf("unexpected row %d\n", fila);

    t.start();
    grid.setRows(2);
    app.processEvents();
    Imprimir("cut back to one data row", t.nsecsElapsed());
    return 0;
}
