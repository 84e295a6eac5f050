#pragma once
// The hint label beside lists and fields.
#include <QString>
#include <optional>

class QLabel;

// An empty text hides the label. Otherwise the label takes the text and sizes itself to it;
// when `anchoMaximo` (pixels) is given and the text is wider, the label keeps that width and
// wraps to two lines (450 twips high), else it keeps its own width and one line (240 twips).
// Then it is shown. A font taller than those heights gets the height it needs.
void MostrarAyuda(QLabel* etiqueta, const QString& texto,
                  std::optional<int> anchoMaximo = std::nullopt);
