#include "aplicacion/Veldo.h"

#include "aplicacion/Arranque.h"
#include "aplicacion/LineaDeOrdenes.h"
#include "paneles/dialogos/AvisoFallo.h"
#include "plataforma/Fallo.h"
#include "plataforma/General.h"
#include "plataforma/Proceso.h"
#include "servicios/Conexion.h"

#include <QApplication>
#include <QCoreApplication>
#include <QFont>
#include <QFontDatabase>
#include <cstdio>
#include <cstring>
#include <optional>

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

// Whether no window can be seen: Qt's platforms without a screen, or none asked for and no
// display to open one on.
bool sinPantalla(int argc, char** argv)
{
    QByteArray plataforma = qgetenv("QT_QPA_PLATFORM");
    for (int i = 1; i + 1 < argc; ++i)
        if (std::strcmp(argv[i], "-platform") == 0 || std::strcmp(argv[i], "--platform") == 0)
            plataforma = argv[i + 1];
    if (!plataforma.isEmpty())
        return plataforma.startsWith("offscreen") || plataforma.startsWith("minimal");
    return qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

// Where no window can be seen, stores the program cannot work on are told on the standard
// error before any window is asked for, and the program ends with status 2. Answers nothing
// when start-up may go on.
std::optional<int> almacenesSinPantalla(int argc, char** argv)
{
    QCoreApplication nucleo(argc, argv);
    // The program's name, as the window's run has it: the user's settings are found under it.
    QCoreApplication::setApplicationName(QStringLiteral("Veldoria"));
    ConfigurarRutas(CarpetaPrograma(), CarpetaDatos());
    QString aviso;
    try {
        aviso = PrepararAlmacenes();
    } catch (const cFallo& f) {
        aviso = f.origen() + QLatin1Char('\n') + f.descripcion();
    }
    if (aviso.isEmpty())
        return std::nullopt;
    std::fprintf(stderr, "%s\n", qPrintable(aviso));
    return 2;
}
}

int EjecutarVeldo(int argc, char** argv)
{
    if (const std::optional<int> estado = LineaDeOrdenes::Atender(argc, argv)) {
        Conexion::CerrarTodas();
        return *estado;
    }
    if (sinPantalla(argc, argv))
        if (const std::optional<int> estado = almacenesSinPantalla(argc, argv))
            return *estado;
    cAplicacion app(argc, argv);
    app.setApplicationName(QStringLiteral("Veldoria"));
    app.setDesktopFileName(QStringLiteral("org.veldoria.Veldoria"));
    InstalarAvisoFalloEnCaja();
    app.setFont(QFont(QStringLiteral("Liberation Sans"), 9));
    bool sigue = false;
    Proceso::Protegido([&] { sigue = Main(); });
    // An end asked for during start-up (no store to work on) has its own status; without one,
    // a start-up that went no further ends quietly.
    if (const std::optional<int> fin = Proceso::FinPedido())
        return Proceso::Salida(*fin);
    if (!sigue)
        return 0;
    const int estado = app.exec();
    return Proceso::Salida(Proceso::FinPedido().value_or(estado));
}
