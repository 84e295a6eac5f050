#include "servicios/cPresenSvr.h"

#include "catalogo/IdsCatalogo.h"
#include "servicios/ArreglosPartes.h"
#include "servicios/PosicionesPresentador.h"
#include "servicios/Conexion.h"
#include "servicios/ContadoresPartes.h"
#include "servicios/ListasPartes.h"
#include "servicios/ReferenciaPartes.h"
#include "servicios/TablaParte.h"
#include "servicios/TextoGuardable.h"
#include "servicios/ValidacionPartes.h"
#include "servicios/VeredictosPartes.h"
#include "servicios/VersionFila.h"

#include <QStringList>
#include <algorithm>
#include <limits>

using namespace ArreglosPartes;
namespace P = PosPresentador;

namespace {

QString origen(const char* metodo)
{
    return QStringLiteral("svrveldoV1.cPresenSvr.") + QLatin1String(metodo);
}

// The stored columns in the order of the save array, from P::DNIP to P::TELEFONOP.
const QStringList kColumnas = {
    QStringLiteral("DNIP"),      QStringLiteral("NOMBREP"),   QStringLiteral("VIAP"),
    QStringLiteral("DOMICILIOP"), QStringLiteral("NUMEROP"),  QStringLiteral("LETRAP"),
    QStringLiteral("ESCALERAP"), QStringLiteral("PISOP"),     QStringLiteral("MANOP"),
    QStringLiteral("CODPROVP"),  QStringLiteral("CODPOSP"),   QStringLiteral("CODMUNP"),
    QStringLiteral("NOMMUNP"),   QStringLiteral("TELEFONOP"),
};
// A stored row lacks the code: its value of position p stands at p - kPrimera.
constexpr int kPrimera = P::DNIP;

QVariantList filaGuardada(const Arreglo& a, const QString& org)
{
    return {
        TextoGuardado(a, P::DNIP, 9, "DNIP", org),
        TextoGuardado(a, P::NOMBREP, 40, "NOMBREP", org),
        TextoGuardado(a, P::VIAP, 2, "VIAP", org),
        TextoGuardado(a, P::DOMICILIOP, 20, "DOMICILIOP", org),
        EnteroGuardado(a, P::NUMEROP, 99999, "NUMEROP", org),
        TextoGuardado(a, P::LETRAP, 2, "LETRAP", org),
        TextoGuardado(a, P::ESCALERAP, 2, "ESCALERAP", org),
        TextoGuardado(a, P::PISOP, 2, "PISOP", org),
        TextoGuardado(a, P::MANOP, 3, "MANOP", org),
        CodigoGuardado(a, P::CODPROVP, 2, "CODPROVP", org),
        CodigoGuardado(a, P::CODPOSP, 5, "CODPOSP", org),
        CodigoGuardado(a, P::CODMUNP, 3, "CODMUNP", org),
        TextoGuardado(a, P::NOMMUNP, 25, "NOMMUNP", org),
        CifrasGuardadas(a, P::TELEFONOP, 9, "TELEFONOP", org),
    };
}

// The texts of a save array, as the store keeps them (see the contributor's store). An empty
// number is, for a presenter, a wrong one.
constexpr ColumnaTexto kTextos[] = {
    {P::DNIP, 9, kIdDniCif, "txtdnip", kIdDniCifErroneoODigitoControl},
    {P::NOMBREP, 40, kIdEtiquetaApellidosNombre, "txtnombrep", kIdNombreVacio},
    {P::VIAP, 2, kIdVia, "txtviap"},
    {P::DOMICILIOP, 20, kIdDomicilio, "txtdomiciliop"},
    {P::LETRAP, 2, kIdLetra, "txtletrap"},
    {P::ESCALERAP, 2, kIdEscalera, "txtescalerap"},
    {P::PISOP, 2, kIdPiso, "txtpisop"},
    {P::MANOP, 3, kIdMano, "txtmanop"},
    {P::CODPROVP, kAnchoDeCifras, kIdProvinciaPuntos, "txtcodprovp"},
    {P::CODPOSP, kAnchoDeCifras, kIdEtiquetaCodigoPostal, "txtcodposp"},
    {P::CODMUNP, kAnchoDeCifras, kIdMunicipioPuntos, "txtcodmunp"},
    {P::NOMMUNP, 25, kIdEtiquetaNombreMunicipio, "txtnommunp"},
    {P::TELEFONOP, 9, kIdEtiquetaTelefono, "txttelefonop"},
};

// The save array of a value, in the order of PosPresentador.
Arreglo arregloDe(const Presentador& p)
{
    Arreglo a(P::Tamano);
    a[P::CSPR] = p.CSPR;
    a[P::DNIP] = p.DNIP;
    a[P::NOMBREP] = p.NOMBREP;
    a[P::VIAP] = p.VIAP;
    a[P::DOMICILIOP] = p.DOMICILIOP;
    a[P::NUMEROP] = p.NUMEROP;
    a[P::LETRAP] = p.LETRAP;
    a[P::ESCALERAP] = p.ESCALERAP;
    a[P::PISOP] = p.PISOP;
    a[P::MANOP] = p.MANOP;
    a[P::CODPROVP] = p.CODPROVP;
    a[P::CODPOSP] = p.CODPOSP;
    a[P::CODMUNP] = p.CODMUNP;
    a[P::NOMMUNP] = p.NOMMUNP;
    a[P::TELEFONOP] = p.TELEFONOP;
    return a;
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
    const Arreglo datos = arregloDe(p);
    if (Veredicto v = ComprobarTextos(datos, kTextos, Blancos::Recortados); !v.vacio())
        return v;
    const QVariantList fila = filaGuardada(datos, org);
    const int32_t cspr = p.CSPR;
    const bool vigilada = sobre == Sobrescritura::VersionCargada;
    const QString dni = fila[P::DNIP - kPrimera].toString();

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
    // The query's columns: those of the stored row, then the version.
    const auto texto = [&q](int p) { return q.value(p - kPrimera).toString(); };
    Presentador p;
    p.CSPR = cspr;
    p.DNIP = texto(P::DNIP);
    p.NOMBREP = texto(P::NOMBREP);
    p.VIAP = texto(P::VIAP);
    p.DOMICILIOP = texto(P::DOMICILIOP);
    p.NUMEROP = q.value(P::NUMEROP - kPrimera).toInt();
    p.LETRAP = texto(P::LETRAP);
    p.ESCALERAP = texto(P::ESCALERAP);
    p.PISOP = texto(P::PISOP);
    p.MANOP = texto(P::MANOP);
    p.CODPROVP = texto(P::CODPROVP);
    p.CODPOSP = texto(P::CODPOSP);
    p.CODMUNP = texto(P::CODMUNP);
    p.NOMMUNP = texto(P::NOMMUNP);
    p.TELEFONOP = texto(P::TELEFONOP);
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
