#pragma once
// What a record, a rule or a store has to tell the user, for a panel to show: the message,
// how it is shown, and where the focus goes afterwards. Logic returns it and never shows a
// box itself; the panel hands it to MostrarVeredicto (paneles/dialogos). A verdict without a
// message means there is nothing to say.
#include "valores/BotonesMensaje.h"
#include "valores/Vigencia.h"

#include <QString>

// The tab of a verdict that selects none.
inline constexpr int kSinPestana = -1;

struct Veredicto {
    int id = 0;              // catalogue id of the message (the first one, when it joins several)
    QString mensaje;         // the text as shown, arguments already in place
    int botones = vb::OKOnly;  // buttons, icon and default button
    QString titulo;          // empty: the program's name
    QString control;         // objectName of the control that takes the focus, if any
    int pestana = kSinPestana;  // the tab to select first, on the tab widget holding the control
    // A save refused because the stored record is no longer the one loaded says which way.
    Vigencia vigencia = Vigencia::Vigente;

    bool vacio() const { return mensaje.isEmpty(); }
};
