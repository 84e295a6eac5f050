#pragma once
// The fonts of the form. "Times New Roman" and "Arial" are asked for by name and resolve to
// their metric twins Liberation Serif and Liberation Sans, so every width and placed text
// comes out in the form's millimetres on any machine that has them.
#include <QFont>
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
MedidaTexto MedirTexto(const QFont& fuente, double puntos, const QString& texto);
