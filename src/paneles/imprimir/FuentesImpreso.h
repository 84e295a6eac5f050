#pragma once
// The fonts of the form. "Times New Roman" and "Arial" are asked for by name and resolve to
// their metric twins Liberation Serif and Liberation Sans, so every width and placed text
// comes out in the form's millimetres on any machine that has them.
#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QString>

// The installed family that stands for a family the form names.
QString FamiliaInstalada(const QString& familia);
// The font of a surface's state, at a point size.
QFont FuenteImpreso(const QString& familia, double puntos, bool negrita, bool cursiva,
                    bool subrayado);

// Width and height of a text in millimetres, the same on every surface: measured on an
// unhinted font at a large size and scaled, so no device's grid rounds them.
struct MedidaTexto {
    double ancho;
    double alto;
    double ascenso;  // from the top of the line to the baseline
};

// One font of the form, made once: the font to paint with and what measures texts in it. A
// sheet uses a dozen of them thousands of times, and making a font and its metrics is what
// drawing a text cost most.
class FuenteMedida {
public:
    FuenteMedida(const QString& familia, double puntos, bool negrita, bool cursiva,
                 bool subrayado);

    const QFont& Fuente() const { return m_fuente; }
    MedidaTexto Medir(const QString& texto) const;

private:
    QFont m_fuente;
    QFontMetricsF m_metricas;  // at the reference pixel size
    double m_escala;           // millimetres of one reference pixel at the point size
    // The widths already measured: the form's captions come back on every sheet.
    mutable QHash<QString, double> m_anchos;
};

// The shared FuenteMedida of a surface's state; it lives as long as its thread.
const FuenteMedida& FuenteDeImpreso(const QString& familia, double puntos, bool negrita,
                                    bool cursiva, bool subrayado);
