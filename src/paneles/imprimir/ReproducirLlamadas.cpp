#include "paneles/imprimir/ReproducirLlamadas.h"

namespace {
void ponerEstado(const LlamadaPagina& l, cSuperficiePagina& destino)
{
    destino.ScaleMode = l.escala;
    destino.FontName = l.fuente;
    destino.FontSize = l.tamano;
    destino.FontBold = l.negrita;
    destino.FontItalic = l.cursiva;
    destino.FontUnderline = l.subrayado;
    destino.DrawWidth = l.grosor;
}
}

void ReproducirLlamadas(const QList<LlamadaPagina>& llamadas, cSuperficiePagina& destino)
{
    for (const LlamadaPagina& l : llamadas) {
        ponerEstado(l, destino);
        switch (l.tipo) {
        case LlamadaPagina::Tipo::Texto:
            destino.ForeColor = l.color;
            destino.CurrentX = l.x1;
            destino.CurrentY = l.y1;
            destino.Print(l.texto);
            break;
        case LlamadaPagina::Tipo::Linea:
            destino.Line(l.x1, l.y1, l.x2, l.y2, l.color, l.modo);
            break;
        case LlamadaPagina::Tipo::Dibujo:
            destino.PaintPicture(l.dibujo, l.x1, l.y1);
            break;
        case LlamadaPagina::Tipo::FinDoc:
            destino.EndDoc();
            break;
        }
    }
}
