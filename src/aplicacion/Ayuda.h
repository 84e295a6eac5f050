#pragma once
// Help: the HTML help of the program's folder, shown at a topic in a help viewer. The Spanish
// pages lie in Ayuda/Ayuda/ (contents page cap.html), the Basque ones in Ayuda/Laguntza/
// (contents page kap.html).
#include <QString>

class QWidget;

// The file shown for `tema` in the current language.
QString RutaAyuda(const QString& tema);
// Opens (or brings to the front) the help viewer at `tema`, owned by `propietario`.
void MostrarAyudaHtml(const QString& tema, QWidget* propietario);
