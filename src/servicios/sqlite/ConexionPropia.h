#pragma once
// A connection of its own to one SQLite file, apart from the stores' shared ones (Conexion.h),
// closed and forgotten on leaving the scope: the checks of a store, the making of a backup and
// a restore work on files that the stores must not keep open.
#include "servicios/motor/Motor.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QString>

// The driver's connection `nombre` (made when there is none) aimed at the SQLite file `ruta`
// with this access, not opened yet.
QSqlDatabase DefinirConexionSqlite(const QString& nombre, const QString& ruta, Acceso acceso);

class ConexionPropia {
public:
    enum class Modo {
        Lectura,             // read only
        // To read a file the program may find in WAL mode (its own store, a backup of it):
        // opened for writing, although nothing is written, when the file can be written. On
        // closing, the last connection of a WAL file removes the journal files it found or
        // made, where a read-only one would leave them behind.
        Examen,
        Escritura,           // read and write
        EscrituraConAdjuntos // read and write; files attached by URI (read-only attachments)
    };

    ConexionPropia(const QString& ruta, Modo modo);
    ~ConexionPropia();
    ConexionPropia(const ConexionPropia&) = delete;
    ConexionPropia& operator=(const ConexionPropia&) = delete;

    bool abierta() const { return m_abierta; }
    // Why it did not open.
    const QSqlError& error() const { return m_error; }
    QSqlDatabase db() const { return QSqlDatabase::database(m_nombre, false); }
    // Raises cFallo(3049, origen), naming the file and SQLite's reason, when it did not open.
    void ExigirAbierta(const QString& origen) const;

private:
    QString m_nombre;
    QString m_ruta;
    bool m_abierta = false;
    QSqlError m_error;
};
