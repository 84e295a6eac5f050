#pragma once
// The lines of the error file of an import, as bytes ready to be written (Windows-1252, CR LF).
// The file is meant for a person who corrects the exchange file with an editor: one line for
// each error of each refused line, in file order, and, after them, the format of the line.
#include "servicios/LineaContribuyente.h"

#include <QByteArray>
#include <QString>

namespace FicheroErrores {

// A line shorter than 176 characters: "Linea 7No se han importado todos los datos".
QByteArray LineaCorta(int linea);
// One line per error of `errores` (what ValidarDatosImportar found), in their order:
// "Linea 7 - DNI-CIF " the DNI as read, blanks kept, ": " and the error's message.
QByteArray LineasErrores(const QList<HallazgoImportacion>& errores, int linea,
                         const QString& dni);
// The line of a valid line whose save the store refused (a text it cannot keep as given):
// the same head as LineasErrores, then the store's message.
QByteArray LineaRechazo(int linea, const QString& dni, const QString& mensaje);
// A row of a spreadsheet that could not be split into its fields: "Linea 7 - " and the reason.
QByteArray LineaIlegible(int linea, const QString& motivo);
// An empty line, "FORMATO:" in the language in use, and the 19 fields, always in Spanish.
QByteArray Formato();

}  // namespace FicheroErrores
