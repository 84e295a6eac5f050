#pragma once
// The two ways the program reads a number out of a text.
//  - Val: reads the leading number of a text and ignores the rest; a text without one is 0.
//    Blanks, tabs and line feeds inside the number are skipped, as the old basic reader did.
//  - EnteroEstricto: the whole text (blanks around it aside) must be a whole number; anything
//    else is a failure, which the callers turn into their own answer.
#include <QString>
#include <optional>

double Val(const QString& texto);

// A whole number that must fit `minimo`..`maximo`; std::nullopt when the text is not one.
std::optional<long long> EnteroEstricto(const QString& texto, long long minimo, long long maximo);
