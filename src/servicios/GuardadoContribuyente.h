#pragma once
// The save of one contributor, shared by the store's single saves (cContribSvr) and its
// batches (cLoteContribuyentes), so that both write the same values after the same checks
// and answer the same verdicts.
#include "servicios/AccesoTabla.h"
#include "servicios/Arreglos.h"
#include "servicios/TablaParte.h"
#include "valores/Contribuyente.h"
#include "valores/Veredicto.h"

#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>

// Verdicts of a contributor's save.
namespace VeredictoGuardarContribuyente {
enum : int16_t {
    Guardado = 0,
    DniExistente = 1,    // insert of a number already in the store
    DniDeOtro = 2,       // update to a number held by another contributor
    TextoRechazado = 3,  // a text the store cannot keep as given (TextoGuardable.h)
    Cambiado = 4,        // update of a contributor saved again since the version given
    Borrado = 5,         // update of a contributor no longer in the store
};
}

namespace GuardadoContribuyente {

enum class Modo {
    PorCodigo,  // element 0 is 0: insert; otherwise update of that code
    Sustituir,  // replace the contributor of element 0, or (0) the one that has the number
    Anadir,     // always a new contributor
};

// The stored columns in the order of the save array, from element 1 (no counters).
const QStringList& Columnas();
const TablaParte& Tabla();

// Saves the array through `tabla` (an access to Tabla()), within a write transaction that the
// caller holds. Its texts pass the store's door first (TextoGuardable.h); then every value is
// put in its stored form before anything is written (cFallo 13 when one cannot be). Verdicts
// (VeredictoGuardarContribuyente): 0 saved; 1 insert of a number already in the store; 2
// update to a number held by another; 3 a text the store cannot keep as given, whose message
// and field `rechazo` (when given) receives; 4 and 5 an update of a contributor whose row is no
// longer the version `version` names: saved again since, or deleted. Nothing is written unless
// the verdict is 0.
// `version`, when given, is the version of the row the caller loaded (VersionFila.h): an
// update writes only over it, and on a save it receives the row's new version. Without it an
// update writes whatever the row holds (and a row gone is written back): for a caller that
// loaded nothing. Modo::Sustituir without a code replaces the holder of the number as it is
// now, read in the same transaction.
// `titular`, when given, is the holder of the array's number (code 0 none) with its version,
// as the caller has just read it through `tabla` with nothing written since; the save then does
// not read it again.
int16_t Guardar(AccesoTabla& tabla, const Arreglo& datos, Modo modo, const QString& origen,
                std::optional<TitularParte> titular = std::nullopt, Veredicto* rechazo = nullptr,
                int64_t* version = nullptr);
// The values of a save array in their stored form, in the order of Columnas() (cFallo 13 when
// one cannot be put in it). It does not pass the door: a caller that writes them does.
QVariantList FilaGuardada(const Arreglo& datos, const QString& origen);
// As Guardar(tabla, datos, Modo::Anadir), through the same door and the same stored form, but
// for a number already in the store it writes nothing, answers DniExistente and puts in
// `titular` the code that holds the number and its version (code 0 otherwise). The insert
// itself finds the holder, so that a new contributor costs one look-up of its number instead
// of two.
int16_t AnadirSiNuevo(AccesoNativo& tabla, const Arreglo& datos, const QString& origen,
                      TitularParte& titular, Veredicto* rechazo = nullptr);
// The save array of a value, in the order of PosContribuyente: the form that the single saves
// share with the import's batch, whose values come from an exchange line as raw texts.
Arreglo ArregloDe(const Contribuyente& c);
// The number of a save array as the store keeps it and looks it up (blanks around it removed).
QString DniGuardado(const Arreglo& datos);

}  // namespace GuardadoContribuyente
