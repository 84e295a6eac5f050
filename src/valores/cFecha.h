#pragma once
// A date has two forms in the program: the text of a field, whose layout follows the language
// (dd/mm/yyyy in Spanish, yyyy/mm/dd in Basque), and the number yyyymmdd that records keep and
// compare (0 empty, -1 bad). cFecha converts between them and decides what a valid date is,
// with its own rules rather than the platform's calendar. It keeps no state: every conversion
// is told the language, so the bilingual printed sheet can write one date in both layouts
// without touching the program's language.
#include "plataforma/Idioma.h"

#include <QString>
#include <cstdint>
#include <optional>

class cFecha {
public:
    // What an empty date field holds in `idioma`.
    static QString FecVacia(Idioma idioma);
    // The number yyyymmdd of a date text: 0 for the empty mask, -1 for a bad date.
    static int32_t StringToLong(const QString& fecha, Idioma idioma,
                                std::optional<int16_t> minimo = std::nullopt);
    // True for a valid date of year `minimo` or later, and for the empty mask.
    static bool EsFecha(const QString& fecha, Idioma idioma,
                        std::optional<int16_t> minimo = std::nullopt);
    // The text of a number yyyymmdd (ddmmyyyy when `marcador` is given, whatever its value).
    // A number below 1, or a bad date, gives the empty mask.
    static QString LongToString(int32_t numero, Idioma idioma,
                                std::optional<QString> marcador = std::nullopt);
};
