#include "servicios/cDatosGeneral.h"

#include "plataforma/Fallo.h"
#include "servicios/Conexion.h"

#include <QRegularExpression>
#include <QSqlRecord>
#include <algorithm>
#include <limits>
#include <numeric>

namespace {
QString origen(const char* operacion)
{
    return QStringLiteral("svrveldoV1.cDatosGeneral.") + QLatin1String(operacion);
}

int32_t contar(const QString& mdbmod, const QString& tabla, const char* operacion)
{
    const QSqlDatabase db = Conexion::Modificable(mdbmod, origen(operacion));
    // The table name is one of this file's constants, never the caller's text.
    return Escalar(db, QStringLiteral("SELECT COUNT(*) FROM ") + tabla, {}, origen(operacion), 0)
        .toInt();
}

// The key by which names are put in the order of the Spanish alphabet: accents and
// diaeresis do not count, case does not count, and Ñ comes between N and O.
QString claveDeOrden(const QString& texto)
{
    QString clave;
    clave.reserve(texto.size() + 4);
    for (const QChar c : texto) {
        if (c == QChar(0x00D1) || c == QChar(0x00F1)) {
            clave += QStringLiteral("N~");
            continue;
        }
        for (const QChar b : QString(c).normalized(QString::NormalizationForm_D)) {
            if (b.category() != QChar::Mark_NonSpacing)
                clave += b.toUpper();
        }
    }
    return clave;
}

// SQLite compares text byte by byte, which puts "Álava" after "Zamora". When the statement
// orders by the name column, the rows are put in the order a Spanish reader expects
// (the order the same statement gives on the program's original store).
void ordenarSegunAlfabeto(const QString& sql, const QString& columnaNombre, Arreglo2D& a)
{
    static const QRegularExpression orden(
        QStringLiteral(R"(\bORDER\s+BY\s+([A-Za-z_][A-Za-z0-9_.]*)(?:\s+(ASC|DESC))?\s*;?\s*$)"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch m = orden.match(sql);
    if (!m.hasMatch())
        return;
    const QString columna = m.captured(1).section(QLatin1Char('.'), -1);
    if (columna.compare(columnaNombre, Qt::CaseInsensitive) != 0)
        return;
    const bool descendente = m.captured(2).compare(QLatin1String("DESC"), Qt::CaseInsensitive) == 0;

    const qsizetype filas = a[1].size();
    QStringList claves;
    claves.reserve(filas);
    for (const QVariant& v : a[1])
        claves << claveDeOrden(v.toString());
    QList<qsizetype> indices(filas);
    std::iota(indices.begin(), indices.end(), 0);
    std::stable_sort(indices.begin(), indices.end(), [&](qsizetype x, qsizetype y) {
        return descendente ? claves[y] < claves[x] : claves[x] < claves[y];
    });
    Arreglo2D ordenado{QVariantList(), QVariantList()};
    for (const qsizetype i : indices) {
        ordenado[0].append(a[0][i]);
        ordenado[1].append(a[1][i]);
    }
    a = std::move(ordenado);
}

// Runs a picker's statement: the first column is the code, the second the name. The answer
// always has the two columns, even without rows, since the client walks the second one.
void cargarLista(const QString& mdblec, const QString& sql, Arreglo2D& a, const char* operacion)
{
    const QString o = origen(operacion);
    const QSqlDatabase db = Conexion::Lectura(mdblec, o);
    QSqlQuery q = Ejecutar(db, sql, {}, o);
    const QSqlRecord registro = q.record();
    if (registro.count() < 2)
        throw cFallo(13, o,
                     QStringLiteral("La consulta debe devolver dos columnas (código y nombre): ")
                         + sql);
    Arreglo2D lista{QVariantList(), QVariantList()};
    while (q.next()) {
        lista[0].append(q.value(0).toString());
        lista[1].append(q.value(1).toString());
    }
    ordenarSegunAlfabeto(sql, registro.fieldName(1), lista);
    a = std::move(lista);
}

// Codes are kept as text of fixed width ("01", "007"); a caller that passes "1" or " 7 "
// means the same row.
QString codigoDeAncho(const QString& codigo, int ancho)
{
    const QString limpio = codigo.trimmed();
    bool numerico = false;
    limpio.toInt(&numerico);
    if (numerico && limpio.size() < ancho && !limpio.startsWith(QLatin1Char('-')))
        return limpio.rightJustified(ancho, QLatin1Char('0'));
    return limpio;
}

QString nombreDe(const QString& mdblec, const QString& sql, const QString& codigo,
                 const char* operacion)
{
    const QString o = origen(operacion);
    const QSqlDatabase db = Conexion::Lectura(mdblec, o);
    return Escalar(db, sql, {codigo}, o, QString()).toString();
}
}  // namespace

int32_t cDatosGeneral::NumeroDeclaraciones() const
{
    return contar(mdbmod, QStringLiteral("DECLARACIONES"), "NumeroDeclaraciones");
}

int32_t cDatosGeneral::NumeroContribuyentes() const
{
    return contar(mdbmod, QStringLiteral("CONTRIBUYENTES"), "NumeroContribuyentes");
}

int16_t cDatosGeneral::NumeroPresentadores() const
{
    // The answer is 16-bit: a file with more presenters than that answers the largest value,
    // which is all the program asks of it (whether there is any presenter at all).
    const int32_t n = contar(mdbmod, QStringLiteral("PRESENTADORES"), "NumeroPresentadores");
    return static_cast<int16_t>(std::min<int32_t>(n, std::numeric_limits<int16_t>::max()));
}

void cDatosGeneral::DameFechaMinimaMaxima(Arreglo& fechas) const
{
    const QString o = origen("DameFechaMinimaMaxima");
    const QSqlDatabase db = Conexion::Lectura(mdblec, o);
    QSqlQuery q = Ejecutar(db, QStringLiteral("SELECT T10_FECMIN, T10_FECMAX FROM T10_GENERAL"),
                           {}, o);
    if (!q.next())
        throw cFallo(3021, o, QStringLiteral("T10_GENERAL no tiene ninguna fila."));
    fechas = Arreglo{static_cast<int32_t>(q.value(0).toInt()),
                     static_cast<int32_t>(q.value(1).toInt())};
}

void cDatosGeneral::CargarVias(const QString& sql, Arreglo2D& a) const
{
    cargarLista(mdblec, sql, a, "CargarVias");
}

void cDatosGeneral::CargarProvincias(const QString& sql, Arreglo2D& a) const
{
    cargarLista(mdblec, sql, a, "CargarProvincias");
}

void cDatosGeneral::CargarMunicipios(const QString& sql, Arreglo2D& a) const
{
    cargarLista(mdblec, sql, a, "CargarMunicipios");
}

void cDatosGeneral::CargarTipos(const QString& sql, Arreglo2D& a) const
{
    cargarLista(mdblec, sql, a, "CargarTipos");
}

QString cDatosGeneral::ObtenNomMunicipio(const QString& codigo) const
{
    return nombreDe(mdblec,
                    QStringLiteral("SELECT T08_NOMMUN FROM T08_MUNICIPIOS WHERE T08_CODMUN = ?"),
                    codigoDeAncho(codigo, 3), "ObtenNomMunicipio");
}

QString cDatosGeneral::ObtenNomProvincia(const QString& codigo) const
{
    return nombreDe(mdblec,
                    QStringLiteral("SELECT T07_PRO_CAS FROM T07_PROVINCIAS WHERE T07_PRO_ID = ?"),
                    codigoDeAncho(codigo, 2), "ObtenNomProvincia");
}

QString cDatosGeneral::URLAct() const
{
    const QString o = origen("URLAct");
    const QSqlDatabase db = Conexion::Lectura(mdblec, o);
    return Escalar(db, QStringLiteral("SELECT T10_URLACT FROM T10_GENERAL"), {}, o, QString())
        .toString()
        .trimmed();
}
