#pragma once
// Splitting a file's path into its folder and its name ("/" separates folders here).
#include <QString>

// The text after the last "/", or the whole path when it has none.
QString NombreFichero(const QString& ruta);
// The text up to and including the last "/", or an empty text when it has none.
QString RutaFichero(const QString& ruta);
