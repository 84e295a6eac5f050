#include "servicios/cDatosGeneral.h"

#include "plataforma/Fallo.h"
#include "servicios/Conexion.h"

#include <algorithm>
#include <limits>
#include <utility>

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

// SQLite compares text byte by byte, which puts "Álava" after "Zamora": the rows are put in
// the order a Spanish reader expects once read.
void ordenarSegunAlfabeto(QList<FilaReferencia>& filas)
{
    QList<std::pair<QString, FilaReferencia>> conClave;
    conClave.reserve(filas.size());
    for (FilaReferencia& f : filas)
        conClave.append({claveDeOrden(f.nombre), std::move(f)});
    std::stable_sort(conClave.begin(), conClave.end(),
                     [](const auto& x, const auto& y) { return x.first < y.first; });
    filas.clear();
    for (auto& [clave, f] : conClave)
        filas.append(std::move(f));
}

// The rows of one reference table: its code column and its name column, by name.
QList<FilaReferencia> cargarLista(const QString& mdblec, const QString& tabla,
                                  const QString& codigo, const QString& nombre,
                                  const char* operacion)
{
    const QString o = origen(operacion);
    const QSqlDatabase db = Conexion::Lectura(mdblec, o);
    // The table and column names are this file's constants, never the caller's text.
    const QString sql =
        QStringLiteral("SELECT %1, %2 FROM %3 ORDER BY %2").arg(codigo, nombre, tabla);
    QSqlQuery q = Ejecutar(db, sql, {}, o);
    QList<FilaReferencia> filas;
    while (q.next())
        filas.append({q.value(0).toString(), q.value(1).toString()});
    ordenarSegunAlfabeto(filas);
    return filas;
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

LimitesFechas cDatosGeneral::DameFechaMinimaMaxima() const
{
    const QString o = origen("DameFechaMinimaMaxima");
    const QSqlDatabase db = Conexion::Lectura(mdblec, o);
    QSqlQuery q = Ejecutar(db, QStringLiteral("SELECT T10_FECMIN, T10_FECMAX FROM T10_GENERAL"),
                           {}, o);
    if (!q.next())
        throw cFallo(3021, o, QStringLiteral("T10_GENERAL no tiene ninguna fila."));
    // The table keeps each date as the number yyyymmdd.
    const auto fecha = [&q, &o](int columna) {
        const int n = q.value(columna).toInt();
        const QDate d(n / 10000, n / 100 % 100, n % 100);
        if (!d.isValid())
            throw cFallo(13, o, QStringLiteral("T10_GENERAL: fecha %1").arg(n));
        return d;
    };
    return {fecha(0), fecha(1)};
}

QList<FilaReferencia> cDatosGeneral::CargarVias(Idioma idioma) const
{
    return cargarLista(mdblec, QStringLiteral("T09_SIGLASVIA"), QStringLiteral("T09_CODIGO"),
                       idioma.esEuskera() ? QStringLiteral("T09_EUS") : QStringLiteral("T09_CAS"),
                       "CargarVias");
}

QList<FilaReferencia> cDatosGeneral::CargarProvincias(Idioma idioma) const
{
    return cargarLista(mdblec, QStringLiteral("T07_PROVINCIAS"), QStringLiteral("T07_PRO_ID"),
                       idioma.esEuskera() ? QStringLiteral("T07_PRO_EUS")
                                          : QStringLiteral("T07_PRO_CAS"),
                       "CargarProvincias");
}

QList<FilaReferencia> cDatosGeneral::CargarMunicipios() const
{
    return cargarLista(mdblec, QStringLiteral("T08_MUNICIPIOS"), QStringLiteral("T08_CODMUN"),
                       QStringLiteral("T08_NOMMUN"), "CargarMunicipios");
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
