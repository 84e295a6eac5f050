#include "paneles/imprimir/ImpresoraSistema.h"

#include "paneles/imprimir/cSuperficieImpresora.h"

#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>

namespace {
struct Sustitutos {
    int impresoras = -1;
    std::function<bool(QPrinter&)> dialogo;
    std::function<void(QPrintPreviewDialog&)> vista;
    cSuperficiePagina* superficie = nullptr;
};

Sustitutos& sustitutos()
{
    static Sustitutos s;
    return s;
}

}

namespace ImpresoraSistema {

int NumeroImpresoras()
{
    const int n = sustitutos().impresoras;
    return n >= 0 ? n : cSuperficieImpresora::NumeroImpresoras();
}

QPrinter& Elegida()
{
    static QPrinter impresora(QPrinter::HighResolution);
    return impresora;
}

bool Dialogo(QWidget* padre)
{
    if (sustitutos().dialogo)
        return sustitutos().dialogo(Elegida());
    QPrintDialog dialogo(&Elegida(), padre);
    return dialogo.exec() == QDialog::Accepted;
}

void MostrarVista(QPrintPreviewDialog& vista)
{
    if (sustitutos().vista)
        sustitutos().vista(vista);
    else
        vista.exec();
}

bool Imprimir(const std::function<void(cSuperficiePagina&)>& dibujar)
{
    if (cSuperficiePagina* destino = sustitutos().superficie) {
        dibujar(*destino);
        return true;
    }
    cSuperficieImpresora impresora(Elegida());
    dibujar(impresora);
    return impresora.Bien();
}

}  // namespace ImpresoraSistema

namespace ImpresoraSistemaSeam {
void impresoras(int numero) { sustitutos().impresoras = numero; }
void dialogo(std::function<bool(QPrinter&)> responder) { sustitutos().dialogo = std::move(responder); }
void vista(std::function<void(QPrintPreviewDialog&)> mirar) { sustitutos().vista = std::move(mirar); }
void superficie(cSuperficiePagina* destino) { sustitutos().superficie = destino; }
void limpiar() { sustitutos() = Sustitutos{}; }
}
