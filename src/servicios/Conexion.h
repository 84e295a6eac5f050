#pragma once
// The stores' access to their databases, through the stores' engine (MotorAlmacenes.h). A
// connection is opened on first use of a file and kept for the rest of the run (one per file
// and thread); no code outside src/servicios holds one. Every failure becomes a cFallo with the
// store's name as its source.
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariant>
#include <QVariantList>

namespace Conexion {
// The read/write database, set up by the engine (Motor::Preparar): references enforced, and a
// second running instance waits for a lock instead of failing. The file must exist unless
// `crear`. Every connection, of either file, has the SQL function PLEGAR of the searches.
QSqlDatabase Modificable(const QString& ruta, const QString& origen, bool crear = false);
// The read-only reference database.
QSqlDatabase Lectura(const QString& ruta, const QString& origen);
// Closes every connection of the stores, the read/write files' journals written back into
// them first: after a clean end a store is one file, whole, that can be copied as it is. Run
// at every clean end of the program (Proceso::AlTerminarBien), which ends without unwinding;
// only then, for the stores' prepared statements end with their connections.
void CerrarTodas();
// Closes and forgets the connections to `ruta` (before the file is replaced or removed).
void Cerrar(const QString& ruta);
}

// One statement with bound parameters; raises cFallo(origen) when it fails.
QSqlQuery Ejecutar(const QSqlDatabase& db, const QString& sql, const QVariantList& valores,
                   const QString& origen);
// The first column of the first row, or `siVacio` when there is no row.
QVariant Escalar(const QSqlDatabase& db, const QString& sql, const QVariantList& valores,
                 const QString& origen, const QVariant& siVacio = QVariant());

// A write transaction: begun on construction, rolled back on destruction unless confirmed, so
// that a failure half-way leaves the file as it was.
class Transaccion {
public:
    Transaccion(QSqlDatabase db, QString origen);
    ~Transaccion();
    Transaccion(const Transaccion&) = delete;
    Transaccion& operator=(const Transaccion&) = delete;
    void confirmar();

private:
    QSqlDatabase m_db;
    QString m_origen;
    bool m_abierta = false;
};
