#include "servicios/CopiaSaneada.h"

#include "plataforma/Fallo.h"
#include "servicios/Conexion.h"
#include "servicios/Esquema.h"
#include "servicios/EstructuraAlmacen.h"
#include "servicios/MotorAlmacenes.h"
#include "servicios/sqlite/ArchivoSqlite.h"
#include "servicios/sqlite/ConexionPropia.h"

#include <QFileInfo>
#include <QSqlError>

namespace {

using EstructuraAlmacen::Citado;

// SQLite's answers that tell a file that breaks the program's rules or is not whole: a
// constraint (19), a damaged page (11), not a database (26), a value of the wrong kind for a
// key (20), an error in the file's own statements such as an unknown collation (1).
bool esRechazo(const cFallo& f)
{
    switch (f.numero() & 0xff) {
    case 1:
    case 11:
    case 19:
    case 20:
    case 26:
        return true;
    default:
        return false;
    }
}

// The program's own empty tables of the layout.
void disponerVacia(const QSqlDatabase& db, int version, const QString& origen)
{
    EstructuraAlmacen::Disponer(db, version, origen);
    for (const QString& t : EstructuraAlmacen::Tablas(db, QStringLiteral("main"), origen))
        Ejecutar(db, QStringLiteral("DELETE FROM main.") + Citado(t), {}, origen);
    ArchivoSqlite::VaciarContadores(db, origen);
}

void copiarFilas(const QSqlDatabase& db, const QString& origen)
{
    for (const QString& t : EstructuraAlmacen::Tablas(db, QStringLiteral("main"), origen)) {
        // An INSERT ... SELECT of no rows would still leave a counter of 0 for a never-reused
        // key, which the file does not hold.
        if (!Escalar(db, QStringLiteral("SELECT EXISTS (SELECT 1 FROM origen.%1)").arg(Citado(t)),
                     {}, origen, 0).toBool())
            continue;
        QStringList columnas;
        for (const QString& c : EstructuraAlmacen::Columnas(db, QStringLiteral("main"), t, origen))
            columnas << Citado(c);
        const QString lista = columnas.join(QStringLiteral(", "));
        Ejecutar(db,
                 QStringLiteral("INSERT INTO main.%1 (%2) SELECT %2 FROM origen.%1")
                     .arg(Citado(t), lista),
                 {}, origen);
    }
}

bool construir(const QSqlDatabase& db, const QString& archivo, int version, const QString& origen)
{
    // The copy is a file of its own until it is checked: a failure discards it whole.
    MotorEmbebido().ExigirReferencias(db, false, origen);
    ArchivoSqlite::SinEsperarAlDisco(db, origen);
    {
        Transaccion disposicion(db, origen);
        disponerVacia(db, version, origen);
        disposicion.confirmar();
    }
    const ArchivoSqlite::Adjunto adjunto(db, archivo, QStringLiteral("origen"), true, origen);
    // One transaction: the file is read under one lock from its shape to its last row.
    Transaccion transaccion(db, origen);
    if (EstructuraAlmacen::De(db, QStringLiteral("origen"), origen)
        != EstructuraAlmacen::DeReferencia(version, origen))
        return false;
    if (!ArchivoSqlite::Entero(db, QStringLiteral("origen"), origen))
        return false;
    copiarFilas(db, origen);
    ArchivoSqlite::CopiarContadores(db, QStringLiteral("origen"), origen);
    if (ArchivoSqlite::ReferenciasRotas(db, origen))
        return false;
    ArchivoSqlite::Sellar(db, Esquema::MarcaAplicacion, version, origen);
    transaccion.confirmar();
    return true;
}

}  // namespace

namespace CopiaSaneada {

bool Construir(const QString& archivo, const QString& destino, int version, const QString& origen)
{
    if (QFileInfo::exists(destino))
        throw cFallo(58, origen, QStringLiteral("Ya existe ") + destino);
    // Files by URI allowed, so that the backup is read through a read-only one.
    ConexionPropia conexion(destino, ConexionPropia::Modo::EscrituraConAdjuntos);
    conexion.ExigirAbierta(origen);
    try {
        return construir(conexion.db(), archivo, version, origen);
    } catch (const cFallo& f) {
        if (esRechazo(f))
            return false;
        throw;
    }
}

}  // namespace CopiaSaneada
