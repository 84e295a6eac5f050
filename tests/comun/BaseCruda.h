#pragma once
// A database seen from outside the program: a raw connection of its own (as another program or
// a second running instance would have), files crafted in a given layout, and ways to compare
// a database before and after.
#include <QByteArray>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>

class ConexionCruda {
public:
    explicit ConexionCruda(const QString& ruta, bool lectura = false);
    ~ConexionCruda();
    ConexionCruda(const ConexionCruda&) = delete;
    ConexionCruda& operator=(const ConexionCruda&) = delete;

    QSqlDatabase db() const;
    // Runs one statement and fails the test on error (QVERIFY cannot be used outside a slot).
    void ejecutar(const QString& sql) const;
    QVariant escalar(const QString& sql) const;

private:
    QString m_nombre;
};

int VersionDeArchivo(const QString& ruta);
qint32 MarcaDeArchivo(const QString& ruta);
QStringList TablasDe(const QString& ruta);
QStringList ColumnasDe(const QString& ruta, const QString& tabla);
// The schema, the header numbers and every row of every table, as text: two files with the
// same dump hold the same data.
QString Volcado(const QString& ruta);
QByteArray Bytes(const QString& ruta);

// A file of the first release (layout 0): the program's mark, user_version 0 and
// CONFIGURACION(IDIOMA, ACTONLINE) with one row.
void CrearLayout0(const QString& ruta, const QString& idioma, int actOnline);
// An SQLite database of another program: a table of its own, no mark.
void CrearBaseAjena(const QString& ruta, qint32 marca = 0);
// A database with the program's mark and a layout above the current one.
void CrearLayoutPosterior(const QString& ruta, int version);
// Adds `n` rows to a table of the read/write database, whatever its columns: every column
// without a default gets a value of its type, distinct per row. Foreign keys and checks are
// off on this connection, so the rows stand only for counting.
void InsertarFilas(const QString& ruta, const QString& tabla, int n);
// Adds `n` contributors that keep every rule of the program's own table (a restore checks
// them), with numbers that follow the last row's code; in one transaction.
void InsertarContribuyentes(const QString& ruta, int n);
