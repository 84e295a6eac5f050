#pragma once
// Every address the program hands to the web browser goes through here. Tests record the
// addresses instead of starting a browser.
#include <QList>
#include <QUrl>

// Opens `direccion` with the desktop's browser; false when no browser could be started.
bool AbrirEnNavegador(const QUrl& direccion);

// While recording, no browser starts; each address is kept and the scripted answer (true
// unless told otherwise) is given.
namespace NavegadorSeam {
void grabar(bool activo);  // start or stop recording (and clears the record)
void setNextResult(bool abierto);
const QList<QUrl>& registro();
}
