#pragma once
// The store of presenters, used as the store of contributors is: one object per operation,
// paths set before the call, arrays of fixed order, verdict numbers.
//
// Arrays (zero-based):
//  - validation, 8 texts: DNIP, NOMBREP, DOMICILIOP, CODPROVP, CODMUNP, NOMMUNP, CODPOSP,
//    TELEFONOP;
//  - save and load, 15 values: CSPR, DNIP, NOMBREP, VIAP, DOMICILIOP, NUMEROP, LETRAP,
//    ESCALERAP, PISOP, MANOP, CODPROVP, CODPOSP, CODMUNP, NOMMUNP, TELEFONOP (NUMEROP a whole
//    number).
//
// A presenter is always national and official. His number of declarations is counted from the
// declarations when it is asked for; a presenter named in a declaration cannot be deleted, and
// his number (which the declaration copies) cannot change.
#include "servicios/Arreglos.h"
#include "valores/Veredicto.h"

#include <QString>
#include <cstdint>

// Verdicts of GuardarPresentador.
namespace VeredictoGuardarPresentador {
enum : int16_t {
    Guardado = 0,
    DniExistente = 1,         // insert of a number already in the store
    DniDeOtro = 2,            // update to a number held by another presenter
    DniEnDeclaraciones = 3,   // change of the number of a presenter named in a declaration
    TextoRechazado = 4,       // a text the store cannot keep as given (TextoGuardable.h)
    Cambiado = 5,             // update of a presenter saved again since the version given
    Borrado = 6,              // update of a presenter no longer in the store
};
}

class cPresenSvr {
public:
    QString mdbmod;
    QString mdblec;

    // Number of the first rule that the validation array breaks, 0 when none (1 to 11).
    int16_t ValidarDatosPresentador(const Arreglo& datos) const;
    // Element 0 is 0: insert; otherwise update of that code. Verdicts: 0 saved; 1 insert of a
    // number already in the store; 2 update to a number held by another presenter; 3 change of
    // the number of a presenter named in a declaration; 4 a text that the store cannot keep as
    // given, of which `rechazo`, when given, receives the message and the field; 5 the
    // presenter was saved again since the version given was loaded, 6 it was deleted since.
    // Nothing is written unless the verdict is 0.
    // `version` is the version the caller loaded (VersionFila.h): an update writes only over
    // it, and a save puts the row's new version there. Without it an update writes whatever
    // the row holds, and a code no longer in the store is written back under the same code.
    int16_t GuardarPresentador(const Arreglo& datos, Veredicto* rechazo = nullptr,
                               int64_t* version = nullptr) const;
    // Fills the load array; leaves it empty when the store has no such code. `version`, when
    // given, receives the version of the row, 0 when there is none.
    void CargarPresentador(int32_t cspr, Arreglo& datos, int64_t* version = nullptr) const;
    // Deletes the presenter unless a declaration names him; true when a row went.
    bool BorrarPresentador(int32_t cspr) const;
    // Code of the presenter with this number, 0 when none.
    int32_t ObtenerCodigoPresentador(const QString& dni) const;
    // Declarations that name the presenter; the 16-bit form stops at 32767.
    int16_t NDeclaPresentador(int32_t cspr) const;
    int32_t NumDeclaPresentador(int32_t cspr) const;
    // The list: criterios[1] a prefix of the name, criterios[2] of the number (the whole
    // number 0 for none); `orden` 2 by number, anything else by name. Fills datos[columna][fila]
    // with 6 columns: code, name, number, street, municipality, number of declarations.
    // Answers the number of rows. Needs mdbmod and mdblec.
    int32_t dameResultadoBusqueda(const Arreglo& criterios, Arreglo2D& datos,
                                  uint8_t orden) const;
};
