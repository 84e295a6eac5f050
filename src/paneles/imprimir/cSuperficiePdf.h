#pragma once
// A page surface that writes a PDF file on A4: each sheet is one page, in the order drawn.
// The fonts are embedded.
#include "paneles/imprimir/cSuperficiePintor.h"

#include <QPdfWriter>

class cSuperficiePdf : public cSuperficiePintor {
public:
    explicit cSuperficiePdf(const QString& fichero);
    ~cSuperficiePdf() override;

    void EndDoc() override;
    // Closes the file; false when it could not be written.
    bool Terminar();
    int Paginas() const { return m_paginas; }

protected:
    void EmpezarHoja(QPainter& pintor) override;

private:
    QPdfWriter m_escritor;
    int m_paginas = 0;
    bool m_bien = true;
};
