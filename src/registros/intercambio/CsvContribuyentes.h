#pragma once
// Contributors as a CSV file for spreadsheets. The first row names the columns with the names
// of the fields of the exchange line (TIPODNI, DNI, NOMBRE, SIGLAS, DOMICILIO, NUMERO, LETRA,
// ESCALERA, PISO, MANO, TIPODOMICILIO, PAIS, CODIGO PROVINCIA, NOMBRE PROVINCIA, CODIGO POSTAL,
// CODIGO MUNICIPIO, NOMBRE MUNICIPIO, NUMERO SUJETO PASIVO, NUMERO TRANSMITENTE), in any order
// and in any case; each further row is one contributor.
//
// Reading takes UTF-8 (with or without its byte-order mark) or Windows-1252, and ";" or ","
// between fields, as the file shows them. TIPODNI, DNI and NOMBRE must be there; any other
// column may be missing, and its field is then empty (0 for a number). Each row becomes the
// fields of an exchange line, a text filled with blanks and a number with "0" to the width of
// its field, so that it goes through the import's checks as a line of the exchange file does.
// A row is refused whole, never guessed at, when it cannot be split: a quote that does not
// close, text after a closing quote, more or fewer fields than the first row. Rows whose
// fields are all empty (the empty rows a spreadsheet leaves at the end) are passed over.
//
// Writing gives UTF-8 with its byte-order mark, ";" between fields, every column, texts
// without their filling blanks, and numbers as numbers (the codes of province, postal code
// and municipality with their leading zeros).
#include "registros/intercambio/FuenteLineas.h"

#include <QString>
#include <memory>

namespace CsvContribuyentes {

// The name of a field's column.
QString NombreColumna(CampoIntercambio campo);

// As ::AbrirFuente, for a CSV file.
::Resultado<std::unique_ptr<FuenteLineas>> AbrirFuente(QFile& entrada);

// The byte-order mark and the first row; then one row for each contributor.
QByteArray Cabecera();
QByteArray Fila(const ValoresLinea& valores);

}  // namespace CsvContribuyentes
