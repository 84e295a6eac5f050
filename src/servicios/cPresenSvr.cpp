#include "servicios/cPresenSvr.h"

#include "servicios/ArreglosPartes.h"
#include "servicios/PosicionesPresentador.h"
#include "servicios/Conexion.h"
#include "servicios/ContadoresPartes.h"
#include "servicios/ReferenciaPartes.h"
#include "servicios/TablaParte.h"
#include "servicios/TextoGuardable.h"
#include "servicios/ValidacionPartes.h"
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
    {P::DNIP, 9, 26, "txtdnip", 330},
    {P::NOMBREP, 40, 27, "txtnombrep", 30},
    {P::VIAP, 2, 13, "txtviap"},
    {P::DOMICILIOP, 20, 19, "txtdomiciliop"},
    {P::LETRAP, 2, 21, "txtletrap"},
    {P::ESCALERAP, 2, 20, "txtescalerap"},
    {P::PISOP, 2, 23, "txtpisop"},
    {P::MANOP, 3, 24, "txtmanop"},
    {P::CODPROVP, kAnchoDeCifras, 10, "txtcodprovp"},
    {P::CODPOSP, kAnchoDeCifras, 25, "txtcodposp"},
    {P::CODMUNP, kAnchoDeCifras, 12, "txtcodmunp"},
    {P::NOMMUNP, 25, 14, "txtnommunp"},
    {P::TELEFONOP, 9, 194, "txttelefonop"},
};

const TablaParte& tabla()
{
    static const TablaParte t(QStringLiteral("PRESENTADORES"), QStringLiteral("CSPR"),
                              QStringLiteral("DNIP"), kColumnas);
    return t;
}

}  // namespace

int16_t cPresenSvr::ValidarDatosPresentador(const Arreglo& datos) const
{
    return ReglasPresentador(datos);
}

int16_t cPresenSvr::GuardarPresentador(const Arreglo& datos, Veredicto* rechazo,
                                       int64_t* version) const
{
    using namespace VeredictoGuardarPresentador;
    const QString org = origen("GuardarPresentador");
    if (Veredicto v = ComprobarTextos(datos, kTextos, Blancos::Recortados); !v.vacio()) {
        if (rechazo)
            *rechazo = std::move(v);
        return TextoRechazado;
    }
    const QVariantList fila = filaGuardada(datos, org);
    const int32_t cspr =
        EnteroGuardado(datos, P::CSPR, std::numeric_limits<int32_t>::max(), "CSPR", org);
    const QString dni = fila[P::DNIP - kPrimera].toString();

    const QSqlDatabase db = Conexion::Modificable(mdbmod, org);
    Transaccion transaccion(db, org);
    const int32_t titular = tabla().CodigoPorDni(db, dni, org);
    const int64_t nueva = VersionFila::Nueva();
    if (cspr == 0) {
        if (titular != 0)
            return DniExistente;
        tabla().Insertar(db, 0, fila, nueva, org);
    } else {
        if (titular != 0 && titular != cspr)
            return DniDeOtro;
        QSqlQuery actual = Ejecutar(db, QStringLiteral("SELECT DNIP FROM PRESENTADORES WHERE CSPR = ?"),
                                    {cspr}, org);
        if (!actual.next()) {
            if (version)
                return Borrado;
            tabla().Insertar(db, cspr, fila, nueva, org);
        } else {
            // The declarations copy the presenter's number: once one names him it stays. A
            // change of case only is the same number (the column ignores case).
            const bool otroDni =
                actual.value(0).toString().compare(dni, Qt::CaseInsensitive) != 0;
            if (otroDni && ContadoresPartes::ComoPresentador(db, cspr, org) > 0)
                return DniEnDeclaraciones;
            if (!version) {
                tabla().Actualizar(db, cspr, fila, nueva, org);
            } else {
                switch (tabla().ActualizarVigente(db, cspr, fila, *version, nueva, org)) {
                case Vigencia::Cambiada:
                    return Cambiado;
                case Vigencia::Borrada:
                    return Borrado;
                case Vigencia::Vigente:
                    break;
                }
            }
        }
    }
    transaccion.confirmar();
    if (version)
        *version = nueva;
    return Guardado;
}

void cPresenSvr::CargarPresentador(int32_t cspr, Arreglo& datos, int64_t* version) const
{
    const QString org = origen("CargarPresentador");
    const QSqlDatabase db = Conexion::Modificable(mdbmod, org);
    QSqlQuery q = Ejecutar(db,
                           QStringLiteral("SELECT %1, %2 FROM PRESENTADORES WHERE CSPR = ?")
                               .arg(kColumnas.join(QStringLiteral(", ")), VersionFila::kColumna),
                           {cspr}, org);
    datos.clear();
    if (version)
        *version = 0;
    if (!q.next())
        return;
    if (version)
        *version = q.value(int(kColumnas.size())).toLongLong();
    datos.resize(P::Tamano);
    datos[P::CSPR] = cspr;
    for (int p = P::DNIP; p < P::Tamano; ++p)
        datos[p] = q.value(p - kPrimera);
    datos[P::NUMEROP] = q.value(P::NUMEROP - kPrimera).toInt();
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

int32_t cPresenSvr::dameResultadoBusqueda(const Arreglo& criterios, Arreglo2D& datos,
                                          uint8_t orden) const
{
    const QString org = origen("dameResultadoBusqueda");
    // The rows of an earlier answer go before the new ones are read.
    datos.clear();
    const QHash<QString, QString> municipios = ReferenciaPartes::MunicipiosTesoreria(mdblec, org);
    const QSqlDatabase db = Conexion::Modificable(mdbmod, org);
    QVariantList valores;
    const QString donde = CondicionesBusqueda(criterios, QStringLiteral("p.NOMBREP"),
                                              QStringLiteral("p.DNIP"), valores);
    QSqlQuery q = Ejecutar(db,
                           QStringLiteral("SELECT p.CSPR, p.NOMBREP, p.DNIP, p.DOMICILIOP, "
                                          "p.CODPROVP, p.CODMUNP, p.NOMMUNP, %1 "
                                          "FROM PRESENTADORES p")
                                   .arg(ContadoresPartes::SqlComoPresentador(QStringLiteral("p.CSPR")))
                               + donde,
                           valores, org);
    std::vector<FilaLista> filas;
    while (q.next()) {
        FilaLista f;
        f.codigo = q.value(0).toInt();
        f.nombre = q.value(1).toString();
        f.dni = q.value(2).toString();
        f.calle = q.value(3).toString();
        f.municipio = ReferenciaPartes::NombreMunicipio(municipios, q.value(4).toString(),
                                                        q.value(5).toString(),
                                                        q.value(6).toString());
        f.contadores[0] = q.value(7).toInt();
        filas.push_back(std::move(f));
    }
    datos = ListaOrdenada(std::move(filas), orden, 1);
    return static_cast<int32_t>(datos[0].size());
}
