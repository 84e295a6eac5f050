#include "paneles/imprimir/FuentesImpreso.h"

#include <QFontMetricsF>

namespace {
// Pixel size of the font the metrics are read on; the ratio to the point size scales them.
constexpr int kPixelesReferencia = 1000;
constexpr double kMmPorPunto = 25.4 / 72.0;
}

QString FamiliaInstalada(const QString& familia)
{
    if (familia.compare(QLatin1String("Times New Roman"), Qt::CaseInsensitive) == 0)
        return QStringLiteral("Liberation Serif");
    if (familia.compare(QLatin1String("Arial"), Qt::CaseInsensitive) == 0)
        return QStringLiteral("Liberation Sans");
    return familia;
}

QFont FuenteImpreso(const QString& familia, double puntos, bool negrita, bool cursiva,
                    bool subrayado)
{
    QFont f(FamiliaInstalada(familia));
    f.setPointSizeF(puntos > 0 ? puntos : 1);
    f.setBold(negrita);
    f.setItalic(cursiva);
    f.setUnderline(subrayado);
    f.setHintingPreference(QFont::PreferNoHinting);
    f.setStyleStrategy(QFont::ForceOutline);
    return f;
}

MedidaTexto MedirTexto(const QFont& fuente, double puntos, const QString& texto)
{
    QFont grande(fuente);
    grande.setPixelSize(kPixelesReferencia);
    const QFontMetricsF m(grande);
    const double escala = puntos * kMmPorPunto / kPixelesReferencia;
    return {m.horizontalAdvance(texto) * escala, m.height() * escala, m.ascent() * escala};
}
