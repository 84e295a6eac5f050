#include "paneles/dialogos/AvisoFallo.h"

#include "plataforma/Proceso.h"

#include <QApplication>
#include <QMessageBox>

void InstalarAvisoFalloEnCaja()
{
    Proceso::EstablecerAvisoVisible([](const QString& origen, const QString& descripcion) {
        if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
            return;
        QMessageBox::critical(nullptr, QStringLiteral("Veldoria"),
                              QStringLiteral("Error en tiempo de ejecución\n\n%1\n\n%2")
                                  .arg(origen, descripcion));
    });
}
