#pragma once
// The fields of the data panels of parties, made the same way on each panel: text fields with
// their key filter and limit, numeric boxes with their digits and formats, the open and closed
// look of a field, and the icons that act as their button.
#include "paneles/controles/FiltroCampo.h"
#include "valores/Veredicto.h"

#include <QList>
#include <QString>
#include <QStyle>
#include <cstdint>

class CajaNum;
class QAbstractButton;
class QBoxLayout;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

// A text field: objectName, hard limit of characters, key filter, whole text selected on entry.
// A field that the panel can close (`cerrable`) hands the focus on when it is entered locked.
QLineEdit* CampoTexto(QWidget* padre, const char* nombre, int limite, TipoFiltro filtro,
                      bool cerrable = false);

// A numeric box with its limits, digits and format; an empty format leaves the box's own.
CajaNum* CajaNumerica(QWidget* padre, const char* nombre, int maxlength, int enteros,
                      const QString& formato, bool bloqueada);

// Open: in the tab order, not locked, white. Closed: out of the tab order, locked, grey.
void AbrirCampo(QWidget* campo, bool abierto);
// Whether a field is open (not locked).
bool CampoAbierto(const QWidget* campo);

// The icon beside a button, `lado` pixels square: a click on it acts as the click on the
// (enabled) button.
QLabel* IconoDeBoton(QWidget* padre, const char* nombre, QStyle::StandardPixmap imagen,
                     QAbstractButton* boton, int lado = 24);

// A field takes a text from the record only when it differs, so that a field the user is
// entering keeps its selection.
void PonerTexto(QLineEdit* campo, const QString& texto);

// Whether a code typed in a box differs from the record's: "1" and "001" are the same
// municipality, and an empty box equals an empty code only.
bool CodigoDistinto(const QString& texto, const QString& registro);

// A click on a part of the panel that takes no focus (a label, an icon, the bare frame) leaves
// the focus where it is, as on the program's forms: the panel's focus proxy follows the focus,
// so the platform, looking up from the clicked spot for a widget to focus, stops at the field
// that already has it instead of leaving it for the panel's frame.
void RetenerFocoAlPulsar(QWidget* panel);

// A field as wide as `caracteres` wide characters of its font, and no wider.
void AnchoDeCaracteres(QWidget* campo, int caracteres);
// One line of a data panel: the widgets side by side from the left; in a line of several, the
// first one (a label or a picker's button) as wide as the first column of the panel.
void LineaDePanel(QBoxLayout* panel, const QList<QWidget*>& widgets);

// A label with its objectName.
QLabel* Etiqueta(QWidget* padre, const char* nombre);

// The foot of a data panel: cmdAceptar and cmdCancelar in `botones`, each with its icon
// (PicAce, PicCan) that acts as it, and the two frames one above the other. The panel filters
// PicCan's events: a press on it is a way out, as the press on cmdCancelar is.
void BotonesDeDatos(QWidget* panel, QFrame* datos, QFrame* botones, QPushButton*& aceptar,
                    QPushButton*& cancelar, QLabel*& picAce, QLabel*& picCan);

// A refusal of the store (a rule broken, a number held, a text it cannot keep as given): its
// message in a box with the panel's title, then the field it names takes the focus. Nothing
// when the verdict has no message.
void AvisarRechazo(QWidget* panel, Veredicto rechazo);
