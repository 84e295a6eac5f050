#pragma once
// The store of the returns (DECLARACIONES in the read/write database) and the operations of
// form 747 (T11_OPERACIONES in the reference database), with the whole-return validation.
// Set mdbmod and/or mdblec before each call; nothing is kept open between calls that the next
// call relies on. Failures of the stores are raised as cFallo with the operation as source.
#include "servicios/Arreglos.h"
#include "servicios/PosicionesContribuyente.h"
#include "servicios/PosicionesDeclaracion.h"
#include "valores/Veredicto.h"

#include <QString>
#include <QVariant>
#include <cstdint>

class cDeclaSvr {
public:
    QString mdbmod;
    QString mdblec;

    // Number of values of the save array and of the load array (PosicionesDeclaracion.h).
    static constexpr int kValoresGuardar = PosGuardarDeclaracion::Tamano;
    static constexpr int kValoresCargar = PosCargarDeclaracion::Tamano;
    // Number of values of the validation array and of a party's array (a contributor's array
    // up to the returns that have the party as subject).
    static constexpr int kValoresValidar = 33;
    static constexpr int kValoresParte = PosContribuyente::NUMSP + 1;
    // Highest rule number of ValidarDatosDeclaraciones.
    static constexpr int kUltimaRegla = 40;

    // What GuardarDeclaracion answers, instead of a code, for a return whose row is no longer
    // the version loaded: saved again since, or deleted.
    static constexpr int32_t kCambiada = -1;
    static constexpr int32_t kBorrada = -2;

    // --- Returns -------------------------------------------------------------------------
    // Stores the 55-value save array: a new row when its value 0 (the code) is 0, else the row
    // of that code.
    // `version` is the version the caller loaded (VersionFila.h): the row of the code is
    // rewritten only while it still has that version, and otherwise nothing is written and the
    // answer is kCambiada (saved again since) or kBorrada (deleted since); a save puts the
    // row's new version there. Without it the row is rewritten whatever it holds, and a code
    // that names no row any more makes a new row. Party codes that name no stored
    // contributor or presenter are kept as 0 (the return keeps its own copy of the party).
    // The counters of the parties named before and after follow in the same transaction.
    // Answers the code of the row. A text that the store cannot keep as given (a control
    // character, a broken character, a text longer than its field) answers 0 and writes
    // nothing; `rechazo`, when given, receives the message and the field. An array of another
    // size or with a number that is not a number raises cFallo and writes nothing.
    int32_t GuardarDeclaracion(const Arreglo& datos, Veredicto* rechazo = nullptr,
                               int64_t* version = nullptr) const;
    // Fills `datos` with the 58-value load array of the return `csde` (0 the code, then the
    // save array's values with the presenter's number and name at 24 and 25, and at 57 the
    // number of returns whose subject is this return's transmitter). An unknown code leaves
    // an array of empty values with code 0. `version`, when given, receives the version of the
    // row, 0 when there is none.
    void CargarDeclaracion(int32_t csde, Arreglo& datos, int64_t* version = nullptr) const;
    // Removes the row and lowers the counters of its parties; false when there was none.
    bool BorrarDeclaracion(int32_t csde) const;
    // The last saved returns, the most recent first, at most four: lista[i][0] the code,
    // lista[i][1] its description (the reference, or the subject's name when it has none).
    void ObtenerUltimasDeclaraciones(Arreglo2D& lista) const;

    // --- Parties, as the return takes them -------------------------------------------------
    // The contributor with this number, as a 19-value party array: (0) code, (1) type of
    // number, (2) number, (3) name, (4) street type, (5) street, (6) house number, (7) letter,
    // (8) staircase, (9) floor, (10) door, (11) type of address, (12) country, (13) province
    // code, (14) province name, (15) postal code, (16) municipality code, (17) municipality
    // name, (18) returns in which it is the subject. For an unknown number the array clears a
    // party: code 0, empty texts, zero numbers; the answer is then false.
    bool ExisteContribuyente(const QString& dni, Arreglo& datos) const;
    // The same array for a contributor's code (cleared for an unknown code).
    void CargarContribuyente(int32_t codigo, Arreglo& datos) const;

    // --- Operations (mdblec) ---------------------------------------------------------------
    // The descriptions of the operations that apply on `fechad`, in the language of the offset.
    void ObtenerOperaciones(int32_t fechad, Arreglo& lista, int16_t offsetIdioma) const;
    // The eight values of an operation on a date: description, print key, not-subject mark,
    // exempt mark, rate, lowest and highest rate, deduction. False when the code does not
    // apply on that date (`datos` is then emptied).
    bool ObtenerDatosOperacion(const QString& operacion, int32_t fechad, Arreglo& datos,
                               int16_t offsetIdioma) const;
    // The code of the operation with this description on the date; empty when none.
    QString DameOperacionporDescripcion(const QVariant& descripcion, int32_t fechad,
                                        int16_t offsetIdioma) const;
    // The print key of the operation on the date; empty when the code does not apply then.
    QString ObtenImpresion(int32_t fechad, const QString& codigo) const;

    // --- Validation ------------------------------------------------------------------------
    // The number of the first rule (1 to 40) that the 33-value validation array breaks, 0 when
    // none. `impresion` is the print key of the operation on `fechad` (ObtenImpresion): empty
    // when the operation does not apply on that date. Needs no database.
    int16_t ValidarDatosDeclaraciones(const Arreglo& datos, const QString& impresion,
                                      int32_t fechad) const;

    // --- Lists (mdbmod and mdblec) ----------------------------------------------------------
    // Criteria: five slots, (0) lowest code, (1) start of the reference, (2) lowest date of
    // accrual yyyymmdd, (3) lowest total in euros as shown ("1.234,50" or a number), (4) start
    // of the operation code; 0 or empty for no condition. `orden` 1 to 5 orders by code,
    // reference, date, total or operation, `tipoOrden` "ASC" or "DESC".
    // The result is indexed [column][row]: (0) code, (1) reference, (2) date yyyymmdd,
    // (3) total in cents, (4) operation, (5) its description on the date of accrual.
    // Answers the number of rows.
    int32_t dameResultadoBusqueda(Arreglo2D& resultado, const Arreglo& criterios, uint8_t orden,
                                  const QString& tipoOrden, int16_t offsetIdioma) const;
    // The returns of one contributor, with a seventh column (6): "S" when it is the subject,
    // "T" the transmitter, "S-T" both.
    int32_t dameDeclaracionesContribuyente(const Arreglo& criterios, Arreglo2D& resultado,
                                           int32_t csco, uint8_t orden, const QString& tipoOrden,
                                           int16_t offsetIdioma) const;
    // The returns handed in by one presenter (six columns).
    int32_t dameDeclaracionesPresentador(const Arreglo& criterios, Arreglo2D& resultado,
                                         int32_t cspr, uint8_t orden, const QString& tipoOrden,
                                         int16_t offsetIdioma) const;
};
