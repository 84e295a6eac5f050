#include "ApoyoListas.h"

#include "paneles/controles/cFlexGrid.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {

QPoint CentroCelda(cFlexGrid* grid, int fila, int columna)
{
    const QModelIndex indice = grid->model()->index(fila - 1, columna);
    grid->scrollTo(indice);
    return grid->visualRect(indice).center();
}

}  // namespace

namespace ControlesLista {
QPushButton* Boton(QWidget* panel, const char* nombre)
{
    return panel->findChild<QPushButton*>(QLatin1String(nombre));
}

QLabel* Etiqueta(QWidget* panel, const char* nombre)
{
    return panel->findChild<QLabel*>(QLatin1String(nombre));
}

QLineEdit* Caja(QWidget* panel) { return panel->findChild<QLineEdit*>(QStringLiteral("txtBusqueda")); }

QString TextoResultado(QWidget* panel) { return Etiqueta(panel, "lblResultado")->text(); }
}  // namespace ControlesLista

void ClicCabecera(cFlexGrid* grid, int columna)
{
    QHeaderView* cabecera = grid->horizontalHeader();
    const QPoint punto(cabecera->sectionViewportPosition(columna)
                           + cabecera->sectionSize(columna) / 2,
                       cabecera->height() / 2);
    QTest::mouseClick(cabecera->viewport(), Qt::LeftButton, {}, punto);
}

void ClicCelda(cFlexGrid* grid, int fila, int columna)
{
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, CentroCelda(grid, fila, columna));
}

void DobleClicCelda(cFlexGrid* grid, int fila, int columna)
{
    const QPoint punto = CentroCelda(grid, fila, columna);
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, punto);
    QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, punto);
}

QStringList Fila(const cFlexGrid* grid, int fila)
{
    QStringList celdas;
    for (int c = 0; c < grid->Cols(); ++c)
        celdas << grid->TextMatrix(fila, c);
    return celdas;
}

bool FilaPintada(const cFlexGrid* grid, int fila, QRgb color)
{
    for (int c = 0; c < grid->Cols(); ++c)
        if (grid->model()->index(fila - 1, c).data(Qt::BackgroundRole).value<QBrush>().color().rgb()
            != QColor::fromRgb(color).rgb())
            return false;
    return true;
}

QList<int> FilasResaltadas(const cFlexGrid* grid)
{
    QList<int> filas;
    for (int f = 1; f < grid->Rows(); ++f)
        if (FilaPintada(grid, f, 0x80C0FF))
            filas << f;
    return filas;
}
