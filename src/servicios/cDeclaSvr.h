#pragma once
// The store of the returns (DECLARACIONES in the read/write database) and the operations of
// form 747 (T11_OPERACIONES in the reference database), with the whole-return validation.
// Set mdbmod and/or mdblec before each call; nothing is kept open between calls that the next
// call relies on. Failures of the stores are raised as cFallo with the operation as source.
#include "plataforma/Idioma.h"
#include "valores/Contribuyente.h"
#include "valores/CriteriosDeclaracion.h"
#include "valores/Declaracion.h"
#include "valores/FilaDeclaracion.h"
#include "valores/Resultado.h"
#include "valores/Veredicto.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>

// One of the last saved returns, as the main window offers them.
struct UltimaDeclaracion {
    int32_t CSDE = 0;
    QString descripcion;  // the reference, or the subject's name when it has none
};

// Whether a save of a stored return writes only over the version it loaded (the program's
// saves), or over whatever the row holds (a return made outside any panel).
enum class ComprobarVersion { Si, No };

// An operation of form 747 as it applies on a date.
struct DatosOperacion {
    QString descripcion;   // in the language asked for
    QString impresion;     // the print key
    QString nosujeto;      // "X" not subject
    QString exento;        // "X" exempt
    double tipo = 0;       // the rate; 99.99 the rate without fixed value
    double tipoMinimo = 0;  // the limits of a typed rate
    double tipoMaximo = 0;
    double deduccion = 0;  // in whole cents
};

// What the whole-return validation judges: the return's fields as the form holds them (the
// province codes with two digits, a national postal code with five), with the operation's
// rate and the limits of a typed one.
struct DatosValidacion {
    QString MARCA;
    QString MODELO;
    QString TIPO;
    QString BASTIDOR;
    double CLASIFICACION = 0;
    double CILINDRADA = 0;
    QString OPERACION;
    double BASEI = 0;        // whole cents
    double TIPOIMP = 0;      // the rate of the return
    double TASA = 0;         // the operation's rate; 0 when the rate is not the declarant's
    double TASAMINIMA = 0;   // the limits of a typed rate
    double TASAMAXIMA = 0;
    QString DNISP;
    QString NOMBRESP;
    QString VIASP;
    QString DOMICILIOSP;
    QString CODPROVSP;
    QString CODPOSSP;
    QString CODMUNSP;
    QString NOMMUNSP;
    QString TIPODNITR;
    QString DNITR;
    QString NOMBRETR;
    QString VIATR;
    QString DOMICILIOTR;
    QString TIPODOMITR;
    QString PAISTR;
    QString CODPROVTR;
    QString NOMPROVTR;
    QString CODPOSTR;
    QString CODMUNTR;
    QString NOMMUNTR;
    QString MOTOR;
};

class cDeclaSvr {
public:
    QString mdbmod;
    QString mdblec;

    // Highest rule number of ValidarDatosDeclaraciones.
    static constexpr int kUltimaRegla = 40;

    // --- Returns -------------------------------------------------------------------------
    // Stores the return: a new row when its CSDE is 0, else the row of that code.
    // Checking the version, the row of the code is rewritten only while it still has the
    // VERSION the return was loaded with (VersionFila.h); otherwise nothing is written and the
    // answer is a refusal without a message whose `vigencia` says Cambiada (saved again since)
    // or Borrada (deleted since). Without the check the row is rewritten whatever it holds, and
    // a code that names no row any more makes a new row. Party codes
    // that name no stored contributor or presenter are kept as 0 (the return keeps its own copy
    // of the party). The counters of the parties named before and after follow in the same
    // transaction. The subject's province name is never stored (the subject's address is
    // national). A text that the store cannot keep as given (a control character, a broken
    // character, a text longer than its field) or an amount that is not a finite number is
    // refused with the message and the field, and nothing is written. The accepted answer is
    // the return as stored: its code and its row's new version.
    Resultado<Declaracion> GuardarDeclaracion(
        const Declaracion& declaracion, ComprobarVersion comprobar = ComprobarVersion::Si) const;
    // The return `csde`, with the presenter's number and name read from the presenter's row,
    // the number of returns whose subject is this return's transmitter in DECLASP, and the
    // version of its row; nothing for an unknown code.
    std::optional<Declaracion> CargarDeclaracion(int32_t csde) const;
    // Removes the row and lowers the counters of its parties; false when there was none.
    bool BorrarDeclaracion(int32_t csde) const;
    // The last saved returns, the most recent first, at most four.
    QList<UltimaDeclaracion> ObtenerUltimasDeclaraciones() const;

    // --- Parties, as the return takes them -------------------------------------------------
    // The contributor with this number, with NUMSP (returns in which it is the subject)
    // counted; nothing for an unknown number.
    std::optional<Contribuyente> ExisteContribuyente(const QString& dni) const;
    // The same for a contributor's code.
    std::optional<Contribuyente> CargarContribuyente(int32_t codigo) const;

    // --- Operations (mdblec) ---------------------------------------------------------------
    // The descriptions of the operations that apply on `fechad`, in `idioma`.
    QStringList ObtenerOperaciones(int32_t fechad, Idioma idioma) const;
    // The operation `operacion` on a date; nothing when the code does not apply on that date.
    std::optional<DatosOperacion> ObtenerDatosOperacion(const QString& operacion, int32_t fechad,
                                                        Idioma idioma) const;
    // The code of the operation with this description on the date; empty when none.
    QString DameOperacionporDescripcion(const QString& descripcion, int32_t fechad,
                                        Idioma idioma) const;
    // The print key of the operation on the date; empty when the code does not apply then.
    QString ObtenImpresion(int32_t fechad, const QString& codigo) const;

    // --- Validation ------------------------------------------------------------------------
    // Accepted when the return keeps every rule; otherwise the verdict of the first rule (1 to
    // 40) it breaks (VeredictoRegla). `impresion` is the print key of the operation on
    // `fechad` (ObtenImpresion): empty when the operation does not apply on that date. Needs
    // no database.
    Resultado<void> ValidarDatosDeclaraciones(const DatosValidacion& datos,
                                              const QString& impresion, int32_t fechad) const;
    // The verdict of rule `regla`: its message (for rule 9 the start of it, the limits to be
    // added; for rule 39 the start, the operation and id 357 to be added), information icon,
    // the control to focus and its tab. Empty for a number outside 1 to 40.
    static Veredicto VeredictoRegla(int regla);

    // --- Lists (mdbmod and mdblec) ----------------------------------------------------------
    // The returns that meet `condiciones`, each with its code, reference, date, total,
    // operation and the operation's description on its date of accrual in `idioma`. `orden` 1 to 5 orders by code, reference, date, total or operation, `tipoOrden`
    // "ASC" or "DESC"; the code breaks ties.
    QList<FilaDeclaracion> dameResultadoBusqueda(const CondicionesDeclaracion& condiciones,
                                                 uint8_t orden, const QString& tipoOrden,
                                                 Idioma idioma) const;
    // The returns of one contributor, each with PARTE: "S" when it is the subject, "T" the
    // transmitter, "S-T" both.
    QList<FilaDeclaracion> dameDeclaracionesContribuyente(const CondicionesDeclaracion& condiciones,
                                                          int32_t csco, uint8_t orden,
                                                          const QString& tipoOrden,
                                                          Idioma idioma) const;
    // The returns handed in by one presenter.
    QList<FilaDeclaracion> dameDeclaracionesPresentador(const CondicionesDeclaracion& condiciones,
                                                        int32_t cspr, uint8_t orden,
                                                        const QString& tipoOrden,
                                                        Idioma idioma) const;
};
