#pragma once
// Qt's own dialogs and buttons (the file chooser of backup, restore, export and import, the
// standard buttons) in the language in use: Qt's translations of the system (Debian's
// qt6-translations-l10n) for Spanish; for Basque Qt's own when the system has them, else the
// Spanish ones, which a user of this bilingual program reads better than English.
#include <QString>

// Installs the translations of the program's language, replacing those of an earlier call.
// Answers the name of the file loaded ("qtbase_es"), or an empty text when none was found.
QString CargarTraduccionesQt();
