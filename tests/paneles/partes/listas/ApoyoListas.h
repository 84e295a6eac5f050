#pragma once
// What the tests of the party lists share beside the program under test (ProgramaPrueba.h)
// and the parties put in its store (PartesPrueba.h, AlmacenPrueba.h): a list panel's
// controls, and the user's gestures on a grid (a click on a heading or a cell, a double click).
#include "comun/AlmacenPrueba.h"
#include "comun/PartesPrueba.h"
#include "comun/ProgramaPrueba.h"

#include <QColor>
#include <QList>
#include <QString>
#include <QStringList>
#include <QWidget>

class cFlexGrid;
class QLabel;
class QLineEdit;
class QPushButton;

// A list panel's controls by objectName (null when missing), and its result line.
namespace ControlesLista {
QPushButton* Boton(QWidget* panel, const char* nombre);
QLabel* Etiqueta(QWidget* panel, const char* nombre);
QLineEdit* Caja(QWidget* panel);  // the search box over the heading
QString TextoResultado(QWidget* panel);
}

// The user's gestures on a grid: through its viewport and its heading, as a mouse does.
void ClicCabecera(cFlexGrid* grid, int columna);
void ClicCelda(cFlexGrid* grid, int fila, int columna);
void DobleClicCelda(cFlexGrid* grid, int fila, int columna);
// The row's cells as they are shown, one text per column.
QStringList Fila(const cFlexGrid* grid, int fila);
// True when every cell of the row has the given background.
bool FilaPintada(const cFlexGrid* grid, int fila, QRgb color);
// The rows painted in the highlight.
QList<int> FilasResaltadas(const cFlexGrid* grid);
