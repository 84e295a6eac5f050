#pragma once
// The one navigator of the program's panels. The main window's commands and the panels' own
// requests come here: it sets the route of the panel it opens (valores/EstadoNavegacion.h:
// how the declaration form is entered, what a record is to hold, where a panel came from and
// the side trip under way), closes the panel that hands over, opens the next one in the main
// window, and switches the main window's commands off while a panel stands and on again when
// it closes.
//
// The routes, in words (each type's letter in brackets, as the hand-overs have always spelt it):
// - the main menu opens a party's list or the list of returns afresh, to open (EntradaLista::
//   Abrir, "A") or to delete (Eliminar, "E"); the list takes its mode from it (ModoLista::Abrir
//   "C", Eliminar "E");
// - a party's list opens its data panel on a new party (Modo::Nuevo) or the selected one
//   (Modo::Abrir), from the list (OrigenParte::Lista), and the data panel brings the list back
//   on closing (EntradaLista::Vuelta, "P": order, criteria and selection kept); from the menu
//   a data panel has no list to go back to (OrigenParte::Menu);
// - a party's list opens the party's returns (EntradaLista::Abrir); they bring the list back
//   when they close without a side trip (Vuelta);
// - the list of returns and a party's returns open the form on a new return, the selected one
//   or its copy (Entrada::Inicio with Modo::Nuevo, Abrir or Copia), as its origin
//   (Origen::ListaDeclaraciones "D", DeclaracionesContribuyente "C", DeclaracionesPresentador
//   "P"); a party's returns go on a side trip for it (ViajeLista::Declaracion, "D" after their
//   way in) and the form, on closing, brings back the list it came from (Vuelta);
// - the same lists open the print on the selected return, naming themselves as the way back
//   (OrigenImpresion::ListaDeclaraciones "L", DeclaracionesContribuyente "C",
//   DeclaracionesPresentador "P"; a party's returns on a side trip, ViajeLista::Impresion "I"),
//   and the print brings them back on closing (Vuelta);
// - the form leaves for a side trip: the choice of a subject, a transmitter or a presenter
//   (Viaje::Seleccion, "T"; the contributors' selection is told which party it chooses,
//   Entrada::Sujeto "S" or Transmitente "T") or the print (Viaje::Impresion, "I",
//   OrigenImpresion::Declaracion "D"), and is entered again when the trip's panel closes: with
//   the contributor chosen (Entrada::Sujeto, Transmitente) or as it was (Entrada::Vuelta);
//   only then does its own closing bring back its list;
// - from the main menu, the form and the data panels have no list to go back to.
//
// Panels never open each other: they say what the user asked for through their signals. A
// panel that works on another panel's record is handed it here when it opens (the form's
// return to a selection list, which writes the party chosen into it, and to the print).
#include "valores/EstadoNavegacion.h"

#include <QString>
#include <cstdint>
#include <functional>

class FrmConDatos;
class FrmDeclaracion;
class FrmDecLista;
class FrmConDeclaraciones;
class FrmPreDeclaraciones;
class FrmExportar;
class FrmImportar;
class FrmImprimir;
class FrmConLista;
class FrmPreDatos;
class FrmPreLista;

namespace Navegacion {

// A party's list, entered as `entrada` says: afresh to open or to delete, or coming back.
FrmConLista* AbrirConLista(EntradaLista entrada);
FrmPreLista* AbrirPreLista(EntradaLista entrada);

// A party's data panel as its route (RutaCon(), RutaPre()) and the code of its record stand.
FrmConDatos* AbrirConDatos();
FrmPreDatos* AbrirPreDatos();

// The export and import of contributors, from the main menu.
FrmExportar* AbrirExportar();
FrmImportar* AbrirImportar();

// A new party from the main menu: the record reset, no list to go back to.
FrmConDatos* NuevoContribuyente();
FrmPreDatos* NuevoPresentador();

// The list of returns, entered as `entrada` says: afresh to open or to delete, or coming back.
FrmDecLista* AbrirDecLista(EntradaLista entrada);

// The declaration form as its route RutaDec() and CSDE of DecDatos() stand; on closing it
// goes back to the list it came from, unless it left for a side trip.
FrmDeclaracion* AbrirDeclaracion();
// New declaration of the main menu: a new return, no list to go back to.
FrmDeclaracion* NuevaDeclaracion();
// One of the recent returns of the main menu (d1 to d4): the stored return `csde`.
FrmDeclaracion* AbrirDeclaracionReciente(int32_t csde);

// The returns of a party, as a party list's CmdDeclaraciones asks (Abrir, with the party's
// code, name and number) or as the form or the print hands back (Vuelta). On closing without a
// side trip they go back to the party's list.
FrmConDeclaraciones* AbrirConDeclaraciones(EntradaLista entrada, int32_t csco = 0,
                                           const QString& nombre = QString(),
                                           const QString& dni = QString());
FrmPreDeclaraciones* AbrirPreDeclaraciones(EntradaLista entrada, int32_t cspr = 0,
                                           const QString& nombre = QString(),
                                           const QString& dni = QString());

// The print panel for the stored return `csde`, already loaded in DecDatos() and Operacion()
// by the caller, which has closed itself; the panel is handed that return. `origen` is the
// caller, the panel to go back to. When the panel closes the commands come back and the
// caller is reopened: the form, back from its side trip, is entered as it was
// (Entrada::Vuelta); a list comes back as it was left (EntradaLista::Vuelta).
FrmImprimir* AbrirImprimir(int32_t csde, OrigenImpresion origen);

}  // namespace Navegacion
