#pragma once
// The application's own settings in the read/write database: language and update setting.
#include <QString>
#include <cstdint>

class cGeneralSvr {
public:
    QString mdbmod;

    QString ObtenerIdioma() const;            // "C" or "E"
    void CambiarIdioma(const QString& idi) const;
    int16_t ObtenerActOnline() const;         // -1 undecided (first run), 0 off, 1 on
    void GuardarActOnline(int16_t valor) const;
};
