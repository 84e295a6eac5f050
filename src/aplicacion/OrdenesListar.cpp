#include "aplicacion/OrdenesListar.h"

#include "aplicacion/FechaSeleccion.h"
#include "aplicacion/LineaDeOrdenes.h"
#include "aplicacion/OrdenesIntercambio.h"
#include "catalogo/Catalogo.h"
#include "plataforma/General.h"
#include "registros/declaracion/TablaDeclaraciones.h"

#include <QCommandLineParser>
#include <QSaveFile>
#include <QTextStream>
#include <optional>

namespace {

constexpr int kHecho = 0;
constexpr int kImposible = 2;

// A date of the selection as yyyymmdd; 0 when the option is not given.
std::optional<int32_t> Fecha(const LineaDeOrdenes::Llamada& llamada, const QString& opcion)
{
    if (!llamada.linea.isSet(opcion))
        return 0;
    const QString texto = llamada.linea.value(opcion);
    const std::optional<int32_t> fecha = FechaSeleccion(texto);
    if (!fecha)
        llamada.errores << FechaSeleccionNoValida(texto) << Qt::endl;
    return fecha;
}

int Listar(const LineaDeOrdenes::Llamada& llamada)
{
    FiltroDeclaraciones filtro;
    const std::optional<int32_t> desde = Fecha(llamada, QStringLiteral("desde"));
    const std::optional<int32_t> hasta = Fecha(llamada, QStringLiteral("hasta"));
    if (!desde || !hasta)
        return kImposible;
    filtro.desde = *desde;
    filtro.hasta = *hasta;
    filtro.dni = llamada.linea.value(QStringLiteral("dni"));
    const std::vector<FilaDeclaracion> filas = ListarDeclaraciones(mdbmod, filtro);
    const QString fichero = llamada.linea.value(QStringLiteral("listar"));
    QSaveFile destino(fichero);
    if (!destino.open(QIODevice::WriteOnly) || destino.write(TablaDeclaracionesCsv(filas)) < 0
        || !destino.commit()) {
        llamada.errores << TextoSegunIdioma(QStringLiteral("No se ha podido escribir el fichero "),
                                            QStringLiteral("Ezin izan da fitxategia idatzi: "))
                        << fichero << Qt::endl;
        return kImposible;
    }
    llamada.salida << filas.size()
                   << TextoSegunIdioma(QStringLiteral(" declaración(es): "),
                                       QStringLiteral(" aitorpen: "))
                   << fichero << Qt::endl;
    return kHecho;
}

}  // namespace

namespace OrdenesListar {

int Listado(const LineaDeOrdenes::Llamada& llamada)
{
    if (!llamada.linea.positionalArguments().isEmpty()) {
        llamada.errores << TextoSegunIdioma(QStringLiteral("Uso: %1 %2"),
                                            QStringLiteral("Erabilera: %1 %2"))
                               .arg(llamada.programa,
                                    QStringLiteral("--listar FICHERO.csv [--desde DD/MM/AAAA] "
                                                   "[--hasta DD/MM/AAAA] [--dni NIF]"))
                        << '\n'
                        << LineaDeOrdenes::Pista(llamada.programa) << Qt::endl;
        return kImposible;
    }
    return OrdenesIntercambio::ConAlmacen(llamada, Listar);
}

}  // namespace OrdenesListar
