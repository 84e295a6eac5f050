#include "paneles/imprimir/DibujosPintados.h"

#include "plataforma/Estado.h"

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QPainter>
#include <QPainterPath>
#include <QStringList>

namespace {
// The lines a label is set in: one line, or Basque and Spanish on lines of their own when the
// label is wide enough to hold two.
QStringList lineas(const QString& texto, int anchoLinea)
{
    const int corte = texto.indexOf(QLatin1String(" / "));
    if (anchoLinea >= 18 && corte > 0)
        return {texto.left(corte + 2), texto.mid(corte + 3)};
    return {texto};
}

// The largest pixel size at which the lines fit `largo` along the text and `grueso` across.
QFont fuenteQueCabe(const QStringList& ls, int largo, int grueso)
{
    QFont f(QStringLiteral("Liberation Sans"));
    for (int px = grueso; px > 3; --px) {
        f.setPixelSize(px);
        const QFontMetricsF m(f);
        double ancho = 0;
        for (const QString& l : ls)
            ancho = std::max(ancho, m.horizontalAdvance(l));
        if (ancho <= largo - 2 && m.height() * ls.size() <= grueso + 1)
            return f;
    }
    f.setPixelSize(4);
    return f;
}

QImage tira(Dibujo dibujo)
{
    const TamanoDibujo t = TamanoDe(dibujo);
    QImage img(t.ancho, t.alto, QImage::Format_RGB32);
    img.fill(Qt::white);
    QPainter p(&img);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.setPen(Qt::black);
    const QStringList ls = lineas(TextoDibujo(dibujo), t.ancho);
    p.setFont(fuenteQueCabe(ls, t.alto, t.ancho));
    // Turned a quarter to the left: the text reads from the bottom of the page to the top.
    p.translate(0, t.alto);
    p.rotate(-90);
    p.drawText(QRectF(0, 0, t.alto, t.ancho), Qt::AlignCenter, ls.join(QLatin1Char('\n')));
    return img;
}

// An emblem of our own for Arbelia: a shield parted in blue and red with a white wavy band
// and three golden roundels, in a 16-colour palette.
QImage emblema()
{
    const TamanoDibujo t = TamanoDe(Dibujo::Logo);
    QImage img(t.ancho, t.alto, QImage::Format_RGB32);
    img.fill(Qt::white);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing, false);
    QPainterPath escudo;
    escudo.moveTo(10, 6);
    escudo.lineTo(58, 6);
    escudo.lineTo(58, 36);
    escudo.quadTo(58, 56, 34, 64);
    escudo.quadTo(10, 56, 10, 36);
    escudo.closeSubpath();
    p.setClipPath(escudo);
    p.fillRect(QRect(10, 6, 24, 60), QColor(0, 0, 128));
    p.fillRect(QRect(34, 6, 24, 60), QColor(128, 0, 0));
    p.setPen(QPen(Qt::white, 5));
    p.drawLine(10, 40, 58, 28);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 255, 0));
    for (const QPoint c : {QPoint(22, 18), QPoint(46, 18), QPoint(34, 52)})
        p.drawEllipse(c, 4, 4);
    p.setClipping(false);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(Qt::black, 2));
    p.drawPath(escudo);
    p.end();
    return img.convertToFormat(QImage::Format_Indexed8, Qt::ThresholdDither);
}
}

const QImage& ImagenDibujo(Dibujo dibujo)
{
    // Made once per thread: a batch paints its PDF files on several threads at once.
    thread_local QHash<int, QImage> hechas;
    thread_local uint64_t generacion = cEstado::Generacion();
    if (generacion != cEstado::Generacion()) {
        hechas.clear();
        generacion = cEstado::Generacion();
    }
    const int clave = static_cast<int>(dibujo);
    auto it = hechas.find(clave);
    if (it == hechas.end())
        it = hechas.insert(clave, dibujo == Dibujo::Logo ? emblema() : tira(dibujo));
    return *it;
}
