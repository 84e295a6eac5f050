#pragma once
// The program's working copy of one contributor, shared by the contributor panel, the list and
// the import (one instance, ConDatos()). It holds one Contribuyente, whose fields are public
// and unchecked; IniciarNuevo() gives it a new contributor's defaults. The operations each make
// a store object for one call.
#include "servicios/LineaContribuyente.h"
#include "valores/Contribuyente.h"
#include "valores/Resultado.h"

#include <QString>
#include <cstdint>

class cConDatos : public Contribuyente {
public:
    // A new contributor: every field to its default, but CSCO, which the opener sets.
    void IniciarNuevo();

    // The contributor the record holds, as the store takes it.
    const Contribuyente& valor() const { return *this; }

    // Deletes the contributor CSCO; the store refuses one named in a declaration, and a code
    // it no longer has is not reported.
    void BorrarContribuyente() const;
    // Fills the record from the store; CSCO keeps its value. The province
    // code is given its two digits ("1" reads "01"). A code the store does not have leaves the
    // record as it was.
    void CargarContribuyente(int32_t codigo);
    // The import's validation of one exchange line (see cContribSvr).
    QList<HallazgoImportacion> ValidarDatosImportar(const LineaContribuyente& linea) const;
    // The first rule the record breaks: its message and the field to focus.
    Resultado<void> ValidarDatosContribuyente() const;
    int32_t ObtenerCodigoContribuyente(const QString& dni) const;
    // Saves the record over the VERSION loaded; a save takes the row's new version into
    // VERSION. A refusal (see cContribSvr::GuardarContribuyente) leaves the record as it was;
    // its vigencia tells of a stored contributor other than the one loaded.
    Resultado<Contribuyente> GuardarContribuyente();
};

cConDatos& ConDatos();
