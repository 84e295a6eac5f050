#pragma once
// The save of one contributor, shared by the store's single saves (cContribSvr) and its
// batches (cLoteContribuyentes), so that both write the same values after the same checks
// and answer the same verdicts.
#include "servicios/AccesoTabla.h"
#include "servicios/Sobrescritura.h"
#include "servicios/TablaParte.h"
#include "valores/Contribuyente.h"
#include "valores/Resultado.h"

#include <QString>
#include <QStringList>
#include <QVariantList>
#include <optional>

namespace GuardadoContribuyente {

enum class Modo {
    PorCodigo,  // CSCO 0: insert; otherwise update of that code
    Sustituir,  // replace the contributor CSCO, or (0) the one that has the number
    Anadir,     // always a new contributor
};

// The stored columns, in the order a row is written (no code, no counters).
const QStringList& Columnas();
const TablaParte& Tabla();

// Saves the contributor through `tabla` (an access to Tabla()), within a write transaction
// that the caller holds. Its texts pass the store's door first (TextoGuardable.h); then every
// value is put in its stored form before anything is written (cFallo 13 when one cannot be).
// Answers the saved row (its code and new version) or the refusal, with nothing written: an
// insert of a number already in the store (message 41), an update to a number held by another
// (42), a text the store cannot keep as given (its message and field), or an update of a
// contributor whose row is no longer the version the value carries (the verdict's vigencia:
// saved again since, or deleted).
// With Sobrescritura::CualquierVersion an update writes whatever the row holds (and a row gone is
// written back): for a caller that loaded nothing. Modo::Sustituir without a code replaces the
// holder of the number as it is now, read in the same transaction, over the version read.
// `titular`, when given, is the holder of the number (code 0 none) with its version, as the
// caller has just read it through `tabla` with nothing written since; the save then does not
// read it again.
// A new row's code is the one the engine gave its last insert, when the access reads it back
// (AccesoTabla::Insertar); otherwise 0.
Resultado<TitularParte> Guardar(AccesoTabla& tabla, const Contribuyente& c, Modo modo,
                                Sobrescritura sobre, const QString& origen,
                                std::optional<TitularParte> titular = std::nullopt);
// The values of a contributor in their stored form, in the order of Columnas() (cFallo 13 when
// one cannot be put in it). It does not pass the door: a caller that writes them does.
QVariantList FilaGuardada(const Contribuyente& c, const QString& origen);
// As Guardar(tabla, c, Modo::Anadir), through the same door and the same stored form, but for
// a number already in the store it writes nothing and answers the holder of the number (code
// and version); the holder is code 0 when the contributor was added. The insert itself finds
// the holder, so that a new contributor costs one look-up of its number instead of two.
Resultado<TitularParte> AnadirSiNuevo(AccesoNativo& tabla, const Contribuyente& c,
                                      const QString& origen);
// The number as the store keeps it and looks it up (blanks around it removed).
QString DniGuardado(const Contribuyente& c);

}  // namespace GuardadoContribuyente
