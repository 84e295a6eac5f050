#pragma once
// Counters of the user's records, the language and the date limits: one shared instance.
#include <QString>
#include <cstdint>

class CEntrada {
public:
    // Reloads the three counters from the read/write database.
    void InicializarContadores();
    // Stores the language in the read/write database.
    void ModificarIdioma(const QString& idi);
    // Reads the stored language into IDI, without any side effect.
    void LeerIdioma();
    // Loads FECMIN and FECMAX from the read-only database.
    void LeerFechaMinimaMaxima();

    const QString& IDI() const { return m_idi; }
    // Keeps the value, stores it, derives OffsetIdioma and passes it to Fecha.
    void setIDI(const QString& idi);

    int32_t FECMIN = 0;
    int32_t FECMAX = 0;
    int32_t NUMDECLA = 0;
    int32_t NUMCONTRI = 0;
    int16_t NUMPRESEN = 0;  // deliberately narrower than the other two counters
    QString MODELO;         // kept although nothing reads or writes it

private:
    QString m_idi;
};

CEntrada& Entrada();
