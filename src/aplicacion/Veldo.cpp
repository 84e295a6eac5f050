#include "aplicacion/Veldo.h"

#include "aplicacion/OrdenesIntercambio.h"
#include "aplicacion/Arranque.h"
#include "aplicacion/OrdenesImprimir.h"
#include "paneles/dialogos/AvisoFallo.h"
#include "plataforma/Proceso.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>

namespace {
// Failures that escape an event handler reach the runtime failure notice, which ends the
// program, instead of unwinding through the event loop.
class cAplicacion : public QApplication {
public:
    using QApplication::QApplication;
    bool notify(QObject* receptor, QEvent* e) override
    {
        bool hecho = false;
        Proceso::Protegido([&] { hecho = QApplication::notify(receptor, e); });
        return hecho;
    }
};
}

int EjecutarVeldo(int argc, char** argv)
{
    if (OrdenesIntercambio::Pedida(argc, argv))
        return OrdenesIntercambio::Ejecutar(argc, argv);
    PrepararSinVentana(argc, argv);
    cAplicacion app(argc, argv);
    app.setApplicationName(QStringLiteral("Veldoria"));
    if (const auto estado = OrdenesImprimir(QCoreApplication::arguments()))
        return *estado;
    InstalarAvisoFalloEnCaja();
    app.setFont(QFont(QStringLiteral("Liberation Sans"), 9));
    bool sigue = false;
    Proceso::Protegido([&] { sigue = Main(); });
    if (!sigue)
        return 0;
    return app.exec();
}
