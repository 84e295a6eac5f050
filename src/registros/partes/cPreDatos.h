#pragma once
// The program's working copy of one presenter (one instance, PreDatos()): a plain record like
// the contributor's, with the same reset for a new one, and operations that each make a store
// object for one call. A presenter is always national and official: no kind of document or
// domicile, no country, no typed province, no counters; a telephone.
#include "servicios/Arreglos.h"
#include "valores/Veredicto.h"
#include "valores/Vigencia.h"

#include <QString>
#include <cstdint>

class cPreDatos {
public:
    // Declarations that name the presenter CSPR (16-bit; no panel calls it).
    int16_t NDeclaPresentador() const;
    // Fills the record from the store; CSPR keeps its value. The province is
    // given two digits and the postal code five; a telephone of value 0 reads empty. A code
    // the store does not have leaves the record as it was.
    void CargarPresentador(int32_t codigo);
    // Verdict 0 to 6 of the save array; on 4 (a text the store cannot keep as given)
    // `rechazo`, when given, holds the message and the field to show; 5 and 6 when the stored
    // presenter is no longer the VERSION loaded (saved again or deleted since), and nothing was
    // written. A save takes the row's new version into VERSION.
    int16_t GuardarPresentador(const Arreglo& datos, Veredicto* rechazo = nullptr);
    // Verdict 0 to 11 of the validation array.
    int16_t ValidarDatosPresentador(const Arreglo& datos) const;
    // Deletes the presenter CSPR; the store refuses one named in a declaration.
    void BorrarPresentador() const;

    QString CODPROVP;
    // A new presenter: every field to its default, but CSPR, which the opener sets.
    void IniciarNuevo();
    QString CODPOSP;
    QString CODMUNP;
    QString NOMMUNP;
    int32_t CSPR = 0;
    QString DOMICILIOP;
    QString DNIP;
    QString NOMBREP;
    QString VIAP;
    int32_t NUMEROP = 0;
    QString LETRAP;
    QString ESCALERAP;
    QString PISOP;
    QString MANOP;
    QString TELEFONOP;
    // The version of the stored row this record was loaded from or last saved as; 0 for a
    // presenter not loaded.
    int64_t VERSION = 0;

    int32_t ObtenerCodigoPresentador(const QString& dni) const;

    // The arrays of the record, as the store takes them.
    Arreglo ArregloValidacion() const;
    Arreglo ArregloGuardar() const;

    // The catalogue id of the message of a verdict, 0 for valid or a verdict outside the
    // table.
    static int IdMensajeValidacion(int16_t veredicto);
    static int IdMensajeGuardar(int16_t veredicto);
    // Whether a verdict of the save tells of a stored presenter other than the one loaded.
    static Vigencia VigenciaGuardar(int16_t veredicto);
};

cPreDatos& PreDatos();
