#pragma once
// The positions of the arrays of a return that cross between the record (cDecDatos) and the
// store (cDeclaSvr): the save array that GuardarDeclaracion takes and the load array that
// CargarDeclaracion fills. They hold the same values in the same order, except that the load
// array has the presenter's number and name after TOTAL (so every later value stands two
// places further on) and, last, the returns that have the transmitter as subject.

// The save array: 55 values.
namespace PosGuardarDeclaracion {
enum Posicion : int {
    CSDE,        // 0 makes a new row
    REFERENCIA,
    CSPR,
    CSSU,
    CSTRA,
    FECHAD,
    ADQUIRIDO,
    MARCA,
    TIPO,
    MODELO,
    BASTIDOR,
    CLASIFICACION,
    MOTOR,
    CILINDRADA,
    OPERACION,
    NOSUJETO,
    EXENTO,
    REDUCCION,
    BASEI,
    BASEIREDUCIDA,
    TIPOIMP,
    CUOTA,
    DEDUCCION,
    TOTAL,
    DNISP,
    NOMBRESP,
    VIASP,
    DOMICILIOSP,
    NUMEROSP,
    LETRASP,
    ESCALERASP,
    PISOSP,
    MANOSP,
    CODPROVSP,
    NOMPROVSP,   // always empty: the subject has a national address
    CODPOSSP,
    CODMUNSP,
    NOMMUNSP,
    TIPODNITR,
    DNITR,
    NOMBRETR,
    VIATR,
    DOMICILIOTR,
    NUMEROTR,
    LETRATR,
    ESCALERATR,
    PISOTR,
    MANOTR,
    TIPODOMITR,
    PAISTR,
    CODPROVTR,
    NOMPROVTR,
    CODPOSTR,
    CODMUNTR,
    NOMMUNTR,
    Tamano       // 55 values
};
}  // namespace PosGuardarDeclaracion

// The load array: 58 values.
namespace PosCargarDeclaracion {
enum Posicion : int {
    CSDE,        // the code asked for
    REFERENCIA,
    CSPR,
    CSSU,
    CSTRA,
    FECHAD,
    ADQUIRIDO,
    MARCA,
    TIPO,
    MODELO,
    BASTIDOR,
    CLASIFICACION,
    MOTOR,
    CILINDRADA,
    OPERACION,
    NOSUJETO,
    EXENTO,
    REDUCCION,
    BASEI,
    BASEIREDUCIDA,
    TIPOIMP,
    CUOTA,
    DEDUCCION,
    TOTAL,
    DNIPR,       // the presenter's number, read from the presenter's row
    NOMBREPR,    // and name
    DNISP,
    NOMBRESP,
    VIASP,
    DOMICILIOSP,
    NUMEROSP,
    LETRASP,
    ESCALERASP,
    PISOSP,
    MANOSP,
    CODPROVSP,
    NOMPROVSP,
    CODPOSSP,
    CODMUNSP,
    NOMMUNSP,
    TIPODNITR,
    DNITR,
    NOMBRETR,
    VIATR,
    DOMICILIOTR,
    NUMEROTR,
    LETRATR,
    ESCALERATR,
    PISOTR,
    MANOTR,
    TIPODOMITR,
    PAISTR,
    CODPROVTR,
    NOMPROVTR,
    CODPOSTR,
    CODMUNTR,
    NOMMUNTR,
    DECLASP,     // real: the returns that have the transmitter as subject
    Tamano       // 58 values
};
}  // namespace PosCargarDeclaracion

// The load array's position of a value of the save array.
constexpr int PosicionDeCarga(int guardar)
{
    return guardar < PosGuardarDeclaracion::DNISP
        ? guardar
        : guardar + (int(PosCargarDeclaracion::DNISP) - int(PosGuardarDeclaracion::DNISP));
}

static_assert(PosicionDeCarga(PosGuardarDeclaracion::TOTAL) == PosCargarDeclaracion::TOTAL
                  && PosicionDeCarga(PosGuardarDeclaracion::DNISP) == PosCargarDeclaracion::DNISP
                  && PosicionDeCarga(PosGuardarDeclaracion::NOMMUNTR)
                      == PosCargarDeclaracion::NOMMUNTR
                  && PosCargarDeclaracion::Tamano == PosGuardarDeclaracion::Tamano + 3,
              "the load array is the save array with the presenter's number and name after "
              "TOTAL and the count at the end");
