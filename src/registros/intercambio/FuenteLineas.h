#pragma once
// Where the import takes its contributors from, one line at a time, each cut into the 19
// fields of the exchange line: the fixed-width exchange file, or a CSV file saved by a
// spreadsheet (CsvContribuyentes.h), chosen by the file's extension. Whatever the source, the
// import validates, counts and saves each line the same way.
#include "registros/intercambio/LineaIntercambio.h"
#include "valores/Resultado.h"

#include <QFile>
#include <QString>
#include <memory>

class FuenteLineas {
public:
    enum class Resultado {
        Linea,     // `leida` holds the next line's fields
        Ilegible,  // a row that cannot be split: `motivo` says why, no field is given
        Fin,       // nothing more to read
    };
    virtual ~FuenteLineas() = default;

    virtual Resultado Siguiente(LineaLeida& leida, QString& motivo) = 0;
    // The number the error file gives the last line read: its line in the exchange file, its
    // row in the spreadsheet.
    virtual int Numero() const = 0;
    // An estimate of the lines of the whole source, for the progress (0 for an empty one).
    virtual double Estimado() const = 0;
    // The device failed while it was read.
    virtual bool Error() const = 0;
};

// A CSV file is one whose name ends in ".csv", in any case.
bool EsFicheroCsv(const QString& fichero);

// The source over the open file `entrada`. A CSV file whose first row does not name its
// columns as the exchange line does is refused with the reason; one that cannot be read is a
// failure (cFallo, with the number FalloIntercambio gives it).
::Resultado<std::unique_ptr<FuenteLineas>> AbrirFuente(QFile& entrada);
