#pragma once
// A date has two forms in the program: the text of a field, whose layout follows the language
// (dd/mm/yyyy in Spanish, yyyy/mm/dd in Basque), and the number yyyymmdd that records keep and
// compare (0 empty, -1 bad). cFecha converts between them and decides what a valid date is,
// with its own rules rather than the platform's calendar.
//
// The language tests are not all alike, on purpose: FecVacia asks "is it Basque?",
// EsFecha, StringToLong and LongToString ask "is it Spanish?". With only "C" and "E" in use
// they agree.
#include <QString>
#include <cstdint>
#include <optional>

class cFecha {
public:
    // The language letter, "C" Spanish or "E" Basque; set together with Entrada().IDI.
    QString fecidioma = QStringLiteral("C");
    // The text of the last failure of LongToString; nobody reads it, it is kept as a record.
    QString MensajeError;

    // What an empty date field holds in the current language.
    QString FecVacia() const;
    // The number yyyymmdd of a date text: 0 for the empty mask, -1 for a bad date.
    int32_t StringToLong(const QString& fecha, std::optional<int16_t> minimo = std::nullopt) const;
    // True for a valid date of year `minimo` or later, and for the empty mask.
    bool EsFecha(const QString& fecha, std::optional<int16_t> minimo = std::nullopt) const;
    // The text of a number yyyymmdd (ddmmyyyy when `marcador` is given, whatever its value).
    // A number below 1, or a bad date, gives the empty mask; the latter also keeps the
    // catalogue text 2 in MensajeError.
    QString LongToString(int32_t numero, std::optional<QString> marcador = std::nullopt);

private:
    static const QString kVaciaCastellano;
    static const QString kVaciaEuskera;
    bool EsCastellano() const { return fecidioma == QLatin1String("C"); }
};

// The one shared instance.
cFecha& Fecha();
