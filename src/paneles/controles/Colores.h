#pragma once
// The two backgrounds of a field: grey when it is locked (computed or not to be typed in),
// white when it is open.
#include <QColor>

constexpr QRgb kColorBloqueado = 0xE0E0E0;
constexpr QRgb kColorAbierto = 0xFFFFFF;

class QWidget;

// Paints the background of an entry field (or any widget) in `color`.
void PonerColorFondo(QWidget* campo, QColor color);
// Grey for a locked field, white for an open one.
void ColorearCampo(QWidget* campo, bool abierto);
// The background a field is painted in now.
QColor ColorFondo(const QWidget* campo);
