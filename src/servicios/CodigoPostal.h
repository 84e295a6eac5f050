#pragma once
// Codes of a national address: province (two digits), postal code (five digits) and
// municipality (three digits), and the link between postal code and province.
//
// A national postal code has five digits, is not zero, begins with the two digits of its
// province and does not end in 000 (nn000 is the code of no delivery area). Blanks around a
// code are not part of it.
#include <QString>

namespace CodigoPostal {

// Nothing but blanks, or digits whose value is 0 ("", "0", "00000").
bool EsCero(const QString& codigo);
// Exactly five digits.
bool TieneCincoCifras(const QString& codigo);
// Five digits of which the last three are 000 (and the whole not zero).
bool TerminaEnCeros(const QString& codigo);
// Five digits whose first two are the province's code (given with or without its leading 0).
bool EsDeProvincia(const QString& codigo, const QString& provincia);
// Five digits, not zero, not nn000, of the province.
bool EsValidoEnProvincia(const QString& codigo, const QString& provincia);

}  // namespace CodigoPostal

// The fixed-width form of a code given as digits, blanks around them aside: a province "1" or
// "01" gives "01", a municipality "5" or "005" gives "005". A code of value 0 and a text that
// is not made of digits give "": no code. A number too wide for the code is given without its
// leading zeros, so that it matches no code.
namespace CodigoProvincia {
QString Normalizado(const QString& codigo);
}

namespace CodigoMunicipio {
QString Normalizado(const QString& codigo);
}

// True when the text, blanks around it aside, is made of digits only (and is not empty).
bool SoloCifras(const QString& texto);
