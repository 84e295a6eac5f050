// The store of the returns: save, load, delete, the recent returns, and the parties as a
// return takes them. The counters of the parties (returns of a contributor as subject or
// transmitter, of a presenter) are counted from DECLARACIONES when asked for
// (ContadoresPartes), so a save or a deletion keeps them right by changing the row itself,
// inside the same transaction as everything it writes.
#include "servicios/cDeclaSvr.h"

#include "plataforma/Fallo.h"
#include "servicios/Conexion.h"
#include "servicios/ContadoresPartes.h"
#include "servicios/ImporteGuardable.h"
#include "servicios/TextoGuardable.h"
#include "servicios/VersionFila.h"

#include <QSqlRecord>
#include <array>
#include <cmath>

namespace {

QString origen(const char* operacion)
{
    return QStringLiteral("svrveldoV1.cDeclaSvr.") + QLatin1String(operacion);
}

enum class Clase { Texto, Entero, Importe, Parte };

struct Columna {
    const char* nombre;
    Clase clase;
};

// The save array, value by value in the order of PosGuardarDeclaracion: the column that keeps
// it and its kind. Value 0 is the code. The load array takes them at PosicionDeCarga.
constexpr std::array<Columna, cDeclaSvr::kValoresGuardar> kColumnas{{
    {"CSDE", Clase::Entero},          {"REFERENCIA", Clase::Texto},
    {"CSPR", Clase::Parte},           {"CSSU", Clase::Parte},
    {"CSTRA", Clase::Parte},          {"FECHAD", Clase::Entero},
    {"ADQUIRIDO", Clase::Texto},      {"MARCA", Clase::Texto},
    {"TIPO", Clase::Texto},           {"MODELO", Clase::Texto},
    {"BASTIDOR", Clase::Texto},       {"CLASIFICACION", Clase::Entero},
    {"MOTOR", Clase::Texto},          {"CILINDRADA", Clase::Entero},
    {"OPERACION", Clase::Texto},      {"NOSUJETO", Clase::Texto},
    {"EXENTO", Clase::Texto},         {"REDUCCION", Clase::Texto},
    {"BASEI", Clase::Importe},        {"BASEIREDUCIDA", Clase::Importe},
    {"TIPOIMP", Clase::Importe},      {"CUOTA", Clase::Importe},
    {"DEDUCCION", Clase::Importe},    {"TOTAL", Clase::Importe},
    {"DNISP", Clase::Texto},          {"NOMBRESP", Clase::Texto},
    {"VIASP", Clase::Texto},          {"DOMICILIOSP", Clase::Texto},
    {"NUMEROSP", Clase::Entero},      {"LETRASP", Clase::Texto},
    {"ESCALERASP", Clase::Texto},     {"PISOSP", Clase::Texto},
    {"MANOSP", Clase::Texto},         {"CODPROVSP", Clase::Texto},
    {"NOMPROVSP", Clase::Texto},      {"CODPOSSP", Clase::Texto},
    {"CODMUNSP", Clase::Texto},       {"NOMMUNSP", Clase::Texto},
    {"TIPODNITR", Clase::Texto},      {"DNITR", Clase::Texto},
    {"NOMBRETR", Clase::Texto},       {"VIATR", Clase::Texto},
    {"DOMICILIOTR", Clase::Texto},    {"NUMEROTR", Clase::Entero},
    {"LETRATR", Clase::Texto},        {"ESCALERATR", Clase::Texto},
    {"PISOTR", Clase::Texto},         {"MANOTR", Clase::Texto},
    {"TIPODOMITR", Clase::Texto},     {"PAISTR", Clase::Texto},
    {"CODPROVTR", Clase::Texto},      {"NOMPROVTR", Clase::Texto},
    {"CODPOSTR", Clase::Texto},       {"CODMUNTR", Clase::Texto},
    {"NOMMUNTR", Clase::Texto},
}};

namespace G = PosGuardarDeclaracion;
constexpr int kSujeto = 0;        // the tabs of the declaration form that hold the parties
constexpr int kTransmitente = 1;

// The texts of the save array as the store keeps them (as given, blanks included): the width of
// each column, the label that names its field and the field, on its tab for a party's. The
// widths are those of the form's fields, but for the make and the type, whose boxes on the
// printed form hold 20 characters (the form lets 15 be typed).
constexpr ColumnaTexto kTextos[] = {
    {G::REFERENCIA, 10, 114, "txtreferencia"},
    {G::ADQUIRIDO, 1, 104, "chkAdquirido"},
    {G::MARCA, 20, 120, "txtmarca"},
    {G::TIPO, 20, 118, "txttipo"},
    {G::MODELO, 20, 119, "txtmodelo"},
    {G::BASTIDOR, 17, 117, "txtbastidor"},
    {G::MOTOR, 1, 110, "optDiesel"},
    {G::OPERACION, 3, 122, "txtoperacion"},
    {G::NOSUJETO, 1, 113, "chknosujeto"},
    {G::EXENTO, 1, 105, "chkexento"},
    {G::REDUCCION, 1, 326, "chkReduccion1"},
    {G::DNISP, 9, 26, "txtdnisp", 0, kSujeto},
    {G::NOMBRESP, 40, 27, "txtnombresp", 0, kSujeto},
    {G::VIASP, 2, 13, "txtviasp", 0, kSujeto},
    {G::DOMICILIOSP, 20, 19, "txtdomiciliosp", 0, kSujeto},
    {G::LETRASP, 2, 21, "txtletrasp", 0, kSujeto},
    {G::ESCALERASP, 2, 20, "txtescalerasp", 0, kSujeto},
    {G::PISOSP, 2, 23, "txtpisosp", 0, kSujeto},
    {G::MANOSP, 3, 24, "txtmanosp", 0, kSujeto},
    {G::CODPROVSP, 2, 10, "txtcodprovsp", 0, kSujeto},
    {G::NOMPROVSP, 20, 15, "txtnomprovsp", 0, kSujeto},
    {G::CODPOSSP, 5, 25, "txtcodpossp", 0, kSujeto},
    {G::CODMUNSP, 3, 12, "txtcodmunsp", 0, kSujeto},
    {G::NOMMUNSP, 25, 14, "txtnommunsp", 0, kSujeto},
    {G::TIPODNITR, 1, 9, "chktipodnitr", 0, kTransmitente},
    {G::DNITR, 9, 26, "txtdnitr", 0, kTransmitente},
    {G::NOMBRETR, 40, 27, "txtnombretr", 0, kTransmitente},
    {G::VIATR, 2, 13, "txtviatr", 0, kTransmitente},
    {G::DOMICILIOTR, 20, 19, "txtdomiciliotr", 0, kTransmitente},
    {G::LETRATR, 2, 21, "txtletratr", 0, kTransmitente},
    {G::ESCALERATR, 2, 20, "txtescaleratr", 0, kTransmitente},
    {G::PISOTR, 2, 23, "txtpisotr", 0, kTransmitente},
    {G::MANOTR, 3, 24, "txtmanotr", 0, kTransmitente},
    {G::TIPODOMITR, 1, 8, "chktipodomitr", 0, kTransmitente},
    {G::PAISTR, 20, 18, "txtpaistr", 0, kTransmitente},
    {G::CODPROVTR, 2, 10, "txtcodprovtr", 0, kTransmitente},
    {G::NOMPROVTR, 20, 15, "txtnomprovtr", 0, kTransmitente},
    {G::CODPOSTR, 5, 25, "txtcodpostr", 0, kTransmitente},
    {G::CODMUNTR, 3, 12, "txtcodmuntr", 0, kTransmitente},
    {G::NOMMUNTR, 25, 14, "txtnommuntr", 0, kTransmitente},
};

// The amounts of the save array, each with the label that names its field and the field.
constexpr ColumnaImporte kImportes[] = {
    {G::BASEI, 124, "txtbasei"},   {G::BASEIREDUCIDA, 325, "txtBaseIReducida"},
    {G::TIPOIMP, 125, "txttipoimp"}, {G::CUOTA, 126, "txtcuota"},
    {G::DEDUCCION, 127, "txtdeduccion"}, {G::TOTAL, 123, "txttotal"},
};

[[noreturn]] void noCoincide(const Columna& c, const QVariant& v, const QString& o)
{
    // Failure 13, "type mismatch": a value of the array cannot become its column's type.
    throw cFallo(13, o,
                 QStringLiteral("No coinciden los tipos: %1 = '%2'")
                     .arg(QLatin1String(c.nombre), v.toString()));
}

// A number of the array: a number, a text that reads as one, or blanks (0).
double numeroDe(const Columna& c, const QVariant& v, const QString& o)
{
    if (!v.isValid() || v.isNull())
        return 0;
    if (v.typeId() == QMetaType::QString) {
        const QString t = v.toString().trimmed();
        if (t.isEmpty())
            return 0;
        bool ok = false;
        const double d = t.toDouble(&ok);
        if (!ok)
            noCoincide(c, v, o);
        return d;
    }
    bool ok = false;
    const double d = v.toDouble(&ok);
    if (!ok)
        noCoincide(c, v, o);
    return d;
}

qint64 enteroDe(const Columna& c, const QVariant& v, const QString& o)
{
    const double d = numeroDe(c, v, o);
    // Not a number and the infinities have no integer (converting them would be undefined).
    if (!std::isfinite(d) || d != static_cast<double>(static_cast<qint64>(d)) || d < -2147483648.0 || d > 2147483647.0)
        noCoincide(c, v, o);
    return static_cast<qint64>(d);
}

bool existe(const QSqlDatabase& db, const char* tabla, const char* clave, qint64 codigo,
            const QString& o)
{
    return Escalar(db,
                   QStringLiteral("SELECT COUNT(*) FROM %1 WHERE %2 = ?")
                       .arg(QLatin1String(tabla), QLatin1String(clave)),
                   {codigo}, o, 0)
               .toInt()
        > 0;
}

// The value a party's code is stored as: NULL for none, or for a code that names no stored
// party (the return then keeps only its own copy of the party's data).
QVariant codigoDeParte(const QSqlDatabase& db, const Columna& c, qint64 codigo, const QString& o)
{
    if (codigo <= 0)
        return QVariant(QMetaType(QMetaType::LongLong));
    const bool presentador = QLatin1String(c.nombre) == QLatin1String("CSPR");
    const bool hay = presentador ? existe(db, "PRESENTADORES", "CSPR", codigo, o)
                                 : existe(db, "CONTRIBUYENTES", "CSCO", codigo, o);
    return hay ? QVariant(codigo) : QVariant(QMetaType(QMetaType::LongLong));
}

// A text of the array as it is stored: never NULL, an absent value being an empty text.
QString textoNoNulo(const QVariant& v)
{
    const QString t = v.toString();
    return t.isNull() ? QStringLiteral("") : t;
}

// The values of the save array (all but the code) in the stored form, checked before
// anything is written.
QVariantList valoresGuardados(const QSqlDatabase& db, const Arreglo& datos, const QString& o)
{
    if (datos.size() != cDeclaSvr::kValoresGuardar)
        throw cFallo(9, o,
                     QStringLiteral("La declaración debe tener %1 valores y tiene %2.")
                         .arg(cDeclaSvr::kValoresGuardar)
                         .arg(datos.size()));
    QVariantList valores;
    for (int i = PosGuardarDeclaracion::REFERENCIA; i < cDeclaSvr::kValoresGuardar; ++i) {
        const Columna& c = kColumnas[i];
        const QVariant& v = datos[i];
        switch (c.clase) {
        case Clase::Texto:
            valores << textoNoNulo(v);
            break;
        case Clase::Entero:
            valores << enteroDe(c, v, o);
            break;
        case Clase::Importe:
            valores << numeroDe(c, v, o);
            break;
        case Clase::Parte:
            valores << codigoDeParte(db, c, enteroDe(c, v, o), o);
            break;
        }
    }
    return valores;
}

QVariant valorCargado(const Columna& c, const QVariant& v)
{
    switch (c.clase) {
    case Clase::Texto:
        return v.isNull() ? QString() : v.toString();
    case Clase::Entero:
    case Clase::Parte:
        return static_cast<int32_t>(v.toLongLong());
    case Clase::Importe:
        return v.toDouble();
    }
    return v;
}

Arreglo cargaVacia()
{
    Arreglo datos;
    datos.resize(PosCargarDeclaracion::Tamano);
    for (int i = 0; i < cDeclaSvr::kValoresGuardar; ++i)
        datos[PosicionDeCarga(i)] = valorCargado(kColumnas[i], QVariant());
    datos[PosCargarDeclaracion::DNIPR] = QString();
    datos[PosCargarDeclaracion::NOMBREPR] = QString();
    datos[PosCargarDeclaracion::DECLASP] = 0.0;
    return datos;
}

// The columns of a contributor in the order of a party's array (PosContribuyente::TIPODNI to
// NOMMUNC).
const char* const kColumnasContribuyente[] = {
    "TIPODNI", "DNIC", "NOMBREC", "VIAC", "DOMICILIOC", "NUMEROC", "LETRAC", "ESCALERAC", "PISOC",
    "MANOC", "TIPODOMI", "PAIS", "CODPROVC", "NOMPROVC", "CODPOSC", "CODMUNC", "NOMMUNC",
};
static_assert(std::size(kColumnasContribuyente) == PosContribuyente::NOMMUNC);

Arreglo parteVacia()
{
    Arreglo datos(cDeclaSvr::kValoresParte, QString());
    datos[PosContribuyente::CSCO] = 0;
    datos[PosContribuyente::NUMEROC] = 0;
    datos[PosContribuyente::NUMSP] = 0.0;
    return datos;
}

// The party's array of the contributor that the condition finds; false when none.
bool leerParte(const QSqlDatabase& db, const QString& condicion, const QVariant& valor,
               Arreglo& datos, const QString& o)
{
    QStringList columnas{QStringLiteral("CSCO")};
    for (const char* c : kColumnasContribuyente)
        columnas << QLatin1String(c);
    QSqlQuery q = Ejecutar(db,
                           QStringLiteral("SELECT %1 FROM CONTRIBUYENTES WHERE %2")
                               .arg(columnas.join(QStringLiteral(", ")), condicion),
                           {valor}, o);
    if (!q.next()) {
        datos = parteVacia();
        return false;
    }
    // The query's columns stand at the positions of the party's array.
    Arreglo parte(cDeclaSvr::kValoresParte);
    const int32_t codigo = q.value(PosContribuyente::CSCO).toInt();
    parte[PosContribuyente::CSCO] = codigo;
    for (int i = PosContribuyente::TIPODNI; i <= PosContribuyente::NOMMUNC; ++i)
        parte[i] = q.value(i).toString();
    parte[PosContribuyente::NUMEROC] =
        static_cast<int32_t>(q.value(PosContribuyente::NUMEROC).toLongLong());
    parte[PosContribuyente::NUMSP] =
        static_cast<double>(ContadoresPartes::ComoSujeto(db, codigo, o));
    datos = std::move(parte);
    return true;
}

}  // namespace

int32_t cDeclaSvr::GuardarDeclaracion(const Arreglo& datos, Veredicto* rechazo,
                                      int64_t* version) const
{
    const QString o = origen("GuardarDeclaracion");
    Veredicto v = ComprobarTextos(datos, kTextos, Blancos::Conservados);
    if (v.vacio())
        v = ComprobarImportes(datos, kImportes);
    if (!v.vacio()) {
        if (rechazo)
            *rechazo = std::move(v);
        return 0;
    }
    const QSqlDatabase db = Conexion::Modificable(mdbmod, o);
    Transaccion transaccion(db, o);
    QVariantList valores = valoresGuardados(db, datos, o);
    const qint64 codigo =
        enteroDe(kColumnas[PosGuardarDeclaracion::CSDE], datos[PosGuardarDeclaracion::CSDE], o);
    const qint64 grabacion =
        Escalar(db, QStringLiteral("SELECT COALESCE(MAX(GRABACION), 0) + 1 FROM DECLARACIONES"),
                {}, o, 1)
            .toLongLong();
    const int64_t nueva = VersionFila::Nueva();
    valores << grabacion << qlonglong(nueva);
    QStringList columnas;
    for (int i = PosGuardarDeclaracion::REFERENCIA; i < kValoresGuardar; ++i)
        columnas << QLatin1String(kColumnas[i].nombre);
    columnas << QStringLiteral("GRABACION");

    int32_t resultado = 0;
    if (codigo > 0 && version) {
        QVariantList conCodigo = valores;
        conCodigo << codigo << qlonglong(*version);
        const QSqlQuery q = Ejecutar(
            db, VersionFila::SqlActualizarVigente(QStringLiteral("DECLARACIONES"), columnas,
                                                  QStringLiteral("CSDE")),
            conCodigo, o);
        if (q.numRowsAffected() == 0)
            return VersionFila::Diagnostico(db, QStringLiteral("DECLARACIONES"),
                                            QStringLiteral("CSDE"), codigo, o)
                    == Vigencia::Cambiada
                ? kCambiada
                : kBorrada;
        resultado = static_cast<int32_t>(codigo);
    } else if (codigo > 0) {
        QStringList asignaciones;
        for (const QString& c : columnas + QStringList{VersionFila::kColumna})
            asignaciones << c + QStringLiteral(" = ?");
        QVariantList conCodigo = valores;
        conCodigo << codigo;
        QSqlQuery q = Ejecutar(db,
                               QStringLiteral("UPDATE DECLARACIONES SET %1 WHERE CSDE = ?")
                                   .arg(asignaciones.join(QStringLiteral(", "))),
                               conCodigo, o);
        if (q.numRowsAffected() > 0)
            resultado = static_cast<int32_t>(codigo);
    }
    if (resultado == 0) {
        // A new return, or (saved without a version) one whose row was deleted meanwhile: it
        // gets a new row.
        QStringList marcas;
        for (qsizetype i = 0; i < valores.size(); ++i)
            marcas << QStringLiteral("?");
        QSqlQuery q = Ejecutar(db,
                               QStringLiteral("INSERT INTO DECLARACIONES (%1, %2) VALUES (%3)")
                                   .arg(columnas.join(QStringLiteral(", ")), VersionFila::kColumna,
                                        marcas.join(QStringLiteral(", "))),
                               valores, o);
        resultado = q.lastInsertId().toInt();
    }
    transaccion.confirmar();
    if (version)
        *version = nueva;
    return resultado;
}

void cDeclaSvr::CargarDeclaracion(int32_t csde, Arreglo& datos, int64_t* version) const
{
    const QString o = origen("CargarDeclaracion");
    const QSqlDatabase db = Conexion::Modificable(mdbmod, o);
    QStringList columnas;
    for (const Columna& c : kColumnas)
        columnas << QStringLiteral("d.") + QLatin1String(c.nombre);
    QSqlQuery q = Ejecutar(db,
                           QStringLiteral("SELECT %1, p.DNIP, p.NOMBREP, d.%2 FROM DECLARACIONES d "
                                          "LEFT JOIN PRESENTADORES p ON p.CSPR = d.CSPR "
                                          "WHERE d.CSDE = ?")
                               .arg(columnas.join(QStringLiteral(", ")), VersionFila::kColumna),
                           {csde}, o);
    if (version)
        *version = 0;
    if (!q.next()) {
        datos = cargaVacia();
        return;
    }
    if (version)
        *version = q.value(kValoresGuardar + 2).toLongLong();
    Arreglo carga(kValoresCargar);
    for (int i = 0; i < kValoresGuardar; ++i)
        carga[PosicionDeCarga(i)] = valorCargado(kColumnas[i], q.value(i));
    carga[PosCargarDeclaracion::DNIPR] = q.value(kValoresGuardar).toString();
    carga[PosCargarDeclaracion::NOMBREPR] = q.value(kValoresGuardar + 1).toString();
    // How many returns have this return's transmitter as their subject: the declaration form
    // keeps such a transmitter official and national.
    const int32_t cstra = carga[PosCargarDeclaracion::CSTRA].toInt();
    carga[PosCargarDeclaracion::DECLASP] =
        static_cast<double>(ContadoresPartes::ComoSujeto(db, cstra, o));
    datos = std::move(carga);
}

bool cDeclaSvr::BorrarDeclaracion(int32_t csde) const
{
    const QString o = origen("BorrarDeclaracion");
    const QSqlDatabase db = Conexion::Modificable(mdbmod, o);
    Transaccion transaccion(db, o);
    QSqlQuery q = Ejecutar(db, QStringLiteral("DELETE FROM DECLARACIONES WHERE CSDE = ?"), {csde},
                           o);
    const bool borrada = q.numRowsAffected() > 0;
    transaccion.confirmar();
    return borrada;
}

void cDeclaSvr::ObtenerUltimasDeclaraciones(Arreglo2D& lista) const
{
    const QString o = origen("ObtenerUltimasDeclaraciones");
    const QSqlDatabase db = Conexion::Modificable(mdbmod, o);
    QSqlQuery q = Ejecutar(db,
                           QStringLiteral("SELECT CSDE, REFERENCIA, NOMBRESP FROM DECLARACIONES "
                                          "ORDER BY GRABACION DESC, CSDE DESC LIMIT 4"),
                           {}, o);
    Arreglo2D ultimas;
    while (q.next()) {
        const QString referencia = q.value(1).toString().trimmed();
        ultimas.append({q.value(0).toInt(),
                        referencia.isEmpty() ? q.value(2).toString().trimmed() : referencia});
    }
    lista = std::move(ultimas);
}

bool cDeclaSvr::ExisteContribuyente(const QString& dni, Arreglo& datos) const
{
    const QString o = origen("ExisteContribuyente");
    const QString limpio = dni.trimmed();
    if (limpio.isEmpty()) {
        datos = parteVacia();
        return false;
    }
    const QSqlDatabase db = Conexion::Modificable(mdbmod, o);
    return leerParte(db, QStringLiteral("DNIC = ?"), limpio, datos, o);
}

void cDeclaSvr::CargarContribuyente(int32_t codigo, Arreglo& datos) const
{
    const QString o = origen("CargarContribuyente");
    if (codigo <= 0) {
        datos = parteVacia();
        return;
    }
    const QSqlDatabase db = Conexion::Modificable(mdbmod, o);
    leerParte(db, QStringLiteral("CSCO = ?"), codigo, datos, o);
}
