#pragma once
// Small services of the treasury shared by its programs: the online assistance, the
// description of that service, and the name of the treasury's department for the form.
// `Idioma` tells the language: 0 Spanish, any other value Basque.
#include "paneles/dialogos/Navegador.h"

#include <QList>
#include <QString>
#include <QUrl>
#include <cstdint>

class QWidget;

class cMiscelaneos {
public:
    int16_t Idioma = 0;
    QWidget* Parent = nullptr;

    // Opens the online assistance in the web browser; id 335 (title 336) when no browser opens.
    void AccesoAyuOnline() const;
    // Shows what the online assistance is and how to reach it.
    void MostrarOnlineInfo() const;
    // The name of the treasury's department, printed on the form.
    QString HaciendaFiscalidad() const;

    // The address of the online assistance in a language.
    static QUrl DireccionAyuOnline(int16_t idioma);
};

