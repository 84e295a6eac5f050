#pragma once
// The dialogue of the commands Backup and Restore of the main window: the questions, the file
// chooser and the messages, in the language of `Idioma` (0 Spanish, any other value Basque).
// The copies and the checks are the store's (servicios/cSaveAsRestore).
//
// CrearBackup: when a backup already exists the question of id 337 comes first; a failure is
// told with ids 338 and 339; success is told too.
//
// CrearRestore: the backup at RutaOrigen+ArchivoOrigen, or, when there is none, a file the user
// chooses; a file that is not a usable backup is refused with its reason before any question;
// then the confirmation of id 340 (title 341), the restore, and its outcome (a file whose rows
// break the program's rules is refused then, with the same message as a file that is not a
// backup). Answers true only when the live database has been replaced.
#include "servicios/cSaveAsRestore.h"

#include <QString>
#include <cstdint>

class QWidget;

class CopiaSeguridad {
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

    // The objects of the main window's commands: the program's own backup file in the
    // backups/ of its data folder, and the live database; in the current language.
    static CopiaSeguridad ParaBackup();
    static CopiaSeguridad ParaRestore();

    bool CrearBackup() const;
    bool CrearRestore() const;

    // The same work and checks without a window and without questions (the command line): an
    // existing backup is replaced; the file to restore is given (the dated safety copy goes
    // to RutaOrigen, the folder of the backups, as in the dialogue). The message for the user comes back, with the file written (the backup, or the dated safety
    // copy of the live database).
    struct Resultado {
        bool hecho = false;
        QString mensaje;
        QString fichero;
    };
    Resultado HacerBackup() const;
    Resultado HacerRestore(const QString& archivo) const;

    // Why a file offered for a restore is refused.
    QString TextoRechazo(cSaveAsRestore::Examen examen) const;

private:
    cSaveAsRestore almacen() const;
    // Tells why a file is refused (nothing for a usable one); answers whether it is usable.
    bool avisarRechazo(cSaveAsRestore::Examen examen) const;
    QString texto(int id) const;
    QString segunIdioma(const QString& es, const QString& eu) const;
    QString textoBackupHecho() const;
    QString textoRestoreFallido() const;
    QString textoRestoreHecho() const;
};
