#include "servicios/cContribSvr.h"

#include "catalogo/IdsCatalogo.h"
#include "plataforma/Fallo.h"
#include "servicios/CodigoPostal.h"
#include "servicios/Conexion.h"
#include "servicios/ContadoresPartes.h"
#include "servicios/GuardadoContribuyente.h"
#include "servicios/ListasPartes.h"
#include "servicios/ReferenciaPartes.h"
#include "servicios/TablaParte.h"
#include "servicios/ValidacionPartes.h"
#include "servicios/ValidarDniOficial.h"
#include "servicios/VersionFila.h"

#include <QStringList>
#include <limits>


namespace {

QString origen(const char* metodo)
{
    return QStringLiteral("svrveldoV1.cContribSvr.") + QLatin1String(metodo);
}

const QStringList& kColumnas = GuardadoContribuyente::Columnas();

const TablaParte& tabla()
{
    return GuardadoContribuyente::Tabla();
}

QString condiciones(const CriteriosParte& criterios, QVariantList& valores)
{
    return ListasPartes::CondicionesBusqueda(criterios, QStringLiteral("c.NOMBREC"),
                                             QStringLiteral("c.DNIC"), valores);
}

QString contadores()
{
    return ContadoresPartes::SqlComoSujeto(QStringLiteral("c.CSCO")) + QStringLiteral(", ")
        + ContadoresPartes::SqlComoTransmitente(QStringLiteral("c.CSCO"));
}

// The rows of a list by name or by number (ListasPartes::Ordenar).
template <class Fila>
void ordenar(QList<Fila>& filas, OrdenParte orden)
{
    const auto codigo = [](const Fila& f) { return f.CSCO; };
    if (orden == OrdenParte::Dni)
        ListasPartes::Ordenar(filas, [](const Fila& f) -> const QString& { return f.DNIC; },
                              codigo);
    else
        ListasPartes::Ordenar(filas, [](const Fila& f) -> const QString& { return f.NOMBREC; },
                              codigo);
}

// The place of each value in a row that holds the stored columns (those of kColumnas, in their
// order), then the two counters and the version: found by the columns' names once, so that a
// row is read without looking a name up.
struct ColumnasLeidas {
    int TIPODNI, DNIC, NOMBREC, VIAC, DOMICILIOC, NUMEROC, LETRAC, ESCALERAC, PISOC, MANOC,
        TIPODOMI, PAIS, CODPROVC, NOMPROVC, CODPOSC, CODMUNC, NOMMUNC, NUMSP, NUMTR, VERSION;
};

const ColumnasLeidas& columnasLeidas()
{
    static const ColumnasLeidas c = [] {
        const auto en = [](const char* columna) {
            const qsizetype i = kColumnas.indexOf(QLatin1String(columna));
            Q_ASSERT(i >= 0);
            return int(i);
        };
        const int contadores = int(kColumnas.size());
        return ColumnasLeidas{en("TIPODNI"),  en("DNIC"),      en("NOMBREC"), en("VIAC"),
                              en("DOMICILIOC"), en("NUMEROC"), en("LETRAC"),  en("ESCALERAC"),
                              en("PISOC"),    en("MANOC"),     en("TIPODOMI"), en("PAIS"),
                              en("CODPROVC"), en("NOMPROVC"),  en("CODPOSC"), en("CODMUNC"),
                              en("NOMMUNC"),  contadores,      contadores + 1, contadores + 2};
    }();
    return c;
}

// A contributor from a row that holds, from column `primera` on, the stored columns (those of
// kColumnas) and the two counters.
Contribuyente leido(const QSqlQuery& q, int primera)
{
    const ColumnasLeidas& k = columnasLeidas();
    const auto valor = [&q, primera](int columna) { return q.value(primera + columna); };
    Contribuyente c;
    c.TIPODNI = valor(k.TIPODNI).toString();
    c.DNIC = valor(k.DNIC).toString();
    c.NOMBREC = valor(k.NOMBREC).toString();
    c.VIAC = valor(k.VIAC).toString();
    c.DOMICILIOC = valor(k.DOMICILIOC).toString();
    c.NUMEROC = valor(k.NUMEROC).toInt();
    c.LETRAC = valor(k.LETRAC).toString();
    c.ESCALERAC = valor(k.ESCALERAC).toString();
    c.PISOC = valor(k.PISOC).toString();
    c.MANOC = valor(k.MANOC).toString();
    c.TIPODOMI = valor(k.TIPODOMI).toString();
    c.PAIS = valor(k.PAIS).toString();
    c.CODPROVC = valor(k.CODPROVC).toString();
    c.NOMPROVC = valor(k.NOMPROVC).toString();
    c.CODPOSC = valor(k.CODPOSC).toString();
    c.CODMUNC = valor(k.CODMUNC).toString();
    c.NOMMUNC = valor(k.NOMMUNC).toString();
    c.NUMSP = valor(k.NUMSP).toDouble();
    c.NUMTR = valor(k.NUMTR).toDouble();
    return c;
}

}  // namespace

Resultado<void> cContribSvr::ValidarDatosContribuyentes(const Contribuyente& c) const
{
    return ReglasContribuyente(c);
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
    Contribuyente c = leido(q, 0);
    c.CSCO = csco;
    c.VERSION = q.value(columnasLeidas().VERSION).toLongLong();
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

QList<FilaContribuyente> cContribSvr::dameResultadoBusqueda(const CriteriosParte& criterios,
                                                            OrdenParte orden) const
{
    const QString org = origen("dameResultadoBusqueda");
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
    QList<FilaContribuyente> filas;
    while (q.next()) {
        FilaContribuyente f;
        f.CSCO = q.value(0).toInt();
        f.NOMBREC = q.value(1).toString();
        f.DNIC = q.value(2).toString();
        f.DOMICILIOC = q.value(3).toString();
        f.MUNICIPIO = ReferenciaPartes::NombreMunicipio(municipios, q.value(4).toString(),
                                                        q.value(5).toString(),
                                                        q.value(6).toString());
        f.NUMSP = q.value(7).toInt();
        f.NUMTR = q.value(8).toInt();
        filas.append(std::move(f));
    }
    ordenar(filas, orden);
    return filas;
}

QList<Contribuyente> cContribSvr::dameResultadoBusquedaTodo(const CriteriosParte& criterios,
                                                           OrdenParte orden) const
{
    const QString org = origen("dameResultadoBusquedaTodo");
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
    // The list is made at its size at once: one of 100 000 whole contributors that grew as it
    // was read would be held twice for a moment. The count is only the room set aside; the
    // rows are what the query reads.
    QList<Contribuyente> contribuyentes;
    contribuyentes.reserve(
        Escalar(db, QStringLiteral("SELECT COUNT(*) FROM CONTRIBUYENTES c") + donde, valores, org)
            .toLongLong());
    while (q.next()) {
        Contribuyente c = leido(q, 1);
        c.CSCO = q.value(0).toInt();
        contribuyentes.append(std::move(c));
    }
    ordenar(contribuyentes, orden);
    return contribuyentes;
}
