#pragma once
// What the tests of the declaration panels share, beside the program and gestures of the
// parties' panel tests: valid tax numbers, parties and returns put in the store, and the
// commands of the main window.
#include "../partes/datos/ApoyoDatos.h"
#include "comun/PartesPrueba.h"

#include <QString>
#include <QStringList>
#include <cstdint>
#include <memory>

class QAbstractButton;
class QAction;
class QCheckBox;
class QComboBox;
class FrmDeclaracion;
class cFlexGrid;

// The program under test with the declaration form in it, and the gestures the form's tests
// share: a new or a stored return opened, a check box and a tab clicked, an access key, the
// messages shown and a column of the stored return.
class ControlesDeDeclaracion : public ControlesDePanel {
protected:
    std::unique_ptr<ProgramaDePrueba> m_prog;

    // A fresh program and no message shown yet; the program closed and its events run.
    void arrancar();
    void cerrar();

    FrmDeclaracion* frm() const;
    QCheckBox* k(const char* nombre) const;
    QComboBox* cmb() const;

    // A new return from the main menu.
    void nueva();
    // The stored return `csde` opened in the form as the lists open it, in the given MODO.
    void abrirGuardada(int32_t csde, const QString& modo = QStringLiteral("C"));
    // A click on the box of a check box (not on its caption).
    void clicCasilla(QAbstractButton* casilla);
    // A click on a tab of tabTerceros.
    void pestana(int i);
    // The access key Alt + `letra` pressed in the widget that has the focus; the button it
    // reaches acts a moment later, as on screen.
    void teclaDeAcceso(Qt::Key letra);
    // The texts of the messages shown so far, in order.
    QStringList mensajes() const;
    // A column of the one stored return, as text.
    QString almacenado(const char* columna) const;
};

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
// A click on the heading of a grid's column, as the mouse gives it.
void ClicEnCabecera(cFlexGrid* grid, int columna);

// One condition of a list's search: a click on the column's first row, the value typed in
// the search field and the field left.
void CondicionDeBusqueda(cFlexGrid* grid, QLineEdit* busqueda, int columna, const QString& valor);
// A condition on each of the five first columns of a list of returns, in order: the code
// from `desde`, the reference "AB", the date 01/01/2010, the amount 1 and the operation "T".
void CondicionesEnCincoColumnas(cFlexGrid* grid, QLineEdit* busqueda, int32_t desde);
