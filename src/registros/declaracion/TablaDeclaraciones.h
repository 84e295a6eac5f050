#pragma once
// Returns as a table for a spreadsheet: one row per return with its code, reference, date of
// accrual, the subject's and the transmitter's numbers and names, operation, base, rate,
// quota, deduction and total, under a row of headings in the language in use. The text is
// what a Spanish spreadsheet opens as it stands: UTF-8 with its byte-order mark, ";" between
// fields, amounts in euros with the decimal comma and no group marks ("1234,50"), dates
// DD/MM/YYYY, fields quoted where they must be.
#include "servicios/ListadoDeclaraciones.h"

#include <QByteArray>
#include <vector>

QByteArray TablaDeclaracionesCsv(const std::vector<FilaDeclaracion>& filas);
