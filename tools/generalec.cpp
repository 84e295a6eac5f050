// Builds the read-only reference database from the text tables under data/.
// Each file NAME.tsv becomes the table NAME. Its first line gives the columns, tab-separated,
// each as "COLUMN TYPE" (TYPE an SQLite type; "COLUMN TYPE KEY" makes it the primary key);
// every later line is one row. Empty lines and lines starting with "#" are skipped.
// Usage: generalec OUTPUT.mdb FILE.tsv...
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>
#include <QTextStream>
#include <cstdio>

namespace {
[[noreturn]] void fallar(const QString& texto)
{
    std::fprintf(stderr, "generalec: %s\n", qPrintable(texto));
    std::exit(1);
}

void ejecutar(QSqlQuery& q, const QString& sql)
{
    if (!q.exec(sql))
        fallar(sql + QStringLiteral(": ") + q.lastError().text());
}

void cargarTabla(QSqlDatabase& db, const QString& ruta)
{
    QFile f(ruta);
    if (!f.open(QIODevice::ReadOnly | QIODevice::Text))
        fallar(QStringLiteral("no se puede leer ") + ruta);
    QTextStream in(&f);
    in.setEncoding(QStringConverter::Utf8);
    const QString tabla = QFileInfo(ruta).completeBaseName();
    QStringList columnas;
    QStringList definicion;
    QSqlQuery q(db);
    QString insercion;
    int linea = 0;
    while (!in.atEnd()) {
        const QString texto = in.readLine();
        ++linea;
        if (texto.isEmpty() || texto.startsWith(QLatin1Char('#')))
            continue;
        const QStringList campos = texto.split(QLatin1Char('\t'));
        if (columnas.isEmpty()) {
            for (const QString& c : campos) {
                const QStringList partes = c.split(QLatin1Char(' '), Qt::SkipEmptyParts);
                if (partes.size() < 2)
                    fallar(QStringLiteral("%1:%2: columna sin tipo").arg(ruta).arg(linea));
                columnas << partes[0];
                definicion << partes[0] + QLatin1Char(' ') + partes[1]
                                  + (partes.size() > 2 ? QStringLiteral(" PRIMARY KEY") : QString());
            }
            ejecutar(q, QStringLiteral("CREATE TABLE %1 (%2)").arg(tabla, definicion.join(", ")));
            QStringList marcas;
            for (int i = 0; i < columnas.size(); ++i)
                marcas << QStringLiteral("?");
            insercion = QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                            .arg(tabla, columnas.join(", "), marcas.join(", "));
            continue;
        }
        if (campos.size() != columnas.size())
            fallar(QStringLiteral("%1:%2: %3 campos, se esperaban %4")
                       .arg(ruta).arg(linea).arg(campos.size()).arg(columnas.size()));
        q.prepare(insercion);
        for (const QString& c : campos)
            q.addBindValue(c);
        if (!q.exec())
            fallar(QStringLiteral("%1:%2: %3").arg(ruta).arg(linea).arg(q.lastError().text()));
    }
}
}

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() < 2)
        fallar(QStringLiteral("uso: generalec SALIDA.mdb TABLA.tsv..."));
    const QString salida = args[1];
    const QString temporal = salida + QStringLiteral(".tmp");
    QFile::remove(temporal);
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("lec"));
        db.setDatabaseName(temporal);
        if (!db.open())
            fallar(db.lastError().text());
        db.transaction();
        for (int i = 2; i < args.size(); ++i)
            cargarTabla(db, args[i]);
        if (!db.commit())
            fallar(db.lastError().text());
        db.close();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("lec"));
    QFile::remove(salida);
    if (!QFile::rename(temporal, salida))
        fallar(QStringLiteral("no se puede escribir ") + salida);
    return 0;
}
