#pragma once
// A page surface that draws nothing and keeps every call with its arguments and the state it
// was made in, and every text metric asked for: the tests read a sheet from it, and a batch
// replays it on a PDF in another thread (ReproducirLlamadas). Its metrics are those of the
// surfaces that paint.
#include "registros/imprimir/cSuperficiePagina.h"

#include <QList>

struct LlamadaPagina {
    enum class Tipo { Texto, Linea, Dibujo, FinDoc };
    Tipo tipo = Tipo::Texto;
    float x1 = 0, y1 = 0, x2 = 0, y2 = 0;  // text: its top left corner; picture: its corner
    QString texto;
    QString fuente;
    float tamano = 0;
    bool negrita = false;
    bool cursiva = false;
    bool subrayado = false;
    int16_t grosor = 0;        // DrawWidth of a line
    uint32_t color = 0;        // line colour or text colour
    ModoLinea modo = ModoLinea::Linea;
    Dibujo dibujo = Dibujo::Logo;
    int16_t escala = 0;        // ScaleMode in force
};

struct MedidaPedida {
    QString texto;
    QString fuente;
    float tamano;
    bool ancho;     // TextWidth (true) or TextHeight
    float valor;
};

class cSuperficieGrabadora : public cSuperficiePagina {
public:
    float TextWidth(const QString& texto) override;
    float TextHeight(const QString& texto) override;
    void Print(const QString& texto) override;
    void Line(float x1, float y1, float x2, float y2, uint32_t color, ModoLinea modo) override;
    void PaintPicture(Dibujo dibujo, float x, float y) override;
    void EndDoc() override;

    QList<LlamadaPagina> Llamadas;
    QList<MedidaPedida> Medidas;

private:
    LlamadaPagina llamada(LlamadaPagina::Tipo tipo) const;
};
