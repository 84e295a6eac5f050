#pragma once
// Identity numbers of the parties.
//
// An official number (TIPODNI "O") is a Spanish NIF of nine upper-case characters, in one of
// these forms:
//  - DNI: eight digits and a letter, the letter of the remainder of the number by 23 in
//    "TRWAGMYFPDXBNJZSQVHLCKE".
//  - NIE: X, Y or Z, seven digits and a letter; X, Y and Z stand for 0, 1 and 2 in front of
//    the digits, and the letter is then that of a DNI.
//  - K, L or M (Spaniards under 14, Spaniards living abroad, foreigners without NIE), seven
//    digits and the DNI letter of those seven digits.
//  - CIF of a legal person: one of the letters "ABCDEFGHJNPQRSUVW", seven digits and a control
//    character. The control comes from the digits (the digits in even places are added, those
//    in odd places are doubled and their digits added; the control is what brings the sum to
//    the next ten). Companies (A, B), communities of property (E) and horizontal properties (H)
//    write it as a digit; bodies of the State, foreign and non-resident entities, religious
//    bodies and the like (N, P, Q, R, S, W) as the letter "JABCDEFGHI"[control]; the others
//    may use either.
// A number whose digits are all zeros is never a real one and is refused as badly formed.
//
// A foreign document (TIPODNI "N") is a passport or a foreign identity card: there is no
// check character that this program could verify, so its number is not held to the Spanish
// rules. It is accepted when it has 1 to 9 characters, each an upper-case letter or a digit,
// and is not a number of value 0 (the value that the declaration and the export refuse for a
// foreign number).
//
// Blanks around a number are not part of it and are ignored.
#include <QString>

enum class EstadoNif {
    Vacio,           // nothing but blanks
    MalFormado,      // does not have the shape of any accepted form
    ControlErroneo,  // the shape of a form, but its check character is missing or wrong
    Valido,
};

// Judges an official number.
EstadoNif ExaminarNifOficial(const QString& dni);
// Judges a foreign document; never answers ControlErroneo.
EstadoNif ExaminarDocumentoExtranjero(const QString& dni);
// Judges the number by its kind: "N" foreign, anything else official.
EstadoNif ExaminarDni(const QString& tipoDni, const QString& dni);

// True when `dni` is a well-formed official number with the right check character.
bool EsNifOficialValido(const QString& dni);

// The check characters, exposed for the tests and for whoever needs to complete a number.
// `numero` is the value of the digits (with X, Y, Z already turned into 0, 1, 2).
QChar LetraDni(quint32 numero);
// `digitos` must be seven digits; answers the control as a number 0..9.
int ControlCif(const QString& digitos);
