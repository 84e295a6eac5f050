#pragma once
// A command button acts on what the user typed: the field being typed in is left first (its
// write-through into the record and its checks run), whatever presses the button. A click of
// the mouse does it by itself, since the button takes the focus on the press; the access key
// (Alt and the underlined letter) and the icons that stand for a button do not, so they come
// through here.
#include <Qt>

class QAbstractButton;

namespace SalidaAntesDeOrden {
// Watches the access keys of every button of the program: the button takes the focus before
// it acts, so the field that had it is left. When the leaving keeps the user in a field (a
// message put the focus back, a picker opened), the command does not run, as a message on the
// press of the mouse swallows the click. Once for the program; later calls do nothing.
void Instalar();
}

// Gives `boton` the focus when another widget of its window has it, so that a field being
// typed in is left as a press of the mouse leaves it. Answers whether the button may act: it
// holds the focus afterwards, or nothing else of its window had it.
bool DejarCampoPara(QAbstractButton* boton, Qt::FocusReason razon);
