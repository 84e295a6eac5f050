#pragma once
// Backup and restore of the read/write database: the copies and the checks, no dialogs. The
// questions, the file chooser and the messages are the application's (aplicacion/CopiaSeguridad).
//
// Copiar writes RutaOrigen+ArchivoOrigen (the live database) to RutaDestino+ArchivoDestino,
// consistently even while the database is open and in WAL mode: SQLite writes a copy of it
// to a temporary file beside the destination, which is then renamed over the former backup.
// A failure leaves the database and the former backup as they were.
//
// Examinar judges a file offered for a restore by itself, read-only: a database of this
// program, of a layout it can migrate, whole (every page and index checked), made of exactly the
// objects of the layout its header claims (EstructuraAlmacen: no trigger, view, extra table or
// index, the same keys and column types).
//
// Restaurar replaces the content of the live database (RutaDestino+ArchivoDestino) with that
// of a file. Nothing the file defines is run or kept: its rows are carried into the program's
// own tables in a clean copy beside the live database, and checked there against the
// program's own constraints and references (CopiaSaneada). Then, under one write lock of the
// live file (one transaction: Motor::SustituirContenido), the live database is kept as a dated safety copy in
// RutaOrigen (the folder of the backups) and its content is replaced by the clean copy's. A
// second running copy of the program that saves meanwhile waits for the lock, so each of its
// saves is either in the safety copy or in the restored data. The live file itself is never
// removed nor renamed: that second copy, with the file open, sees the restored data at once
// and goes on writing into it. A refused file or any failure leaves the live data as they
// were, byte for byte.
//
// Temporary copies are hidden files ".<name>.<12 hex>.tmp" beside their destination, each
// held by a lock file while its maker runs; LimpiarTemporales removes those whose maker is
// gone (a copy of the program killed half-way).
//
// BDLectura, BDTabla and BDCampo point at the mark of this program's databases in the
// reference database (the program's mark a restored file must carry).
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
        QString copiaPrevia;  // the dated safety copy of the live database, when one was made
        // Why it was not done: Ajena or Posterior when the file was refused, Valida when the
        // file was good and the work failed.
        Examen examen = Examen::Ajena;
    };

    QString Origen() const;   // RutaOrigen + ArchivoOrigen
    QString Destino() const;  // RutaDestino + ArchivoDestino
    bool ExisteDestino() const;
    // Answers true when the backup was written.
    bool Copiar() const;
    Examen Examinar(const QString& archivo) const;
    Restauracion Restaurar(const QString& archivo) const;

    // Removes the temporary copies left in `carpeta` by a copy of the program that ended
    // half-way; those of a copy still running are kept. Answers how many were removed.
    static int LimpiarTemporales(const QString& carpeta);

    // The chooser's filter in the form of Qt's file dialogs: "archivos mdb (*.mdb)".
    static QString FiltroDialogo(const QString& filtro);

private:
    qint32 marca() const;
};
