#include "servicios/sqlite/BibliotecaSqlite.h"

#include "catalogo/Catalogo.h"
#include "catalogo/IdsCatalogo.h"
#include "servicios/sqlite/ConexionPropia.h"

#include <QSqlQuery>
#include <sqlite3.h>

namespace {
QString fuenteDelControlador()
{
    ConexionPropia conexion(QStringLiteral(":memory:"), ConexionPropia::Modo::Escritura);
    if (!conexion.abierta())
        return {};
    QSqlQuery q(conexion.db());
    return q.exec(QStringLiteral("SELECT sqlite_source_id()")) && q.next() ? q.value(0).toString()
                                                                           : QString();
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
    return Texto(kIdBibliotecaSqliteDistinta)
        .arg(fuentes.propia.isEmpty() ? ninguna : fuentes.propia,
             fuentes.delControlador.isEmpty() ? ninguna : fuentes.delControlador);
}
