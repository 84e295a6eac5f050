#pragma once
// What the tests of the exchange file share: lines built byte by byte, files written and read
// back whole, the contributors' store service, and an import run with its questions answered
// and its counters checked.
#include "registros/intercambio/cImportar.h"
#include "servicios/cContribSvr.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace ApoyoIntercambio {

// The 19 fields of a line, each given as the bytes to put in it (Windows-1252); each is cut
// or filled to its width: texts with blanks on the right, numbers (given as digits) with "0"
// on the left. Without line end.
QByteArray Linea(const QList<QByteArray>& campos);
// A valid national contributor in the treasury's province (municipality 001), number `n`
// (eight digits and its letter), with this name (bytes, up to 40).
QByteArray LineaValida(quint32 n, const QByteArray& nombre = "GARCIA LOPEZ JUAN");
// Its 19 fields, to be changed one by one before Linea().
QList<QByteArray> CamposValidos(quint32 n, const QByteArray& nombre = "GARCIA LOPEZ JUAN");
// The DNI of `n`: eight digits and the right letter.
QByteArray DniDe(quint32 n);

void Escribir(const QString& ruta, const QByteArray& bytes);
QByteArray Leer(const QString& ruta);

// The contributors' store service on the program's databases.
cContribSvr Svr();
// The number of stored contributors.
int Contribuyentes();

// The file to import written with `bytes`, and the mode set (automatic "X", manual " ").
void PrepararImportacion(const QByteArray& bytes, bool automatico);
// The answer to the import's question of replacing a contributor: each number asked is noted
// in `preguntas`, and answered from `respuestas` in turn (No when none is left).
cImportar::Interlocutor Respondiendo(QStringList& preguntas, QList<bool>& respuestas);
// The counters of the last import: lines read, imported, wrong, replaced and ignored.
void ComprobarContadores(int total, int imp, int inc, int sus, int ign);

}  // namespace ApoyoIntercambio
