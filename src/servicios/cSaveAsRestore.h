#pragma once
// Backup and restore of the read/write database: the copies and the checks, no dialogs. The
// questions, the file chooser and the messages are the application's (aplicacion/CopiaSeguridad).
//
// Copiar writes RutaOrigen+ArchivoOrigen (the live database) to RutaDestino+ArchivoDestino,
// consistently even while the database is open and in WAL mode: SQLite writes a copy of it
// to a temporary file beside the destination, which is then renamed over the former backup.
// A failure leaves the database and the former backup as they were.
//
// Examinar judges a file offered for a restore: a database of this program, of a layout it can
// migrate, and whole once copied.
//
// Restaurar copies the file beside the live database (RutaDestino+ArchivoDestino), checks the
// copy, closes the connections to the live file and renames the copy over it. Answers whether
// the live database has been replaced; on every other way out it is untouched.
//
// BDLectura, BDTabla and BDCampo point at the mark of this program's databases in the
// reference database (the SQLite application_id a restored file must carry).
#include <QString>
#include <QtGlobal>

class cSaveAsRestore {
public:
    QString ArchivoOrigen;
    QString ArchivoDestino;
    QString RutaDestino;
    QString RutaOrigen;
    QString BDLectura;
    QString BDTabla;
    QString BDCampo;

    enum class Examen { Valida, Ajena, Posterior };
    struct Restauracion {
        bool hecha = false;
    };

    QString Origen() const;   // RutaOrigen + ArchivoOrigen
    QString Destino() const;  // RutaDestino + ArchivoDestino
    bool ExisteDestino() const;
    // Answers true when the backup was written.
    bool Copiar() const;
    Examen Examinar(const QString& archivo) const;
    Restauracion Restaurar(const QString& archivo) const;

    // The chooser's filter in the form of Qt's file dialogs: "archivos mdb (*.mdb)".
    static QString FiltroDialogo(const QString& filtro);

private:
    qint32 marca() const;
};
