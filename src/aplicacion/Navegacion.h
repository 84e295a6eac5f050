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

// A new party from the main menu: MODO "A", no list to go back to.
FrmConDatos* NuevoContribuyente();
FrmPreDatos* NuevoPresentador();

// Where a party list's CmdDeclaraciones leads (the party's name and number). Without an
// opener the command does nothing and the list stays open.
using AbridorDeclaraciones = std::function<void(const QString& nombre, const QString& dni)>;
void InstalarDeclaracionesContribuyente(AbridorDeclaraciones abrir);
void InstalarDeclaracionesPresentador(AbridorDeclaraciones abrir);

// The print panel for the stored return `csde`, already loaded in DecDatos() and Operacion()
// by the caller, which has closed itself. `entrada` is the caller's letter: "D" the return's
// form, "L" the list of returns, "C" a contributor's returns, anything else a presenter's.
// When the panel closes the commands come back and the caller is reopened: for "D" the
// form's LISTA loses its last side trip and its ENTRADA becomes "P" first.
FrmImprimir* AbrirImprimir(int32_t csde, const QString& entrada);
// How the panel of letter `entrada` ("D", "L", "C", "P" for the presenter's returns) is
// reopened after printing; it sets its own record's ENTRADA to "P". Without one, nothing opens.
void InstalarVueltaImprimir(const QString& entrada, std::function<void()> volver);

}  // namespace Navegacion
