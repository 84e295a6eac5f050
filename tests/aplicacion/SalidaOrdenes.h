#pragma once
// The printing of the command line run inside the test's process, with what it writes on
// stderr caught: the tests of one return and of batches read its status and its messages.
#include <QString>
#include <QStringList>
#include <optional>

class QPrinter;

struct SalidaOrden {
    std::optional<int> estado;
    QString error;
};

// OrdenesImprimir on "Veldo" followed by `argumentos`; stderr goes through a file in `carpeta`.
SalidaOrden ejecutar(const QStringList& argumentos, const QString& carpeta,
                   QPrinter* impresora = nullptr);
