// The store of the returns: save, load, delete, the recent returns, and the parties as a
// return takes them. The counters of the parties (returns of a contributor as subject or
// transmitter, of a presenter) are counted from DECLARACIONES when asked for
// (ContadoresPartes), so a save or a deletion keeps them right by changing the row itself,
// inside the same transaction as everything it writes.
#include "servicios/cDeclaSvr.h"

#include "catalogo/IdsCatalogo.h"
#include "plataforma/Fallo.h"
#include "servicios/Conexion.h"
#include "servicios/ContadoresPartes.h"
#include "servicios/ImporteGuardable.h"
#include "servicios/TextoGuardable.h"
#include "servicios/VersionFila.h"

#include <QSqlRecord>
#include <array>
#include <variant>

namespace {

QString origen(const char* operacion)
{
    return QStringLiteral("svrveldoV1.cDeclaSvr.") + QLatin1String(operacion);
}

using Texto = QString Declaracion::*;
using Entero = int32_t Declaracion::*;
using Corto = int16_t Declaracion::*;
using Cantidad = Importe Declaracion::*;
using Real = double Declaracion::*;

// A party's code: stored as NULL when it names no stored contributor or presenter.
struct Parte {
    Entero campo;
    const char* tabla;
    const char* clave;
};

using Campo = std::variant<Texto, Entero, Corto, Cantidad, Real, Parte>;

struct Columna {
    const char* nombre;
    Campo campo;
};

// The stored columns of a return after its code, each with the field of the value that holds
// it, in the order of the table. The subject's province name is never stored (see below).
const std::array<Columna, 54> kColumnas{{
    {"REFERENCIA", &Declaracion::REFERENCIA},
    {"CSPR", Parte{&Declaracion::CSPR, "PRESENTADORES", "CSPR"}},
    {"CSSU", Parte{&Declaracion::CSSU, "CONTRIBUYENTES", "CSCO"}},
    {"CSTRA", Parte{&Declaracion::CSTRA, "CONTRIBUYENTES", "CSCO"}},
    {"FECHAD", &Declaracion::FECHAD},
    {"ADQUIRIDO", &Declaracion::ADQUIRIDO},
    {"MARCA", &Declaracion::MARCA},
    {"TIPO", &Declaracion::TIPO},
    {"MODELO", &Declaracion::MODELO},
    {"BASTIDOR", &Declaracion::BASTIDOR},
    {"CLASIFICACION", &Declaracion::CLASIFICACION},
    {"MOTOR", &Declaracion::MOTOR},
    {"CILINDRADA", &Declaracion::CILINDRADA},
    {"OPERACION", &Declaracion::OPERACION},
    {"NOSUJETO", &Declaracion::NOSUJETO},
    {"EXENTO", &Declaracion::EXENTO},
    {"REDUCCION", &Declaracion::REDUCCION},
    {"BASEI", &Declaracion::BASEI},
    {"BASEIREDUCIDA", &Declaracion::BASEIREDUCIDA},
    {"TIPOIMP", &Declaracion::TIPOIMP},
    {"CUOTA", &Declaracion::CUOTA},
    {"DEDUCCION", &Declaracion::DEDUCCION},
    {"TOTAL", &Declaracion::TOTAL},
    {"DNISP", &Declaracion::DNISP},
    {"NOMBRESP", &Declaracion::NOMBRESP},
    {"VIASP", &Declaracion::VIASP},
    {"DOMICILIOSP", &Declaracion::DOMICILIOSP},
    {"NUMEROSP", &Declaracion::NUMEROSP},
    {"LETRASP", &Declaracion::LETRASP},
    {"ESCALERASP", &Declaracion::ESCALERASP},
    {"PISOSP", &Declaracion::PISOSP},
    {"MANOSP", &Declaracion::MANOSP},
    {"CODPROVSP", &Declaracion::CODPROVSP},
    {"NOMPROVSP", &Declaracion::NOMPROVSP},
    {"CODPOSSP", &Declaracion::CODPOSSP},
    {"CODMUNSP", &Declaracion::CODMUNSP},
    {"NOMMUNSP", &Declaracion::NOMMUNSP},
    {"TIPODNITR", &Declaracion::TIPODNITR},
    {"DNITR", &Declaracion::DNITR},
    {"NOMBRETR", &Declaracion::NOMBRETR},
    {"VIATR", &Declaracion::VIATR},
    {"DOMICILIOTR", &Declaracion::DOMICILIOTR},
    {"NUMEROTR", &Declaracion::NUMEROTR},
    {"LETRATR", &Declaracion::LETRATR},
    {"ESCALERATR", &Declaracion::ESCALERATR},
    {"PISOTR", &Declaracion::PISOTR},
    {"MANOTR", &Declaracion::MANOTR},
    {"TIPODOMITR", &Declaracion::TIPODOMITR},
    {"PAISTR", &Declaracion::PAISTR},
    {"CODPROVTR", &Declaracion::CODPROVTR},
    {"NOMPROVTR", &Declaracion::NOMPROVTR},
    {"CODPOSTR", &Declaracion::CODPOSTR},
    {"CODMUNTR", &Declaracion::CODMUNTR},
    {"NOMMUNTR", &Declaracion::NOMMUNTR},
}};

constexpr int kSujeto = 0;        // the tabs of the declaration form that hold the parties
constexpr int kTransmitente = 1;

struct TextoGuardado {
    Texto campo;
    ColumnaTexto columna;
};

// The texts of a return as the store keeps them (as given, blanks included): the width of each
// column, the label that names its field and the field, on its tab for a party's. The widths
// are those of the form's fields, but for the make and the type, whose boxes on the printed
// form hold 20 characters (the form lets 15 be typed). The subject's province name is not
// among them: it is never stored.
const TextoGuardado kTextos[] = {
    {&Declaracion::REFERENCIA, {10, kIdEtiquetaReferencia, "txtreferencia"}},
    {&Declaracion::ADQUIRIDO, {1, kIdAdquiridoFueraEspana, "chkAdquirido"}},
    {&Declaracion::MARCA, {20, kIdEtiquetaMarca, "txtmarca"}},
    {&Declaracion::TIPO, {20, kIdEtiquetaTipo, "txttipo"}},
    {&Declaracion::MODELO, {20, kIdEtiquetaModelo, "txtmodelo"}},
    {&Declaracion::BASTIDOR, {17, kIdEtiquetaBastidor, "txtbastidor"}},
    {&Declaracion::MOTOR, {1, kIdMotorDiesel, "optDiesel"}},
    {&Declaracion::OPERACION, {3, kIdEtiquetaCodigoOperacion, "txtoperacion"}},
    {&Declaracion::NOSUJETO, {1, kIdNoSujeto, "chknosujeto"}},
    {&Declaracion::EXENTO, {1, kIdExento, "chkexento"}},
    {&Declaracion::REDUCCION, {1, kIdReduccion, "chkReduccion1"}},
    {&Declaracion::DNISP, {9, kIdDniCif, "txtdnisp", 0, kSujeto}},
    {&Declaracion::NOMBRESP, {40, kIdEtiquetaApellidosNombre, "txtnombresp", 0, kSujeto}},
    {&Declaracion::VIASP, {2, kIdVia, "txtviasp", 0, kSujeto}},
    {&Declaracion::DOMICILIOSP, {20, kIdDomicilio, "txtdomiciliosp", 0, kSujeto}},
    {&Declaracion::LETRASP, {2, kIdLetra, "txtletrasp", 0, kSujeto}},
    {&Declaracion::ESCALERASP, {2, kIdEscalera, "txtescalerasp", 0, kSujeto}},
    {&Declaracion::PISOSP, {2, kIdPiso, "txtpisosp", 0, kSujeto}},
    {&Declaracion::MANOSP, {3, kIdMano, "txtmanosp", 0, kSujeto}},
    {&Declaracion::CODPROVSP, {2, kIdProvinciaPuntos, "txtcodprovsp", 0, kSujeto}},
    {&Declaracion::CODPOSSP, {5, kIdEtiquetaCodigoPostal, "txtcodpossp", 0, kSujeto}},
    {&Declaracion::CODMUNSP, {3, kIdMunicipioPuntos, "txtcodmunsp", 0, kSujeto}},
    {&Declaracion::NOMMUNSP, {25, kIdEtiquetaNombreMunicipio, "txtnommunsp", 0, kSujeto}},
    {&Declaracion::TIPODNITR, {1, kIdDniExtranjero, "chktipodnitr", 0, kTransmitente}},
    {&Declaracion::DNITR, {9, kIdDniCif, "txtdnitr", 0, kTransmitente}},
    {&Declaracion::NOMBRETR, {40, kIdEtiquetaApellidosNombre, "txtnombretr", 0, kTransmitente}},
    {&Declaracion::VIATR, {2, kIdVia, "txtviatr", 0, kTransmitente}},
    {&Declaracion::DOMICILIOTR, {20, kIdDomicilio, "txtdomiciliotr", 0, kTransmitente}},
    {&Declaracion::LETRATR, {2, kIdLetra, "txtletratr", 0, kTransmitente}},
    {&Declaracion::ESCALERATR, {2, kIdEscalera, "txtescaleratr", 0, kTransmitente}},
    {&Declaracion::PISOTR, {2, kIdPiso, "txtpisotr", 0, kTransmitente}},
    {&Declaracion::MANOTR, {3, kIdMano, "txtmanotr", 0, kTransmitente}},
    {&Declaracion::TIPODOMITR, {1, kIdDomicilioExtranjero, "chktipodomitr", 0, kTransmitente}},
    {&Declaracion::PAISTR, {20, kIdEtiquetaPais, "txtpaistr", 0, kTransmitente}},
    {&Declaracion::CODPROVTR, {2, kIdProvinciaPuntos, "txtcodprovtr", 0, kTransmitente}},
    {&Declaracion::NOMPROVTR, {20, kIdEtiquetaNombreProvincia, "txtnomprovtr", 0, kTransmitente}},
    {&Declaracion::CODPOSTR, {5, kIdEtiquetaCodigoPostal, "txtcodpostr", 0, kTransmitente}},
    {&Declaracion::CODMUNTR, {3, kIdMunicipioPuntos, "txtcodmuntr", 0, kTransmitente}},
    {&Declaracion::NOMMUNTR, {25, kIdEtiquetaNombreMunicipio, "txtnommuntr", 0, kTransmitente}},
};

// The amounts, and the rate kept beside them, each with the label that names its field and
// the field.
struct NumeroGuardado {
    double (*valor)(const Declaracion&);
    ColumnaImporte columna;
};
const NumeroGuardado kImportes[] = {
    {[](const Declaracion& d) { return d.BASEI.centimos(); }, {124, "txtbasei"}},
    {[](const Declaracion& d) { return d.BASEIREDUCIDA.centimos(); }, {325, "txtBaseIReducida"}},
    {[](const Declaracion& d) { return d.TIPOIMP; }, {125, "txttipoimp"}},
    {[](const Declaracion& d) { return d.CUOTA.centimos(); }, {126, "txtcuota"}},
    {[](const Declaracion& d) { return d.DEDUCCION.centimos(); }, {127, "txtdeduccion"}},
    {[](const Declaracion& d) { return d.TOTAL.centimos(); }, {123, "txttotal"}},
};

// What the store cannot keep of the return as given, or an empty verdict.
Veredicto comprobar(const Declaracion& d)
{
    for (const TextoGuardado& t : kTextos) {
        Veredicto v = ComprobarTexto(d.*t.campo, t.columna, Blancos::Conservados);
        if (!v.vacio())
            return v;
    }
    for (const NumeroGuardado& n : kImportes) {
        Veredicto v = ComprobarImporte(n.valor(d), n.columna);
        if (!v.vacio())
            return v;
    }
    return {};
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

// The value of one column as it is stored. A text is never NULL, an absent one being empty;
// the subject's province name is always empty (the subject's address is national, its
// province named by its code).
QVariant valorGuardado(const QSqlDatabase& db, const Declaracion& d, const Columna& c,
                       const QString& o)
{
    if (std::holds_alternative<Texto>(c.campo) && std::get<Texto>(c.campo) == &Declaracion::NOMPROVSP)
        return QStringLiteral("");
    return std::visit(
        [&](const auto& campo) -> QVariant {
            using T = std::decay_t<decltype(campo)>;
            if constexpr (std::is_same_v<T, Texto>) {
                const QString& t = d.*campo;
                return t.isNull() ? QStringLiteral("") : t;
            } else if constexpr (std::is_same_v<T, Cantidad>) {
                return (d.*campo).centimos();
            } else if constexpr (std::is_same_v<T, Parte>) {
                const qint64 codigo = d.*campo.campo;
                if (codigo > 0 && existe(db, campo.tabla, campo.clave, codigo, o))
                    return codigo;
                return QVariant(QMetaType(QMetaType::LongLong));
            } else {
                return qint64(d.*campo);
            }
        },
        c.campo);
}

// A stored value into its field of the return.
void leerValor(Declaracion& d, const Columna& c, const QVariant& v)
{
    std::visit(
        [&](const auto& campo) {
            using T = std::decay_t<decltype(campo)>;
            if constexpr (std::is_same_v<T, Texto>)
                d.*campo = v.isNull() ? QString() : v.toString();
            else if constexpr (std::is_same_v<T, Cantidad>)
                d.*campo = Importe(v.toDouble());
            else if constexpr (std::is_same_v<T, Real>)
                d.*campo = v.toDouble();
            else if constexpr (std::is_same_v<T, Corto>)
                d.*campo = static_cast<int16_t>(v.toLongLong());
            else if constexpr (std::is_same_v<T, Entero>)
                d.*campo = static_cast<int32_t>(v.toLongLong());
            else
                d.*campo.campo = static_cast<int32_t>(v.toLongLong());
        },
        c.campo);
}

QStringList nombres(const QString& prefijo)
{
    QStringList columnas;
    for (const Columna& c : kColumnas)
        columnas << prefijo + QLatin1String(c.nombre);
    return columnas;
}

// The columns of a contributor as a return takes it.
const QString kColumnasContribuyente = QStringLiteral(
    "CSCO, TIPODNI, DNIC, NOMBREC, VIAC, DOMICILIOC, NUMEROC, LETRAC, ESCALERAC, PISOC, MANOC, "
    "TIPODOMI, PAIS, CODPROVC, NOMPROVC, CODPOSC, CODMUNC, NOMMUNC");

// The contributor that the condition finds, with the returns that have it as subject.
std::optional<Contribuyente> leerParte(const QSqlDatabase& db, const QString& condicion,
                                       const QVariant& valor, const QString& o)
{
    QSqlQuery q = Ejecutar(db,
                           QStringLiteral("SELECT %1 FROM CONTRIBUYENTES WHERE %2")
                               .arg(kColumnasContribuyente, condicion),
                           {valor}, o);
    if (!q.next())
        return std::nullopt;
    Contribuyente c;
    int i = 0;
    c.CSCO = q.value(i++).toInt();
    for (QString* t : {&c.TIPODNI, &c.DNIC, &c.NOMBREC, &c.VIAC, &c.DOMICILIOC})
        *t = q.value(i++).toString();
    c.NUMEROC = static_cast<int32_t>(q.value(i++).toLongLong());
    for (QString* t : {&c.LETRAC, &c.ESCALERAC, &c.PISOC, &c.MANOC, &c.TIPODOMI, &c.PAIS,
                       &c.CODPROVC, &c.NOMPROVC, &c.CODPOSC, &c.CODMUNC, &c.NOMMUNC})
        *t = q.value(i++).toString();
    c.NUMSP = static_cast<double>(ContadoresPartes::ComoSujeto(db, c.CSCO, o));
    return c;
}

}  // namespace

Resultado<Declaracion> cDeclaSvr::GuardarDeclaracion(const Declaracion& declaracion,
                                                     ComprobarVersion comprobar) const
{
    const QString o = origen("GuardarDeclaracion");
    if (Veredicto v = ::comprobar(declaracion); !v.vacio())
        return v;
    const QSqlDatabase db = Conexion::Modificable(mdbmod, o);
    Transaccion transaccion(db, o);
    QVariantList valores;
    for (const Columna& c : kColumnas)
        valores << valorGuardado(db, declaracion, c, o);
    const qint64 codigo = declaracion.CSDE;
    const qint64 grabacion =
        Escalar(db, QStringLiteral("SELECT COALESCE(MAX(GRABACION), 0) + 1 FROM DECLARACIONES"),
                {}, o, 1)
            .toLongLong();
    const int64_t nueva = VersionFila::Nueva();
    valores << grabacion << qlonglong(nueva);
    const QStringList columnas = nombres(QString()) + QStringList{QStringLiteral("GRABACION")};

    int32_t resultado = 0;
    if (codigo > 0 && comprobar == ComprobarVersion::Si) {
        QVariantList conCodigo = valores;
        conCodigo << codigo << qlonglong(declaracion.VERSION);
        const QSqlQuery q = Ejecutar(
            db, VersionFila::SqlActualizarVigente(QStringLiteral("DECLARACIONES"), columnas,
                                                  QStringLiteral("CSDE")),
            conCodigo, o);
        if (q.numRowsAffected() == 0) {
            Veredicto rechazo;
            rechazo.vigencia = VersionFila::Diagnostico(db, QStringLiteral("DECLARACIONES"),
                                                        QStringLiteral("CSDE"), codigo, o);
            return rechazo;
        }
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
        // A new return, or (saved without its version) one whose row was deleted meanwhile:
        // it gets a new row.
        QStringList marcas;
        for (qsizetype i = 0; i < valores.size(); ++i)
            marcas << QStringLiteral("?");
        // The code the store gave comes back with the insert, on any engine.
        QSqlQuery q = Ejecutar(db,
                               QStringLiteral("INSERT INTO DECLARACIONES (%1, %2) VALUES (%3) "
                                              "RETURNING CSDE")
                                   .arg(columnas.join(QStringLiteral(", ")), VersionFila::kColumna,
                                        marcas.join(QStringLiteral(", "))),
                               valores, o);
        resultado = q.next() ? q.value(0).toInt() : 0;
    }
    transaccion.confirmar();
    Declaracion guardada = declaracion;
    guardada.CSDE = resultado;
    guardada.VERSION = nueva;
    return guardada;
}

std::optional<Declaracion> cDeclaSvr::CargarDeclaracion(int32_t csde) const
{
    const QString o = origen("CargarDeclaracion");
    const QSqlDatabase db = Conexion::Modificable(mdbmod, o);
    QSqlQuery q = Ejecutar(db,
                           QStringLiteral("SELECT %1, p.DNIP, p.NOMBREP, d.%2 FROM DECLARACIONES d "
                                          "LEFT JOIN PRESENTADORES p ON p.CSPR = d.CSPR "
                                          "WHERE d.CSDE = ?")
                               .arg(nombres(QStringLiteral("d.")).join(QStringLiteral(", ")),
                                    VersionFila::kColumna),
                           {csde}, o);
    if (!q.next())
        return std::nullopt;
    Declaracion d;
    d.CSDE = csde;
    int i = 0;
    for (const Columna& c : kColumnas)
        leerValor(d, c, q.value(i++));
    d.DNIPR = q.value(i++).toString();
    d.NOMBREPR = q.value(i++).toString();
    d.VERSION = q.value(i++).toLongLong();
    // How many returns have this return's transmitter as their subject: the declaration form
    // keeps such a transmitter official and national.
    d.DECLASP = static_cast<double>(ContadoresPartes::ComoSujeto(db, d.CSTRA, o));
    return d;
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

QList<UltimaDeclaracion> cDeclaSvr::ObtenerUltimasDeclaraciones() const
{
    const QString o = origen("ObtenerUltimasDeclaraciones");
    const QSqlDatabase db = Conexion::Modificable(mdbmod, o);
    QSqlQuery q = Ejecutar(db,
                           QStringLiteral("SELECT CSDE, REFERENCIA, NOMBRESP FROM DECLARACIONES "
                                          "ORDER BY GRABACION DESC, CSDE DESC LIMIT 4"),
                           {}, o);
    QList<UltimaDeclaracion> ultimas;
    while (q.next()) {
        const QString referencia = q.value(1).toString().trimmed();
        ultimas.append({q.value(0).toInt(),
                        referencia.isEmpty() ? q.value(2).toString().trimmed() : referencia});
    }
    return ultimas;
}

std::optional<Contribuyente> cDeclaSvr::ExisteContribuyente(const QString& dni) const
{
    const QString o = origen("ExisteContribuyente");
    const QString limpio = dni.trimmed();
    if (limpio.isEmpty())
        return std::nullopt;
    const QSqlDatabase db = Conexion::Modificable(mdbmod, o);
    return leerParte(db, QStringLiteral("DNIC = ?"), limpio, o);
}

std::optional<Contribuyente> cDeclaSvr::CargarContribuyente(int32_t codigo) const
{
    const QString o = origen("CargarContribuyente");
    if (codigo <= 0)
        return std::nullopt;
    const QSqlDatabase db = Conexion::Modificable(mdbmod, o);
    return leerParte(db, QStringLiteral("CSCO = ?"), codigo, o);
}
