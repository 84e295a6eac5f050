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
// then the confirmation of id 340 (title 341), the restore, and its outcome. Answers true only
// when the live database has been replaced.
#include <QString>
#include <cstdint>

class QWidget;
class cSaveAsRestore;

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

    bool CrearBackup() const;
    bool CrearRestore() const;

private:
    cSaveAsRestore almacen() const;
    QString texto(int id) const;
    QString segunIdioma(const QString& es, const QString& eu) const;
};
