#include "paneles/imprimir/cSuperficieGrabadora.h"

#include "paneles/imprimir/FuentesImpreso.h"

namespace {
MedidaTexto medir(const cSuperficiePagina& p, const QString& texto)
{
    return FuenteDeImpreso(p.FontName, p.FontSize, p.FontBold, p.FontItalic, p.FontUnderline)
        .Medir(texto);
}
}

LlamadaPagina cSuperficieGrabadora::llamada(LlamadaPagina::Tipo tipo) const
{
    LlamadaPagina l;
    l.tipo = tipo;
    l.fuente = FontName;
    l.tamano = FontSize;
    l.negrita = FontBold;
    l.cursiva = FontItalic;
    l.subrayado = FontUnderline;
    l.grosor = DrawWidth;
    l.escala = ScaleMode;
    return l;
}

float cSuperficieGrabadora::TextWidth(const QString& texto)
{
    const auto v = static_cast<float>(medir(*this, texto).ancho / MmPorUnidad());
    Medidas.append({texto, FontName, FontSize, true, v});
    return v;
}

float cSuperficieGrabadora::TextHeight(const QString& texto)
{
    const auto v = static_cast<float>(medir(*this, texto).alto / MmPorUnidad());
    Medidas.append({texto, FontName, FontSize, false, v});
    return v;
}

void cSuperficieGrabadora::Print(const QString& texto)
{
    LlamadaPagina l = llamada(LlamadaPagina::Tipo::Texto);
    l.x1 = CurrentX;
    l.y1 = CurrentY;
    l.texto = texto;
    l.color = ForeColor;
    const auto ancho = static_cast<float>(medir(*this, texto).ancho / MmPorUnidad());
    l.x2 = CurrentX + ancho;
    Llamadas.append(l);
    CurrentX += ancho;
}

void cSuperficieGrabadora::Line(float x1, float y1, float x2, float y2, uint32_t color,
                                ModoLinea modo)
{
    LlamadaPagina l = llamada(LlamadaPagina::Tipo::Linea);
    l.x1 = x1;
    l.y1 = y1;
    l.x2 = x2;
    l.y2 = y2;
    l.color = color;
    l.modo = modo;
    Llamadas.append(l);
}

void cSuperficieGrabadora::PaintPicture(Dibujo dibujo, float x, float y)
{
    LlamadaPagina l = llamada(LlamadaPagina::Tipo::Dibujo);
    l.x1 = x;
    l.y1 = y;
    l.x2 = x + static_cast<float>(MmDePixeles(TamanoDe(dibujo).ancho));
    l.y2 = y + static_cast<float>(MmDePixeles(TamanoDe(dibujo).alto));
    l.dibujo = dibujo;
    Llamadas.append(l);
}

void cSuperficieGrabadora::EndDoc()
{
    Llamadas.append(llamada(LlamadaPagina::Tipo::FinDoc));
}
