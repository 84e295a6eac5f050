#include "servicios/GuardadoContribuyente.h"

#include "plataforma/Fallo.h"
#include "servicios/ArreglosPartes.h"
#include "servicios/PosicionesContribuyente.h"

#include <limits>

using namespace ArreglosPartes;
namespace P = PosContribuyente;

namespace GuardadoContribuyente {

QVariantList FilaGuardada(const Arreglo& a, const QString& org)
{
    const QString tipoDni = TextoGuardado(a, P::TIPODNI, 1, "TIPODNI", org);
    const QString tipoDomi = TextoGuardado(a, P::TIPODOMI, 1, "TIPODOMI", org);
    if (tipoDni != QLatin1String("O") && tipoDni != QLatin1String("N"))
        throw cFallo(13, org, QStringLiteral("TIPODNI = '%1'").arg(tipoDni));
    if (tipoDomi != QLatin1String("N") && tipoDomi != QLatin1String("E"))
        throw cFallo(13, org, QStringLiteral("TIPODOMI = '%1'").arg(tipoDomi));
    const bool extranjero = tipoDomi == QLatin1String("E");
    // A national postal code has its five digits; a foreign one is kept as it was typed.
    const QString cp = extranjero ? CifrasGuardadas(a, P::CODPOSC, 5, "CODPOSC", org)
                                  : CodigoGuardado(a, P::CODPOSC, 5, "CODPOSC", org);
    return {
        tipoDni,
        TextoGuardado(a, P::DNIC, 9, "DNIC", org),
        TextoGuardado(a, P::NOMBREC, 40, "NOMBREC", org),
        TextoGuardado(a, P::VIAC, 2, "VIAC", org),
        TextoGuardado(a, P::DOMICILIOC, 20, "DOMICILIOC", org),
        EnteroGuardado(a, P::NUMEROC, 99999, "NUMEROC", org),
        TextoGuardado(a, P::LETRAC, 2, "LETRAC", org),
        TextoGuardado(a, P::ESCALERAC, 2, "ESCALERAC", org),
        TextoGuardado(a, P::PISOC, 2, "PISOC", org),
        TextoGuardado(a, P::MANOC, 3, "MANOC", org),
        tipoDomi,
        TextoGuardado(a, P::PAIS, 20, "PAIS", org),
        CodigoGuardado(a, P::CODPROVC, 2, "CODPROVC", org),
        TextoGuardado(a, P::NOMPROVC, 20, "NOMPROVC", org),
        cp,
        CodigoGuardado(a, P::CODMUNC, 3, "CODMUNC", org),
        TextoGuardado(a, P::NOMMUNC, 25, "NOMMUNC", org),
    };
}

const QStringList& Columnas()
{
    static const QStringList columnas = {
        QStringLiteral("TIPODNI"),  QStringLiteral("DNIC"),       QStringLiteral("NOMBREC"),
        QStringLiteral("VIAC"),     QStringLiteral("DOMICILIOC"), QStringLiteral("NUMEROC"),
        QStringLiteral("LETRAC"),   QStringLiteral("ESCALERAC"),  QStringLiteral("PISOC"),
        QStringLiteral("MANOC"),    QStringLiteral("TIPODOMI"),   QStringLiteral("PAIS"),
        QStringLiteral("CODPROVC"), QStringLiteral("NOMPROVC"),   QStringLiteral("CODPOSC"),
        QStringLiteral("CODMUNC"),  QStringLiteral("NOMMUNC"),
    };
    return columnas;
}

const TablaParte& Tabla()
{
    static const TablaParte t(QStringLiteral("CONTRIBUYENTES"), QStringLiteral("CSCO"),
                              QStringLiteral("DNIC"), Columnas());
    return t;
}

QString DniGuardado(const Arreglo& datos)
{
    return Texto(datos, P::DNIC).trimmed();
}

int16_t Guardar(AccesoTabla& tabla, const Arreglo& datos, Modo modo, const QString& org,
                std::optional<int32_t> conocido)
{
    const QVariantList fila = FilaGuardada(datos, org);
    int32_t csco = modo == Modo::Anadir
        ? 0
        : EnteroGuardado(datos, P::CSCO, std::numeric_limits<int32_t>::max(), "CSCO", org);
    const QString dni = fila[P::DNIC - P::TIPODNI].toString();
    const int32_t titular = conocido ? *conocido : tabla.CodigoPorDni(dni);
    if (modo == Modo::Sustituir && csco == 0)
        csco = titular;
    if (csco == 0) {
        if (titular != 0)
            return 1;
        tabla.Insertar(0, fila);
    } else {
        if (titular != 0 && titular != csco)
            return 2;
        if (!tabla.Actualizar(csco, fila))
            tabla.Insertar(csco, fila);
    }
    return 0;
}

int32_t AnadirSiNuevo(AccesoNativo& tabla, const Arreglo& datos, const QString& org)
{
    const QVariantList fila = FilaGuardada(datos, org);
    if (tabla.InsertarSiNuevo(fila))
        return 0;
    return tabla.CodigoPorDni(fila[P::DNIC - P::TIPODNI].toString());
}

}  // namespace GuardadoContribuyente
