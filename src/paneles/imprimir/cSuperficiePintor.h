#pragma once
// A page surface that paints with QPainter on a paint device whose resolution it knows. The
// coordinates of the surface's scale become device pixels here; the text metrics are those of
// MedirTexto, so placing is the same as on every other surface. What happens at the end of a
// document is the device's business (a new page, a new print job).
#include "registros/imprimir/cSuperficiePagina.h"

#include <QPainter>
#include <optional>

class FuenteMedida;
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
    // The font of the state in force, shared by every surface of the process.
    const FuenteMedida& Fuente();
    // The painter with the state's font and colour for a text, set only when they changed.
    QPainter& PintorDeTexto(const FuenteMedida& fuente);

    QPainter m_pintor;
    double m_pxPorMm;
    bool m_hojaPendiente = true;
    // What the painter holds now; forgotten when a sheet begins on a new painter.
    const FuenteMedida* m_fuentePuesta = nullptr;
    std::optional<uint32_t> m_colorTexto;  // the pen is a text's of this colour
};
