#include "servicios/BibliotecaSqlite.h"

#include "catalogo/Catalogo.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QUuid>
#include <sqlite3.h>

namespace {
constexpr int kIdBibliotecaDistinta = 378;

QString fuenteDelControlador()
{
    const QString nombre = QStringLiteral("fuente-sqlite-") + QUuid::createUuid().toString(QUuid::Id128);
    QString fuente;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), nombre);
        db.setDatabaseName(QStringLiteral(":memory:"));
        if (db.open()) {
            QSqlQuery q(db);
            if (q.exec(QStringLiteral("SELECT sqlite_source_id()")) && q.next())
                fuente = q.value(0).toString();
            q.finish();
            db.close();
        }
    }
    QSqlDatabase::removeDatabase(nombre);
    return fuente;
}
}

FuentesSqlite LeerFuentesSqlite()
{
    return {QString::fromLatin1(sqlite3_sourceid()), fuenteDelControlador()};
}

QString AvisoBibliotecaSqlite(const FuentesSqlite& fuentes)
{
    if (fuentes.propia == fuentes.delControlador)
        return {};
    const QString ninguna = QStringLiteral("?");
    return Texto(kIdBibliotecaDistinta)
        .arg(fuentes.propia.isEmpty() ? ninguna : fuentes.propia,
             fuentes.delControlador.isEmpty() ? ninguna : fuentes.delControlador);
}
