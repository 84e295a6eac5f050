#pragma once
// The one navigator of the program's panels. The main window's commands and the panels' own
// requests come here: it sets the routing fields of the shared records (ENTRADA, MODO, LISTA),
// closes the panel that hands over, opens the next one in the main window, and switches the
// main window's commands off while a panel stands and on again when it closes.
//
// Panels never open each other: they say what the user asked for through their signals.
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

// A party's data panel as MODO, LISTA and the code of its record stand.
FrmConDatos* AbrirConDatos();
FrmPreDatos* AbrirPreDatos();

// The export and import of contributors, from the main menu.
FrmExportar* AbrirExportar();
FrmImportar* AbrirImportar();

// A new party from the main menu: MODO "A", no list to go back to.
FrmConDatos* NuevoContribuyente();
FrmPreDatos* NuevoPresentador();

// The list of returns as ENTRADA of DecLista() is set here ("A" open, "E" delete, "P" back).
FrmDecLista* AbrirDecLista(const QString& entrada);

// The declaration form as ENTRADA, MODO, LISTA and CSDE of DecDatos() stand; on closing it
// goes back to the list it came from (LISTA).
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
// When the panel closes the commands come back and the caller is reopened: for "D" the
// form's LISTA loses its last side trip and its ENTRADA becomes "P" first.
FrmImprimir* AbrirImprimir(int32_t csde, const QString& entrada);

}  // namespace Navegacion
