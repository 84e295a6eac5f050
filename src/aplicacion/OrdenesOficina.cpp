#include "aplicacion/OrdenesOficina.h"

#include "aplicacion/LineaDeOrdenes.h"
#include "catalogo/Catalogo.h"
#include "plataforma/Fallo.h"
#include "servicios/MotorAlmacenes.h"
#include "servicios/Oficina.h"

#include <QCommandLineParser>
#include <QTextStream>

namespace {

constexpr int kHecho = 0;
constexpr int kRechazo = 2;

}  // namespace

namespace OrdenesOficina {

int CrearOficina(const LineaDeOrdenes::Llamada& llamada)
{
    if (!llamada.linea.positionalArguments().isEmpty()) {
        llamada.errores << TextoSegunIdioma(QStringLiteral("Uso: %1 %2"),
                                            QStringLiteral("Erabilera: %1 %2"))
                               .arg(llamada.programa, QStringLiteral("--crear-oficina SERVICIO"))
                        << '\n'
                        << LineaDeOrdenes::Pista(llamada.programa) << Qt::endl;
        return kRechazo;
    }
    const QString servicio = llamada.linea.value(QStringLiteral("crear-oficina"));
    ElegirOficina(servicio);
    if (const QString aviso = AvisoMotorAlmacenes(); !aviso.isEmpty()) {
        llamada.errores << aviso << Qt::endl;
        return kRechazo;
    }
    try {
        const Oficina::Creacion creacion = Oficina::CrearEsquema(servicio);
        const Veredicto aviso = Oficina::Aviso(creacion, servicio);
        if (!Oficina::Lista(creacion)) {
            llamada.errores << aviso.mensaje << Qt::endl;
            return kRechazo;
        }
        llamada.salida << aviso.mensaje << Qt::endl;
        return kHecho;
    } catch (const cFallo& f) {
        // The server's faults are told in the user's words, the server named.
        llamada.errores << f.descripcion() << Qt::endl;
    }
    return kRechazo;
}

void ElegirDeLaLinea(const QCommandLineParser& linea)
{
    if (linea.isSet(QStringLiteral("oficina")))
        ElegirOficina(linea.value(QStringLiteral("oficina")));
}

}  // namespace OrdenesOficina
