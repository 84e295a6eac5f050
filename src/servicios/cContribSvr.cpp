#include "servicios/cContribSvr.h"

#include "catalogo/IdsCatalogo.h"
#include "plataforma/Fallo.h"
#include "servicios/ArreglosPartes.h"
#include "servicios/PosicionesContribuyente.h"
#include "servicios/CodigoPostal.h"
#include "servicios/Conexion.h"
#include "servicios/ContadoresPartes.h"
#include "servicios/GuardadoContribuyente.h"
#include "servicios/ReferenciaPartes.h"
#include "servicios/TablaParte.h"
#include "servicios/ValidacionPartes.h"
#include "servicios/ValidarDniOficial.h"
#include "servicios/VeredictosPartes.h"
#include "servicios/VersionFila.h"

#include <QStringList>
#include <limits>

using namespace ArreglosPartes;
namespace P = PosContribuyente;

namespace {

QString origen(const char* metodo)
{
    return QStringLiteral("svrveldoV1.cContribSvr.") + QLatin1String(metodo);
}

const QStringList& kColumnas = GuardadoContribuyente::Columnas();
// A stored row lacks the code: its value of position p stands at p - kPrimera.
constexpr int kPrimera = P::TIPODNI;

const TablaParte& tabla()
{
    return GuardadoContribuyente::Tabla();
}

QString condiciones(const Arreglo& criterios, QVariantList& valores)
{
    return CondicionesBusqueda(criterios, QStringLiteral("c.NOMBREC"), QStringLiteral("c.DNIC"),
                               valores);
}

QString contadores()
{
    return ContadoresPartes::SqlComoSujeto(QStringLiteral("c.CSCO")) + QStringLiteral(", ")
        + ContadoresPartes::SqlComoTransmitente(QStringLiteral("c.CSCO"));
}


}  // namespace

Resultado<void> cContribSvr::ValidarDatosContribuyentes(const Contribuyente& c) const
{
    if (const int16_t regla = ReglasContribuyente(c); regla != VeredictoContribuyente::Valido)
        return VeredictosPartes::ValidacionContribuyente(regla);
    return {};
}

bool cContribSvr::ValidarDniOficial(const QString& dni) const
{
    return EsNifOficialValido(dni);
}

QList<HallazgoImportacion> cContribSvr::ValidarDatosImportar(const LineaContribuyente& linea) const
{
    const QString org = origen("ValidarDatosImportar");
    return ErroresImportacion(linea, ReferenciaPartes::Consultas(mdblec, org));
}

bool cContribSvr::ValidarTipoDniDomicilio(int32_t csco) const
{
    const QString org = origen("ValidarTipoDniDomicilio");
    const QSqlDatabase db = Conexion::Modificable(mdbmod, org);
    QSqlQuery q = Ejecutar(db,
                           QStringLiteral("SELECT TIPODNI, TIPODOMI FROM CONTRIBUYENTES "
                                          "WHERE CSCO = ?"),
                           {csco}, org);
    return q.next() && q.value(0).toString() == QLatin1String("O")
        && q.value(1).toString() == QLatin1String("N");
}

int32_t cContribSvr::ExisteContribuyente(const QString& dni) const
{
    const QString org = origen("ExisteContribuyente");
    return tabla().CodigoPorDni(Conexion::Modificable(mdbmod, org), dni, org);
}

int32_t cContribSvr::ObtenerCodigoContribuyente(const QString& dni) const
{
    const QString org = origen("ObtenerCodigoContribuyente");
    return tabla().CodigoPorDni(Conexion::Modificable(mdbmod, org), dni, org);
}

std::optional<Contribuyente> cContribSvr::CargarContribuyente(int32_t csco) const
{
    const QString org = origen("CargarContribuyente");
    const QSqlDatabase db = Conexion::Modificable(mdbmod, org);
    QSqlQuery q = Ejecutar(db,
                           QStringLiteral("SELECT %1, %2, c.%3 FROM CONTRIBUYENTES c "
                                          "WHERE c.CSCO = ?")
                               .arg(kColumnas.join(QStringLiteral(", ")), contadores(),
                                    VersionFila::kColumna),
                           {csco}, org);
    if (!q.next())
        return std::nullopt;
    // The query's columns: those of the stored row, then the two counters and the version.
    const auto texto = [&q](int p) { return q.value(p - kPrimera).toString(); };
    Contribuyente c;
    c.CSCO = csco;
    c.TIPODNI = texto(P::TIPODNI);
    c.DNIC = texto(P::DNIC);
    c.NOMBREC = texto(P::NOMBREC);
    c.VIAC = texto(P::VIAC);
    c.DOMICILIOC = texto(P::DOMICILIOC);
    c.NUMEROC = q.value(P::NUMEROC - kPrimera).toInt();
    c.LETRAC = texto(P::LETRAC);
    c.ESCALERAC = texto(P::ESCALERAC);
    c.PISOC = texto(P::PISOC);
    c.MANOC = texto(P::MANOC);
    c.TIPODOMI = texto(P::TIPODOMI);
    c.PAIS = texto(P::PAIS);
    c.CODPROVC = texto(P::CODPROVC);
    c.NOMPROVC = texto(P::NOMPROVC);
    c.CODPOSC = texto(P::CODPOSC);
    c.CODMUNC = texto(P::CODMUNC);
    c.NOMMUNC = texto(P::NOMMUNC);
    c.NUMSP = q.value(P::NUMSP - kPrimera).toDouble();
    c.NUMTR = q.value(P::NUMTR - kPrimera).toDouble();
    c.VERSION = q.value(P::NUMTR - kPrimera + 1).toLongLong();
    return c;
}

Resultado<Contribuyente> cContribSvr::GuardarContribuyente(const Contribuyente& c,
                                                           Sobrescritura sobre) const
{
    return guardar(c, Modo::PorCodigo, sobre);
}

Resultado<Contribuyente> cContribSvr::GuardarContribuyente(const Contribuyente& c,
                                                           bool sustituir,
                                                           Sobrescritura sobre) const
{
    return guardar(c, sustituir ? Modo::Sustituir : Modo::Anadir, sobre);
}

Resultado<Contribuyente> cContribSvr::guardar(const Contribuyente& c, Modo modo,
                                              Sobrescritura sobre) const
{
    const QString org = origen("GuardarContribuyente");
    const QSqlDatabase db = Conexion::Modificable(mdbmod, org);
    Transaccion transaccion(db, org);
    AccesoPreparado acceso(tabla(), db, org);
    const Resultado<TitularParte> fila = GuardadoContribuyente::Guardar(acceso, c, modo, sobre, org);
    if (!fila)
        return fila.veredicto();
    // The saved value: its code (a new contributor's is the one the store gave the insert)
    // and the row's new version.
    Contribuyente guardado = c;
    guardado.CSCO = fila->codigo;
    guardado.VERSION = fila->version;
    transaccion.confirmar();
    return guardado;
}

bool cContribSvr::BorrarContribuyente(int32_t csco) const
{
    const QString org = origen("BorrarContribuyente");
    const QSqlDatabase db = Conexion::Modificable(mdbmod, org);
    Transaccion transaccion(db, org);
    if (ContadoresPartes::ComoSujeto(db, csco, org) > 0
        || ContadoresPartes::ComoTransmitente(db, csco, org) > 0)
        return false;
    QSqlQuery q = Ejecutar(db, QStringLiteral("DELETE FROM CONTRIBUYENTES WHERE CSCO = ?"), {csco},
                           org);
    const bool borrado = q.numRowsAffected() > 0;
    transaccion.confirmar();
    return borrado;
}

DeclaracionesContribuyente cContribSvr::ObtenerNumspNumtr(int32_t csco) const
{
    const QString org = origen("ObtenerNumspNumtr");
    const QSqlDatabase db = Conexion::Modificable(mdbmod, org);
    return {static_cast<int32_t>(ContadoresPartes::ComoSujeto(db, csco, org)),
            static_cast<int32_t>(ContadoresPartes::ComoTransmitente(db, csco, org))};
}

int32_t cContribSvr::dameResultadoBusqueda(const Arreglo& criterios, Arreglo2D& datos,
                                           uint8_t orden) const
{
    const QString org = origen("dameResultadoBusqueda");
    // The rows of an earlier answer go before the new ones are read.
    datos.clear();
    const QHash<QString, QString> municipios = ReferenciaPartes::MunicipiosTesoreria(mdblec, org);
    const QSqlDatabase db = Conexion::Modificable(mdbmod, org);
    QVariantList valores;
    const QString donde = condiciones(criterios, valores);
    QSqlQuery q = Ejecutar(db,
                           QStringLiteral("SELECT c.CSCO, c.NOMBREC, c.DNIC, c.DOMICILIOC, "
                                          "c.CODPROVC, c.CODMUNC, c.NOMMUNC, %1 "
                                          "FROM CONTRIBUYENTES c")
                                   .arg(contadores())
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
        f.contadores[1] = q.value(8).toInt();
        filas.push_back(std::move(f));
    }
    datos = ListaOrdenada(std::move(filas), orden, 2);
    return static_cast<int32_t>(datos[0].size());
}

int32_t cContribSvr::dameResultadoBusquedaTodo(const Arreglo& criterios, Arreglo2D& datos,
                                               uint8_t orden) const
{
    const QString org = origen("dameResultadoBusquedaTodo");
    // The rows of an earlier answer go before the new ones are read.
    datos.clear();
    const QSqlDatabase db = Conexion::Modificable(mdbmod, org);
    QVariantList valores;
    const QString donde = condiciones(criterios, valores);
    QStringList columnas;
    for (const QString& c : kColumnas)
        columnas << QStringLiteral("c.") + c;
    QSqlQuery q = Ejecutar(db,
                           QStringLiteral("SELECT c.CSCO, %1, %2 FROM CONTRIBUYENTES c")
                                   .arg(columnas.join(QStringLiteral(", ")), contadores())
                               + donde,
                           valores, org);
    // One column per position of the contributor's array; the query's columns stand at them.
    datos = Arreglo2D(P::Tamano);
    while (q.next()) {
        datos[P::CSCO] << q.value(P::CSCO).toInt();
        for (int p = P::TIPODNI; p < P::Tamano; ++p)
            datos[p] << q.value(p);
        datos[P::NUMEROC].last() = q.value(P::NUMEROC).toInt();
        datos[P::NUMSP].last() = q.value(P::NUMSP).toDouble();
        datos[P::NUMTR].last() = q.value(P::NUMTR).toDouble();
    }
    OrdenarFilas(datos, orden == 2 ? P::DNIC : P::NOMBREC, P::CSCO);
    return static_cast<int32_t>(datos[0].size());
}
