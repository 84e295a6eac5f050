#include "servicios/Esquema.h"

#include "plataforma/Fallo.h"
#include "servicios/Conexion.h"
#include "servicios/MotorAlmacenes.h"
#include "servicios/sqlite/ConexionPropia.h"

#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>

namespace {

QList<Esquema::Paso>& pasosDePrueba()
{
    static QList<Esquema::Paso> pasos;
    return pasos;
}

void ejecutarTodas(const QSqlDatabase& db, const QStringList& sentencias, const QString& origen)
{
    for (const QString& sql : sentencias)
        Ejecutar(db, sql, {}, origen);
}

// Layout 0 -> 1. On a file of layout 0 the settings are carried over into the new
// CONFIGURACION (a language left empty becomes "C", an update setting outside -1..1 becomes
// undecided); on an empty file the single row starts as Spanish and undecided.
void paso1(const QSqlDatabase& db, const QString& origen)
{
    const bool anterior = Esquema::ExisteTabla(db, QStringLiteral("CONFIGURACION"), origen);
    if (anterior)
        Ejecutar(db, QStringLiteral("ALTER TABLE CONFIGURACION RENAME TO CONFIGURACION_V0"), {},
                 origen);
    ejecutarTodas(db, Esquema::ConfiguracionV1(), origen);
    if (anterior) {
        Ejecutar(db,
                 QStringLiteral(
                     "INSERT INTO CONFIGURACION (ID, IDIOMA, ACTONLINE) "
                     "SELECT 1, COALESCE(NULLIF(TRIM(IDIOMA), ''), 'C'), "
                     "CASE WHEN CAST(ACTONLINE AS INTEGER) IN (-1, 0, 1) "
                     "THEN CAST(ACTONLINE AS INTEGER) ELSE -1 END "
                     "FROM CONFIGURACION_V0 LIMIT 1"),
                 {}, origen);
        Ejecutar(db, QStringLiteral("DROP TABLE CONFIGURACION_V0"), {}, origen);
    }
    Ejecutar(db,
             QStringLiteral("INSERT INTO CONFIGURACION (ID, IDIOMA, ACTONLINE) "
                            "VALUES (1, 'C', -1) ON CONFLICT DO NOTHING"),
             {}, origen);
    const Dialecto dialecto = MotorDe(db).DialectoEsquema();
    ejecutarTodas(db, EsquemaPartesV1(dialecto), origen);
    ejecutarTodas(db, EsquemaDeclaracionesV1(dialecto), origen);
}

// Layout 1 -> 2: the version of every row of the parties and of the returns.
void paso2(const QSqlDatabase& db, const QString& origen)
{
    ejecutarTodas(db, EsquemaVersionesV2(MotorDe(db).DialectoEsquema()), origen);
}

bool esCabeceraSqlite(const QString& ruta)
{
    QFile f(ruta);
    if (!f.open(QIODevice::ReadOnly))
        return false;
    static const QByteArray cabecera("SQLite format 3\0", 16);
    return f.read(16) == cabecera;
}

// SQLite's answers for a file that is not a database, or is one no longer.
bool esNoBaseDeDatos(const QSqlError& error)
{
    const int codigo = error.nativeErrorCode().toInt();
    return codigo == 26 /*SQLITE_NOTADB*/ || codigo == 11 /*SQLITE_CORRUPT*/;
}

// Table -> its column names, both in capitals, of the open database (the engine's own left
// out).
QMap<QString, QStringList> disposicionDe(const QSqlDatabase& db, const QString& origen)
{
    const Motor& motor = MotorDe(db);
    QMap<QString, QStringList> tablas;
    for (const QString& tabla : motor.Tablas(db, origen)) {
        QStringList columnas;
        for (const QString& c : motor.Columnas(db, tabla, origen))
            columnas << c.toUpper();
        columnas.sort();
        tablas.insert(tabla.toUpper(), columnas);
    }
    return tablas;
}

// The tables and columns of layout `version`, built in a database in memory.
QMap<QString, QStringList> disposicionDeReferencia(int version, const QString& origen)
{
    const QString nombre =
        QStringLiteral("disposicion-") + QUuid::createUuid().toString(QUuid::Id128);
    QMap<QString, QStringList> tablas;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), nombre);
        db.setDatabaseName(QStringLiteral(":memory:"));
        if (!db.open())
            throw cFallo(3049, origen, db.lastError().text());
        if (version == 0) {
            Ejecutar(db, QStringLiteral("CREATE TABLE CONFIGURACION (IDIOMA TEXT, ACTONLINE INTEGER)"),
                     {}, origen);
        } else {
            for (const Esquema::Paso& paso : Esquema::Pasos())
                if (paso.version <= version)
                    paso.aplicar(db, origen);
        }
        tablas = disposicionDe(db, origen);
        db.close();
    }
    QSqlDatabase::removeDatabase(nombre);
    return tablas;
}

}  // namespace

namespace Esquema {

QStringList ConfiguracionV1()
{
    return {
        // One row, ID 1: the language letter ("C" Spanish, "E" Basque; any other letter is
        // kept as given and read as Spanish by the program) and the update setting.
        QStringLiteral("CREATE TABLE CONFIGURACION ("
                       "ID INTEGER PRIMARY KEY CHECK (ID = 1), "
                       "IDIOMA TEXT NOT NULL DEFAULT 'C', "
                       "ACTONLINE INTEGER NOT NULL DEFAULT -1 CHECK (ACTONLINE IN (-1, 0, 1)))"),
    };
}

QList<Paso> Pasos()
{
    QList<Paso> pasos{
        {1, paso1},
        {2, paso2},
    };
    pasos.append(pasosDePrueba());
    return pasos;
}

int VersionActual()
{
    return Pasos().constLast().version;
}

int VersionDe(const QSqlDatabase& db, const QString& origen)
{
    return MotorDe(db).VersionDe(db, origen);
}

qint32 MarcaDe(const QSqlDatabase& db, const QString& origen)
{
    return MotorDe(db).MarcaDe(db, origen);
}

int ObjetosDe(const QSqlDatabase& db, const QString& origen)
{
    return MotorDe(db).Objetos(db, origen);
}

bool ExisteTabla(const QSqlDatabase& db, const QString& tabla, const QString& origen)
{
    return MotorDe(db).Tablas(db, origen).contains(tabla, Qt::CaseInsensitive);
}

Reconocimiento Reconocer(const QString& ruta, const QString& origen, qint32 marca)
{
    const QFileInfo info(ruta);
    if (!info.exists())
        return {Clase::Inexistente, 0};
    if (!info.isFile())
        return {Clase::NoEsBaseDeDatos, 0};
    if (info.size() == 0)
        return {Clase::Vacia, 0};
    if (!esCabeceraSqlite(ruta))
        return {Clase::NoEsBaseDeDatos, 0};

    ConexionPropia conexion(ruta, ConexionPropia::Modo::Examen);
    if (!conexion.abierta()) {
        if (esNoBaseDeDatos(conexion.error()))
            return {Clase::NoEsBaseDeDatos, 0};
        throw cFallo(3049, origen, ruta + QStringLiteral(": ") + conexion.error().text());
    }
    try {
        const QSqlDatabase db = conexion.db();
        // The schema is read first: a damaged file fails here, before its header is trusted.
        const int objetos = ObjetosDe(db, origen);
        const qint32 suMarca = MarcaDe(db, origen);
        const int version = VersionDe(db, origen);
        if (suMarca == marca)
            return {Clase::Propia, version};
        if (suMarca == 0 && version == 0 && objetos == 0)
            return {Clase::Vacia, 0};
        return {Clase::Ajena, 0};
    } catch (const cFallo& f) {
        // 26 and 11 are the embedded engine's "not a database" and "damaged"; anything else is a failure.
        if (f.numero() == 26 || f.numero() == 11)
            return {Clase::NoEsBaseDeDatos, 0};
        throw;
    }
}

bool TieneDisposicion(const QSqlDatabase& db, int version, const QString& origen)
{
    return disposicionDe(db, origen) == disposicionDeReferencia(version, origen);
}

void Migrar(const QSqlDatabase& db, int desde, const QString& origen)
{
    const Motor& motor = MotorDe(db);
    motor.AntesDeDisponer(db, origen);
    for (const Paso& paso : Pasos()) {
        if (paso.version > desde)
            paso.aplicar(db, origen);
    }
    motor.TrasDisponer(db, origen);
    motor.Sellar(db, MarcaAplicacion, VersionActual(), origen);
    if (const auto rota = motor.PrimeraReferenciaRota(db, origen))
        throw cFallo(3201, origen,
                     QStringLiteral("La tabla %1 tiene referencias a filas que no existen en %2.")
                         .arg(rota->tabla, rota->destino));
}

}  // namespace Esquema

namespace EsquemaSeam {
void agregarPaso(Esquema::Paso paso)
{
    pasosDePrueba().append(std::move(paso));
}
void limpiar()
{
    pasosDePrueba().clear();
}
}  // namespace EsquemaSeam
