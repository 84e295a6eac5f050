#pragma once
// One return as the store keeps it, in the order of its fields: the value that the
// declaration form edits, that printing reads and that the lists of returns point at. The
// presenter's number and name, and the count of returns of the transmitter as subject, are
// read with it and never saved from it.
#include "valores/Importe.h"

#include <QString>
#include <cstdint>

struct Declaracion {
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
    Importe BASEI;               // amounts in whole cents (Importe)
    Importe BASEIREDUCIDA;
    double TIPOIMP = 0;          // rate in percent
    Importe CUOTA;
    Importe DEDUCCION;
    Importe TOTAL;
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
    QString NOMPROVSP;           // loaded and kept, never saved (the subject is national)
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
    double DECLASP = 0;          // returns whose subject is the transmitter (counted, never saved)
    // The version of the stored row this return was loaded from or last saved as: a save
    // writes only over that version.
    int64_t VERSION = 0;

    bool operator==(const Declaracion&) const = default;
};
