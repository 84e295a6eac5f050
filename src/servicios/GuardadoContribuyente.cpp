#include "servicios/GuardadoContribuyente.h"

#include "catalogo/IdsCatalogo.h"
#include "plataforma/Fallo.h"
#include "servicios/ArreglosPartes.h"
#include "servicios/PosicionesContribuyente.h"
#include "servicios/TextoGuardable.h"
#include "servicios/VersionFila.h"

#include <limits>

using namespace ArreglosPartes;
namespace P = PosContribuyente;

namespace {

// The texts of a save array, as the store keeps them: the width of each column, the label that
// names its field, the field, and for the number and the name, which must hold a value, the
// record's own message for an empty one.
constexpr ColumnaTexto kTextos[] = {
    {P::DNIC, 9, kIdDniCif, "txtdnic", kIdDniVacio},
    {P::NOMBREC, 40, kIdEtiquetaApellidosNombre, "txtnombrec", kIdNombreVacio},
    {P::VIAC, 2, kIdVia, "txtviac"},
    {P::DOMICILIOC, 20, kIdDomicilio, "txtdomicilioc"},
    {P::LETRAC, 2, kIdLetra, "txtletrac"},
    {P::ESCALERAC, 2, kIdEscalera, "txtescalerac"},
    {P::PISOC, 2, kIdPiso, "txtpisoc"},
    {P::MANOC, 3, kIdMano, "txtmanoc"},
    {P::PAIS, 20, kIdEtiquetaPais, "txtpais"},
    {P::CODPROVC, kAnchoDeCifras, kIdProvinciaPuntos, "txtcodprovc"},
    {P::NOMPROVC, 20, kIdEtiquetaNombreProvincia, "txtnomprovc"},
    {P::CODPOSC, kAnchoDeCifras, kIdEtiquetaCodigoPostal, "txtcodposc"},
    {P::CODMUNC, kAnchoDeCifras, kIdMunicipioPuntos, "txtcodmunc"},
    {P::NOMMUNC, 25, kIdEtiquetaNombreMunicipio, "txtnommunc"},
};

// The store's door for the texts of a save array: the verdict TextoRechazado, with its message
// in `rechazo`, for a text the store cannot keep as given; Guardado when every text can be kept.
int16_t Puerta(const Arreglo& datos, Veredicto* rechazo)
{
    if (Veredicto v = ComprobarTextos(datos, kTextos, Blancos::Recortados); !v.vacio()) {
        if (rechazo)
            *rechazo = std::move(v);
        return VeredictoGuardarContribuyente::TextoRechazado;
    }
    return VeredictoGuardarContribuyente::Guardado;
}

}  // namespace

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

Arreglo ArregloDe(const Contribuyente& c)
{
    Arreglo a(P::Tamano);
    a[P::CSCO] = c.CSCO;
    a[P::TIPODNI] = c.TIPODNI;
    a[P::DNIC] = c.DNIC;
    a[P::NOMBREC] = c.NOMBREC;
    a[P::VIAC] = c.VIAC;
    a[P::DOMICILIOC] = c.DOMICILIOC;
    a[P::NUMEROC] = c.NUMEROC;
    a[P::LETRAC] = c.LETRAC;
    a[P::ESCALERAC] = c.ESCALERAC;
    a[P::PISOC] = c.PISOC;
    a[P::MANOC] = c.MANOC;
    a[P::TIPODOMI] = c.TIPODOMI;
    a[P::PAIS] = c.PAIS;
    a[P::CODPROVC] = c.CODPROVC;
    a[P::NOMPROVC] = c.NOMPROVC;
    a[P::CODPOSC] = c.CODPOSC;
    a[P::CODMUNC] = c.CODMUNC;
    a[P::NOMMUNC] = c.NOMMUNC;
    a[P::NUMSP] = c.NUMSP;
    a[P::NUMTR] = c.NUMTR;
    return a;
}

QString DniGuardado(const Arreglo& datos)
{
    return Texto(datos, P::DNIC).trimmed();
}

int16_t Guardar(AccesoTabla& tabla, const Arreglo& datos, Modo modo, const QString& org,
                std::optional<TitularParte> conocido, Veredicto* rechazo, int64_t* version)
{
    using namespace VeredictoGuardarContribuyente;
    if (const int16_t puerta = Puerta(datos, rechazo); puerta != Guardado)
        return puerta;
    const QVariantList fila = FilaGuardada(datos, org);
    int32_t csco = modo == Modo::Anadir
        ? 0
        : EnteroGuardado(datos, P::CSCO, std::numeric_limits<int32_t>::max(), "CSCO", org);
    const QString dni = fila[P::DNIC - P::TIPODNI].toString();
    const TitularParte titular = conocido ? *conocido : tabla.TitularPorDni(dni);
    std::optional<int64_t> cargada;
    if (version)
        cargada = *version;
    if (modo == Modo::Sustituir && csco == 0) {
        csco = titular.codigo;
        cargada = titular.version;
    }
    const int64_t nueva = VersionFila::Nueva();
    if (csco == 0) {
        if (titular.codigo != 0)
            return DniExistente;
        tabla.Insertar(0, fila, nueva);
    } else {
        if (titular.codigo != 0 && titular.codigo != csco)
            return DniDeOtro;
        if (cargada) {
            switch (tabla.ActualizarVigente(csco, fila, *cargada, nueva)) {
            case Vigencia::Cambiada:
                return Cambiado;
            case Vigencia::Borrada:
                return Borrado;
            case Vigencia::Vigente:
                break;
            }
        } else if (!tabla.Actualizar(csco, fila, nueva)) {
            tabla.Insertar(csco, fila, nueva);
        }
    }
    if (version)
        *version = nueva;
    return Guardado;
}

int16_t AnadirSiNuevo(AccesoNativo& tabla, const Arreglo& datos, const QString& org,
                      TitularParte& titular, Veredicto* rechazo)
{
    using namespace VeredictoGuardarContribuyente;
    titular = {};
    if (const int16_t puerta = Puerta(datos, rechazo); puerta != Guardado)
        return puerta;
    const QVariantList fila = FilaGuardada(datos, org);
    if (tabla.InsertarSiNuevo(fila, VersionFila::Nueva()))
        return Guardado;
    titular = tabla.TitularPorDni(fila[P::DNIC - P::TIPODNI].toString());
    return DniExistente;
}

}  // namespace GuardadoContribuyente
