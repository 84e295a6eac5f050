#pragma once
// The return being edited: one shared record, DecDatos(), that the declaration form edits in
// place, that the lists and selection panels hand over, and that printing reads. Its fields
// are plain properties; IniciarNuevo() makes a clean new return. How the form is entered and
// where it goes back to are the navigator's (Navegacion::RutaDec()), not the record's.
// The operations open a cDeclaSvr for one call each.
#include "servicios/Arreglos.h"
#include "valores/EstadoNavegacion.h"
#include "valores/Veredicto.h"
#include "valores/Vigencia.h"

#include <QString>
#include <QStringList>
#include <cstdint>

class cDecDatos {
public:
    // --- The return, in the order of its fields ----------------------------------------------
    int32_t CSDE = 0;            // code of the return; 0 while it has no row
    QString REFERENCIA;          // the user's reference, up to 10 characters
    int32_t CSPR = 0;            // presenter; 0 none
    int32_t CSSU = 0;            // subject contributor; 0 not a stored one
    int32_t CSTRA = 0;           // transmitter contributor; 0 not a stored one
    int32_t FECHAD = 0;          // date of accrual yyyymmdd
    QString ADQUIRIDO;           // "X" acquired outside Spain
    QString MARCA;
    QString TIPO;
    QString MODELO;
    QString BASTIDOR;
    int16_t CLASIFICACION = 0;   // up to 4 digits
    QString MOTOR = QStringLiteral("G");  // "D" diesel, "G" petrol
    int32_t CILINDRADA = 0;      // cc, up to 5 digits
    QString OPERACION;           // operation code, up to 3 characters
    QString NOSUJETO;            // "X" not subject
    QString EXENTO;              // "X" exempt
    QString REDUCCION;           // "X", "Y", "Z" or empty
    double BASEI = 0;            // amounts in whole cents
    double BASEIREDUCIDA = 0;
    double TIPOIMP = 0;          // rate in percent
    double CUOTA = 0;
    double DEDUCCION = 0;
    double TOTAL = 0;
    QString DNIPR;               // presenter's number and name, shown only
    QString NOMBREPR;
    QString DNISP;
    QString NOMBRESP;
    QString VIASP = QStringLiteral("CL");
    QString DOMICILIOSP;
    int32_t NUMEROSP = 0;
    QString LETRASP;
    QString ESCALERASP;
    QString PISOSP;
    QString MANOSP;
    QString CODPROVSP = QStringLiteral("77");
    QString CODPOSSP;
    QString CODMUNSP;
    QString NOMMUNSP;
    QString TIPODNITR = QStringLiteral("O");   // "O" official, "N" foreign number
    QString DNITR;
    QString NOMBRETR;
    QString TIPODOMITR = QStringLiteral("N");  // "N" national, "E" foreign address
    QString VIATR = QStringLiteral("CL");
    QString DOMICILIOTR;
    int32_t NUMEROTR = 0;
    QString LETRATR;
    QString ESCALERATR;
    QString PISOTR;
    QString MANOTR;
    QString PAISTR;
    QString CODPROVTR = QStringLiteral("77");
    QString NOMPROVTR;
    QString CODPOSTR;
    QString CODMUNTR;
    QString NOMMUNTR;
    double DECLASP = 0;          // returns whose subject is the transmitter (load value 57)
    // The version of the stored row this return was loaded from or last saved as; a save of
    // the return CSDE writes only over that version (VersionFila.h).
    int64_t VERSION = 0;

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
    // A contributor's 19-value array into the subject's or the transmitter's fields.
    void CargarSujetoPasivo(const Arreglo& datos);
    void CargarTransmitente(const Arreglo& datos);
    // The transmitter's party copied to the subject, and the other way.
    void VolcarTrSp();
    void VolcarSpTR();

    // The 55-value array that GuardarDeclaracion stores (the subject's province name is always
    // empty: the subject has a national address whose name comes from the province code).
    Arreglo DatosGuardar() const;
    // Fills the fields from a 58-value load array (CSDE is not touched).
    void DatosCargados(const Arreglo& datos);

    // --- Operations through cDeclaSvr ----------------------------------------------------------
    void ValidarDatosDeclaracion(const Arreglo& datos, int32_t fecha, int16_t& resultado) const;
    // `resultado` 0 when the store refused a text it cannot keep as given: `rechazo`, when
    // given, then holds the message and the field to show; cDeclaSvr::kCambiada or kBorrada
    // when the stored return is no longer the VERSION loaded (nothing was written). A save
    // takes the row's new version into VERSION.
    void GuardarDeclaracion(const Arreglo& datos, int32_t& resultado,
                            Veredicto* rechazo = nullptr);
    void CargarDeclaracion();
    void BorrarDeclaracion() const;
    void ObtenerUltimasDeclaraciones(Arreglo2D& lista) const;
    void ExisteContribuyente(const QString& dni, Arreglo& datos, bool& resultado) const;
    // Back from a choice of party: Entrada::Sujeto loads the contributor CSSU as subject,
    // anything else CSTRA as transmitter.
    void CargarContribuyente(Navegacion::Entrada entrada);
    void ValidarDniOficial(const QString& dni, bool& resultado) const;
    // The descriptions of the operations that apply on FECHAD, for the form's list.
    QStringList CargarListaOperaciones() const;
    // The code of the operation that the form's list shows as `descripcion` on FECHAD.
    QString DameOperacionporDescripcion(const QString& descripcion) const;
    // Loads Operacion() with the operation OPERACION on FECHAD, or empties it.
    void ObtenerDatosOperacion(bool sinReduccion) const;

private:
    QString m_nomProvSp;  // the subject's province name: loaded and kept, never saved
};

cDecDatos& DecDatos();

// The form's save: the 55-value array of DecDatos() to the store. Answers the return's code,
// above 0 when it was stored; 0 when the store refused a text, whose message and field
// `rechazo` (when given) receives for the form to show; below 0 when the stored return was
// saved again or deleted since it was loaded (VigenciaGuardado tells which).
int32_t GuardarDatosDeclaracion(Veredicto* rechazo = nullptr);
// What an answer of GuardarDatosDeclaracion says of the stored return.
Vigencia VigenciaGuardado(int32_t resultado);
