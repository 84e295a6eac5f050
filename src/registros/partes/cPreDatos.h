#pragma once
// The program's working copy of one presenter (one instance, PreDatos()): one Presentador,
// like the contributor's record, with the same reset for a new one, and operations that each
// make a store object for one call. A presenter is always national and official: no kind of
// document or domicile, no country, no typed province, no counters; a telephone.
#include "valores/Presentador.h"
#include "valores/Resultado.h"

#include <QString>
#include <cstdint>

class cPreDatos : public Presentador {
public:
    // A new presenter: every field to its default, but CSPR, which the opener sets.
    void IniciarNuevo();

    // The presenter the record holds, as the store takes it.
    const Presentador& valor() const { return *this; }

    // Declarations that name the presenter CSPR (16-bit; no panel calls it).
    int16_t NDeclaPresentador() const;
    // Fills the record from the store; CSPR keeps its value. The province is
    // given two digits and the postal code five; a telephone of value 0 reads empty. A code
    // the store does not have leaves the record as it was.
    void CargarPresentador(int32_t codigo);
    // Saves the record over the VERSION loaded; a save takes the row's new version into
    // VERSION. A refusal (see cPresenSvr::GuardarPresentador) leaves the record as it was; its
    // vigencia tells of a stored presenter other than the one loaded.
    Resultado<Presentador> GuardarPresentador();
    // The first rule the record breaks: its message and the field to focus.
    Resultado<void> ValidarDatosPresentador() const;
    // Deletes the presenter CSPR; the store refuses one named in a declaration.
    void BorrarPresentador() const;
    int32_t ObtenerCodigoPresentador(const QString& dni) const;
};

cPreDatos& PreDatos();
