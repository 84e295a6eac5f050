#pragma once
// What the tests of the declaration panels share, beside the program and gestures of the
// parties' panel tests: valid tax numbers, parties and returns put in the store, and the
// commands of the main window.
#include "../partes/datos/ApoyoDatos.h"
#include "comun/PartesPrueba.h"

#include <QString>
#include <cstdint>

class QAction;
class cFlexGrid;

// A return stored through the store of returns (a valid petrol car of 2010 under T2, subject
// and transmitter typed; the stored parties' codes when given). Answers its code.
int32_t DeclaracionGuardada(const QString& referencia, int32_t fecha = 20100315,
                            const QString& operacion = QStringLiteral("T2"), int32_t cssu = 0,
                            int32_t cstra = 0, int32_t cspr = 0);

// A command of the main window, by its objectName, triggered as the user does.
void Comando(const ProgramaDePrueba& prog, const char* nombre);

// The number of stored returns.
int Declaraciones();

// Types a date into the masked date field (digits only) and leaves it.
void EscribirFecha(QLineEdit* campo, const QString& cifras);

// A click and a double click on a data cell of a grid (row from 1), as the mouse gives them.
void ClicEnCelda(cFlexGrid* grid, int fila, int columna);
void DobleClicEnCelda(cFlexGrid* grid, int fila, int columna);
