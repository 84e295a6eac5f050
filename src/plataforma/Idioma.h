#pragma once
// The language the program speaks, Spanish or Basque. It is one value, and everything that
// depends on the language follows from it: the catalogue's row offset, the letter the store
// keeps, the layout of a date field, the folder of the help pages. The program's current
// language is one state (IdiomaPrograma); a routine that must speak another language for a
// moment (the bilingual printed sheet) takes the language as a parameter instead of changing it.
#include <QString>
#include <QStringView>
#include <cstdint>

class Idioma {
public:
    enum Lengua : char { Castellano = 'C', Euskera = 'E' };

    constexpr Idioma(Lengua lengua = Castellano) : m_lengua(lengua) {}
    // The letter the store keeps: "E" is Basque, anything else Spanish.
    static Idioma DeLetra(QStringView letra);

    constexpr Lengua lengua() const { return m_lengua; }
    constexpr bool esEuskera() const { return m_lengua == Euskera; }
    constexpr bool esCastellano() const { return m_lengua == Castellano; }
    // Added to a catalogue id to reach its row in this language.
    constexpr int16_t offset() const { return esEuskera() ? 10000 : 0; }
    // "C" or "E", as the store keeps it.
    QString letra() const;
    // The help pages' folder under the program's Ayuda/ folder.
    QString carpetaAyuda() const;
    // One of two texts, by language.
    const QString& segun(const QString& castellano, const QString& euskera) const
    {
        return esEuskera() ? euskera : castellano;
    }

    friend constexpr bool operator==(Idioma a, Idioma b) = default;

private:
    Lengua m_lengua;
};

// The language the program speaks now: Spanish at start, until the stored choice, the
// environment of a command or the user sets another.
Idioma IdiomaPrograma();
void EstablecerIdiomaPrograma(Idioma idioma);
// The catalogue's offset of the program's language: 0 Spanish, 10000 Basque.
inline int16_t OffsetIdioma()
{
    return IdiomaPrograma().offset();
}
