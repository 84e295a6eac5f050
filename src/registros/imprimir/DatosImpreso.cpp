#include "registros/imprimir/DatosImpreso.h"

#include "plataforma/General.h"
#include "registros/declaracion/cDecDatos.h"
#include "registros/declaracion/cOperacion.h"
#include "registros/imprimir/cImOf.h"
#include "servicios/cDatosGeneral.h"
#include "valores/cFecha.h"

#include <array>

QString NombreMes(int mes)
{
    static const std::array<const char*, 12> kMeses{
        "Enero / Urtarrila", "Febrero / Otsaila",   "Marzo / Martxoa",
        "Abril / Apirila",   "Mayo / Maiatza",      "Junio / Ekaina",
        "Julio / Uztaila",   "Agosto / Abuztua",    "Septiembre / Iraila",
        "Octubre / Urria",   "Noviembre / Azaroa",  "Diciembre / Abendua"};
    if (mes < 1 || mes > 12)
        return {};
    return QString::fromLatin1(kMeses.at(static_cast<size_t>(mes - 1)));
}

QString SufijoDia(const QString& dia)
{
    static const QStringList kEan{"01", "05", "10", "21", "30"};
    static const QStringList kN{"04", "11", "14", "31"};
    if (kEan.contains(dia))
        return QStringLiteral("ean");
    if (kN.contains(dia))
        return QStringLiteral("n");
    return QStringLiteral("an");
}

QString FechaConSufijo()
{
    const QString vasca = cFecha::LongToString(ImOf().FECHAPRE, Idioma::Euskera);
    return vasca + SufijoDia(vasca.right(2));
}

QString ClaveFundamento()
{
    const QString& r = DecDatos().REDUCCION;
    if (r == QLatin1String("X"))
        return QStringLiteral("P8");
    if (r == QLatin1String("Y"))
        return QStringLiteral("P9");
    if (r == QLatin1String("Z"))
        return QStringLiteral("P10");
    return Operacion().T_IMPR;
}

QString NombreMunicipioMayus(const QString& codigo)
{
    cDatosGeneral svr;
    svr.mdblec = mdblec;
    return svr.ObtenNomMunicipio(codigo).toUpper();
}

QString NombreProvinciaMayus(const QString& codigo)
{
    cDatosGeneral svr;
    svr.mdblec = mdblec;
    return svr.ObtenNomProvincia(codigo).toUpper();
}
