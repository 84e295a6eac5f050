#include "paneles/controles/SeleccionarTexto.h"

#include <QLineEdit>

void SeleccionarTexto(QLineEdit* campo)
{
    if (campo)
        campo->setSelection(0, static_cast<int>(campo->text().size()));
}
