#include "servicios/GuardadoContribuyente.h"

#include "catalogo/IdsCatalogo.h"
#include "plataforma/Fallo.h"
#include "servicios/ValorGuardado.h"
#include "servicios/TextoGuardable.h"
#include "servicios/VeredictosPartes.h"
#include "servicios/VersionFila.h"

using namespace ValorGuardado;

namespace {

// A text of the contributor as the store keeps it: the field, the width of its column, the
// label that names it, the control that shows it, and for the number and the name, which must
// hold a value, the record's own message for an empty one.
struct TextoContribuyente {
    QString Contribuyente::*campo;
    ColumnaTexto columna;
};

const TextoContribuyente kTextos[] = {
    {&Contribuyente::DNIC, {9, kIdDniCif, "txtdnic", kIdDniVacio}},
    {&Contribuyente::NOMBREC, {40, kIdEtiquetaApellidosNombre, "txtnombrec", kIdNombreVacio}},
    {&Contribuyente::VIAC, {2, kIdVia, "txtviac"}},
    {&Contribuyente::DOMICILIOC, {20, kIdDomicilio, "txtdomicilioc"}},
    {&Contribuyente::LETRAC, {2, kIdLetra, "txtletrac"}},
    {&Contribuyente::ESCALERAC, {2, kIdEscalera, "txtescalerac"}},
    {&Contribuyente::PISOC, {2, kIdPiso, "txtpisoc"}},
    {&Contribuyente::MANOC, {3, kIdMano, "txtmanoc"}},
    {&Contribuyente::PAIS, {20, kIdEtiquetaPais, "txtpais"}},
    {&Contribuyente::CODPROVC, {kAnchoDeCifras, kIdProvinciaPuntos, "txtcodprovc"}},
    {&Contribuyente::NOMPROVC, {20, kIdEtiquetaNombreProvincia, "txtnomprovc"}},
    {&Contribuyente::CODPOSC, {kAnchoDeCifras, kIdEtiquetaCodigoPostal, "txtcodposc"}},
    {&Contribuyente::CODMUNC, {kAnchoDeCifras, kIdMunicipioPuntos, "txtcodmunc"}},
    {&Contribuyente::NOMMUNC, {25, kIdEtiquetaNombreMunicipio, "txtnommunc"}},
};

// The store's door for the texts of a contributor: the verdict on the first text the store
// cannot keep as given; an empty verdict when every text can be kept.
Veredicto Puerta(const Contribuyente& c)
{
    for (const TextoContribuyente& t : kTextos) {
        Veredicto v = ComprobarTexto(c.*t.campo, t.columna, Blancos::Recortados);
        if (!v.vacio())
            return v;
    }
    return {};
}

// The position of the number in a stored row.
constexpr int kColumnaDni = 1;

}  // namespace

namespace GuardadoContribuyente {

QVariantList FilaGuardada(const Contribuyente& c, const QString& org)
{
    const QString tipoDni = TextoGuardado(c.TIPODNI, 1, "TIPODNI", org);
    const QString tipoDomi = TextoGuardado(c.TIPODOMI, 1, "TIPODOMI", org);
    if (tipoDni != QLatin1String("O") && tipoDni != QLatin1String("N"))
        throw cFallo(13, org, QStringLiteral("TIPODNI = '%1'").arg(tipoDni));
    if (tipoDomi != QLatin1String("N") && tipoDomi != QLatin1String("E"))
        throw cFallo(13, org, QStringLiteral("TIPODOMI = '%1'").arg(tipoDomi));
    const bool extranjero = tipoDomi == QLatin1String("E");
    // A national postal code has its five digits; a foreign one is kept as it was typed.
    const QString cp = extranjero ? CifrasGuardadas(c.CODPOSC, 5, "CODPOSC", org)
                                  : CodigoGuardado(c.CODPOSC, 5, "CODPOSC", org);
    return {
        tipoDni,
        TextoGuardado(c.DNIC, 9, "DNIC", org),
        TextoGuardado(c.NOMBREC, 40, "NOMBREC", org),
        TextoGuardado(c.VIAC, 2, "VIAC", org),
        TextoGuardado(c.DOMICILIOC, 20, "DOMICILIOC", org),
        EnteroGuardado(c.NUMEROC, 99999, "NUMEROC", org),
        TextoGuardado(c.LETRAC, 2, "LETRAC", org),
        TextoGuardado(c.ESCALERAC, 2, "ESCALERAC", org),
        TextoGuardado(c.PISOC, 2, "PISOC", org),
        TextoGuardado(c.MANOC, 3, "MANOC", org),
        tipoDomi,
        TextoGuardado(c.PAIS, 20, "PAIS", org),
        CodigoGuardado(c.CODPROVC, 2, "CODPROVC", org),
        TextoGuardado(c.NOMPROVC, 20, "NOMPROVC", org),
        cp,
        CodigoGuardado(c.CODMUNC, 3, "CODMUNC", org),
        TextoGuardado(c.NOMMUNC, 25, "NOMMUNC", org),
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

QString DniGuardado(const Contribuyente& c)
{
    return c.DNIC.trimmed();
}

Resultado<TitularParte> Guardar(AccesoTabla& tabla, const Contribuyente& c, Modo modo,
                                Sobrescritura sobre, const QString& org,
                                std::optional<TitularParte> conocido)
{
    if (Veredicto v = Puerta(c); !v.vacio())
        return v;
    const QVariantList fila = FilaGuardada(c, org);
    int32_t csco = modo == Modo::Anadir ? 0 : c.CSCO;
    if (csco < 0)
        throw cFallo(13, org, QStringLiteral("CSCO = '%1'").arg(csco));
    const QString dni = fila[kColumnaDni].toString();
    const TitularParte titular = conocido ? *conocido : tabla.TitularPorDni(dni);
    std::optional<int64_t> cargada;
    if (sobre == Sobrescritura::VersionCargada)
        cargada = c.VERSION;
    if (modo == Modo::Sustituir && csco == 0) {
        csco = titular.codigo;
        cargada = titular.version;
    }
    const int64_t nueva = VersionFila::Nueva();
    if (csco == 0) {
        if (titular.codigo != 0)
            return VeredictosPartes::Informacion(kIdAltaContribuyenteDniExistente);
        return TitularParte{tabla.Insertar(0, fila, nueva), nueva};
    }
    if (titular.codigo != 0 && titular.codigo != csco)
        return VeredictosPartes::Informacion(kIdModificarContribuyenteDniExistente);
    if (cargada) {
        if (const Vigencia v = tabla.ActualizarVigente(csco, fila, *cargada, nueva);
            v != Vigencia::Vigente)
            return VeredictosPartes::NoVigente(v);
    } else if (!tabla.Actualizar(csco, fila, nueva)) {
        tabla.Insertar(csco, fila, nueva);
    }
    return TitularParte{csco, nueva};
}

Resultado<TitularParte> AnadirSiNuevo(AccesoNativo& tabla, const Contribuyente& c,
                                      const QString& org)
{
    if (Veredicto v = Puerta(c); !v.vacio())
        return v;
    const QVariantList fila = FilaGuardada(c, org);
    if (tabla.InsertarSiNuevo(fila, VersionFila::Nueva()))
        return TitularParte{};
    return tabla.TitularPorDni(fila[kColumnaDni].toString());
}

}  // namespace GuardadoContribuyente
