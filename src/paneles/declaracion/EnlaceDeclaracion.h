#pragma once
// What a block of the declaration form asks of the form that holds it. A block writes the
// shared record when one of its fields is left; what follows (the whole form drawn again, the
// amounts calculated, a tab shown, the other party's address mirrored, a party chosen from a
// list) is the form's, because it reaches beyond the block.
#include <functional>

class QWidget;
class SalidaCampos;

// Which list a party is chosen from.
enum class EleccionParte { Sujeto, Transmitente, Presentador };

struct EnlaceDeclaracion {
    SalidaCampos* salidas = nullptr;            // the watcher of the form's fields
    std::function<bool()> saltando;             // the user is on the way out (Cancelar)
    std::function<void(bool)> saltar;           // raises or lowers that flag
    std::function<void()> modificado;           // the return has changed
    std::function<void()> presentar;            // the form drawn again from the record
    std::function<void()> redibujar;            // drawn again, the pickers' buttons enabled
    std::function<void()> activarSelectores;    // the pickers' buttons enabled from the record
    std::function<void()> calcular;             // the amounts changed: calculated, then drawn
    std::function<bool()> tipoBloqueado;        // the rate is the operation's, not typed
    std::function<void()> cargarNombres;        // both parties' code names looked up again
    std::function<void(int)> mostrarPestana;    // a tab of tabTerceros shown
    std::function<void(bool)> domicilioCambiado;  // an address changed (true: the subject's)
    std::function<void(EleccionParte)> elegir;  // a party is to be chosen from a list
    QWidget* aceptar = nullptr;                 // cmdAceptar: the focus after a picker's choice
};
