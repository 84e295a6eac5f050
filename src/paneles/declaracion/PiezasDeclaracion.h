#pragma once
// The pieces the declaration form and its blocks are made of, beside the fields of
// paneles/partes/CamposDatos.h.
class QCheckBox;
class QFrame;
class QLineEdit;
class QPushButton;
class QWidget;

// The pieces the blocks and the form are made of.
namespace PiezasDeclaracion {
// A frame with its objectName and a panel's border.
QFrame* Marco(QWidget* padre, const char* nombre);
QCheckBox* Casilla(QWidget* padre, const char* nombre);
// A button that Enter presses.
QPushButton* Boton(QWidget* padre, const char* nombre);
// A display-only field: locked, grey, out of the tab order.
QLineEdit* Muestra(QWidget* padre, const char* nombre, int limite);
}  // namespace PiezasDeclaracion
