#include "ComprobarMotor.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTextStream>

namespace {

const QString kCarpetaSqlite = QStringLiteral("servicios/sqlite");

// The files of a tree, relative to its root, in order.
QStringList ficherosDe(const QString& raiz)
{
    QStringList ficheros;
    const QDir dir(raiz);
    QDirIterator it(raiz, {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        ficheros.append(dir.relativeFilePath(it.next()));
    ficheros.sort();
    return ficheros;
}

bool dentroDe(const QString& fichero, const QString& carpeta)
{
    return fichero.startsWith(carpeta + QLatin1Char('/'));
}

// The header of an include line, or an empty text.
QString cabeceraDe(const QString& linea)
{
    static const QRegularExpression patron(QStringLiteral(R"(^\s*#\s*include\s*[<"]([^>"]+)[>"])"));
    const QRegularExpressionMatch m = patron.match(linea);
    return m.hasMatch() ? QDir::cleanPath(m.captured(1).trimmed()) : QString();
}

bool esDeSqlite(const QString& cabecera)
{
    return cabecera == QLatin1String("sqlite3.h") || cabecera == QLatin1String("sqlite3ext.h");
}

// A header of an engine: its folders, or SQLite's C interface. A relative include ("../x")
// is cleaned first, so it names the same folder from anywhere below src/.
bool esDeMotor(const QString& cabecera)
{
    QString c = cabecera;
    while (c.startsWith(QLatin1String("../")))
        c = c.mid(3);
    return c.startsWith(QLatin1String("servicios/motor/"))
        || c.startsWith(QLatin1String("servicios/sqlite/"))
        || c.startsWith(QLatin1String("servicios/postgres/")) || esDeSqlite(c);
}

// A name of SQLite's C interface on a line: a function or type (sqlite3_...) or the
// connection's type (sqlite3*).
QString nombreSqlite(const QString& linea)
{
    static const QRegularExpression patron(QStringLiteral(R"(\bsqlite3(_\w+|\s*\*))"));
    const QRegularExpressionMatch m = patron.match(linea);
    return m.hasMatch() ? m.captured(0) : QString();
}

// A word of SQLite's own dialect on a line: its catalogue and counters, its pragmas, its keys
// that never give a code twice, its files beside a connection's own, its caseless collation.
// Written in capitals as SQL is written here, so that prose ("attached") does not count.
QString palabraSqlite(const QString& linea)
{
    static const QRegularExpression patron(QStringLiteral(
        R"(\b(sqlite_master|sqlite_sequence|PRAGMA|AUTOINCREMENT|ATTACH|DETACH|NOCASE)\b)"));
    const QRegularExpressionMatch m = patron.match(linea);
    return m.hasMatch() ? m.captured(0) : QString();
}

template <typename Juicio>
void revisar(const QString& raiz, const QString& prefijo, const QString& fichero, Juicio juicio,
             QList<Falta>& faltas, Recuento& cuenta)
{
    QFile f(QDir(raiz).filePath(fichero));
    if (!f.open(QIODevice::ReadOnly | QIODevice::Text))
        return;
    ++cuenta.ficheros;
    QTextStream in(&f);
    for (int n = 1; !in.atEnd(); ++n) {
        const QString linea = in.readLine();
        const QString cabecera = cabeceraDe(linea);
        if (!cabecera.isEmpty())
            ++cuenta.includes;
        const QString motivo = juicio(linea, cabecera);
        if (!motivo.isEmpty())
            faltas.append({prefijo + fichero, n, motivo});
    }
}

}  // namespace

QList<Falta> ComprobarMotor(const QString& src, const QString& tests, Recuento* recuento)
{
    QList<Falta> faltas;
    Recuento cuenta;
    const int capaAlmacenes = CapaDe(QStringLiteral("servicios"));
    const auto sinMotor = [](const QString&, const QString& cabecera) {
        return esDeMotor(cabecera)
            ? QStringLiteral("above the stores, includes %1 of an engine").arg(cabecera)
            : QString();
    };
    const auto sinSqlite = [](const QString& linea, const QString& cabecera) {
        if (esDeSqlite(cabecera))
            return QStringLiteral("a store outside %1 includes <%2>").arg(kCarpetaSqlite, cabecera);
        const QString nombre = nombreSqlite(linea);
        if (!nombre.isEmpty())
            return QStringLiteral("a store outside %1 names %2 of SQLite's C interface")
                .arg(kCarpetaSqlite, nombre);
        const QString palabra = palabraSqlite(linea);
        return palabra.isEmpty()
            ? QString()
            : QStringLiteral("a store outside %1 writes %2 of SQLite's own dialect")
                  .arg(kCarpetaSqlite, palabra);
    };

    for (const QString& fichero : ficherosDe(src)) {
        const qsizetype barra = fichero.lastIndexOf(QLatin1Char('/'));
        const QString carpeta = barra < 0 ? QString() : fichero.left(barra);
        const int capa = CapaDe(carpeta);
        if (capa > capaAlmacenes)
            revisar(src, QString(), fichero, sinMotor, faltas, cuenta);
        else if (capa == capaAlmacenes && !dentroDe(fichero, kCarpetaSqlite))
            revisar(src, QString(), fichero, sinSqlite, faltas, cuenta);
    }
    const QString enPruebas = QStringLiteral("tests/");
    for (const QString& fichero : ficherosDe(tests)) {
        if (dentroDe(fichero, QStringLiteral("servicios"))
            || dentroDe(fichero, QStringLiteral("arquitectura")))
            continue;
        revisar(tests, enPruebas, fichero, sinMotor, faltas, cuenta);
    }
    if (recuento)
        *recuento = cuenta;
    return faltas;
}
