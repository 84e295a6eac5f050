#pragma once
// The store of contributors. The program makes one object for each operation, sets the paths
// the operation needs (mdbmod, mdblec), calls it and drops the object; nothing is kept between
// calls but the cached connection of each file. Records cross as arrays of fixed order; the
// rules come back as verdict numbers. Failures of the files are raised as cFallo.
//
// Arrays (zero-based):
//  - validation, 11 texts: TIPODNI, DNIC, NOMBREC, DOMICILIOC, TIPODOMI, PAIS, CODPROVC,
//    CODPOSC, NOMPROVC, NOMMUNC, CODMUNC;
//  - save and load, 20 values: CSCO, TIPODNI, DNIC, NOMBREC, VIAC, DOMICILIOC, NUMEROC, LETRAC,
//    ESCALERAC, PISOC, MANOC, TIPODOMI, PAIS, CODPROVC, NOMPROVC, CODPOSC, CODMUNC, NOMMUNC,
//    NUMSP, NUMTR (NUMEROC a whole number, the counters reals);
//  - import validation, 15 texts: the validation array, then the house number, the two counters
//    and the street type, as they stand in the exchange line.
//
// The counters NUMSP and NUMTR are the number of declarations that name the contributor as
// subject and as transmitter. They are counted from the declarations whenever they are read,
// and what a save array carries in their place is ignored; so a contributor named in a
// declaration always shows it, and is never deleted.
#include "servicios/Arreglos.h"
#include "servicios/GuardadoContribuyente.h"

#include <QString>
#include <cstdint>

class cContribSvr {
public:
    QString mdbmod;
    QString mdblec;

    // Number of the first rule that the validation array breaks, 0 when none (1 to 14).
    int16_t ValidarDatosContribuyentes(const Arreglo& datos) const;
    // True when `dni` is a well-formed official (Spanish) number with the right check
    // character.
    bool ValidarDniOficial(const QString& dni) const;
    // Every error of one exchange line (codes 1 to 30, ascending): errores[0][k] for k from 0
    // to the upper bound less one; the last element is a spare 0, so a line without errors
    // gives an upper bound of 0. Needs mdblec.
    void ValidarDatosImportar(const Arreglo& datos, Arreglo2D& errores) const;
    // True when the contributor exists and has TIPODNI "O" and TIPODOMI "N": it can stand as
    // subject of a declaration.
    bool ValidarTipoDniDomicilio(int32_t csco) const;
    // Code of the contributor with this number (blanks around it ignored), 0 when none.
    int32_t ExisteContribuyente(const QString& dni) const;
    int32_t ObtenerCodigoContribuyente(const QString& dni) const;
    // Fills the load array; leaves it empty when the store has no such code. `version`, when
    // given, receives the version of the row (VersionFila.h), 0 when there is none.
    void CargarContribuyente(int32_t csco, Arreglo& datos, int64_t* version = nullptr) const;
    // Element 0 is 0: insert; otherwise update of that code. Verdicts
    // (VeredictoGuardarContribuyente): 0 saved; 1 insert of a number already in the store; 2
    // update to a number held by another contributor; 3 a text that the store cannot keep as
    // given (a name of blanks, a control character, a broken character, a text too long), of
    // which `rechazo`, when given, receives the message and the field; 4 the contributor was
    // saved again since the version given was loaded, 5 it was deleted since. Nothing is
    // written unless the verdict is 0.
    // `version` is the version the caller loaded: an update writes only over that version, and
    // a save puts the row's new version there. Without it an update writes whatever the row
    // holds, and a code no longer in the store is written back under the same code.
    int16_t GuardarContribuyente(const Arreglo& datos, Veredicto* rechazo = nullptr,
                                 int64_t* version = nullptr) const;
    // The import's form: `sustituir` true replaces the contributor of element 0 (or, with 0,
    // the one that has the number; a new one when none has), false adds a new one. Same
    // verdicts and the same use of `version`.
    int16_t GuardarContribuyente(const Arreglo& datos, bool sustituir,
                                 Veredicto* rechazo = nullptr, int64_t* version = nullptr) const;
    // Deletes the contributor unless a declaration names him; true when a row went.
    bool BorrarContribuyente(int32_t csco) const;
    // {declarations as subject, as transmitter}.
    Arreglo ObtenerNumspNumtr(int32_t csco) const;
    // The list: criterios[1] a prefix of the name, criterios[2] a prefix of the number (the
    // whole number 0 for none); `orden` 2 sorts by number, anything else by name. Fills
    // datos[columna][fila] with 7 columns: code, name, number, street, municipality, count as
    // subject, count as transmitter. Answers the number of rows. Needs mdbmod and mdblec.
    int32_t dameResultadoBusqueda(const Arreglo& criterios, Arreglo2D& datos,
                                  uint8_t orden) const;
    // The same criteria and order, with the 20 columns of the save array (the export).
    int32_t dameResultadoBusquedaTodo(const Arreglo& criterios, Arreglo2D& datos,
                                      uint8_t orden) const;

private:
    using Modo = GuardadoContribuyente::Modo;
    int16_t guardar(const Arreglo& datos, Modo modo, Veredicto* rechazo, int64_t* version) const;
};
