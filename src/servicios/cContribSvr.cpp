#include "servicios/cContribSvr.h"

#include "plataforma/Fallo.h"
#include "servicios/ArreglosPartes.h"
#include "servicios/PosicionesContribuyente.h"
#include "servicios/CodigoPostal.h"
#include "servicios/Conexion.h"
#include "servicios/ContadoresPartes.h"
#include "servicios/ReferenciaPartes.h"
#include "servicios/TablaParte.h"
#include "servicios/TextoGuardable.h"
#include "servicios/ValidacionPartes.h"
#include "servicios/ValidarDniOficial.h"

#include <QStringList>
#include <limits>

using namespace ArreglosPartes;
namespace P = PosContribuyente;

namespace {

QString origen(const char* metodo)
{
    return QStringLiteral("svrveldoV1.cContribSvr.") + QLatin1String(metodo);
}

// The stored columns in the order of the save array, from P::TIPODNI to P::NOMMUNC.
const QStringList kColumnas = {
    QStringLiteral("TIPODNI"),   QStringLiteral("DNIC"),     QStringLiteral("NOMBREC"),
    QStringLiteral("VIAC"),      QStringLiteral("DOMICILIOC"), QStringLiteral("NUMEROC"),
    QStringLiteral("LETRAC"),    QStringLiteral("ESCALERAC"), QStringLiteral("PISOC"),
    QStringLiteral("MANOC"),     QStringLiteral("TIPODOMI"), QStringLiteral("PAIS"),
    QStringLiteral("CODPROVC"),  QStringLiteral("NOMPROVC"), QStringLiteral("CODPOSC"),
    QStringLiteral("CODMUNC"),   QStringLiteral("NOMMUNC"),
};
// A stored row lacks the code: its value of position p stands at p - kPrimera.
constexpr int kPrimera = P::TIPODNI;

// The values of a save array in their stored form, in the order of kColumnas.
QVariantList filaGuardada(const Arreglo& a, const QString& org)
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

// The texts of a save array, as the store keeps them: the width of each column, the label that
// names its field, the field, and for the number and the name, which must hold a value, the
// record's own message for an empty one.
constexpr ColumnaTexto kTextos[] = {
    {P::DNIC, 9, 26, "txtdnic", 29},
    {P::NOMBREC, 40, 27, "txtnombrec", 30},
    {P::VIAC, 2, 13, "txtviac"},
    {P::DOMICILIOC, 20, 19, "txtdomicilioc"},
    {P::LETRAC, 2, 21, "txtletrac"},
    {P::ESCALERAC, 2, 20, "txtescalerac"},
    {P::PISOC, 2, 23, "txtpisoc"},
    {P::MANOC, 3, 24, "txtmanoc"},
    {P::PAIS, 20, 18, "txtpais"},
    {P::CODPROVC, kAnchoDeCifras, 10, "txtcodprovc"},
    {P::NOMPROVC, 20, 15, "txtnomprovc"},
    {P::CODPOSC, kAnchoDeCifras, 25, "txtcodposc"},
    {P::CODMUNC, kAnchoDeCifras, 12, "txtcodmunc"},
    {P::NOMMUNC, 25, 14, "txtnommunc"},
};

const TablaParte& tabla()
{
    static const TablaParte t(QStringLiteral("CONTRIBUYENTES"), QStringLiteral("CSCO"),
                              QStringLiteral("DNIC"), kColumnas);
    return t;
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

int16_t cContribSvr::ValidarDatosContribuyentes(const Arreglo& datos) const
{
    return ReglasContribuyente(datos);
}

bool cContribSvr::ValidarDniOficial(const QString& dni) const
{
    return EsNifOficialValido(dni);
}

void cContribSvr::ValidarDatosImportar(const Arreglo& datos, Arreglo2D& errores) const
{
    const QString org = origen("ValidarDatosImportar");
    const QList<int> codigos = ErroresImportacion(datos, ReferenciaPartes::Consultas(mdblec, org));
    QVariantList columna;
    columna.reserve(codigos.size() + 1);
    for (int c : codigos)
        columna << c;
    columna << 0;  // the spare element: the upper bound is the number of errors
    errores = Arreglo2D{columna};
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

void cContribSvr::CargarContribuyente(int32_t csco, Arreglo& datos) const
{
    const QString org = origen("CargarContribuyente");
    const QSqlDatabase db = Conexion::Modificable(mdbmod, org);
    QSqlQuery q = Ejecutar(db,
                           QStringLiteral("SELECT %1, %2 FROM CONTRIBUYENTES c WHERE c.CSCO = ?")
                               .arg(kColumnas.join(QStringLiteral(", ")), contadores()),
                           {csco}, org);
    datos.clear();
    if (!q.next())
        return;
    // The query's columns: those of the stored row, then the two counters.
    datos.resize(P::Tamano);
    datos[P::CSCO] = csco;
    for (int p = P::TIPODNI; p <= P::NOMMUNC; ++p)
        datos[p] = q.value(p - kPrimera);
    datos[P::NUMEROC] = q.value(P::NUMEROC - kPrimera).toInt();
    datos[P::NUMSP] = q.value(P::NUMSP - kPrimera).toDouble();
    datos[P::NUMTR] = q.value(P::NUMTR - kPrimera).toDouble();
}

int16_t cContribSvr::GuardarContribuyente(const Arreglo& datos, Veredicto* rechazo) const
{
    return guardar(datos, Modo::PorCodigo, rechazo);
}

int16_t cContribSvr::GuardarContribuyente(const Arreglo& datos, bool sustituir,
                                          Veredicto* rechazo) const
{
    return guardar(datos, sustituir ? Modo::Sustituir : Modo::Anadir, rechazo);
}

int16_t cContribSvr::guardar(const Arreglo& datos, Modo modo, Veredicto* rechazo) const
{
    const QString org = origen("GuardarContribuyente");
    if (Veredicto v = ComprobarTextos(datos, kTextos, Blancos::Recortados); !v.vacio()) {
        if (rechazo)
            *rechazo = std::move(v);
        return VeredictoGuardarContribuyente::TextoRechazado;
    }
    // Every value is put in its stored form before anything is written.
    const QVariantList fila = filaGuardada(datos, org);
    int32_t csco = modo == Modo::Anadir
        ? 0
        : EnteroGuardado(datos, P::CSCO, std::numeric_limits<int32_t>::max(), "CSCO", org);
    const QString dni = fila[P::DNIC - kPrimera].toString();

    const QSqlDatabase db = Conexion::Modificable(mdbmod, org);
    Transaccion transaccion(db, org);
    if (modo == Modo::Sustituir && csco == 0)
        csco = tabla().CodigoPorDni(db, dni, org);
    const int32_t titular = tabla().CodigoPorDni(db, dni, org);
    if (csco == 0) {
        if (titular != 0)
            return VeredictoGuardarContribuyente::DniExistente;
        tabla().Insertar(db, 0, fila, org);
    } else {
        if (titular != 0 && titular != csco)
            return VeredictoGuardarContribuyente::DniDeOtro;
        if (!tabla().Actualizar(db, csco, fila, org))
            tabla().Insertar(db, csco, fila, org);
    }
    transaccion.confirmar();
    return VeredictoGuardarContribuyente::Guardado;
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

Arreglo cContribSvr::ObtenerNumspNumtr(int32_t csco) const
{
    const QString org = origen("ObtenerNumspNumtr");
    const QSqlDatabase db = Conexion::Modificable(mdbmod, org);
    return {static_cast<int>(ContadoresPartes::ComoSujeto(db, csco, org)),
            static_cast<int>(ContadoresPartes::ComoTransmitente(db, csco, org))};
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
