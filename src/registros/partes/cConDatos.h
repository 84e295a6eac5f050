#pragma once
// The program's working copy of one contributor, shared by the contributor panel, the list and
// the import (one instance, ConDatos()). A plain record: every field is public and unchecked;
// IniciarNuevo() gives it a new contributor's defaults. The operations each make a store
// object for one call.
#include "servicios/Arreglos.h"
#include "valores/Veredicto.h"
#include "valores/Vigencia.h"

#include <QString>
#include <cstdint>

class cConDatos {
public:
    // A new contributor: every field below to its default, but CSCO, which the opener sets.
    void IniciarNuevo();

    int32_t CSCO = 0;       // code in the store, 0 not yet saved
    QString TIPODNI;        // "O" official, "N" foreign document
    QString DOMICILIOC;
    QString DNIC;
    QString NOMBREC;
    QString VIAC;           // street type code
    int32_t NUMEROC = 0;
    QString LETRAC;
    QString ESCALERAC;
    QString PISOC;
    QString MANOC;
    QString TIPODOMI;       // "N" national, "E" foreign
    QString PAIS;
    QString CODPROVC;       // two digits
    QString NOMPROVC;       // typed province name (foreign domicile)
    QString CODPOSC;
    QString CODMUNC;
    QString NOMMUNC;        // typed municipality name
    double NUMSP = 0;       // declarations as subject (shown, never edited)
    double NUMTR = 0;       // declarations as transmitter
    // The version of the stored row this record was loaded from or last saved as; 0 for a
    // contributor not loaded. A save writes only over that version (VersionFila.h).
    int64_t VERSION = 0;

    // Deletes the contributor CSCO; the store refuses one named in a declaration, and a code
    // it no longer has is not reported.
    void BorrarContribuyente() const;
    // Fills the record from the store; CSCO keeps its value. The province
    // code is given its two digits ("1" reads "01"). A code the store does not have leaves the
    // record as it was.
    void CargarContribuyente(int32_t codigo);
    // The import's validation of one exchange line (see cContribSvr).
    void ValidarDatosImportar(const Arreglo& datos, Arreglo2D& errores) const;
    // Verdict 0 to 14 of the validation array.
    int16_t ValidarDatosContribuyente(const Arreglo& datos) const;
    int32_t ObtenerCodigoContribuyente(const QString& dni) const;
    // Verdict 0 to 5 of the save array; on 3 (a text the store cannot keep as given)
    // `rechazo`, when given, holds the message and the field to show; 4 and 5 when the stored
    // contributor is no longer the VERSION loaded (saved again or deleted since), and nothing
    // was written. A save takes the row's new version into VERSION.
    int16_t GuardarContribuyente(const Arreglo& datos, Veredicto* rechazo = nullptr);

    // The arrays of the record, as the store takes them.
    Arreglo ArregloValidacion() const;
    Arreglo ArregloGuardar() const;

    // The catalogue id of the message of a verdict, 0 for valid or for a verdict outside the
    // table (which shows nothing and accepts nothing).
    static int IdMensajeValidacion(int16_t veredicto);
    static int IdMensajeGuardar(int16_t veredicto);
    // Whether a verdict of the save tells of a stored contributor other than the one loaded.
    static Vigencia VigenciaGuardar(int16_t veredicto);
    // The catalogue id of an error code of the import, 0 for a code outside the table.
    static int IdMensajeImportar(int codigo);
};

cConDatos& ConDatos();
