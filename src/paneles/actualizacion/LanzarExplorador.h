#pragma once
// Opens a web address in the user's browser by way of a small local page that posts an empty
// form to it as soon as it loads, so the address never passes through a command line.
#include <QList>
#include <QString>
#include <QUrl>

class QWidget;

// Writes the program's folder + "/temphtm.HTM" (deleting an earlier one) and opens it with the
// desktop's browser (through AbrirEnNavegador, which tests record). No browser: message id 335, title id 336, exclamation. A page that cannot
// be written is a run-time failure (cFallo).
void LanzarExplorador(QWidget* owner, const QString& url);

// The path of the temporary page.
QString RutaPaginaTemporal();
