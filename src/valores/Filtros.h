#pragma once
// Key filters of the fields. A panel passes the character code of a key; a code of 0 cancels
// the key. Backspace (8) always passes.

// Digits "0" to "9" only.
void FiltroDigitos(int& key);
// Digits and "/".
void FiltroFecha(int& key);
// Text fields hold upper case: the key is turned to upper case and kept if it is one of the
// allowed characters; anything else gives 0 ("á", "#", "@", the Enter key, ...).
int FiltroTexto(int key);

// The characters a text field accepts, upper case.
extern const char16_t* const kCaracteresTexto;
