#pragma once
// A page surface on one of the system's printers (through CUPS): each sheet is a print job
// of its own, sent when the sheet ends.
#include "paneles/imprimir/cSuperficiePintor.h"

#include <QPrinter>

class cSuperficieImpresora : public cSuperficiePintor {
public:
    // The printer chosen in the system's dialog, or the default one.
    explicit cSuperficieImpresora(QPrinter& impresora);
    ~cSuperficieImpresora() override;

    void EndDoc() override;
    // False when a sheet could not be sent.
    bool Bien() const { return m_bien; }
    // The number of printers installed.
    static int NumeroImpresoras();

protected:
    void EmpezarHoja(QPainter& pintor) override;

private:
    QPrinter& m_impresora;
    bool m_bien = true;
};
