#pragma once
// The store of presenters, used as the store of contributors is: one object per operation,
// paths set before the call; a presenter crosses as a Presentador, a refusal as the Veredicto of
// a Resultado.
//
// A presenter is always national and official. His number of declarations is counted from the
// declarations when it is asked for; a presenter named in a declaration cannot be deleted, and
// his number (which the declaration copies) cannot change.
#include "servicios/Sobrescritura.h"
#include "valores/CriteriosParte.h"
#include "valores/FilaPresentador.h"
#include "valores/Presentador.h"
#include "valores/Resultado.h"

#include <QList>
#include <QString>
#include <cstdint>
#include <optional>

class cPresenSvr {
public:
    QString mdbmod;
    QString mdblec;

    // The first rule the presenter breaks, as the message to show and the field to focus.
    Resultado<void> ValidarDatosPresentador(const Presentador& p) const;
    // CSPR 0: insert; otherwise update of that code. Answers the value as saved (its code, the
    // row's new VERSION) or the refusal: an insert of a number already in the store (message
    // 195), an update to a number held by another presenter (196), a change of the number of
    // a presenter named in a declaration (197), a text the store cannot keep as given (its
    // message and field), or, with Sobrescritura::VersionCargada, a stored presenter no longer
    // of the VERSION loaded (the verdict's vigencia). Nothing is written on a refusal. With
    // CualquierVersion an update writes whatever the row holds, and a code no longer in the
    // store is written back under it.
    Resultado<Presentador> GuardarPresentador(
        const Presentador& p, Sobrescritura sobre = Sobrescritura::VersionCargada) const;
    // The stored presenter of that code, with its VERSION; nullopt when the store has none.
    std::optional<Presentador> CargarPresentador(int32_t cspr) const;
    // Deletes the presenter unless a declaration names him; true when a row went.
    bool BorrarPresentador(int32_t cspr) const;
    // Code of the presenter with this number, 0 when none.
    int32_t ObtenerCodigoPresentador(const QString& dni) const;
    // Declarations that name the presenter; the 16-bit form stops at 32767.
    int16_t NDeclaPresentador(int32_t cspr) const;
    int32_t NumDeclaPresentador(int32_t cspr) const;
    // The list: the presenters whose name and number start as the criteria say (without
    // regard to case), sorted by name or by number, each with the returns that name him.
    // Needs mdbmod and mdblec.
    QList<FilaPresentador> dameResultadoBusqueda(const CriteriosParte& criterios,
                                                 OrdenParte orden) const;
};
