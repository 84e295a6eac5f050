#include "servicios/sqlite/PaginasSqlite.h"

#include "servicios/sqlite/ConexionPropia.h"

#include <QSqlDatabase>
#include <QSqlQuery>

namespace {

// How many findings the check reports at most: enough to see past rows written by another
// tool to the damage of a page, if there is one.
constexpr int kHallazgos = 100;

// A finding about one row's values, not about the file: a row that breaks a CHECK or a NOT
// NULL, written by a tool other than this program. The file is whole, and the program reads
// such a row as it reads any other; the check is there to find damaged pages.
bool esDeFila(const QString& hallazgo)
{
    return hallazgo.startsWith(QLatin1String("CHECK constraint failed in "))
        || hallazgo.startsWith(QLatin1String("NULL value in "));
}

}  // namespace

bool PaginasSqliteSanas(const QString& ruta, bool completa)
{
    ConexionPropia conexion(ruta, ConexionPropia::Modo::Examen);
    if (!conexion.abierta())
        return false;
    QSqlQuery q(conexion.db());
    q.setForwardOnly(true);
    // Every page is read: mapped into memory they are read in place instead of being copied
    // one by one into the page cache, which on a store of 50 MB is a good part of the time.
    q.exec(QStringLiteral("PRAGMA mmap_size = 1073741824"));
    if (!q.exec(completa ? QStringLiteral("PRAGMA integrity_check(%1)").arg(kHallazgos)
                         : QStringLiteral("PRAGMA quick_check(%1)").arg(kHallazgos)))
        return false;
    if (!q.next())
        return false;
    if (q.value(0).toString() == QLatin1String("ok"))
        return true;
    do {
        if (!esDeFila(q.value(0).toString()))
            return false;
    } while (q.next());
    return true;
}
