#include "paneles/imprimir/cSuperficiePintor.h"

#include "paneles/imprimir/DibujosPintados.h"
#include "paneles/imprimir/FuentesImpreso.h"

cSuperficiePintor::cSuperficiePintor(double resolucion) : m_pxPorMm(resolucion / 25.4) {}

cSuperficiePintor::~cSuperficiePintor() = default;

QPainter& cSuperficiePintor::Pintor()
{
    if (m_hojaPendiente) {
        m_hojaPendiente = false;
        EmpezarHoja(m_pintor);
        m_fuentePuesta = nullptr;
        m_colorTexto.reset();
        m_pintor.setRenderHint(QPainter::Antialiasing);
        m_pintor.setRenderHint(QPainter::TextAntialiasing);
    }
    return m_pintor;
}

void cSuperficiePintor::CerrarPintor()
{
    if (m_pintor.isActive())
        m_pintor.end();
}

double cSuperficiePintor::Px(float unidades) const
{
    return unidades * MmPorUnidad() * m_pxPorMm;
}

const FuenteMedida& cSuperficiePintor::Fuente()
{
    return FuenteDeImpreso(FontName, FontSize, FontBold, FontItalic, FontUnderline);
}

QPainter& cSuperficiePintor::PintorDeTexto(const FuenteMedida& fuente)
{
    QPainter& p = Pintor();
    if (m_fuentePuesta != &fuente) {
        p.setFont(fuente.Fuente());
        m_fuentePuesta = &fuente;
    }
    if (m_colorTexto != ForeColor) {
        p.setPen(QColor::fromRgb(ForeColor));
        m_colorTexto = ForeColor;
    }
    return p;
}

float cSuperficiePintor::TextWidth(const QString& texto)
{
    return static_cast<float>(Fuente().Medir(texto).ancho / MmPorUnidad());
}

float cSuperficiePintor::TextHeight(const QString& texto)
{
    return static_cast<float>(Fuente().Medir(texto).alto / MmPorUnidad());
}

void cSuperficiePintor::Print(const QString& texto)
{
    const FuenteMedida& fuente = Fuente();
    const MedidaTexto m = fuente.Medir(texto);
    PintorDeTexto(fuente).drawText(QPointF(Px(CurrentX), Px(CurrentY) + m.ascenso * m_pxPorMm),
                                   texto);
    CurrentX += static_cast<float>(m.ancho / MmPorUnidad());
}

void cSuperficiePintor::Line(float x1, float y1, float x2, float y2, uint32_t color,
                             ModoLinea modo)
{
    QPainter& p = Pintor();
    const QPointF a(Px(x1), Px(y1));
    const QPointF b(Px(x2), Px(y2));
    if (modo == ModoLinea::CajaRellena) {
        p.fillRect(QRectF(a, b).normalized(), QColor::fromRgb(color));
        return;
    }
    QPen pluma(QColor::fromRgb(color), MmDeGrosor(DrawWidth) * m_pxPorMm, Qt::SolidLine,
               Qt::SquareCap, Qt::MiterJoin);
    p.setPen(pluma);
    m_colorTexto.reset();
    p.setBrush(Qt::NoBrush);
    if (modo == ModoLinea::Caja)
        p.drawRect(QRectF(a, b).normalized());
    else
        p.drawLine(a, b);
}

void cSuperficiePintor::PaintPicture(Dibujo dibujo, float x, float y)
{
    const TamanoDibujo t = TamanoDe(dibujo);
    const QRectF destino(Px(x), Px(y), MmDePixeles(t.ancho) * m_pxPorMm,
                         MmDePixeles(t.alto) * m_pxPorMm);
    Pintor().drawImage(destino, ImagenDibujo(dibujo));
}
