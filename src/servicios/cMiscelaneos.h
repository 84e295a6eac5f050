#pragma once
// Small services of the treasury shared by its programs: the online assistance, the
// description of that service, and the name of the treasury's department for the form.
// `Idioma` tells the language: 0 Spanish, any other value Basque. The class shows nothing: it
// answers verdicts that the main window shows.
#include "valores/Veredicto.h"

#include <QString>
#include <QUrl>
#include <cstdint>
#include <functional>

class cMiscelaneos {
public:
    int16_t Idioma = 0;

    // Hands the address of the online assistance to `abrir` (the browser seam); when it opens
    // nothing, the verdict of id 335 with the exclamation icon under the title of id 336.
    Veredicto AccesoAyuOnline(const std::function<bool(const QUrl&)>& abrir) const;
    // What the online assistance is and how to reach it: information icon, title id 361.
    Veredicto MostrarOnlineInfo() const;
    // The name of the treasury's department, printed on the form.
    QString HaciendaFiscalidad() const;

    // The address of the online assistance in a language.
    static QUrl DireccionAyuOnline(int16_t idioma);
};

