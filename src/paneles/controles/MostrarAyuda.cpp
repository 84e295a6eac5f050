#include "paneles/controles/MostrarAyuda.h"

#include "valores/Twips.h"

#include <QLabel>
#include <algorithm>

namespace {
constexpr int kAltoDosLineas = TwipsAPixeles(450);
constexpr int kAltoUnaLinea = TwipsAPixeles(240);
}

void MostrarAyuda(QLabel* etiqueta, const QString& texto, std::optional<int> anchoMaximo)
{
    if (!etiqueta)
        return;
    if (texto.isEmpty()) {
        etiqueta->hide();
        return;
    }
    etiqueta->setWordWrap(false);
    etiqueta->setMinimumSize(0, 0);
    etiqueta->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    etiqueta->setText(texto);
    etiqueta->adjustSize();
    if (anchoMaximo && etiqueta->width() > *anchoMaximo) {
        etiqueta->setWordWrap(true);
        const int alto = std::max(kAltoDosLineas, etiqueta->heightForWidth(*anchoMaximo));
        etiqueta->setFixedSize(*anchoMaximo, alto);
    } else {
        const int alto = std::max(kAltoUnaLinea, etiqueta->sizeHint().height());
        etiqueta->resize(etiqueta->width(), alto);
    }
    etiqueta->show();
}
