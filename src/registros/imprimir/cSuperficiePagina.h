#pragma once
// The page surface the form is drawn on: the state a drawing routine sets (scale, font, pen,
// fill, current position) and the few operations it calls. A surface is a printer, a PDF
// writer or a recorder for tests; the layout code only ever sees this interface, so a sheet
// drawn on any of them is the same sequence of calls.
#include "registros/imprimir/DibujosImpreso.h"

#include <QString>
#include <cstdint>

// How Line draws between its two points.
enum class ModoLinea { Linea, Caja, CajaRellena };

class cSuperficiePagina {
public:
    virtual ~cSuperficiePagina() = default;
    cSuperficiePagina() = default;
    cSuperficiePagina(const cSuperficiePagina&) = delete;
    cSuperficiePagina& operator=(const cSuperficiePagina&) = delete;

    // 6 millimetres (the form's unit); 1 twips, 2 points, 3 pixels at 96 dpi, 5 inches,
    // 7 centimetres are understood too.
    int16_t ScaleMode = 1;
    QString FontName = QStringLiteral("Arial");
    float FontSize = 9;
    bool FontBold = false;
    bool FontItalic = false;
    bool FontUnderline = false;
    uint32_t ForeColor = 0;          // 0xRRGGBB
    float CurrentX = 0;
    float CurrentY = 0;
    int16_t DrawWidth = 1;           // in device dots of a 600-dot printer
    uint32_t FillColor = 0xFFFFFF;   // 0xRRGGBB

    // Width and height of a text in the current font, in the scale in force.
    virtual float TextWidth(const QString& texto) = 0;
    virtual float TextHeight(const QString& texto) = 0;
    // Prints a text with its top left corner at (CurrentX, CurrentY); CurrentX then moves to
    // its end.
    virtual void Print(const QString& texto) = 0;
    // A line, a box outline, or a box filled with `color` (0xRRGGBB), at DrawWidth.
    virtual void Line(float x1, float y1, float x2, float y2, uint32_t color, ModoLinea modo) = 0;
    // A picture at its natural size, its top left corner at (x, y).
    virtual void PaintPicture(Dibujo dibujo, float x, float y) = 0;
    // Ends the document of the current sheet and sends it out.
    virtual void EndDoc() = 0;

    // Millimetres in one unit of ScaleMode.
    double MmPorUnidad() const;
    // The width in millimetres of a DrawWidth in dots.
    static double MmDeGrosor(int16_t puntos);
};
