#pragma once
// The one navigator of the program's panels. The main window's commands and the panels' own
// requests come here: it sets the route of the panel it opens (valores/EstadoNavegacion.h:
// how the declaration form is entered, what a record is to hold, where a panel came from and
// the side trip under way), closes the panel that hands over, opens the next one in the main
// window, and switches the main window's commands off while a panel stands and on again when
// it closes.
//
// The routes, in words:
// - a party's list opens its data panel on a new party or the selected one, and comes back
//   when that panel closes; it opens the party's returns, and comes back when they close
//   without a side trip;
// - the list of returns and a party's returns open the form on a new return, the selected one
//   or its copy, and come back when the form closes; they open the print, and come back when
//   it closes;
// - the form leaves for a side trip (the choice of a subject, a transmitter or a presenter,
//   or the print) and is entered again when the trip's panel closes: with the party chosen,
//   or as it was;
// - from the main menu, the form and the data panels have no list to go back to.
//
// Panels never open each other: they say what the user asked for through their signals.
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

// The party's list as ENTRADA of its state object stands ("A" open, "E" delete).
FrmConLista* AbrirConLista(const QString& entrada);
FrmPreLista* AbrirPreLista(const QString& entrada);

// A party's data panel as its route (RutaCon(), RutaPre()) and the code of its record stand.
FrmConDatos* AbrirConDatos();
FrmPreDatos* AbrirPreDatos();

// The export and import of contributors, from the main menu.
FrmExportar* AbrirExportar();
FrmImportar* AbrirImportar();

// A new party from the main menu: the record reset, no list to go back to.
FrmConDatos* NuevoContribuyente();
FrmPreDatos* NuevoPresentador();

// The list of returns as ENTRADA of DecLista() is set here ("A" open, "E" delete, "P" back).
FrmDecLista* AbrirDecLista(const QString& entrada);

// The declaration form as its route RutaDec() and CSDE of DecDatos() stand; on closing it
// goes back to the list it came from, unless it left for a side trip.
FrmDeclaracion* AbrirDeclaracion();
// New declaration of the main menu: a new return, no list to go back to.
FrmDeclaracion* NuevaDeclaracion();
// One of the recent returns of the main menu (d1 to d4): the stored return `csde`.
FrmDeclaracion* AbrirDeclaracionReciente(int32_t csde);

// The returns of a party, as a party list's CmdDeclaraciones asks ("A", with the party's name
// and number) or as the form hands back ("P"). On closing without a side trip they go back to
// the party's list.
FrmConDeclaraciones* AbrirConDeclaraciones(const QString& entrada, const QString& nombre = QString(),
                                           const QString& dni = QString());
FrmPreDeclaraciones* AbrirPreDeclaraciones(const QString& entrada, const QString& nombre = QString(),
                                           const QString& dni = QString());

// The print panel for the stored return `csde`, already loaded in DecDatos() and Operacion()
// by the caller, which has closed itself. `entrada` is the caller's letter: "D" the return's
// form, "L" the list of returns, "C" a contributor's returns, anything else a presenter's.
// When the panel closes the commands come back and the caller is reopened: the form, back
// from its side trip, is entered as it was (Entrada::Vuelta).
FrmImprimir* AbrirImprimir(int32_t csde, const QString& entrada);

}  // namespace Navegacion
