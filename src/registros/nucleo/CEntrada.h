#pragma once
// Counters of the user's records, the stored language and the date limits: one shared
// instance. The language itself is the program's one state (plataforma/Idioma.h); this record
// reads and writes its stored copy.
#include "plataforma/Idioma.h"

#include <QString>
#include <cstdint>

class CEntrada {
public:
    // Reloads the three counters from the read/write database.
    void InicializarContadores();
    // Stores the language in the read/write database.
    void ModificarIdioma(Idioma idioma);
    // Makes the stored language the program's.
    void LeerIdioma();
    // Loads FECMIN and FECMAX from the read-only database.
    void LeerFechaMinimaMaxima();

    // The program's language as the store writes it: "C" Spanish, "E" Basque.
    QString IDI() const { return IdiomaPrograma().letra(); }
    // The user's choice: stored, and made the program's language.
    void CambiarIdioma(Idioma idioma);

    int32_t FECMIN = 0;
    int32_t FECMAX = 0;
    int32_t NUMDECLA = 0;
    int32_t NUMCONTRI = 0;
    int16_t NUMPRESEN = 0;  // deliberately narrower than the other two counters
    QString MODELO;         // kept although nothing reads or writes it
};

CEntrada& Entrada();
