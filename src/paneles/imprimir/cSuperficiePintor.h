#pragma once
// A page surface that paints with QPainter on a paint device whose resolution it knows. The
// coordinates of the surface's scale become device pixels here; the text metrics are those of
// MedirTexto, so placing is the same as on every other surface. What happens at the end of a
// document is the device's business (a new page, a new print job).
#include "registros/imprimir/cSuperficiePagina.h"

#include <QPainter>

class QPaintDevice;

class cSuperficiePintor : public cSuperficiePagina {
public:
    ~cSuperficiePintor() override;

    float TextWidth(const QString& texto) override;
    float TextHeight(const QString& texto) override;
    void Print(const QString& texto) override;
    void Line(float x1, float y1, float x2, float y2, uint32_t color, ModoLinea modo) override;
    void PaintPicture(Dibujo dibujo, float x, float y) override;

protected:
    // `resolucion` in dots per inch of the device.
    explicit cSuperficiePintor(double resolucion);
    // The painter, ready on a new sheet when the previous one was ended.
    QPainter& Pintor();
    // The sheet is complete: the next drawing call starts another one.
    void TerminarHoja() { m_hojaPendiente = true; }
    void CerrarPintor();
    // Readies the painter for the next sheet: begins it on the device, or turns the page.
    virtual void EmpezarHoja(QPainter& pintor) = 0;

private:
    double Px(float unidades) const;
    QFont Fuente() const;

    QPainter m_pintor;
    double m_pxPorMm;
    bool m_hojaPendiente = true;
};
