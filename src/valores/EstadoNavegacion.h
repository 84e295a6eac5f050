#pragma once
// The hand-over between panels, as types. Before the navigator (aplicacion/Navegacion) opens a
// data panel or the declaration form it says how the panel is entered (Entrada), what its
// record is to hold (Modo) and where the panel came from, with the side trip under way
// (ListaOrigen, OrigenParte); when the panel closes the navigator reads them to choose the way
// back. A list is told how it is entered (EntradaLista; a party's returns also carry their
// side trip, EntradaDeclaraciones) and takes its mode from it (ModoLista); the print panel is
// told whom to go back to (OrigenImpresion). Each value is the one letter these hand-overs have
// always used (letras() gives them back as text), so a route reads in words and compares with
// its letter.
//
// The routes of the form and of the data panels live here, apart from the records, so that a
// record holds its data and nothing else; they are shared state like the records (created at
// first use, reset with them). A list's way in stays in the list's state, since the list's own
// moves (an order, a search, Todos) empty it.
#include <QList>
#include <QString>
#include <optional>

namespace Navegacion {

// How the declaration form is entered (ENTRADA).
enum class Entrada : char {
    Inicio = 'A',        // afresh: Modo decides what is loaded
    Sujeto = 'S',        // back from choosing the subject: the contributor CSSU is loaded
    Transmitente = 'T',  // back from choosing the transmitter: CSTRA is loaded, its tab shows
    Vuelta = 'P',        // back from choosing a presenter or from a cancelled choice: no change
    SinCarga = 'R',      // back with nothing to load
};

// What the record of a data panel or of the form holds when it opens (MODO).
enum class Modo : char {
    Nuevo = 'A',  // a new party or return: the opener resets the record first
    Abrir = 'C',  // the stored one of the record's code
    Copia = 'D',  // a copy of a stored return, saved as a new row (the form only)
};

// The list the declaration form was opened from (first letter of LISTA).
enum class Origen : char {
    Menu = 0,                          // the main window: no list to go back to
    ListaDeclaraciones = 'D',          // FrmDecLista
    DeclaracionesContribuyente = 'C',  // FrmConDeclaraciones
    DeclaracionesPresentador = 'P',    // FrmPreDeclaraciones
};

// A side trip of the form: it closes, the trip's panel opens, and that panel brings it back.
enum class Viaje : char {
    Seleccion = 'T',  // a selection panel, to choose a party
    Impresion = 'I',  // the print panel
};

// Where the form came from and the trips under way (LISTA): an origin and a stack of trips.
class ListaOrigen {
public:
    ListaOrigen() = default;
    explicit ListaOrigen(Origen origen) : m_origen(origen) {}

    Origen origen() const { return m_origen; }
    bool enViaje() const { return !m_viajes.isEmpty(); }
    // The form leaves for a side trip.
    void salirDeViaje(Viaje viaje) { m_viajes.append(viaje); }
    // The trip's panel hands back: only the origin stays. A form that was on no trip has no
    // list to go back to any more.
    void volverDeViaje();
    // The list the form goes back to when it closes: none during a trip or from the menu.
    std::optional<Origen> listaDeVuelta() const;
    // The route as its letters: "" from the menu, "D", "DT", "CI", "T", ...
    QString letras() const;

    bool operator==(const ListaOrigen&) const = default;

private:
    Origen m_origen = Origen::Menu;
    QList<Viaje> m_viajes;
};

// Where a party's data panel was opened from (LISTA of a contributor or a presenter).
enum class OrigenParte : char {
    Menu = 0,     // the main menu: nothing to go back to
    Lista = 'S',  // the party's list, which opens again when the panel closes
};

// How a list is entered when it next opens (ENTRADA of a list).
enum class EntradaLista : char {
    Ninguna = 0,      // nothing more: the list's own moves (an order, a search, Todos) leave this
    Abrir = 'A',      // from an Open command: afresh, in open mode
    Eliminar = 'E',   // from a Delete command: afresh, in delete mode
    Vuelta = 'P',     // back from another panel: order, conditions and selection kept
};

// What a list does with the row chosen (MODO of a list).
enum class ModoLista : char {
    Abrir = 'C',     // open it (or choose it, on a selection list)
    Eliminar = 'E',  // delete it
};

// A side trip of a party's returns: the panel closes, and the trip's panel brings it back.
enum class ViajeLista : char {
    Declaracion = 'D',  // the declaration form
    Impresion = 'I',    // the print panel
};

// How a list of returns is entered and, on a party's returns, the side trip under way (their
// ENTRADA: the way in, with the trip's letter after it).
class EntradaDeclaraciones {
public:
    EntradaDeclaraciones() = default;
    // From a way in alone: a list entered afresh or coming back is on no trip.
    EntradaDeclaraciones(EntradaLista entrada) : m_entrada(entrada) {}

    EntradaLista entrada() const { return m_entrada; }
    bool enViaje() const { return m_viaje.has_value(); }
    // The panel leaves for a side trip; the trip's panel brings it back with a new way in.
    void salirDeViaje(ViajeLista viaje) { m_viaje = viaje; }
    // The way in and the trip as their letters: "A", "P", "", "AD", "PI", "I", ...
    QString letras() const;

    bool operator==(const EntradaDeclaraciones&) const = default;

private:
    EntradaLista m_entrada = EntradaLista::Ninguna;
    std::optional<ViajeLista> m_viaje;
};

// The panel the print panel goes back to when it closes (ENTRADA of the printing).
enum class OrigenImpresion : char {
    Declaracion = 'D',                 // the declaration form, back from its side trip
    ListaDeclaraciones = 'L',          // FrmDecLista
    DeclaracionesContribuyente = 'C',  // FrmConDeclaraciones
    DeclaracionesPresentador = 'P',    // FrmPreDeclaraciones
};

// Whether the contributor's search criteria of a selection survive the trip back to the form
// (CRITERIO of a contributor's selection).
enum class Criterio : char {
    Olvidado = 0,       // the next selection starts without criteria
    Conservado = 'S',   // the criteria of the last visit are kept for the next
};

// The route of the declaration form.
struct RutaDeclaracion {
    Entrada entrada = Entrada::Vuelta;
    Modo modo = Modo::Abrir;
    ListaOrigen lista;
    // Whether the contributor's search criteria survive the trip back to the form.
    Criterio criterio = Criterio::Olvidado;
};

// The route of a party's data panel: a contributor's or a presenter's.
struct RutaParte {
    Modo modo = Modo::Nuevo;
    OrigenParte origen = OrigenParte::Menu;
};
struct RutaContribuyente : RutaParte {};
struct RutaPresentador : RutaParte {};

// The one route of each kind of panel.
RutaDeclaracion& RutaDec();
RutaContribuyente& RutaCon();
RutaPresentador& RutaPre();

// A value's letter as text ("" for none), for messages and tests.
template <typename Letra>
QString Letras(Letra valor)
{
    const char c = static_cast<char>(valor);
    return c ? QString(QLatin1Char(c)) : QString();
}

}  // namespace Navegacion
