#include "servicios/cPresenSvr.h"

#include "catalogo/IdsCatalogo.h"
#include "servicios/Conexion.h"
#include "servicios/ContadoresPartes.h"
#include "servicios/ListasPartes.h"
#include "servicios/ReferenciaPartes.h"
#include "servicios/TablaParte.h"
#include "servicios/TextoGuardable.h"
#include "servicios/ValidacionPartes.h"
#include "servicios/ValorGuardado.h"
#include "servicios/VeredictosPartes.h"
#include "servicios/VersionFila.h"

#include <QStringList>
#include <algorithm>
#include <limits>

using namespace ValorGuardado;

namespace {

QString origen(const char* metodo)
{
    return QStringLiteral("svrveldoV1.cPresenSvr.") + QLatin1String(metodo);
}

// The stored columns, in the order of the stored row (filaGuardada).
const QStringList kColumnas = {
    QStringLiteral("DNIP"),      QStringLiteral("NOMBREP"),   QStringLiteral("VIAP"),
    QStringLiteral("DOMICILIOP"), QStringLiteral("NUMEROP"),  QStringLiteral("LETRAP"),
    QStringLiteral("ESCALERAP"), QStringLiteral("PISOP"),     QStringLiteral("MANOP"),
    QStringLiteral("CODPROVP"),  QStringLiteral("CODPOSP"),   QStringLiteral("CODMUNP"),
    QStringLiteral("NOMMUNP"),   QStringLiteral("TELEFONOP"),
};
// The number's place in a stored row.
constexpr int kColumnaDni = 0;

QVariantList filaGuardada(const Presentador& p, const QString& org)
{
    return {
        TextoGuardado(p.DNIP, 9, "DNIP", org),
        TextoGuardado(p.NOMBREP, 40, "NOMBREP", org),
        TextoGuardado(p.VIAP, 2, "VIAP", org),
        TextoGuardado(p.DOMICILIOP, 20, "DOMICILIOP", org),
        EnteroGuardado(p.NUMEROP, 99999, "NUMEROP", org),
        TextoGuardado(p.LETRAP, 2, "LETRAP", org),
        TextoGuardado(p.ESCALERAP, 2, "ESCALERAP", org),
        TextoGuardado(p.PISOP, 2, "PISOP", org),
        TextoGuardado(p.MANOP, 3, "MANOP", org),
        CodigoGuardado(p.CODPROVP, 2, "CODPROVP", org),
        CodigoGuardado(p.CODPOSP, 5, "CODPOSP", org),
        CodigoGuardado(p.CODMUNP, 3, "CODMUNP", org),
        TextoGuardado(p.NOMMUNP, 25, "NOMMUNP", org),
        CifrasGuardadas(p.TELEFONOP, 9, "TELEFONOP", org),
    };
}

// A text of the presenter as the store keeps it (see the contributor's store). An empty
// number is, for a presenter, a wrong one.
struct TextoPresentador {
    QString Presentador::*campo;
    ColumnaTexto columna;
};

const TextoPresentador kTextos[] = {
    {&Presentador::DNIP, {9, kIdDniCif, "txtdnip", kIdDniCifErroneoODigitoControl}},
    {&Presentador::NOMBREP, {40, kIdEtiquetaApellidosNombre, "txtnombrep", kIdNombreVacio}},
    {&Presentador::VIAP, {2, kIdVia, "txtviap"}},
    {&Presentador::DOMICILIOP, {20, kIdDomicilio, "txtdomiciliop"}},
    {&Presentador::LETRAP, {2, kIdLetra, "txtletrap"}},
    {&Presentador::ESCALERAP, {2, kIdEscalera, "txtescalerap"}},
    {&Presentador::PISOP, {2, kIdPiso, "txtpisop"}},
    {&Presentador::MANOP, {3, kIdMano, "txtmanop"}},
    {&Presentador::CODPROVP, {kAnchoDeCifras, kIdProvinciaPuntos, "txtcodprovp"}},
    {&Presentador::CODPOSP, {kAnchoDeCifras, kIdEtiquetaCodigoPostal, "txtcodposp"}},
    {&Presentador::CODMUNP, {kAnchoDeCifras, kIdMunicipioPuntos, "txtcodmunp"}},
    {&Presentador::NOMMUNP, {25, kIdEtiquetaNombreMunicipio, "txtnommunp"}},
    {&Presentador::TELEFONOP, {9, kIdEtiquetaTelefono, "txttelefonop"}},
};

// The store's door for the texts of a presenter: the verdict on the first text the store
// cannot keep as given; an empty verdict when every text can be kept.
Veredicto puerta(const Presentador& p)
{
    for (const TextoPresentador& t : kTextos) {
        Veredicto v = ComprobarTexto(p.*t.campo, t.columna, Blancos::Recortados);
        if (!v.vacio())
            return v;
    }
    return {};
}

const TablaParte& tabla()
{
    static const TablaParte t(QStringLiteral("PRESENTADORES"), QStringLiteral("CSPR"),
                              QStringLiteral("DNIP"), kColumnas);
    return t;
}

}  // namespace

Resultado<void> cPresenSvr::ValidarDatosPresentador(const Presentador& p) const
{
    return ReglasPresentador(p);
}

Resultado<Presentador> cPresenSvr::GuardarPresentador(const Presentador& p,
                                                      Sobrescritura sobre) const
{
    const QString org = origen("GuardarPresentador");
    if (Veredicto v = puerta(p); !v.vacio())
        return v;
    const QVariantList fila = filaGuardada(p, org);
    const int32_t cspr = p.CSPR;
    const bool vigilada = sobre == Sobrescritura::VersionCargada;
    const QString dni = fila[kColumnaDni].toString();

    const QSqlDatabase db = Conexion::Modificable(mdbmod, org);
    Transaccion transaccion(db, org);
    const int32_t titular = tabla().CodigoPorDni(db, dni, org);
    const int64_t nueva = VersionFila::Nueva();
    if (cspr == 0) {
        if (titular != 0)
            return VeredictosPartes::Informacion(kIdAltaPresentadorDniExistente);
        tabla().Insertar(db, 0, fila, nueva, org);
    } else {
        if (titular != 0 && titular != cspr)
            return VeredictosPartes::Informacion(kIdModificarPresentadorDniExistente);
        QSqlQuery actual = Ejecutar(db, QStringLiteral("SELECT DNIP FROM PRESENTADORES WHERE CSPR = ?"),
                                    {cspr}, org);
        if (!actual.next()) {
            if (vigilada)
                return VeredictosPartes::NoVigente(Vigencia::Borrada);
            tabla().Insertar(db, cspr, fila, nueva, org);
        } else {
            // The declarations copy the presenter's number: once one names him it stays. A
            // change of case only is the same number (the column ignores case).
            const bool otroDni =
                actual.value(0).toString().compare(dni, Qt::CaseInsensitive) != 0;
            if (otroDni && ContadoresPartes::ComoPresentador(db, cspr, org) > 0)
                return VeredictosPartes::Informacion(kIdDniPresentadorEnDeclaraciones);
            if (!vigilada) {
                tabla().Actualizar(db, cspr, fila, nueva, org);
            } else if (const Vigencia v =
                           tabla().ActualizarVigente(db, cspr, fila, p.VERSION, nueva, org);
                       v != Vigencia::Vigente) {
                return VeredictosPartes::NoVigente(v);
            }
        }
    }
    // A new presenter's code is the store's to give: it is read back in the same transaction.
    Presentador guardado = p;
    guardado.CSPR = cspr != 0 ? cspr : tabla().CodigoPorDni(db, dni, org);
    guardado.VERSION = nueva;
    transaccion.confirmar();
    return guardado;
}

std::optional<Presentador> cPresenSvr::CargarPresentador(int32_t cspr) const
{
    const QString org = origen("CargarPresentador");
    const QSqlDatabase db = Conexion::Modificable(mdbmod, org);
    QSqlQuery q = Ejecutar(db,
                           QStringLiteral("SELECT %1, %2 FROM PRESENTADORES WHERE CSPR = ?")
                               .arg(kColumnas.join(QStringLiteral(", ")), VersionFila::kColumna),
                           {cspr}, org);
    if (!q.next())
        return std::nullopt;
    // The query's columns: those of the stored row, each read by its name, then the version.
    const auto valor = [&q](const char* columna) {
        return q.value(int(kColumnas.indexOf(QLatin1String(columna))));
    };
    const auto texto = [&valor](const char* columna) { return valor(columna).toString(); };
    Presentador p;
    p.CSPR = cspr;
    p.DNIP = texto("DNIP");
    p.NOMBREP = texto("NOMBREP");
    p.VIAP = texto("VIAP");
    p.DOMICILIOP = texto("DOMICILIOP");
    p.NUMEROP = valor("NUMEROP").toInt();
    p.LETRAP = texto("LETRAP");
    p.ESCALERAP = texto("ESCALERAP");
    p.PISOP = texto("PISOP");
    p.MANOP = texto("MANOP");
    p.CODPROVP = texto("CODPROVP");
    p.CODPOSP = texto("CODPOSP");
    p.CODMUNP = texto("CODMUNP");
    p.NOMMUNP = texto("NOMMUNP");
    p.TELEFONOP = texto("TELEFONOP");
    p.VERSION = q.value(int(kColumnas.size())).toLongLong();
    return p;
}

bool cPresenSvr::BorrarPresentador(int32_t cspr) const
{
    const QString org = origen("BorrarPresentador");
    const QSqlDatabase db = Conexion::Modificable(mdbmod, org);
    Transaccion transaccion(db, org);
    if (ContadoresPartes::ComoPresentador(db, cspr, org) > 0)
        return false;
    QSqlQuery q =
        Ejecutar(db, QStringLiteral("DELETE FROM PRESENTADORES WHERE CSPR = ?"), {cspr}, org);
    const bool borrado = q.numRowsAffected() > 0;
    transaccion.confirmar();
    return borrado;
}

int32_t cPresenSvr::ObtenerCodigoPresentador(const QString& dni) const
{
    const QString org = origen("ObtenerCodigoPresentador");
    return tabla().CodigoPorDni(Conexion::Modificable(mdbmod, org), dni, org);
}

int16_t cPresenSvr::NDeclaPresentador(int32_t cspr) const
{
    const QString org = origen("NDeclaPresentador");
    const int64_t n = ContadoresPartes::ComoPresentador(Conexion::Modificable(mdbmod, org), cspr, org);
    return static_cast<int16_t>(std::min<int64_t>(n, std::numeric_limits<int16_t>::max()));
}

int32_t cPresenSvr::NumDeclaPresentador(int32_t cspr) const
{
    const QString org = origen("NumDeclaPresentador");
    return static_cast<int32_t>(
        ContadoresPartes::ComoPresentador(Conexion::Modificable(mdbmod, org), cspr, org));
}

QList<FilaPresentador> cPresenSvr::dameResultadoBusqueda(const CriteriosParte& criterios,
                                                        OrdenParte orden) const
{
    const QString org = origen("dameResultadoBusqueda");
    const QHash<QString, QString> municipios = ReferenciaPartes::MunicipiosTesoreria(mdblec, org);
    const QSqlDatabase db = Conexion::Modificable(mdbmod, org);
    QVariantList valores;
    const QString donde = ListasPartes::CondicionesBusqueda(criterios, QStringLiteral("p.NOMBREP"),
                                                            QStringLiteral("p.DNIP"), valores);
    QSqlQuery q = Ejecutar(db,
                           QStringLiteral("SELECT p.CSPR, p.NOMBREP, p.DNIP, p.DOMICILIOP, "
                                          "p.CODPROVP, p.CODMUNP, p.NOMMUNP, %1 "
                                          "FROM PRESENTADORES p")
                                   .arg(ContadoresPartes::SqlComoPresentador(QStringLiteral("p.CSPR")))
                               + donde,
                           valores, org);
    QList<FilaPresentador> filas;
    while (q.next()) {
        FilaPresentador f;
        f.CSPR = q.value(0).toInt();
        f.NOMBREP = q.value(1).toString();
        f.DNIP = q.value(2).toString();
        f.DOMICILIOP = q.value(3).toString();
        f.MUNICIPIO = ReferenciaPartes::NombreMunicipio(municipios, q.value(4).toString(),
                                                        q.value(5).toString(),
                                                        q.value(6).toString());
        f.NUMDECLARACIONES = q.value(7).toInt();
        filas.append(std::move(f));
    }
    const auto codigo = [](const FilaPresentador& f) { return f.CSPR; };
    if (orden == OrdenParte::Dni)
        ListasPartes::Ordenar(
            filas, [](const FilaPresentador& f) -> const QString& { return f.DNIP; }, codigo);
    else
        ListasPartes::Ordenar(
            filas, [](const FilaPresentador& f) -> const QString& { return f.NOMBREP; }, codigo);
    return filas;
}
