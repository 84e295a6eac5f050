#pragma once
// A page surface that writes a PDF file on A4: each sheet is one page, in the order drawn.
// The fonts are embedded.
#include "paneles/imprimir/cSuperficiePintor.h"

#include <QPdfWriter>
#include <memory>

class QIODevice;

class cSuperficiePdf : public cSuperficiePintor {
public:
    explicit cSuperficiePdf(const QString& fichero);
    // Writes to an open device (a QSaveFile, so that a failed printing leaves no half file).
    explicit cSuperficiePdf(QIODevice* destino);
    ~cSuperficiePdf() override;

    void EndDoc() override;
    // Closes the file; false when it could not be written.
    bool Terminar();
    int Paginas() const { return m_paginas; }

protected:
    void EmpezarHoja(QPainter& pintor) override;

private:
    void Preparar();

    std::unique_ptr<QPdfWriter> m_escritor;
    int m_paginas = 0;
    bool m_bien = true;
};
