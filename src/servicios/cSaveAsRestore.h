#pragma once
// Backup and restore of the read/write database, with their own dialogs.
//
// CrearBackup copies RutaOrigen+ArchivoOrigen (the live database) to RutaDestino+ArchivoDestino,
// consistently even while the database is open and in WAL mode: SQLite writes a copy of it
// to a temporary file beside the destination, which is then renamed over the former backup.
// When a backup already exists the question of id 337 comes first; a failure is told with
// ids 338 and 339 and leaves the database and the former backup as they were.
//
// CrearRestore takes RutaOrigen+ArchivoOrigen (the backup; when there is none, the user may
// choose a file), copies it beside the live database, checks the copy (a database of this
// program, of a layout it can migrate, and whole), asks the confirmation of id 340, closes the
// connections to the live file and renames the copy over it. Answers true only when the live
// database has been replaced; on every other way out it is untouched.
//
// The texts are in the language of `Idioma` (0 Spanish, any other value Basque).
// BDLectura, BDTabla and BDCampo point at the mark of this program's databases in the
// reference database (the SQLite application_id a restored file must carry).
#include <QString>
#include <cstdint>

class QWidget;

class cSaveAsRestore {
public:
    QString ArchivoOrigen;
    QString ArchivoDestino;
    QString RutaDestino;
    QString RutaOrigen;
    QString Filtro;  // the file chooser's filter, "description|pattern;pattern"
    int16_t Idioma = 0;
    QWidget* Parent = nullptr;
    QString BDLectura;
    QString BDTabla;
    QString BDCampo;

    // Answers true when the backup was written.
    bool CrearBackup() const;
    bool CrearRestore() const;

    // The chooser's filter in the form of Qt's file dialogs: "archivos mdb (*.mdb)".
    static QString FiltroDialogo(const QString& filtro);

private:
    QString texto(int id) const;
    QString segunIdioma(const QString& es, const QString& eu) const;
    qint32 marca() const;
};
