#pragma once
// Selects the whole text of a field, so that typing replaces it.
class QLineEdit;
void SeleccionarTexto(QLineEdit* campo);
