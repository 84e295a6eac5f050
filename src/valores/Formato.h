#pragma once
// Display formats of numbers, always the Spanish way ("1.234,50") whatever the machine's
// locale. A format is written with these characters:
//   0  a digit that is always shown        #  a digit shown only when significant
//   .  the decimal comma on screen         ,  (in the integer part) group thousands with "."
//   %  the value times 100, with a "%"    "..." or \c  literal text
// Up to three sections separated by ";" give the picture for positive, negative and zero
// values. So "###,###,###,##0.00" shows 1234.5 as "1.234,50", "00" shows 7 as "07", and
// "#####" shows 0 as an empty text. An empty format shows the number plainly ("1234,5").
// Halves are rounded away from zero, on the number's decimal digits.
#include <QString>

QString Formato(double valor, const QString& formato);
// A text that holds a number (read the Spanish way, see NumeroDeTexto) is formatted as that
// number; an empty text gives an empty text and any other text comes back as it stands.
QString Formato(const QString& valor, const QString& formato);

// Reads a number written the Spanish way: "." are group marks and are skipped, "," is the
// decimal comma; blanks around and a leading sign are allowed. So "1.234,50" is 1234.5 and
// "01.234.50" is 123450. `ok` (when given) tells whether the text was such a number; a text
// that is not gives 0.
double NumeroDeTexto(const QString& texto, bool* ok = nullptr);

// The first "," of a value becomes "."; a value without one comes back as it is.
QString ComaAPunto(const QString& valor);
