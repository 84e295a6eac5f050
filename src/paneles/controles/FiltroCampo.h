#pragma once
// Binds the key filters to a line edit, so that a panel's text, digit or date field behaves
// the same everywhere: each typed (or pasted) character goes through the filter, and a
// character the filter turns into another one (a lower-case letter into upper case) is typed
// as that one. Optionally the whole text is selected when the field takes the focus.
class QLineEdit;

enum class TipoFiltro { Texto, Digitos, Fecha };

// The filter object lives as a child of the field.
void AplicarFiltro(QLineEdit* campo, TipoFiltro tipo);
// SeleccionarTexto each time the field takes the focus, the mouse included.
void SeleccionarAlEntrar(QLineEdit* campo);
