#pragma once
// Comma-separated values as spreadsheets write and read them: fields between separators,
// records between line ends; a field that holds the separator, a quote or a line end goes
// between double quotes, a quote inside it doubled. The reader splits records that way and
// never guesses: a record it cannot split is answered as a failure, with the reason.
#include <QChar>
#include <QString>
#include <QStringList>

namespace Csv {

// The field as it goes into a record: quoted when it must be.
QString Campo(const QString& valor, QChar separador);
// A record: the fields quoted as needed, joined by the separator, ended by CR LF.
QString Registro(const QStringList& campos, QChar separador);

// The separator of a text: ";" or ",", whichever the first record (outside quotes) holds
// more of; ";" when neither or both as many.
QChar DetectarSeparador(const QString& texto);

// Why a record could not be split.
enum class Fallo { Ninguno, ComillasSinCerrar, TextoTrasComillas };

class Lector {
public:
    Lector(const QString& texto, QChar separador);

    // The next record in `campos`, false at the end of the text. A record that cannot be
    // split answers true with `fallo` set: the reader then goes on after the end of the line
    // where the failure was found. `campos` holds what was read of it.
    bool Siguiente(QStringList& campos, Fallo& fallo);
    // The record number of the last record given (the first is 1): each record counts one,
    // whatever line ends its quoted fields hold.
    int Numero() const { return m_numero; }

private:
    void SaltarFinDeLinea();

    QString m_texto;
    QChar m_separador;
    qsizetype m_pos = 0;
    int m_numero = 0;
};

}  // namespace Csv
