#pragma once
// A page surface on one printer of the preview: every sheet is a page of the same document,
// in the order drawn, so the preview shows the copies as they would come out one by one.
#include "paneles/imprimir/cSuperficiePintor.h"

class QPrinter;

class cSuperficieVista : public cSuperficiePintor {
public:
    explicit cSuperficieVista(QPrinter& impresora);
    ~cSuperficieVista() override;

    void EndDoc() override;
    int Paginas() const { return m_paginas; }

protected:
    void EmpezarHoja(QPainter& pintor) override;

private:
    QPrinter& m_impresora;
    int m_paginas = 0;
};
