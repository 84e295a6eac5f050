#pragma once
// What an export or an import has to say at its end, as a verdict: the reason, the values that
// go into the text, and the text itself in the language in use. The panels show it; the
// command line prints it.
#include <QString>
#include <QStringList>

enum class MotivoAviso {
    Ninguno,            // nothing to say
    TodosErroneos,      // 271
    UnErroneo,          // 272 n 273
    VariosErroneos,     // 272 n 274
    Importados,         // 275
    NoExisteFichero,    // 276
    FicheroAbierto,     // 312
    ErrorEjecucion,     // 277 number " : " description
    NoHayDisquete,      // 249
    NifErroneos,        // the export's list of wrong identity numbers
    NoRepresentables,   // the export's list of contributors the file cannot hold
    CabeceraCsv,        // a CSV file's first row: the id of what is wrong, then the column
};

struct AvisoIntercambio {
    MotivoAviso motivo = MotivoAviso::Ninguno;
    QStringList argumentos;

    explicit operator bool() const { return motivo != MotivoAviso::Ninguno; }
    // The catalogue id the text starts with; 0 for the texts that are not in the catalogue.
    int id() const;
    QString texto() const;
};

// Failures of a run that the program reports with their number, as 277 shows them.
namespace FalloIntercambio {
inline constexpr int kDesbordamiento = 6;    // the 16-bit line counter went past 32767
inline constexpr int kDiscoLleno = 61;
inline constexpr int kAccesoDenegado = 75;
inline constexpr int kRutaNoEncontrada = 76;
// The description of one of these numbers, in the language in use.
QString Descripcion(int numero);
AvisoIntercambio Aviso(int numero, const QString& descripcion);
AvisoIntercambio Aviso(int numero);
}
