#pragma once
// The return being edited: one shared record, DecDatos(), that the declaration form edits in
// place, that the lists and selection panels hand over, and that printing reads. Its fields
// are plain properties; IniciarNuevo() makes a clean new return. How the form is entered and
// where it goes back to are the navigator's (Navegacion::RutaDec()), not the record's.
// The operations open a cDeclaSvr for one call each.
#include "servicios/cDeclaSvr.h"
#include "valores/Contribuyente.h"
#include "valores/Declaracion.h"
#include "valores/EstadoNavegacion.h"
#include "valores/Resultado.h"
#include "valores/Veredicto.h"
#include "valores/Vigencia.h"

#include <QString>
#include <QStringList>
#include <cstdint>

// The return's fields are those of Declaracion, which is what goes to the store and what
// printing reads; the record adds the state of the form.
class cDecDatos : public Declaracion {
public:
    bool MODIFICADO = false;     // the record differs from what is stored

    // A new return: every field to its value for a new one (MODIFICADO stays), the operation
    // and the amounts cleared.
    void IniciarNuevo();

    // --- Local operations ----------------------------------------------------------------------
    // A new date: the marks and the reduction are cleared, then the amounts.
    void InicializaFecha();
    // The computed amounts to 0; the base too, but only on a new return (the form's route in
    // Modo::Nuevo): on a stored one a change of date keeps the base that was typed.
    void InicializaImportes();
    // A stored contributor into the subject's or the transmitter's fields; an empty
    // Contribuyente clears the party.
    void CargarSujetoPasivo(const Contribuyente& parte);
    void CargarTransmitente(const Contribuyente& parte);
    // The transmitter's party copied to the subject, and the other way.
    void VolcarTrSp();
    void VolcarSpTR();

    // The return alone, as the store keeps it.
    const Declaracion& valor() const { return *this; }

    // --- Operations through cDeclaSvr ----------------------------------------------------------
    // The store's whole-return validation of `datos` on FECHAD.
    Resultado<void> ValidarDatosDeclaracion(const DatosValidacion& datos) const;
    // The return to the store, over the VERSION it was loaded with. Accepted, CSDE and
    // VERSION take the stored row's code and new version; refused, nothing was written and the
    // verdict tells why: a text or an amount the store cannot keep (its message and field), or
    // a stored return that is no longer the one loaded (`vigencia`, no message).
    Resultado<void> GuardarDeclaracion();
    // The return CSDE from the store; an unknown code leaves a clean return with that code.
    void CargarDeclaracion();
    void BorrarDeclaracion() const;
    QList<UltimaDeclaracion> ObtenerUltimasDeclaraciones() const;
    // The stored contributor with this number, if any.
    std::optional<Contribuyente> ExisteContribuyente(const QString& dni) const;
    // Back from a choice of party: Entrada::Sujeto loads the contributor CSSU as subject,
    // anything else CSTRA as transmitter.
    void CargarContribuyente(Navegacion::Entrada entrada);
    // Whether `dni` is a well-formed official number with the right check character.
    bool ValidarDniOficial(const QString& dni) const;
    // The descriptions of the operations that apply on FECHAD, for the form's list.
    QStringList CargarListaOperaciones() const;
    // The code of the operation that the form's list shows as `descripcion` on FECHAD.
    QString DameOperacionporDescripcion(const QString& descripcion) const;
    // Loads Operacion() with the operation OPERACION on FECHAD, or empties it.
    void ObtenerDatosOperacion(bool sinReduccion) const;
};

cDecDatos& DecDatos();
