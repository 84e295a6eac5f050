#pragma once
// The stores' door for texts. Every text of a value to save is looked at here, once, before any
// statement sees it, so that what a column cannot keep as given is refused with the program's
// own words instead of reaching SQLite: there a name of blanks or one that begins with NUL
// breaks a constraint (SQLite measures a text up to its first NUL), and half of a surrogate
// pair is turned into another character, joined with its neighbour, on its way to UTF-8.
//
// A text is refused when it is, after the blanks around it (the stored form of the parties'
// texts drops them):
//  - empty, where the column must hold a value: the record's own message for a missing value;
//  - holding a control character of C0 or DEL (NUL, tab, line break, ...) or a broken character
//    (a lone half of a surrogate pair, which does not survive the way to UTF-8 and back) or a
//    noncharacter (U+FFFE, U+FFFF...), which comes back as U+FFFD;
//  - longer, in characters, than the column holds.
// Nothing is ever changed silently: a text passes as it stands or is refused.
#include "valores/Veredicto.h"

#include <QString>

// What keeps a text out of its column.
enum class DefectoTexto {
    Ninguno,
    Vacio,       // blanks only, or nothing, where the column must hold a value
    Caracteres,  // a control character, or a character broken in two
    Largo,       // more characters than the column holds
};

// One text column of a store.
struct ColumnaTexto {
    int ancho;                 // the characters the column holds, or kAnchoDeCifras
    int idEtiqueta;            // catalogue id of the field's label, which names it in a message
    const char* control;       // objectName of the field that shows the value
    int idVacio = 0;           // catalogue id of the record's message for a missing value; 0
                               // when the column may be empty
    int pestana = kSinPestana;  // the tab of the panel that holds the field
};

// The width of a code of digits (province, postal code, municipality) is judged on its digits
// by the store that keeps it ("001" and "1" are the same municipality); here only its
// characters are.
inline constexpr int kAnchoDeCifras = -1;

// How the blanks around a text are taken: the stores of parties keep a text without them, the
// store of returns keeps it as given.
enum class Blancos { Recortados, Conservados };

// Characters as SQLite counts them: whole characters, a pair of surrogates being one (a lone
// half counts as one, as it does once replaced on its way to UTF-8).
qsizetype Caracteres(QStringView texto);

DefectoTexto ExaminarTexto(const QString& texto, int ancho, bool obligatorio, Blancos blancos);

// The verdict on one text of column `columna`: the message in the
// current language, with the field's name and width in place, and the field to focus. An empty
// verdict when the column can keep the text.
Veredicto ComprobarTexto(const QString& texto, const ColumnaTexto& columna, Blancos blancos);

// The name of a field in messages: its label without the access key, the colon and the dots
// ("Apellidos y Nombre:" -> "Apellidos y Nombre").
QString NombreDeCampo(int idEtiqueta);
