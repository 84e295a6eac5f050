#pragma once
// The one navigator of the program's panels. The main window's commands and the panels' own
// requests come here: it sets the routing fields of the shared records (ENTRADA, MODO, LISTA),
// closes the panel that hands over, opens the next one in the main window, and switches the
// main window's commands off while a panel stands and on again when it closes.
//
// Panels never open each other: they say what the user asked for through their signals.
#include <QString>
#include <functional>

class FrmConDatos;
class FrmExportar;
class FrmImportar;
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

// Where a party list's CmdDeclaraciones leads (the party's name and number). Without an
// opener the command does nothing and the list stays open.
using AbridorDeclaraciones = std::function<void(const QString& nombre, const QString& dni)>;
void InstalarDeclaracionesContribuyente(AbridorDeclaraciones abrir);
void InstalarDeclaracionesPresentador(AbridorDeclaraciones abrir);

}  // namespace Navegacion
