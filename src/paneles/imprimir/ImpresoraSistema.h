#pragma once
// The system's printing as the print panel reaches it: how many printers there are, the printer
// the next copies go to (kept for the whole run, as the system's dialog left it), the system's
// printer dialog and the preview dialog. Tests replace each of them so that nothing blocks and
// nothing reaches a real printer.
#include <functional>

class QPrintPreviewDialog;
class QPrinter;
class QWidget;
class cSuperficiePagina;

namespace ImpresoraSistema {
int NumeroImpresoras();
// The printer the copies go to: the system's default until the dialog chooses another.
QPrinter& Elegida();
// The system's printer dialog on Elegida(); true when the user accepted.
bool Dialogo(QWidget* padre);
// Shows the preview dialog and waits until it is closed.
void MostrarVista(QPrintPreviewDialog& vista);
// Runs `dibujar` on the surface of one printing: on Elegida(), each sheet a document of its
// own. False when a sheet could not be sent.
bool Imprimir(const std::function<void(cSuperficiePagina&)>& dibujar);
}

namespace ImpresoraSistemaSeam {
// Each replacement stays until it is given again empty (or -1 for the count).
void impresoras(int numero);
void dialogo(std::function<bool(QPrinter&)> responder);
void vista(std::function<void(QPrintPreviewDialog&)> mirar);
// The surface the copies are drawn on instead of the printer; the test keeps ownership.
void superficie(cSuperficiePagina* destino);
void limpiar();
}
