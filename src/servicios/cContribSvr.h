#pragma once
// The store of contributors. The program makes one object for each operation, sets the paths
// the operation needs (mdbmod, mdblec), calls it and drops the object; nothing is kept between
// calls but the cached connection of each file. A contributor crosses as a Contribuyente; a
// refusal comes back as the Veredicto of a Resultado, with the message to show and the field to
// focus. Failures of the files are raised as cFallo.
//
// The import's validation takes the raw texts of an exchange line, blanks included.
//
// The counters NUMSP and NUMTR are the number of declarations that name the contributor as
// subject and as transmitter. They are counted from the declarations whenever they are read,
// and what a saved value carries in their place is ignored; so a contributor named in a
// declaration always shows it, and is never deleted.
#include "servicios/GuardadoContribuyente.h"
#include "servicios/LineaContribuyente.h"
#include "servicios/Sobrescritura.h"
#include "valores/Contribuyente.h"
#include "valores/CriteriosParte.h"
#include "valores/FilaContribuyente.h"
#include "valores/Resultado.h"

#include <QList>
#include <QString>
#include <cstdint>
#include <optional>

// How many returns name one contributor, as subject and as transmitter.
struct DeclaracionesContribuyente {
    int32_t comoSujeto = 0;
    int32_t comoTransmitente = 0;

    bool operator==(const DeclaracionesContribuyente&) const = default;
};

class cContribSvr {
public:
    QString mdbmod;
    QString mdblec;

    // The first rule the contributor breaks, as the message to show and the field to focus.
    Resultado<void> ValidarDatosContribuyentes(const Contribuyente& c) const;
    // True when `dni` is a well-formed official (Spanish) number with the right check
    // character.
    bool ValidarDniOficial(const QString& dni) const;
    // Every error of one exchange line, in the order of the import's rules (ErroresImportacion);
    // none for a valid line. Needs mdblec.
    QList<HallazgoImportacion> ValidarDatosImportar(const LineaContribuyente& linea) const;
    // True when the contributor exists and has TIPODNI "O" and TIPODOMI "N": it can stand as
    // subject of a declaration.
    bool ValidarTipoDniDomicilio(int32_t csco) const;
    // Code of the contributor with this number (blanks around it ignored), 0 when none.
    int32_t ExisteContribuyente(const QString& dni) const;
    int32_t ObtenerCodigoContribuyente(const QString& dni) const;
    // The stored contributor of that code, with its counters and VERSION; nullopt when the
    // store has none.
    std::optional<Contribuyente> CargarContribuyente(int32_t csco) const;
    // CSCO 0: insert; otherwise update of that code. Answers the value as saved (its code, the
    // row's new VERSION) or the refusal: an insert of a number already in the store (message
    // 41), an update to a number held by another contributor (42), a text the store cannot
    // keep as given (its message and field), or, with Sobrescritura::VersionCargada, a stored
    // contributor no longer of the VERSION loaded (the verdict's vigencia: saved again since,
    // or deleted). Nothing is written on a refusal. With CualquierVersion an update writes
    // whatever the row holds, and a code no longer in the store is written back under it.
    Resultado<Contribuyente> GuardarContribuyente(
        const Contribuyente& c, Sobrescritura sobre = Sobrescritura::VersionCargada) const;
    // The import's form: `sustituir` true replaces the contributor CSCO (or, with 0, the one
    // that has the number; a new one when none has), false adds a new one. Same answers.
    Resultado<Contribuyente> GuardarContribuyente(
        const Contribuyente& c, bool sustituir,
        Sobrescritura sobre = Sobrescritura::VersionCargada) const;
    // Deletes the contributor unless a declaration names him; true when a row went.
    bool BorrarContribuyente(int32_t csco) const;
    // The returns that name the contributor; none for a code the store does not have.
    DeclaracionesContribuyente ObtenerNumspNumtr(int32_t csco) const;
    // The list: the contributors whose name and number start as the criteria say (without
    // regard to case), sorted by name or by number. Each row has the columns of the lists and
    // the returns that name the contributor as subject and as transmitter. Needs mdbmod and
    // mdblec.
    QList<FilaContribuyente> dameResultadoBusqueda(const CriteriosParte& criterios,
                                                   OrdenParte orden) const;
    // The same criteria and order, each contributor whole with his counters (the export).
    QList<Contribuyente> dameResultadoBusquedaTodo(const CriteriosParte& criterios,
                                                   OrdenParte orden) const;

private:
    using Modo = GuardadoContribuyente::Modo;
    Resultado<Contribuyente> guardar(const Contribuyente& c, Modo modo, Sobrescritura sobre) const;
};
