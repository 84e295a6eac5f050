#pragma once
// Backup and restore from the command line, with no window, so that they can be scheduled:
//   Veldo --copia-seguridad [FICHERO]   a backup of the store in FICHERO (by default the
//                                       program's own backup file, backups/VELDOMod_bak.mdb of
//                                       the data folder), replacing the one there
//   Veldo --restaurar FICHERO           the store restored from FICHERO
// Both are rows of the command line's table (LineaDeOrdenes) and go through the same routines
// and checks as the main window's commands (CopiaSeguridad, cSaveAsRestore). The store of the
// program's data folder is checked and brought to the current layout first, as start-up does,
// and again after a restore (the file may be of an older layout).
//
// Exit status: 0 done (what was written is told on stdout); 2 the file is refused, the work
// failed, the line is wrong or the store cannot be used (the reason on stderr).
namespace LineaDeOrdenes {
struct Llamada;
}

namespace OrdenesCopia {

int CopiaSeguridad(const LineaDeOrdenes::Llamada& llamada);
int Restauracion(const LineaDeOrdenes::Llamada& llamada);

}  // namespace OrdenesCopia
